// The settings as a whole: each key with its default, its reading and its text in the file.
#include "shell/settings_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "filedlg/options.h"
#include "midi/out.h"
#include "platform/text.h"
#include "shell/frame.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

namespace fs = std::filesystem;
using List = std::array<std::string, 4>;
using Lines = std::vector<std::string>;

constexpr const char* Devices = "[MIDI]\nOutput=Synth Out\nInput=Keys In\n";

// Values that are no number. The last one is cut when it is read.
const Lines No_Numbers = {"", "yes", "nan", "inf", "--1", "\xFF\xFE", std::string(10000, 'x')};

List Tones() {
    return {Recent_Tone(1), Recent_Tone(2), Recent_Tone(3), Recent_Tone(4)};
}
List Sequences() {
    return {Recent_Seq(1), Recent_Seq(2), Recent_Seq(3), Recent_Seq(4)};
}

std::string Touch(const std::string& name) {
    const std::string path = Test_Folder() + "/" + name;
    std::ofstream file(path);
    return path;
}

}  // namespace

class Settings_Whole : public Stage {
  protected:
    Settings_Whole() {
        here_ = Test_Folder() + "/Here";
        fs::create_directory(here_);
        fs::current_path(here_);
        INI_File = Test_Folder() + "/Tonebench.INI";
    }
    ~Settings_Whole() override { fs::current_path("/"); }

    // Reads settings that hold this one key.
    static void Read_With(const std::string& section, const std::string& key, const std::string& value) {
        Write_Settings("[" + section + "]\n" + key + "=" + value + "\n");
        Settings_Read();
    }
    static void Read_Position(const std::string& key, const std::string& value) {
        Write_Settings("[Windows]\nSave Positions=1\n" + key + "=" + value + "\n");
        Settings_Read();
    }
    // What the end writes under a key.
    static std::string Written(const char* section, const char* key) {
        Settings_Write();
        return Setting_Get(section, key, "(none)");
    }
    // Four files and a settings file that names them, newest first.
    static List Four_Files(const std::string& key, const std::string& ending) {
        List list;
        std::string text = "[Recent Files]\n";
        for (std::size_t n = 0; n < 4; ++n) {
            list[n] = Upper_Text(Touch(std::string(1, static_cast<char>('a' + n)) + ending));
            text += key + std::to_string(n + 1) + "=" + list[n] + "\n";
        }
        Write_Settings(text);
        return list;
    }

    std::string here_;
};

// -- a first start ---------------------------------------------------------------------------------------

TEST_F(Settings_Whole, without_a_file_has_these_values) {
    Main_Window.left = Main_Window.top = Main_Window.width = Main_Window.height = 99;
    Main_Window.state = Window_State::Maximised;
    FD_Left = FD_Top = Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 7;
    Menu(Menu_Windows_SavePos).checked = Menu(Menu_MIDI_Seq_Load).checked = true;
    Synthesizer = "?";
    MIDI_Autoplay = MIDI_Autosend = 0;
    Soundcheck_Mode = Soundcheck_Note = Soundcheck_Velocity = 1;
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 0);
    EXPECT_EQ(Main_Window.top, 0);
    EXPECT_EQ(Main_Window.width, 541);
    EXPECT_EQ(Main_Window.height, 508);
    EXPECT_EQ(Main_Window.state, Window_State::Normal);
    EXPECT_FALSE(Menu(Menu_Windows_SavePos).checked);
    EXPECT_FALSE(Menu(Menu_MIDI_Seq_Load).checked);
    for (const int twips : {FD_Left, FD_Top, Patch_Left, Patch_Top, Seq_Window_Left, Seq_Window_Top}) {
        EXPECT_EQ(twips, 7) << "not read without the mark";
    }
    EXPECT_EQ(Synthesizer, "JX-8P");
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(Soundcheck_Mode, 0);
    EXPECT_EQ(Soundcheck_Note, 24);
    EXPECT_EQ(Soundcheck_Velocity, 80);
    EXPECT_EQ(Tones(), List());
    EXPECT_EQ(Sequences(), List());
    EXPECT_EQ(Dir_Tones, here_);
    EXPECT_EQ(Dir_Sequences, here_);
    EXPECT_EQ(Dir_Oscillators, here_);
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(Read_Settings(), "(none)") << "reading makes no file";
}

TEST_F(Settings_Whole, with_the_mark_and_no_places_put_the_windows_into_the_corner) {
    FD_Left = FD_Top = Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 7;
    Read_With("Windows", "Save Positions", "1");
    for (const int twips : {FD_Left, FD_Top, Patch_Left, Patch_Top, Seq_Window_Left, Seq_Window_Top}) {
        EXPECT_EQ(twips, 0);
    }
}

TEST_F(Settings_Whole, come_into_being_at_the_first_end) {
    Settings_Read();
    Settings_Write();
    EXPECT_EQ(Read_Settings(),
              "[Main Window]\n"
              "Left=0\n"
              "Top=0\n"
              "Width=541\n"
              "Height=508\n"
              "State=0\n"
              "[MIDI]\n"
              "Autoplay=1\n"
              "Autosend=1\n"
              "Sequence Preload=0\n"
              "Soundcheck=0\n"
              "Soundcheck Note=24\n"
              "Soundcheck Velocity=80\n"
              "Channel=1\n"
              "Control Channel=[Not used]\n"
              "Synthesizer=JX-8P\n"
              "[Windows]\n"
              "File Dialog Left=0\n"
              "File Dialog Top=0\n"
              "Patch Left=0\n"
              "Patch Top=0\n"
              "Save Positions=0\n"
              "Sequencer Left=0\n"
              "Sequencer Top=0\n"
              "[Recent Files]\n"
              "Tones=" +
                  here_ +
                  "/\n"
                  "Sequences=" +
                  here_ +
                  "/\n"
                  "Oscillators=" +
                  here_ +
                  "/\n"
                  "Tone1=\n"
                  "Tone2=\n"
                  "Tone3=\n"
                  "Tone4=\n"
                  "Sequence1=\n"
                  "Sequence2=\n"
                  "Sequence3=\n"
                  "Sequence4=\n");
}

TEST_F(Settings_Whole, write_every_value_under_its_own_key) {
    Main_Window.left = 11;
    Main_Window.top = 12;
    Main_Window.width = 613;
    Main_Window.height = 514;
    MIDI_Autoplay = 0;
    MIDI_Autosend = 0;
    Menu(Menu_MIDI_Seq_Load).checked = true;
    Soundcheck_Mode = 1;
    Soundcheck_Note = 60;
    Soundcheck_Velocity = 127;
    MIDI_Channel = 16;
    Synthesizer = "Alpha Juno";
    FD_Left = 150;
    FD_Top = 160;
    Patch_Left = 170;
    Patch_Top = 180;
    Menu(Menu_Windows_SavePos).checked = true;
    Seq_Window_Left = -15;
    Seq_Window_Top = 1;
    Dir_Tones = "/a";
    Dir_Sequences = "/b/";
    Dir_Oscillators = "/c  ";
    for (int place = 1; place <= 4; ++place) Recent_Tone_Put(place, "/T" + std::to_string(place));
    Recent_Seq_Put(1, "/S1");
    Recent_Seq_Put(3, "/S3");
    Settings_Write();
    EXPECT_EQ(
        Read_Settings(),
        "[Main Window]\nLeft=11\nTop=12\nWidth=613\nHeight=514\nState=0\n"
        "[MIDI]\nAutoplay=0\nAutosend=0\nSequence Preload=1\nSoundcheck=1\nSoundcheck Note=60\n"
        "Soundcheck Velocity=127\nChannel=16\nControl Channel=[Not used]\nSynthesizer=Alpha Juno\n"
        "[Windows]\nFile Dialog Left=10\nFile Dialog Top=10.66667\nPatch Left=11.33333\nPatch Top=12\n"
        "Save Positions=1\nSequencer Left=-1\nSequencer Top=0.06666667\n"
        "[Recent Files]\nTones=/a/\nSequences=/b/\nOscillators=/c/\n"
        "Tone1=/T1\nTone2=/T2\nTone3=/T3\nTone4=/T4\n"
        "Sequence1=/S1\nSequence2=\nSequence3=/S3\nSequence4=\n");
    EXPECT_EQ(Dir_Tones, "/a") << "the folder itself stays as it is";
}

TEST_F(Settings_Whole, leave_foreign_lines_and_the_devices_alone) {
    Write_Settings("; mine\n[MIDI]\nOutput=Synth Out\nInput=Keys In\nControl Channel=3\n[Other]\nx=1\n");
    Settings_Read();
    Settings_Write();
    const std::string text = Read_Settings();
    EXPECT_TRUE(text.starts_with(
        "; mine\n[MIDI]\nOutput=Synth Out\nInput=Keys In\nControl Channel=[Not used]\nAutoplay=1\n"))
        << text;
    EXPECT_NE(text.find("\n[Other]\nx=1\n"), std::string::npos);
}

TEST_F(Settings_Whole, let_pending_events_run_behind_the_writing) {
    static std::string meanwhile;
    At_Next_Turn([] { meanwhile = Read_Settings(); });
    Settings_Write();
    EXPECT_TRUE(meanwhile.ends_with("Sequence4=\n"));
    EXPECT_EQ(Loop.turns, 1);
}

TEST_F(Settings_Whole, without_a_path_write_nothing) {
    INI_File.clear();
    Settings_Write();
    EXPECT_EQ(Read_Settings(), "(none)");
}

TEST_F(Settings_Whole, that_cannot_be_written_are_the_old_ones_at_the_next_start) {
    Write_Settings("[MIDI]\nAutoplay=0\nSoundcheck Note=60\n");
    fs::permissions(INI_File, fs::perms::owner_read);
    Settings_Read();
    MIDI_Autoplay = 1;
    Soundcheck_Note = 61;
    Settings_Write();
    Settings_Read();
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_EQ(Soundcheck_Note, 60);
    EXPECT_EQ(Read_Settings(), "[MIDI]\nAutoplay=0\nSoundcheck Note=60\n");
    EXPECT_TRUE(Boxes.empty());

    INI_File = Test_Folder() + "/gone/Tonebench.INI";
    Settings_Write();
    Settings_Read();
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Settings_Whole, come_back_as_they_were_written) {
    for (const int density : {96, 120}) {
        Screen_PPI = To_Int16(density);
        Settings_Read();
        Main_Window.left = 33;
        Main_Window.top = 44;
        Main_Window.width = 700;
        Main_Window.height = 600;
        Main_Window.state = Window_State::Normal;
        Menu(Menu_Windows_SavePos).checked = Menu(Menu_MIDI_Seq_Load).checked = true;
        FD_Left = 1;
        FD_Top = 32767;
        Patch_Left = -32768;
        Patch_Top = 1000;
        Seq_Window_Left = 1001;
        Seq_Window_Top = 1002;
        Synthesizer = "MKS-70";
        MIDI_Autoplay = MIDI_Autosend = 0;
        Soundcheck_Mode = 1;
        Soundcheck_Note = 255;
        Soundcheck_Velocity = 1;
        Dir_Tones = Lower_Text(Test_Folder()) + "/";
        Recent_Seq_Put(1, Upper_Text(Touch("one.seq")));
        Settings_Write();
        const std::string once = Read_Settings();

        FD_Left = FD_Top = Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 0;
        Main_Window.left = Main_Window.top = Main_Window.width = Main_Window.height = 0;
        Settings_Read();
        EXPECT_EQ(FD_Left, 1);
        EXPECT_EQ(FD_Top, 32767);
        EXPECT_EQ(Patch_Left, -32768);
        EXPECT_EQ(Main_Window.width, 700);
        Settings_Write();
        EXPECT_EQ(Read_Settings(), once);
    }
}

// -- the main window -------------------------------------------------------------------------------------

TEST_F(Settings_Whole, give_the_main_window_its_place_and_size) {
    Write_Settings("[Main Window]\nLeft=20\nTop=30\nWidth=640\nHeight=480\nState=2\n");
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 20);
    EXPECT_EQ(Main_Window.top, 30);
    EXPECT_EQ(Main_Window.width, 640);
    EXPECT_EQ(Main_Window.height, 480);
    EXPECT_EQ(Main_Window.state, Window_State::Maximised);
}

TEST_F(Settings_Whole, round_the_main_windows_place_to_whole_pixels) {
    for (const auto& [text, pixels] :
         {std::pair{"10.66667", 11}, {"10.4", 10}, {"10.5", 10}, {"11.5", 12}}) {
        Read_With("Main Window", "Left", text);
        EXPECT_EQ(Main_Window.left, pixels) << text;
    }
}

TEST_F(Settings_Whole, bring_a_main_window_back_that_stood_left_of_or_above_the_screen) {
    Write_Settings("[Main Window]\nLeft=-32000\nTop=-32000\nState=1\n");
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 0);
    EXPECT_EQ(Main_Window.top, 0);
    EXPECT_EQ(Main_Window.state, Window_State::Minimised);
    Write_Settings("[Main Window]\nLeft=-1\nTop=5\n");
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 0);
    EXPECT_EQ(Main_Window.top, 5);
    Write_Settings("[Main Window]\nLeft=5\nTop=-0.6\n");
    Settings_Read();
    EXPECT_EQ(Main_Window.left, 5);
    EXPECT_EQ(Main_Window.top, 0);
}

TEST_F(Settings_Whole, correct_a_negative_place_also_where_its_own_value_could_not_be_used) {
    Main_Window.left = -32000;
    Read_With("Main Window", "Left", "1e30");
    EXPECT_EQ(Main_Window.left, 0);
}

TEST_F(Settings_Whole, keep_place_and_size_where_the_value_is_beyond_16_bits) {
    for (const char* value : {"32768", "-32769", "1e300", "99999999999999999999"}) {
        Main_Window.left = Main_Window.top = 3;
        Main_Window.width = 700;
        Main_Window.height = 600;
        Write_Settings(std::string("[Main Window]\nLeft=") + value + "\nTop=" + value + "\nWidth=" + value +
                       "\nHeight=" + value + "\n[MIDI]\nSynthesizer=MKS-70\n");
        Synthesizer = "?";
        Settings_Read();
        EXPECT_EQ(Main_Window.left, 3) << value;
        EXPECT_EQ(Main_Window.top, 3) << value;
        EXPECT_EQ(Main_Window.width, 700) << value;
        EXPECT_EQ(Main_Window.height, 600) << value;
        EXPECT_EQ(Synthesizer, "MKS-70") << "the steps behind it run";
    }
}

TEST_F(Settings_Whole, read_0_where_a_place_is_no_number) {
    for (const std::string& value : No_Numbers) {
        Main_Window.left = 3;
        Read_With("Main Window", "Left", value);
        EXPECT_EQ(Main_Window.left, 0) << value;
    }
    Read_With("Main Window", "Top", "12 pixels");
    EXPECT_EQ(Main_Window.top, 12);
}

TEST_F(Settings_Whole, round_the_state_and_keep_it_where_there_is_no_such_state) {
    for (const auto& [text, state] : {std::pair{"0", Window_State::Normal},
                                      {"1", Window_State::Minimised},
                                      {"2", Window_State::Maximised},
                                      {"0.5", Window_State::Normal},
                                      {"1.5", Window_State::Maximised},
                                      {"2.5", Window_State::Maximised},
                                      {"1 or so", Window_State::Minimised},
                                      {"maximised", Window_State::Normal},
                                      {"", Window_State::Normal}}) {
        Read_With("Main Window", "State", text);
        EXPECT_EQ(Main_Window.state, state) << text;
    }
    for (const char* text : {"3", "-1", "1e9", "2.6"}) {
        Main_Window.state = Window_State::Maximised;
        Read_With("Main Window", "State", text);
        EXPECT_EQ(Main_Window.state, Window_State::Maximised) << text;
    }
}

TEST_F(Settings_Whole, keep_the_earlier_size_of_a_window_that_ends_minimised_or_maximised) {
    for (const auto& [state, number] :
         {std::pair{Window_State::Minimised, "1"}, {Window_State::Maximised, "2"}}) {
        Write_Settings("[Main Window]\nWidth=600\nHeight=550\n");
        Settings_Read();
        Main_Window.state = state;
        Main_Window.left = Main_Window.top = -32000;
        Main_Window.width = 1280;
        Main_Window.height = 1024;
        EXPECT_EQ(Written("Main Window", "State"), number);
        EXPECT_EQ(Written("Main Window", "Left"), "-32000");
        Settings_Read();
        EXPECT_EQ(Main_Window.left, 0);
        EXPECT_EQ(Main_Window.top, 0);
        EXPECT_EQ(Main_Window.width, 600);
        EXPECT_EQ(Main_Window.height, 550);
        EXPECT_EQ(Main_Window.state, state);
    }
}

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

// -- as a whole ------------------------------------------------------------------------------------------

TEST_F(Settings_Whole, that_are_rubbish_are_those_of_a_first_start) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    for (const std::string& text : {bytes, std::string(1 << 16, '['), std::string(1 << 16, 'x')}) {
        Write_Settings(text);
        Settings_Read();
        EXPECT_EQ(Main_Window.width, 541);
        EXPECT_EQ(Synthesizer, "JX-8P");
        EXPECT_EQ(Soundcheck_Velocity, 80);
        EXPECT_TRUE(Boxes.empty());
    }
}

class Settings_Of_A_Run : public Stage {};

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
