// The entries that say how the next start finds the windows and the sequence.
#pragma once

// Whether the next start puts the windows back to their stored places: flips the mark.
void Menu_Windows_SavePos_Chosen();

// Asks, then gives the main window its first size and all windows the screen's corner. The settings file
// learns of it at the end of the program.
void Menu_Windows_Reset_Chosen();

// Whether the next start loads the first recent sequence: flips the mark.
void Menu_MIDI_Seq_Load_Chosen();

// Gives the entries of the menu bar their procedures.
void Window_Commands_Install();
