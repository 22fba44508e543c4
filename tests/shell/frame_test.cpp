// Events of the main window itself: the click beside an open dialog, and the display's timer.
#include "shell/frame.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "filedlg/state.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

Window Dialog = {.name = "File_Dlg"};
Lines Steps;

}  // namespace

// -- a click on the bare ground --------------------------------------------------------------------------

using Bare_Ground = Started_Stage;

TEST_F(Bare_Ground, is_silent_without_a_dialog) {
    Main_Background_Click();
    EXPECT_EQ(Display.sounds, Lines{});
    EXPECT_EQ(Display.beeps, 0);
}

TEST_F(Bare_Ground, plays_the_systems_sound_beside_an_open_dialog) {
    Dialog_Begin(Dialog, "File_Dlg");
    Main_Background_Click();
    EXPECT_EQ(Display.sounds, Lines{"SystemDefault"});
    EXPECT_EQ(Display.beeps, 0);
    EXPECT_EQ(App_Mode, "File_Dlg");
}

TEST_F(Bare_Ground, beeps_beside_an_open_dialog_where_the_system_has_no_sound) {
    Display.system_sound = false;
    Dialog_Begin(Dialog, "File_Dlg");
    Main_Background_Click();
    EXPECT_EQ(Display.sounds, Lines{"SystemDefault"});
    EXPECT_EQ(Display.beeps, 1);
}

TEST_F(Bare_Ground, is_silent_again_when_the_dialog_has_closed) {
    Dialog_Begin(Dialog, "File_Dlg");
    Dialog_End();
    Main_Background_Click();
    EXPECT_EQ(Display.sounds, Lines{});
}

// -- the tick that brings the name back ------------------------------------------------------------------

class Display_Tick : public Started_Stage {
  protected:
    Display_Tick() {
        Tone_Name_Text = "SOLO BRASS";
        Editor_Tone_Name.text = "99";
        Juno_Show_Name = [] { Steps.emplace_back("name"); };
        Help_Show_Waiting = [] { Steps.emplace_back("waiting"); };
        Timer_Start(Timer_Display);
    }
};

TEST_F(Display_Tick, brings_the_name_back_to_both_panels_after_two_seconds) {
    Advance(milliseconds(1999));
    EXPECT_EQ(Shown(), "99");
    EXPECT_EQ(Steps, Lines{});
    Advance(milliseconds(1));
    EXPECT_EQ(Shown(), "SOLO BRASS");
    EXPECT_EQ(Steps, Lines{"name"});
}

TEST_F(Display_Tick, comes_once) {
    Advance(milliseconds(2000));
    EXPECT_FALSE(Timer_Display.enabled);
    Editor_Tone_Name.text = "50";
    Advance(milliseconds(10000));
    EXPECT_EQ(Shown(), "50");
    EXPECT_EQ(Steps, Lines{"name"});
}

TEST_F(Display_Tick, comes_two_seconds_behind_the_last_change) {
    Advance(milliseconds(1500));
    Timer_Start(Timer_Display);
    Advance(milliseconds(1999));
    EXPECT_EQ(Shown(), "99");
    Advance(milliseconds(1));
    EXPECT_EQ(Shown(), "SOLO BRASS");
}

TEST_F(Display_Tick, follows_a_drag_of_a_slider) {
    Timer_Stop(Timer_Display);
    Tone_Data[35] = 127;
    Press("VCF_Res");
    EXPECT_EQ(Shown(), "99");
    Advance(milliseconds(2000));
    EXPECT_EQ(Shown(), "SOLO BRASS");
}

TEST_F(Display_Tick, only_ends_the_wait_of_an_open_file_window) {
    FD_Open = Flag_16::True;
    App_Mode = "File_Dlg";
    Advance(milliseconds(2000));
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_EQ(Shown(), "99") << "stays until the next tick behind the dialog";
    EXPECT_EQ(Steps, Lines{});

    FD_Open = Flag_16::False;
    App_Mode.clear();
    Timer_Start(Timer_Display);
    Advance(milliseconds(2000));
    EXPECT_EQ(Shown(), "SOLO BRASS");
}

TEST_F(Display_Tick, stops_the_timer_before_anything_else) {
    // Whoever shows the name may start it again.
    Juno_Show_Name = [] {
        EXPECT_FALSE(Timer_Display.enabled);
        Timer_Start(Timer_Display);
    };
    Advance(milliseconds(2000));
    EXPECT_TRUE(Timer_Display.enabled);
}

TEST_F(Display_Tick, with_the_help_open_shows_that_it_waits) {
    App_Mode = "Help";
    Advance(milliseconds(2000));
    EXPECT_EQ(Steps, Lines{"waiting"});
    EXPECT_EQ(Shown(), "99");
}

TEST_F(Display_Tick, with_the_file_window_open_above_the_help_shows_nothing) {
    FD_Open = Flag_16::True;
    App_Mode = "Help";
    Advance(milliseconds(2000));
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(Display_Tick, with_another_dialog_open_brings_the_name_back) {
    App_Mode = "MIDI_Setup";
    Advance(milliseconds(2000));
    EXPECT_EQ(Shown(), "SOLO BRASS");
    EXPECT_EQ(Steps, Lines{"name"});
}
