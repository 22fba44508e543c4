// The frame on the screen and its record: what the settings, the user and the rules do with its place.
#include <fstream>

#include "desk/menus.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "filedlg/options.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "shell/frame.h"
#include "windows/screen.h"

class Frame_Place : public Screen {
  protected:
    static std::string With(const std::string& lines) {
        return "[MIDI]\nOutput=Synth Out\nInput=Keys In\n[Main Window]\n" + lines;
    }
    QAction* Entry(const char* name) const { return window_->findChild<QAction*>(name); }

    void Expect_On_Screen(int left, int top, int width, int height) {
        QTest::qWait(1);
        Windows_Show_Changes();  // as behind any event
        EXPECT_EQ(window_->pos(), QPoint(left, top));
        EXPECT_EQ(window_->size(), QSize(width, height));
        EXPECT_EQ(Main_Window.left, left);
        EXPECT_EQ(Main_Window.top, top);
        EXPECT_EQ(Main_Window.width, width);
        EXPECT_EQ(Main_Window.height, height);
    }
    void Expect_In_File(const char* key, const char* value) {
        EXPECT_EQ(Setting_Get("Main Window", key, "(none)"), value) << key;
    }
    void Answer_Reset(Answer answer) {
        Answer_With("Do you really want to RESET the window settings?", answer);
        Entry("Menu_Windows_Reset")->trigger();
    }
};

TEST_F(Frame_Place, is_that_of_a_first_start_without_settings) {
    Start();
    Expect_On_Screen(0, 0, 541, 508);
}

TEST_F(Frame_Place, comes_from_the_settings) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    Expect_On_Screen(40, 30, 600, 550);
    EXPECT_FALSE(window_->isMaximized());
}

TEST_F(Frame_Place, goes_into_the_file_where_the_user_left_it) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    window_->move(77, 55);
    window_->resize(620, 560);
    QTest::qWait(1);
    Windows_Show_Changes();
    Expect_On_Screen(77, 55, 620, 560);
    EXPECT_TRUE(window_->close());
    Expect_In_File("Left", "77");
    Expect_In_File("Top", "55");
    Expect_In_File("Width", "620");
    Expect_In_File("Height", "560");
    Expect_In_File("State", "0");
}

TEST_F(Frame_Place, stays_where_the_user_moves_it_while_events_come_and_go) {
    Start();
    for (int step = 1; step <= 20; ++step) {
        window_->move(step * 5, step * 3);
        Windows_Show_Changes();
        EXPECT_EQ(window_->pos(), QPoint(step * 5, step * 3));
        window_->resize(541 + step, 508 + step);
        Windows_Show_Changes();
        EXPECT_EQ(window_->size(), QSize(541 + step, 508 + step));
    }
}

TEST_F(Frame_Place, follows_the_record_when_a_rule_moves_it) {
    Start();
    Guarded_Event([] { Main_Window.left = 25; });
    Expect_On_Screen(25, 0, 541, 508);
    Guarded_Event([] { Main_Window.height = 560; });
    Expect_On_Screen(25, 0, 541, 560);
}

TEST_F(Frame_Place, that_cannot_be_so_small_is_told_to_the_record) {
    Start(With("Width=-5\nHeight=0\n"));
    Expect_On_Screen(0, 0, 120, 40);
}

TEST_F(Frame_Place, is_left_out_of_the_file_by_a_minimised_end) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    window_->showMinimized();
    QTest::qWait(1);
    Windows_Show_Changes();
    EXPECT_TRUE(window_->isMinimized());
    EXPECT_EQ(Main_Window.state, Window_State::Minimised);
    EXPECT_TRUE(window_->close());
    Expect_In_File("State", "1");
    Expect_In_File("Width", "600");
    Expect_In_File("Height", "550");
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 0);
    EXPECT_EQ(Main_Window.top, 0);
    EXPECT_EQ(Main_Window.width, 600);
    EXPECT_EQ(Main_Window.height, 550);
}

TEST_F(Frame_Place, comes_back_when_a_minimised_window_is_opened) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    window_->showMinimized();
    Windows_Show_Changes();
    window_->showNormal();
    Windows_Show_Changes();
    EXPECT_EQ(Main_Window.state, Window_State::Normal);
    Expect_On_Screen(40, 30, 600, 550);
}

TEST_F(Frame_Place, of_a_minimised_start_is_the_corner_and_the_stored_size) {
    std::ofstream(Test_Folder() + "/Tonebench.INI")
        << With("Left=-32000\nTop=-32000\nWidth=600\nHeight=550\nState=1\n");
    ASSERT_TRUE(Main_Load());
    Windows_Show_Changes();
    QTest::qWait(1);
    EXPECT_TRUE(window_->isMinimized());
    EXPECT_EQ(Main_Window.state, Window_State::Minimised);
    window_->showNormal();
    Windows_Show_Changes();
    Expect_On_Screen(0, 0, 600, 550);
}

TEST_F(Frame_Place, of_a_maximised_window_is_the_screen_and_its_own_size_stays_in_the_file) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\nState=2\n"));
    EXPECT_TRUE(window_->isMaximized());
    EXPECT_EQ(Main_Window.state, Window_State::Maximised);
    EXPECT_GT(window_->width(), 600);
    EXPECT_TRUE(window_->close());
    Expect_In_File("State", "2");
    Expect_In_File("Width", "600");
    Expect_In_File("Height", "550");
}

TEST_F(Frame_Place, of_a_maximised_start_is_the_stored_one_once_it_is_normal_again) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\nState=2\n"));
    window_->showNormal();
    Windows_Show_Changes();
    EXPECT_EQ(Main_Window.state, Window_State::Normal);
    Expect_On_Screen(40, 30, 600, 550);
}

TEST_F(Frame_Place, is_reset_to_the_corner_and_the_panels_size) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    Answer_Reset(Answer::Yes);
    Expect_On_Screen(0, 0, 540, 506);
    EXPECT_EQ(FD_Left, 1);
    EXPECT_TRUE(window_->close());
    Expect_In_File("Width", "540");
    Expect_In_File("Height", "506");
}

TEST_F(Frame_Place, is_kept_when_the_reset_is_not_wanted) {
    Start(With("Left=40\nTop=30\nWidth=600\nHeight=550\n"));
    Answer_Reset(Answer::No);
    Expect_On_Screen(40, 30, 600, 550);
}

TEST_F(Frame_Place, of_a_maximised_window_is_reset_to_a_normal_one) {
    Start(With("State=2\n"));
    Answer_Reset(Answer::Yes);
    EXPECT_FALSE(window_->isMaximized());
    EXPECT_EQ(Main_Window.state, Window_State::Normal);
    Expect_On_Screen(0, 0, 540, 506);
}

TEST_F(Frame_Place, mark_is_checked_by_its_entry_and_unchecked_again) {
    Start();
    QAction* mark = Entry("Menu_Windows_SavePos");
    EXPECT_TRUE(mark->isVisible());
    EXPECT_FALSE(mark->isChecked());
    mark->trigger();
    EXPECT_TRUE(mark->isChecked());
    EXPECT_TRUE(Menu(Menu_Windows_SavePos).checked);
    mark->trigger();
    EXPECT_FALSE(mark->isChecked());
    mark->trigger();
    EXPECT_TRUE(window_->close());
    EXPECT_EQ(Setting_Get("Windows", "Save Positions", ""), "1");
}

TEST_F(Frame_Place, mark_is_checked_at_start_as_stored) {
    Start(With("[Windows]\nSave Positions=1\n"));
    EXPECT_TRUE(Entry("Menu_Windows_SavePos")->isChecked());
    EXPECT_FALSE(Entry("Menu_MIDI_Seq_Load")->isChecked());
}
