// Names of MIDI ports as users and the settings file know them, made from the service's own names.
//
//      "UM-ONE:UM-ONE MIDI 1 20:0"    "UM-ONE:UM-ONE MIDI 1"
//      "UM-ONE:UM-ONE MIDI 1 24:0"    "UM-ONE:UM-ONE MIDI 1 (2)"
//
// ALSA's tail is the port's address. It changes with the order in which devices are plugged in, so a
// name that keeps it would not be found again at the next start.
#pragma once

#include <string>
#include <vector>

// As much as a value of the settings file can bring back.
inline constexpr std::size_t Longest_Port_Name = 63;

// One name for each raw name, in the same order: cut at a zero character, without ALSA's tail and without
// blanks at its ends, at most 63 bytes of whole UTF-8 characters, and no two alike. Of equal names the
// first stays as it is, the others get " (2)", " (3)"; the mark counts in the 63 bytes. Control characters
// become blanks, since a name is one line of the settings file, and bytes that are no UTF-8 become "?".
// An empty name stays empty; a second one becomes "(2)".
std::vector<std::string> Port_Names_Stable(const std::vector<std::string>& raw);
