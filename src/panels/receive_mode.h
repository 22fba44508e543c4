// Receive mode: the program waits for the instrument to send a tone. The panels' start button shows the
// record state, the menus are locked, and the Stop button is the way out.
#pragma once

#include <cstdint>
#include <string>

extern std::uint8_t MIDI_Autosend_Saved;  // MIDI_Autosend as it was before the mode
extern std::string MIDI_Display_Saved;    // Tone_Name_Text as it was before the mode

// Fills in MIDI_Receive_Toggle.
void Receive_Mode_Install();
