// The JX-8P's tone: one record of 59 bytes whose index is the parameter number of the instrument's
// messages. Nothing is translated between the record and the wire.
//
//   0-9    the name, one ANSI (Windows-1252) character a byte, blanks behind it
//   10-58  the parameters; 10, 23, 24, 25 and 57 have no control and are only carried
//
// The table of parameters with their controls is panels/editor_table.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/numbers.h"

inline constexpr std::size_t Tone_Size = 59;
inline constexpr std::size_t Tone_Name_Size = 10;

enum Tone_Parameter : std::size_t {
    Parameter_DCO1_Tune = 13,
    Parameter_DCO2_Tune = 19,
    Parameter_DCO2_FTune = 20,
    Parameter_Chorus_Mode = 43,
    Parameter_LFO_Waveform = 44,
    Parameter_VCA_Mode = 58,
};

// Replaced as a whole by files, reception, Random and Undo; byte by byte by the panels.
extern std::array<std::uint8_t, Tone_Size> Tone_Data;

extern std::string Tone_Name_Text;  // the name as panels show it, ANSI, at most 10 characters
extern Flag_16 Tone_Saved;   // False while the tone has unsaved changes; every panel change clears it
extern Flag_8 Tone_Loading;  // while True no value is shown in words
extern std::string Tone_File_Name;   // full path of the current SYX file
extern std::string Tone_File_Short;  // its name as the title bar shows it

// One checked access: a parameter number beyond the record is a programming mistake (Fatal_Error).
std::uint8_t& Tone_Byte(std::size_t parameter);

// A New tone of the chosen instrument, in memory and on the panels; sends nothing. No file belongs to it.
void Tone_Init();

// A name as it is shown: without blanks at its ends, in capitals.
std::string Tone_Name_Of(const std::string& text);

// The ten name bytes as such a name.
std::string Tone_Name_From_Data();

// Capital letters of the ANSI (Windows-1252) character set.
std::string ANSI_Upper(const std::string& text);
