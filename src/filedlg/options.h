// What the file window keeps from run to run: its place and how it lets a tone be heard.
#pragma once

#include <cstdint>

// The window's remembered place, in twips.
extern std::int16_t FD_Left;
extern std::int16_t FD_Top;

extern std::uint8_t Soundcheck_Mode;  // what a preview plays: 0 the note below, 1 the sequence
extern std::uint8_t Soundcheck_Note;
extern std::uint8_t Soundcheck_Velocity;
