#include "midi/devices.h"

#include <cmath>
#include <string_view>

#include "desk/settings.h"
#include "midi/in.h"
#include "midi/out.h"
#include "platform/message_box.h"
#include "platform/text.h"

namespace {

constexpr const char* Not_Configured = "Not configured";
constexpr std::uint8_t Last_Channel = 16;

std::string Clean_Name(std::string_view name) {
    return std::string(Trimmed(Cut_At_Zero(name)));
}

std::vector<MIDI_Caps> Caps_Of(const std::vector<std::string>& names) {
    std::vector<MIDI_Caps> caps;
    for (const std::string& name : names) caps.push_back({Clean_Name(name)});
    return caps;
}

std::int16_t Find(const std::vector<MIDI_Caps>& caps, std::string_view name) {
    name = Trimmed(name);
    for (std::size_t index = 0; index < caps.size(); ++index) {
        if (caps[index].name == name) return static_cast<std::int16_t>(index);
    }
    return -1;
}

void Read_Channel() {
    const double channel = std::abs(Number_At_Start(Setting_Get("MIDI", "Channel", "1")));
    const double whole = Round_Half_Even(channel);
    MIDI_Channel = whole >= 1 && whole <= Last_Channel ? static_cast<std::uint8_t>(whole) : 1;
}

// One side of the check; `direction` is the word that tells it in the boxes.
void Check_Device(const char* key, const std::string& direction, const std::vector<MIDI_Caps>& caps,
                  std::int16_t& device, std::string& device_name) {
    const std::string name = Clean_Name(Setting_Get("MIDI", key, Not_Configured));
    if (name == Not_Configured) {
        Message_Box("MIDI " + direction + " device not configured - starting MIDI setup.");
        MIDI_Setup_Needed = 1;
        return;
    }
    // The index is stored also when it is -1: a missing device must not play on another one.
    device = Find(caps, name);
    if (device == -1) {
        Message_Box("MIDI " + direction + " device (" + name + ") not available - starting MIDI setup.");
        MIDI_Setup_Needed = 1;
        return;
    }
    device_name = name;
}

}  // namespace

std::vector<MIDI_Caps> MIDI_Out_Caps;
std::vector<MIDI_Caps> MIDI_In_Caps;
std::string MIDI_Out_Name;
std::string MIDI_In_Name;
std::string MIDI_Out_Chosen;
std::string MIDI_In_Chosen;
std::int16_t MIDI_Setup_Needed = 0;

bool MIDI_Startup() {
    const bool found = MIDI_Enumerate();
    MIDI_Check_Config();
    MIDI_Receiving = 0;
    return found;
}

bool MIDI_Enumerate() {
    MIDI_Out_Caps = Caps_Of(Port_Out_Names());
    if (!MIDI_Out_Caps.empty()) {
        MIDI_Enabled = 1;
    } else {
        Message_Box("No MIDI output device installed. MIDI functions disabled");
        MIDI_Enabled = 0;
        MIDI_Autosend = 0;
    }
    MIDI_Out_Handle = Port_Closed;

    MIDI_In_Caps = Caps_Of(Port_In_Names());
    if (!MIDI_In_Caps.empty()) {
        MIDI_In_Missing = Flag_16::False;
        // Also without any output device: the first send then fails and switches MIDI off.
        MIDI_Enabled = 1;
    } else {
        MIDI_In_Missing = Flag_16::True;
        Message_Box("No MIDI input device installed. MIDI IN functions disabled");
    }
    MIDI_In_Handle = Port_Closed;
    return !MIDI_In_Caps.empty() || !MIDI_Out_Caps.empty();
}

void MIDI_Check_Config() {
    Read_Channel();
    // So that the keyboard button can play a sequence's notes before anything else has set it.
    Seq_Status = Note_On_Status(MIDI_Channel);
    if (MIDI_Enabled != 1) return;
    if (!MIDI_Out_Caps.empty()) {
        Check_Device("OUTPUT", "output", MIDI_Out_Caps, MIDI_Out_Device, MIDI_Out_Name);
    }
    if (!MIDI_In_Caps.empty() && !Is_True(MIDI_In_Missing)) {
        Check_Device("INPUT", "input", MIDI_In_Caps, MIDI_In_Device, MIDI_In_Name);
    }
}

std::int16_t MIDI_Find_Out(const std::string& name) {
    return Find(MIDI_Out_Caps, name);
}

std::int16_t MIDI_Find_In(const std::string& name) {
    return Find(MIDI_In_Caps, name);
}
