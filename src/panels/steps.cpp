#include "panels/steps.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

void Panel_Inc(double& value) {
    value += 1;
}

void Panel_Dec(double& value) {
    if (value != 0) value -= 1;
}

double Clamped(double value, double lowest, double highest) {
    return std::max(lowest, std::min(value, highest));
}

std::optional<double> Slider_Step(double value, int key, double page) {
    switch (key) {
        case Key_Up:
        case Key_Keypad_Plus:
            Panel_Inc(value);
            break;
        case Key_Down:
        case Key_Keypad_Minus:
            Panel_Dec(value);
            break;
        case Key_Page_Up:
            value += page;
            break;
        case Key_Page_Down:
            value -= page;
            break;
        case Key_Home:
            value = Highest_Value;
            break;
        case Key_End:
            value = 0;
            break;
        default:
            return std::nullopt;
    }
    return Clamped(value, 0, Highest_Value);
}

std::optional<double> Switch_Step(double value, int key, double ceiling, double step) {
    switch (key) {
        case Key_Up:
        case Key_Keypad_Plus:
        case Key_Page_Up:
            value += step;
            break;
        case Key_Down:
        case Key_Keypad_Minus:
        case Key_Page_Down:
            value = value < step ? 0 : value - step;
            break;
        case Key_Home:
            value = ceiling;
            break;
        case Key_End:
            value = 0;
            break;
        default:
            return std::nullopt;
    }
    return Clamped(value, 0, ceiling);
}

namespace {

// What a knob's keys reach: its two ends, its middle, and how far a page goes.
struct Knob_Scale {
    double lowest;
    double highest;
    double centre;
    double page;
};
constexpr Knob_Scale Tune_Scale = {-12, 12, 0, 6};
constexpr Knob_Scale Fine_Scale = {0, Highest_Value, 63, 10};

double Knob_Step(double value, int key, const Knob_Scale& scale) {
    switch (key) {
        case Key_Up:
        case Key_Keypad_Plus:
        case Key_Right:
            Panel_Inc(value);
            break;
        case Key_Down:
        case Key_Keypad_Minus:
        case Key_Left:
            Panel_Dec(value);
            break;
        case Key_Page_Up:
            value += scale.page;
            break;
        case Key_Page_Down:
            value -= scale.page;
            break;
        case Key_Home:
            value = scale.highest;
            break;
        case Key_End:
            value = scale.lowest;
            break;
        case Key_0:
        case Key_Keypad_0:
            value = scale.centre;
            break;
        default:
            break;
    }
    return Clamped(value, scale.lowest, scale.highest);
}

}  // namespace

double Tune_Step(double semitones, int key) {
    return Knob_Step(semitones, key, Tune_Scale);
}

double Fine_Step(double byte, int key) {
    return Knob_Step(byte, key, Fine_Scale);
}

double Toggled(double value) {
    if (value >= 0 && value <= 63) return value + 64;
    if (value >= 64 && value <= 127) return value - 64;
    return value;
}

bool Toggles(int key) {
    return (key >= Key_Page_Up && key <= Key_Home) || key == Key_Up || key == Key_Down ||
           key == Key_Keypad_Plus || key == Key_Keypad_Minus;
}

double Slider_Dragged(double value, double row) {
    return std::trunc(Clamped(value - row, 0, Highest_Value));
}

double Switch_Dragged(double value, double row) {
    return Clamped(Round_Half_Even(value - row), 0, Highest_Value);
}
