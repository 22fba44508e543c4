// What the menu's entries do, as far as they are not another room's whole procedure.
#pragma once

// All notes off, the sequencer stopped, the port closed; it opens again at the next send.
void MIDI_CloseOutput_Chosen();

// Stops a running sequencer and opens the setup dialog, unless a dialog is open.
void MIDI_Setup_Chosen();

// The whole tone with fresh headers, also when automatic sending is off.
void Tone_Send_Chosen();

// Opens the Patch window in its remembered place, or brings the open one back there. The patch level of the
// MKS-70 is only begun, so that instrument is answered with a message.
void Tone_Patch_Chosen();

// Gives the entries of the menu bar their procedures.
void Commands_Install();
