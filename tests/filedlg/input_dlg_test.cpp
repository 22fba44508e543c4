#include "filedlg/input_dlg.h"

#include "filedlg/file_stage.h"

using Question_For_A_Text = File_Window;

TEST_F(Question_For_A_Text, gives_the_text_back) {
    const int before = Input_Dialog.times_selected;
    At_Next_Turn([&] {
        EXPECT_TRUE(Input_Dlg.visible);
        EXPECT_EQ(Input_Dlg.caption, "Title");
        EXPECT_EQ(Input_Dialog.prompt, "Prompt");
        EXPECT_EQ(Input_Dialog.text, "default");
        EXPECT_EQ(Input_Dialog.times_selected, before + 1);
        Input_Textbox_Change(" Typed ");
        Input_OK_Click();
    });
    EXPECT_EQ(Input_Box("Prompt", "Title", "default"), " Typed ");
    EXPECT_EQ(Input_Result, " Typed ");
    EXPECT_FALSE(Input_Dlg.loaded);
    EXPECT_FALSE(Input_Dlg.visible);
}

TEST_F(Question_For_A_Text, gives_the_default_back_untouched) {
    At_Next_Turn(Input_OK_Click);
    EXPECT_EQ(Input_Box("Prompt", "Title", "default"), "default");
}

TEST_F(Question_For_A_Text, gives_nothing_back_at_cancel) {
    Input_Result = "old";
    At_Next_Turn([] {
        Input_Textbox_Change("typed");
        Input_Cancel_Click();
    });
    EXPECT_EQ(Input_Box("Prompt", "Title", "default"), "");
    EXPECT_EQ(Input_Result, "");
}

TEST_F(Question_For_A_Text, stands_in_its_place_wherever_the_main_window_is) {
    Main_Window.left = 700;
    At_Next_Turn([] {
        EXPECT_EQ(Input_Dlg.left, 150);
        EXPECT_EQ(Input_Dlg.top, 150);
        Input_Cancel_Click();
    });
    Input_Box("", "", "");
}

TEST_F(Question_For_A_Text, has_a_title_of_its_own_until_a_caller_gives_one) {
    Window_Load(Input_Dlg);
    EXPECT_EQ(Input_Dlg.caption, "Input_Box");
    EXPECT_STREQ(Input_Caption_OK, "Ok");
    EXPECT_STREQ(Input_Caption_Cancel, "Cancel");
}

TEST_F(Question_For_A_Text, sleeps_while_it_waits) {
    int turns = 0;
    std::function<void()> each_turn = [&] {
        if (++turns == 5) {
            Input_Cancel_Click();
        } else {
            At_Next_Turn(each_turn);
        }
    };
    At_Next_Turn(each_turn);
    Input_Box("", "", "");
    EXPECT_EQ(Loop.waits, 5);
}

TEST_F(Question_For_A_Text, ends_with_the_last_window_of_the_program) {
    At_Next_Turn([] { Loop.windows_open = false; });
    EXPECT_EQ(Input_Box("", "", "x"), "");
    EXPECT_FALSE(Input_Dlg.loaded);
}

TEST_F(Question_For_A_Text, is_not_asked_within_itself) {
    At_Next_Turn([] {
        EXPECT_EQ(Input_Box("inner", "inner", "inner"), "");
        EXPECT_EQ(Input_Dialog.prompt, "outer");
        Input_OK_Click();
    });
    EXPECT_EQ(Input_Box("outer", "outer", "text"), "text");
}
