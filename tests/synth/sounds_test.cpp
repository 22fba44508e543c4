// The tones and sequences that come with the program, as the build has written them.
#include <filesystem>
#include <set>

#include "fakes/stage.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "synth/patch.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tuning.h"

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> Files_In(const char* folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(BUILD_DIR) / folder)) files.push_back(entry);
    return files;
}

}  // namespace

using Sounds = Started_Stage;

TEST_F(Sounds, for_the_jx_8p_are_at_least_32_tones_that_load_without_a_word) {
    const auto files = Files_In("Tones/JX-8P");
    EXPECT_GE(files.size(), 32U);
    std::set<std::string> names;
    for (const fs::path& file : files) {
        Patch_Data.fill(99);
        SYX_Load(file.string(), SYX_Mode_Open);
        EXPECT_TRUE(SYX_Tone_Found) << file;
        EXPECT_EQ(fs::file_size(file), SYX_Size) << file;
        EXPECT_LE(Tone_Name_Text.size(), 10U);
        EXPECT_TRUE(names.insert(Tone_Name_Text).second) << Tone_Name_Text << " comes twice";
        EXPECT_LE(Patch_Data[6], 127) << file;
        for (std::size_t parameter = 10; parameter < Tone_Size; ++parameter)
            EXPECT_LE(Tone_Data[parameter], 127) << file << ' ' << parameter;
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Sounds, are_heard_each_with_a_level_and_an_open_mixer) {
    for (const fs::path& file : Files_In("Tones/JX-8P")) {
        SYX_Load(file.string(), SYX_Mode_Open);
        EXPECT_GT(Tone_Data[41], 60) << file << ": VCA level";
        EXPECT_GT(Tone_Data[28] + Tone_Data[29], 60) << file << ": mixer";
        EXPECT_GT(Tone_Data[34] + Tone_Data[37], 35) << file << ": filter";
    }
}

TEST_F(Sounds, for_the_sequencer_are_16_that_load_and_play_something) {
    const auto files = Files_In("Sequences");
    EXPECT_EQ(files.size(), 16U);
    for (const fs::path& file : files) {
        Seq_Load(file.string(), Seq_Mode_Open);
        EXPECT_EQ(fs::file_size(file), SEQ_Size) << file;
        EXPECT_EQ(Seq_File_Path, file.string());
        int notes = 0;
        for (const std::int16_t cell : Seq_Notes) {
            EXPECT_TRUE(cell == 0 || cell == Seq_Soft || cell == Seq_Loud) << file;
            notes += cell != 0;
        }
        EXPECT_GT(notes, 3) << file;
        EXPECT_LE(Seq_Range_Index, 4) << file;
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Sounds, say_on_the_panel_what_their_script_says) {
    SYX_Load(std::string(BUILD_DIR) + "/Tones/JX-8P/Sync Lead.syx", SYX_Mode_Open);
    EXPECT_EQ(Tone_Name_Text, "SYNC LEAD");
    EXPECT_EQ(Tone_Data[18], 32) << "SYN1";
    EXPECT_EQ(Panel_Tune_From_Byte(Tone_Data[19]), 12);
    EXPECT_EQ(Tone_Data[58], 64) << "VCA by ENV-2";
    EXPECT_EQ(Patch_Data[0], 96) << "bends by seven";
    EXPECT_EQ(Patch_Data[3], 2) << "one voice";
}
