// What a folder lists, on a real one; and making and removing.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "fakes/fake_program.h"
#include "fakes/plain_user.h"
#include "platform/folder_list.h"

namespace {

using Lines = std::vector<std::string>;

std::string Path(const std::string& name) {
    return Test_Folder() + "/" + name;
}

void Make_File(const std::string& name) {
    std::ofstream(Path(name)) << "x";
}

}  // namespace

TEST(A_Folder, lists_its_folders_and_files_without_regard_to_case) {
    for (const char* name : {"beta", "Alpha", "alpha", "Gamma", "ALPHA.syx", "a"}) Make_File(name);
    std::filesystem::create_directory(Path("Zoo"));
    std::filesystem::create_directory(Path("pads"));
    const Folder_Contents contents = Folder_Read(Test_Folder());
    EXPECT_EQ(contents.error, 0);
    EXPECT_EQ(contents.files, (Lines{"a", "Alpha", "alpha", "ALPHA.syx", "beta", "Gamma"}));
    EXPECT_EQ(contents.folders, (Lines{"pads", "Zoo"}));
}

TEST(A_Folder, keeps_hidden_names_to_itself) {
    Make_File(".hidden");
    std::filesystem::create_directory(Path(".config"));
    EXPECT_EQ(Folder_Read(Test_Folder()).files, Lines{});
    EXPECT_EQ(Folder_Read(Test_Folder()).folders, Lines{});
}

TEST(A_Folder, counts_a_link_as_what_it_leads_to) {
    Make_File("file");
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::create_symlink(Path("file"), Path("to file"));
    std::filesystem::create_symlink(Path("folder"), Path("to folder"));
    std::filesystem::create_symlink(Path("nowhere"), Path("to nowhere"));
    std::filesystem::create_symlink(Path("round"), Path("round"));
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    const Folder_Contents contents = Folder_Read(Test_Folder());
    EXPECT_EQ(contents.files, (Lines{"file", "to file"}));
    EXPECT_EQ(contents.folders, (Lines{"folder", "to folder"}));
}

TEST(A_Folder, lists_names_that_are_no_text) {
    Make_File("b\xE4ss.syx");
    Make_File("line\nend");
    EXPECT_EQ(Folder_Read(Test_Folder()).files, (Lines{"b\xE4ss.syx", "line\nend"}));
}

TEST(A_Folder, that_cannot_be_read_gives_its_reason) {
    Make_File("file");
    EXPECT_EQ(Folder_Read(Path("gone")).error, ENOENT);
    EXPECT_EQ(Folder_Read(Path("file")).error, ENOTDIR);
    EXPECT_EQ(Folder_Read("").error, ENOENT);
    std::filesystem::create_directory(Path("secret"));
    std::filesystem::permissions(Path("secret"), std::filesystem::perms::none);
    const Plain_User user;
    EXPECT_EQ(Folder_Read(Path("secret")).error, EACCES);
}

TEST(A_Folder, of_50000_files_is_listed_whole_and_in_order) {
    for (int number = 0; number < 50000; ++number) Make_File("tone " + std::to_string(number) + ".syx");
    const Folder_Contents contents = Folder_Read(Test_Folder());
    EXPECT_EQ(contents.files.size(), 50000U);
    EXPECT_EQ(contents.files.front(), "tone 0.syx");
    EXPECT_EQ(contents.files.back(), "tone 9999.syx");
}

TEST(A_Folder, is_made_once) {
    EXPECT_EQ(Folder_Make(Path("new")), 0);
    EXPECT_TRUE(std::filesystem::is_directory(Path("new")));
    EXPECT_EQ(Folder_Make(Path("new")), EEXIST);
    EXPECT_EQ(Folder_Make(Path("no/where")), ENOENT);
}

TEST(A_Folder, is_removed_only_when_it_is_empty) {
    std::filesystem::create_directory(Path("full"));
    Make_File("full/x");
    EXPECT_NE(Folder_Remove(Path("full")), 0);
    EXPECT_TRUE(std::filesystem::exists(Path("full/x")));
    std::filesystem::remove(Path("full/x"));
    EXPECT_EQ(Folder_Remove(Path("full")), 0);
    EXPECT_FALSE(std::filesystem::exists(Path("full")));
}

TEST(A_File, is_deleted_and_a_folder_is_not) {
    Make_File("x");
    std::filesystem::create_directory(Path("empty"));
    EXPECT_EQ(File_Delete(Path("x")), 0);
    EXPECT_FALSE(std::filesystem::exists(Path("x")));
    EXPECT_EQ(File_Delete(Path("x")), ENOENT);
    EXPECT_NE(File_Delete(Path("empty")), 0);
    EXPECT_TRUE(std::filesystem::exists(Path("empty")));
}
