// The file window of the program itself: files are pressed and heard, saved, and folders made and deleted.
#include <fstream>
#include <set>
#include <sstream>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

// Places on the window, which stands in the corner of the screen.
constexpr int Files_X = 100;
constexpr int First_File_Y = 80;
constexpr int Folders_X = 380;
constexpr int First_Folder_Y = 40;
constexpr int Row_Height = 20;
constexpr int Newdir_X = 485;
constexpr int Delete_X = 513;
constexpr int Small_Buttons_Y = 219;

constexpr int Range_X = 27;
constexpr int Range_Y = 70;

std::string Tone_File(char letter) {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    bytes.append(10, letter);
    bytes.append(49, '\x21');
    bytes += '\xF7';
    bytes.append("\xF0\x41\x36\x00\x21\x30\x01", 7);
    for (int number = 0; number < 7; ++number) bytes += std::string{static_cast<char>(number), '\x10'};
    return bytes + '\xF7';
}

// The whole tone as the witness prints it.
std::string Sent_Tone(const std::string& letter) {
    std::string line = "f0 41 35 00 21 20 01";
    for (int index = 0; index < 10; ++index) line += " " + letter;
    for (int index = 0; index < 49; ++index) line += " 21";
    line += " 24 07 f0 41 36 00 21 30 01";
    for (int number = 0; number < 7; ++number) line += " 0" + std::to_string(number) + " 10";
    return line + " f7";
}

std::string Contents(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::set<std::string> Names_In(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

}  // namespace

class Files_On_The_Desktop : public Desktop {
  protected:
    std::filesystem::path Tones() const { return folder_ / "tones"; }

    void Click_At(int x, int y) {
        Move_To(x, y);
        Xdotool({"click", "1"});
    }
    void Press_File(int row) { Click_At(Files_X, First_File_Y + row * Row_Height); }
    // Row 0 of the folder that is shown is the folder itself.
    void Press_Folder(int row) {
        const std::filesystem::path shown = Tones();
        const auto levels = std::distance(shown.begin(), shown.end()) - 1;
        Click_At(Folders_X, First_Folder_Y + (static_cast<int>(levels) + row) * Row_Height);
    }
    void Save_As(const std::string& name) {
        for (const char* key : {"alt+f", "t", "a"}) {
            Press_Key(key);
            std::this_thread::sleep_for(300ms);
        }
        ASSERT_TRUE(Wait_For_Focus("Save Tone File"));
        std::this_thread::sleep_for(200ms);
        Xdotool({"type", name});
        Press_Key("Return");
    }
    void Say_Yes_To_Delete(int x) {
        Click_At(x, Small_Buttons_Y);
        for (int round = 0; round < 100 && Windows_Named("Tonebench") < 2; ++round) {
            std::this_thread::sleep_for(50ms);
        }
        std::this_thread::sleep_for(200ms);
        Press_Key("alt+y");
        EXPECT_TRUE(Wait_For_Focus("Open Tone File"));
    }
};

TEST_F(Files_On_The_Desktop, are_pressed_and_heard_saved_and_deleted) {
    Start_Jack();
    std::filesystem::create_directory(Tones());
    for (const char letter : {'a', 'b', 'c'}) {
        std::ofstream(Tones() / (std::string(1, letter) + ".syx"), std::ios::binary) << Tone_File(letter);
    }
    Start_Program(
        "[MIDI]\nOutput=witness:input\nInput=sender:out\nAutoplay=1\nAutosend=1\n"
        "Soundcheck Note=48\nSoundcheck Velocity=100\n[Recent Files]\nTones=" +
        Tones().string() + "\n");
    Wait_For_Main_Window();

    // Three files in turn.
    Press_Key("ctrl+o");
    ASSERT_TRUE(Wait_For_Focus("Open Tone File"));
    std::this_thread::sleep_for(200ms);
    std::size_t heard = 0;
    for (int row = 0; row < 3; ++row) {
        Press_File(row);
        Lines lines = Witnessed(heard + 3);
        const auto tone_came = Clock::now();
        ASSERT_EQ(lines.size(), heard + 3);
        EXPECT_EQ(lines[heard], "b0 7b 00");
        const std::string tone = Sent_Tone("6" + std::to_string(row + 1));
        EXPECT_EQ(lines[heard + 1].substr(0, 177), tone.substr(0, 177)) << "with the patch before";
        EXPECT_EQ(lines[heard + 2], tone);
        lines = Witnessed(heard + 4);
        ASSERT_EQ(lines.size(), heard + 4);
        EXPECT_EQ(lines[heard + 3], "90 30 64");
        const auto later = Clock::now() - tone_came;
        EXPECT_GT(later, 1500ms);
        EXPECT_LT(later, 3500ms);
        heard += 4;
    }
    Press_Key("Escape");
    EXPECT_EQ(Witnessed(heard + 1).back(), "b0 7b 00");

    // Save under a new name, then over it: No, and Yes.
    Save_As("New Tone");
    ASSERT_TRUE(Wait_For_Focus("Tonebench"));
    EXPECT_EQ(Contents(Tones() / "new tone.syx"), Tone_File('c'));
    EXPECT_EQ(Witnessed(heard + 3)[heard + 1], Sent_Tone("63")) << "sent again";
    Click_At(Range_X, Menu_Height() + Range_Y);
    Press_Key("Home");
    Save_As("new tone");
    ASSERT_TRUE(Wait_For_Focus("Write TONE file"));
    std::this_thread::sleep_for(200ms);
    Press_Key("alt+n");
    ASSERT_TRUE(Wait_For_Focus("Save Tone File"));
    EXPECT_EQ(Contents(Tones() / "new tone.syx"), Tone_File('c'));
    std::this_thread::sleep_for(200ms);
    Press_Key("Return");
    ASSERT_TRUE(Wait_For_Focus("Write TONE file"));
    std::this_thread::sleep_for(200ms);
    Press_Key("alt+y");
    ASSERT_TRUE(Wait_For_Focus("Tonebench"));
    std::string changed = Tone_File('c');
    changed[18] = '\x7F';
    EXPECT_EQ(Contents(Tones() / "new tone.syx"), changed);

    // A new folder; a file and the folder deleted.
    Press_Key("ctrl+o");
    ASSERT_TRUE(Wait_For_Focus("Open Tone File"));
    std::this_thread::sleep_for(200ms);
    Press_Folder(0);
    Click_At(Newdir_X, Small_Buttons_Y);
    ASSERT_TRUE(Wait_For_Focus("Create new folder"));
    std::this_thread::sleep_for(200ms);
    Xdotool({"type", "Pads"});
    Press_Key("Return");
    ASSERT_TRUE(Wait_For_Focus("Open Tone File"));
    EXPECT_EQ(Names_In(Tones()),
              (std::set<std::string>{"a.syx", "b.syx", "c.syx", "new tone.syx", "pads"}));
    Press_File(0);
    Say_Yes_To_Delete(Delete_X);
    EXPECT_EQ(Names_In(Tones()), (std::set<std::string>{"b.syx", "c.syx", "new tone.syx", "pads"}));
    Press_Folder(1);
    Say_Yes_To_Delete(Delete_X);
    EXPECT_EQ(Names_In(Tones()), (std::set<std::string>{"b.syx", "c.syx", "new tone.syx"}));

    Press_Key("Escape");
    ASSERT_TRUE(Wait_For_Focus("Tonebench"));
    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
    EXPECT_NE(Settings().find("Tones=" + Tones().string() + "/\n"), std::string::npos);
    EXPECT_NE(Settings().find("Soundcheck Note=48\n"), std::string::npos);
}
