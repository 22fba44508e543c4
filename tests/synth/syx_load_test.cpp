#include "synth/syx_loaded.h"

// -- the usual file --------------------------------------------------------------------------------------

TEST_F(SYX_Loaded, fills_the_tone_and_the_patch_parameters) {
    Load(Tone_1 + Patch_1);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Patch_Data[7], Old_Patch);
    EXPECT_EQ(Patch_Data[8], Old_Patch);
    EXPECT_TRUE(SYX_Tone_Found);
}

TEST_F(SYX_Loaded, becomes_the_current_file) {
    Tone_Saved = Flag_16::False;
    Load(Tone_1 + Patch_1);
    std::string capitals = Path("x.syx");
    for (char& letter : capitals) letter = static_cast<char>(std::toupper(letter));
    EXPECT_EQ(Main_Window.caption, "Tonebench - " + capitals);
    EXPECT_TRUE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
    EXPECT_EQ(Tone_File_Short, "x.syx");
    EXPECT_EQ(Recent_Tone(1), Path("x.syx"));
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_EQ(Loaded, 1);
    EXPECT_EQ(Tone_Saved, Flag_16::False) << "a load does not touch it";
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
}

TEST_F(SYX_Loaded, shows_the_name_in_capitals_and_keeps_its_bytes) {
    Load(Tone_2 + Patch_2);
    EXPECT_EQ(Shown(), "SOLO");
    EXPECT_EQ(Tone_Name_Text, "SOLO");
    EXPECT_EQ(Tone().substr(0, 4), "solo");
}

TEST_F(SYX_Loaded, goes_out_twice_first_with_the_old_patch_parameters) {
    Load(Tone_1 + Patch_1);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 2U);
    const std::string patch_header = " F0 41 36 00 21 30 01 ";
    EXPECT_EQ(sent[0].substr(66 * 3),
              "24 07" + patch_header + "00 66 01 66 02 66 03 66 04 66 05 66 06 66 F7");
    EXPECT_EQ(sent[1].substr(66 * 3),
              "24 07" + patch_header + "00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7");
    EXPECT_EQ(sent[0].substr(0, 66 * 3 - 1), Hex(Bytes(Tone_1).substr(0, 66)));
    EXPECT_EQ(sent[0].substr(0, 66 * 3), sent[1].substr(0, 66 * 3));
}

TEST_F(SYX_Loaded, stays_at_home_without_automatic_sending) {
    MIDI_Autosend = 0;
    Load(Tone_1 + Patch_1);
    Expect_Tone_1();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(SYX_Loaded, takes_any_channel_in_both_headers) {
    MIDI_Autosend = 0;
    for (const char* channel : {"00", "02", "0F", "7F", "F0", "F7", "FF"}) {
        Tone_Data.fill(0);
        Patch_Data.fill(0);
        std::string tone = Tone_1;
        std::string patch = Patch_1;
        tone.replace(9, 2, channel);
        patch.replace(9, 2, channel);
        Load(tone + patch);
        Expect_Tone_1();
        EXPECT_EQ(Patches(), Patches_1) << channel;
    }
}

TEST_F(SYX_Loaded, under_the_mks_70_is_the_same) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    Load(Tone_1 + Patch_1);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Sent().at(0).substr(0, 20), "F0 41 35 00 24 20 01")
        << "and goes out as that instrument wants it";
}

TEST_F(SYX_Loaded, is_found_in_any_case_and_keeps_the_name_given) {
    std::filesystem::create_directory(Path("Tones"));
    Write(Path("Tones/Bass.syx"), Bytes(Tone_1));
    SYX_Load(Path("TONES/BASS.SYX"), "Open");
    Expect_Tone_1();
    EXPECT_EQ(Tone_File_Name, Path("TONES/BASS.SYX"));
    EXPECT_EQ(Tone_File_Short, "BASS.SYX");
}

TEST_F(SYX_Loaded, may_be_given_its_name_out_of_the_current_one) {
    Load(Tone_1 + Patch_1);
    Tone_Data.fill(0);
    SYX_Load(Tone_File_Name, "Open");
    Expect_Tone_1();
    SYX_Load(Recent_Tone(1), "Open");
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
}

TEST_F(SYX_Loaded, moves_the_panel_once_and_the_patch_window_only_when_it_is_open) {
    Panel_Apply_Tone = [] {
        EXPECT_EQ(Tone_Loading, Flag_8::True);
        ++Applied_Tones;
    };
    Panel_Apply_Patch = [] { ++Applied_Patches; };
    Load(Tone_1 + Patch_1);
    EXPECT_EQ(Applied_Tones, 1);
    EXPECT_EQ(Applied_Patches, 0);
    Patch_Window_Open = Flag_8::True;
    Load(Tone_1 + Patch_1);
    EXPECT_EQ(Applied_Tones, 2);
    EXPECT_EQ(Applied_Patches, 1);
    Load(Tone_1);
    EXPECT_EQ(Applied_Patches, 1);
    Load(Tone_1 + Patch_1, "Soundcheck");
    EXPECT_EQ(Applied_Patches, 1) << "not in a preview";
    EXPECT_EQ(Applied_Tones, 4);
}

// -- the preview -----------------------------------------------------------------------------------------

TEST_F(SYX_Loaded, for_a_preview_is_read_and_sent_and_no_more) {
    Tone_File_Name = "before";
    Load(Tone_1 + Patch_1, "Soundcheck");
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Sent().size(), 2U);
    EXPECT_TRUE(SYX_Tone_Found);
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(Tone_File_Name, "before");
    EXPECT_EQ(Recent_Tone(1), "");
    EXPECT_EQ(Loaded, 0);
    EXPECT_EQ(Tone_Loading, Flag_8::True) << "until something is opened";
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(SYX_Loaded, for_a_preview_says_nothing_when_there_is_no_tone) {
    Load(Tone_1, "Soundcheck");
    Load("00", "Soundcheck");
    EXPECT_FALSE(SYX_Tone_Found);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, takes_any_other_mode_for_a_preview) {
    Load(Tone_1, "open");
    Load(Tone_1, "");
    EXPECT_EQ(Loaded, 0);
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(SYX_Loaded, behind_a_preview_gives_the_panels_their_words_back) {
    Load(Tone_1, "Soundcheck");
    EXPECT_EQ(Tone_Loading, Flag_8::True);
    Load(Tone_1, "Open");
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}

// -- files from elsewhere --------------------------------------------------------------------------------

TEST_F(SYX_Loaded, with_a_blank_before_it_gives_the_tone_and_no_patch_parameters) {
    Load("20 " + Tone_1 + Patch_1);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Old_Patches);
    EXPECT_EQ(Sent().size(), 2U) << "the patch message still sends";
    EXPECT_EQ(Loaded, 1);
}

TEST_F(SYX_Loaded, without_a_patch_message_leaves_the_patch_parameters) {
    Load(Tone_1);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Old_Patches);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(SYX_Loaded, finds_the_patch_message_wherever_it_stands_behind_the_tone) {
    std::string zeros;
    for (int count = 0; count < 1000; ++count) zeros += "00 ";
    Load(Tone_1 + zeros + Patch_1);
    EXPECT_EQ(Patches(), Patches_1);
}

TEST_F(SYX_Loaded, takes_the_last_of_two_patch_messages) {
    Load(Tone_1 + Patch_1 + Patch_2);
    EXPECT_EQ(Patches(), Patches_2);
    EXPECT_EQ(Sent().size(), 3U);
}

TEST_F(SYX_Loaded, does_not_look_at_the_numbers_of_the_patch_parameters) {
    Load(Tone_1 + "F0 41 36 00 21 30 01 06 70 06 71 F0 72 55 73 00 74 00 75 00 76 F7");
    EXPECT_EQ(Patches(), Patches_1);
}

TEST_F(SYX_Loaded, behind_a_foreign_message_recognises_nothing) {
    Expect_Nothing_In("F0 7E 7F 06 01 F7 00 00 " + Tone_1 + Patch_1);
    EXPECT_EQ(Sent().size(), 3U) << "every F0 sends all the same";
}

TEST_F(SYX_Loaded, behind_a_foreign_message_keeps_the_tone_before_it) {
    Load(Tone_1 + "F0 7E 7F 06 01 F7 00 " + Patch_1 + Tone_2);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Old_Patches);
    EXPECT_TRUE(Boxes.empty()) << "the second tone is not recognised, so nobody asks";
}

TEST_F(SYX_Loaded, takes_an_ignored_patch_message_for_a_foreign_one) {
    Load("00 " + Tone_1 + Patch_1 + Tone_2);
    Expect_Tone_1();
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, does_not_find_a_patch_message_before_the_tone) {
    Expect_Nothing_In(Patch_1 + Tone_1);
}

TEST_F(SYX_Loaded, skips_seven_bytes_behind_a_foreign_F0) {
    // The tone's F0 lies inside the seven.
    Expect_Nothing_In("F0 00 00 " + Tone_1);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(SYX_Loaded, wants_every_byte_of_the_header_but_the_channel) {
    MIDI_Autosend = 0;
    for (const int place : {1, 2, 4, 5, 6}) {
        std::string text = Tone_1;
        text.replace(static_cast<std::size_t>(place) * 3, 2, "24");
        Expect_Nothing_In(text);
    }
}

TEST_F(SYX_Loaded, refuses_the_mks_70s_own_messages) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    std::string text = Tone_1;
    text.replace(12, 2, "24");
    Expect_Nothing_In(text);
    EXPECT_EQ(Tone_Loading, Flag_8::True);
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(Recent_Tone(1), "");
    EXPECT_EQ(Loaded, 0);
}

TEST_F(SYX_Loaded, does_not_take_an_F0_inside_the_tone_for_a_message) {
    std::string text = Tone_1;
    for (std::size_t place = 7; place < 66; ++place) text.replace(place * 3, 2, "F0");
    Load(text + Patch_1);
    EXPECT_EQ(Tone(), std::string(59, '\xF0'));
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Sent().size(), 2U);
}

TEST_F(SYX_Loaded, does_not_look_at_the_byte_behind_the_tone) {
    std::string text = Tone_1;
    text.replace(66 * 3, 2, "F0");
    Load(text + Patch_1);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
}

TEST_F(SYX_Loaded, looks_at_the_last_patch_value_once_more) {
    // F0 there is taken for a foreign message, which swallows seven bytes and ends the recognising.
    std::string patch = Patch_1;
    patch.replace(20 * 3, 2, "F0");
    Load(Tone_1 + patch + "00 00 00 00 00 00 " + Tone_2);
    Expect_Tone_1();
    EXPECT_EQ(Patches(), "70 71 72 73 74 75 F0");
    EXPECT_EQ(Sent().size(), 4U);
    EXPECT_TRUE(Boxes.empty());
}

// -- more than one tone ----------------------------------------------------------------------------------

TEST_F(SYX_Loaded, with_two_tones_asks_once_and_the_second_wins) {
    Answer_With(Save_Old, Answer::No, [] { Expect_Tone_1(); });
    Load(Tone_1 + Patch_1 + Tone_2 + Patch_2);
    Expect_Tone_2();
    EXPECT_EQ(Patches(), Patches_1) << "the second tone does not stand at the first byte";
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Yes_No);
    EXPECT_EQ(Saves, 0);
    EXPECT_EQ(Loaded, 1);
    EXPECT_EQ(Sent().size(), 4U);
}

TEST_F(SYX_Loaded, with_two_tones_saves_the_first_on_yes_and_goes_on) {
    SYX_Save_As = [] {
        Expect_Tone_1();
        ++Saves;
    };
    Answer_With(Save_Old, Answer::Yes);
    Load(Tone_1 + Patch_1 + Tone_2 + Patch_2);
    EXPECT_EQ(Saves, 1);
    Expect_Tone_2();
}

TEST_F(SYX_Loaded, with_three_tones_asks_twice) {
    Answer_With(Save_Old, Answer::Yes);
    Answer_With(Save_Old, Answer::No);
    Load(Tone_1 + Tone_2 + Tone_1);
    Expect_Tone_1();
    EXPECT_EQ(Saves, 1);
}

TEST_F(SYX_Loaded, for_a_preview_with_two_tones_takes_the_second_on_yes) {
    Answer_With(Load_It, Answer::Yes);
    Load(Tone_1 + Patch_1 + Tone_2 + Patch_2, "Soundcheck");
    Expect_Tone_2();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Yes_No);
    EXPECT_EQ(Sent().size(), 4U);
}

TEST_F(SYX_Loaded, for_a_preview_with_two_tones_stops_reading_on_no) {
    Answer_With(Load_It, Answer::No);
    Load(Tone_1 + Patch_1 + Tone_2 + Patch_2 + Tone_1, "Soundcheck");
    Expect_Tone_1();
    EXPECT_EQ(Patches(), Patches_1);
    EXPECT_EQ(Sent().size(), 2U);
    EXPECT_TRUE(SYX_Tone_Found);
    EXPECT_EQ(Saves, 0);
}

TEST_F(SYX_Loaded, does_not_remember_the_tone_of_the_last_file) {
    Load(Tone_1);
    Load(Tone_2);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(SYX_Loaded, goes_on_behind_a_load_that_ran_inside_its_question) {
    Write(Path("y.syx"), Bytes("F0 00 00 00 00 00 00"));
    Answer_With(Save_Old, Answer::Yes);
    SYX_Save_As = [] { SYX_Load(Path("y.syx"), "Soundcheck"); };
    Load(Tone_1 + Patch_1 + Tone_2);
    Expect_Tone_2();
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
    EXPECT_TRUE(SYX_Tone_Found);
}
