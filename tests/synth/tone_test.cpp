#include "synth/tone.h"

#include "desk/menus.h"
#include "fakes/stage.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/views.h"

using Tone = Stage;

TEST_F(Tone, new_has_blanks_for_a_name_and_centred_tunes) {
    Tone_Data.fill(99);
    Patch_Data.fill(99);
    Tone_Init();
    for (std::size_t index = 0; index < Tone_Size; ++index) {
        int expected = index < 10 ? 32 : 0;
        if (index == 13 || index == 19) expected = 56;
        if (index == 20) expected = 64;
        EXPECT_EQ(Tone_Data[index], expected) << index;
    }
    for (std::size_t index = 0; index < Patch_Size; ++index) {
        EXPECT_EQ(Patch_Data[index], index == 6 ? 64 : 0) << index;
    }
}

TEST_F(Tone, new_belongs_to_no_file_and_has_nothing_to_save) {
    Tone_Saved = Flag_16::False;
    Tone_File_Name = "/x/BRASS.SYX";
    Tone_File_Short = "BRASS.SYX";
    Main_Window.caption = "Tonebench - /X/BRASS.SYX";
    Menu(Menu_File_SYX_Save).enabled = true;
    Tone_Init();
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(Tone_File_Short, "");
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
}

TEST_F(Tone, new_moves_the_panel_and_sends_nothing) {
    Window_Load(Editor);
    Tone_Init();
    EXPECT_EQ(Tone_Name_Text, "");
    EXPECT_EQ(At("VCF_Res").top, 112);
    EXPECT_EQ(At("DCO1_Tune_Knopf").left, 12);
    EXPECT_EQ(At("DCO1_Tune_Knopf").top, 5);
    EXPECT_EQ(At("DCO2_FTune_Knopf").top, 5);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Tone, new_of_an_alpha_juno_leaves_the_jx_8ps_record_alone) {
    Synthesizer = "Alpha Juno";
    Tone_Data.fill(99);
    Patch_Data.fill(98);
    Tone_Init();
    EXPECT_EQ(Tone_Data[13], 99);
    EXPECT_EQ(Patch_Data[6], 98);
}

TEST_F(Tone, new_moves_an_open_patch_window_and_no_closed_one) {
    static int applied = 0;
    Panel_Apply_Patch = [] { ++applied; };
    Tone_Init();
    EXPECT_EQ(applied, 0);
    Patch_Window_Open = Flag_8::True;
    Tone_Init();
    EXPECT_EQ(applied, 1);
}

TEST_F(Tone, is_empty_before_the_start) {
    EXPECT_EQ(Tone_Name_Text, "NEW");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}

TEST_F(Tone, checks_every_parameter_number) {
    EXPECT_NO_THROW(Tone_Byte(58));
    EXPECT_THROW(Tone_Byte(59), Fatal_Error);
}

TEST_F(Tone, name_is_trimmed_and_in_capitals) {
    const std::string bytes = "  bass 1  ";
    std::copy(bytes.begin(), bytes.end(), Tone_Data.begin());
    EXPECT_EQ(Tone_Name_From_Data(), "BASS 1");
    EXPECT_EQ(Tone_Data[2], 'b') << "the bytes keep their small letters";
}

TEST_F(Tone, name_of_blanks_is_empty) {
    std::fill_n(Tone_Data.begin(), 10, 32);
    EXPECT_EQ(Tone_Name_From_Data(), "");
}

TEST_F(Tone, name_capitals_reach_the_accented_letters) {
    EXPECT_EQ(ANSI_Upper("\xE4\xF6\xFC\xE9\xFE"), "\xC4\xD6\xDC\xC9\xDE");
    EXPECT_EQ(ANSI_Upper("\xF7\xDF\xD7\x80"), "\xF7\xDF\xD7\x80");
    EXPECT_EQ(ANSI_Upper("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
    EXPECT_EQ(ANSI_Upper("az19-_"), "AZ19-_");
}
