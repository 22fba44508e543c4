// The patch window of the MKS-70 as a table: where its drawn controls stand. Most of them are a picture of
// the instrument's front and take no input; of all of them only UDTune answers.
#pragma once

#include <array>
#include <cstddef>

#include "panels/measures.h"

struct MKS_Row {
    const char* control;
    const char* kind;
    int left;  // pixels
    int top;
    const char* spoken_name;
};

inline constexpr int MKS_Patch_Width = 332;
inline constexpr int MKS_Patch_Height = 421;

// The two knobs of a tone are narrower than the picture of a knob and show its middle; their dots stand
// further left.
inline constexpr int MKS_Narrow_Knob = 24;
inline constexpr int MKS_Narrow_Dot_Left = 10;
inline constexpr int MKS_Dot_Left = 12;
inline constexpr int MKS_Dot_Top = 5;

// clang-format off
inline constexpr std::array MKS_Knobs = {
//          control            kind     left top  spoken name
    MKS_Row{"UL_Balance",      "kn2fp",  76,  29, "Balance"},
    MKS_Row{"Dual_Detune",     "kn2fp",  76,  91, "Dual Detune"},
    MKS_Row{"Chromatic_Shift", "kn2fp", 111, 335, "Chromatic Shift"},
    MKS_Row{"UDTune",          "kn2fp", 165, 335, "Unison Detune"},
};
inline constexpr std::array MKS_Dots = {"UL_Balance_Knopf", "Dual_Detune_Knopf", "Chromatic_Shift_Knopf",
                                        "UDTune_Knopf"};
inline constexpr std::size_t MKS_Chromatic = 2;
inline constexpr std::size_t MKS_UDTune = 3;

inline constexpr std::array MKS_Thumbs = {
//          control            kind  left  top  spoken name
    MKS_Row{"AFT_Vibrato",     "br", 143,  103, "After Touch Vibrato"},
    MKS_Row{"AFT_Brilliance",  "bm", 182,  103, "After Touch Brilliance"},
    MKS_Row{"AFT_Volume",      "bm", 221,  103, "After Touch Volume"},
    MKS_Row{"Bend_range",      "bm", 221,  196, "Bend Range"},
    MKS_Row{"Portamento",      "bm", 165,  236, "Portamento Time"},
    MKS_Row{"Portamento_Sw",   "br",  84,  393, "Portamento"},
    MKS_Row{"Bender",          "br", 128,  393, "Bender"},
    MKS_Row{"Hold",            "br", 169,  393, "Hold"},
    MKS_Row{"Chase_Level",     "bm",   8,  235, "Chase Level"},
    MKS_Row{"Chase_Time",      "br",  47,  235, "Chase Time"},
    MKS_Row{"Chase_Play",      "bm",  85,  235, "Chase Play"},
    MKS_Row{"LFO_Mod_Depth",   "bm", 211,  397, "LFO Mod Depth"},
    MKS_Row{"Total_Volume",    "bm", 276,  236, "Total Volume"},
};

inline constexpr std::array MKS_Lamps = {
//          control         kind   left top  printed and spoken name
    MKS_Row{"Key_Mode_0",   "led",   8,  23, "DUAL"},
    MKS_Row{"Key_Mode_1",   "led",   8,  38, "SPLIT"},
    MKS_Row{"Key_Mode_2",   "led",   8,  53, "X-FADE"},
    MKS_Row{"Key_Mode_3",   "led",   8,  68, "T-VOICE"},
    MKS_Row{"Key_Mode_4",   "led",   8,  83, "WHOLE A"},
    MKS_Row{"Key_Mode_5",   "led",   8,  98, "WHOLE B"},
    MKS_Row{"Chase_Mode_0", "led",  86, 189, "A-B"},
    MKS_Row{"Chase_Mode_1", "led",  86, 174, "A-B-A"},
    MKS_Row{"Chase_Mode_2", "led",  86, 159, "A-B-B"},
    MKS_Row{"Key_Assign_0", "led", 255, 322, "POLY 1"},
    MKS_Row{"Key_Assign_1", "led", 255, 337, "UNISON 1"},
    MKS_Row{"Key_Assign_2", "led", 255, 352, "MONO 1"},
    MKS_Row{"Key_Assign_3", "led", 255, 367, "POLY 2"},
    MKS_Row{"Key_Assign_4", "led", 255, 382, "UNISON 2"},
    MKS_Row{"Key_Assign_5", "led", 255, 397, "MONO 2"},
};
// clang-format on

inline constexpr int MKS_Tone_Button_Top = 277;
inline constexpr int MKS_Tone_A_Left = 6;
inline constexpr int MKS_Tone_B_Left = 35;

// The stock controls: a text field and two lists, all at the left edge.
struct MKS_Field {
    int top;
    int width;
    int height;
};
inline constexpr int MKS_Field_Left = 8;
inline constexpr MKS_Field MKS_Patch_Name = {127, 112, 19};
inline constexpr MKS_Field MKS_Tone_Number = {317, 68, 20};
inline constexpr MKS_Field MKS_Split_Point = {354, 68, 20};
inline constexpr int MKS_Field_Letters = 11;  // pixels, at every density of the screen
