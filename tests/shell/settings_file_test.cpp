// The settings as a whole: each key with its default, its reading and its text in the file.
#include <sys/inotify.h>
#include <unistd.h>

#include "shell/settings_whole.h"

namespace {

// Hears every file that comes into a folder under a name, also over an old one, and every change of one.
class Written_Names {
  public:
    explicit Written_Names(const std::string& folder) : descriptor_(::inotify_init1(IN_NONBLOCK)) {
        EXPECT_GE(::inotify_add_watch(descriptor_, folder.c_str(), IN_MOVED_TO | IN_MODIFY), 0);
    }
    ~Written_Names() { ::close(descriptor_); }
    Written_Names(const Written_Names&) = delete;
    Written_Names& operator=(const Written_Names&) = delete;

    int Of(const std::string& name) const {
        int count = 0;
        alignas(inotify_event) char block[65536];
        for (ssize_t size = ::read(descriptor_, block, sizeof block); size > 0;
             size = ::read(descriptor_, block, sizeof block)) {
            for (ssize_t at = 0; at < size;) {
                const auto* event = reinterpret_cast<const inotify_event*>(block + at);
                if (event->len > 0 && name == event->name) ++count;
                at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
            }
        }
        return count;
    }

  private:
    int descriptor_;
};

}  // namespace

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

TEST_F(Settings_Whole, keep_every_foreign_line_in_its_place_among_their_own) {
    fs::create_directory(here_ + "/Tones");
    Touch("Here/Tones/a.syx");
    Write_Settings(
        "; a comment in front\n"
        "[Other]\n"
        "Left=77\n"
        "\n"
        "[midi]\n"
        "; in a section of ours\n"
        "Output=Synth Out\n"
        "Colour = blue\n"
        "autosend=0\n"
        "Input=Keys In\n"
        "SYNTHESIZER=MKS-70\n"
        "a line without a sign\n"
        "[Windows]\n"
        "Save Positions=1\n"
        "Patch Left=10\n"
        "[Recent Files]\n"
        "Tones=" +
        here_ +
        "/Tones/\n"
        "[Last]\n"
        "x=1");
    Settings_Read();
    Settings_Write();
    const std::string here = Lower_Text(here_);
    EXPECT_EQ(Read_Settings(),
              "; a comment in front\n"
              "[Other]\n"
              "Left=77\n"
              "\n"
              "[midi]\n"
              "; in a section of ours\n"
              "Output=Synth Out\n"
              "Colour = blue\n"
              "autosend=0\n"
              "Input=Keys In\n"
              "SYNTHESIZER=MKS-70\n"
              "a line without a sign\n"
              "Autoplay=1\n"
              "Sequence Preload=0\n"
              "Soundcheck=0\n"
              "Soundcheck Note=24\n"
              "Soundcheck Velocity=80\n"
              "Channel=1\n"
              "Control Channel=[Not used]\n"
              "[Windows]\n"
              "Save Positions=1\n"
              "Patch Left=10\n"
              "File Dialog Left=0\n"
              "File Dialog Top=0\n"
              "Patch Top=0\n"
              "Sequencer Left=0\n"
              "Sequencer Top=0\n"
              "[Recent Files]\n"
              "Tones=" +
                  here +
                  "/tones/\n"
                  "Sequences=" +
                  here_ +
                  "/\n"
                  "Oscillators=" +
                  here_ +
                  "/\n"
                  "Tone1=\nTone2=\nTone3=\nTone4=\n"
                  "Sequence1=\nSequence2=\nSequence3=\nSequence4=\n"
                  "[Last]\n"
                  "x=1\n"
                  "[Main Window]\n"
                  "Left=0\nTop=0\nWidth=541\nHeight=508\nState=0\n");
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

TEST_F(Settings_Whole, are_written_in_one_replacement_of_the_file) {
    Settings_Write();
    const Written_Names names(Test_Folder());
    Settings_Write();
    EXPECT_EQ(names.Of("Tonebench.INI"), 1);
}

TEST_F(Settings_Whole, keep_one_line_for_a_file_whose_name_has_two) {
    std::string folder = Upper_Text(Test_Folder());
    Recent_Tone_Put(1, folder + "/A\nOUTPUT=B.SYX");
    Write_Settings("[Recent Files]\n; mine\n");
    Settings_Write();
    const std::string once = Read_Settings();
    EXPECT_NE(once.find("; mine\nTones=/\n"), std::string::npos) << once;
    EXPECT_NE(once.find("Tone1=" + folder + "/A\nTone2=\n"), std::string::npos) << once;
    Settings_Write();
    EXPECT_EQ(Read_Settings(), once);
}
