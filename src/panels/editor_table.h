// The JX-8P's panel as a table: the 44 controls in panel order, which is also the order of the focus.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "panels/measures.h"

enum class Control_Type { Slider, Four_Way, Three_Way, Two_Way, Tune_Knob, Fine_Knob };

// For a slider top row is the thumb's top at value 127 and bottom row at 0; for a switch, at the highest
// and the lowest position. A knob stands still at its top row.
struct Editor_Row {
    const char* control;
    const char* kind;
    Control_Type type;
    int parameter;
    int left;  // pixels, as the rows
    int top_row;
    int bottom_row;
    int help_context;
    const char* spoken_name;
};

inline constexpr int Dot_Centre_Left = 12;  // of a knob's dot, on the body
inline constexpr int Dot_Centre_Top = 10;
inline constexpr double Degrees_A_Semitone = 12;
inline constexpr double Degrees_A_Fine_Unit = 3;

namespace editor_table {

using enum Control_Type;

// clang-format off
inline constexpr std::array Rows = {
//             control            kind     type       param.  left  top  bottom help  spoken name
//   -- DCO1 ----------------------------------------------------------------------------
    Editor_Row{"DCO1_Range",       "bl",    Four_Way,    11,    19,   32,    62,   1,  "DCO-1 Range"},
    Editor_Row{"DCO1_Waveform",    "bl",    Four_Way,    12,    59,   32,    62,   2,  "DCO-1 Waveform"},
    Editor_Row{"DCO1_Tune",        "kn1",   Tune_Knob,   13,    33,  102,   102,   3,  "DCO-1 Tune"},
    Editor_Row{"DCO1_LFO",         "bm",    Slider,      14,    19,  152,   232,   4,  "DCO-1 LFO Mod Depth"},
    Editor_Row{"DCO1_ENV",         "bm",    Slider,      15,    58,  152,   232,   0,  "DCO-1 ENV Mod Depth"},
//   -- DCO2 ----------------------------------------------------------------------------
    Editor_Row{"DCO2_Range",       "bl",    Four_Way,    16,   119,   32,    62,   1,  "DCO-2 Range"},
    Editor_Row{"DCO2_Waveform",    "bl",    Four_Way,    17,   159,   32,    62,   2,  "DCO-2 Waveform"},
    Editor_Row{"DCO2_Crossmod",    "br",    Four_Way,    18,   189,   32,    62,   0,  "DCO-2 Cross Mod"},
    Editor_Row{"DCO2_Tune",        "kn2",   Tune_Knob,   19,   122,  102,   102,   3,  "DCO-2 Tune"},
    Editor_Row{"DCO2_FTune",       "kn2f",  Fine_Knob,   20,   182,  102,   102,   0,  "DCO-2 Fine Tune"},
    Editor_Row{"DCO2_LFO",         "bm",    Slider,      21,   119,  152,   232,   4,  "DCO-2 LFO Mod Depth"},
    Editor_Row{"DCO2_ENV",         "bm",    Slider,      22,   158,  152,   232,   0,  "DCO-2 ENV Mod Depth"},
//   -- DCO -----------------------------------------------------------------------------
    Editor_Row{"DCO_Dynamics",     "bl",    Four_Way,    26,    19,  278,   308,   0,  "DCO Dynamics"},
    Editor_Row{"DCO_Mode",         "bl",    Four_Way,    27,    59,  278,   308,   0,  "DCO ENV Mode"},
//   -- Mixer ---------------------------------------------------------------------------
    Editor_Row{"Mixer_DCO1",       "bm",    Slider,      28,   259,   32,   112,   0,  "Mixer DCO-1"},
    Editor_Row{"Mixer_DCO2",       "bm",    Slider,      29,   298,   32,   112,   0,  "Mixer DCO-2"},
    Editor_Row{"Mixer_ENV",        "bm",    Slider,      30,   299,  152,   232,   0,  "Mixer ENV Mod Depth"},
    Editor_Row{"Mixer_Dynamics",   "bl",    Four_Way,    31,   259,  278,   308,   0,  "Mixer Dynamics"},
    Editor_Row{"Mixer_Mode",       "bl",    Four_Way,    32,   299,  278,   308,   0,  "Mixer ENV Mode"},
//   -- VCF -----------------------------------------------------------------------------
    Editor_Row{"VCF_HPF",          "bl",    Four_Way,    33,   359,   32,    62,   0,  "HPF Cutoff"},
    Editor_Row{"VCF_CutoffF",      "bm",    Slider,      34,   399,   32,   112,   0,  "VCF Cutoff"},
    Editor_Row{"VCF_Res",          "bm",    Slider,      35,   438,   32,   112,   0,  "VCF Resonance"},
    Editor_Row{"VCF_LFO",          "bm",    Slider,      36,   360,  152,   232,   4,  "VCF LFO Mod Depth"},
    Editor_Row{"VCF_ENV",          "bm",    Slider,      37,   399,  152,   232,   0,  "VCF ENV Mod Depth"},
    Editor_Row{"VCF_Keyfollow",    "bm",    Slider,      38,   438,  152,   232,   0,  "VCF Key Follow"},
    Editor_Row{"VCF_Dynamics",     "bl",    Four_Way,    39,   359,  278,   308,   0,  "VCF Dynamics"},
    Editor_Row{"VCF_Mode",         "bl",    Four_Way,    40,   399,  278,   308,   0,  "VCF ENV Mode"},
//   -- VCA -----------------------------------------------------------------------------
    Editor_Row{"VCA_Level",        "bm",    Slider,      41,   489,   32,   112,   0,  "VCA Level"},
    Editor_Row{"VCA_Mode",         "br",    Two_Way,     58,   489,  152,   162,   0,  "VCA ENV Mode"},
    Editor_Row{"VCA_Dynamics",     "bl",    Four_Way,    42,   489,  278,   308,   0,  "VCA Dynamics"},
//   -- LFO -----------------------------------------------------------------------------
    Editor_Row{"LFO_Waveform",     "bl",    Three_Way,   44,    18,  377,   397,   0,  "LFO Waveform"},
    Editor_Row{"LFO_DelayT",       "bm",    Slider,      45,    45,  357,   437,   0,  "LFO Delay Time"},
    Editor_Row{"LFO_Rate",         "bm",    Slider,      46,    84,  357,   437,   0,  "LFO Rate"},
//   -- ENV1 ----------------------------------------------------------------------------
    Editor_Row{"ENV1_Attack",      "bm",    Slider,      47,   135,  357,   437,   0,  "ENV-1 Attack Time"},
    Editor_Row{"ENV1_Decay",       "bm",    Slider,      48,   165,  357,   437,   0,  "ENV-1 Decay Time"},
    Editor_Row{"ENV1_Sustain",     "bm",    Slider,      49,   195,  357,   437,   0,  "ENV-1 Sustain Level"},
    Editor_Row{"ENV1_Release",     "bm",    Slider,      50,   225,  357,   437,   0,  "ENV-1 Release Time"},
    Editor_Row{"ENV1_Keyfollow",   "br",    Four_Way,    51,   265,  388,   418,   0,  "ENV-1 Key Follow"},
//   -- ENV2 ----------------------------------------------------------------------------
    Editor_Row{"ENV2_Attack",      "bm",    Slider,      52,   315,  357,   437,   0,  "ENV-2 Attack Time"},
    Editor_Row{"ENV2_Decay",       "bm",    Slider,      53,   345,  357,   437,   0,  "ENV-2 Decay Time"},
    Editor_Row{"ENV2_Sustain",     "bm",    Slider,      54,   375,  357,   437,   0,  "ENV-2 Sustain Level"},
    Editor_Row{"ENV2_Release",     "bm",    Slider,      55,   405,  357,   437,   0,  "ENV-2 Release Time"},
    Editor_Row{"ENV2_Keyfollow",   "br",    Four_Way,    56,   445,  388,   418,   0,  "ENV-2 Key Follow"},
//   -- Chorus --------------------------------------------------------------------------
    Editor_Row{"Chorus_Mode",      "br",    Three_Way,   43,   488,  398,   418,   0,  "Chorus Mode"},
};
// clang-format on

}  // namespace editor_table

inline constexpr auto& Editor_Table = editor_table::Rows;

inline constexpr bool Is_Switch(Control_Type type) {
    return type == Control_Type::Four_Way || type == Control_Type::Three_Way ||
           type == Control_Type::Two_Way;
}
inline constexpr bool Is_Knob(Control_Type type) {
    return type == Control_Type::Tune_Knob || type == Control_Type::Fine_Knob;
}
inline constexpr int Positions(Control_Type type) {
    return type == Control_Type::Four_Way ? 4 : type == Control_Type::Three_Way ? 3 : 2;
}

namespace editor_table {

constexpr bool Every_Parameter_Once() {
    for (std::size_t a = 0; a < Rows.size(); ++a) {
        for (std::size_t b = a + 1; b < Rows.size(); ++b) {
            if (Rows[a].parameter == Rows[b].parameter) return false;
        }
    }
    return true;
}

constexpr bool Rows_Fit_Types() {
    for (const Editor_Row& row : Rows) {
        const int travel = row.bottom_row - row.top_row;
        if (row.type == Slider && travel != Slider_Travel) return false;
        if (Is_Switch(row.type) && travel != (Positions(row.type) - 1) * Switch_Pitch) return false;
        if (row.parameter < 11 || row.parameter > 58) return false;
    }
    return true;
}

static_assert(Rows.size() == 44);
static_assert(Every_Parameter_Once());
static_assert(Rows_Fit_Types());

}  // namespace editor_table
