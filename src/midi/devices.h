// Finds the system's MIDI devices at start and matches them with the names in the settings file.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// One record a device, in the system's order; the index opens it. Of what a system may tell about a
// device the program reads the name only.
struct MIDI_Caps {
    std::string name;  // cut at the first zero character, without blanks at its ends
};

extern std::vector<MIDI_Caps> MIDI_Out_Caps;
extern std::vector<MIDI_Caps> MIDI_In_Caps;

// Names of the selected devices: as the settings file had them at start, and as the setup dialog's last Ok
// chose them.
extern std::string MIDI_Out_Name;
extern std::string MIDI_In_Name;
extern std::string MIDI_Out_Chosen;
extern std::string MIDI_In_Chosen;

// 1 = the setup dialog must open at the end of the start-up.
extern std::int16_t MIDI_Setup_Needed;

// Enumerates the devices, reads the channel and checks the configured devices, with a box for each thing
// that is wrong. True when there is any device.
bool MIDI_Startup();

// Fills the two tables and sets MIDI_Enabled. True when there is any device.
bool MIDI_Enumerate();

// Reads "Channel", "OUTPUT" and "INPUT". A device that is not configured or not there asks for the setup
// dialog.
void MIDI_Check_Config();

// Index of the first device of that name (blanks at its ends do not count, case does), or -1.
std::int16_t MIDI_Find_Out(const std::string& name);
std::int16_t MIDI_Find_In(const std::string& name);
