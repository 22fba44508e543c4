#include <cctype>
#include <fstream>
#include <sstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// On the JX-8P's panel.
constexpr int Resonance_X = 446;
constexpr int Resonance_Y = 120;
// On the Alpha Juno's.
constexpr int T4_X = 309;
constexpr int T4_Top = 382;  // the thumb's upper edge at value 0
constexpr int Graph_Left = 90;
constexpr int Graph_Top = 136;

// The dialog closes the port.
constexpr const char* All_Notes_Off = "b0 7b 00";

// A tone with an envelope of T1 40, L1 100, T2 30, L2 60, T3 20, L3 80 and the name "LEAD".
std::string Juno_File(char t4) {
    std::string bytes("\xF0\x41\x35\x00\x23\x20\x01", 7);
    bytes.append(26, '\x01');
    bytes += {40, 100, 30, 60, 20, 80, t4, 0, 1, 2};
    bytes += {11, 4, 0, 3, 62, 62, 62, 62, 62, 62};
    bytes += {7, 8, 9};
    return bytes + '\xF7';
}

// The new tone of a JX-8P with its resonance at the top, as the witness prints it.
std::string JX_Tone(const std::string& format, const std::string& patch_header) {
    std::string line = "f0 41 35 00 " + format + " 20 01";
    for (int index = 0; index < 59; ++index) {
        const bool tune = index == 13 || index == 19;
        line += index < 10 ? " 20" : tune ? " 38" : index == 20 ? " 40" : index == 35 ? " 7f" : " 00";
    }
    return line + " 24 07" + patch_header + " 00 00 01 00 02 00 03 00 04 00 05 00 06 40 f7";
}

std::string Contents(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

}  // namespace

class Juno_On_The_Desktop : public Desktop {
  protected:
    // By its first or last entry: "Home" is the JX-8P, "End" the Alpha Juno.
    void Choose_Instrument(const char* key) {
        for (const char* each : {"alt+m", "s"}) {
            Press_Key(each);
            std::this_thread::sleep_for(300ms);
        }
        ASSERT_TRUE(Wait_For_Focus("MIDI Setup"));
        std::this_thread::sleep_for(300ms);
        Press_Key(key);
        Press_Key("Return");
        ASSERT_TRUE(Wait_For_Focus("MIDI System Exclusive enabled?"));
        std::this_thread::sleep_for(200ms);
        Press_Key("Return");
        ASSERT_TRUE(Wait_For_Window("^MIDI Setup$", false));
        std::this_thread::sleep_for(300ms);
    }

    void Load_The_Recent_File() {
        for (const char* key : {"alt+f", "t", "1"}) {
            Press_Key(key);
            std::this_thread::sleep_for(300ms);
        }
    }

    // Whether the pixel of the graph's place is as bright as its lines.
    bool Bright_In_The_Graph(int x, int y) {
        const std::string place =
            "1x1+" + std::to_string(Graph_Left + x) + "+" + std::to_string(Menu_Height() + Graph_Top + y);
        for (const std::string& line : Picture(place)) {
            const auto colour = line.find('#');
            if (colour == std::string::npos || line.find("0,0:") != 0) continue;
            const int red = std::stoi(line.substr(colour + 1, 2), nullptr, 16);
            const int green = std::stoi(line.substr(colour + 3, 2), nullptr, 16);
            return green > 150 && red < green;
        }
        return false;
    }
};

TEST_F(Juno_On_The_Desktop, is_chosen_played_saved_loaded_and_left_with_both_records_intact) {
    Start_Jack();
    const std::filesystem::path file = folder_ / "lead.syx";
    std::ofstream(file, std::ios::binary) << Juno_File(0);
    Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\n[Recent Files]\nTone1=" + file.string() +
                  "\n");
    Wait_For_Main_Window();
    const int panel = Menu_Height();
    Lines expected;
    const auto Expect_Next = [&](const std::string& line) {
        expected.push_back(line);
        ASSERT_EQ(Witnessed(expected.size()), expected);
    };

    // Something that is the JX-8P's own.
    Move_To(Resonance_X, panel + Resonance_Y);
    Xdotool({"click", "1"});
    Expect_Next("f0 41 36 00 21 20 01 23 00 f7");
    Press_Key("Home");
    Expect_Next("f0 41 36 00 21 20 01 23 7f f7");

    Choose_Instrument("End");
    Expect_Next(All_Notes_Off);
    EXPECT_FALSE(Bright_In_The_Graph(75, 50));
    Load_The_Recent_File();
    Expect_Next(JX_Tone("23", ""));

    // A drag with the envelope's picture over the panel.
    Move_To(T4_X, panel + T4_Top + 8);
    Xdotool({"mousedown", "1"});
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Witnessed(expected.size()).size(), expected.size()) << "a press alone says nothing";
    Move_To(T4_X, panel + T4_Top - 20);
    Expect_Next("f0 41 36 00 23 20 01 20 14 f7");
    std::this_thread::sleep_for(200ms);
    EXPECT_TRUE(Bright_In_The_Graph(75, 50)) << "the plateau at level 80";
    EXPECT_FALSE(Bright_In_The_Graph(200, 50));
    Xdotool({"mouseup", "1"});
    std::this_thread::sleep_for(2200ms);
    EXPECT_FALSE(Bright_In_The_Graph(75, 50)) << "gone two seconds behind the last change";

    Press_Key("ctrl+s");
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Contents(file), Juno_File(0x14));

    // Another change, thrown away by the load.
    Press_Key("Home");
    Expect_Next("f0 41 36 00 23 20 01 20 7f f7");
    Load_The_Recent_File();
    Expect_Next(JX_Tone("23", ""));
    Press_Key("Up");
    Expect_Next("f0 41 36 00 23 20 01 20 15 f7");

    Choose_Instrument("Home");
    Expect_Next(All_Notes_Off);
    Press_Key("ctrl+t");
    Expect_Next(JX_Tone("21", " f0 41 36 00 21 30 01"));

    Choose_Instrument("End");
    Press_Key("ctrl+s");
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Contents(file), Juno_File(0x15));

    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0) << "a saved tone is not asked about";
    EXPECT_NE(Settings().find("Synthesizer=Alpha Juno\n"), std::string::npos);
    EXPECT_EQ(program_->Errors(), Lines{});
}
