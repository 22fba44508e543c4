#include "setup/setup.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "shell/frame.h"
#include "synth/profile.h"

namespace {

using Names = std::vector<std::string>;

}  // namespace

// Three outputs, two inputs, the second of each in use, channel 3.
class Setup_Dialog : public Stage {
  protected:
    Setup_Dialog() {
        Ports.out_names = {"Out A", "Out B", "Out C"};
        Ports.in_names = {"In A", "In B"};
        Write_Settings("[MIDI]\nOutput=Out B\nInput=In B\nChannel=3\n");
        EXPECT_TRUE(Main_Load());
        Sent();
    }

    static void Open() { Window_Show(MIDI_Setup); }
    static Setup_Form& Form() { return MIDI_Setup_Form; }
};

// -- load ------------------------------------------------------------------------------------------------

TEST_F(Setup_Dialog, shows_what_is_in_use) {
    Synthesizer = "MKS-70";
    MIDI_Autosend = 0;
    Open();
    EXPECT_EQ(MIDI_Setup.caption, "MIDI Setup");
    EXPECT_EQ(Form().channel.entries, (Names{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12",
                                             "13", "14", "15", "16"}));
    EXPECT_EQ(Form().channel.selected, 2);
    EXPECT_TRUE(Form().enable.checked);
    EXPECT_EQ(Form().input_devices.entries, (Names{"In A", "In B"}));
    EXPECT_EQ(Form().input_devices.selected, 1);
    EXPECT_EQ(Form().output_devices.entries, (Names{"Out A", "Out B", "Out C"}));
    EXPECT_EQ(Form().output_devices.selected, 1);
    EXPECT_TRUE(Form().auto_play.checked);
    EXPECT_FALSE(Form().auto_send.checked);
    EXPECT_EQ(Form().synthesizer_type.entries, (Names{"JX-8P", "MKS-70", "Alpha Juno"}));
    EXPECT_EQ(Form().synthesizer_type.Selected_Text(), "MKS-70");
}

TEST_F(Setup_Dialog, shows_the_two_automatic_features_each_for_itself) {
    MIDI_Autosend = 1;
    MIDI_Autoplay = 0;
    Open();
    EXPECT_TRUE(Form().auto_send.checked);
    EXPECT_FALSE(Form().auto_play.checked);
}

TEST_F(Setup_Dialog, has_these_words) {
    EXPECT_STREQ(Setup_Title, "MIDI Setup");
    EXPECT_STREQ(Setup_Label_Synth, "&Synthesizer");
    EXPECT_STREQ(Setup_Label_Output, "&Output Device");
    EXPECT_STREQ(Setup_Label_Input, "&Input Device");
    EXPECT_STREQ(Setup_Label_Channel, "MIDI &Channel");
    EXPECT_STREQ(Setup_Caption_Enable, "MIDI &Enabled:");
    EXPECT_STREQ(Setup_Caption_AutoSend, "&Automatic Send SysEx Data");
    EXPECT_STREQ(Setup_Caption_AutoPlay, "Automatic Preview &Play");
    EXPECT_STREQ(Setup_Caption_OK, "&OK");
}

TEST_F(Setup_Dialog, stands_over_the_middle_of_the_main_window) {
    Main_Window.left = 100;
    Main_Window.top = 50;
    Main_Window.width = 600;
    Main_Window.height = 520;
    Open();
    EXPECT_EQ(MIDI_Setup.left, 100 + (600 - MIDI_Setup.width) / 2);
    EXPECT_EQ(MIDI_Setup.top, 50 + (520 - MIDI_Setup.height) / 2);
    EXPECT_GT(MIDI_Setup.width, 0);
    EXPECT_GT(MIDI_Setup.height, 0);
}

TEST_F(Setup_Dialog, locks_the_rest) {
    Open();
    EXPECT_EQ(App_Mode, "MIDI_Setup");
    EXPECT_FALSE(Menu(Menu_File).enabled);
    EXPECT_FALSE(Editor.enabled);
    EXPECT_FALSE(Timer1.enabled);
    EXPECT_EQ(MIDI_Setup.pointer, Pointer::Arrow);
}

TEST_F(Setup_Dialog, closes_the_output_behind_all_notes_off) {
    MIDI_SendNote(60, 127);
    Sent();
    Ports.close_results = {65, 65};
    Open();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(Sent(), Names{"B2 7B 00"});
}

TEST_F(Setup_Dialog, closes_an_output_that_stayed_open_with_midi_off) {
    MIDI_SendNote(60, 127);
    MIDI_Enabled = 0;
    Open();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_FALSE(Form().enable.checked);
}

TEST_F(Setup_Dialog, closes_the_input) {
    MIDI_In_Handle = 4;
    Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
}

TEST_F(Setup_Dialog, selects_no_device_where_none_was_found) {
    MIDI_Out_Device = -1;
    MIDI_In_Device = -1;
    Open();
    EXPECT_EQ(Form().output_devices.selected, -1);
    EXPECT_EQ(Form().input_devices.selected, -1);
}

TEST_F(Setup_Dialog, says_that_there_are_no_inputs) {
    MIDI_In_Missing = Flag_16::True;
    MIDI_In_Caps.clear();
    Open();
    EXPECT_EQ(Form().input_devices.entries, Names{"[no inputs available]"});
    EXPECT_EQ(Form().input_devices.selected, 0);
    EXPECT_FALSE(Form().input_devices.enabled);
    EXPECT_TRUE(Form().output_devices.enabled);
}

TEST_F(Setup_Dialog, has_an_empty_list_where_there_are_no_outputs) {
    MIDI_Out_Caps.clear();
    Open();
    EXPECT_TRUE(Form().output_devices.entries.empty());
    EXPECT_EQ(Form().output_devices.selected, -1);
    EXPECT_FALSE(Form().output_devices.enabled);
}

TEST_F(Setup_Dialog, shows_what_is_in_use_each_time_it_opens) {
    Open();
    Setup_Channel_Change(7);
    Setup_Output_Change(2);
    Setup_Escape();
    Open();
    EXPECT_EQ(Form().channel.selected, 2);
    EXPECT_EQ(Form().channel.entries.size(), 16U);
    EXPECT_EQ(Form().output_devices.selected, 1);
}

// -- what takes effect at once ---------------------------------------------------------------------------

TEST_F(Setup_Dialog, takes_the_automatic_features_at_once) {
    Open();
    Setup_AutoSend_Click(false);
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_FALSE(Form().auto_send.checked);
    Setup_AutoPlay_Click(false);
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_FALSE(Form().auto_play.checked);
    Setup_AutoSend_Click(true);
    Setup_AutoPlay_Click(true);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_TRUE(Form().auto_send.checked);
    EXPECT_TRUE(Form().auto_play.checked);
}

TEST_F(Setup_Dialog, switches_midi_off_at_once_with_all_that_hangs_on_it) {
    Open();
    Setup_Enable_Click(false);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_FALSE(Form().enable.checked);
    EXPECT_FALSE(Form().input_devices.enabled);
    EXPECT_FALSE(Form().output_devices.enabled);
    EXPECT_FALSE(Form().auto_send.enabled);
    EXPECT_FALSE(Form().auto_play.enabled);
    EXPECT_FALSE(Menu(Menu_Tone_Receive).enabled);
    EXPECT_FALSE(Menu(Menu_Tone_Send).enabled);
    EXPECT_TRUE(Form().channel.enabled);
    EXPECT_TRUE(Form().synthesizer_type.enabled);
}

TEST_F(Setup_Dialog, switches_midi_on_at_once_with_all_that_hangs_on_it) {
    Open();
    Setup_Enable_Click(false);
    Setup_Enable_Click(true);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_TRUE(Form().enable.checked);
    EXPECT_TRUE(Form().input_devices.enabled);
    EXPECT_TRUE(Form().output_devices.enabled);
    EXPECT_TRUE(Form().auto_send.enabled);
    EXPECT_TRUE(Form().auto_play.enabled);
    EXPECT_TRUE(Menu(Menu_Tone_Receive).enabled);
    EXPECT_TRUE(Menu(Menu_Tone_Send).enabled);
}

TEST_F(Setup_Dialog, does_not_enable_a_list_without_devices) {
    MIDI_In_Missing = Flag_16::True;
    MIDI_In_Caps.clear();
    MIDI_Out_Caps.clear();
    Open();
    Setup_Enable_Click(false);
    Setup_Enable_Click(true);
    EXPECT_FALSE(Form().input_devices.enabled);
    EXPECT_FALSE(Form().output_devices.enabled);
    EXPECT_TRUE(Form().auto_send.enabled);
}

TEST_F(Setup_Dialog, switches_headers_and_panels_at_once_and_comes_back_to_the_front) {
    Open();
    const int raised = MIDI_Setup.times_raised;
    Setup_SynthesizerType_Change(2);
    EXPECT_EQ(Synthesizer, "Alpha Juno");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 2 23 20 01 ");
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Editor.visible);
    EXPECT_FALSE(Menu(Menu_Tone_Patch).enabled);
    EXPECT_EQ(MIDI_Setup.times_raised, raised + 1);
    EXPECT_TRUE(MIDI_Setup.visible);
    Setup_SynthesizerType_Change(1);
    EXPECT_EQ(Synthesizer, "MKS-70");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 2 24 20 01 ");
    EXPECT_TRUE(Editor.visible);
    EXPECT_FALSE(Editor.enabled) << "the dialog is still open";
    Setup_SynthesizerType_Change(0);
    EXPECT_EQ(Synthesizer, "JX-8P");
    EXPECT_EQ(App_Mode, "MIDI_Setup");
}

TEST_F(Setup_Dialog, takes_devices_and_channel_only_with_ok) {
    Open();
    Setup_Output_Change(2);
    Setup_Input_Change(0);
    Setup_Channel_Change(15);
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(MIDI_In_Device, 1);
    EXPECT_EQ(MIDI_Channel, 3);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 2 21 20 01 ");
}

TEST_F(Setup_Dialog, sends_nothing_by_itself) {
    Open();
    Setup_SynthesizerType_Change(1);
    Setup_Enable_Click(false);
    Setup_Enable_Click(true);
    Setup_Escape();
    EXPECT_EQ(Sent(), Names{});
    EXPECT_EQ(Ports.open_calls, 0);
}
