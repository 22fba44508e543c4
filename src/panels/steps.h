// How keys and the pointer change a value, for every panel: numbers in, numbers out, no record.
// Key codes are the classic ones of the key table below, whatever the toolkit calls them.
#pragma once

#include <optional>

enum Key_Code : int {
    Key_Tab = 9,
    Key_Pause = 19,
    Key_Escape = 27,
    Key_Page_Up = 33,
    Key_Page_Down = 34,
    Key_End = 35,
    Key_Home = 36,
    Key_Left = 37,
    Key_Up = 38,
    Key_Right = 39,
    Key_Down = 40,
    Key_0 = 48,
    Key_Keypad_0 = 96,
    Key_Keypad_Plus = 107,
    Key_Keypad_Minus = 109,
};

inline constexpr double Highest_Value = 127;

// A switch that is dragged sends on a jump only: more than this away from the drag event before.
inline constexpr int Switch_Send_Difference = 4;

// Adds 1; subtracts 1 unless the value is exactly 0. Neither clamps otherwise, and Panel_Dec is one
// procedure for all kinds: that is why no key steps a tune knob below 0 by one.
void Panel_Inc(double& value);
void Panel_Dec(double& value);

// Slider: Up and keypad + one up, Down and keypad - one down, Page Up and Page Down by `page`, Home to 127,
// End to 0; within 0 to 127. Nothing for any other key.
std::optional<double> Slider_Step(double value, int key, double page);

// Switch of positions: Up, keypad + and Page Up a step up, `ceiling` at most; Down, keypad - and Page Down
// a step down, or 0 from less than a step; Home to the ceiling, End to 0. Nothing for any other key. A step
// is a band of bytes, unless the value is the position itself.
inline constexpr double Switch_Band = 32;
std::optional<double> Switch_Step(double value, int key, double ceiling = Highest_Value,
                                  double step = Switch_Band);

// Tune knob, in semitones within -12 to 12. A key without a meaning leaves the value.
double Tune_Step(double semitones, int key);

// Fine tune knob, in bytes within 0 to 127. A key without a meaning leaves the value.
double Fine_Step(double byte, int key);

// Two-position switch: the value on its other side. What is above 127 has no other side and stays.
double Toggled(double value);
// The keys that toggle it; any other one only sends.
bool Toggles(int key);

// A drag event at `row`, relative to the thumb at that moment: one pixel is one unit.
double Slider_Dragged(double value, double row);  // the fraction is cut
double Switch_Dragged(double value, double row);  // rounded, halves to even

// How a slider's value stands in a display: 0 to 99, as on the instrument's own.
inline constexpr int Slider_Shown(int value) {
    return value * 99 / 127;
}

double Clamped(double value, double lowest, double highest);
