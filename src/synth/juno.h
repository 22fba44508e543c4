// The Alpha Juno's tone: one record of 49 bytes whose index is the parameter number of the instrument's
// messages. It stands beside the JX-8P's; which of the two is edited hangs on the profile.
//
//   0-10   switches: small counts, the position itself
//   11-34  sliders, 0 to 127
//   35     bender range, 0 to 12 semitones
//   36-45  the name, one code of the instrument a byte
//   46-48  only carried
//
// The table of parameters with their controls is panels/juno_table.h.
#pragma once

#include <array>
#include <cstdint>
#include <string>

inline constexpr std::size_t Juno_Size = 49;
inline constexpr std::size_t Juno_Name_Place = 36;

enum Juno_Parameter : std::size_t {
    Juno_DCO_EnvMode = 0,
    Juno_VCF_EnvMode = 1,
    Juno_VCA_EnvMode = 2,
    Juno_SawTooth = 4,
    Juno_Sub = 5,
    Juno_Range = 6,
    Juno_Sub_Level = 7,
    Juno_Chorus = 10,
    Juno_T1 = 26,
    Juno_L1 = 27,
    Juno_T2 = 28,
    Juno_L2 = 29,
    Juno_T3 = 30,
    Juno_L3 = 31,
    Juno_T4 = 32,
    Juno_Envelope_Keyfollow = 33,
    Juno_Bender_Range = 35,
};

// Replaced as a whole by files, New, Random and Undo; byte by byte by the panel and the name's dialog.
extern std::array<std::uint8_t, Juno_Size> Juno_Data;
// Its one level of undo, see undo.h. Written here only.
extern std::array<std::uint8_t, Juno_Size> Juno_Undo;

// One checked access: a parameter number beyond the record is a programming mistake (Fatal_Error).
std::uint8_t& Juno_Byte(std::size_t parameter);

// The instrument's code of an ANSI character: 0-25 "A" to "Z", 26-51 "a" to "z", 52-61 "0" to "9", 62 the
// blank, 63 "-". A character that it does not have becomes a blank.
std::uint8_t Juno_Char_To_Code(std::uint8_t character);
// And back; a code that it does not have is a blank.
std::uint8_t Juno_Code_To_Char(std::uint8_t code);

// The ten name bytes as a name is shown: without blanks at its ends, in capitals. The bytes keep their
// small letters.
std::string Juno_Name_From_Data();

// Fills the hooks of views.h that the record stands behind: New, Random, the name and the undo copies.
void Juno_Install();
