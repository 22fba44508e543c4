// What the oscillator can move: the entries of its list, in order, each with its code. A code below 90 is
// the instrument's own number of a tone parameter; the codes from 96 on are private to the oscillator.
#pragma once

#include <array>
#include <cstdint>

struct Osc_Target {
    const char* entry;
    std::int16_t code;
};

inline constexpr std::int16_t Osc_First_Private_Code = 90;

inline constexpr std::int16_t Osc_Target_Notes = 96;
inline constexpr std::int16_t Osc_Target_Bend_LFO = 97;
inline constexpr std::int16_t Osc_Target_Portamento = 98;
inline constexpr std::int16_t Osc_Target_Balance = 99;

// clang-format off
inline constexpr std::array<Osc_Target, 27> Osc_Targets = {{
    {"DCO1 LFO Mod Depth",  14},
    {"DCO1 ENV Mod Depth",  15},
    {"DCO2 Fine Tune",      20},
    {"DCO2 LFO Mod Depth",  21},
    {"DCO2 ENV Mod Depth",  22},
    {"ENV1 Attack Time",    47},
    {"ENV1 Decay Time",     48},
    {"ENV1 Sustain Level",  49},
    {"ENV1 Release Time",   50},
    {"ENV2 Attack Time",    52},
    {"ENV2 Decay Time",     53},
    {"ENV2 Sustain Level",  54},
    {"ENV2 Release Time",   55},
    {"LFO Rate",            46},
    {"Mixer DCO1",          28},
    {"Mixer DCO2",          29},
    {"Mixer ENV Mod Depth", 30},
    {"VCF Cutoff",          34},
    {"VCF Resonance",       35},
    {"VCF LFO Mod Depth",   36},
    {"VCF ENV Mod Depth",   37},
    {"VCF Key Follow",      38},
    {"VCA Level",           41},
    {"Mixer DCO1 <-> DCO2", Osc_Target_Balance},
    {"Portamento Time",     Osc_Target_Portamento},
    {"Bend LFO Depth",      Osc_Target_Bend_LFO},
    {"MIDI notes",          Osc_Target_Notes},
}};
// clang-format on
