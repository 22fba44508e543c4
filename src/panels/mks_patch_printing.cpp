#include "panels/mks_patch_printing.h"

#include <string_view>
#include <vector>

#include "panels/control_printing.h"
#include "panels/knob_printing.h"
#include "panels/mks_patch_table.h"
#include "platform/numbers.h"

namespace {

// clang-format off
const std::array<Panel_Group, 7> Groups = {{
    {"KEY MODE",    {6, 14},    Box(0.5, 2.5, 123.5, 124.5)},
    {"AFTER TOUCH", {132, 14},  Box(126.5, 2.5, 245.5, 134.5)},
    {"CHASE PLAY",  {66, 157},  Box(0.5, 148.5, 139.5, 266.5)},
    {"PORTAMENTO",  {145, 149}, Box(142.5, 137.5, 204.5, 266.5)},
    {"BENDER",      {212, 149}, Box(207.5, 137.5, 256.5, 266.5)},
    {"VOLUME",      {264, 149}, Box(259.5, 137.5, 331.5, 266.5)},
    {"TONE",        {64, 292},  Box(0.5, 269.5, 331.5, 420.5)},
}};

// How a thumb's control is printed: as a slider with its scale, or as a switch with a name at each position,
// from the lowest up. The base line of the caption stands at `caption_row`.
struct Thumb_Print {
    const char* control;
    const char* caption;
    int caption_row;
    std::vector<const char*> positions = {};
    bool marks_right = true;
    bool figures_right = false;
};
const std::array<Thumb_Print, MKS_Thumbs.size()> Thumbs = {{
//   control           caption    row   positions              marks  figures right
    {"AFT_Vibrato",    "VIBRATO", 129},
    {"AFT_Brilliance", "BRILL",   129},
    {"AFT_Volume",     "VOLUME",  129},
    {"Bend_range",     "RANGE",   222,  {"2", "3", "4", "7"}},
    {"Portamento",     "TIME",    262},
    {"Portamento_Sw",  "PORTA",   379,  {"OFF", "ON"}},
    {"Bender",         "BENDER",  379,  {"OFF", "ON"}},
    {"Hold",           "HOLD",    379,  {"OFF", "ON"}},
    {"Chase_Level",    "LEVEL",   262,  {},                    false, true},
    {"Chase_Time",     "TIME",    262,  {},                    false, true},
    {"Chase_Play",     "PLAY",    262,  {"OFF", "ON"}},
    {"LFO_Mod_Depth",  "LFO",     313,  {},                    true,  true},
    {"Total_Volume",   "TOTAL",   262},
}};

struct Knob_Print {
    const char* caption;
    int end;  // units on either side
    int step;
    double degrees;  // a unit
    const char* low;
    const char* high;
};
const std::array<Knob_Print, MKS_Knobs.size()> Knobs = {{
//   caption      end  step degrees  the two ends
    {"BALANCE",   50,  10,  3,       "A",   "B"},
    {"DETUNE",    50,  10,  3,       "-50", "+50"},
    {"CHROMATIC", 24,  2,   6,       "-24", "+24"},
    {"DETUNE",    50,  10,  3,       "-50", "+50"},
}};
// clang-format on

const MKS_Row& Row_Of(const Thumb_Print& print) {
    for (const MKS_Row& row : MKS_Thumbs) {
        if (std::string_view(row.control) == print.control) return row;
    }
    throw Fatal_Error(std::string("No control ") + print.control);
}

void Print_Words(Printing& printing, const char* words, Print_Point at, Align align) {
    printing.texts.push_back({words, at, align, Caption_Size, Ink::Print});
}

void Print_Thumb(Printing& printing, const Thumb_Print& print) {
    const MKS_Row& row = Row_Of(print);
    double middle = row.left + Thumb_Half;
    if (print.positions.empty()) {
        Print_Slider(printing, "",
                     {.left = row.left,
                      .top_row = row.top - Slider_Travel,
                      .marks_right = print.marks_right,
                      .figures_right = print.figures_right});
    } else {
        constexpr double Half_A_Name = 7;
        const auto count = static_cast<int>(print.positions.size());
        Print_Rail(printing, {row.left, row.top - (count - 1) * Switch_Pitch, row.top});
        for (int position = 0; position < count; ++position) {
            Print_Position(printing, {print.positions[static_cast<std::size_t>(position)]}, row.left,
                           row.top - position * Switch_Pitch + Thumb_Half, true);
        }
        // Above or below the thumb and the names beside it.
        middle += Half_A_Name;
    }
    Print_Words(printing, print.caption, {middle, print.caption_row + 0.0}, Align::Centre);
}

void Print_Knob(Printing& printing, const MKS_Row& row, const Knob_Print& print, bool narrow) {
    const double middle = row.left + (narrow ? MKS_Narrow_Knob / 2.0 : Knob_Face_X);
    const Print_Point face = {middle, row.top + Knob_Face_Y};
    Print_Knob_Marks(printing, face, print.end, print.step, print.degrees);
    Print_Knob_Ends(printing, face, print.low, print.high);
    Print_Words(printing, print.caption, {middle, row.top - 10.0}, Align::Centre);
}

}  // namespace

Printing MKS_Patch_Printing() {
    Printing printing;
    for (const Panel_Group& group : Groups) Print_Group(printing, group);
    for (const Thumb_Print& print : Thumbs) Print_Thumb(printing, print);
    for (std::size_t index = 0; index < MKS_Knobs.size(); ++index) {
        const bool narrow = index == MKS_Chromatic || index == MKS_UDTune;
        Print_Knob(printing, MKS_Knobs[index], Knobs[index], narrow);
    }
    for (const MKS_Row& lamp : MKS_Lamps) Print_Lamp_Name(printing, lamp.spoken_name, lamp.left, lamp.top);
    Print_Words(printing, "KEY ASSIGN", {255, 316}, Align::Left);
    Print_Words(printing, "NUMBER", {8, 313}, Align::Left);
    Print_Words(printing, "SPLIT POINT", {8, 350}, Align::Left);
    // The corner that the instrument's name fills.
    printing.texts.push_back({"MKS-70", {289, 62}, Align::Centre, 22, Ink::Print});
    printing.texts.push_back({"SUPER JX PATCH", {289, 78}, Align::Centre, Caption_Size, Ink::Heading});
    return printing;
}
