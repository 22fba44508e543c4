// The Alpha Juno's panel as a table: the 36 controls in panel order, which is also the order of the focus.
#pragma once

#include <array>
#include <cstddef>

#include "panels/measures.h"

// A switch holds its position as a small number, 0 at the bottom; of an inverted one 0 is at the top.
enum class Juno_Type { Slider, Switch, Inverted };

struct Juno_Row {
    const char* control;
    const char* kind;
    Juno_Type type;
    int parameter;
    int key_parameter;  // what its keys edit
    int left;           // pixels, as the rows
    int row;            // of value 0
    int placed_row;     // the same when a switch is worked by hand
    int positions;      // of a switch
    int pitch;          // pixels from one position to the next
    int help_context;
    const char* spoken_name;
};

namespace juno_table {

using enum Juno_Type;

// The keys of the first level move the first time. Two of the inverted switches stand a row lower when they
// are worked by hand than a refresh puts them.
//
// clang-format off
inline constexpr std::array Rows = {
//           control            kind   type      param. keys left  row placed pos. pitch help  spoken name
//   -- DCO -----------------------------------------------------------------------------
    Juno_Row{"DCO_Range",       "bl",  Inverted,   6,   6,   18,   29,   29,   4,  10,   1,  "DCO Range"},
    Juno_Row{"DCO_LFO",         "bm",  Slider,    11,  11,   61,  110,  110,   0,   0,   4,  "DCO LFO Mod Depth"},
    Juno_Row{"DCO_Env",         "bm",  Slider,    12,  12,   91,  110,  110,   0,   0,   0,  "DCO ENV Mod Depth"},
    Juno_Row{"DCO_EnvMode",     "bl",  Inverted,   0,   0,  136,   29,   29,   4,  10,   0,  "DCO ENV Mode"},
    Juno_Row{"DCO_After",       "bm",  Slider,    13,  13,  183,  110,  110,   0,   0,   0,  "DCO Aftertouch Depth"},
    Juno_Row{"DCO_Pulse",       "bl",  Switch,     3,   3,  229,   59,   59,   4,  10,   0,  "DCO Pulse Waveform"},
    Juno_Row{"DCO_SawTooth",    "bl",  Switch,     4,   4,  274,   79,   79,   6,  10,   2,  "DCO Sawtooth Waveform"},
    Juno_Row{"DCO_Sub",         "bl",  Switch,     5,   5,  318,   79,   79,   6,  10,   2,  "DCO Sub Waveform"},
    Juno_Row{"DCO_SubLevel",    "bl",  Switch,     7,   7,  362,  110,  110,   4,  10,   0,  "DCO Sub Level"},
    Juno_Row{"DCO_NoiseLevel",  "bl",  Switch,     8,   8,  399,  110,  110,   4,  10,   0,  "DCO Noise Level"},
    Juno_Row{"DCO_PWM",         "bm",  Slider,    14,  14,  443,  110,  110,   0,   0,   0,  "DCO PWM Depth"},
    Juno_Row{"DCO_PWMRate",     "bm",  Slider,    15,  15,  473,  110,  110,   0,   0,   0,  "DCO PWM Rate"},
//   -- LFO -----------------------------------------------------------------------------
    Juno_Row{"LFO_DelayTime",   "bm",  Slider,    25,  25,   21,  246,  246,   0,   0,   0,  "LFO Delay Time"},
    Juno_Row{"LFO_Rate",        "bm",  Slider,    24,  24,   51,  246,  246,   0,   0,   0,  "LFO Rate"},
//   -- VCF -----------------------------------------------------------------------------
    Juno_Row{"VCF_HPF",         "bl",  Switch,     9,   9,   99,  246,  246,   4,  10,   0,  "HPF Cutoff"},
    Juno_Row{"VCF_Freq",        "bm",  Slider,    16,  16,  139,  246,  246,   0,   0,   0,  "VCF Cutoff"},
    Juno_Row{"VCF_Res",         "bm",  Slider,    17,  17,  169,  246,  246,   0,   0,   0,  "VCF Resonance"},
    Juno_Row{"VCF_LFO",         "bm",  Slider,    18,  18,  199,  246,  246,   0,   0,   4,  "VCF LFO Mod Depth"},
    Juno_Row{"VCF_ENV",         "bm",  Slider,    19,  19,  229,  246,  246,   0,   0,   0,  "VCF ENV Mod Depth"},
    Juno_Row{"VCF_EnvMode",     "bl",  Inverted,   1,   1,  277,  164,  165,   4,  10,   0,  "VCF ENV Mode"},
    Juno_Row{"VCF_Keyfollow",   "bm",  Slider,    20,  20,  322,  246,  246,   0,   0,   0,  "VCF Key Follow"},
    Juno_Row{"VCF_After",       "bm",  Slider,    21,  21,  352,  246,  246,   0,   0,   0,  "VCF Aftertouch Depth"},
//   -- VCA -----------------------------------------------------------------------------
    Juno_Row{"VCA_Level",       "bm",  Slider,    22,  22,  401,  246,  246,   0,   0,   0,  "VCA Level"},
    Juno_Row{"VCA_EnvMode",     "bl",  Inverted,   2,   2,  447,  164,  165,   4,  10,   0,  "VCA ENV Mode"},
    Juno_Row{"VCA_After",       "bm",  Slider,    23,  23,  491,  246,  246,   0,   0,   0,  "VCA Aftertouch Depth"},
//   -- Chorus --------------------------------------------------------------------------
    Juno_Row{"Chorus_OnOff",    "bl",  Switch,    10,  10,   24,  382,  382,   2,  10,   0,  "Chorus"},
    Juno_Row{"Chorus_Rate",     "bm",  Slider,    34,  34,   67,  382,  382,   0,   0,   0,  "Chorus Rate"},
//   -- ENV -----------------------------------------------------------------------------
    Juno_Row{"ENV_T1",          "bm",  Slider,    26,  26,  121,  382,  382,   0,   0,   0,  "ENV Time 1"},
    Juno_Row{"ENV_L1",          "bm",  Slider,    27,  26,  151,  382,  382,   0,   0,   0,  "ENV Level 1"},
    Juno_Row{"ENV_T2",          "bm",  Slider,    28,  28,  181,  382,  382,   0,   0,   0,  "ENV Time 2"},
    Juno_Row{"ENV_L2",          "bm",  Slider,    29,  29,  211,  382,  382,   0,   0,   0,  "ENV Level 2"},
    Juno_Row{"ENV_T3",          "bm",  Slider,    30,  30,  241,  382,  382,   0,   0,   0,  "ENV Time 3"},
    Juno_Row{"ENV_L3",          "bm",  Slider,    31,  31,  271,  382,  382,   0,   0,   0,  "ENV Level 3"},
    Juno_Row{"ENV_T4",          "bm",  Slider,    32,  32,  301,  382,  382,   0,   0,   0,  "ENV Time 4"},
    Juno_Row{"ENV_Keyfollow",   "bm",  Slider,    33,  33,  331,  382,  382,   0,   0,   0,  "ENV Key Follow"},
//   -- Bender --------------------------------------------------------------------------
    Juno_Row{"Bender_Range",    "bl",  Switch,    35,  35,  379,  322,  322,  13,   2,   0,  "Bender Range"},
};
// clang-format on

constexpr bool Every_Parameter_Once() {
    std::array<int, Rows.size()> seen = {};
    for (const Juno_Row& row : Rows) ++seen[static_cast<std::size_t>(row.parameter)];
    for (const int times : seen) {
        if (times != 1) return false;
    }
    return true;
}

constexpr bool Rows_Fit_Types() {
    for (const Juno_Row& row : Rows) {
        if ((row.type == Slider) != (row.positions == 0)) return false;
        if ((row.type == Slider) != (row.pitch == 0)) return false;
    }
    return true;
}

static_assert(Rows.size() == 36);
static_assert(Every_Parameter_Once());
static_assert(Rows_Fit_Types());

}  // namespace juno_table

inline constexpr auto& Juno_Table = juno_table::Rows;

// A thumb's top at a value, counted from the row of value 0: sliders 80 pixels over 127 units, the fraction
// cut; switches a pitch a position.
inline constexpr int Juno_Rise(const Juno_Row& row, int value) {
    if (row.type == Juno_Type::Slider) return value * Slider_Travel / 127;
    return row.type == Juno_Type::Inverted ? -value * row.pitch : value * row.pitch;
}
