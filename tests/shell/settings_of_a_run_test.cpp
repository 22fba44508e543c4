// The settings between a start and an end of the program.
#include "fakes/plain_user.h"
#include "shell/settings_whole.h"

class Settings_Of_A_Run : public Stage {};

TEST_F(Settings_Of_A_Run, in_a_read_only_folder_are_the_old_ones_and_nobody_hears_of_it) {
    const std::string old = std::string(Devices) + "Autoplay=0\n; mine\n";
    Write_Settings(old);
    const Plain_User user;
    fs::permissions(Test_Folder(), fs::perms::owner_read | fs::perms::owner_exec);
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(MIDI_Autoplay, 0);
    MIDI_Autoplay = 1;
    EXPECT_TRUE(Main_Close());
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(Read_Settings(), old);
    const fs::directory_iterator folder(Test_Folder());
    EXPECT_EQ(std::distance(begin(folder), end(folder)), 1);
    fs::permissions(Test_Folder(), fs::perms::owner_all);
}

TEST_F(Settings_Of_A_Run, are_read_at_the_start_and_written_at_the_end) {
    Write_Settings(std::string(Devices) + "Channel=-5\nAutosend=0\n[Main Window]\nLeft=20\n");
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(MIDI_Channel, 5);
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_EQ(Main_Window.left, 20);
    Main_Window.left = 21;
    EXPECT_EQ(Setting_Get("Main Window", "Left", ""), "20") << "not before the end";
    ASSERT_TRUE(Main_Close());
    EXPECT_EQ(Setting_Get("Main Window", "Left", ""), "21");
    EXPECT_EQ(Setting_Get("MIDI", "Channel", ""), "5");
}

TEST_F(Settings_Of_A_Run, take_1_for_a_channel_over_16) {
    Write_Settings(std::string(Devices) + "Channel=17\n");
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(MIDI_Channel, 1);
}

TEST_F(Settings_Of_A_Run, start_the_instrument_that_they_name) {
    Write_Settings(std::string(Devices) + "Synthesizer=Alpha Juno\n");
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(Synthesizer, "Alpha Juno");
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Menu(Menu_Tone_Patch).enabled);
}

TEST_F(Settings_Of_A_Run, keep_a_place_of_0_where_the_stored_one_is_beyond_32767_twips) {
    Write_Settings(std::string(Devices) + "[Windows]\nSave Positions=1\nPatch Left=3000\nPatch Top=10\n");
    Patch_Left = 77;
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(Patch_Left, 0);
    EXPECT_EQ(Patch_Top, 150);
}

TEST_F(Settings_Of_A_Run, that_the_screen_refuses_stay_as_they_are) {
    Write_Settings(Devices);
    Display.density = 144;
    Answer_With(
        "Unsupported system font size: 144 ppi (pixel per inch).\r"
        "Please set the font size to 'small fonts' (96 ppi) or 'large fonts (120 ppi).\r\r"
        "For additional informations, see the README.TXT file.",
        Answer::Ok);
    EXPECT_FALSE(Main_Load());
    EXPECT_EQ(Read_Settings(), Devices);
}

TEST_F(Settings_Of_A_Run, that_was_refused_an_end_are_not_written) {
    Write_Settings(Devices);
    ASSERT_TRUE(Main_Load());
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Cancel);
    EXPECT_FALSE(Main_Close());
    EXPECT_EQ(Read_Settings(), Devices);
}
