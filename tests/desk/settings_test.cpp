#include "desk/settings.h"

#include <sys/stat.h>

#include <filesystem>

#include "fakes/plain_user.h"
#include "fakes/stage.h"
#include "platform/files.h"

namespace {

std::string Channel() {
    return Setting_Get("MIDI", "Channel", "1");
}

std::size_t Entries_In_Folder() {
    const std::filesystem::directory_iterator folder(Test_Folder());
    return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
}

}  // namespace

class Settings_File : public Stage {
  protected:
    Settings_File() { INI_File = Test_Folder() + "/Tonebench.INI"; }
};

TEST_F(Settings_File, that_is_missing_gives_the_defaults) {
    EXPECT_EQ(Channel(), "1");
    EXPECT_EQ(Setting_Get("MIDI", "Synthesizer", "JX-8P"), "JX-8P");
    EXPECT_EQ(Setting_Get("Recent Files", "Tone1", ""), "");
}

TEST_F(Settings_File, is_not_made_by_reading) {
    Channel();
    EXPECT_EQ(Read_Settings(), "(none)");
}

TEST_F(Settings_File, that_is_empty_or_rubbish_gives_the_defaults) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    for (const std::string& contents :
         {std::string(), bytes, std::string(1 << 20, 'x'), std::string("MIDI Channel 5"),
          std::string(1000, '['), std::string(1000, '\n'), std::string(1000, '=')}) {
        Write_Settings(contents);
        EXPECT_EQ(Channel(), "1");
    }
}

TEST_F(Settings_File, that_is_rubbish_takes_values_and_keeps_the_rubbish) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    Write_Settings(bytes);
    Setting_Put("MIDI", "Channel", "5");
    EXPECT_EQ(Channel(), "5");
    EXPECT_EQ(Read_Settings(), bytes + "\n[MIDI]\nChannel=5\n");
}

TEST_F(Settings_File, gives_what_was_stored) {
    Setting_Put("MIDI", "Channel", "5");
    Setting_Put("Main Window", "Left", "10.5");
    Setting_Put("MIDI", "Output", "Synth Out");
    EXPECT_EQ(Channel(), "5");
    EXPECT_EQ(Setting_Get("Main Window", "Left", "0"), "10.5");
    EXPECT_EQ(Read_Settings(), "[MIDI]\nChannel=5\nOutput=Synth Out\n[Main Window]\nLeft=10.5\n");
}

TEST_F(Settings_File, stores_values_without_the_blanks_at_their_ends) {
    Setting_Put("MIDI", "Channel", " 5 ");
    EXPECT_EQ(Read_Settings(), "[MIDI]\nChannel=5\n");
}

TEST_F(Settings_File, compares_sections_and_keys_without_regard_to_case) {
    Write_Settings("[midi]\nCHANNEL=5\nOUTPUT=Synth Out\n");
    EXPECT_EQ(Channel(), "5");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), "Synth Out");
    Setting_Put("MIDI", "Channel", "6");
    EXPECT_EQ(Read_Settings(), "[midi]\nCHANNEL=6\nOUTPUT=Synth Out\n");
}

TEST_F(Settings_File, keeps_comments_and_strange_lines_and_their_order) {
    Write_Settings("; mine\r\n\r\n[Old]\r\nx=1\r\n[MIDI]\r\nno key\r\nChannel=1\r\nZ=2\r\n");
    Setting_Put("MIDI", "Channel", "7");
    Setting_Put("MIDI", "Autosend", "0");
    EXPECT_EQ(Read_Settings(),
              "; mine\r\n\r\n[Old]\r\nx=1\r\n[MIDI]\r\nno key\r\nChannel=7\r\nZ=2\r\nAutosend=0\r\n");
}

TEST_F(Settings_File, is_read_with_and_without_line_ends) {
    Write_Settings("[MIDI]\nChannel=5");
    EXPECT_EQ(Channel(), "5");
    Write_Settings("[MIDI]\r\nChannel=6\r\n");
    EXPECT_EQ(Channel(), "6");
}

TEST_F(Settings_File, may_have_quotation_marks_round_a_value) {
    Write_Settings("[MIDI]\nChannel=\"5\"\nOutput='Synth Out'\n");
    EXPECT_EQ(Channel(), "5");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), "Synth Out");
}

TEST_F(Settings_File, gives_63_bytes_of_a_value_and_no_more) {
    const std::string value(64, 'A');
    Write_Settings("[MIDI]\nOutput=" + value + "\nInput=" + value.substr(1) + "\n");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), std::string(63, 'A'));
    EXPECT_EQ(Setting_Get("MIDI", "Input", ""), std::string(63, 'A'));
}

TEST_F(Settings_File, cuts_the_default_too) {
    EXPECT_EQ(Setting_Get("MIDI", "Output", std::string(100, 'B')), std::string(63, 'B'));
}

TEST_F(Settings_File, gives_a_megabyte_on_one_line_cut_to_63_bytes) {
    Write_Settings("[MIDI]\nOutput=" + std::string(1 << 20, 'x') + "\nChannel=5\n");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), std::string(63, 'x'));
    EXPECT_EQ(Channel(), "5");
}

TEST_F(Settings_File, stores_a_long_value_whole) {
    Setting_Put("MIDI", "Output", std::string(100, 'C'));
    EXPECT_EQ(Read_Settings(), "[MIDI]\nOutput=" + std::string(100, 'C') + "\n");
}

TEST_F(Settings_File, does_not_cut_a_value_inside_a_character) {
    Write_Settings("[MIDI]\nOutput=" + std::string(62, 'A') + "\xC3\xA4\n");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), std::string(62, 'A'));
}

TEST_F(Settings_File, gives_no_blanks_at_the_place_of_the_cut) {
    Write_Settings("[MIDI]\nOutput=" + std::string(60, 'A') + "    B\n");
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), std::string(60, 'A'));
}

TEST_F(Settings_File, ends_a_value_at_a_zero_character) {
    Write_Settings(std::string("[MIDI]\nOutput=Synth \0Out\n", 25));
    EXPECT_EQ(Setting_Get("MIDI", "Output", ""), "Synth");
}

TEST_F(Settings_File, in_a_folder_that_is_not_there_is_left_alone_without_a_word) {
    INI_File = Test_Folder() + "/missing/Tonebench.INI";
    Setting_Put("MIDI", "Channel", "5");
    EXPECT_EQ(Channel(), "1");
    EXPECT_EQ(Entries_In_Folder(), 0U);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Settings_File, whose_place_a_folder_has_taken_is_left_alone_without_a_word) {
    std::filesystem::create_directory(INI_File);
    Setting_Put("MIDI", "Channel", "5");
    EXPECT_EQ(Channel(), "1");
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST_F(Settings_File, that_is_marked_read_only_is_left_alone_without_a_word) {
    using std::filesystem::perms;
    Write_Settings("[MIDI]\nChannel=5\n");
    std::filesystem::permissions(INI_File, perms::owner_read);
    Setting_Put("MIDI", "Channel", "6");
    Setting_Put("MIDI", "Autosend", "0");
    EXPECT_EQ(Read_Settings(), "[MIDI]\nChannel=5\n");
    EXPECT_EQ(Channel(), "5");
    EXPECT_TRUE(Boxes.empty());
    std::filesystem::permissions(INI_File, perms::owner_read | perms::owner_write);
    Setting_Put("MIDI", "Channel", "6");
    EXPECT_EQ(Channel(), "6");
}

TEST_F(Settings_File, that_this_user_may_not_write_is_left_alone_without_a_word) {
    Write_Settings("[MIDI]\nChannel=5\n");
    const Plain_User user;
    ASSERT_EQ(::chmod(INI_File.c_str(), 0466), 0);
    Setting_Put("MIDI", "Channel", "6");
    EXPECT_EQ(Read_Settings(), "[MIDI]\nChannel=5\n");
    EXPECT_EQ(Channel(), "5");
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Settings_File, that_may_not_be_read_gives_the_defaults_and_loses_nothing) {
    Write_Settings("; mine\n[MIDI]\nChannel=5\n");
    {
        const Plain_User user;
        ASSERT_EQ(::chmod(INI_File.c_str(), 0200), 0);
        EXPECT_EQ(Channel(), "1");
        Setting_Put("MIDI", "Channel", "6");
        ASSERT_EQ(::chmod(INI_File.c_str(), 0600), 0);
        EXPECT_EQ(Read_Settings(), "; mine\n[MIDI]\nChannel=5\n");
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Settings_File, in_a_folder_that_is_read_only_is_left_alone_without_a_word) {
    Write_Settings("[MIDI]\nChannel=5\n");
    const Plain_User user;
    ASSERT_EQ(::chmod(Test_Folder().c_str(), 0500), 0);
    Setting_Put("MIDI", "Channel", "6");
    EXPECT_EQ(Channel(), "5");
    EXPECT_EQ(Entries_In_Folder(), 1U);
    EXPECT_TRUE(Boxes.empty());
    ASSERT_EQ(::chmod(Test_Folder().c_str(), 0700), 0);
}

TEST_F(Settings_File, without_a_path_is_no_file) {
    INI_File.clear();
    Setting_Put("MIDI", "Channel", "5");
    EXPECT_EQ(Channel(), "1");
    EXPECT_EQ(Entries_In_Folder(), 0U);
}

TEST_F(Settings_File, is_replaced_in_one_step) {
    Write_Settings("[MIDI]\nChannel=1\n");
    struct stat old = {};
    struct stat now = {};
    ASSERT_EQ(::stat(INI_File.c_str(), &old), 0);
    Setting_Put("MIDI", "Channel", "5");
    ASSERT_EQ(::stat(INI_File.c_str(), &now), 0);
    EXPECT_NE(old.st_ino, now.st_ino);
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST_F(Settings_File, takes_several_values_in_their_order) {
    Write_Settings("; mine\n[MIDI]\nChannel=1\n");
    Settings_Put({{"Main Window", "Left", " 7 "},
                  {"MIDI", "Output", "Synth Out"},
                  {"MIDI", "Channel", "5"},
                  {"Main Window", "Top", "8"},
                  {"MIDI", "Output", "Other Out"}});
    EXPECT_EQ(Read_Settings(),
              "; mine\n[MIDI]\nChannel=5\nOutput=Other Out\n[Main Window]\nLeft=7\nTop=8\n");
}

TEST_F(Settings_File, takes_one_line_of_a_name_that_holds_a_line_end) {
    Setting_Put("Recent Files", "Tone1", "/A\n[MIDI]\nChannel=9");
    EXPECT_EQ(Read_Settings(), "[Recent Files]\nTone1=/A\n");
    EXPECT_EQ(Channel(), "1");
}

TEST_F(Settings_File, may_be_a_link) {
    std::filesystem::create_directory(Test_Folder() + "/elsewhere");
    ASSERT_TRUE(File_Replace(Test_Folder() + "/elsewhere/my.ini", "[MIDI]\nChannel=1\n"));
    std::filesystem::create_symlink("elsewhere/my.ini", INI_File);
    Setting_Put("MIDI", "Channel", "5");
    EXPECT_TRUE(std::filesystem::is_symlink(INI_File));
    EXPECT_EQ(File_Read_Whole(Test_Folder() + "/elsewhere/my.ini"), "[MIDI]\nChannel=5\n");
}

TEST_F(Settings_File, is_read_anew_each_time) {
    Write_Settings("[MIDI]\nChannel=5\n");
    EXPECT_EQ(Channel(), "5");
    Write_Settings("[MIDI]\nChannel=6\n");
    EXPECT_EQ(Channel(), "6");
}

TEST(Folder_Path, gets_a_final_separator) {
    for (const auto& [path, expected] :
         {std::pair{"/tones", "/tones/"}, {"/tones/", "/tones/"}, {"/", "/"}, {"", "/"}, {"a b", "a b/"}}) {
        std::string changed = path;
        EXPECT_EQ(Path_Add_Slash(changed), expected);
        EXPECT_EQ(changed, expected);
    }
}

TEST(Folder_Path, loses_blanks_at_its_right_end_and_keeps_those_at_its_left) {
    std::string path = "  /tones  ";
    EXPECT_EQ(Path_Add_Slash(path), "  /tones/");
    EXPECT_EQ(path, "  /tones/");
}

TEST(Folder_Path, that_ends_in_a_separator_and_blanks_gets_no_second_one) {
    std::string path = "/tones/  ";
    EXPECT_EQ(Path_Add_Slash(path), "/tones/");
}

TEST(System, counts_as_a_later_one_than_3_95) {
    EXPECT_GE(OS_Version(), 3.95);
}
