#include "panels/spoken.h"

#include <algorithm>
#include <cmath>

#include "panels/steps.h"
#include "platform/gate.h"
#include "synth/tuning.h"

namespace {

constexpr int Highest_Shown = Slider_Shown(127);

// From here on the keys of a page are quicker; no page oversteps it.
constexpr double A_Page_Away = 12;
// A knob has up to two bytes for a number, and the tune knobs leave 0 downward by a page only.
constexpr int Presses_Without_Effect = 2;
constexpr int Most_Presses = 200;

double Value_Of(const Panel& panel, const Control& control) {
    return panel.scale(control)->value;
}

// The pointer's rows are bytes, and a display may have fewer steps: cut, a drag does not overshoot, and the
// last rows are felt for.
void Drag_To(const Panel& panel, Control& control, double wanted) {
    constexpr int Most_Drags = 8;
    const Control_Scale scale = *panel.scale(control);
    const double rows_a_unit = Highest_Value / (scale.highest - scale.lowest);
    for (int drag = 0; drag < Most_Drags; ++drag) {
        const double missing = wanted - Value_Of(panel, control);
        if (missing == 0) return;
        const double rows = std::max(std::floor(std::abs(missing) * rows_a_unit), 1.0);
        panel.events.pointer_moved(control, missing > 0 ? -rows : rows);
    }
}

void Walk_To(const Panel& panel, Control& control, double wanted) {
    int without_effect = 0;
    for (int press = 0; press < Most_Presses && without_effect <= Presses_Without_Effect; ++press) {
        const double before = Value_Of(panel, control);
        if (before == wanted) return;
        const bool page =
            std::abs(wanted - before) >= A_Page_Away || without_effect == Presses_Without_Effect;
        const int up = page ? Key_Page_Up : Key_Up;
        const int down = page ? Key_Page_Down : Key_Down;
        panel.events.key_pressed(control, wanted > before ? up : down);
        without_effect = Value_Of(panel, control) == before ? without_effect + 1 : 0;
    }
}

}  // namespace

Control_Scale Scale_Of(Control_Type type, std::uint8_t byte) {
    switch (type) {
        case Control_Type::Slider:
            return {1.0 * std::min(Slider_Shown(byte), Highest_Shown), 0, 1.0 * Highest_Shown};
        case Control_Type::Tune_Knob:
            return {1.0 * Panel_Tune_From_Byte(byte), -12, 12};
        case Control_Type::Fine_Knob:
            return {1.0 * Panel_Fine_From_Byte(byte), -50, 50};
        default:
            break;
    }
    const int highest = Positions(type) - 1;
    const int position = type == Control_Type::Two_Way ? byte / 64 : byte / 32;
    return {1.0 * std::min(position, highest), 0, 1.0 * highest};
}

std::string Spoken_Name(const Panel& panel, const Control& control) {
    const std::string value = panel.spoken_value(control);
    if (value.empty() || Is_Lamp(control)) return control.spoken_name;
    const auto scale = panel.scale == nullptr ? std::nullopt : panel.scale(control);
    if (scale && value == std::to_string(static_cast<int>(scale->value))) return control.spoken_name;
    return control.spoken_name + (", " + value);
}

bool Is_Lamp(const Control& control) {
    return control.role != Spoken_Role::By_Kind || std::string_view(control.kind) == "led";
}

bool Is_Lit(const Panel& panel, const Control& control) {
    return panel.spoken_value(control) == "on";
}

void Give_Focus(const Panel& panel, Control& control) {
    Control* const before = panel.window->active_control;
    if (before == &control || !control.focusable) return;
    if (before != nullptr) panel.events.focus_lost(*before);
    panel.events.focus_gained(control);
}

void Press_Control(const Panel& panel, Control& control) {
    // What goes wrong in one of them keeps none of the others away: a button that is down comes up.
    Guarded_Event([&] { panel.events.button_pressed(control, Mouse_Button::Left); });
    Guarded_Event([&] { panel.events.button_released(control, Mouse_Button::Left); });
    Guarded_Event([&] { panel.events.clicked(control); });
}

void Step_Control(const Panel& panel, Control& control, bool up) {
    Give_Focus(panel, control);
    Panel_Shift_State = 0;
    panel.events.key_pressed(control, up ? Key_Up : Key_Down);
}

void Enter_Value(const Panel& panel, Control& control, double value) {
    if (panel.scale == nullptr || !control.focusable || !control.enabled) return;
    const auto scale = panel.scale(control);
    if (!scale || std::isnan(value)) return;
    const double wanted = std::clamp(std::round(value), scale->lowest, scale->highest);
    Give_Focus(panel, control);
    Panel_Shift_State = 0;
    if (std::string_view(control.kind) == "bm") {
        Drag_To(panel, control, wanted);
    } else {
        Walk_To(panel, control, wanted);
    }
}
