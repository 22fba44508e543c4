// Which instrument is edited: one text, and all that hangs on it.
//
//                          JX-8P                 MKS-70                Alpha Juno
//   panel                  Editor                Editor                Editor_Juno
//   format byte            21                    24                    23
//   patch headers          yes                   yes                   empty
//
// The MKS-70 profile is the JX-8P's with another format byte in the headers.
#pragma once

#include <string>

extern std::string Synthesizer;  // "JX-8P", "MKS-70" or "Alpha Juno"; as read from the settings, unchecked

// Token texts (see tokens.h), each ending in a blank. Written by Sysex_Headers_Update.
extern std::string Sysex_Header_APR;         // whole tone, opcode 35
extern std::string Sysex_Header_IPR;         // single tone parameter and name, opcode 36
extern std::string Sysex_Header_APR_Tone_B;  // second tone of the MKS-70
extern std::string Sysex_Header_IPR_Tone_B;
extern std::string Sysex_Header_APR_Patch;  // patch level
extern std::string Sysex_Header_IPR_Patch;

bool Is_Alpha_Juno();

// Rewrites the headers for Synthesizer and MIDI_Channel, and brings up the instrument's panel with its
// menu entries. A text that is none of the three literals leaves everything as it was. The Tone B headers
// keep their old text outside the MKS-70 profile; nothing reads them there.
void Sysex_Headers_Update();
