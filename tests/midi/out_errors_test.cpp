// What a failing port shows, and what it does to the rest.
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/out.h"

namespace {

using Lines = std::vector<std::string>;

const Byte_String Message = "\xF0\x41\xF7";

}  // namespace

class Failing_Output : public Stage {
  protected:
    Failing_Output() {
        MIDI_Enabled = 1;
        Port_Out_Names();
    }

    // Opens the port and lets every send fail with `result` from now on.
    static void Break(Port_Result result) {
        MIDI_Out_Open();
        Ports.send_result = result;
    }
};

// -- the reports -----------------------------------------------------------------------------------------

TEST_F(Failing_Output, shows_context_number_and_text_in_a_plain_box) {
    Expect_Box("MIDI_Put*: (11) Text of 11");
    MIDI_Show_Out_Error(11, "MIDI_Put");
    ASSERT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes[0].title, "Tonebench");
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
    EXPECT_EQ(Boxes[0].icon, Icon::None);
}

TEST_F(Failing_Output, shows_nothing_for_0) {
    MIDI_Out_Open();
    MIDI_Show_Out_Error(0, "MIDI_Put");
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, says_unknown_error_for_a_number_without_a_text) {
    Expect_Box("MIDI_Put*: (999) Unknown error");
    MIDI_Show_Out_Error(999, "MIDI_Put");
}

TEST_F(Failing_Output, shows_159_bytes_of_a_text_at_most) {
    Expect_Box("MIDI_Put*: (998) " + std::string(159, 'x'));
    MIDI_Show_Out_Error(998, "MIDI_Put");
}

TEST_F(Failing_Output, closes_the_port_and_switches_midi_off_for_a_positive_result) {
    MIDI_Out_Open();
    Answer_With("Somewhere*: (1) Text of 1", Answer::Ok, [] {
        EXPECT_EQ(MIDI_Enabled, 1) << "only behind the box";
        EXPECT_NE(MIDI_Out_Handle, -1);
    });
    MIDI_Show_Out_Error(1, "Somewhere");
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"}) << "all notes off before the close";
}

TEST_F(Failing_Output, stays_open_and_on_behind_a_negative_result) {
    MIDI_Out_Open();
    Expect_Box("Somewhere*: (-1) Text of -1");
    MIDI_Show_Out_Error(-1, "Somewhere");
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.close_calls, 0);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Failing_Output, of_long_messages_shows_context_and_text_and_no_number) {
    MIDI_Out_Open();
    Expect_Box("OutPreparerHeader\r\nText of 11");
    MIDI_Show_Long_Error(11, "OutPreparerHeader");
    EXPECT_EQ(Boxes[0].title, "Tonebench");
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.close_calls, 0);
}

TEST_F(Failing_Output, of_long_messages_says_nothing_for_a_number_without_a_text) {
    Expect_Box("OutPreparerHeader\r\n");
    MIDI_Show_Long_Error(999, "OutPreparerHeader");
}

TEST_F(Failing_Output, of_long_messages_shows_127_bytes_of_a_text_at_most) {
    Expect_Box("OutPreparerHeader\r\n" + std::string(127, 'x'));
    MIDI_Show_Long_Error(998, "OutPreparerHeader");
}

// -- the contexts ----------------------------------------------------------------------------------------

TEST_F(Failing_Output, names_the_sender) {
    Break(68);
    Expect_Box("MIDI_SendNote*: (68) Text of 68");
    MIDI_SendNote(60, 127);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, names_the_short_message_and_returns_its_result) {
    Break(68);
    Expect_Box("MIDI_Put*: (68) Text of 68");
    EXPECT_EQ(MIDI_Put("\x90\x3C\x40"), 68);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, names_the_sequencers_note) {
    Break(68);
    Seq_Status = 0x90;
    Expect_Box("Seq_SendNote*: (68) Text of 68");
    Seq_SendNote(60, 127);
    EXPECT_EQ(Seq_Last_Result, 68);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, names_the_sequencers_all_notes_off_and_goes_back_to_notes) {
    Break(68);
    MIDI_Channel = 16;
    Answer_With("Seq_SendAllNotesOff*: (68) Text of 68", Answer::Ok, [] {
        EXPECT_EQ(Seq_Status, 0xBF);
        EXPECT_EQ(Seq_Last_Note, 123);
        EXPECT_EQ(Seq_Last_Velocity, 0);
    });
    Seq_SendAllNotesOff();
    EXPECT_EQ(Seq_Status, 0x9F);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, keeps_the_low_16_bits_of_a_result_with_their_sign) {
    Break(65535);
    Expect_Box("MIDI_SendNote*: (-1) Text of -1");
    MIDI_SendNote(60, 127);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
    Ports.send_result = 65536;
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Boxes.size(), 1U);
    Ports.send_result = 32768;
    Expect_Box("MIDI_Put*: (-32768) Text of -32768");
    EXPECT_EQ(MIDI_Put("\x90"), -32768);
}

// -- a failed open ---------------------------------------------------------------------------------------

TEST_F(Failing_Output, that_cannot_be_opened_shows_one_box_for_one_gesture) {
    Ports.open_result = 4;
    Expect_Box("MIDI_Out_Open*: (4) Text of 4");
    MIDI_SendNote(60, 127);
    MIDI_SendNote(64, 127);
    MIDI_Send_Long(Message);
    MIDI_All_Notes_Off();
    Seq_SendAllNotesOff();
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Ports.open_calls, 1);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Failing_Output, that_cannot_be_opened_stops_each_sender) {
    void (*const senders[])() = {[] { MIDI_SendNote(60, 127); }, [] { MIDI_Send_Long(Message); },
                                 [] { MIDI_All_Notes_Off(); }, [] { Seq_SendAllNotesOff(); }};
    Ports.open_result = 4;
    for (const auto sender : senders) {
        MIDI_Enabled = 1;
        Expect_Box("MIDI_Out_Open*: (4) Text of 4");
        sender();
        EXPECT_EQ(MIDI_Enabled, 0);
    }
    EXPECT_EQ(Ports.long_calls, 0);
}

TEST_F(Failing_Output, that_cannot_be_opened_leaves_the_sequencer_at_notes) {
    Ports.open_result = 4;
    MIDI_Channel = 16;
    Expect_Box("MIDI_Out_Open*: (4) Text of 4");
    Seq_SendAllNotesOff();
    EXPECT_EQ(Seq_Status, 0x9F);
}

TEST_F(Failing_Output, that_cannot_be_opened_switches_midi_off_also_for_a_negative_result) {
    Ports.open_result = 65535;
    Expect_Box("MIDI_Out_Open*: (-1) Text of -1");
    MIDI_Out_Open();
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, that_has_no_such_device_cannot_be_opened) {
    MIDI_Out_Device = -1;
    Expect_Box("MIDI_Out_Open*: (2) Text of 2");
    MIDI_Out_Open();
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, that_cannot_be_opened_lets_a_short_message_try_the_closed_port) {
    Ports.open_result = 4;
    Expect_Box("MIDI_Out_Open*: (4) Text of 4");
    Expect_Box("MIDI_Put*: (5) Text of 5");
    EXPECT_EQ(MIDI_Put("\x90\x3C\x40"), 5);
}

TEST_F(Failing_Output, opens_again_when_midi_is_switched_on_again) {
    Ports.open_result = 4;
    Expect_Box("MIDI_Out_Open*: (4) Text of 4");
    MIDI_SendNote(60, 127);
    Ports.open_result = 0;
    MIDI_Enabled = 1;
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Sent(), Lines{"90 3C 7F"});
}

// -- a device that goes while it is played ---------------------------------------------------------------

TEST_F(Failing_Output, that_has_gone_shows_one_box_for_a_whole_chord) {
    Break(68);
    Expect_Box("MIDI_SendNote*: (68) Text of 68");
    for (int note = 60; note <= 72; ++note) MIDI_SendNote(static_cast<std::int16_t>(note), 90);
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(Ports.open_calls, 1) << "and is not opened again";
}

TEST_F(Failing_Output, that_has_gone_shows_one_box_when_it_is_closed) {
    Break(68);
    Expect_Box("MIDI_Put*: (68) Text of 68");
    MIDI_Out_Close();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(Ports.close_calls, 1);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, that_has_gone_shows_one_box_when_it_is_closed_fully) {
    Break(68);
    Expect_Box("MIDI_Put*: (68) Text of 68");
    MIDI_Out_Close_Fully();
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, that_has_gone_is_told_again_when_midi_has_been_switched_on_again) {
    Break(68);
    Expect_Box("MIDI_Put*: (68) Text of 68");
    MIDI_All_Notes_Off();
    MIDI_Enabled = 1;
    Expect_Box("MIDI_Put*: (68) Text of 68");
    MIDI_All_Notes_Off();
    EXPECT_EQ(Boxes.size(), 2U);
}

TEST_F(Failing_Output, that_takes_no_long_message_says_so_each_time_and_tries_all_the_same) {
    MIDI_Out_Open();
    Ports.ready_result = 68;
    Expect_Box("OutPreparerHeader\r\nText of 68");
    MIDI_Send_Long(Message);
    EXPECT_EQ(Ports.long_calls, 1);
    Expect_Box("OutPreparerHeader\r\nText of 68");
    MIDI_Send_Long(Message);
    EXPECT_EQ(Ports.long_calls, 2);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Failing_Output, that_loses_a_long_message_says_nothing) {
    Ports.long_result = 68;
    MIDI_Send_Long(Message);
    EXPECT_EQ(Ports.long_calls, 1);
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_NE(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, fails_once_for_the_timer_that_ticks_behind_its_box) {
    Break(68);
    Seq_Tmr.tick = [] {
        if (MIDI_Enabled == 1) Seq_SendNote(60, 127);
    };
    Timer_Start(Seq_Tmr);
    Answer_With("Seq_SendNote*: (68) Text of 68", Answer::Ok,
                [] { Advance(std::chrono::milliseconds(5000)); });
    Advance(std::chrono::milliseconds(1000));
    Timer_Stop(Seq_Tmr);
    EXPECT_EQ(Boxes.size(), 1U);
}

// -- a failed close --------------------------------------------------------------------------------------

TEST_F(Failing_Output, that_cannot_be_closed_shows_one_box_a_try_until_it_is) {
    MIDI_Out_Open();
    Ports.close_results = {1, 11};
    Expect_Box("MIDI_Out_Close*: (1) Text of 1");
    Expect_Box("MIDI_Out_Close*: (11) Text of 11");
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 3);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, keeps_its_handle_until_the_failed_close_has_been_told) {
    MIDI_Out_Open();
    Ports.close_results = {1};
    Answer_With("MIDI_Out_Close*: (1) Text of 1", Answer::Ok, [] {
        EXPECT_NE(MIDI_Out_Handle, -1);
        EXPECT_EQ(MIDI_Enabled, 1);
    });
    MIDI_Out_Close();
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Failing_Output, that_a_failed_close_left_closed_gives_one_box) {
    MIDI_Out_Open();
    Ports.close_results = {1};
    Answer_With("MIDI_Out_Close*: (1) Text of 1", Answer::Ok, [] { Ports.open_handle = -1; });
    MIDI_Out_Close();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, whose_handle_nobody_knows_any_more_gives_one_box_at_the_close) {
    MIDI_Out_Open();
    MIDI_Out_Handle = 77;
    Expect_Box("MIDI_Put*: (5) Text of 5");
    MIDI_Out_Close();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Failing_Output, that_fails_with_a_negative_number_at_the_close_counts_as_closed) {
    MIDI_Out_Open();
    Ports.close_results = {65535};
    Expect_Box("MIDI_Out_Close*: (-1) Text of -1");
    MIDI_Out_Close();
    EXPECT_EQ(Ports.close_calls, 1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(Failing_Output, closes_without_a_word_when_midi_was_switched_off) {
    MIDI_Out_Open();
    MIDI_Enabled = 0;
    Ports.close_results = {1};
    MIDI_Out_Close_Fully();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_TRUE(Boxes.empty());
}
