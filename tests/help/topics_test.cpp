#include "help/topics.h"

#include <gtest/gtest.h>

#include "fakes/stage.h"

namespace {

struct Row {
    int slot;
    const char* keyword;
    const char* description;
};

const char* const Press_The_Button = "Please press the 'How to use Tonebench' button for details.";

// clang-format off
const Row Rows[] = {
    {78, "Transpose (Sequencer)", "Selection of the base note of the Matrix and the MIDI Keyboard."},
    {79, "Preview setting", "Selecting a file in the File Dialog will display it in the Editor or Sequencer. If 'AutoPlay' is checked, a note or the actual Sequencer file will start playing."},
    {80, "using mouse, keyboard", Press_The_Button},
    {81, "MIDI keyboard (Sequencer)", "Click with the left button to play notes. Click with the right mouse button to stop playing the notes."},
    {82, "Sequencer", "In this window, you can edit basic sequences in the matrix or play notes with the MIDI keyboard (mouse only). The direction of the Sequence cycle can be changed or randomized (R1 : during a cycle, R2 : after a cycle). A Sequence can be transposed with the Range and Transpose parameters."},
    {83, "File Dialog", "Allows to browse Tone or Sequencer files. If you click on a file name (or select one with the cursors and press the blank), the file is being displayed and you will hear it, depending of the Preview setting in the 'Click on File Name' area."},
    {84, "Range (Sequencer)", "Selection of the base octave of the Matrix and the MIDI keyboard."},
    {85, "Matrix", "Simply click with the left or right mouse button onto the matrix to set notes."},
    {86, "Patch", "The Patch window contains all the additional parameters the JX-8P stores in the Patch Chain (the JX-8P does not store this values with a tone). Thanks to the sysex format, Tonebench is capable to make each tones has its own patch parameters."},
    {87, "Editor", "This is the main window of Tonebench. Here you can edit all the parameters of a tone and play notes or sequences."},
    {88, "MIDI setup", "Select the MIDI output where your JX-8P is connected, it's MIDI channel, if MIDI is enabled and if Tonebench should automatically send the data to the JX-8P"},
    {89, "Preload Sequence", "If checked, loads the last used Sequencer file when Tonebench starts."},
    {90, "MIDI System Exclusive (Sysex)", "Against the standard MIDI events like notes or controllers, Sysex permits to send specific data like tones and patches to the connected device. Tonebench makes use of Sysex messages. The trick with the Patch parameters consists in saving both Tone and Patch parameters together in a single Sysex file."},
    {91, "MIDI keyboard (Editor)", "Click with the left button to play some notes. If the Sequencer matrix is filled, then the notes of the first column in the Sequencer matrix will be played. Click with the right mouse button to stop the notes playing."},
    {92, "Keyboard", Press_The_Button},
    {93, "Mouse", Press_The_Button},
    {94, "Receive", "(Tone menu) Tonebench will wait for you to press a Tone button on your JX-8P to transmit this Tone into Tonebench. 'Receive' terminates automatically after transmission, but also can be cancelled by pressing the stop button in the Editor window. See 'JX-8P and Sysex' for additional information."},
    {95, "Save Positions", "(Windows menu) If checked, Tonebench saves size and postition settings of File Dialog, Tonebench (main window), Patch and Sequencer Windows."},
    {96, "MIDI Autoplay", "Tonebench plays automatically a note or the actual Sequencer file in the File Dialogs when clicking on a filename. See Preview settings."},
    {97, "MIDI Autosend", "Tonebench sends the Tone information of the selected file to the JX-8P automatically, in other case you have to select 'Tone Send' menu."},
    {98, "Random Tone", "The editor parameters are set by chance to give a completely new and unpredictable sound, but you still have to change some settings to make am interesting one."},
    {99, "INI file", "Tonebench saves its settings into the Tonebench.INI file located in the same directory. The INI file contains informations about Tonebench Window settings, MIDI setup and recently used files."},
    {100, "JX-8P and Sysex", "The JX-8P must be set in Sysex mode to send and recognize Sysex messages. Press the buttons 'MIDI' and then '2' and '6' on the JX-8P, then change to 'EXCLUSIVE ON', unprotect memory and press 'WRITE' to save this setting. Now the JX-8P automatically sends Sysex data when pressing a Tone button."},
};
// clang-format on

std::vector<std::string> About_Lines() {
    std::vector<std::string> lines;
    std::string text = Help_About_Text();
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
        lines.push_back(text.substr(0, end));
        text.erase(0, end + 2);
    }
    EXPECT_EQ(text, "") << "the last line has an end too";
    return lines;
}

}  // namespace

TEST(The_Topics, stand_in_these_slots_with_these_texts) {
    Help_Topics_Fill();
    ASSERT_EQ(std::size(Rows), 23U);
    for (const Row& row : Rows) {
        EXPECT_EQ(Help_Keywords.at(static_cast<std::size_t>(row.slot)), row.keyword);
        EXPECT_EQ(Help_Descriptions.at(static_cast<std::size_t>(row.slot)), row.description) << row.keyword;
    }
}

TEST(The_Topics, leave_the_slots_below_them_empty) {
    Help_Topics_Fill();
    ASSERT_EQ(Help_Keywords.size(), 101U);
    ASSERT_EQ(Help_Descriptions.size(), 101U);
    for (std::size_t slot = 0; slot < 78; ++slot) {
        EXPECT_EQ(Help_Keywords[slot], "") << slot;
        EXPECT_EQ(Help_Descriptions[slot], "") << slot;
    }
}

TEST(The_Topics, are_filled_in_when_the_window_loads_and_not_before) {
    for (const std::string& keyword : Help_Keywords) EXPECT_EQ(keyword, "");
    for (const std::string& description : Help_Descriptions) EXPECT_EQ(description, "");
}

TEST(The_Credits, have_twelve_names_with_a_reason_each_and_four_empty_slots) {
    const char* const names[] = {"Qt",           "RtMidi", "ALSA", "JACK",       "CMake",
                                 "Ninja",        "GCC",    "LLVM", "GoogleTest", "Google Benchmark",
                                 "X.Org's Xvfb", "Debian"};
    ASSERT_EQ(Help_Credit_Names.size(), 16U);
    ASSERT_EQ(Help_Credit_Reasons.size(), 16U);
    for (std::size_t index = 0; index < 16; ++index) {
        EXPECT_STREQ(Help_Credit_Names[index], index < 12 ? names[index] : "");
        EXPECT_EQ(*Help_Credit_Reasons[index] != '\0', index < 12) << index;
    }
}

TEST(The_About_Text, begins_with_these_lines) {
    const std::vector<std::string> lines = About_Lines();
    const std::vector<std::string> expected = {
        "Tonebench is an interactive editor for the Roland JX-8P synthesizer based on the design of the "
        "Roland "
        "Programmer PG-800. ",
        "Tonebench has additional features:",
        "\xB0 TONE and PATCH parameters",
        "\xB0 MIDI Sysex messages & files",
        "\xB0 Random sound generation",
        "\xB0 Built-in Sequencer",
        "",
        "",
        "Very special thanks to:",
        "",
        " \xB0 Qt",
    };
    ASSERT_GT(lines.size(), expected.size());
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 11), expected);
}

TEST(The_About_Text, thanks_each_project_with_its_reason_and_all_users_at_the_end) {
    const std::vector<std::string> lines = About_Lines();
    ASSERT_EQ(lines.size(), 10U + 12 * 3 + 1);
    for (std::size_t index = 0; index < 12; ++index) {
        EXPECT_EQ(lines[10 + index * 3], std::string(" \xB0 ") + Help_Credit_Names[index]);
        EXPECT_EQ(lines[11 + index * 3], std::string("    ") + Help_Credit_Reasons[index]);
        EXPECT_EQ(lines[12 + index * 3], "");
    }
    EXPECT_EQ(lines.back(), " \xB0 All Tonebench users");
}
