// The Patch window of the program itself, from the pointer to the instrument and to the file.
#include <cctype>
#include <fstream>
#include <sstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// Patch opens at the corner of the panel; middles of its controls, from there.
constexpr int Time_X = 28;
constexpr int Time_Top = 108;  // the thumb's upper edge at value 0
constexpr int Lamp_Y = 24;     // of item 0
constexpr int Key_Mode_X = 159;
constexpr int After_Touch_X = 229;

std::string Configured(const std::string& more) {
    return "[MIDI]\nOutput=witness:input\nInput=sender:out\n" + more;
}

std::string Tone_File() {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    bytes += "WARM BRASS";
    bytes.append(49, '\x21');
    bytes += '\xF7';
    bytes.append("\xF0\x41\x36\x00\x21\x30\x01", 7);
    for (int number = 0; number < 7; ++number) bytes += std::string{static_cast<char>(number), '\x00'};
    return bytes + '\xF7';
}

std::string Contents(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::string Patch_Message(const std::string& number_and_value) {
    return "f0 41 36 00 21 30 01 " + number_and_value + " f7";
}

}  // namespace

class Patch_On_The_Desktop : public Desktop {
  protected:
    void Expect_Next(const std::string& message) {
        ++heard_;
        const Lines all = Witnessed(heard_);
        ASSERT_EQ(all.size(), heard_);
        EXPECT_EQ(all.back(), message);
    }
    void Click_At(int x, int y) {
        Move_To(x, y);
        Xdotool({"click", "1"});
    }
    void Open_Recent() {
        for (const char* key : {"alt+f", "t", "1"}) {
            Press_Key(key);
            std::this_thread::sleep_for(300ms);
        }
        heard_ += 2;
        ASSERT_EQ(Witnessed(heard_).size(), heard_);
    }

    std::size_t heard_ = 0;
};

TEST_F(Patch_On_The_Desktop, is_opened_by_its_shortcut_played_saved_and_loaded_again) {
    Start_Jack();
    const std::filesystem::path file = folder_ / "brass.syx";
    std::ofstream(file, std::ios::binary) << Tone_File();
    Start_Program(Configured("[Recent Files]\nTone1=" + file.string() + "\n"));
    Wait_For_Main_Window();
    const int panel = Menu_Height();
    Open_Recent();

    Press_Key("ctrl+p");
    ASSERT_TRUE(Wait_For_Focus("Patch Parameter"));
    Move_To(Time_X, panel + Time_Top + 5);
    Xdotool({"mousedown", "1"});
    Expect_Next(Patch_Message("01 00"));
    Move_To(Time_X, panel + Time_Top - 20);
    Expect_Next(Patch_Message("01 14"));
    // The thumb stands 20 * 80 / 127 = 12 pixels higher now.
    Move_To(Time_X, panel + Time_Top - 12 - 10);
    Expect_Next(Patch_Message("01 1e"));
    Xdotool({"mouseup", "1"});

    // Each lamp by a click, then each by a key: the groups run opposite ways.
    const char* const key_codes[] = {"00", "01", "02", "04", "05", "06"};
    for (int item = 0; item < 6; ++item) {
        Click_At(Key_Mode_X, panel + Lamp_Y + item * 15);
        Expect_Next(Patch_Message(std::string("03 ") + key_codes[item]));
    }
    for (int item = 4; item >= 0; --item) {
        Press_Key("Up");
        Expect_Next(Patch_Message(std::string("03 ") + key_codes[item]));
    }
    for (int item = 1; item <= 4; ++item) {
        Press_Key("Down");
        Expect_Next(Patch_Message(std::string("03 ") + key_codes[item]));
    }
    const char* const touch_codes[] = {"00", "01", "02", "04"};
    for (int item = 0; item < 4; ++item) {
        Click_At(After_Touch_X, panel + Lamp_Y + item * 15);
        Expect_Next(Patch_Message(std::string("04 ") + touch_codes[item]));
    }
    for (int item = 2; item >= 0; --item) {
        Press_Key("Down");
        Expect_Next(Patch_Message(std::string("04 ") + touch_codes[item]));
    }
    for (int item = 1; item <= 3; ++item) {
        Press_Key("Up");
        Expect_Next(Patch_Message(std::string("04 ") + touch_codes[item]));
    }
    Press_Key("Tab");  // to the detune, at once
    Press_Key("End");
    Expect_Next(Patch_Message("06 00"));
    Press_Key("Page_Up");
    Expect_Next(Patch_Message("06 0a"));

    Press_Key("ctrl+s");
    Expect_Next(Patch_Message("06 0a"));  // the Ctrl key alone: every key of a knob sends
    std::this_thread::sleep_for(300ms);
    std::string expected = Tone_File();
    expected.replace(74, 14, std::string("\x00\x00\x01\x1E\x02\x00\x03\x05\x04\x04\x05\x00\x06\x0A", 14));
    EXPECT_EQ(Contents(file), expected);

    Press_Key("Escape");
    ASSERT_TRUE(Wait_For_Window("^Patch Parameter$", false));
    std::string upper = file.string();
    for (char& letter : upper) letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    ASSERT_TRUE(Wait_For_Focus("Tonebench - " + upper));
    Press_Key("ctrl+n");
    ++heard_;
    ASSERT_TRUE(Witnessed(heard_).back().ends_with(" 03 00 04 00 05 00 06 40 f7")) << "a new tone";
    Open_Recent();
    EXPECT_TRUE(Witnessed(heard_).back().ends_with(
        " f0 41 36 00 21 30 01 00 00 01 1e 02 00 03 05 04 04 05 00 06 0a f7"))
        << Witnessed(heard_).back();
    EXPECT_EQ(program_->Errors(), Lines{});
}

TEST_F(Patch_On_The_Desktop, is_answered_under_the_MKS_70_by_a_message_and_the_tone_carries_24) {
    Start_Jack();
    Start_Program(Configured("Synthesizer=MKS-70\n"));
    Wait_For_Main_Window();
    Press_Key("ctrl+p");
    Answer_Box("Return");
    EXPECT_EQ(Windows_Named("Patch Parameter"), 0);
    Press_Key("ctrl+t");
    std::string tone = "f0 41 35 00 24 20 01";
    for (int index = 0; index < 59; ++index) {
        tone += index < 10 ? " 20" : index == 13 || index == 19 ? " 38" : index == 20 ? " 40" : " 00";
    }
    tone += " 24 07 f0 41 36 00 24 30 01 00 00 01 00 02 00 03 00 04 00 05 00 06 40 f7";
    Expect_Next(tone);
}
