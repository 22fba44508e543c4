// The messages that carry a tone: built as token text, turned into bytes by Sysex_Text_To_Bytes just
// before they go out. cc is the channel less one, ff the profile's format byte (21, 24 or 23).
//
//   one tone parameter   F0 41 36 cc ff 20 01 pp vv F7
//   one patch parameter  F0 41 36 cc 21 30 01 pp vv F7          21 whatever the profile
//   name                 F0 41 36 cc ff 20 01 00 x0 ... 09 x9 0F
//                        F0 41 36 cc 23 20 01 24 x0 ... 2D x9 0F or F7   of an Alpha Juno, in its code
//   whole tone           F0 41 35 cc ff 20 01 (59 bytes) 24 07
//                        F0 41 36 cc ff 30 01 00 p0 ... 06 p6 F7
//
// The last byte of the name message and the 24 07 in the whole tone come from the text stage and are what
// the instrument is used to get; see messages.cpp.
#pragma once

#include <cstddef>
#include <string>

#include "midi/out.h"

// Long-lived and overwritten at each use.
extern std::string Sysex_Text;        // whole tone: the text while it is built, the bytes after it
extern std::string Sysex_Param_Text;  // the text of the last single-parameter or name message

// Leaves the bytes of the whole-tone message in Sysex_Text: 90 of them, whatever the values. With the
// Alpha Juno profile there is no patch header, and so seven less.
void Tone_Message_Build();

// Sends the whole tone. Does nothing unless MIDI_Enabled is 1, and does not look at MIDI_Autosend. It is
// the JX-8P's for every instrument: an Alpha Juno hears of its own record by its parameters and its name
// alone.
void Tone_Send();

// One parameter each. Do nothing unless MIDI_Autosend and MIDI_Enabled are 1. A number beyond the record
// is a programming mistake (Fatal_Error).
void Editor_Send_Param(std::size_t parameter);
void Patch_Send_Param(std::size_t parameter);
void Patch_MKS70_Param_Send(std::size_t index);

// The same for Juno_Data, but for a text that Sysex_Param_Text holds already, whoever wrote it: that one is
// not sent again.
void Juno_Send_Param(std::size_t parameter);

// The ten name bytes of the instrument's record, under the same guard.
void Tone_Name_Send();
