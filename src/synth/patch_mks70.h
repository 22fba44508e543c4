// The patch level of the MKS-70, as far as it is begun: a patch joins two tones, A and B. Its record takes
// part in no message of a whole tone, no file, no Undo and no Random; it keeps its contents for the run.
//
//   20 split point of A    29 tone number of A    32 detune of A
//   21 split point of B    38 tone number of B    41 detune of B
//    1, 5 shown like sliders
//
// A split point is a MIDI key, 21 ("A0") to 108 ("C8"). The cells of B lie 9 above those of A, except the
// split points.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

inline constexpr std::size_t Patch_MKS70_Size = 65;
inline constexpr std::size_t MKS70_Split_A = 20;
inline constexpr std::size_t MKS70_Split_B = 21;
inline constexpr std::size_t MKS70_Tone_Number_A = 29;
inline constexpr std::size_t MKS70_Tone_Number_B = 38;
inline constexpr std::size_t MKS70_UDTune_A = 32;
inline constexpr std::size_t MKS70_UDTune_B = 41;

// Of the lists' first entry: the lowest key of a piano.
inline constexpr int MKS70_Lowest_Key = 21;

extern std::array<std::uint8_t, Patch_MKS70_Size> Patch_MKS70_Data;  // written by the MKS-70's patch window
extern std::string Patch_MKS70_Tone;                                 // the tone on show, "A" or "B"
extern std::string Patch_Name_Text;                                  // empty behind New

// The byte of a cell, checked: an index above 64 is a programming mistake (Fatal_Error).
std::uint8_t& Patch_MKS70_Byte(std::size_t index);

// "A0", "A#0", "B0", "C1" to "C8": the 88 keys of a piano.
std::vector<std::string> MKS70_Key_Names();
// "1" to "100".
std::vector<std::string> MKS70_Tone_Numbers();
