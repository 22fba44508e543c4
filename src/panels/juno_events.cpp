// The Alpha Juno panel's answers to pointer, keys and focus: the half of juno_panel.h that handles events.
// The handlers only pass the constants of the control's row on.
#include "panels/juno_panel.h"

namespace {

void Focus_Gained(Control& control) {
    Editor_Juno.active_control = &control;
    if (Juno_Row_Of(control) != nullptr) Panel_Current_Control = &control;
}

void Focus_Lost(Control&) {
    Panel_Restore_Picture();
}

void Key_Pressed(Control& control, int key) {
    if (Common_Key_Pressed(Juno_Common, control)) return;
    const Juno_Row* row = Juno_Row_Of(control);
    if (row == nullptr) return;
    const auto parameter = static_cast<std::size_t>(row->key_parameter);
    if (row->type == Juno_Type::Slider) {
        Juno_Slider_Key(*row, parameter, key);
    } else {
        Juno_Switch_Key(*row, parameter, key);
    }
}

// A mere press on a thumb does nothing here.
void Button_Pressed(Control& control, Mouse_Button button) {
    (void)Common_Button_Pressed(Juno_Common, control, button);
}

void Pointer_Moved(Control& control, double pointer_row) {
    const Juno_Row* row = Juno_Row_Of(control);
    if (row == nullptr) return;
    const auto parameter = static_cast<std::size_t>(row->parameter);
    if (row->type == Juno_Type::Slider) {
        Juno_Slider_Drag(*row, parameter, pointer_row);
    } else {
        Juno_Switch_Drag(*row, parameter, pointer_row);
    }
}

void Button_Released(Control& control, Mouse_Button button) {
    Common_Button_Released(Juno_Common, control, button);
}

void Clicked(Control& control) {
    Common_Clicked(Juno_Common, control);
}

}  // namespace

constinit const Panel_Events Juno_Events = {
    .focus_gained = Focus_Gained,
    .focus_lost = Focus_Lost,
    .key_pressed = Key_Pressed,
    .button_pressed = Button_Pressed,
    .pointer_moved = Pointer_Moved,
    .button_released = Button_Released,
    .clicked = Clicked,
    .activated = Juno_Activated,
    .deactivated = Juno_Deactivated,
};
