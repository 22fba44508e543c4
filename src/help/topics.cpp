#include "help/topics.h"

#include "platform/numbers.h"

namespace {

struct Topic {
    const char* keyword;
    const char* description;
};

constexpr std::size_t First_Slot = 78;

// In the order of their slots; the list on the window is sorted.
// clang-format off
constexpr std::array Topics = {
    Topic{"Transpose (Sequencer)",
          "Selection of the base note of the Matrix and the MIDI Keyboard."},
    Topic{"Preview setting",
          "Selecting a file in the File Dialog will display it in the Editor or Sequencer. If 'AutoPlay' is "
          "checked, a note or the actual Sequencer file will start playing."},
    Topic{"using mouse, keyboard",
          "Please press the 'How to use Tonebench' button for details."},
    Topic{"MIDI keyboard (Sequencer)",
          "Click with the left button to play notes. Click with the right mouse button to stop playing the "
          "notes."},
    Topic{"Sequencer",
          "In this window, you can edit basic sequences in the matrix or play notes with the MIDI keyboard "
          "(mouse only). The direction of the Sequence cycle can be changed or randomized (R1 : during a "
          "cycle, R2 : after a cycle). A Sequence can be transposed with the Range and Transpose parameters."},
    Topic{"File Dialog",
          "Allows to browse Tone or Sequencer files. If you click on a file name (or select one with the "
          "cursors and press the blank), the file is being displayed and you will hear it, depending of the "
          "Preview setting in the 'Click on File Name' area."},
    Topic{"Range (Sequencer)",
          "Selection of the base octave of the Matrix and the MIDI keyboard."},
    Topic{"Matrix",
          "Simply click with the left or right mouse button onto the matrix to set notes."},
    Topic{"Patch",
          "The Patch window contains all the additional parameters the JX-8P stores in the Patch Chain (the "
          "JX-8P does not store this values with a tone). Thanks to the sysex format, Tonebench is capable to "
          "make each tones has its own patch parameters."},
    Topic{"Editor",
          "This is the main window of Tonebench. Here you can edit all the parameters of a tone and play "
          "notes or sequences."},
    Topic{"MIDI setup",
          "Select the MIDI output where your JX-8P is connected, it's MIDI channel, if MIDI is enabled and if "
          "Tonebench should automatically send the data to the JX-8P"},
    Topic{"Preload Sequence",
          "If checked, loads the last used Sequencer file when Tonebench starts."},
    Topic{"MIDI System Exclusive (Sysex)",
          "Against the standard MIDI events like notes or controllers, Sysex permits to send specific data "
          "like tones and patches to the connected device. Tonebench makes use of Sysex messages. The trick "
          "with the Patch parameters consists in saving both Tone and Patch parameters together in a single "
          "Sysex file."},
    Topic{"MIDI keyboard (Editor)",
          "Click with the left button to play some notes. If the Sequencer matrix is filled, then the notes "
          "of the first column in the Sequencer matrix will be played. Click with the right mouse button to "
          "stop the notes playing."},
    Topic{"Keyboard",
          "Please press the 'How to use Tonebench' button for details."},
    Topic{"Mouse",
          "Please press the 'How to use Tonebench' button for details."},
    Topic{"Receive",
          "(Tone menu) Tonebench will wait for you to press a Tone button on your JX-8P to transmit this Tone "
          "into Tonebench. 'Receive' terminates automatically after transmission, but also can be cancelled "
          "by pressing the stop button in the Editor window. See 'JX-8P and Sysex' for additional "
          "information."},
    Topic{"Save Positions",
          "(Windows menu) If checked, Tonebench saves size and postition settings of File Dialog, Tonebench "
          "(main window), Patch and Sequencer Windows."},
    Topic{"MIDI Autoplay",
          "Tonebench plays automatically a note or the actual Sequencer file in the File Dialogs when "
          "clicking on a filename. See Preview settings."},
    Topic{"MIDI Autosend",
          "Tonebench sends the Tone information of the selected file to the JX-8P automatically, in other "
          "case you have to select 'Tone Send' menu."},
    Topic{"Random Tone",
          "The editor parameters are set by chance to give a completely new and unpredictable sound, but you "
          "still have to change some settings to make am interesting one."},
    Topic{"INI file",
          "Tonebench saves its settings into the Tonebench.INI file located in the same directory. The INI "
          "file contains informations about Tonebench Window settings, MIDI setup and recently used files."},
    Topic{"JX-8P and Sysex",
          "The JX-8P must be set in Sysex mode to send and recognize Sysex messages. Press the buttons 'MIDI' "
          "and then '2' and '6' on the JX-8P, then change to 'EXCLUSIVE ON', unprotect memory and press "
          "'WRITE' to save this setting. Now the JX-8P automatically sends Sysex data when pressing a Tone "
          "button."},
};
// clang-format on
static_assert(First_Slot + Topics.size() == Help_Slots);

constexpr const char* Line_End = "\r\n";
constexpr const char* Bullet = "\xB0 ";  // the degree sign

constexpr const char* About_Start[] = {
    "Tonebench is an interactive editor for the Roland JX-8P synthesizer "
    "based on the design of the Roland Programmer PG-800. ",
    "Tonebench has additional features:",
};
constexpr const char* Features[] = {
    "TONE and PATCH parameters",
    "MIDI Sysex messages & files",
    "Random sound generation",
    "Built-in Sequencer",
};

}  // namespace

std::array<std::string, Help_Slots> Help_Keywords;
std::array<std::string, Help_Slots> Help_Descriptions;

// clang-format off
const std::array<const char*, Help_Credits> Help_Credit_Names = {
    "Qt", "RtMidi", "ALSA", "JACK", "CMake", "Ninja", "GCC", "LLVM", "GoogleTest", "Google Benchmark",
    "X.Org's Xvfb", "Debian", "", "", "", "",
};
const std::array<const char*, Help_Credits> Help_Credit_Reasons = {
    "Windows, events, timers and sharp drawings",
    "One way to the MIDI ports, whatever serves them",
    "The MIDI ports of Linux",
    "MIDI between programs, and the witness of our tests",
    "Says how the program is built",
    "Builds it, and only what has changed",
    "The compiler of the program you are running",
    "Looks for mistakes, keeps the sources in form, drives the fuzz tests",
    "Every promise of the program is a test of it",
    "Measures that a dragged slider is heard at once",
    "The screen on which the whole program is tested",
    "The system that Tonebench is made for and made on",
    "", "", "", "",
};
// clang-format on

void Help_Topics_Fill() {
    for (std::size_t index = 0; index < Topics.size(); ++index) {
        Help_Keywords[First_Slot + index] = Topics[index].keyword;
        Help_Descriptions[First_Slot + index] = Topics[index].description;
    }
}

std::string Help_About_Text() {
    std::string text;
    const auto Add_Line = [&text](const std::string& line) { text += line + Line_End; };
    for (const char* line : About_Start) Add_Line(line);
    for (const char* feature : Features) Add_Line(std::string(Bullet) + feature);
    Add_Line("");
    Add_Line("");
    Add_Line("Very special thanks to:");
    Add_Line("");
    for (std::size_t index = 0; index < Help_Credits; ++index) {
        const std::string name = Help_Credit_Names[index];
        if (name.empty()) continue;
        Add_Line(" " + (Bullet + name));
        Add_Line("    " + std::string(Help_Credit_Reasons[index]));
        Add_Line("");
    }
    Add_Line(" " + (Bullet + std::string("All Tonebench users")));
    return text;
}
