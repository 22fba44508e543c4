#include <cctype>
#include <fstream>
#include <sstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

constexpr int Range_X = 27;
constexpr int Range_Y = 70;
constexpr int Name_X = 165;
constexpr int Name_Y = 304;

std::string Tone_File() {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    bytes += "WARM BRASS";
    bytes.append(49, '\x21');
    bytes += '\xF7';
    bytes.append("\xF0\x41\x36\x00\x21\x30\x01", 7);
    for (int number = 0; number < 7; ++number) bytes += std::string{static_cast<char>(number), '\x10'};
    return bytes + '\xF7';
}

// The whole tone as the witness prints it.
std::string Sent_Tone(const std::string& patch_value) {
    std::string line = "f0 41 35 00 21 20 01 57 41 52 4d 20 42 52 41 53 53";
    for (int index = 0; index < 49; ++index) line += " 21";
    line += " 24 07 f0 41 36 00 21 30 01";
    for (int number = 0; number < 7; ++number) line += " 0" + std::to_string(number) + " " + patch_value;
    return line + " f7";
}

std::string Upper(std::string text) {
    for (char& letter : text) letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return text;
}

std::string Contents(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

}  // namespace

using Tones_On_The_Desktop = Desktop;

TEST_F(Tones_On_The_Desktop, open_from_the_recent_files_are_named_saved_and_there_again) {
    Start_Jack();
    const std::filesystem::path file = folder_ / "brass.syx";
    std::ofstream(file, std::ios::binary) << Tone_File();
    Start_Program(
        "; mine\n[MIDI]\nOutput=witness:input\nInput=sender:out\nColour=blue\n[Recent Files]\nTone1=" +
        file.string() + "\n");
    Wait_For_Main_Window();

    for (const char* key : {"alt+f", "t", "1"}) {
        Press_Key(key);
        std::this_thread::sleep_for(300ms);
    }
    const Lines loaded = Witnessed(2);
    ASSERT_EQ(loaded.size(), 2U);
    std::string first = Sent_Tone("00");
    first.replace(first.rfind(" 00 f7"), 6, " 40 f7");  // the detune of the tone before
    EXPECT_EQ(loaded[0], first) << "with the old patch parameters";
    EXPECT_EQ(loaded[1], Sent_Tone("10")) << "with those of the file";

    Move_To(Range_X, Menu_Height() + Range_Y);
    Xdotool({"click", "1"});
    Press_Key("Home");
    EXPECT_EQ(Witnessed(3).back(), "f0 41 36 00 21 20 01 0b 7f f7");

    Move_To(Name_X, Menu_Height() + Name_Y);
    Xdotool({"click", "1"});
    ASSERT_TRUE(Wait_For_Focus("Tone Name"));
    Xdotool({"type", "lead"});
    Press_Key("Return");
    EXPECT_EQ(Witnessed(4).back(),
              "f0 41 36 00 21 20 01 00 4c 01 45 02 41 03 44 04 20 05 20 06 20 07 20 08 20 09 20 0f");
    ASSERT_TRUE(Wait_For_Focus("Tonebench - " + Upper(file.string())));

    Press_Key("ctrl+s");
    std::this_thread::sleep_for(300ms);
    std::string expected = Tone_File();
    expected.replace(7, 10, "LEAD      ");
    expected[17] = '\x20';  // the name's store reaches one byte further
    expected[18] = '\x7F';
    EXPECT_EQ(Contents(file), expected);

    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0) << "a saved tone is not asked about";
    const std::string settings = Settings();
    EXPECT_EQ(settings.substr(0, 7), "; mine\n");
    EXPECT_NE(settings.find("Colour=blue\n"), std::string::npos);
    EXPECT_NE(settings.find("Tone1=" + Upper(file.string()) + "\n"), std::string::npos);
}
