#include "shell/commands.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "sequencer/sequence.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;

int Raised = 0;

}  // namespace

class Menu_Command : public Started_Stage {
  protected:
    Menu_Command() {
        Seq_Start_Raise = [] { ++Raised; };
    }

    static void Run_Sequencer() {
        Seq_Loaded = Flag_8::True;
        Press("ED_Seq_Start");
        Release("ED_Seq_Start");
        Click("ED_Seq_Start");
        EXPECT_EQ(Seq_Running, Flag_8::True);
        Seq_Pos = 5;
    }

    static void Expect_Sequencer_Stopped() {
        EXPECT_FALSE(Seq_Tmr.enabled);
        EXPECT_EQ(Seq_Pos, 0);
        EXPECT_EQ(Seq_Running, Flag_8::False);
    }
};

// -- Close MIDI Output -----------------------------------------------------------------------------------

TEST_F(Menu_Command, close_output_frees_the_port_behind_all_notes_off) {
    MIDI_SendNote(60, 127);
    Sent();
    Menu(Menu_MIDI_CloseOutput).chosen();
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00"})) << "its own, and that of the close";
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Ports.open_handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(Menu_Command, close_output_lets_the_next_slider_open_the_port_again) {
    MIDI_SendNote(60, 127);
    Menu(Menu_MIDI_CloseOutput).chosen();
    Sent();
    Press("VCF_Res");
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 00 F7"});
    EXPECT_EQ(Ports.opened.size(), 2U);
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Menu_Command, close_output_waits_while_the_port_still_plays) {
    MIDI_SendNote(60, 127);
    Ports.close_results = {65, 65, 65};
    Menu(Menu_MIDI_CloseOutput).chosen();
    EXPECT_EQ(Ports.close_calls, 4);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Menu_Command, close_output_stops_a_running_sequencer) {
    Run_Sequencer();
    Menu(Menu_MIDI_CloseOutput).chosen();
    Expect_Sequencer_Stopped();
    EXPECT_EQ(Editor_Seq_Start.picture, Picture_Of(Picture_Store::Button_Up3D));
    EXPECT_EQ(Editor_Seq_Start_Pic.left, 3);
    EXPECT_EQ(Editor_Seq_Start_Pic.top, 3);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Menu_Command, close_output_does_nothing_with_midi_off) {
    MIDI_Enabled = 0;
    Menu(Menu_MIDI_CloseOutput).chosen();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Ports.open_calls, 0);
}

// -- Setup -----------------------------------------------------------------------------------------------

TEST_F(Menu_Command, setup_opens_the_dialog) {
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_TRUE(MIDI_Setup.visible);
    EXPECT_EQ(App_Mode, "MIDI_Setup");
    EXPECT_EQ(Ports.open_calls, 0);
}

TEST_F(Menu_Command, setup_stops_a_running_sequencer_first) {
    Run_Sequencer();
    Sent();
    Menu(Menu_MIDI_Setup).chosen();
    Expect_Sequencer_Stopped();
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00"})) << "its own, and that of the close";
    EXPECT_EQ(Raised, 0) << "the sequencer's window is not open";
    EXPECT_TRUE(MIDI_Setup.visible);
}

TEST_F(Menu_Command, setup_raises_the_start_button_of_an_open_sequencer) {
    Run_Sequencer();
    Seq_Window_Open = Flag_8::True;
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_EQ(Raised, 1);
}

TEST_F(Menu_Command, setup_raises_no_button_of_a_sequencer_that_does_not_run) {
    Seq_Window_Open = Flag_8::True;
    Seq_Pos = 5;
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_EQ(Raised, 0);
    EXPECT_EQ(Seq_Pos, 5);
}

TEST_F(Menu_Command, setup_lets_the_sequencer_run_with_midi_off) {
    Run_Sequencer();
    MIDI_Enabled = 0;
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Pos, 5);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_TRUE(MIDI_Setup.visible);
    Timer_Stop(Seq_Tmr);
}

TEST_F(Menu_Command, setup_does_not_open_beside_another_dialog) {
    Run_Sequencer();
    App_Mode = "Help";
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_FALSE(MIDI_Setup.loaded);
    Expect_Sequencer_Stopped();
}

// -- Send ------------------------------------------------------------------------------------------------

TEST_F(Menu_Command, send_sends_the_whole_tone_with_fresh_headers) {
    MIDI_Channel = 16;
    Menu(Menu_Tone_Send).chosen();
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].size(), 90U * 3 - 1);
    EXPECT_EQ(sent[0].substr(0, 20), "F0 41 35 0F 21 20 01");
}

TEST_F(Menu_Command, send_does_not_ask_for_automatic_sending) {
    MIDI_Autosend = 0;
    Menu(Menu_Tone_Send).chosen();
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Menu_Command, send_stays_at_home_with_midi_off) {
    MIDI_Enabled = 0;
    Menu(Menu_Tone_Send).chosen();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Menu_Command, send_leaves_the_tone_as_saved_as_it_was) {
    Tone_Saved = Flag_16::False;
    Menu(Menu_Tone_Send).chosen();
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

// -- Patch -----------------------------------------------------------------------------------------------

TEST_F(Menu_Command, patch_opens_the_patch_window_in_its_remembered_place) {
    Patch_Left = 300;
    Patch_Top = 75;
    Menu(Menu_Tone_Patch).chosen();
    EXPECT_TRUE(Patch.visible);
    EXPECT_EQ(Patch.left, 20);
    EXPECT_EQ(Patch.top, 5);
    EXPECT_EQ(App_Mode, "") << "it is no dialog";
    EXPECT_TRUE(Editor.enabled);
    // Chosen again it comes back to that place and to the front.
    Patch.left = 77;
    const int times_raised = Patch.times_raised;
    Menu(Menu_Tone_Patch).chosen();
    EXPECT_EQ(Patch.left, 20);
    EXPECT_EQ(Patch.times_raised, times_raised + 1);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Menu_Command, patch_answers_under_the_MKS_70_with_a_message) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    EXPECT_TRUE(Menu(Menu_Tone_Patch).enabled);
    Expect_Box("Sorry, patch settings not available yet.");
    Menu(Menu_Tone_Patch).chosen();
    EXPECT_EQ(Boxes.back().icon, Icon::Exclamation);
    EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
    EXPECT_FALSE(Patch.loaded);
    EXPECT_FALSE(Patch_MKS70.loaded);
}

TEST_F(Menu_Command, patch_is_disabled_under_the_alpha_juno_and_an_open_window_stays) {
    Menu(Menu_Tone_Patch).chosen();
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    EXPECT_FALSE(Menu(Menu_Tone_Patch).enabled);
    EXPECT_TRUE(Patch.visible);
    Window_Unload(Patch);
    Menu(Menu_Tone_Patch).chosen();
    EXPECT_FALSE(Patch.loaded) << "any other name opens nothing";
}

TEST_F(Menu_Command, patch_has_the_shortcut_ctrl_p) {
    EXPECT_STREQ(Menu(Menu_Tone_Patch).shortcut, "Ctrl+P");
    EXPECT_EQ(Menu(Menu_Tone_Patch).caption, "&Patch...");
}
