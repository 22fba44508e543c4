#include "filedlg/folder_commands.h"

#include "fakes/plain_user.h"
#include "filedlg/file_stage.h"
#include "panels/push_buttons.h"
#include "platform/text.h"

namespace {

constexpr const char* Another =
    "A folder or file of the given name already exists!!\n\nPlease enter another name:";

// The next question for a text gets this answer, as if typed.
void Answer_Input(const std::string& text) {
    At_Next_Turn([text] {
        ASSERT_TRUE(Input_Dlg.visible);
        Input_Textbox_Change(text);
        Input_OK_Click();
    });
}

}  // namespace

class Folder_Button : public File_Window {
  protected:
    Folder_Button() { FD_Show("Open_SYX"); }

    static void New_Folder() { Button_Down("FD_Button_Newdir"); }
    static void Delete() { Button_Down("FD_Button_Delete"); }
    static void Updir() { Button_Down("FD_Button_Updir"); }
    static std::string Question(const std::string& what) { return "Delete " + Upper_Text(what) + " ?"; }
};

TEST_F(Folder_Button, only_beeps_before_anything_was_pressed) {
    for (const char* name : {"FD_Button_Updir", "FD_Button_Newdir", "FD_Button_Delete"}) {
        Button_Down(name);
        Button_Up(name);
    }
    EXPECT_EQ(Display.beeps, 3);
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    EXPECT_TRUE(Boxes.empty());
    EXPECT_FALSE(Input_Dlg.loaded);
}

TEST_F(Folder_Button, acts_on_the_press_and_is_raised_again) {
    Press_Folder(Disk("empty"));
    for (Drawn_Button* drawn : {&FD_Button_Updir, &FD_Button_Newdir, &FD_Button_Delete}) {
        EXPECT_EQ(drawn->button.picture, Picture_Of(Picture_Store::Button_Up3D));
    }
    Answer_With(Question(Disk("empty")), Answer::No, [] {
        EXPECT_EQ(FD_Button_Delete.button.picture, Picture_Of(Picture_Store::Button_Dn3D));
        EXPECT_EQ(FD_Button_Delete.symbol.left, 4);
    });
    Delete();
    EXPECT_EQ(FD_Button_Delete.button.picture, Picture_Of(Picture_Store::Button_Up3D));
    EXPECT_EQ(FD_Button_Delete.symbol.left, 3);
    Button_Push(FD_Button_Updir.button);
    Button_Up("FD_Button_Updir");
    EXPECT_EQ(FD_Button_Updir.button.picture, Picture_Of(Picture_Store::Button_Up3D));
    File_Panel.events.clicked(FD_Button_Delete.button);
    EXPECT_EQ(Boxes.size(), 1U) << "a click does nothing more";
}

TEST_F(Folder_Button, keeps_what_was_pressed_into_the_next_opening) {
    Press_Folder(Disk("empty"));
    FD_Button_Cancel_Click();
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_Selected, Disk("empty"));
    EXPECT_EQ(FD_Selected_Kind, "Dir");
    Answer_With(Question(Disk("empty")), Answer::Yes);
    Delete();
    EXPECT_FALSE(std::filesystem::exists(Disk("empty")));
}

// -- up --------------------------------------------------------------------------------------------------

TEST_F(Folder_Button, goes_up_from_the_folder_at_the_list_index) {
    Press_File("a.syx");
    Updir();
    EXPECT_EQ(FD_List_Dirs.path, Test_Folder());
    EXPECT_EQ(FD_Selected, Test_Folder());
    EXPECT_EQ(FD_Selected_Kind, "Dir");
    EXPECT_EQ(FD_List_Files.path, Test_Folder());
    Press_Folder(Disk(""));
    Updir();
    EXPECT_EQ(FD_List_Dirs.path, Test_Folder()) << "the parent of the chosen entry";
}

TEST_F(Folder_Button, stays_in_the_root) {
    Press_Folder("/");
    Updir();
    EXPECT_EQ(FD_List_Dirs.path, "/");
    Updir();
    EXPECT_EQ(FD_List_Dirs.path, "/");
    EXPECT_EQ(FD_Selected, "/");
}

TEST(The_Parent, of_a_path_ends_in_a_separator) {
    EXPECT_EQ(FD_Parent_Dir("/a/b/c"), "/a/b/");
    EXPECT_EQ(FD_Parent_Dir("/a/b/c/"), "/a/b/");
    EXPECT_EQ(FD_Parent_Dir("/a"), "/");
    EXPECT_EQ(FD_Parent_Dir("/a /b"), "/a /");
}

TEST(The_Parent, of_the_root_is_the_root) {
    EXPECT_EQ(FD_Parent_Dir("/"), "/");
    EXPECT_EQ(FD_Parent_Dir(""), "/");
}

// -- new folder ------------------------------------------------------------------------------------------

TEST_F(Folder_Button, makes_a_folder_in_small_letters) {
    Press_Folder(Disk(""));
    At_Next_Turn([] {
        EXPECT_EQ(Input_Dialog.prompt, "Please enter a name for the new folder in:\r" + Disk(""));
        EXPECT_EQ(Input_Dlg.caption, "Create new folder");
        EXPECT_EQ(Input_Dialog.text, "folder");
        Input_Textbox_Change("Tones");
        Input_OK_Click();
    });
    New_Folder();
    EXPECT_TRUE(std::filesystem::is_directory(Disk("tones")));
    EXPECT_FALSE(std::filesystem::exists(Disk("Tones")));
    EXPECT_NE(std::find(FD_List_Dirs.entries.begin(), FD_List_Dirs.entries.end(), Disk("tones")),
              FD_List_Dirs.entries.end());
}

TEST_F(Folder_Button, makes_it_in_the_pressed_folder) {
    Press_Folder(Disk("Leads"));
    Answer_Input("new");
    New_Folder();
    EXPECT_TRUE(std::filesystem::is_directory(Disk("Leads/new")));
}

TEST_F(Folder_Button, asks_again_for_a_name_that_exists) {
    Press_Folder(Disk(""));
    Answer_Input("EMPTY");
    At_Next_Turn([] {
        At_Next_Turn([] {
            EXPECT_EQ(Input_Dialog.prompt, Another);
            EXPECT_EQ(Input_Dlg.caption, "Create new directory");
            EXPECT_EQ(Input_Dialog.text, "empty");
            Input_Textbox_Change("Other");
            Input_OK_Click();
        });
    });
    New_Folder();
    EXPECT_TRUE(std::filesystem::is_directory(Disk("other")));
}

TEST_F(Folder_Button, gives_up_at_cancel_or_an_empty_name) {
    Press_Folder(Disk(""));
    const Lines before = FD_List_Dirs.entries;
    At_Next_Turn(Input_Cancel_Click);
    New_Folder();
    Answer_Input("");
    New_Folder();
    Answer_Input("empty");
    At_Next_Turn([] { At_Next_Turn(Input_Cancel_Click); });
    New_Folder();
    EXPECT_EQ(FD_List_Dirs.entries, before);
}

TEST_F(Folder_Button, says_that_it_exists_for_every_failure) {
    Press_Folder(Disk(""));
    for (const std::string& name :
         {std::string("leads"), std::string("a.syx"), std::string("x/y"), std::string("/etc/x"),
          std::string(".."), std::string("."), std::string("a*b"), std::string("a?"), std::string("a\nb"),
          std::string(300, 'x')}) {
        Answer_Input(name);
        At_Next_Turn([] {
            At_Next_Turn([] {
                EXPECT_EQ(Input_Dialog.prompt, Another);
                Input_Cancel_Click();
            });
        });
        New_Folder();
    }
    EXPECT_FALSE(std::filesystem::exists(Disk("x")));
}

TEST_F(Folder_Button, says_that_it_exists_without_rights) {
    Press_Folder(Disk("empty"));
    std::filesystem::permissions(Disk("empty"), std::filesystem::perms::owner_read);
    Answer_Input("new");
    At_Next_Turn([] {
        At_Next_Turn([] {
            EXPECT_EQ(Input_Dialog.prompt, Another);
            Input_Cancel_Click();
        });
    });
    const Plain_User user;
    New_Folder();
}

TEST_F(Folder_Button, neither_makes_nor_deletes_anything_in_a_folder_that_was_removed) {
    Press_Folder(Disk(""));
    std::filesystem::remove_all(Disk(""));
    Answer_Input("new");
    At_Next_Turn([] {
        At_Next_Turn([] {
            EXPECT_EQ(Input_Dialog.prompt, Another);
            Input_Cancel_Click();
        });
    });
    New_Folder();
    FD_Selected = "a.syx";
    FD_Selected_Kind = "File";
    Type("a.syx");
    Answer_With("Delete A.SYX ?", Answer::Yes);
    Expect_Box("A.SYX could not be deleted.");
    Delete();
    FD_Selected = Disk("empty");
    FD_Selected_Kind = "Dir";
    Answer_With(Question(Disk("empty")), Answer::Yes);
    Expect_Box(Upper_Text(Disk("empty")) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_TRUE(Is_Open());
    EXPECT_FALSE(std::filesystem::exists(Disk("")));
}

TEST_F(Folder_Button, deletes_no_file_and_no_folder_without_rights) {
    FD_List_Dirs_Refresh();
    std::filesystem::permissions(Disk(""),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    const Plain_User user;
    Press_File("a.syx");
    Answer_With("Delete A.SYX ?", Answer::Yes);
    Expect_Box("A.SYX could not be deleted.");
    Delete();
    Press_Folder(Disk("empty"));
    Answer_With(Question(Disk("empty")), Answer::Yes);
    Expect_Box(Upper_Text(Disk("empty")) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
    EXPECT_TRUE(std::filesystem::exists(Disk("empty")));
}

TEST_F(Folder_Button, makes_no_folder_in_a_file) {
    Press_File("a.syx");
    Answer_Input("new");
    At_Next_Turn([] { At_Next_Turn(Input_Cancel_Click); });
    New_Folder();
    EXPECT_FALSE(std::filesystem::exists("a.syx/new"));
}

TEST_F(Folder_Button, trims_the_name_of_a_folder) {
    Press_Folder(Disk(""));
    Answer_Input("  new one ");
    New_Folder();
    EXPECT_TRUE(std::filesystem::is_directory(Disk("new one")));
    Answer_Input("   ");
    New_Folder();
}

// -- delete ----------------------------------------------------------------------------------------------

TEST_F(Folder_Button, deletes_an_empty_folder) {
    Press_Folder(Disk("empty"));
    Answer_With(Question(Disk("empty")), Answer::Yes);
    Delete();
    EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Yes_No);
    EXPECT_EQ(Boxes.back().icon, Icon::None);
    EXPECT_FALSE(std::filesystem::exists(Disk("empty")));
    EXPECT_EQ(FD_Selected, Disk(""));
    for (const std::string& entry : FD_List_Dirs.entries) EXPECT_NE(entry, Disk("empty"));
}

TEST_F(Folder_Button, leaves_a_folder_with_content) {
    Press_Folder(Disk("Leads"));
    Answer_With(Question(Disk("Leads")), Answer::Yes);
    Expect_Box(Upper_Text(Disk("Leads")) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
    EXPECT_TRUE(std::filesystem::exists(Disk("Leads/solo.syx")));
    EXPECT_EQ(FD_Selected, Disk("Leads"));
}

TEST_F(Folder_Button, leaves_the_folder_that_the_list_shows) {
    ASSERT_EQ(FD_Go_To(Disk("empty")), 0);
    Press_Folder(Disk("empty"));
    Answer_With(Question(Disk("empty")), Answer::Yes);
    Expect_Box(Upper_Text(Disk("empty")) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("empty")));
}

TEST_F(Folder_Button, does_nothing_at_no) {
    Press_Folder(Disk("empty"));
    Answer_With(Question(Disk("empty")), Answer::No);
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("empty")));
    Press_File("a.syx");
    Answer_With("Delete A.SYX ?", Answer::No);
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
}

TEST_F(Folder_Button, deletes_a_file) {
    Press_File("Bass.SYX");
    Answer_With("Delete BASS.SYX ?", Answer::Yes);
    Delete();
    EXPECT_FALSE(std::filesystem::exists(Disk("Bass.SYX")));
    EXPECT_EQ(FD_List_Files.entries, (Lines{"a.syx", "lead.syx"}));
}

TEST_F(Folder_Button, asks_with_the_pressed_name_and_deletes_the_typed_one) {
    Press_File("a.syx");
    Type(" lead.syx ");
    Answer_With("Delete A.SYX ?", Answer::Yes);
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
    EXPECT_FALSE(std::filesystem::exists(Disk("lead.syx")));
}

TEST_F(Folder_Button, deletes_the_name_with_its_blanks_when_there_is_one) {
    Write(Disk(" a.syx"), "x");
    FD_List_Files_Refresh();
    Press_File(" a.syx");
    Answer_With("Delete  A.SYX ?", Answer::Yes);
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
    EXPECT_FALSE(std::filesystem::exists(Disk(" a.syx")));
}

TEST_F(Folder_Button, deletes_no_other_file_for_one_that_may_not_be_read) {
    Write(Disk("a.syx "), "x");
    std::filesystem::permissions(Disk("a.syx "), std::filesystem::perms::none);
    FD_List_Files_Set_Pattern("*");
    Press_File("a.syx ");
    Answer_With("Delete A.SYX  ?", Answer::Yes);
    const Plain_User user;
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
    EXPECT_FALSE(std::filesystem::exists(Disk("a.syx ")));
}

TEST_F(Folder_Button, tells_a_file_that_could_not_be_deleted) {
    Press_File("a.syx");
    for (const char* typed : {"gone.syx", "", "*.syx", "Leads", "a?syx"}) {
        Type(typed);
        Answer_With("Delete A.SYX ?", Answer::Yes);
        Expect_Box("A.SYX could not be deleted.");
        Delete();
    }
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
    EXPECT_TRUE(std::filesystem::exists(Disk("lead.syx")));
    EXPECT_TRUE(std::filesystem::exists(Disk("Leads/solo.syx")));
}

TEST_F(Folder_Button, deletes_nothing_of_another_kind) {
    FD_Selected = "x";
    FD_Selected_Kind = "";
    Type("a.syx");
    Answer_With("Delete X ?", Answer::Yes);
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("a.syx")));
}

TEST_F(Folder_Button, takes_no_file_for_the_folder_above) {
    Press_File("a.syx");
    Updir();
    Write(Path("a.syx"), "x");
    Answer_With(Question(Test_Folder()), Answer::Yes);
    Expect_Box(Upper_Text(Test_Folder()) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Path("a.syx")));
}

TEST_F(Folder_Button, leaves_a_link_to_a_folder) {
    std::filesystem::create_directory_symlink(Disk("empty"), Disk("link"));
    FD_List_Dirs_Refresh();
    Press_Folder(Disk("link"));
    Answer_With(Question(Disk("link")), Answer::Yes);
    Expect_Box(Upper_Text(Disk("link")) + " could not be removed. The directory is not empty.");
    Delete();
    EXPECT_TRUE(std::filesystem::exists(Disk("empty")));
}
