// The settings section by section: remembered places, MIDI, folders and recent files.
#include "shell/settings_whole.h"

// -- the remembered places -------------------------------------------------------------------------------

namespace {

struct Place {
    const char* key;
    std::int16_t& twips;
};
const Place Places[] = {
    {"File Dialog Left", FD_Left}, {"File Dialog Top", FD_Top},         {"Patch Left", Patch_Left},
    {"Patch Top", Patch_Top},      {"Sequencer Left", Seq_Window_Left}, {"Sequencer Top", Seq_Window_Top},
};

}  // namespace

TEST_F(Settings_Whole, hold_places_in_pixels_and_the_program_in_twips) {
    for (const Place& place : Places) {
        Screen_PPI = 96;
        Read_Position(place.key, "10.66667");
        EXPECT_EQ(place.twips, 160) << place.key;
        EXPECT_EQ(Written("Windows", place.key), "10.66667");
        Screen_PPI = 120;
        Read_Position(place.key, "10.66667");
        EXPECT_EQ(place.twips, 128) << place.key;
        EXPECT_EQ(Written("Windows", place.key), "10.66667");
    }
}

TEST_F(Settings_Whole, round_places_to_the_even_neighbour) {
    // 15 twips a pixel: 0.1 is 1.5 twips, 0.3 is 4.5.
    Read_Position("Patch Left", "0.1");
    EXPECT_EQ(Patch_Left, 2);
    Read_Position("Patch Left", "0.3");
    EXPECT_EQ(Patch_Left, 4);
    Read_Position("Patch Left", "-3");
    EXPECT_EQ(Patch_Left, -45) << "only the main window is brought back";
}

TEST_F(Settings_Whole, read_places_only_with_the_mark_and_write_them_always) {
    for (const char* mark : {"0", "", "yes", "2", "-1", "11", "1.0"}) {
        Patch_Left = 30;
        Write_Settings(std::string("[Windows]\nPatch Left=10\nSave Positions=") + mark + "\n");
        Settings_Read();
        EXPECT_FALSE(Menu(Menu_Windows_SavePos).checked) << mark;
        EXPECT_EQ(Patch_Left, 30) << mark;
        EXPECT_EQ(Written("Windows", "Patch Left"), "2");
        EXPECT_EQ(Written("Windows", "Save Positions"), "0");
    }
    Read_Position("Patch Left", "10");
    EXPECT_TRUE(Menu(Menu_Windows_SavePos).checked);
    EXPECT_EQ(Patch_Left, 150);
    EXPECT_EQ(Written("Windows", "Save Positions"), "1");
}

TEST_F(Settings_Whole, keep_a_place_where_the_value_is_beyond_32767_twips) {
    for (const Place& place : Places) {
        for (const char* value : {"2184.6", "-2184.6", "32767", "1e30"}) {
            place.twips = 9;
            Read_Position(place.key, value);
            EXPECT_EQ(place.twips, 9) << place.key << " " << value;
        }
        Read_Position(place.key, "2184.466");
        EXPECT_EQ(place.twips, 32767);
        for (const std::string& value : No_Numbers) {
            Read_Position(place.key, value);
            EXPECT_EQ(place.twips, 0) << place.key << " " << value;
        }
    }
}

// -- MIDI ------------------------------------------------------------------------------------------------

TEST_F(Settings_Whole, take_the_instrument_as_it_stands) {
    for (const char* text : {"JX-8P", "MKS-70", "Alpha Juno", "alpha juno", "Something else", ""}) {
        Read_With("MIDI", "Synthesizer", text);
        EXPECT_EQ(Synthesizer, text);
        EXPECT_EQ(Written("MIDI", "Synthesizer"), text);
    }
    Read_With("MIDI", "Synthesizer", std::string(10000, 'x'));
    EXPECT_EQ(Synthesizer, std::string(63, 'x'));
}

TEST_F(Settings_Whole, turn_an_option_on_by_1_and_off_by_any_other_text) {
    struct Option {
        const char* key;
        std::uint8_t& on;
    };
    for (const Option& option : {Option{"Autoplay", MIDI_Autoplay}, Option{"Autosend", MIDI_Autosend}}) {
        Read_With("MIDI", option.key, "1");
        EXPECT_EQ(option.on, 1) << option.key;
        EXPECT_EQ(Written("MIDI", option.key), "1");
        for (const char* text : {"0", "", "yes", "2", "01", "true"}) {
            option.on = 1;
            Read_With("MIDI", option.key, text);
            EXPECT_EQ(option.on, 0) << option.key << "=" << text;
        }
        EXPECT_EQ(Written("MIDI", option.key), "0");
    }
}

TEST_F(Settings_Whole, turn_the_soundcheck_off_by_0_and_on_by_any_other_text) {
    Soundcheck_Mode = 1;
    Read_With("MIDI", "Soundcheck", "0");
    EXPECT_EQ(Soundcheck_Mode, 0);
    EXPECT_EQ(Written("MIDI", "Soundcheck"), "0");
    for (const char* text : {"1", "", "yes", "00", "false"}) {
        Soundcheck_Mode = 0;
        Read_With("MIDI", "Soundcheck", text);
        EXPECT_EQ(Soundcheck_Mode, 1) << text;
    }
    EXPECT_EQ(Written("MIDI", "Soundcheck"), "1");
}

TEST_F(Settings_Whole, check_preloading_by_1_only) {
    Read_With("MIDI", "Sequence Preload", "1");
    EXPECT_TRUE(Menu(Menu_MIDI_Seq_Load).checked);
    EXPECT_EQ(Written("MIDI", "Sequence Preload"), "1");
    for (const char* text : {"0", "", "yes", "2"}) {
        Menu(Menu_MIDI_Seq_Load).checked = true;
        Read_With("MIDI", "Sequence Preload", text);
        EXPECT_FALSE(Menu(Menu_MIDI_Seq_Load).checked) << text;
    }
    EXPECT_EQ(Written("MIDI", "Sequence Preload"), "0");
}

TEST_F(Settings_Whole, hold_note_and_velocity_as_bytes) {
    struct Number {
        const char* key;
        std::uint8_t& byte;
    };
    for (const Number& number :
         {Number{"Soundcheck Note", Soundcheck_Note}, Number{"Soundcheck Velocity", Soundcheck_Velocity}}) {
        for (const auto& [text, byte] : {std::pair{"0", 0},
                                         {"60", 60},
                                         {"255", 255},
                                         {"60.5", 60},
                                         {"61.5", 62},
                                         {"7 keys", 7},
                                         {"-0.4", 0},
                                         {"255.4", 255}}) {
            Read_With("MIDI", number.key, text);
            EXPECT_EQ(number.byte, byte) << number.key << "=" << text;
        }
        EXPECT_EQ(Written("MIDI", number.key), "255");
        for (const char* text : {"256", "255.6", "-1", "1e30", "40000"}) {
            number.byte = 60;
            Read_With("MIDI", number.key, text);
            EXPECT_EQ(number.byte, 0) << number.key << "=" << text;
        }
        for (const std::string& text : No_Numbers) {
            number.byte = 60;
            Read_With("MIDI", number.key, text);
            EXPECT_EQ(number.byte, 0) << number.key << "=" << text;
        }
    }
}

TEST_F(Settings_Whole, leave_the_channel_to_the_devices_and_write_it) {
    MIDI_Channel = 3;
    Read_With("MIDI", "Channel", "5");
    EXPECT_EQ(MIDI_Channel, 3);
    EXPECT_EQ(Written("MIDI", "Channel"), "3");
    Read_With("MIDI", "Control Channel", "5");
    EXPECT_EQ(Written("MIDI", "Control Channel"), "[Not used]");
}

// -- folders ---------------------------------------------------------------------------------------------

TEST_F(Settings_Whole, keep_each_folder_in_lower_case_under_its_own_key) {
    for (const char* name : {"T", "S", "O"}) fs::create_directory(Test_Folder() + "/" + name);
    Touch("T/a.syx");
    Touch("S/a.seq");
    Touch("O/a.osc");
    const std::string root = Test_Folder() + "/";
    Write_Settings("[Recent Files]\nTones=" + root + "T\nSequences=" + root + "S/\nOscillators=" + root +
                   "O\n");
    Settings_Read();
    EXPECT_EQ(Dir_Tones, Lower_Text(root) + "t/");
    EXPECT_EQ(Dir_Sequences, Lower_Text(root) + "s/");
    EXPECT_EQ(Dir_Oscillators, Lower_Text(root) + "o/");
    Settings_Write();
    EXPECT_NE(Read_Settings().find("Tones=" + Lower_Text(root) + "t/\n"), std::string::npos);
    Settings_Read();
    EXPECT_EQ(Dir_Tones, Lower_Text(root) + "t/");
}

TEST_F(Settings_Whole, give_the_current_directory_for_a_folder_that_has_gone_or_is_empty) {
    fs::create_directory(Test_Folder() + "/empty");
    for (const std::string& folder : {Test_Folder() + "/gone", Test_Folder() + "/empty", std::string("nan"),
                                      std::string(10000, 'x'), "/" + std::string(10000, '/')}) {
        Read_With("Recent Files", "Tones", folder);
        const std::string expected = folder[0] == '/' && folder[1] == '/' ? Dir_Tones : here_;
        EXPECT_EQ(Dir_Tones, expected) << folder.substr(0, 80);
        EXPECT_TRUE(Boxes.empty());
    }
}

TEST_F(Settings_Whole, take_a_current_directory_with_files_like_any_folder) {
    Touch("Here/a.syx");
    Settings_Read();
    EXPECT_EQ(Dir_Tones, Lower_Text(here_) + "/");
}

TEST_F(Settings_Whole, cut_a_folder_of_more_than_63_characters_and_lose_it) {
    const std::string deep = Test_Folder() + "/" + std::string(60, 'd');
    fs::create_directory(deep);
    Touch(std::string(60, 'd') + "/a.syx");
    Read_With("Recent Files", "Tones", deep);
    EXPECT_EQ(Dir_Tones, here_);
}

// -- recent files ----------------------------------------------------------------------------------------

TEST_F(Settings_Whole, turn_each_recent_list_round_at_every_start) {
    for (const auto& [list, key, ending] :
         {std::tuple<List (*)(), const char*, const char*>{Tones, "Tone", ".syx"},
          {Sequences, "Sequence", ".seq"}}) {
        const List files = Four_Files(key, ending);
        const List turned = {files[3], files[2], files[1], files[0]};
        Settings_Read();
        EXPECT_EQ(list(), turned);
        EXPECT_EQ(Written("Recent Files", (std::string(key) + "1").c_str()), files[3]);
        Settings_Read();
        EXPECT_EQ(list(), files) << "two starts later as it was";
    }
}

TEST_F(Settings_Whole, show_the_recent_files_in_the_menu) {
    const List files = Four_Files("Tone", ".syx");
    Settings_Read();
    EXPECT_TRUE(Menu(Menu_File_SYX_Trenn_1).visible);
    EXPECT_EQ(Menu(Menu_File_SYX_1).caption, "&1 " + files[3]);
    EXPECT_EQ(Menu(Menu_File_SYX_4).caption, "&4 " + files[0]);
    EXPECT_FALSE(Menu(Menu_File_Seq_Trenn_1).visible);
}

TEST_F(Settings_Whole, hold_recent_files_in_upper_case) {
    const std::string path = Touch("Soft Strings.syx");
    Read_With("Recent Files", "Tone1", path);
    EXPECT_EQ(Tones(), (List{Upper_Text(path)}));
    EXPECT_EQ(Written("Recent Files", "Tone1"), Upper_Text(path));
}

TEST_F(Settings_Whole, find_recent_files_and_folders_again_whose_names_have_blanks_and_accents) {
    fs::create_directory(Test_Folder() + "/M\u00fcde T\u00f6ne");
    const std::string path = Touch("M\u00fcde T\u00f6ne/\u00c9t\u00e9 no 1.syx");
    Write_Settings("[Recent Files]\nTone1=" + path + "\nTones=" + Test_Folder() + "/M\u00fcde T\u00f6ne\n");
    Settings_Read();
    EXPECT_EQ(Tones(), (List{Upper_Text(path)}));
    EXPECT_EQ(Dir_Tones, Lower_Text(Test_Folder()) + "/m\u00fcde t\u00f6ne/");
    Settings_Write();
    Settings_Read();
    EXPECT_EQ(Tones(), (List{Upper_Text(path)}));
    EXPECT_EQ(Dir_Tones, Lower_Text(Test_Folder()) + "/m\u00fcde t\u00f6ne/");
}

TEST_F(Settings_Whole, drop_recent_files_that_have_gone) {
    const List files = Four_Files("Tone", ".syx");
    fs::remove(Test_Folder() + "/b.syx");
    Settings_Read();
    const List left = Tones();
    EXPECT_EQ(std::count(left.begin(), left.end(), files[1]), 0);
    EXPECT_EQ(std::count(left.begin(), left.end(), files[3]), 1);
}

TEST_F(Settings_Whole, cut_a_recent_path_of_70_characters_to_63_and_lose_it) {
    const std::string stem(70 - Test_Folder().size() - 1 - 4, 'n');
    const std::string path = Touch(stem + ".syx");
    ASSERT_EQ(path.size(), 70U);
    Read_With("Recent Files", "Tone1", path);
    EXPECT_EQ(Tones(), List());
    EXPECT_FALSE(Menu(Menu_File_SYX_1).visible);
    EXPECT_EQ(Written("Recent Files", "Tone1"), "");

    const std::string shorter = Touch(stem.substr(7) + ".syx");
    ASSERT_EQ(shorter.size(), 63U);
    Read_With("Recent Files", "Tone1", shorter);
    EXPECT_EQ(Tones(), (List{Upper_Text(shorter)}));
}

TEST_F(Settings_Whole, drop_rubbish_from_the_recent_lists) {
    for (const std::string& text :
         {std::string("nan"), std::string(10000, 'x'), Test_Folder() + "/gone.syx", std::string("\xFF\xFE"),
          std::string("\t")}) {
        Read_With("Recent Files", "Sequence2", text);
        EXPECT_EQ(Sequences(), List()) << text.substr(0, 80);
    }
}
