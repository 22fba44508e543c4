#include "midi/out.h"

#include "desk/timers.h"
#include "fakes/stage.h"
#include "shell/commands.h"

namespace {

using Lines = std::vector<std::string>;

const Byte_String Message = {'\xF0', '\x41', '\x36', '\x00', '\x21',
                             '\x20', '\x01', '\x23', '\x40', '\xF7'};

}  // namespace

// MIDI is on, the port closed, as behind a start.
class Output : public Stage {
  protected:
    Output() {
        MIDI_Enabled = 1;
        Port_Out_Names();
    }
};

using Output_At_The_Start = Stage;

TEST_F(Output_At_The_Start, is_closed_and_on_channel_1) {
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Channel, 1);
    EXPECT_EQ(MIDI_Out_Device, 0);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(MIDI_Autoplay, 1);
}

// -- opening ---------------------------------------------------------------------------------------------

TEST_F(Output, opens_the_selected_device) {
    Ports.out_names = {"First", "Second", "Third"};
    MIDI_Out_Device = 2;
    MIDI_Out_Open();
    EXPECT_EQ(Ports.opened, std::vector<int>{2});
    EXPECT_EQ(MIDI_Out_Handle, Ports.open_handle);
    EXPECT_NE(MIDI_Out_Handle, -1);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Output, opens_once) {
    MIDI_Out_Open();
    MIDI_Out_Open();
    MIDI_SendNote(60, 127);
    MIDI_Send_Long(Message);
    EXPECT_EQ(Ports.open_calls, 1);
}

TEST_F(Output, does_not_open_unless_midi_is_exactly_on) {
    for (const int enabled : {0, 2, 255}) {
        MIDI_Enabled = static_cast<std::uint8_t>(enabled);
        MIDI_Out_Open();
        EXPECT_EQ(Ports.open_calls, 0);
        EXPECT_EQ(MIDI_Out_Handle, -1);
    }
}

TEST_F(Output, is_opened_by_the_first_send_of_each_kind) {
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Ports.open_calls, 1);
    MIDI_Out_Close();
    MIDI_Send_Long(Message);
    EXPECT_EQ(Ports.open_calls, 2);
    MIDI_Out_Close();
    MIDI_All_Notes_Off();
    EXPECT_EQ(Ports.open_calls, 3);
    MIDI_Out_Close();
    Seq_SendAllNotesOff();
    EXPECT_EQ(Ports.open_calls, 4);
    MIDI_Out_Close();
    MIDI_Put("\x90\x3C\x40");
    EXPECT_EQ(Ports.open_calls, 5);
}

// -- notes and short messages ----------------------------------------------------------------------------

TEST_F(Output, sends_notes_on_the_configured_channel) {
    MIDI_SendNote(60, 127);
    MIDI_SendNote(60, 0);
    MIDI_Channel = 16;
    MIDI_SendNote(0, 1);
    MIDI_SendNote(127, 0);
    EXPECT_EQ(Sent(), (Lines{"90 3C 7F", "90 3C 00", "9F 00 01", "9F 7F 00"}));
}

TEST_F(Output, sends_all_notes_off_on_the_configured_channel) {
    MIDI_All_Notes_Off();
    EXPECT_EQ(MIDI_All_Off_Msg, std::string("\xB0\x7B\0", 3));
    MIDI_Channel = 16;
    MIDI_All_Notes_Off();
    EXPECT_EQ(MIDI_All_Off_Msg, std::string("\xBF\x7B\0", 3));
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "BF 7B 00"}));
}

TEST_F(Output, builds_the_all_notes_off_message_also_with_midi_off) {
    MIDI_Enabled = 0;
    MIDI_Channel = 16;
    MIDI_All_Notes_Off();
    EXPECT_EQ(MIDI_All_Off_Msg, std::string("\xBF\x7B\0", 3));
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Output, fills_absent_data_bytes_of_a_short_message_with_0) {
    EXPECT_EQ(MIDI_Put("\xF6"), 0);
    EXPECT_EQ(MIDI_Put("\xC0\x05"), 0);
    EXPECT_EQ(MIDI_Put("\x90\x3C\x40"), 0);
    EXPECT_EQ(MIDI_Put(std::string("\xB0\0\x7F", 3)), 0);
    EXPECT_EQ(Sent(), (Lines{"F6 00 00", "C0 05 00", "90 3C 40", "B0 00 7F"}));
}

TEST_F(Output, sends_the_first_three_bytes_of_a_longer_short_message) {
    MIDI_Put("\x90\x3C\x40\x7F");
    EXPECT_EQ(Sent(), Lines{"90 3C 40"});
}

TEST_F(Output, gives_status_bytes_by_channel) {
    EXPECT_EQ(Note_On_Status(1), 0x90);
    EXPECT_EQ(Note_On_Status(16), 0x9F);
    EXPECT_EQ(Control_Change_Status(1), 0xB0);
    EXPECT_EQ(Control_Change_Status(16), 0xBF);
}

// -- the sequencer's path --------------------------------------------------------------------------------

TEST_F(Output, sends_the_sequencers_notes_with_the_sequencers_status) {
    MIDI_Out_Open();
    MIDI_Channel = 5;
    Seq_Status = 0x9F;
    Seq_SendNote(72, 63);
    EXPECT_EQ(Sent(), Lines{"9F 48 3F"});
    EXPECT_EQ(Seq_Last_Note, 72);
    EXPECT_EQ(Seq_Last_Velocity, 63);
    EXPECT_EQ(Seq_Last_Message, 0x3F489F);
    EXPECT_EQ(Seq_Last_Result, 0);
}

TEST_F(Output, sends_the_sequencers_notes_without_asking_whether_midi_is_on) {
    MIDI_Out_Open();
    MIDI_Enabled = 0;
    Seq_Status = 0x90;
    Seq_SendNote(60, 0);
    EXPECT_EQ(Sent(), Lines{"90 3C 00"});
    EXPECT_EQ(Seq_Last_Message, 0x003C90);
}

TEST_F(Output, is_not_opened_by_the_sequencers_notes) {
    Seq_Status = 0x90;
    Expect_Box("Seq_SendNote*: (5) Text of 5");
    Seq_SendNote(60, 127);
    EXPECT_EQ(Ports.open_calls, 0);
    EXPECT_EQ(Seq_Last_Result, 5);
    EXPECT_EQ(Seq_Last_Message, 0x7F3C90);
}

TEST_F(Output, sends_the_sequencers_all_notes_off_and_goes_back_to_notes) {
    MIDI_Channel = 16;
    Seq_SendAllNotesOff();
    EXPECT_EQ(Sent(), Lines{"BF 7B 00"});
    EXPECT_EQ(Seq_Status, 0x9F);
    EXPECT_EQ(Seq_Last_Note, 123);
    EXPECT_EQ(Seq_Last_Velocity, 0);
    MIDI_Channel = 1;
    Seq_SendAllNotesOff();
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    EXPECT_EQ(Seq_Status, 0x90);
}

// -- system exclusive ------------------------------------------------------------------------------------

TEST_F(Output, sends_a_long_message_byte_for_byte) {
    MIDI_Send_Long(Message);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 40 F7"});
}

TEST_F(Output, sends_a_long_message_of_10000_bytes_as_one) {
    MIDI_Send_Long("\xF0" + std::string(9998, '\x11') + "\xF7");
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].size(), 29999U);
    EXPECT_EQ(sent[0].substr(0, 8), "F0 11 11");
    EXPECT_EQ(sent[0].substr(29991), "11 11 F7");
}

TEST_F(Output, lets_no_event_in_while_it_sends) {
    MIDI_Send_Long(Message);
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Loop.turns, 0);
    EXPECT_EQ(Loop.waits, 0);
}

// -- MIDI off --------------------------------------------------------------------------------------------

TEST_F(Output, stays_closed_and_silent_with_midi_off) {
    for (const int enabled : {0, 2}) {
        MIDI_Enabled = static_cast<std::uint8_t>(enabled);
        Seq_Status = 7;
        MIDI_SendNote(60, 127);
        MIDI_Send_Long(Message);
        MIDI_All_Notes_Off();
        Seq_SendAllNotesOff();
        MIDI_Out_Close();
        EXPECT_EQ(Sent(), Lines{});
        EXPECT_EQ(Ports.open_calls, 0);
        EXPECT_EQ(MIDI_Out_Handle, -1);
        EXPECT_EQ(Seq_Status, 7);
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Output, refuses_a_short_message_with_midi_off_on_the_ordinary_way) {
    MIDI_Enabled = 0;
    Expect_Box("MIDI_Put*: (5) Text of 5");
    EXPECT_EQ(MIDI_Put("\x90\x3C\x40"), 5);
    EXPECT_EQ(Ports.open_calls, 0);
}

// -- closing ---------------------------------------------------------------------------------------------

TEST_F(Output, sends_all_notes_off_before_it_closes) {
    MIDI_Out_Open();
    At_Next_Turn([] {
        EXPECT_EQ(Ports.sent, Lines{"B0 7B 00"});
        EXPECT_EQ(Ports.close_calls, 0) << "events run before the port is closed";
        EXPECT_NE(MIDI_Out_Handle, -1);
    });
    MIDI_Out_Close();
    EXPECT_EQ(Loop.turns, 1);
    EXPECT_EQ(Ports.close_calls, 1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(Output, that_is_closed_has_nothing_to_close) {
    MIDI_Out_Close();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Ports.open_calls, 0);
    EXPECT_EQ(Ports.close_calls, 0);
    EXPECT_EQ(Loop.turns, 0);
}

TEST_F(Output, waits_asleep_and_without_a_word_while_the_port_still_plays) {
    MIDI_Out_Open();
    Ports.close_results = {65, 65, 65};
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 4);
    EXPECT_EQ(Loop.turns, 1);
    EXPECT_EQ(Loop.waits, 3);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"}) << "all notes off once";
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(Output, waits_without_a_limit_while_the_port_still_plays) {
    MIDI_Out_Open();
    Ports.close_results = std::vector<Port_Result>(5000, 65);
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 5001);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Output, lets_timers_tick_while_the_port_still_plays) {
    MIDI_Out_Open();
    Ports.close_results = std::vector<Port_Result>(300, 65);
    Seq_Tmr.tick = [] { Seq_SendNote(60, 127); };
    Seq_Status = 0x90;
    Timer_Start(Seq_Tmr);
    MIDI_Out_Close();
    Timer_Stop(Seq_Tmr);
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "90 3C 7F"}));
}

TEST_F(Output, ends_the_wait_when_no_window_is_open_any_more) {
    MIDI_Out_Open();
    Loop.windows_open = false;
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Output, ends_the_wait_when_the_last_window_goes_meanwhile) {
    MIDI_Out_Open();
    Ports.close_results = std::vector<Port_Result>(10, 65);
    At_Next_Turn([] { At_Next_Turn([] { Loop.windows_open = false; }); });
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Output, that_an_event_closes_meanwhile_is_closed_without_a_word) {
    MIDI_Out_Open();
    Ports.close_results = {65};
    At_Next_Turn([] { At_Next_Turn([] { MIDI_Out_Close(); }); });
    MIDI_Out_Close();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Output, opens_again_at_the_next_send) {
    MIDI_SendNote(60, 127);
    MIDI_Out_Close();
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Ports.opened, (std::vector<int>{0, 0}));
    EXPECT_EQ(MIDI_Out_Handle, 2);
}

TEST_F(Output, closes_fully_whether_midi_is_on_or_was_switched_off) {
    MIDI_Out_Open();
    MIDI_Out_Close_Fully();
    EXPECT_EQ(Ports.open_handle, -1);
    MIDI_Out_Open();
    Sent();
    MIDI_Enabled = 0;
    Ports.close_results = {65, 65};
    MIDI_Out_Close_Fully();
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(Sent(), Lines{}) << "nothing is sent with MIDI off";
}

TEST_F(Output, that_is_closed_is_fully_closed_already) {
    MIDI_Out_Close_Fully();
    MIDI_Enabled = 0;
    MIDI_Out_Close_Fully();
    EXPECT_EQ(Ports.close_calls, 0);
    EXPECT_EQ(Ports.open_calls, 0);
}
