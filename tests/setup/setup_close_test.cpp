// How the setup dialog closes: what Ok takes over, what reaches the settings file, and the reminder.
#include <filesystem>

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "setup/setup.h"
#include "shell/frame.h"
#include "synth/profile.h"

namespace {

using Names = std::vector<std::string>;

constexpr const char* JX_8P_Reminder =
    "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
    "setting on your JX-8P:\r"
    "\r"
    "* Press MIDI button\r"
    "* Press buttons 2 and 6\r"
    "* Move EDIT slider until the display shows 'EXCLUSIVE ON'\r"
    "* Unprotect the memory (back side switch 'Protect' to 'OFF')\r"
    "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
    "* Protect the memory (back side switch 'Protect' to 'ON')\r";

constexpr const char* MKS_70_Reminder =
    "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
    "setting on your MKS-70:\r"
    "\r"
    "* Press MIDI button\r"
    "* Press buttons 1 and 4\r"
    "* Move Alpha Dial until the display shows 'SYSTEM EXCLUSIVE ON'\r"
    "* Unprotect the memory (Set 'Protect' to 'OFF')\r"
    "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
    "* Protect the memory again (Set 'Protect' to 'ON')\r";

constexpr const char* Alpha_Juno_Reminder =
    "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
    "setting on your Alpha Juno!\r";

constexpr const char* Other_Reminder =
    "Please don't forget to enable the MIDI System Exclusive (SysEx)\r"
    "setting on your synthesizer!\r";

constexpr const char* Settings_Before =
    "; my studio\n"
    "[Main Window]\n"
    "Left=10\n"
    "\n"
    "[MIDI]\n"
    "Output=Out B\n"
    "Input=In B\n"
    "; the upper rack\n"
    "Channel=3\n"
    "Synthesizer=JX-8P\n"
    "\n"
    "[Recent Files]\n"
    "Tones=/tones/\n";

}  // namespace

class Setup_Close : public Stage {
  protected:
    Setup_Close() {
        Ports.out_names = {"Out A", "Out B", "Out C"};
        Ports.in_names = {"In A", "In B"};
        Write_Settings(Settings_Before);
        EXPECT_TRUE(Main_Load());
        Window_Show(MIDI_Setup);
    }
};

// -- Ok --------------------------------------------------------------------------------------------------

TEST_F(Setup_Close, with_ok_takes_devices_and_channel) {
    MIDI_Setup_Needed = 1;
    Setup_Output_Change(2);
    Setup_Input_Change(0);
    Setup_Channel_Change(15);
    Answer_With(JX_8P_Reminder, Answer::Ok, [] {
        EXPECT_EQ(MIDI_Out_Device, 2);
        EXPECT_EQ(MIDI_In_Device, 0);
        EXPECT_EQ(MIDI_Out_Chosen, "Out C");
        EXPECT_EQ(MIDI_In_Chosen, "In A");
        EXPECT_EQ(MIDI_Channel, 16);
        EXPECT_EQ(MIDI_Setup_Needed, 0);
        EXPECT_TRUE(MIDI_Setup.loaded) << "the reminder comes before the dialog closes";
        EXPECT_EQ(Read_Settings(), Settings_Before);
    });
    Setup_Cmd_OK();
    EXPECT_FALSE(MIDI_Setup.loaded);
    EXPECT_FALSE(MIDI_Setup.visible);
    EXPECT_EQ(MIDI_Out_Name, "Out B") << "the name of the start stays";
}

TEST_F(Setup_Close, with_ok_takes_the_first_of_each_list_too) {
    Setup_Output_Change(0);
    Setup_Input_Change(0);
    Setup_Channel_Change(0);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(MIDI_Out_Device, 0);
    EXPECT_EQ(MIDI_In_Device, 0);
    EXPECT_EQ(MIDI_Channel, 1);
}

TEST_F(Setup_Close, with_ok_plays_on_the_new_device_and_channel) {
    Setup_Output_Change(2);
    Setup_Channel_Change(15);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    MIDI_SendNote(60, 127);
    EXPECT_EQ(Ports.opened, std::vector<int>{2});
    EXPECT_EQ(Sent(), Names{"9F 3C 7F"});
    EXPECT_EQ(Seq_Status, 0x9F);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 F 21 20 01 ");
}

TEST_F(Setup_Close, with_ok_closes_ports_that_were_opened_meanwhile) {
    MIDI_SendNote(60, 127);
    MIDI_In_Handle = 4;
    Ports.close_results = {65, 65};
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Ports.close_calls, 3);
}

TEST_F(Setup_Close, with_ok_leaves_a_device_that_is_not_selected) {
    Setup_Output_Change(-1);
    Setup_Input_Change(-1);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(MIDI_In_Device, 1);
    EXPECT_EQ(MIDI_Out_Chosen, "");
    EXPECT_EQ(MIDI_In_Chosen, "");
    EXPECT_NE(Read_Settings().find("Output=Out B\nInput=In B\n"), std::string::npos)
        << "neither is written";
}

// -- the reminder ----------------------------------------------------------------------------------------

TEST_F(Setup_Close, reminds_in_a_box_with_its_own_title_and_an_information_icon) {
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    ASSERT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes[0].title, "MIDI System Exclusive enabled?");
    EXPECT_EQ(Boxes[0].icon, Icon::Information);
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
}

TEST_F(Setup_Close, reminds_by_the_instrument_that_was_chosen_just_now) {
    Setup_SynthesizerType_Change(1);
    Expect_Box(MKS_70_Reminder);
    Setup_Cmd_OK();
    Window_Show(MIDI_Setup);
    Setup_SynthesizerType_Change(2);
    Expect_Box(Alpha_Juno_Reminder);
    Setup_Cmd_OK();
}

TEST_F(Setup_Close, reminds_of_an_unknown_instrument_in_general_words) {
    Synthesizer = "DX7";
    Expect_Box(Other_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(Setup_Reminder(""), Other_Reminder);
}

TEST_F(Setup_Close, does_not_remind_with_midi_off) {
    Setup_Enable_Click(false);
    Setup_Cmd_OK();
    EXPECT_TRUE(Boxes.empty());
    EXPECT_FALSE(MIDI_Setup.loaded);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Setup_Close, does_not_remind_behind_escape) {
    Setup_Escape();
    EXPECT_TRUE(Boxes.empty());
    EXPECT_FALSE(MIDI_Setup.loaded);
}

// -- what reaches the settings file ----------------------------------------------------------------------

TEST_F(Setup_Close, writes_its_keys_and_leaves_all_other_lines_alone) {
    Setup_Output_Change(0);
    Setup_Input_Change(0);
    Setup_Channel_Change(11);
    Setup_AutoSend_Click(false);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(Read_Settings(),
              "; my studio\n"
              "[Main Window]\n"
              "Left=10\n"
              "\n"
              "[MIDI]\n"
              "Output=Out A\n"
              "Input=In A\n"
              "; the upper rack\n"
              "Channel=12\n"
              "Synthesizer=JX-8P\n"
              "Autosend=0\n"
              "Control Channel=[Not used]\n"
              "\n"
              "[Recent Files]\n"
              "Tones=/tones/\n");
}

TEST_F(Setup_Close, writes_a_file_where_there_was_none) {
    std::filesystem::remove(Test_Folder() + "/Tonebench.INI");
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(Read_Settings(),
              "[MIDI]\n"
              "Autosend=1\n"
              "Channel=3\n"
              "Control Channel=[Not used]\n"
              "Input=In B\n"
              "Output=Out B\n");
}

TEST_F(Setup_Close, keeps_the_spelling_and_the_line_ends_of_the_file) {
    Write_Settings("[midi]\r\nOUTPUT=Out B\r\nINPUT=In B\r\nCHANNEL=3\r\n");
    Setup_Output_Change(2);
    Setup_Escape();
    EXPECT_EQ(Read_Settings(),
              "[midi]\r\nOUTPUT=Out C\r\nINPUT=In B\r\nCHANNEL=3\r\nAutosend=1\r\n"
              "Control Channel=[Not used]\r\n");
}

TEST_F(Setup_Close, does_not_write_what_is_written_at_the_end_of_the_program) {
    Write_Settings("");
    Setup_SynthesizerType_Change(1);
    Setup_AutoPlay_Click(false);
    Setup_Escape();
    EXPECT_EQ(Read_Settings().find("Synthesizer"), std::string::npos);
    EXPECT_EQ(Read_Settings().find("Autoplay"), std::string::npos);
}

TEST_F(Setup_Close, with_escape_writes_the_new_devices_and_the_old_channel) {
    Setup_Output_Change(2);
    Setup_Input_Change(0);
    Setup_Channel_Change(15);
    Setup_Escape();
    EXPECT_EQ(MIDI_Channel, 3);
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(MIDI_In_Device, 1);
    EXPECT_EQ(MIDI_Out_Chosen, "");
    const std::string file = Read_Settings();
    EXPECT_NE(file.find("Output=Out C\nInput=In A\n"), std::string::npos);
    EXPECT_NE(file.find("Channel=3\n"), std::string::npos);
}

TEST_F(Setup_Close, with_escape_still_needs_the_setup) {
    MIDI_Setup_Needed = 1;
    Setup_Escape();
    EXPECT_EQ(MIDI_Setup_Needed, 1);
}

TEST_F(Setup_Close, with_escape_keeps_what_took_effect_at_once) {
    Setup_SynthesizerType_Change(1);
    Setup_AutoSend_Click(false);
    Setup_AutoPlay_Click(false);
    Setup_Escape();
    EXPECT_EQ(Synthesizer, "MKS-70");
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_NE(Read_Settings().find("Autosend=0\n"), std::string::npos);
}

TEST_F(Setup_Close, with_escape_leaves_a_port_open_that_was_opened_meanwhile) {
    MIDI_SendNote(60, 127);
    Setup_Escape();
    EXPECT_NE(MIDI_Out_Handle, -1);
}

TEST_F(Setup_Close, without_inputs_writes_the_very_words_of_the_list) {
    Setup_Escape();
    MIDI_In_Missing = Flag_16::True;
    MIDI_In_Caps.clear();
    Window_Show(MIDI_Setup);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_NE(Read_Settings().find("Input=[no inputs available]\n"), std::string::npos);
    EXPECT_EQ(MIDI_In_Device, 0);
    EXPECT_EQ(MIDI_In_Chosen, "[no inputs available]");
}

TEST_F(Setup_Close, without_outputs_leaves_the_output_of_the_file) {
    Setup_Escape();
    MIDI_Out_Caps.clear();
    Window_Show(MIDI_Setup);
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_NE(Read_Settings().find("Output=Out B\n"), std::string::npos);
}

TEST_F(Setup_Close, goes_on_without_a_word_where_the_file_cannot_be_written) {
    std::filesystem::remove(Test_Folder() + "/Tonebench.INI");
    std::filesystem::create_directory(Test_Folder() + "/Tonebench.INI");
    Setup_Escape();
    EXPECT_TRUE(Boxes.empty());
    EXPECT_FALSE(MIDI_Setup.loaded);
}

// -- the rest of the close -------------------------------------------------------------------------------

TEST_F(Setup_Close, sets_the_sequencers_status_and_the_headers_either_way) {
    Seq_Status = 0;
    Sysex_Header_APR = "";
    MIDI_Channel = 16;
    Setup_Escape();
    EXPECT_EQ(Seq_Status, 0x9F);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 F 21 20 01 ");
}

TEST_F(Setup_Close, unlocks_the_rest) {
    Setup_Escape();
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(Main_Window.pointer, Pointer::Default);
    EXPECT_EQ(Dialog_Depth, 0);
}

TEST_F(Setup_Close, writes_before_it_unlocks) {
    Setup_Channel_Change(8);
    At_Next_Turn([] {
        EXPECT_NE(Read_Settings().find("Channel=3\n"), std::string::npos);
        EXPECT_NE(Read_Settings().find("Control Channel=[Not used]\n"), std::string::npos);
        EXPECT_EQ(Seq_Status, 0x92);
        EXPECT_EQ(App_Mode, "MIDI_Setup");
    });
    Setup_Escape();
}

TEST_F(Setup_Close, sends_nothing) {
    Sent();
    Expect_Box(JX_8P_Reminder);
    Setup_Cmd_OK();
    EXPECT_EQ(Sent(), Names{});
    EXPECT_EQ(Ports.open_calls, 0);
}
