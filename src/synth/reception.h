// Takes over a tone that the instrument has sent.
//
//      bytes 1 to 7    F0 41 35 cc 21 20 01
//      bytes 8 to 66   the 59 bytes of Tone_Data
//      byte 67         F7
//
// Nothing of this is looked at but the length.
#pragma once

// Fills in MIDI_In_Message.
void Reception_Install();
