#include "shell/window_commands.h"

#include "desk/menus.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "filedlg/options.h"
#include "midi/out.h"
#include "shell/frame.h"

namespace {

constexpr const char* Question = "Do you really want to RESET the window settings?";

}  // namespace

class Window_Command : public Started_Stage {
  protected:
    Window_Command() {
        Main_Window.left = 100;
        Main_Window.top = 200;
        Main_Window.width = 700;
        Main_Window.height = 600;
        FD_Left = FD_Top = Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 300;
    }

    static void Expect_Main_Window(int left, int top, int width, int height) {
        EXPECT_EQ(Main_Window.left, left);
        EXPECT_EQ(Main_Window.top, top);
        EXPECT_EQ(Main_Window.width, width);
        EXPECT_EQ(Main_Window.height, height);
    }
    static void Expect_Places(int twips) {
        for (const int place : {FD_Left, FD_Top, Patch_Left, Patch_Top, Seq_Window_Left, Seq_Window_Top}) {
            EXPECT_EQ(place, twips);
        }
    }
    static void Reset() {
        Answer_With(Question, Answer::Yes);
        Menu(Menu_Windows_Reset).chosen();
    }
};

TEST_F(Window_Command, save_positions_flips_its_mark_and_nothing_else) {
    const std::string before = Read_Settings();
    Menu(Menu_Windows_SavePos).chosen();
    EXPECT_TRUE(Menu(Menu_Windows_SavePos).checked);
    Menu(Menu_Windows_SavePos).chosen();
    EXPECT_FALSE(Menu(Menu_Windows_SavePos).checked);
    Expect_Main_Window(100, 200, 700, 600);
    Expect_Places(300);
    EXPECT_EQ(Read_Settings(), before);
}

TEST_F(Window_Command, preload_flips_its_mark_and_nothing_else) {
    const std::string before = Read_Settings();
    Menu(Menu_MIDI_Seq_Load).chosen();
    EXPECT_TRUE(Menu(Menu_MIDI_Seq_Load).checked);
    Menu(Menu_MIDI_Seq_Load).chosen();
    EXPECT_FALSE(Menu(Menu_MIDI_Seq_Load).checked);
    EXPECT_EQ(Read_Settings(), before);
}

TEST_F(Window_Command, the_marks_reach_the_file_at_the_end) {
    Menu(Menu_Windows_SavePos).chosen();
    Menu(Menu_MIDI_Seq_Load).chosen();
    ASSERT_TRUE(Main_Close());
    EXPECT_EQ(Setting_Get("Windows", "Save Positions", ""), "1");
    EXPECT_EQ(Setting_Get("MIDI", "Sequence Preload", ""), "1");
}

TEST_F(Window_Command, reset_asks_with_yes_and_no) {
    Answer_With(Question, Answer::No);
    Menu(Menu_Windows_Reset).chosen();
    ASSERT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Yes_No);
    EXPECT_EQ(Boxes[0].icon, Icon::Question);
    EXPECT_EQ(Boxes[0].title, "Tonebench");
    Expect_Main_Window(100, 200, 700, 600);
    Expect_Places(300);
}

TEST_F(Window_Command, reset_gives_the_main_window_its_size_and_all_windows_the_corner) {
    Reset();
    Expect_Main_Window(0, 0, 540, 506);
    Expect_Places(1);
}

TEST_F(Window_Command, reset_makes_more_room_for_large_fonts) {
    Screen_PPI = 120;
    Reset();
    Expect_Main_Window(0, 0, 540, 516);
    Expect_Places(1);
}

TEST_F(Window_Command, reset_fits_the_main_window_on_a_low_screen) {
    Display.height = 479;
    Reset();
    Expect_Main_Window(0, 0, 556, 440);
    Screen_PPI = 120;
    Reset();
    Expect_Main_Window(0, 0, 556, 440);
    Display.height = 480;
    Screen_PPI = 96;
    Reset();
    Expect_Main_Window(0, 0, 540, 506);
}

TEST_F(Window_Command, reset_leaves_marks_options_and_the_file_alone) {
    Menu(Menu_Windows_SavePos).checked = true;
    MIDI_Autoplay = 0;
    const std::string before = Read_Settings();
    Reset();
    EXPECT_TRUE(Menu(Menu_Windows_SavePos).checked);
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_EQ(Read_Settings(), before);
}

TEST_F(Window_Command, reset_reaches_the_file_at_the_end) {
    Reset();
    ASSERT_TRUE(Main_Close());
    EXPECT_EQ(Setting_Get("Main Window", "Left", ""), "0");
    EXPECT_EQ(Setting_Get("Main Window", "Width", ""), "540");
    EXPECT_EQ(Setting_Get("Main Window", "Height", ""), "506");
    EXPECT_EQ(Setting_Get("Windows", "Patch Left", ""), "0.06666667");
    EXPECT_EQ(Setting_Get("Windows", "Sequencer Top", ""), "0.06666667");
}
