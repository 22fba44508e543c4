// Tones on the disk: a capture of the messages that carry them, extension ".syx". The patch parameters ride
// along, as the instrument does not keep them with a tone.
//
//   JX-8P, MKS-70: 89 bytes                             Alpha Juno: 57 bytes
//    0   7  F0 41 35 cc 21 20 01   tone header           0   7  F0 41 35 cc 23 20 01
//    7  10  name                                         7  49  record
//   17  49  parameters                                  56   1  F7
//   66   1  F7
//   67   7  F0 41 36 cc 21 30 01   patch header
//   74  14  00 p0 01 p1 ... 06 p6
//   88   1  F7
//
// cc is the channel at the time of the save; nobody asks for it on reading. The format byte is 21 for the
// MKS-70 too: its files are JX-8P files, and the instrument's own, with 24, are not read. Unlike the sent
// message (messages.h) the tone ends in a true F7 here.
//
// Written here: Tone_Data and Patch_Data as a whole, and which file is the current one.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/hook.h"

inline constexpr std::size_t SYX_Size = 89;
inline constexpr const char* SYX_Mode_Open = "Open";

// The file's bytes as the last SYX_Image_Build left them.
extern std::array<std::uint8_t, SYX_Size> SYX_Image;

// True when the last SYX_Load came upon a tone, whatever its mode.
extern bool SYX_Tone_Found;

// Fills SYX_Image for the instrument and returns how many bytes of it count.
std::size_t SYX_Image_Build();

// Writes the tone to Tone_File_Name, over the start of a longer file. A failure is shown and leaves the
// tone as unsaved as it was.
void SYX_Save();

// Reads a file into the tone. With the mode "Open" it becomes the current file; with any other
// ("Soundcheck") the tone is only read. Tone_Saved and the undo copies are not touched.
void SYX_Load(std::string path, const std::string& mode);

// Filled in by the file window: asks for a name, saves, and returns when the window has closed. Whether the
// tone was saved stands in Tone_Saved.
extern Hook<void()> SYX_Save_As;

// Filled in by the file window: a file was opened.
extern Hook<void()> Tone_File_Loaded;
