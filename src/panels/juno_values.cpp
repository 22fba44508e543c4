// How the Alpha Juno panel's controls move, show and send: the half of juno_panel.h that knows values.
#include <algorithm>
#include <cstdlib>

#include "desk/timers.h"
#include "panels/juno_envelope.h"
#include "panels/juno_panel.h"
#include "panels/steps.h"
#include "synth/juno.h"
#include "synth/messages.h"
#include "synth/tone.h"

namespace {

constexpr double Slider_Page = 16;
constexpr double Position_Step = 1;
constexpr double Rows_A_Position = 20;  // of a drag

bool Is_Inverted(const Juno_Row& row) {
    return row.type == Juno_Type::Inverted;
}

// What a key means where position 0 is at the top.
int Reversed(int key) {
    switch (key) {
        case Key_Up:
            return Key_Down;
        case Key_Down:
            return Key_Up;
        case Key_Page_Up:
            return Key_Page_Down;
        case Key_Page_Down:
            return Key_Page_Up;
        case Key_Keypad_Plus:
            return Key_Keypad_Minus;
        case Key_Keypad_Minus:
            return Key_Keypad_Plus;
        case Key_Home:
            return Key_End;
        case Key_End:
            return Key_Home;
        default:
            return key;
    }
}

// Within what the switch can hold; a record from a file may hold more.
double Cut(const Juno_Row& row, double value) {
    return std::min<double>(value, row.positions - 1);
}

// The instrument's display shows the value as it is.
void Show_Value(std::uint8_t value) {
    Juno_Tone_Name.text = std::to_string(value);
    Timer_Start(Timer_Display);
}

int Top_Of(std::size_t parameter) {
    const Juno_Row& row = Juno_Row_Of_Parameter(parameter);
    return row.row - Juno_Rise(row, Juno_Byte(parameter));
}

bool Shapes_Envelope(std::size_t parameter) {
    return parameter >= Juno_T1 && parameter <= Juno_Envelope_Keyfollow;
}

}  // namespace

void Juno_Set_Value(std::size_t parameter, std::uint8_t value) {
    Juno_Byte(parameter) = value;
    if (!Is_True(Tone_Loading)) {
        if (Shapes_Envelope(parameter)) Juno_Draw_Envelope();
        Show_Value(value);
    }
    Juno_Send_Param(parameter);
    Tone_Saved = Flag_16::False;
}

void Juno_Slider_Key(const Juno_Row& row, std::size_t parameter, int key) {
    if (const auto value = Slider_Step(Juno_Byte(parameter), key, Slider_Page)) {
        Panel_Scratch_Real = *value;
        Juno_Set_Value(parameter, Narrow<std::uint8_t>(*value));
    }
    Juno_Slider_Place(row, parameter);
}

void Juno_Slider_Drag(const Juno_Row& row, std::size_t parameter, double pointer_row) {
    Panel_Scratch_Real = Switch_Dragged(Juno_Byte(parameter), pointer_row);
    Juno_Set_Value(parameter, Narrow<std::uint8_t>(Panel_Scratch_Real));
    Juno_Slider_Place(row, parameter);
}

void Juno_Slider_Place(const Juno_Row& row, std::size_t parameter) {
    Window_Set_Active_Top(Editor_Juno, row.row - Juno_Rise(row, Juno_Byte(parameter)));
}

void Juno_Switch_Key(const Juno_Row& row, std::size_t parameter, int key) {
    const int meant = Is_Inverted(row) ? Reversed(key) : key;
    if (const auto value = Switch_Step(Juno_Byte(parameter), meant, Highest_Value, Position_Step)) {
        Panel_Scratch_Real = Cut(row, *value);
        Juno_Set_Value(parameter, Narrow<std::uint8_t>(Panel_Scratch_Real));
    }
    Juno_Switch_Place(row, parameter);
}

void Juno_Switch_Drag(const Juno_Row& row, std::size_t parameter, double pointer_row) {
    const double positions = pointer_row / Rows_A_Position;
    const double downward = Is_Inverted(row) ? -positions : positions;
    Panel_Scratch_Real = Cut(row, Switch_Dragged(Juno_Byte(parameter), downward));
    Juno_Byte(parameter) = Narrow<std::uint8_t>(Panel_Scratch_Real);
    Juno_Switch_Place(row, parameter);
    // Step by step the instrument hears nearly everything, and a jump it does not: the JX-8P's rule turned
    // round.
    const std::int16_t value = To_Int16(Panel_Scratch_Real);
    const auto this_parameter = static_cast<std::int16_t>(parameter);
    if (std::abs(value - Panel_Last_Value) == 1 && Panel_Last_Param == this_parameter) {
        Juno_Send_Param(parameter);
    }
    Panel_Last_Value = value;
    Panel_Last_Param = this_parameter;
    Tone_Saved = Flag_16::False;
}

void Juno_Switch_Place(const Juno_Row& row, std::size_t parameter) {
    const std::uint8_t value = Juno_Byte(parameter);
    Window_Set_Active_Top(Editor_Juno, row.placed_row - Juno_Rise(row, value));
    // Two pixels a step are too little to see the range by.
    if (parameter == Juno_Bender_Range && !Is_True(Tone_Loading)) Show_Value(value);
}

int Juno_Switch_Top(std::size_t parameter) {
    return Top_Of(parameter);
}
int Juno_Slider_Top(std::size_t parameter) {
    return Top_Of(parameter);
}
