// A tone comes in from the instrument: from the entry in the menu to the panel that shows it.
#include <gtest/gtest.h>

#include "desk/menus.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/in.h"
#include "midi/out.h"
#include "platform/event_loop.h"
#include "setup/setup.h"
#include "shell/frame.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

std::string Dump(const std::string& name, std::size_t length = 67) {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    bytes += name;
    bytes.resize(17, ' ');
    bytes.append(49, '\x40');
    bytes.resize(length - 1, '\x11');
    return bytes + '\xF7';
}

void Arrives(const std::string& message) {
    Arrive(message);
    Event_Loop_Turn();
}

}  // namespace

// -- the key ---------------------------------------------------------------------------------------------

class Receive_Key : public Stage {
  protected:
    static void Start_With(const std::string& line) {
        Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\n" + line);
        ASSERT_TRUE(Main_Load());
    }
};

TEST_F(Receive_Key, that_is_missing_leaves_the_entry_hidden) {
    Start_With("");
    EXPECT_FALSE(Menu(Menu_Tone_Receive).visible);
    EXPECT_STREQ(Menu(Menu_Tone_Receive).shortcut, "Ctrl+V");
    EXPECT_EQ(Menu(Menu_Tone_Receive).caption, "Recei&ve ");
}

TEST_F(Receive_Key, of_1_shows_the_entry) {
    Start_With("receive = 1\n");
    EXPECT_TRUE(Menu(Menu_Tone_Receive).visible);
    EXPECT_TRUE(Menu(Menu_Tone_Receive).enabled);
    EXPECT_TRUE(Menu(Menu_Tone_Receive).chosen.Filled());
}

TEST_F(Receive_Key, of_anything_else_leaves_the_entry_hidden) {
    for (const char* value : {"", "0", "2", "01", "yes", "-1", "1x"}) {
        Write_Settings(std::string("[MIDI]\nReceive=") + value + "\n");
        INI_File = Test_Folder() + "/Tonebench.INI";
        Settings_Read();
        EXPECT_FALSE(Menu(Menu_Tone_Receive).visible) << value;
    }
}

TEST_F(Receive_Key, is_never_written) {
    Start_With("Receive=0\n");
    Menu(Menu_Tone_Receive).visible = true;
    Settings_Write();
    EXPECT_NE(Read_Settings().find("Receive=0\n"), std::string::npos);
    Write_Settings("");
    Settings_Write();
    EXPECT_EQ(Read_Settings().find("Receive"), std::string::npos);
}

// -- the command and the reception -----------------------------------------------------------------------

class Reception : public Started_Stage {
  protected:
    Reception() {
        Tone_Data.fill(5);
        Tone_Saved = Flag_16::True;
        Sent();
    }
    static void Choose() { Menu(Menu_Tone_Receive).chosen(); }
};

TEST_F(Reception, opens_the_port_when_it_is_wanted_and_not_before) {
    EXPECT_TRUE(Ports.in_opened.empty());
    Choose();
    EXPECT_EQ(Ports.in_opened.size(), 1U);
    EXPECT_EQ(MIDI_Receiving, 1);
}

TEST_F(Reception, does_not_begin_without_a_device_and_shows_nothing) {
    MIDI_In_Missing = Flag_16::True;
    Choose();
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Editor_Seq_Start.enabled);
    EXPECT_TRUE(Boxes.empty());

    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::No);
    Choose();
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Reception, opens_no_port_when_the_save_was_left) {
    Tone_Saved = Flag_16::False;
    SYX_Save_As = [] {};
    Answer_With("Save actual TONE first?", Answer::Yes);
    Choose();
    EXPECT_TRUE(Ports.in_opened.empty());
    EXPECT_EQ(MIDI_Receiving, 0);
}

TEST_F(Reception, does_not_begin_with_a_port_that_cannot_be_opened) {
    Ports.in_open_result = 6;
    Expect_Box("vbMidiInOpen: Text of 6");
    Choose();
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_TRUE(Menu(Menu_File).enabled);
}

TEST_F(Reception, ends_at_a_whole_tone_which_shows_and_is_not_sent_back) {
    Choose();
    Arrives(Dump("Brass"));
    EXPECT_EQ(Shown(), "BRASS");
    EXPECT_EQ(Tone_Name_Text, "BRASS");
    EXPECT_EQ(At("VCF_CutoffF").top, At("VCF_Res").top);
    EXPECT_EQ(Tone_Data[34], 0x40);
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Editor_Seq_Start.enabled);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Reception, goes_on_at_a_message_of_another_length_and_shows_it_at_the_next_refresh) {
    const std::string before = Shown();
    Choose();
    for (const std::size_t length : {40U, 66U, 68U, 4096U}) {
        Arrives(Dump("Length " + std::to_string(length), length));
        EXPECT_EQ(Tone_Data[7], static_cast<std::uint8_t>(std::to_string(length)[0])) << length;
        EXPECT_EQ(MIDI_Receiving, 1) << length;
        EXPECT_EQ(Shown(), before) << length;
    }
    Arrives(Dump("Whole"));
    EXPECT_EQ(Shown(), "WHOLE");
    EXPECT_EQ(MIDI_Receiving, 0);
}

TEST_F(Reception, takes_a_second_tone_right_behind_the_first) {
    Choose();
    Arrive(Dump("First"));
    Arrives(Dump("Second"));
    EXPECT_EQ(Shown(), "SECOND");
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_Autosend, 1);
}

TEST_F(Reception, begins_by_a_whole_tone_outside_of_it_when_the_port_is_open) {
    MIDI_In_Open();
    Arrives(Dump("Brass"));
    EXPECT_EQ(Shown(), "BRASS");
    EXPECT_EQ(MIDI_Receiving, 1);
    MIDI_Receive_Toggle();
    MIDI_In_Message(Dump("Strings"));
    EXPECT_EQ(Shown(), "STRINGS");
    EXPECT_EQ(MIDI_Receiving, 0) << "the port is closed";
}

TEST_F(Reception, goes_on_behind_a_message_that_was_too_long) {
    Choose();
    Ports.in_refused = true;
    Expect_Box("Midi buffer overflow!");
    Advance(500ms);
    EXPECT_EQ(MIDI_Receiving, 1);
    Arrives(Dump("Brass"));
    EXPECT_EQ(Shown(), "BRASS");
}

TEST_F(Reception, ends_with_a_report_and_free_menus_when_the_device_vanishes) {
    Choose();
    Ports.in_present = false;
    Ports.in_reset_result = Port_Gone;
    Expect_Box("vbMidiInClose: Text of 68");
    Advance(500ms);
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Editor_Seq_Start.enabled);
    EXPECT_EQ(Tone_Data[0], 5);
}

TEST_F(Reception, that_still_waits_at_the_end_of_the_program_leaves_the_settings_right) {
    Choose();
    EXPECT_TRUE(Main_Close());
    EXPECT_NE(Read_Settings().find("Autosend=1\n"), std::string::npos);
    EXPECT_EQ(Ports.in_handle, -1);
}

TEST_F(Reception, loses_its_port_to_the_setup_and_is_left_by_stop) {
    Choose();
    Window_Show(MIDI_Setup);
    EXPECT_EQ(MIDI_In_Handle, -1);
    Window_Unload(MIDI_Setup);
    EXPECT_EQ(MIDI_Receiving, 1);
    Click("ED_Seq_Stop");
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_Autosend, 1);
}
