#include "help/howto_printing.h"

#include <string>

#include "help/howto.h"
#include "panels/control_printing.h"
#include "panels/editor_table.h"
#include "panels/knob_printing.h"

namespace {

// clang-format off
const std::array<Panel_Group, 5> Groups = {{
    {"POSITIONS", {6, 14},   Box(0.5, 2.5, 65.5, 196.5)},
    {"TUNE",      {75, 14},  Box(69.5, 2.5, 137.5, 196.5)},
    {"SLIDER",    {147, 14}, Box(141.5, 2.5, 197.5, 196.5)},
    {"SWITCH",    {207, 14}, Box(201.5, 2.5, 261.5, 196.5)},
    {"SELECT",    {271, 14}, Box(265.5, 2.5, 329.5, 196.5)},
}};
// clang-format on

void Print_Pos_Sw(Printing& printing) {
    Print_Rail(printing, {Pos_Sw_Left, Pos_Sw_Bottom_Row - 3 * Switch_Pitch, Pos_Sw_Bottom_Row});
    // As the display counts them: the highest is 1.
    const std::array<const char*, 4> names = {"4", "3", "2", "1"};
    for (std::size_t position = 0; position < names.size(); ++position) {
        const int rise = static_cast<int>(position) * Switch_Pitch;
        Print_Position(printing, {names[position]}, Pos_Sw_Left, Pos_Sw_Bottom_Row - rise + Thumb_Half,
                       false);
    }
}

void Print_Tune(Printing& printing) {
    const Print_Point middle = {Tune_Left + Knob_Face_X, Tune_Top + Knob_Face_Y};
    Print_Knob_Marks(printing, middle, 12, 1, Degrees_A_Semitone);
    Print_Knob_Ends(printing, middle, "-12", "+12");
}

void Print_Switch(Printing& printing) {
    Print_Rail(printing, {Switch_Left, Switch_Row_Off, Switch_Row_Off + Switch_Pitch});
    Print_Position(printing, {"OFF"}, Switch_Left, Switch_Row_Off + Thumb_Half, true);
    Print_Position(printing, {"ON"}, Switch_Left, Switch_Row_Off + Switch_Pitch + Thumb_Half, true);
}

void Print_Lamps(Printing& printing) {
    for (std::size_t entry = 0; entry < Help_LED_SW.size(); ++entry) {
        const char* const names[] = {"A", "B", "C", "D"};
        Print_Lamp_Name(printing, names[entry], LED_Left, LED_Top + static_cast<int>(entry) * LED_Pitch);
    }
}

}  // namespace

Printing Howto_Printing() {
    Printing printing;
    for (const Panel_Group& group : Groups) Print_Group(printing, group);
    Print_Pos_Sw(printing);
    Print_Tune(printing);
    Print_Slider(printing, "", {.left = Slider_Left, .top_row = Slider_Bottom_Row - Slider_Travel});
    Print_Switch(printing);
    Print_Lamps(printing);
    return printing;
}
