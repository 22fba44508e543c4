#include "filedlg/linking.h"

#include "fakes/fake_slow_work.h"
#include "fakes/plain_user.h"
#include "filedlg/file_stage.h"

namespace {

constexpr const char* Drive_Question = "Drive not ready or unavailable.";
constexpr const char* Folder_Question = "Drive not ready or not available.";

}  // namespace

class Linked_Lists : public File_Window {
  protected:
    Linked_Lists() {
        std::filesystem::create_directories(Path("stick/inside"));
        Write(Path("stick/s.syx"), Bytes(Tone_1));
        Volumes = {"/", Stick()};
        FD_Show("Open_SYX");
        FD_List_Drives_Refresh();
    }
    static std::string Stick() { return Path("stick"); }
    static void Pull() { std::filesystem::rename(Stick(), Path("pulled")); }
    static void Put_Back() { std::filesystem::rename(Path("pulled"), Stick()); }
    static void Choose_Drive(const std::string& drive) {
        FD_List_Drives_Change(Row(FD_List_Drives.entries, drive));
    }
    static void Expect_Question() {
        ASSERT_FALSE(Boxes.empty());
        EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Retry_Cancel);
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
    }
};

TEST_F(Linked_Lists, go_to_the_top_of_a_chosen_drive) {
    Choose_Drive(Stick());
    EXPECT_EQ(FD_List_Dirs.path, Stick());
    EXPECT_EQ(FD_List_Files.entries, Lines{"s.syx"});
    EXPECT_EQ(FD_Drive, Stick());
    EXPECT_EQ(FD_List_Drives.Selected_Text(), Stick());
}

TEST_F(Linked_Lists, ask_about_a_drive_that_is_not_ready_and_go_back_at_cancel) {
    Pull();
    Answer_With(Drive_Question, Answer::Cancel);
    Choose_Drive(Stick());
    Expect_Question();
    EXPECT_EQ(FD_List_Drives.Selected_Text(), "/");
    EXPECT_EQ(FD_Drive, "/");
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
}

TEST_F(Linked_Lists, try_the_drive_again_at_retry) {
    Pull();
    Answer_With(Drive_Question, Answer::Retry);
    Answer_With(Drive_Question, Answer::Retry, Put_Back);
    Choose_Drive(Stick());
    EXPECT_EQ(FD_List_Dirs.path, Stick());
    EXPECT_EQ(FD_Drive, Stick());
}

TEST_F(Linked_Lists, pass_over_a_drive_that_nobody_may_look_into) {
    std::filesystem::permissions(Stick(), std::filesystem::perms::none);
    {
        const Plain_User user;
        Choose_Drive(Stick());
    }
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    EXPECT_EQ(FD_Drive, Stick());
}

TEST_F(Linked_Lists, ask_in_other_words_when_the_medium_goes_between_the_two_lists) {
    When_Volumes_Are_Asked = [] {
        if (std::filesystem::exists(Stick())) Pull();
    };
    Answer_With(Folder_Question, Answer::Cancel);
    EXPECT_EQ(FD_Go_To(Path("stick/inside")), 0);
    Expect_Question();
    EXPECT_EQ(FD_List_Dirs.path, Path("stick/inside")) << "Cancel goes on";
    EXPECT_EQ(FD_List_Files.path, Disk(""));
}

TEST_F(Linked_Lists, list_the_files_at_retry) {
    When_Volumes_Are_Asked = [] {
        When_Volumes_Are_Asked = {};
        Pull();
    };
    Answer_With(Folder_Question, Answer::Retry);
    Answer_With(Folder_Question, Answer::Retry, Put_Back);
    EXPECT_EQ(FD_Go_To(Stick()), 0);
    EXPECT_EQ(FD_List_Files.entries, Lines{"s.syx"});
}

TEST_F(Linked_Lists, open_the_folder_at_the_list_index) {
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Disk("Leads")));
    EXPECT_EQ(FD_List_Dirs.path, Disk("")) << "a move opens nothing";
    FD_List_Dirs_Open();
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
    FD_List_Dirs_Move(0);
    FD_List_Dirs_Open();
    EXPECT_EQ(FD_List_Dirs.path, "/");
}

TEST_F(Linked_Lists, leave_a_folder_closed_that_has_gone_or_is_secret) {
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Disk("empty")));
    std::filesystem::permissions(Disk("empty"), std::filesystem::perms::none);
    {
        const Plain_User user;
        FD_List_Dirs_Open();
    }
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    std::filesystem::remove(Disk("empty"));
    FD_List_Dirs_Open();
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Linked_Lists, ask_when_a_folder_is_opened_on_a_pulled_medium) {
    Choose_Drive(Stick());
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Path("stick/inside")));
    Pull();
    Answer_With(Folder_Question, Answer::Retry, Put_Back);
    FD_List_Dirs_Open();
    EXPECT_EQ(FD_List_Dirs.path, Path("stick/inside"));
    Pull();
    Answer_With(Folder_Question, Answer::Cancel);
    FD_List_Dirs_Open();
    EXPECT_EQ(FD_List_Dirs.path, Path("stick/inside"));
}

TEST_F(Linked_Lists, show_the_drive_that_the_folder_lies_on) {
    EXPECT_EQ(FD_Go_To(Path("stick/inside")), 0);
    EXPECT_EQ(FD_List_Drives.Selected_Text(), Stick());
    EXPECT_EQ(FD_Go_To(Disk("")), 0);
    EXPECT_EQ(FD_List_Drives.Selected_Text(), "/");
}

TEST_F(Linked_Lists, ask_about_a_share_that_does_not_answer_and_go_back_at_cancel) {
    Work_Hangs = true;
    Answer_With(Drive_Question, Answer::Cancel, [] { Work_Hangs = false; });
    Choose_Drive(Stick());
    Expect_Question();
    EXPECT_EQ(FD_Drive, "/");
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    EXPECT_NE(FD_List_Files.entries, Lines{});
}

TEST_F(Linked_Lists, try_a_share_again_at_retry) {
    Work_Hangs = true;
    Answer_With(Drive_Question, Answer::Retry, [] { Work_Hangs = false; });
    Choose_Drive(Stick());
    EXPECT_EQ(FD_List_Dirs.path, Stick());
    EXPECT_EQ(FD_List_Files.entries, Lines{"s.syx"});
}

TEST_F(Linked_Lists, open_on_the_lists_as_they_were_when_the_share_of_the_last_time_is_silent) {
    FD_Button_Cancel_Click();
    Work_Hangs = true;
    FD_Show("Open_SYX");
    EXPECT_TRUE(File_Dlg.visible);
    EXPECT_EQ(FD_List_Dirs.path, "/");
    EXPECT_EQ(FD_List_Files.entries, Lines{});
}
