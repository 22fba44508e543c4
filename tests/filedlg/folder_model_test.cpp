#include "filedlg/folder_model.h"

#include <cerrno>

#include "fakes/plain_user.h"
#include "filedlg/file_stage.h"

class Three_Lists : public File_Window {
  protected:
    Three_Lists() {
        FD_Lists_Start();
        EXPECT_EQ(FD_List_Dirs_Set_Path(Disk("")), 0);
        EXPECT_EQ(FD_List_Files_Set_Path(Disk("")), 0);
    }
};

TEST_F(Three_Lists, start_in_the_current_directory) {
    FD_Lists_Start();
    EXPECT_EQ(FD_List_Dirs.path, std::filesystem::current_path().string());
    EXPECT_EQ(FD_List_Files.path, std::filesystem::current_path().string());
    EXPECT_EQ(FD_List_Files.pattern, "*.syx");
    EXPECT_EQ(FD_List_Drives.Selected_Text(), "/");
}

TEST_F(Three_Lists, start_in_the_root_when_the_current_directory_has_gone) {
    std::filesystem::create_directory(Path("here"));
    std::filesystem::current_path(Path("here"));
    std::filesystem::remove(Path("here"));
    FD_Lists_Start();
    EXPECT_EQ(FD_List_Dirs.path, "/");
    std::filesystem::current_path("/");
}

TEST_F(Three_Lists, show_the_levels_of_the_path_and_the_folders_in_it) {
    Lines levels = {"/"};
    for (std::size_t at = Disk("").find('/', 1); at != std::string::npos; at = Disk("").find('/', at + 1)) {
        levels.push_back(Disk("").substr(0, at));
    }
    levels.push_back(Disk(""));
    EXPECT_EQ(FD_List_Dirs.levels, static_cast<int>(levels.size()));
    EXPECT_EQ(FD_List_Dirs_Entry(), Disk("")) << "the path itself is chosen";
    levels.push_back(Disk("empty"));
    levels.push_back(Disk("Leads"));
    EXPECT_EQ(FD_List_Dirs.entries, levels);
}

TEST_F(Three_Lists, have_one_level_in_the_root) {
    ASSERT_EQ(FD_List_Dirs_Set_Path("/"), 0);
    EXPECT_EQ(FD_List_Dirs.levels, 1);
    EXPECT_EQ(FD_List_Dirs_Entry(), "/");
    EXPECT_EQ(FD_List_Dirs.entries[1].rfind('/'), 0U);
}

TEST_F(Three_Lists, show_the_files_under_the_pattern) {
    EXPECT_EQ(FD_List_Files.entries, (Lines{"a.syx", "Bass.SYX", "lead.syx"}));
    FD_List_Files_Set_Pattern("*.SEQ");
    EXPECT_EQ(FD_List_Files.entries, (Lines{"one.seq", "two.SEQ"}));
    EXPECT_EQ(FD_List_Files.index, -1);
    EXPECT_EQ(FD_List_Files_Entry(), "");
}

TEST_F(Three_Lists, find_a_stored_path_in_any_case_and_hold_it_as_it_is_written) {
    ASSERT_EQ(FD_List_Dirs_Set_Path(Disk("LEADS") + "/"), 0);
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
    ASSERT_EQ(FD_List_Files_Set_Path(Disk("leads//")), 0);
    EXPECT_EQ(FD_List_Files.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
}

TEST_F(Three_Lists, stay_where_they_are_when_a_path_cannot_be_listed) {
    EXPECT_EQ(FD_List_Dirs_Set_Path(Disk("gone")), ENOENT);
    EXPECT_EQ(FD_List_Files_Set_Path(Disk("a.syx")), ENOTDIR);
    EXPECT_EQ(FD_List_Dirs_Set_Path(std::string(300, 'x')), ENAMETOOLONG);
    std::filesystem::permissions(Disk("empty"), std::filesystem::perms::none);
    {
        const Plain_User user;
        EXPECT_EQ(FD_List_Dirs_Set_Path(Disk("empty")), EACCES);
    }
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    EXPECT_EQ(FD_List_Files.path, Disk(""));
}

TEST_F(Three_Lists, follow_the_disk_at_each_listing) {
    const int before = FD_List_Files.revision;
    Write(Disk("new.syx"), "");
    std::filesystem::create_directory(Disk("Bells"));
    EXPECT_EQ(FD_List_Files.revision, before) << "not by themselves";
    FD_List_Files_Refresh();
    FD_List_Dirs_Refresh();
    EXPECT_GT(FD_List_Files.revision, before);
    EXPECT_EQ(FD_List_Files.entries, (Lines{"a.syx", "Bass.SYX", "lead.syx", "new.syx"}));
    EXPECT_EQ(FD_List_Dirs.entries.at(static_cast<std::size_t>(FD_List_Dirs.levels)), Disk("Bells"));
}

TEST_F(Three_Lists, show_nothing_of_a_folder_that_has_vanished) {
    std::filesystem::remove_all(Disk(""));
    FD_List_Files_Refresh();
    FD_List_Dirs_Refresh();
    EXPECT_EQ(FD_List_Files.entries, Lines{});
    EXPECT_EQ(FD_List_Dirs_Entry(), Disk(""));
    EXPECT_EQ(static_cast<int>(FD_List_Dirs.entries.size()), FD_List_Dirs.levels);
}

TEST_F(Three_Lists, walk_links_that_lead_in_a_circle) {
    std::filesystem::create_directory_symlink(Disk(""), Disk("again"));
    ASSERT_EQ(FD_List_Dirs_Set_Path(Disk("again/again")), 0);
    EXPECT_EQ(FD_List_Dirs.path, Disk("again/again"));
    std::filesystem::create_symlink(Disk("round"), Disk("round"));
    EXPECT_EQ(FD_List_Dirs_Set_Path(Disk("round")), ELOOP);
    FD_List_Dirs_Refresh();
    for (const std::string& entry : FD_List_Dirs.entries) EXPECT_NE(entry, Disk("again/again/round"));
}

// -- what is typed ---------------------------------------------------------------------------------------

TEST_F(Three_Lists, choose_a_typed_file_that_is_listed) {
    EXPECT_EQ(FD_List_Files_Set_FileName("BASS.syx"), 0);
    EXPECT_EQ(FD_List_Files_Entry(), "Bass.SYX");
    EXPECT_EQ(FD_List_Files_Set_FileName("gone.syx"), 0);
    EXPECT_EQ(FD_List_Files.path, Disk(""));
}

TEST_F(Three_Lists, take_a_typed_pattern) {
    EXPECT_EQ(FD_List_Files_Set_FileName("*.txt"), 0);
    EXPECT_EQ(FD_List_Files.pattern, "*.txt");
    EXPECT_EQ(FD_List_Files.entries, Lines{"note.txt"});
}

TEST_F(Three_Lists, take_a_typed_folder) {
    EXPECT_EQ(FD_List_Files_Set_FileName("leads/"), 0);
    EXPECT_EQ(FD_List_Files.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files_Set_FileName(".."), 0);
    EXPECT_EQ(FD_List_Files.path, Disk(""));
    EXPECT_EQ(FD_List_Files_Set_FileName("Leads/s*.syx"), 0);
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
    EXPECT_EQ(FD_List_Files_Set_FileName(Disk("a.syx")), 0);
    EXPECT_EQ(FD_List_Files.path, Disk(""));
    EXPECT_EQ(FD_List_Files_Set_FileName("../../../../../../../../.."), 0);
    EXPECT_EQ(FD_List_Files.path, "/");
}

TEST_F(Three_Lists, refuse_a_typed_folder_that_is_not_there) {
    EXPECT_EQ(FD_List_Files_Set_FileName("gone/x.syx"), ENOENT);
    EXPECT_EQ(FD_List_Files_Set_FileName("note.txt/x.syx"), ENOTDIR);
    EXPECT_EQ(FD_List_Files.path, Disk(""));
}

// -- patterns --------------------------------------------------------------------------------------------

TEST(A_Pattern, matches_without_regard_to_case) {
    EXPECT_TRUE(Falls_Under("Bass.SYX", "*.syx"));
    EXPECT_TRUE(Falls_Under("bass.syx", "*.SYX"));
    EXPECT_FALSE(Falls_Under("bass.syx2", "*.syx"));
    EXPECT_FALSE(Falls_Under("syx", "*.syx"));
    EXPECT_TRUE(Falls_Under(".syx", "*.syx"));
}

TEST(A_Pattern, knows_any_letters_and_any_one) {
    EXPECT_TRUE(Falls_Under("bass 1.syx", "b*s ?.s*"));
    EXPECT_FALSE(Falls_Under("bass.syx", "b?s.syx"));
    EXPECT_TRUE(Falls_Under("aXbXc", "*X*"));
    EXPECT_TRUE(Falls_Under("abcabd", "*abd"));
    EXPECT_TRUE(Falls_Under("", "*"));
    EXPECT_FALSE(Falls_Under("", "?"));
    EXPECT_FALSE(Falls_Under("x", ""));
    EXPECT_TRUE(Falls_Under("x", "**x**"));
}

TEST(A_Pattern, of_stars_and_points_is_everything) {
    EXPECT_TRUE(Falls_Under("README", "*.*"));
    EXPECT_TRUE(Falls_Under("a.b.c", "*.*"));
}

TEST(A_Pattern, may_be_several) {
    EXPECT_TRUE(Falls_Under("x.seq", "*.syx;*.seq"));
    EXPECT_FALSE(Falls_Under("x.osc", "*.syx;*.seq;"));
}

TEST(A_Pattern, of_many_stars_does_not_take_for_ever) {
    EXPECT_FALSE(Falls_Under(std::string(300, 'a'), "*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

// -- drives ----------------------------------------------------------------------------------------------

TEST_F(Three_Lists, know_the_volume_that_a_path_lies_on) {
    Volumes = {"/", Disk("Leads"), Disk("Lea")};
    FD_List_Drives_Refresh();
    EXPECT_EQ(Drive_Of(Disk("Leads/x")), Disk("Leads"));
    EXPECT_EQ(Drive_Of(Disk("Leads")), Disk("Leads"));
    EXPECT_EQ(Drive_Of(Disk("Leadsx")), "/");
    EXPECT_EQ(Drive_Of("/"), "/");
}

TEST_F(Three_Lists, tell_a_pulled_volume_from_a_missing_folder) {
    Volumes = {"/", Disk("Leads")};
    FD_List_Drives_Refresh();
    EXPECT_EQ(FD_List_Dirs_Set_Path(Disk("Leads/gone")), ENOENT);
    std::filesystem::remove_all(Disk("Leads"));
    const int error = FD_List_Dirs_Set_Path(Disk("Leads/x"));
    EXPECT_TRUE(Device_Is_Gone(error));
    EXPECT_FALSE(Device_Is_Gone(ENOENT));
    EXPECT_FALSE(Device_Is_Gone(EACCES));
    for (const int gone : {ENODEV, ENXIO, EIO, ENOMEDIUM, ESTALE, ENOTCONN, EHOSTDOWN, ETIMEDOUT}) {
        EXPECT_TRUE(Device_Is_Gone(gone)) << gone;
    }
}

TEST_F(Three_Lists, read_the_drives_anew_and_keep_the_chosen_one) {
    Volumes = {"/", "/mnt/stick"};
    FD_List_Drives_Refresh();
    FD_List_Drives_Select("/mnt/stick");
    Volumes = {"/", "/mnt/card"};
    FD_List_Drives_Refresh();
    EXPECT_EQ(FD_List_Drives.entries, (Lines{"/", "/mnt/card", "/mnt/stick"}));
    EXPECT_EQ(FD_List_Drives.Selected_Text(), "/mnt/stick");
}
