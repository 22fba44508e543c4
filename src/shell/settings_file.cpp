#include "shell/settings_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "filedlg/options.h"
#include "midi/out.h"
#include "platform/event_loop.h"
#include "platform/folder_list.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shell/frame.h"
#include "synth/profile.h"

namespace {

using Stored = std::optional<std::string>;  // nothing: the key keeps what it has

// -- readers and writers ---------------------------------------------------------------------------------

// The main window stands on whole pixels. Beyond 16 bits there is no screen.
template <int Window::*pixels>
void Read_Pixels(const std::string& text) {
    Main_Window.*pixels = To_Int16(Number_At_Start(text));
}
template <int Window::*pixels>
Stored Write_Pixels() {
    return Plain_Number(static_cast<float>(Main_Window.*pixels));
}

// Minimised and maximised windows have sizes of their own; the file keeps the one to come back to.
template <int Window::*pixels>
Stored Write_Normal_Size() {
    if (Main_Window.state != Window_State::Normal) return std::nullopt;
    return Write_Pixels<pixels>();
}

void Read_State(const std::string& text) {
    const auto number = To_Int16(Number_At_Start(text));
    if (number < 0 || number > static_cast<int>(Window_State::Maximised))
        throw Fatal_Error("No such state");
    Main_Window.state = static_cast<Window_State>(number);
}
Stored Write_State() {
    return std::to_string(static_cast<int>(Main_Window.state));
}

// Remembered places are twips here and pixels in the file. They are written at every exit, and only their
// reading hangs on the mark: switching it on brings back where the windows stood last.
template <std::int16_t& twips>
void Read_Place(const std::string& text) {
    if (!Menu(Menu_Windows_SavePos).checked) return;
    twips = To_Int16(Number_At_Start(text) * Twips_Per_Pixel());
}
template <std::int16_t& twips>
Stored Write_Place() {
    return Plain_Number(static_cast<float>(twips) / static_cast<float>(Twips_Per_Pixel()));
}

template <Menu_Id id>
void Read_Mark(const std::string& text) {
    Menu(id).checked = text == "1";
}
template <Menu_Id id>
Stored Write_Mark() {
    return Menu(id).checked ? "1" : "0";
}

template <std::uint8_t& on>
void Read_On(const std::string& text) {
    on = text == "1" ? 1 : 0;
}
// The opposite test, on purpose: a soundcheck that is on survives a damaged value, other options do not.
template <std::uint8_t& on>
void Read_Not_Off(const std::string& text) {
    on = text == "0" ? 0 : 1;
}
// A number that is no byte leaves 0 behind.
template <std::uint8_t& byte>
void Read_Byte(const std::string& text) {
    byte = 0;
    byte = Narrow<std::uint8_t>(Number_At_Start(text));
}
template <std::uint8_t& byte>
Stored Write_Byte() {
    return std::to_string(byte);
}

void Read_Synthesizer(const std::string& text) {
    Synthesizer = text;
}
Stored Write_Synthesizer() {
    return Synthesizer;
}

// Older files have this key; nothing ever read it.
Stored Write_Not_Used() {
    return "[Not used]";
}

template <int place>
void Read_Tone(const std::string& text) {
    Recent_Tone_Put(place, Upper_Text(text));
}
template <int place>
Stored Write_Tone() {
    return Recent_Tone(place);
}

template <int place>
void Read_Seq(const std::string& text) {
    Recent_Seq_Put(place, Upper_Text(text));
}
template <int place>
Stored Write_Seq() {
    return Recent_Seq(place);
}

template <std::string& folder>
void Read_Folder(const std::string& text) {
    folder = Folder_Or_Current(text);
}
template <std::string& folder>
Stored Write_Folder() {
    std::string path = folder;
    return Path_Add_Slash(path);
}

// -- the table -------------------------------------------------------------------------------------------

// What a first start has, by the system's version: borders were narrower before 3.95.
const char* Size(const char* now, const char* before) {
    return OS_Version() < 3.95 ? before : now;
}

constexpr const char* In_Current_Directory = nullptr;

struct Setting {
    int line;  // its place in the writing, and so in a file that is written from nothing
    const char* section;
    const char* key;
    const char* missing;
    void (*read)(const std::string& text);
    Stored (*write)();
};

// In the order of reading. The mark of the places stands before them.
// clang-format off
const std::array<Setting, 32> Settings = {{
//  line  section         key                    missing               read                            write
    { 1, "Main Window",  "Left",                "0",                  Read_Pixels<&Window::left>,     Write_Pixels<&Window::left>},
    { 2, "Main Window",  "Top",                 "0",                  Read_Pixels<&Window::top>,      Write_Pixels<&Window::top>},
    { 3, "Main Window",  "Width",               Size("541", "536"),   Read_Pixels<&Window::width>,    Write_Normal_Size<&Window::width>},
    { 4, "Main Window",  "Height",              Size("508", "502"),   Read_Pixels<&Window::height>,   Write_Normal_Size<&Window::height>},
    { 5, "Main Window",  "State",               "0",                  Read_State,                     Write_State},

    {19, "Windows",      "Save Positions",      "0",                  Read_Mark<Menu_Windows_SavePos>, Write_Mark<Menu_Windows_SavePos>},
    {15, "Windows",      "File Dialog Left",    "0",                  Read_Place<FD_Left>,            Write_Place<FD_Left>},
    {16, "Windows",      "File Dialog Top",     "0",                  Read_Place<FD_Top>,             Write_Place<FD_Top>},
    {17, "Windows",      "Patch Left",          "0",                  Read_Place<Patch_Left>,         Write_Place<Patch_Left>},
    {18, "Windows",      "Patch Top",           "0",                  Read_Place<Patch_Top>,          Write_Place<Patch_Top>},
    {20, "Windows",      "Sequencer Left",      "0",                  Read_Place<Seq_Window_Left>,    Write_Place<Seq_Window_Left>},
    {21, "Windows",      "Sequencer Top",       "0",                  Read_Place<Seq_Window_Top>,     Write_Place<Seq_Window_Top>},

    {14, "MIDI",         "Synthesizer",         "JX-8P",              Read_Synthesizer,               Write_Synthesizer},
    { 6, "MIDI",         "Autoplay",            "1",                  Read_On<MIDI_Autoplay>,         Write_Byte<MIDI_Autoplay>},
    { 7, "MIDI",         "Autosend",            "1",                  Read_On<MIDI_Autosend>,         Write_Byte<MIDI_Autosend>},
    { 8, "MIDI",         "Sequence Preload",    "0",                  Read_Mark<Menu_MIDI_Seq_Load>,  Write_Mark<Menu_MIDI_Seq_Load>},
    { 9, "MIDI",         "Soundcheck",          "0",                  Read_Not_Off<Soundcheck_Mode>,  Write_Byte<Soundcheck_Mode>},
    {10, "MIDI",         "Soundcheck Note",     "24",                 Read_Byte<Soundcheck_Note>,     Write_Byte<Soundcheck_Note>},
    {11, "MIDI",         "Soundcheck Velocity", "80",                 Read_Byte<Soundcheck_Velocity>, Write_Byte<Soundcheck_Velocity>},
    {12, "MIDI",         "Channel",             "",                   nullptr,                        Write_Byte<MIDI_Channel>},
    {13, "MIDI",         "Control Channel",     "",                   nullptr,                        Write_Not_Used},

    {25, "Recent Files", "Tone1",               "",                   Read_Tone<1>,                   Write_Tone<1>},
    {26, "Recent Files", "Tone2",               "",                   Read_Tone<2>,                   Write_Tone<2>},
    {27, "Recent Files", "Tone3",               "",                   Read_Tone<3>,                   Write_Tone<3>},
    {28, "Recent Files", "Tone4",               "",                   Read_Tone<4>,                   Write_Tone<4>},
    {29, "Recent Files", "Sequence1",           "",                   Read_Seq<1>,                    Write_Seq<1>},
    {30, "Recent Files", "Sequence2",           "",                   Read_Seq<2>,                    Write_Seq<2>},
    {31, "Recent Files", "Sequence3",           "",                   Read_Seq<3>,                    Write_Seq<3>},
    {32, "Recent Files", "Sequence4",           "",                   Read_Seq<4>,                    Write_Seq<4>},
    {22, "Recent Files", "Tones",               In_Current_Directory, Read_Folder<Dir_Tones>,         Write_Folder<Dir_Tones>},
    {23, "Recent Files", "Sequences",           In_Current_Directory, Read_Folder<Dir_Sequences>,     Write_Folder<Dir_Sequences>},
    {24, "Recent Files", "Oscillators",         In_Current_Directory, Read_Folder<Dir_Oscillators>,   Write_Folder<Dir_Oscillators>},
}};
// clang-format on

// -- reading and writing ---------------------------------------------------------------------------------

// A value that cannot be used is passed over: no damaged key keeps the others from being read.
void Read(const Setting& setting) {
    const std::string missing =
        setting.missing == In_Current_Directory ? Current_Directory() : setting.missing;
    const std::string text = Setting_Get(setting.section, setting.key, missing);
    try {
        setting.read(text);
    } catch (const Fatal_Error&) {
    }
}

// Each call puts its entry on top, so a full list comes out turned round, and is turned again at the next
// start. The entry is taken when its turn comes: the calls before have moved it.
void Build_Recent_Lists() {
    for (int place = 1; place <= 4; ++place) Recent_Tone_Add(Recent_Tone(place));
    for (int place = 1; place <= 4; ++place) Recent_Seq_Add(Recent_Seq(place));
}

void Read_All() {
    for (const Setting& setting : Settings) {
        if (setting.read != nullptr) Read(setting);
    }
    // Receiving works with an instrument that is set up for it, and is there for those who ask for it by
    // hand: no run writes this key.
    Menu(Menu_Tone_Receive).visible = Setting_Get("MIDI", "Receive", "0") == "1";
    // A window that was minimised at the end had its place far outside.
    Main_Window.left = std::max(0, Main_Window.left);
    Main_Window.top = std::max(0, Main_Window.top);
    Build_Recent_Lists();
}

void Write_All() {
    std::array<const Setting*, Settings.size()> lines = {};
    for (const Setting& setting : Settings) lines.at(static_cast<std::size_t>(setting.line - 1)) = &setting;
    std::vector<Setting_Value> values;
    for (const Setting* setting : lines) {
        if (Stored value = setting->write())
            values.push_back({setting->section, setting->key, std::move(*value)});
    }
    Settings_Put(values);
    Event_Loop_Turn();
}

}  // namespace

void Settings_Install() {
    Settings_Read = Read_All;
    Settings_Write = Write_All;
}
