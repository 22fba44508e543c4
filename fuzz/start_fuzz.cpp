// Any settings file at a start: every key with any value, twice, in any order, between any lines. The start
// reads it; each record is held against what the value means, computed here. Then the end writes it, and
// the next start finds the same again, with every foreign line where it was.
//
//   byte 0   how many output and input devices there are; 240 and above: the end and the next start too
//   then     steps: a key with its value, or a line
#include <array>
#include <cmath>
#include <optional>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "feed.h"
#include "filedlg/options.h"
#include "input_port.h"
#include "memory_disk.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "platform/text.h"
#include "profile_reading.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/profile.h"

namespace {

// The settings ask the real disk only whether their file is there, and this one is everywhere.
constexpr const char* Settings_Path = "/dev/null";

struct Key {
    const char* section;
    const char* key;
};
// clang-format off
constexpr std::array Keys = {
    Key{"Main Window", "Left"}, Key{"Main Window", "Top"}, Key{"Main Window", "Width"}, Key{"Main Window", "Height"},
    Key{"Main Window", "State"},
    Key{"Windows", "Save Positions"}, Key{"Windows", "File Dialog Left"}, Key{"Windows", "File Dialog Top"},
    Key{"Windows", "Patch Left"}, Key{"Windows", "Patch Top"}, Key{"Windows", "Sequencer Left"},
    Key{"Windows", "Sequencer Top"},
    Key{"MIDI", "Synthesizer"}, Key{"MIDI", "Autoplay"}, Key{"MIDI", "Autosend"}, Key{"MIDI", "Sequence Preload"},
    Key{"MIDI", "Soundcheck"}, Key{"MIDI", "Soundcheck Note"}, Key{"MIDI", "Soundcheck Velocity"},
    Key{"MIDI", "Channel"}, Key{"MIDI", "Control Channel"}, Key{"MIDI", "Input"}, Key{"MIDI", "Output"},
    Key{"MIDI", "Receive"},
    Key{"Recent Files", "Tone1"}, Key{"Recent Files", "Tone2"}, Key{"Recent Files", "Tone3"},
    Key{"Recent Files", "Tone4"}, Key{"Recent Files", "Sequence1"}, Key{"Recent Files", "Sequence2"},
    Key{"Recent Files", "Sequence3"}, Key{"Recent Files", "Sequence4"}, Key{"Recent Files", "Tones"},
    Key{"Recent Files", "Sequences"}, Key{"Recent Files", "Oscillators"},
};
// Values that lead somewhere.
constexpr std::array Values = {
    "1", "0", "2", "-5", "16", "17", "255", "256", "2184.5", "-2184.6", "32767", "32768", "1e4", "0.5", "1.5", "yes",
    "JX-8P", "MKS-70", "Alpha Juno", "alpha juno", "Out 1", "Out 2 ", "In 1", "Not configured", "/disk", "/DISK/",
    "/disk/one.syx", "/DISK/TWO.SYX", "/disk/three.syx", "/disk/four.syx", "/disk/five.syx", "/disk/a.seq",
    "/disk/b.seq", "/disk/0123456789012345678901234567890123456789012345678901234567.syx", "\"1\"", "'/disk'",
};
// clang-format on

const std::string& Text() {
    return Disk[Settings_Path];
}

Profile Values_Found;

// As the program sees a value: 63 bytes of it, without blanks.
std::string Value(const char* section, const std::string& key, const std::string& missing) {
    const auto& keys = Values_Found[Upper_Text(section)];
    const auto found = keys.find(Upper_Text(key));
    const std::string whole = found == keys.end() ? missing : found->second;
    return std::string(Trimmed(Cut_To_Bytes(whole.substr(0, whole.find('\0')), 63)));
}

std::optional<int> Whole_Number(double number, int lowest, int highest) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= lowest && rounded <= highest)) return std::nullopt;
    return static_cast<int>(rounded);
}

int Pixels(const char* key, const char* missing, int before) {
    return Whole_Number(Number_At_Start(Value("Main Window", key, missing)), -32768, 32767)
        .value_or(before);
}

int Place(const char* key) {
    if (Value("Windows", "Save Positions", "0") != "1") return 7;
    return Whole_Number(Number_At_Start(Value("Windows", key, "0")) * 15, -32768, 32767).value_or(7);
}

int Byte_Of(const char* key, const char* missing) {
    return Whole_Number(Number_At_Start(Value("MIDI", key, missing)), 0, 255).value_or(0);
}

using List = std::array<std::string, 4>;

bool There(const std::string& path) {
    for (const auto& [name, bytes] : Disk) {
        if (Same_Text(name, path)) return true;
    }
    return false;
}

// Four calls of the rule that puts a name in front, each with what stands at its place then.
List Turned_Round(List list) {
    for (int turn = 0; turn < 4; ++turn) {
        const std::string name(Trimmed(list.at(static_cast<std::size_t>(turn))));
        for (std::string& old : list) {
            std::string plain = old;
            if (plain.ends_with('/')) plain.pop_back();
            if (!There(plain)) old.clear();
        }
        if (name.empty()) continue;
        std::size_t from = 3;
        if (Same_Text(name, list[2])) {
            from = 2;
        } else if (Same_Text(name, list[1])) {
            from = 1;
        } else if (Same_Text(name, list[0])) {
            continue;
        }
        for (std::size_t place = from; place > 0; --place) list[place] = list[place - 1];
        list[0] = name;
    }
    return list;
}

List Stored_List(const char* name) {
    List list;
    for (std::size_t place = 0; place < 4; ++place)
        list.at(place) = Upper_Text(Value("Recent Files", name + std::to_string(place + 1), ""));
    return Turned_Round(list);
}

std::string Folder(const char* key) {
    std::string folder(Right_Trimmed(Lower_Text(Value("Recent Files", key, Disk_Folder))));
    if (!folder.ends_with('/')) folder += '/';
    std::string plain = folder;
    while (plain.size() > 1 && plain.ends_with('/')) plain.pop_back();
    return plain == Disk_Folder ? folder : Disk_Folder;
}

void Check_List(const List& list, const std::string& (*recent)(int), Menu_Id first) {
    for (int place = 1; place <= 4; ++place) {
        const std::string& name = list.at(static_cast<std::size_t>(place - 1));
        const Menu_Entry& entry = Menu(static_cast<Menu_Id>(first + place - 1));
        Check(recent(place) == name && entry.visible == !name.empty());
        if (entry.visible) Check(entry.caption == "&" + std::to_string(place) + " " + name);
    }
}

void Records_As_Before_A_Start() {
    Main_Window.left = Main_Window.top = Main_Window.width = Main_Window.height = 7;
    Main_Window.state = Window_State::Normal;
    FD_Left = FD_Top = Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 7;
    MIDI_Setup_Needed = 0;
    MIDI_Out_Device = MIDI_In_Device = 0;
    MIDI_Out_Name = MIDI_In_Name = "";
}

void Check_Device(const char* key, const std::vector<std::string>& names, std::int16_t device,
                  const std::string& chosen, bool& needed) {
    if (names.empty()) return;
    const std::string name = Value("MIDI", key, "Not configured");
    std::int16_t found = -1;
    for (std::size_t index = names.size(); index > 0; --index) {
        if (names[index - 1] == name) found = static_cast<std::int16_t>(index - 1);
    }
    needed = needed || found == -1;
    if (found >= 0) Check(device == found && chosen == name);
    if (found == -1) Check(chosen.empty());
}

void Start_And_Check() {
    Stand_Begin();
    Records_As_Before_A_Start();
    const std::string before = Text();
    Check(MIDI_Startup() == !(Stand.port_names.empty() && Input.names.empty()));
    Settings_Read();
    Check(Text() == before);

    Values_Found = Profile_Reading(Text());
    Check(Main_Window.left == std::max(0, Pixels("Left", "0", 7)));
    Check(Main_Window.top == std::max(0, Pixels("Top", "0", 7)));
    Check(Main_Window.width == Pixels("Width", "541", 7));
    Check(Main_Window.height == Pixels("Height", "508", 7));
    Check(static_cast<int>(Main_Window.state) ==
          Whole_Number(Number_At_Start(Value("Main Window", "State", "0")), 0, 2).value_or(0));
    Check(Menu(Menu_Windows_SavePos).checked == (Value("Windows", "Save Positions", "0") == "1"));
    Check(FD_Left == Place("File Dialog Left") && FD_Top == Place("File Dialog Top"));
    Check(Patch_Left == Place("Patch Left") && Patch_Top == Place("Patch Top"));
    Check(Seq_Window_Left == Place("Sequencer Left") && Seq_Window_Top == Place("Sequencer Top"));

    Check(Synthesizer == Value("MIDI", "Synthesizer", "JX-8P"));
    Check(MIDI_Autoplay == (Value("MIDI", "Autoplay", "1") == "1" ? 1 : 0));
    Check(MIDI_Autosend == (Value("MIDI", "Autosend", "1") == "1" ? 1 : 0));
    Check(Menu(Menu_MIDI_Seq_Load).checked == (Value("MIDI", "Sequence Preload", "0") == "1"));
    Check(Soundcheck_Mode == (Value("MIDI", "Soundcheck", "0") == "0" ? 0 : 1));
    Check(Soundcheck_Note == Byte_Of("Soundcheck Note", "24"));
    Check(Soundcheck_Velocity == Byte_Of("Soundcheck Velocity", "80"));
    const double channel = std::abs(Number_At_Start(Value("MIDI", "Channel", "1")));
    Check(MIDI_Channel == Whole_Number(channel, 1, 16).value_or(1));
    Check(Menu(Menu_Tone_Receive).visible == (Value("MIDI", "Receive", "0") == "1"));
    bool setup_needed = false;
    Check_Device("OUTPUT", Stand.port_names, MIDI_Out_Device, MIDI_Out_Name, setup_needed);
    Check_Device("INPUT", Input.names, MIDI_In_Device, MIDI_In_Name, setup_needed);
    Check((MIDI_Setup_Needed != 0) == setup_needed);

    Check_List(Stored_List("Tone"), Recent_Tone, Menu_File_SYX_1);
    Check_List(Stored_List("Sequence"), Recent_Seq, Menu_File_Seq_1);
    Check(Dir_Tones == Folder("Tones") && Dir_Sequences == Folder("Sequences"));
    Check(Dir_Oscillators == Folder("Oscillators"));
    // What a start with this settings file does with them.
    Sysex_Headers_Update();
    Seq_New_Reset();
    if (Menu(Menu_MIDI_Seq_Load).checked) Menu(Menu_File_Seq_1).chosen();
}

// The file as the input tells it.
std::string Written(Feed& feed) {
    std::string text;
    while (!feed.Empty()) {
        const std::uint8_t step = feed.Byte();
        if (step < 2 * Keys.size()) {
            const Key& key = Keys[step % Keys.size()];
            text += "[" + std::string(key.section) + "]\n" + key.key + "=";
            const std::size_t choice = feed.Byte();
            text += choice < 2 * Values.size() ? std::string(Values[choice % Values.size()])
                                               : std::string(feed.Text(80));
            text += '\n';
        } else {
            text += feed.Text(60);
            if (step % 2 == 0) text += '\n';
        }
    }
    return text;
}

// Lines that no run writes stay as they were, in their order.
std::string Foreign_Lines(std::string_view text) {
    std::string lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = text.substr(0, end);
        const bool known =
            line.find('=') != std::string_view::npos || line.find('[') != std::string_view::npos;
        if (!known && !Trimmed(line).empty()) lines.append(line).append("\n");
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor);
        Window_Load(Editor_Juno);
        Screen_PPI = 96;
        INI_File = Settings_Path;
        for (const char* name :
             {"one.syx", "Two.SYX", "three.syx", "four.syx", "five.syx", "b.SEQ", "a.seq"})
            Disk[std::string(Disk_Folder) + "/" + name] = "SEQ1" + std::string(106, '\x20');
        return true;
    }();
    (void)wired;
    Feed feed(data, size);
    const std::uint8_t devices = feed.Byte();
    Stand.port_names.clear();
    Input.names.clear();
    for (int index = 1; index <= devices % 3; ++index)
        Stand.port_names.push_back("Out " + std::to_string(index));
    for (int index = 1; index <= devices / 3 % 3; ++index)
        Input.names.push_back("In " + std::to_string(index));

    Disk[Settings_Path] = Written(feed);
    Start_And_Check();
    if (devices < 240) return 0;
    const std::string lines = Foreign_Lines(Text());
    Settings_Write();
    const std::string written = Text();
    Check(Foreign_Lines(written) == lines);
    Settings_Write();
    Check(Text() == written);
    Start_And_Check();
    return 0;
}
