#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/windows.h"
#include "fakes/plain_user.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

// What the records of this test look like on the disk.
const std::string File_Of_89 =
    "F0 41 35 00 21 20 01 "
    "01 02 03 04 05 06 07 08 09 0A "
    "0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 "
    "25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 38 39 3A 3B "
    "F7 "
    "F0 41 36 00 21 30 01 00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7";

}  // namespace

class SYX_Saved : public Started_Stage {
  protected:
    SYX_Saved() {
        for (std::size_t index = 0; index < Tone_Size; ++index)
            Tone_Data[index] = static_cast<std::uint8_t>(index + 1);
        for (std::size_t index = 0; index < Patch_Size; ++index)
            Patch_Data[index] = static_cast<std::uint8_t>(0x70 + index);
        Tone_Saved = Flag_16::False;
        Menu(Menu_Edit_Undo).enabled = true;
        Tone_File_Name = Path("x.syx");
        Sent();
    }

    static void Expect_Failure(const std::string& path, int error) {
        Tone_File_Name = path;
        Expect_Box("Error " + std::to_string(error) + ": " + std::strerror(error));
        SYX_Save();
        ASSERT_FALSE(Boxes.empty());
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
        EXPECT_EQ(Boxes.back().title, "Tonebench");
        EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
        EXPECT_EQ(Tone_Saved, Flag_16::False);
        EXPECT_TRUE(Menu(Menu_Edit_Undo).enabled);
        EXPECT_EQ(Recent_Tone(1), "");
    }
};

TEST_F(SYX_Saved, is_these_89_bytes) {
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), File_Of_89);
}

TEST_F(SYX_Saved, stands_in_the_image_with_its_count) {
    EXPECT_EQ(SYX_Image_Build(), 89U);
    EXPECT_EQ(Hex(std::string(SYX_Image.begin(), SYX_Image.end())), File_Of_89);
}

TEST_F(SYX_Saved, is_89_bytes_whatever_the_values) {
    for (int value = 0; value <= 255; ++value) {
        Tone_Data.fill(static_cast<std::uint8_t>(value));
        Patch_Data.fill(static_cast<std::uint8_t>(value));
        ASSERT_EQ(SYX_Image_Build(), 89U);
        ASSERT_EQ(SYX_Image[7], value);
        ASSERT_EQ(SYX_Image[65], value);
        ASSERT_EQ(SYX_Image[66], 0xF7);
        ASSERT_EQ(SYX_Image[87], value);
        ASSERT_EQ(SYX_Image[88], 0xF7);
    }
}

TEST_F(SYX_Saved, carries_the_present_channel) {
    MIDI_Channel = 11;  // the headers still say 1
    SYX_Image_Build();
    EXPECT_EQ(SYX_Image[3], 10);
    EXPECT_EQ(SYX_Image[70], 10);
    MIDI_Channel = 16;
    SYX_Image_Build();
    EXPECT_EQ(SYX_Image[3], 15);
    EXPECT_EQ(SYX_Image[70], 15);
}

TEST_F(SYX_Saved, is_these_89_bytes_on_channel_10_and_16) {
    const std::string bytes =
        "01 02 03 04 05 06 07 08 09 0A "
        "0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 "
        "25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 38 39 3A 3B ";
    const std::string pairs = "00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7";
    MIDI_Channel = 10;
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")),
              "F0 41 35 09 21 20 01 " + bytes + "F7 F0 41 36 09 21 30 01 " + pairs);
    MIDI_Channel = 16;
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")),
              "F0 41 35 0F 21 20 01 " + bytes + "F7 F0 41 36 0F 21 30 01 " + pairs);
}

TEST_F(SYX_Saved, under_the_mks_70_is_a_jx_8p_file_and_the_headers_come_back) {
    Synthesizer = "MKS-70";
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), File_Of_89);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 24 20 01 ");
    EXPECT_EQ(Sysex_Header_IPR_Patch, "F0 41 36 0 24 30 01 ");
}

TEST_F(SYX_Saved, brings_up_the_panel_of_the_instrument) {
    Window_Hide(Editor);
    SYX_Save();
    EXPECT_TRUE(Editor.visible);
}

TEST_F(SYX_Saved, makes_the_tone_saved_and_takes_undo_away) {
    SYX_Save();
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
    EXPECT_EQ(Recent_Tone(1), Path("x.syx"));
    EXPECT_EQ(Sent(), Lines{}) << "and sends nothing";
}

TEST_F(SYX_Saved, changes_neither_caption_nor_the_save_entry) {
    SYX_Save();
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
}

TEST_F(SYX_Saved, over_a_longer_file_keeps_the_longer_files_tail) {
    Write(Path("x.syx"), std::string(89, 'x') + "the tail");
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), File_Of_89 + " " + Hex("the tail"));
}

TEST_F(SYX_Saved, over_a_bank_replaces_its_first_tone_and_the_next_is_asked_about) {
    MIDI_Autosend = 0;
    Write(Path("x.syx"), Bytes(Tone_2 + Patch_2 + Tone_1));
    SYX_Save();
    const auto tone = Tone_Data;
    Answer_With("File contains another TONE. Load it?", Answer::No);
    SYX_Load(Path("x.syx"), "Soundcheck");
    EXPECT_EQ(Tone_Data, tone);
}

TEST_F(SYX_Saved, over_a_shorter_file_is_whole) {
    Write(Path("x.syx"), "short");
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), File_Of_89);
}

TEST_F(SYX_Saved, finds_the_file_in_another_case) {
    std::filesystem::create_directory(Path("Tones"));
    Write(Path("Tones/Bass.SYX"), "");
    Tone_File_Name = Path("tones/bass.syx");
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("Tones/Bass.SYX")), File_Of_89);
    EXPECT_FALSE(std::filesystem::exists(Path("tones")));
    EXPECT_EQ(Recent_Tone(1), Path("tones/bass.syx"));
}

TEST_F(SYX_Saved, twice_leaves_the_recent_files_as_they_are) {
    SYX_Save();
    Tone_File_Name = Path("X.SYX");
    SYX_Save();
    EXPECT_EQ(Recent_Tone(1), Path("x.syx"));
    EXPECT_EQ(Recent_Tone(2), "");
}

TEST_F(SYX_Saved, and_loaded_again_restores_59_and_7_bytes) {
    MIDI_Autosend = 0;
    SYX_Save();
    const auto tone = Tone_Data;
    auto patch = Patch_Data;
    Tone_Data.fill(0);
    Patch_Data.fill(0);
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_EQ(Tone_Data, tone);
    patch[7] = patch[8] = 0;  // not in the file
    EXPECT_EQ(Patch_Data, patch);
}

TEST_F(SYX_Saved, on_channel_3_loads_on_9_and_is_saved_back_with_9) {
    MIDI_Autosend = 0;
    MIDI_Channel = 3;
    SYX_Save();
    const auto tone = Tone_Data;
    Tone_Data.fill(0);
    MIDI_Channel = 9;
    SYX_Load(Path("x.syx"), "Open");
    EXPECT_EQ(Tone_Data, tone);
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")).substr(0, 20), "F0 41 35 08 21 20 01");
}

// -- failures --------------------------------------------------------------------------------------------

TEST_F(SYX_Saved, says_why_it_failed_in_a_folder_that_is_gone) {
    Expect_Failure(Path("gone/x.syx"), ENOENT);
    EXPECT_EQ(Boxes.back().text, "Error 2: No such file or directory");
}

TEST_F(SYX_Saved, says_why_it_failed_on_a_full_disk) {
    Expect_Failure("/dev/full", ENOSPC);
    EXPECT_EQ(Boxes.back().text, "Error 28: No space left on device");
}

TEST_F(SYX_Saved, says_why_it_failed_when_the_disk_is_full_halfway) {
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit narrow = {50, limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &narrow), 0);
    Expect_Failure(Path("x.syx"), EFBIG);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), File_Of_89) << "the next try is whole";
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(SYX_Saved, says_why_it_failed_on_a_folder_and_on_a_pipe) {
    Expect_Failure(Test_Folder(), EISDIR);
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    Expect_Failure(Path("pipe"), ENXIO);
    Expect_Failure("", ENOENT);
}

TEST_F(SYX_Saved, says_why_it_failed_without_the_right_to_write) {
    Write(Path("x.syx"), "old");
    const Plain_User user;
    std::filesystem::permissions(Path("x.syx"), std::filesystem::perms::owner_read);
    Expect_Failure(Path("x.syx"), EACCES);
    EXPECT_EQ(Boxes.back().text, "Error 13: Permission denied");
    EXPECT_EQ(Read_Hex(Path("x.syx")), Hex("old"));
}

TEST_F(SYX_Saved, leaves_a_saved_tone_saved_when_it_fails) {
    Tone_Saved = Flag_16::True;
    Tone_File_Name = "/dev/full";
    Expect_Box("Error 28: No space left on device");
    SYX_Save();
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

// -- Alpha Juno ------------------------------------------------------------------------------------------

TEST_F(SYX_Saved, under_the_alpha_juno_is_what_its_room_gives) {
    Synthesizer = "Alpha Juno";
    Juno_SYX_Text = [] { return Sysex_Header_APR + "1 2 F7"; };
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("x.syx")), "F0 41 35 00 23 20 01 01 02 F7");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}
