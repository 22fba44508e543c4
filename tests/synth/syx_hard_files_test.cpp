// Files that are cut, unreadable, changed under the reader or very large.
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstring>

#include "synth/syx_loaded.h"

// -- cut files -------------------------------------------------------------------------------------------

TEST_F(SYX_Loaded, cut_at_any_length_keeps_what_it_does_not_hold) {
    const std::string whole = Bytes(Tone_1 + Patch_1);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        Tone_Data.fill(Old_Tone);
        Patch_Data.fill(Old_Patch);
        Boxes.clear();
        // A header of less than seven bytes is none.
        if (length < 7) Expect_Box(Wrong_Data);
        Load(Hex(whole.substr(0, length)));
        std::string tone(59, static_cast<char>(Old_Tone));
        for (std::size_t place = 7; place < 66 && place < length; ++place) tone[place - 7] = whole[place];
        EXPECT_EQ(Hex(Tone()), Hex(tone)) << length;
        std::string patches(7, static_cast<char>(Old_Patch));
        for (std::size_t number = 0; number < 7; ++number) {
            if (75 + 2 * number < length) patches[number] = whole[75 + 2 * number];
        }
        EXPECT_EQ(Patches(), Hex(patches)) << length;
        EXPECT_EQ(Boxes.size(), length < 7 ? 1U : 0U) << length;
        const std::size_t sends = length == 0 ? 0 : length < 68 ? 1 : 2;
        EXPECT_EQ(Sent().size(), sends) << length;
    }
}

TEST_F(SYX_Loaded, empty_or_without_any_F0_holds_no_tone) {
    Expect_Nothing_In("");
    Expect_Nothing_In("00 41 35 00 21 20 01 F7");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(SYX_Loaded, of_a_lone_F0_sends_once) {
    Expect_Nothing_In("00 F0");
    EXPECT_EQ(Sent().size(), 1U);
}

// -- what cannot be read ---------------------------------------------------------------------------------

TEST_F(SYX_Loaded, leaves_everything_without_a_word_when_there_is_nothing_to_read) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    for (const std::string& path : {std::string(), Path("missing"), Path("missing/x"), Test_Folder(),
                                    Path("pipe"), std::string("/dev/full"), std::string("/dev/zero")}) {
        SYX_Tone_Found = true;
        SYX_Load(path, "Open");
        EXPECT_FALSE(SYX_Tone_Found) << path;
        EXPECT_EQ(Tone_Loading, Flag_8::False) << path;
    }
    Expect_Old_Tone();
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_EQ(Recent_Tone(1), "");
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, leaves_everything_without_a_word_when_it_may_not_be_read) {
    Write(Path("x.syx"), Bytes(Tone_1));
    const Plain_User user;
    std::filesystem::permissions(Path("x.syx"), std::filesystem::perms::none);
    SYX_Load(Path("x.syx"), "Open");
    Expect_Old_Tone();
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, from_a_failing_disk_holds_no_tone) {
    Expect_Box(Wrong_Data);
    SYX_Load("/proc/self/mem", "Open");
    Expect_Old_Tone();
}

TEST_F(SYX_Loaded, deleted_while_it_is_read_is_read_to_its_end) {
    Answer_With(Save_Old, Answer::No, [] { std::filesystem::remove(Path("x.syx")); });
    Load(Tone_1 + Patch_1 + Tone_2);
    Expect_Tone_2();
    EXPECT_EQ(Loaded, 1);
}

TEST_F(SYX_Loaded, cut_while_it_is_read_ends_there) {
    // The second tone lies beyond what the reader holds in memory.
    std::string file = Bytes(Tone_1);
    file.resize(65536 - 7, '\0');
    file += Bytes(Tone_2 + Patch_2 + Tone_1);
    Write(Path("x.syx"), file);
    Answer_With(Save_Old, Answer::No, [] { std::filesystem::resize_file(Path("x.syx"), 100); });
    SYX_Load(Path("x.syx"), "Open");
    Expect_Tone_1();
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Loaded, 1);
    std::filesystem::resize_file(Path("x.syx"), 0);
    Expect_Box(Wrong_Data);
    SYX_Load(Path("x.syx"), "Open");
}

TEST_F(SYX_Loaded, replaced_by_a_save_while_it_is_read_is_read_on) {
    Answer_With(Save_Old, Answer::Yes);
    SYX_Save_As = [] {
        Tone_File_Name = Path("x.syx");
        SYX_Save();
    };
    Load(Tone_1 + Patch_1 + Tone_2);
    Expect_Tone_2();
}

// -- hard names ------------------------------------------------------------------------------------------

namespace {

// A path of more than 300 characters, none of whose names is too long.
std::string Long_Path() {
    std::string path = Path(std::string(120, 'a'));
    std::filesystem::create_directory(path);
    path += "/" + std::string(120, 'b');
    std::filesystem::create_directory(path);
    return path + "/" + std::string(90, 'c') + ".syx";
}

}  // namespace

TEST_F(SYX_Loaded, and_saved_under_names_with_blanks_accents_signs_and_300_characters) {
    std::filesystem::create_directory(Path("Meine T\u00f6ne"));
    for (const std::string& path :
         {Path("Meine T\u00f6ne/\u00c9t\u00e9 no 1.syx"), Path("100% R&B [*].syx"), Path("\u5f26.syx"),
          Path("two\nlines.syx"), Path("\xFF\xFE.syx"), Path("bare"), Path(".syx"), Long_Path()}) {
        Tone_Data.fill(0);
        Write(path, Bytes(Tone_1 + Patch_1));
        SYX_Load(path, "Open");
        Expect_Tone_1();
        EXPECT_EQ(Tone_File_Name, path);
        EXPECT_EQ(Tone_File_Short, std::filesystem::path(path).filename().string());
        EXPECT_EQ(Recent_Tone(1), path);
        EXPECT_EQ(Menu(Menu_File_SYX_1).caption, "&1 " + path);
        Tone_Data[58] = 1;
        SYX_Save();
        EXPECT_EQ(Read_Hex(path).substr(65 * 3, 5), "01 F7");
        Tone_Data.fill(0);
        SYX_Load(Recent_Tone(1), "Open");
        EXPECT_EQ(Tone_Data[57], 0x3A) << path;
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, under_a_name_of_300_characters_is_no_file_and_cannot_be_saved) {
    Tone_File_Name = Path(std::string(300, 'n'));
    SYX_Load(Tone_File_Name, "Open");
    Expect_Old_Tone();
    EXPECT_TRUE(Boxes.empty());
    Tone_Saved = Flag_16::False;
    Expect_Box("Error 36: File name too long");
    SYX_Save();
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Recent_Tone(1), "");
}

// -- large files -----------------------------------------------------------------------------------------

namespace {

constexpr std::size_t Large = 100'000'000;

long Memory_Peak_KB() {
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

TEST_F(SYX_Loaded, of_100_megabytes_of_zeros_takes_no_more_memory) {
    Write(Path("x.syx"), Bytes(Tone_1 + Patch_1));
    std::filesystem::resize_file(Path("x.syx"), Large);
    const long before = Memory_Peak_KB();
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_LT(Memory_Peak_KB() - before, 8000);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Sent().size(), 2U);
}

TEST_F(SYX_Loaded, of_100_megabytes_of_F0_takes_no_more_memory) {
    MIDI_Autosend = 0;
    {
        std::ofstream file(Path("x.syx"), std::ios::binary);
        const std::string block(1'000'000, '\xF0');
        for (std::size_t written = 0; written < Large; written += block.size()) file << block;
    }
    const long before = Memory_Peak_KB();
    Expect_Box(Wrong_Data);
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_LT(Memory_Peak_KB() - before, 8000);
    Expect_Old_Tone();
}

// -- Alpha Juno ------------------------------------------------------------------------------------------

class Juno_SYX_Loaded : public SYX_Loaded {
  protected:
    Juno_SYX_Loaded() {
        Synthesizer = "Alpha Juno";
        Write(Path("x.syx"), Bytes(Tone_1 + Patch_1));
    }
};

TEST_F(Juno_SYX_Loaded, goes_to_its_own_room_and_then_becomes_the_current_file) {
    Juno_SYX_Load = [](const std::string& path) {
        EXPECT_EQ(path, Path("x.syx"));
        EXPECT_EQ(Tone_Loading, Flag_8::True);
        return true;
    };
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_EQ(Loaded, 1);
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_TRUE(SYX_Tone_Found);
    Expect_Old_Tone();
}

TEST_F(Juno_SYX_Loaded, that_was_refused_there_leaves_without_another_word) {
    Juno_SYX_Load = [](const std::string&) { return false; };
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_EQ(Loaded, 0);
    EXPECT_EQ(Tone_Loading, Flag_8::True);
    EXPECT_FALSE(SYX_Tone_Found);
}

TEST_F(Juno_SYX_Loaded, that_is_missing_does_not_go_there) {
    Juno_SYX_Load = [](const std::string&) {
        ++Loaded;
        return true;
    };
    SYX_Load(Path("missing"), "Open");
    EXPECT_EQ(Loaded, 0);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}
