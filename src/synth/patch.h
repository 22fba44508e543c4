// The JX-8P's performance settings, which the instrument keeps apart from a tone. The index is the
// parameter number at patch level.
//
//   0 bend range   1 portamento time   2 portamento switch   3 key mode   4 after touch
//   5 bend LFO depth   6 unison detune   7, 8 never used
#pragma once

#include <array>
#include <cstdint>

inline constexpr std::size_t Patch_Size = 9;
inline constexpr std::uint8_t Patch_Sent_Count = 7;  // messages and files hold 0 to 6
inline constexpr std::size_t Patch_Pitch_Bend_Range = 0;
inline constexpr std::size_t Patch_Portamento_Time = 1;
inline constexpr std::size_t Patch_Portamento_Switch = 2;
inline constexpr std::size_t Patch_Key_Mode = 3;
inline constexpr std::size_t Patch_After_Touch = 4;
inline constexpr std::size_t Patch_Pitch_Bend_LFO = 5;
inline constexpr std::size_t Patch_UDTune = 6;

extern std::array<std::uint8_t, Patch_Size> Patch_Data;

// The byte of a parameter, checked: a number above 8 is a programming mistake (Fatal_Error).
std::uint8_t& Patch_Byte(std::size_t number);

// The values of a New tone: all 0, detune at its centre 64.
void Patch_Init();
