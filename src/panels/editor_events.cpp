// The JX-8P panel's answers to pointer, keys and focus: the half of editor.h that handles events. The
// handlers only pass the constants of the control's row on.
#include "panels/editor.h"
#include "panels/steps.h"
#include "panels/tune_knob.h"
#include "synth/messages.h"
#include "synth/tone.h"
#include "synth/tuning.h"

namespace {

std::size_t Parameter_Of(const Editor_Row& row) {
    return static_cast<std::size_t>(row.parameter);
}

// -- knobs -----------------------------------------------------------------------------------------------

void Knob_Key(const Editor_Row& row, int key) {
    const std::size_t parameter = Parameter_Of(row);
    std::uint8_t byte = 0;
    if (row.type == Control_Type::Tune_Knob) {
        byte = Tune_Knob_Key(Tone_Byte(parameter), key);
    } else {
        byte = Narrow<std::uint8_t>(Fine_Step(Tone_Byte(parameter), key));
        Panel_Scratch_Real = Panel_Fine_From_Byte(byte);
        Panel_Knob_Dot(Dot_Centre_Left, Dot_Centre_Top, Degrees_A_Fine_Unit);
    }
    // A knob has no notion of an unknown key: every key sends.
    Editor_Set_Value(parameter, byte);
}

void Knob_Drag(const Editor_Row& row, double pointer_row) {
    const std::size_t parameter = Parameter_Of(row);
    if (row.type == Control_Type::Tune_Knob) {
        Editor_Set_Value(parameter, Tune_Knob_Drag(Tone_Byte(parameter), pointer_row));
    } else {
        const double byte =
            Clamped(Tone_Byte(parameter) + Panel_Knob_Movement(pointer_row), 0, Highest_Value);
        Editor_Set_Value(parameter, Narrow<std::uint8_t>(byte));
        Panel_Scratch_Real = Panel_Fine_From_Byte(Tone_Byte(parameter));
        Panel_Knob_Dot(Dot_Centre_Left, Dot_Centre_Top, Degrees_A_Fine_Unit);
    }
}

// -- the two-position switch -----------------------------------------------------------------------------

void Toggle(Control& control, const Editor_Row& row, bool turn) {
    std::uint8_t& byte = Tone_Byte(Parameter_Of(row));
    const auto other_side = Narrow<std::uint8_t>(Toggled(byte));
    if (turn && other_side != byte) {
        // Not ten from where it stands: a message that was no tone has changed the byte and not the thumb,
        // and from there the thumb would leave its rail.
        control.top = other_side > byte ? row.top_row : row.bottom_row;
        byte = other_side;
    }
    Editor_Send_Param(Parameter_Of(row));
    Tone_Saved = Flag_16::False;
}

// -- events ----------------------------------------------------------------------------------------------

void Focus_Gained(Control& control) {
    Editor.active_control = &control;
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return;
    Control* dot = Is_Knob(row->type) && control.parent == nullptr ? Editor_Dot_Of(control) : nullptr;
    Panel_Current_Control = dot != nullptr ? dot : &control;
}

void Focus_Lost(Control&) {
    Panel_Restore_Picture();
}

void Key_Pressed(Control& control, int key) {
    if (Common_Key_Pressed(Editor_Common, control)) return;
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return;
    switch (row->type) {
        case Control_Type::Slider:
            Editor_Slider_Key(row->top_row, row->bottom_row, Parameter_Of(*row), key);
            break;
        case Control_Type::Four_Way:
        case Control_Type::Three_Way:
            Editor_Switch_Key(row->top_row, row->bottom_row, Parameter_Of(*row), key);
            break;
        case Control_Type::Two_Way:
            Toggle(control, *row, Toggles(key));
            break;
        case Control_Type::Tune_Knob:
        case Control_Type::Fine_Knob:
            Knob_Key(*row, key);
            break;
    }
}

void Button_Pressed(Control& control, Mouse_Button button) {
    if (Common_Button_Pressed(Editor_Common, control, button)) return;
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return;
    if (row->type == Control_Type::Slider || Is_Knob(row->type)) {
        Editor_Set_Value(Parameter_Of(*row), Tone_Byte(Parameter_Of(*row)));
    } else if (row->type == Control_Type::Two_Way) {
        Toggle(control, *row, true);
    }
}

void Pointer_Moved(Control& control, double pointer_row) {
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return;
    if (row->type == Control_Type::Slider) {
        Editor_Slider_Drag(row->top_row, row->bottom_row, Parameter_Of(*row), pointer_row);
    } else if (Is_Knob(row->type)) {
        Knob_Drag(*row, pointer_row);
    } else if (row->type != Control_Type::Two_Way) {
        Editor_Switch_Drag(row->top_row, row->bottom_row, Parameter_Of(*row), pointer_row);
    }
}

void Button_Released(Control& control, Mouse_Button button) {
    Common_Button_Released(Editor_Common, control, button);
}

void Clicked(Control& control) {
    Common_Clicked(Editor_Common, control);
}

}  // namespace

constinit const Panel_Events Editor_Events = {
    .focus_gained = Focus_Gained,
    .focus_lost = Focus_Lost,
    .key_pressed = Key_Pressed,
    .button_pressed = Button_Pressed,
    .pointer_moved = Pointer_Moved,
    .button_released = Button_Released,
    .clicked = Clicked,
    .activated = Editor_Activated,
    .deactivated = Editor_Deactivated,
};

void ED_Seq_Stop_Click() {
    Common_Seq_Stop_Click(Editor_Common);
}
void ED_Seq_Stop_MouseUp() {
    Common_Seq_Stop_MouseUp(Editor_Common);
}
