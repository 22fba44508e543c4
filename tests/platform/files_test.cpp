#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "fakes/fake_program.h"
#include "fakes/plain_user.h"

namespace {

std::string Path(const std::string& name) {
    return Test_Folder() + "/" + name;
}

void Write(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

std::string Read(const std::string& path) {
    return File_Read_Whole(path).value_or("(none)");
}

struct stat Facts(const std::string& path) {
    struct stat facts = {};
    EXPECT_EQ(::stat(path.c_str(), &facts), 0) << path;
    return facts;
}

// Names of what lies in the folder of the test.
std::size_t Entries_In_Folder() {
    const std::filesystem::directory_iterator folder(Test_Folder());
    return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
}

}  // namespace

TEST(Path, separates_folders_by_a_slash) {
    EXPECT_EQ(Path_Separator, '/');
}

TEST(File, is_read_byte_for_byte) {
    const std::string bytes("a\0b\r\n\xFF\x1A c\n", 10);
    Write(Path("x"), bytes);
    EXPECT_EQ(File_Read_Whole(Path("x")), bytes);
}

TEST(File, that_is_empty_is_read_as_an_empty_text) {
    Write(Path("x"), "");
    EXPECT_EQ(File_Read_Whole(Path("x")), "");
}

TEST(File, that_is_missing_or_is_a_folder_or_has_no_name_is_not_read) {
    std::filesystem::create_directory(Path("folder"));
    EXPECT_EQ(File_Read_Whole(Path("missing")), std::nullopt);
    EXPECT_EQ(File_Read_Whole(Path("folder")), std::nullopt);
    EXPECT_EQ(File_Read_Whole(Path("missing/x")), std::nullopt);
    EXPECT_EQ(File_Read_Whole(""), std::nullopt);
}

TEST(File, that_cannot_be_read_to_its_end_is_not_read_at_all) {
    EXPECT_EQ(File_Read_Whole("/proc/self/mem"), std::nullopt);
}

TEST(File, that_is_a_pipe_or_a_device_is_not_read_and_nothing_waits) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(File_Read_Whole(Path("pipe")), std::nullopt);
    EXPECT_EQ(File_Read_Whole("/dev/zero"), std::nullopt);
}

TEST(File, of_several_blocks_is_read_whole) {
    std::string contents;
    for (int number = 0; contents.size() < 200'000; ++number) contents += std::to_string(number);
    Write(Path("x"), contents);
    EXPECT_EQ(File_Read_Whole(Path("x")), contents);
}

TEST(File, is_read_only_when_nobody_or_not_this_user_may_write_it) {
    EXPECT_FALSE(File_Is_Read_Only(Path("missing")));
    Write(Path("x"), "old");
    EXPECT_FALSE(File_Is_Read_Only(Path("x")));
    ::chmod(Path("x").c_str(), 0444);
    EXPECT_TRUE(File_Is_Read_Only(Path("x"))) << "also for the system's administrator";
    const Plain_User user;
    ::chmod(Path("x").c_str(), 0466);
    EXPECT_TRUE(File_Is_Read_Only(Path("x"))) << "others may, its owner may not";
    ::chmod(Path("x").c_str(), 0200);
    EXPECT_FALSE(File_Is_Read_Only(Path("x")));
}

TEST(File, comes_into_being_when_it_is_replaced) {
    EXPECT_TRUE(File_Replace(Path("x"), "new"));
    EXPECT_EQ(Read(Path("x")), "new");
    EXPECT_EQ(Facts(Path("x")).st_mode & 07777U, 0644U);
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, is_replaced_as_a_whole_and_never_written_in_place) {
    Write(Path("x"), "the old contents");
    const auto old = Facts(Path("x")).st_ino;
    std::ifstream reader(Path("x"), std::ios::binary);
    EXPECT_TRUE(File_Replace(Path("x"), "new"));
    EXPECT_NE(Facts(Path("x")).st_ino, old);
    EXPECT_EQ(Read(Path("x")), "new");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "the old contents")
        << "whoever had the old file open still reads it whole";
}

TEST(File, leaves_nothing_beside_it_when_it_is_replaced) {
    for (int time = 0; time < 20; ++time) EXPECT_TRUE(File_Replace(Path("x"), std::to_string(time)));
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, keeps_its_permissions_when_it_is_replaced) {
    Write(Path("x"), "old");
    ::chmod(Path("x").c_str(), 0600);
    EXPECT_TRUE(File_Replace(Path("x"), "new"));
    EXPECT_EQ(Facts(Path("x")).st_mode & 07777U, 0600U);
}

TEST(File, may_be_replaced_by_an_empty_one_and_by_one_of_a_megabyte) {
    const std::string large(1 << 20, 'x');
    EXPECT_TRUE(File_Replace(Path("x"), large));
    EXPECT_EQ(Read(Path("x")), large);
    EXPECT_TRUE(File_Replace(Path("x"), ""));
    EXPECT_EQ(Read(Path("x")), "");
}

TEST(File, behind_a_link_is_replaced_and_the_link_stays) {
    std::filesystem::create_directory(Path("elsewhere"));
    Write(Path("elsewhere/real"), "old");
    std::filesystem::create_symlink("elsewhere/real", Path("link"));
    EXPECT_TRUE(File_Replace(Path("link"), "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(Path("link")));
    EXPECT_FALSE(std::filesystem::is_symlink(Path("elsewhere/real")));
    EXPECT_EQ(Read(Path("elsewhere/real")), "new");
    EXPECT_EQ(Entries_In_Folder(), 2U);
}

TEST(File, in_a_folder_that_is_not_there_cannot_be_replaced) {
    EXPECT_FALSE(File_Replace(Path("missing/x"), "new"));
    EXPECT_EQ(Entries_In_Folder(), 0U);
}

TEST(File, in_a_file_that_stands_where_its_folder_should_be_cannot_be_replaced) {
    Write(Path("folder"), "a file");
    EXPECT_FALSE(File_Replace(Path("folder/x"), "new"));
    EXPECT_EQ(Read(Path("folder")), "a file");
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, does_not_take_the_place_of_a_folder_and_leaves_nothing_beside_it) {
    std::filesystem::create_directory(Path("x"));
    EXPECT_FALSE(File_Replace(Path("x"), "new"));
    EXPECT_TRUE(std::filesystem::is_directory(Path("x")));
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, is_as_it_was_when_the_new_one_does_not_fit_on_the_disk) {
    Write(Path("x"), "the old contents");
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit narrow = {100, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    const bool replaced = File_Replace(Path("x"), std::string(1000, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_FALSE(replaced);
    EXPECT_EQ(Read(Path("x")), "the old contents");
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, that_is_written_over_is_as_it_was_when_the_disk_is_full_halfway) {
    Write(Path("old"), "the old contents");
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit narrow = {20, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    const int over_old = File_Overwrite(Path("old"), std::string(100, 'x'));
    const int new_one = File_Overwrite(Path("new"), std::string(100, 'x'));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    EXPECT_EQ(over_old, EFBIG);
    EXPECT_EQ(Read(Path("old")), "the old contents");
    EXPECT_EQ(new_one, EFBIG);
    EXPECT_EQ(Entries_In_Folder(), 1U) << "what was not there is not there";
}

TEST(File, takes_over_what_a_killed_program_left_beside_it) {
    Write(Path("x.new"), "half of");
    EXPECT_TRUE(File_Replace(Path("x"), "whole"));
    EXPECT_EQ(Read(Path("x")), "whole");
    EXPECT_EQ(Entries_In_Folder(), 1U);
}

TEST(File, is_replaced_while_another_copy_of_the_program_replaces_it_too) {
    Write(Path("x"), "old");
    Write(Path("x.new"), "theirs, not");
    const int theirs = ::open(Path("x.new").c_str(), O_WRONLY);
    ASSERT_EQ(::flock(theirs, LOCK_EX), 0);
    EXPECT_TRUE(File_Replace(Path("x"), "ours"));
    EXPECT_EQ(Read(Path("x")), "ours");
    EXPECT_EQ(Read(Path("x.new")), "theirs, not");
    EXPECT_EQ(Entries_In_Folder(), 2U);
    ::close(theirs);
}

TEST(File, is_replaced_whatever_bears_the_name_beside_it) {
    std::filesystem::create_directory(Path("x.new"));
    EXPECT_TRUE(File_Replace(Path("x"), "1"));
    std::filesystem::remove(Path("x.new"));
    Write(Path("precious"), "precious");
    std::filesystem::create_symlink(Path("precious"), Path("x.new"));
    EXPECT_TRUE(File_Replace(Path("x"), "2"));
    std::filesystem::remove(Path("x.new"));
    std::filesystem::create_hard_link(Path("precious"), Path("x.new"));
    EXPECT_TRUE(File_Replace(Path("x"), "3"));
    std::filesystem::remove(Path("x.new"));
    ASSERT_EQ(::mkfifo(Path("x.new").c_str(), 0600), 0);
    EXPECT_TRUE(File_Replace(Path("x"), "4"));
    EXPECT_EQ(Read(Path("x")), "4");
    EXPECT_EQ(Read(Path("precious")), "precious");
}

TEST(File_Reader, finds_the_first_byte_of_a_value_from_a_place_on_in_a_file_of_any_size) {
    // Longer than what is read at a time, with one at the very end.
    std::string bytes(200'000, '\x2A');
    bytes[0] = bytes[7] = bytes[65'535] = bytes[65'536] = bytes[199'999] = '\xF0';
    Write(Path("x"), bytes);
    File_Reader file(Path("x"));
    EXPECT_EQ(file.Find(0xF0, 1), 1U);
    EXPECT_EQ(file.Find(0xF0, 2), 8U);
    EXPECT_EQ(file.Find(0xF0, 9), 65'536U);
    EXPECT_EQ(file.Find(0xF0, 65'537), 65'537U);
    EXPECT_EQ(file.Find(0xF0, 65'538), 200'000U);
    EXPECT_EQ(file.Find(0xF0, 200'001), std::nullopt);
    EXPECT_EQ(file.Find(0xF0, 300'000), std::nullopt);
    EXPECT_EQ(file.Find(0x11, 1), std::nullopt);
    EXPECT_EQ(file.Find(0xF0, 3), 8U) << "also back again";
    EXPECT_EQ(File_Reader(Path("none")).Find(0xF0, 1), std::nullopt);
}
