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

std::string Lower(std::string text) {
    for (char& letter : text) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
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

// Ten sliders: where their thumbs stand for the value 33, and the parameter.
struct Touched {
    int x, y;
    const char* parameter;
};
constexpr Touched Ten_Sliders[] = {{27, 219, "0e"}, {66, 219, "0f"}, {127, 219, "15"}, {166, 219, "16"},
                                   {267, 99, "1c"}, {306, 99, "1d"}, {307, 219, "1e"}, {407, 99, "22"},
                                   {446, 99, "23"}, {368, 219, "24"}};

TEST_F(Tones_On_The_Desktop, come_back_with_window_folder_options_and_recent_file) {
    Start_Jack();
    const std::filesystem::path file = folder_ / "Tones" / "Strings.syx";
    std::filesystem::create_directory(folder_ / "Tones");
    std::ofstream(file, std::ios::binary) << Tone_File();
    Start_Program(
        "[MIDI]\nOutput=witness:input\nInput=sender:out\nAutoplay=0\nSoundcheck Note=48\n"
        "[Recent Files]\nTone1=" +
        file.string() + "\nTones=" + (folder_ / "Tones").string() + "/\n");
    Wait_For_Main_Window();
    for (const char* key : {"alt+f", "t", "1"}) {
        Press_Key(key);
        std::this_thread::sleep_for(300ms);
    }
    ASSERT_EQ(Witnessed(2).size(), 2U);

    // Home lifts a slider to its top, whatever value it had.
    std::string expected = Tone_File();
    std::size_t messages = 2;
    for (const Touched& slider : Ten_Sliders) {
        Move_To(slider.x, Menu_Height() + slider.y);
        Xdotool({"click", "1"});
        const std::size_t before = messages;
        Press_Key("Home");
        const std::string wanted = "f0 41 36 00 21 20 01 " + std::string(slider.parameter) + " 7f f7";
        while (messages < before + 4) {
            const Lines seen = Witnessed(messages + 1);
            messages = seen.size();
            if (seen.back() == wanted) break;
        }
        ASSERT_EQ(Witnessed(messages).back(), wanted);
        expected[static_cast<std::size_t>(7 + std::stoi(slider.parameter, nullptr, 16))] = '\x7F';
    }
    Move_To(Name_X, Menu_Height() + Name_Y);
    Xdotool({"click", "1"});
    ASSERT_TRUE(Wait_For_Focus("Tone Name"));
    Xdotool({"type", "ten"});
    Press_Key("Return");
    ASSERT_TRUE(Wait_For_Focus("Tonebench - " + Upper(file.string())));
    Press_Key("ctrl+s");
    std::this_thread::sleep_for(300ms);
    expected.replace(7, 10, "TEN       ");
    expected[17] = '\x20';
    EXPECT_EQ(Contents(file), expected);

    const std::string window = Xdotool({"getwindowfocus"});
    Xdotool({"windowmove", "--sync", window.substr(0, window.find('\n')), "137", "61"});
    Press_Key("ctrl+x");
    ASSERT_EQ(program_->Wait_For_End(10s), 0);
    const std::string settings = Settings();
    EXPECT_NE(settings.find("[Main Window]\nLeft=137\nTop=61\nWidth=541\nHeight=508\nState=0\n"),
              std::string::npos)
        << settings;
    EXPECT_NE(settings.find("Autoplay=0\n"), std::string::npos);
    EXPECT_NE(settings.find("Soundcheck Note=48\n"), std::string::npos);
    EXPECT_NE(settings.find("Tone1=" + Upper(file.string()) + "\n"), std::string::npos);
    const std::string folder = "\nTones=" + Lower((folder_ / "Tones").string()) + "/\n";
    EXPECT_NE(settings.find(folder), std::string::npos) << settings;

    std::this_thread::sleep_for(1s);  // the server looks after the client that has gone
    const std::size_t before = Witnessed(messages).size();
    Start_Program("");
    Wait_For_Main_Window();
    EXPECT_NE(Xdotool({"getwindowfocus", "getwindowgeometry"}).find("Position: 137,61"), std::string::npos);
    for (const char* key : {"alt+f", "t", "1"}) {
        Press_Key(key);
        std::this_thread::sleep_for(300ms);
    }
    const Lines seen = Witnessed(before + 2);
    ASSERT_GE(seen.size(), 2U);
    for (std::size_t last = 1; last <= 2; ++last) {
        const std::string& whole = seen[seen.size() - last];
        EXPECT_EQ((whole.size() + 1) / 3, 90U);
        EXPECT_EQ(whole.substr(0, 50), "f0 41 35 00 21 20 01 54 45 4e 20 20 20 20 20 20 20");
    }
}
