#include "synth/profile.h"

#include "desk/menus.h"
#include "fakes/stage.h"
#include "midi/out.h"

namespace {

void Choose(const std::string& synthesizer, std::uint8_t channel = 1) {
    Synthesizer = synthesizer;
    MIDI_Channel = channel;
    Sysex_Headers_Update();
}

}  // namespace

using Profile = Stage;

TEST_F(Profile, of_the_jx_8p_says_21) {
    Choose("JX-8P");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 21 20 01 ");
    EXPECT_EQ(Sysex_Header_IPR, "F0 41 36 0 21 20 01 ");
    EXPECT_EQ(Sysex_Header_APR_Patch, "F0 41 35 0 21 30 01 ");
    EXPECT_EQ(Sysex_Header_IPR_Patch, "F0 41 36 0 21 30 01 ");
    EXPECT_EQ(Sysex_Header_APR_Tone_B, "");
    EXPECT_EQ(Sysex_Header_IPR_Tone_B, "");
}

TEST_F(Profile, of_the_mks_70_says_24_and_has_a_second_tone) {
    Choose("MKS-70");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 24 20 01 ");
    EXPECT_EQ(Sysex_Header_IPR, "F0 41 36 0 24 20 01 ");
    EXPECT_EQ(Sysex_Header_APR_Tone_B, "F0 41 35 0 24 20 02 ");
    EXPECT_EQ(Sysex_Header_IPR_Tone_B, "F0 41 36 0 24 20 02 ");
    EXPECT_EQ(Sysex_Header_APR_Patch, "F0 41 35 0 24 30 01 ");
    EXPECT_EQ(Sysex_Header_IPR_Patch, "F0 41 36 0 24 30 01 ");
}

TEST_F(Profile, of_the_alpha_juno_says_23_and_has_no_patch_headers) {
    Choose("JX-8P");
    Choose("Alpha Juno");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 23 20 01 ");
    EXPECT_EQ(Sysex_Header_IPR, "F0 41 36 0 23 20 01 ");
    EXPECT_EQ(Sysex_Header_APR_Patch, "");
    EXPECT_EQ(Sysex_Header_IPR_Patch, "");
}

TEST_F(Profile, writes_channel_11_as_one_digit) {
    Choose("JX-8P", 11);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 A 21 20 01 ");
}

TEST_F(Profile, keeps_the_second_tones_headers_behind_the_mks_70) {
    Choose("MKS-70");
    Choose("JX-8P", 5);
    EXPECT_EQ(Sysex_Header_APR_Tone_B, "F0 41 35 0 24 20 02 ");
    EXPECT_EQ(Sysex_Header_IPR_Tone_B, "F0 41 36 0 24 20 02 ");
}

TEST_F(Profile, that_is_unknown_leaves_headers_and_panels_as_they_were) {
    Choose("DX7");
    EXPECT_EQ(Sysex_Header_APR, "");
    EXPECT_EQ(Sysex_Header_IPR, "");
    EXPECT_EQ(Sysex_Header_APR_Patch, "");
    EXPECT_FALSE(Editor.visible);
    EXPECT_FALSE(Editor_Juno.visible);
}

TEST_F(Profile, is_compared_without_regard_to_case) {
    Choose("alpha JUNO");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 23 20 01 ");
    Choose("mks-70");
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 24 20 01 ");
}

TEST_F(Profile, brings_up_the_panel_of_the_jx_8p_and_of_the_mks_70) {
    Menu(Menu_Tone_Patch).enabled = false;
    Menu(Menu_File_SYX_Open).enabled = false;
    for (const char* name : {"JX-8P", "MKS-70"}) {
        Choose("Alpha Juno");
        const int raised = Editor.times_raised;
        Choose(name);
        EXPECT_TRUE(Editor.visible);
        EXPECT_GT(Editor.times_raised, raised);
        EXPECT_FALSE(Editor_Juno.visible);
        EXPECT_TRUE(Menu(Menu_Tone_Patch).enabled);
        EXPECT_TRUE(Menu(Menu_File_SYX_Open).enabled);
        EXPECT_TRUE(At("VCF_Res").visible);
    }
}

TEST_F(Profile, brings_up_the_panel_of_the_alpha_juno) {
    Choose("JX-8P");
    Menu(Menu_File_SYX_Open).enabled = false;
    Choose("Alpha Juno");
    EXPECT_FALSE(Editor.visible);
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Menu(Menu_Tone_Patch).enabled);
    EXPECT_FALSE(Menu(Menu_File_SYX_Open).enabled) << "not changed by this profile";
    EXPECT_FALSE(At("VCF_Res").visible);
    EXPECT_FALSE(At("Tone_Name").visible);
}

TEST_F(Profile, change_leaves_an_open_patch_window_as_it_is) {
    Choose("JX-8P");
    Patch_Window_Open = Flag_8::True;
    Patch.visible = true;
    Choose("Alpha Juno");
    EXPECT_TRUE(Patch.visible);
    EXPECT_TRUE(Patch.enabled);
}

TEST_F(Profile, change_gives_the_controls_back_in_their_columns_and_rows) {
    Choose("JX-8P");
    At("VCF_Res").top = 60;
    Choose("Alpha Juno");
    At("VCF_Res").left = 0;
    Choose("JX-8P");
    EXPECT_EQ(At("VCF_Res").left, 438);
    EXPECT_EQ(At("VCF_Res").top, 60);
}

TEST_F(Profile, names_the_channel_in_the_second_tones_headers) {
    Choose("MKS-70", 12);
    EXPECT_EQ(Sysex_Header_APR_Tone_B, "F0 41 35 B 24 20 02 ");
    EXPECT_EQ(Sysex_Header_IPR_Tone_B, "F0 41 36 B 24 20 02 ");
}
