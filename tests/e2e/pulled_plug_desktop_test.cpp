// The MIDI service dies under the program's hands: while a slider is dragged, while the sequencer or the
// oscillator runs, while a tone is waited for. Each time the user hears of it, nothing burns or hangs, and
// when the service is back and the setup confirmed, the music goes on.
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

constexpr const char* Input = "Tonebench-01:Tonebench";

// Middles on the panel.
constexpr int Resonance_X = 446;
constexpr int Resonance_Top = 112;  // the thumb's upper edge at value 0
constexpr int Stop_X = 274;
constexpr int Stop_Y = 232;

// The check box of the setup, which stands in the middle of the main window.
constexpr int Setup_Enable_X = 70 + 29;
constexpr int Setup_Enable_Y = 104 + 170;

// In the sequencer's window, which stands at the corner of the panel.
constexpr int Cell_X = 49;
constexpr int Cell_Y = 25;
constexpr int Seq_Start_X = 329;
constexpr int Seq_Start_Y = 159;

// In the oscillator's, which stands in the middle of it.
constexpr int Osc_Left = (528 - 394) / 2;
constexpr int Osc_Top = (456 - 192) / 2;

}  // namespace

class A_Pulled_Plug_On_The_Desktop : public Desktop {
  protected:
    void Start(const std::string& settings = "") {
        Start_Jack();
        Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\n" + settings);
        Wait_For_Main_Window();
        panel_ = Menu_Height();
    }

    // The others die with the service.
    void Pull() {
        jack_->Process().Kill();
        witness_->Kill();
        sender_->Kill();
    }

    void Click_On_Panel(int x, int y) {
        Move_To(x, panel_ + y);
        Xdotool({"click", "1"});
    }

    // How much of a core the program takes while nobody touches it.
    double Share_Of_A_Core() {
        const auto Ticks = [this] {
            std::ifstream file("/proc/" + std::to_string(program_->Id()) + "/stat");
            std::string text((std::istreambuf_iterator<char>(file)), {});
            // Behind the name, which may hold anything: the 14th and 15th field of the line.
            std::istringstream fields(text.substr(text.rfind(')') + 2));
            std::string skipped;
            for (int field = 3; field < 14; ++field) fields >> skipped;
            long user = 0;
            long system = 0;
            fields >> user >> system;
            return static_cast<double>(user + system) / static_cast<double>(::sysconf(_SC_CLK_TCK));
        };
        const double before = Ticks();
        const auto begin = Clock::now();
        std::this_thread::sleep_for(500ms);
        const std::chrono::duration<double> lasted = Clock::now() - begin;
        return (Ticks() - before) / lasted.count();
    }

    void Expect_No_Burning(const std::string& property) {
        const double share = Share_Of_A_Core();
        EXPECT_LT(share, 0.2);
        RecordProperty(property, static_cast<int>(share * 1000));
    }

    // The window answers: the help comes by its key and goes again. The limit is for a busy machine; what
    // waits for a dead service waits for ever or for ten seconds.
    void Expect_Answer() {
        const auto begin = Clock::now();
        Press_Key("F1");
        EXPECT_TRUE(Wait_For_Focus("Tonebench Help"));
        const auto answered = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begin);
        EXPECT_LT(answered, 5s);
        RecordProperty("answer_in_milliseconds", static_cast<int>(answered.count()));
        Press_Key("Escape");
        EXPECT_TRUE(Wait_For_Window("^Tonebench Help$", false));
    }

    // Behind the box that told of it.
    void Expect_Rest() {
        Expect_No_Burning("thousandths_of_a_core");
        EXPECT_TRUE(program_->Is_Running());
        Expect_Answer();
    }

    // The box that tells of it; the window under it has the keys again.
    void Expect_Told(const std::string& under_it) {
        EXPECT_TRUE(Wait_For_Window_Count(2)) << "no box";
        EXPECT_TRUE(Wait_For_Focus("Tonebench"));
        Expect_No_Burning("thousandths_of_a_core_under_the_box");
        Press_Key("Return");
        EXPECT_TRUE(Wait_For_Window_Count(1)) << "the box stays, or another comes";
        EXPECT_TRUE(Wait_For_Focus(under_it));
    }
    bool Wait_For_Window_Count(int count) {
        for (const auto end = Clock::now() + 20s; Windows_Named("Tonebench") != count;) {
            if (Clock::now() > end) return false;
            std::this_thread::sleep_for(50ms);
        }
        return true;
    }

    // The server is there again, and the user says so in the setup.
    enum class Midi { On, Off, On_With_Dead_Port };
    void Plug_In_Again(Midi before) {
        Start_Jack();
        Press_Key("alt+m");
        std::this_thread::sleep_for(300ms);
        Press_Key("s");
        // The port that died is closed first, which is told once more.
        if (before == Midi::On_With_Dead_Port) Expect_Told("MIDI Setup");
        ASSERT_TRUE(Wait_For_Focus("MIDI Setup"));
        std::this_thread::sleep_for(300ms);
        if (before != Midi::On) {
            // By the pointer: a key would take its time to move the check mark.
            Move_To(Setup_Enable_X, Setup_Enable_Y);
            Xdotool({"click", "1"});
        }
        Press_Key("Return");
        ASSERT_TRUE(Wait_For_Focus("MIDI System Exclusive enabled?"));
        std::this_thread::sleep_for(300ms);
        Press_Key("Return");
        ASSERT_TRUE(Wait_For_Window("^MIDI Setup$", false));
    }

    // The whole tone goes out by its shortcut.
    void Expect_Tone_Sent() {
        const std::size_t before = Messages_Dumped(*witness_).size();
        Press_Key("ctrl+t");
        const Lines heard = Witnessed(before + 1);
        ASSERT_GT(heard.size(), before);
        EXPECT_TRUE(std::any_of(heard.begin(), heard.end(), [](const std::string& line) {
            return line.starts_with("f0 41 35 00 21 20 01 20");
        }));
    }

    void Expect_End(const char* answer) {
        Press_Key("ctrl+x");
        if (answer != nullptr) Answer_Box(answer);
        EXPECT_EQ(program_->Wait_For_End(10s), 0);
        EXPECT_EQ(program_->Errors(), Lines{});
    }

    int panel_ = 0;
};

TEST_F(A_Pulled_Plug_On_The_Desktop, in_the_middle_of_a_drag_is_told_and_put_in_again) {
    Start();
    Move_To(Resonance_X, panel_ + Resonance_Top + 5);
    Xdotool({"mousedown", "1"});
    ASSERT_EQ(Witnessed(1).size(), 1U);
    Pull();
    Move_To(Resonance_X, panel_ + Resonance_Top - 20);
    Expect_Told("Tonebench");
    Xdotool({"mouseup", "1"});
    Expect_Rest();
    Plug_In_Again(Midi::On_With_Dead_Port);
    Expect_Tone_Sent();
    Expect_End("alt+n");
}

TEST_F(A_Pulled_Plug_On_The_Desktop, under_the_running_sequencer_is_told_once_and_put_in_again) {
    Start();
    Press_Key("ctrl+u");
    ASSERT_TRUE(Wait_For_Focus("Sequencer"));
    Click_On_Panel(Cell_X, Cell_Y);
    Click_On_Panel(Seq_Start_X, Seq_Start_Y);
    ASSERT_GE(Witnessed(14).size(), 14U);
    Pull();
    Expect_Told("Sequencer");
    Expect_Rest();
    EXPECT_EQ(Windows_Named("Tonebench"), 1) << "the steps behind it are silent";
    Plug_In_Again(Midi::Off);
    // It has been running all the time, and is heard again at once.
    const Lines heard = Witnessed(13);
    ASSERT_GE(heard.size(), 13U);
    EXPECT_TRUE(heard[0].starts_with("90 "));
    Expect_End("alt+n");
}

TEST_F(A_Pulled_Plug_On_The_Desktop, while_a_tone_is_waited_for_ends_the_waiting) {
    Start("Receive=1\n");
    Press_Key("ctrl+v");
    ASSERT_TRUE(Wait_For_Jack_Port(Input, true));
    Pull();
    Expect_Told("Tonebench");
    Expect_Rest();  // the menus are free again
    Plug_In_Again(Midi::On);
    Expect_Tone_Sent();
    Press_Key("ctrl+v");
    EXPECT_TRUE(Wait_For_Jack_Port(Input, true)) << "and a tone can be waited for again";
    Click_On_Panel(Stop_X, Stop_Y);
    ASSERT_TRUE(Wait_For_Jack_Port(Input, false));
    Expect_End(nullptr);
}

TEST_F(A_Pulled_Plug_On_The_Desktop, under_the_running_oscillator_is_told_once_and_put_in_again) {
    Start();
    Press_Key("ctrl+i");
    ASSERT_TRUE(Wait_For_Window("^Oscillator$"));
    std::this_thread::sleep_for(300ms);
    Click_On_Panel(Osc_Left + 20, Osc_Top + 172);
    ASSERT_GE(Witnessed(2).size(), 2U);
    Pull();
    Expect_Told("Oscillator");
    Expect_Rest();
    EXPECT_EQ(Windows_Named("Tonebench"), 1) << "the steps behind it are silent";
    Plug_In_Again(Midi::On_With_Dead_Port);
    EXPECT_GE(Witnessed(2).size(), 2U) << "it steps on";
    Expect_End(nullptr);
}

TEST_F(A_Pulled_Plug_On_The_Desktop,
       of_a_disk_that_takes_nothing_more_is_told_and_the_program_can_be_left) {
    Start_Jack();
    const std::string settings = "[MIDI]\nOutput=witness:input\nInput=sender:out\n";
    std::ofstream(folder_ / "Tonebench.INI", std::ios::binary) << settings;
    program_ =
        std::make_unique<Child_Process>(Lines{"prlimit", "--fsize=0", (folder_ / "tonebench").string()});
    Wait_For_Main_Window();
    panel_ = Menu_Height();
    Click_On_Panel(Resonance_X, Resonance_Top + 5);
    Press_Key("Home");
    ASSERT_EQ(Witnessed(2).size(), 2U);
    for (const char* key : {"alt+f", "t", "a"}) {
        Press_Key(key);
        std::this_thread::sleep_for(300ms);
    }
    ASSERT_TRUE(Wait_For_Focus("Save Tone File"));
    Xdotool({"type", "new"});
    Press_Key("Return");
    Expect_Told("Save Tone File");
    Press_Key("Escape");
    ASSERT_TRUE(Wait_For_Focus("Tonebench"));
    Expect_End("alt+n");
    EXPECT_EQ(Settings(), settings);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "new.syx"));
}
