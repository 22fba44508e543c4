#include "desk/folders.h"

#include <filesystem>
#include <fstream>

#include "fakes/stage.h"
#include "filedlg/options.h"
#include "platform/folder_list.h"
#include "platform/text.h"

namespace {

namespace fs = std::filesystem;

void Touch(const std::string& path) {
    std::ofstream file(path);
}

}  // namespace

// The tests' folder plays the disk; the current directory is another folder in it.
class Stored_Folder : public Stage {
  protected:
    Stored_Folder() {
        fs::create_directory(here_);
        fs::current_path(here_);
    }
    ~Stored_Folder() override { fs::current_path("/"); }

    // Makes a folder of that name below the tests' folder.
    static std::string Make(const std::string& name) {
        const std::string path = Test_Folder() + "/" + name;
        fs::create_directories(path);
        return path;
    }

    const std::string here_ = Test_Folder() + "/Here";
};

TEST_F(Stored_Folder, that_holds_a_file_comes_back_in_lower_case_with_a_separator) {
    const std::string path = Make("Tones");
    Touch(path + "/a.syx");
    EXPECT_EQ(Folder_Or_Current(path), Lower_Text(path) + "/");
    EXPECT_EQ(Folder_Or_Current(path + "/"), Lower_Text(path) + "/");
    EXPECT_EQ(Folder_Or_Current(path + "/  "), Lower_Text(path) + "/");
}

TEST_F(Stored_Folder, is_found_again_by_its_name_in_lower_case) {
    const std::string path = Make("My Tones/JX-8P/Soft Ones");
    Touch(path + "/a.syx");
    const std::string stored = Folder_Or_Current(path);
    EXPECT_EQ(stored, Lower_Text(path) + "/");
    EXPECT_EQ(Folder_Or_Current(stored), stored);
}

TEST_F(Stored_Folder, that_has_gone_falls_back_to_the_current_directory_as_it_is_written) {
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/gone"), here_);
    EXPECT_EQ(Folder_Or_Current("/no/such/folder/"), here_);
    EXPECT_EQ(Folder_Or_Current("rubbish"), here_);
}

TEST_F(Stored_Folder, without_any_entry_falls_back_too) {
    EXPECT_EQ(Folder_Or_Current(Make("tones")), here_);
}

TEST_F(Stored_Folder, with_folders_only_falls_back_too) {
    const std::string path = Make("tones");
    Make("tones/old");
    Touch(path + "/old/a.syx");
    EXPECT_EQ(Folder_Or_Current(path), here_);
}

TEST_F(Stored_Folder, with_hidden_files_only_falls_back_too) {
    const std::string path = Make("tones");
    Touch(path + "/.hidden");
    EXPECT_EQ(Folder_Or_Current(path), here_);
    Touch(path + "/a file of any kind");
    EXPECT_EQ(Folder_Or_Current(path), Lower_Text(path) + "/");
}

TEST_F(Stored_Folder, that_is_a_file_falls_back_too) {
    Touch(Test_Folder() + "/tones");
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/tones"), here_);
}

TEST_F(Stored_Folder, may_be_reached_by_a_link_and_hold_links) {
    const std::string path = Make("real");
    Touch(path + "/a.syx");
    fs::create_directory_symlink(path, Test_Folder() + "/link");
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/link"), Lower_Text(Test_Folder()) + "/link/");
    fs::create_symlink(path + "/a.syx", Make("links") + "/b.syx");
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/links"), Lower_Text(Test_Folder()) + "/links/");
    fs::create_symlink(path + "/gone.syx", Make("broken") + "/c.syx");
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/broken"), here_);
}

TEST_F(Stored_Folder, of_no_text_is_the_root) {
    // The root has no ordinary file on some systems: then it is the current directory.
    EXPECT_EQ(Folder_Or_Current(""), Folder_Has_Files("/") ? "/" : here_);
}

TEST_F(Stored_Folder, of_two_that_differ_in_case_only_is_the_one_in_lower_case) {
    Touch(Make("TONES") + "/a.syx");
    EXPECT_NE(Folder_Or_Current(Test_Folder() + "/TONES"), here_);
    Make("tones");
    EXPECT_EQ(Folder_Or_Current(Test_Folder() + "/TONES"), here_) << "the name as it is stored comes first";
}

TEST_F(Stored_Folder, keeps_letters_beyond_a_to_z_as_they_are) {
    const std::string path = Make("Kl\xC3\x84nge");
    Touch(path + "/a.syx");
    EXPECT_EQ(Folder_Or_Current(path), Lower_Text(Test_Folder()) + "/kl\xC3\x84nge/");
}

TEST_F(Stored_Folder, may_lie_in_the_current_directory) {
    Touch(Make("Here/Sub") + "/a.syx");
    EXPECT_EQ(Folder_Or_Current("sub"), "sub/");
}

TEST_F(Stored_Folder, of_a_current_directory_that_was_removed_is_the_root) {
    const std::string gone = Make("gone");
    fs::current_path(gone);
    fs::remove(gone);
    EXPECT_EQ(Current_Directory(), "/");
}

TEST(File_Window_Options, start_with_these_values) {
    EXPECT_EQ(FD_Left, 0);
    EXPECT_EQ(FD_Top, 0);
    EXPECT_EQ(Soundcheck_Mode, 0);
    EXPECT_EQ(Soundcheck_Note, 24);
    EXPECT_EQ(Soundcheck_Velocity, 80);
}
