#include "panels/patch_printing.h"

#include "panels/control_printing.h"
#include "panels/knob_printing.h"
#include "panels/patch_table.h"

namespace {

// clang-format off
const std::array<Panel_Group, 5> Groups = {{
    {"PORTAMENTO",    {5, 14},    Box(0.5, 2.5, 64.5, 193.5)},
    {"BENDER",        {73, 14},   Box(67.5, 2.5, 147.5, 193.5)},
    {"KEY MODE",      {156, 14},  Box(150.5, 2.5, 217.5, 109.5)},
    {"AFTER TOUCH",   {226, 14},  Box(220.5, 2.5, 295.5, 109.5)},
    {"UNISON DETUNE", {156, 124}, Box(150.5, 112.5, 295.5, 193.5)},
}};
// clang-format on

// The captions of the sliders and of the bend range; the other controls are named by their group.
const char* Caption_Of(const Patch_Row& row) {
    if (row.number == Patch_Portamento_Time) return "TIME";
    if (row.number == Patch_Pitch_Bend_LFO) return "LFO";
    return row.number == Patch_Pitch_Bend_Range ? "RANGE" : "";
}

template <std::size_t Count>
void Print_Positions(Printing& printing, const Patch_Row& row,
                     const std::array<const char*, Count>& names) {
    Print_Rail(printing, {row.left, row.top_row, row.bottom_row});
    for (std::size_t position = 0; position < Count; ++position) {
        const int rise = static_cast<int>(position) * Switch_Pitch;
        Print_Position(printing, {names[position]}, row.left, row.bottom_row - rise + Thumb_Half, true);
    }
}

void Print_Row(Printing& printing, const Patch_Row& row) {
    switch (row.type) {
        case Control_Type::Slider:
            // The thumb of the bend range stands close to the right of the LFO's.
            Print_Slider(printing, Caption_Of(row),
                         {.left = row.left,
                          .top_row = row.top_row,
                          .marks_right = row.number == Patch_Portamento_Time});
            break;
        case Control_Type::Four_Way:
            Print_Switch_Caption(printing, Caption_Of(row), row.left, row.top_row, true);
            Print_Positions(printing, row, Bend_Range_Names);
            break;
        case Control_Type::Two_Way:
            Print_Positions(printing, row, Portamento_Names);
            break;
        default: {
            const Print_Point middle = {row.left + Knob_Face_X, row.top_row + Knob_Face_Y};
            Print_Knob_Marks(printing, middle, 50, 10, Degrees_A_Fine_Unit);
            Print_Knob_Ends(printing, middle, "-50", "+50");
        }
    }
}

template <std::size_t Count>
void Print_Lamps(Printing& printing, const std::array<Lamp_Row, Count>& lamps, int left) {
    for (std::size_t item = 0; item < Count; ++item) {
        const int top = Patch_Lamp_Row + static_cast<int>(item) * Lamp_Pitch;
        Print_Lamp_Name(printing, lamps[item].printed, left, top);
    }
}

}  // namespace

Printing Patch_Printing() {
    Printing printing;
    for (const Panel_Group& group : Groups) Print_Group(printing, group);
    for (const Patch_Row& row : Patch_Table) Print_Row(printing, row);
    Print_Lamps(printing, Key_Mode_Lamps, Patch_Key_Mode_Left);
    Print_Lamps(printing, After_Touch_Lamps, Patch_After_Touch_Left);
    return printing;
}
