// The Patch window as a table: the moving controls and the two groups of lamps, with the patch byte that
// each edits. A lamp's number and its byte are not the same: the codes jump over 3.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "panels/editor_table.h"
#include "synth/patch.h"

// For a slider top row is the thumb's top at value 127 and bottom row at 0; for a switch, at the highest
// and the lowest position. A knob stands still at its top row.
struct Patch_Row {
    const char* control;
    const char* kind;
    Control_Type type;
    std::size_t number;  // of the byte in Patch_Data
    int left;            // pixels, as the rows
    int top_row;
    int bottom_row;
    const char* spoken_name;
};

struct Lamp_Row {
    const char* control;
    std::uint8_t code;
    const char* printed;
    const char* spoken_name;
};

inline constexpr int Patch_Width = 296;
inline constexpr int Patch_Height = 196;
inline constexpr int Lamp_Pitch = 15;      // pixels from one lamp to the next below it
inline constexpr int Patch_Lamp_Row = 17;  // of item 0 in both groups
inline constexpr int Patch_Key_Mode_Left = 152;
inline constexpr int Patch_After_Touch_Left = 222;

// clang-format off
inline constexpr std::array Patch_Table = {
//            control              kind     type                     byte                      left  top  bottom  spoken name
    Patch_Row{"Portamento_Time",   "bm",    Control_Type::Slider,    Patch_Portamento_Time,     20,   28,  108,   "Portamento Time"},
    Patch_Row{"Portamento_Switch", "br",    Control_Type::Two_Way,   Patch_Portamento_Switch,   20,  133,  143,   "Portamento"},
    Patch_Row{"Pitch_Bend_LFO",    "bm",    Control_Type::Slider,    Patch_Pitch_Bend_LFO,      86,   28,  108,   "Bend LFO Depth"},
    Patch_Row{"Pitch_Bend_Range",  "br",    Control_Type::Four_Way,  Patch_Pitch_Bend_Range,   117,   28,   58,   "Bend Range"},
    Patch_Row{"UDTune",            "kn2fp", Control_Type::Fine_Knob, Patch_UDTune,             161,  132,  132,   "Unison Detune"},
};

inline constexpr std::array Key_Mode_Lamps = {
//           control       code  printed     spoken name
    Lamp_Row{"Key_Mode_0", 0,    "POLY 1",   "Key Mode Poly 1"},
    Lamp_Row{"Key_Mode_1", 1,    "UNISON 1", "Key Mode Unison 1"},
    Lamp_Row{"Key_Mode_2", 2,    "SOLO 1",   "Key Mode Solo 1"},
    Lamp_Row{"Key_Mode_3", 4,    "POLY 2",   "Key Mode Poly 2"},
    Lamp_Row{"Key_Mode_4", 5,    "UNISON 2", "Key Mode Unison 2"},
    Lamp_Row{"Key_Mode_5", 6,    "SOLO 2",   "Key Mode Solo 2"},
};

inline constexpr std::array After_Touch_Lamps = {
//           control          code  printed       spoken name
    Lamp_Row{"After_Touch_0", 0,    "OFF",        "After Touch Off"},
    Lamp_Row{"After_Touch_1", 1,    "VIBRATO",    "After Touch Vibrato"},
    Lamp_Row{"After_Touch_2", 2,    "BRILLIANCE", "After Touch Brilliance"},
    Lamp_Row{"After_Touch_3", 4,    "VOLUME",     "After Touch Volume"},
};

// The names at the positions of the two switches, from the lowest up. The instrument bends by semitones.
inline constexpr std::array<const char*, 4> Bend_Range_Names = {"2", "3", "4", "7"};
inline constexpr std::array<const char*, 2> Portamento_Names = {"OFF", "ON"};
// clang-format on

namespace patch_table {

constexpr bool Rows_Fit_Types() {
    for (const Patch_Row& row : Patch_Table) {
        const int travel = row.bottom_row - row.top_row;
        if (row.type == Control_Type::Slider && travel != Slider_Travel) return false;
        if (Is_Switch(row.type) && travel != (Positions(row.type) - 1) * Switch_Pitch) return false;
    }
    return true;
}
static_assert(Rows_Fit_Types());

}  // namespace patch_table
