// Names found without regard to case, and files that are asked for, written over and read by position.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <thread>

#include "fakes/fake_program.h"
#include "fakes/plain_user.h"
#include "platform/files.h"

namespace fs = std::filesystem;

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

std::string All_Of(File_Reader& reader) {
    std::string bytes;
    for (std::uint64_t position = 1; const auto byte = reader.At(position); ++position)
        bytes += static_cast<char>(*byte);
    return bytes;
}

}  // namespace

// -- Path_Found ------------------------------------------------------------------------------------------

TEST(A_Path, that_is_there_is_found_as_it_stands) {
    fs::create_directory(Path("Tones"));
    Write(Path("Tones/Bass.syx"), "");
    EXPECT_EQ(Path_Found(Path("Tones/Bass.syx")), Path("Tones/Bass.syx"));
    EXPECT_EQ(Path_Found(Path("Tones")), Path("Tones"));
    EXPECT_EQ(Path_Found(Path("Tones/")), Path("Tones/"));
    EXPECT_EQ(Path_Found("/"), "/");
    EXPECT_EQ(Path_Found(""), "");
}

TEST(A_Path, is_found_when_any_component_differs_in_case) {
    fs::create_directories(Path("My Tones/Old"));
    Write(Path("My Tones/Old/Bass 1.Syx"), "");
    const std::string real = Path("My Tones/Old/Bass 1.Syx");
    EXPECT_EQ(Path_Found(Path("my tones/old/bass 1.syx")), real);
    EXPECT_EQ(Path_Found(Path("MY TONES/OLD/BASS 1.SYX")), real);
    EXPECT_EQ(Path_Found(Path("MY TONES/Old/Bass 1.Syx")), real);
    EXPECT_EQ(Path_Found(Path("my tones/old/")), Path("My Tones/Old/"));
}

TEST(A_Path, that_is_exact_comes_before_one_in_another_case) {
    for (const char* name : {"bass", "BASS", "Bass"}) Write(Path(name), name);
    for (const char* name : {"bass", "BASS", "Bass"}) EXPECT_EQ(Path_Found(Path(name)), Path(name));
    EXPECT_EQ(Path_Found(Path("bASS")), Path("BASS")) << "the first in order";
}

TEST(A_Path, goes_component_by_component_and_does_not_turn_back) {
    fs::create_directory(Path("tones"));
    fs::create_directory(Path("Tones"));
    Write(Path("Tones/x"), "");
    EXPECT_EQ(Path_Found(Path("tones/x")), Path("tones/x"));
    EXPECT_EQ(Path_Found(Path("TONES/x")), Path("Tones/x"));
}

TEST(A_Path, of_a_new_file_keeps_its_name_inside_the_found_folder) {
    fs::create_directory(Path("Tones"));
    EXPECT_EQ(Path_Found(Path("TONES/New Name.SYX")), Path("Tones/New Name.SYX"));
    EXPECT_EQ(Path_Found(Path("TONES/No/New.SYX")), Path("Tones/No/New.SYX"));
}

TEST(A_Path, differs_in_the_case_of_a_to_z_only) {
    Write(Path("b\xC3\xA4"), "");  // a with diaeresis, small
    EXPECT_EQ(Path_Found(Path("B\xC3\xA4")), Path("b\xC3\xA4"));
    EXPECT_EQ(Path_Found(Path("b\xC3\x84")), Path("b\xC3\x84")) << "the capital stays as given";
}

TEST(A_Path, may_hold_dots_double_separators_and_links) {
    fs::create_directory(Path("Tones"));
    Write(Path("Tones/x"), "");
    fs::create_directory_symlink("Tones", Path("Link"));
    fs::create_symlink("nowhere", Path("Dangling"));
    EXPECT_EQ(Path_Found(Path("./TONES/../tones//X")), Path("./Tones/../Tones//x"));
    EXPECT_EQ(Path_Found(Path("link/X")), Path("Link/x"));
    EXPECT_EQ(Path_Found(Path("dangling")), Path("Dangling"));
}

TEST(A_Path, may_begin_in_the_present_folder) {
    fs::current_path(Test_Folder());
    fs::create_directory("Tones");
    Write("Tones/Bass", "");
    EXPECT_EQ(Path_Found("TONES/bass"), "Tones/Bass");
    EXPECT_EQ(Path_Found("tones"), "Tones");
    fs::current_path("/");
}

TEST(A_Path, through_a_file_or_a_folder_that_may_not_be_listed_stays_as_given) {
    Write(Path("file"), "");
    EXPECT_EQ(Path_Found(Path("FILE/x")), Path("file/x"));
    fs::create_directory(Path("shut"));
    Write(Path("shut/x"), "");
    const Plain_User user;
    fs::permissions(Path("shut"), fs::perms::none);
    EXPECT_EQ(Path_Found(Path("SHUT/X")), Path("shut/X"));
    fs::permissions(Path("shut"), fs::perms::all);
}

// -- File_Exists -----------------------------------------------------------------------------------------

TEST(File_Question, is_yes_for_a_file_in_any_case_and_with_one_final_separator) {
    Write(Path("Bass.syx"), "");
    File_Last_Error = 5;
    EXPECT_TRUE(File_Exists(Path("Bass.syx")));
    EXPECT_EQ(File_Last_Error, 0);
    EXPECT_TRUE(File_Exists(Path("BASS.SYX")));
    EXPECT_TRUE(File_Exists(Path("Bass.syx/")));
    EXPECT_FALSE(File_Exists(Path("Bass.syx//")));
}

TEST(File_Question, is_no_for_an_empty_path_and_for_the_root) {
    EXPECT_FALSE(File_Exists(""));
    EXPECT_EQ(File_Last_Error, ENOENT);
    EXPECT_FALSE(File_Exists("/"));
    EXPECT_EQ(File_Last_Error, ENOENT);
}

TEST(File_Question, is_no_for_what_is_missing_or_a_folder) {
    EXPECT_FALSE(File_Exists(Path("missing")));
    EXPECT_EQ(File_Last_Error, ENOENT);
    EXPECT_FALSE(File_Exists(Path("missing/x")));
    EXPECT_EQ(File_Last_Error, ENOENT);
    EXPECT_FALSE(File_Exists(Test_Folder()));
    EXPECT_EQ(File_Last_Error, EISDIR);
    EXPECT_FALSE(File_Exists(std::string(5000, 'x')));
    EXPECT_EQ(File_Last_Error, ENAMETOOLONG);
}

TEST(File_Question, is_no_for_a_device_and_for_a_pipe_on_which_it_does_not_wait) {
    EXPECT_FALSE(File_Exists("/dev/full"));
    EXPECT_EQ(File_Last_Error, EINVAL);
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(File_Exists(Path("pipe")));
    EXPECT_EQ(File_Last_Error, EINVAL);
}

TEST(File_Question, is_no_for_a_file_that_may_not_be_read) {
    Write(Path("x"), "");
    const Plain_User user;
    fs::permissions(Path("x"), fs::perms::none);
    EXPECT_FALSE(File_Exists(Path("x")));
    EXPECT_EQ(File_Last_Error, EACCES);
}

TEST(File_Question, leaves_no_file_open) {
    Write(Path("x"), "");
    for (int time = 0; time < 5000; ++time) ASSERT_TRUE(File_Exists(Path("x"))) << time;
    for (int time = 0; time < 5000; ++time) ASSERT_FALSE(File_Exists(Test_Folder())) << time;
    EXPECT_EQ(File_Last_Error, EISDIR);
}

// -- File_Overwrite --------------------------------------------------------------------------------------

TEST(File_Written_Over, comes_into_being) {
    EXPECT_EQ(File_Overwrite(Path("x"), std::string("a\0b", 3)), 0);
    EXPECT_EQ(Read(Path("x")), std::string("a\0b", 3));
}

TEST(File_Written_Over, keeps_its_tail) {
    Write(Path("x"), "0123456789");
    EXPECT_EQ(File_Overwrite(Path("x"), "abc"), 0);
    EXPECT_EQ(Read(Path("x")), "abc3456789");
    EXPECT_EQ(File_Overwrite(Path("x"), ""), 0);
    EXPECT_EQ(Read(Path("x")), "abc3456789");
}

TEST(File_Written_Over, is_found_in_any_case) {
    fs::create_directory(Path("Tones"));
    Write(Path("Tones/Bass.syx"), "0123");
    EXPECT_EQ(File_Overwrite(Path("tones/bass.syx"), "ab"), 0);
    EXPECT_EQ(Read(Path("Tones/Bass.syx")), "ab23");
    EXPECT_EQ(File_Overwrite(Path("tones/new.syx"), "ab"), 0);
    EXPECT_TRUE(fs::exists(Path("Tones/new.syx")));
}

TEST(File_Written_Over, tells_why_it_could_not_be_written) {
    Write(Path("file"), "");
    EXPECT_EQ(File_Overwrite("", "x"), ENOENT);
    EXPECT_EQ(File_Overwrite(Path("missing/x"), "x"), ENOENT);
    EXPECT_EQ(File_Overwrite(Path("file/x"), "x"), ENOTDIR);
    EXPECT_EQ(File_Overwrite(Test_Folder(), "x"), EISDIR);
    EXPECT_EQ(File_Overwrite("/dev/full", "x"), ENOSPC);
    EXPECT_EQ(File_Overwrite(Path(std::string(300, 'x')), "x"), ENAMETOOLONG);
}

TEST(File_Written_Over, does_not_wait_for_a_reader_of_a_pipe) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(File_Overwrite(Path("pipe"), "x"), ENXIO);
}

TEST(File_Written_Over, wants_the_right_to_write) {
    Write(Path("x"), "old");
    const Plain_User user;
    fs::permissions(Path("x"), fs::perms::owner_read);
    EXPECT_EQ(File_Overwrite(Path("x"), "new"), EACCES);
    EXPECT_EQ(Read(Path("x")), "old");
}

// -- File_Reader -----------------------------------------------------------------------------------------

TEST(Reader, gives_every_byte_and_then_nothing) {
    const std::string bytes("a\0b\xFF", 4);
    Write(Path("x"), bytes);
    File_Reader reader(Path("X"));
    ASSERT_TRUE(reader.Is_Open());
    EXPECT_EQ(All_Of(reader), bytes);
    EXPECT_EQ(reader.At(5), std::nullopt);
    EXPECT_EQ(reader.At(1U << 30U), std::nullopt);
    EXPECT_EQ(reader.At(~std::uint64_t{0}), std::nullopt);
    EXPECT_EQ(reader.At(0), std::nullopt);
    EXPECT_EQ(reader.At(4), 0xFF) << "a step back";
    EXPECT_EQ(reader.At(1), 'a');
}

TEST(Reader, goes_beyond_the_size_of_its_memory) {
    std::string bytes(200'000, ' ');
    for (std::size_t place = 0; place < bytes.size(); ++place)
        bytes[place] = static_cast<char>(place * 7 % 251);
    Write(Path("x"), bytes);
    File_Reader reader(Path("x"));
    EXPECT_EQ(All_Of(reader), bytes);
    EXPECT_EQ(reader.At(65536), static_cast<std::uint8_t>(bytes[65535]));
    EXPECT_EQ(reader.At(65537), static_cast<std::uint8_t>(bytes[65536]));
}

TEST(Reader, opens_only_plain_files) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    for (const std::string& path :
         {std::string(), Path("missing"), Test_Folder(), Path("pipe"), std::string("/dev/zero")}) {
        File_Reader reader(path);
        EXPECT_FALSE(reader.Is_Open()) << path;
        EXPECT_EQ(reader.At(1), std::nullopt) << path;
    }
}

TEST(Reader, finds_the_end_of_a_file_that_is_cut_under_it) {
    Write(Path("x"), std::string(200'000, 'x'));
    File_Reader reader(Path("x"));
    EXPECT_EQ(reader.At(1), 'x');
    fs::resize_file(Path("x"), 10);
    EXPECT_EQ(reader.At(65537), std::nullopt);
    EXPECT_EQ(reader.At(10), 'x');
    EXPECT_EQ(reader.At(11), std::nullopt);
}

TEST(Reader, reads_a_deleted_file_to_its_end) {
    Write(Path("x"), std::string(200'000, 'x'));
    File_Reader reader(Path("x"));
    fs::remove(Path("x"));
    EXPECT_EQ(All_Of(reader).size(), 200'000U);
}

TEST(Reader, takes_a_failing_disk_for_the_end) {
    File_Reader reader("/proc/self/mem");  // opens, and has nothing at its first bytes
    ASSERT_TRUE(reader.Is_Open());
    EXPECT_EQ(reader.At(1), std::nullopt);
}

TEST(Reader, leaves_no_file_open) {
    Write(Path("x"), "x");
    for (int time = 0; time < 5000; ++time) {
        File_Reader reader(Path("x"));
        ASSERT_TRUE(reader.Is_Open()) << time;
    }
}
