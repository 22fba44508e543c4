#include "panels/steps.h"

#include <gtest/gtest.h>

#include <array>

namespace {

// Every key that any control knows, and one that none does.
constexpr int Unknown = 65;

// The table of keys, from a value in the middle.
struct Key_Row {
    int key;
    double slider;   // from 60
    double fourway;  // from 60
    double tune;     // from 3
    double fine;     // from 60
};
constexpr double Nothing = -1;

// clang-format off
constexpr std::array<Key_Row, 13> Keys = {{
//   key                slider   four    tune  fine
    {Key_Up,            61,      92,        4,   61},
    {Key_Keypad_Plus,   61,      92,        4,   61},
    {Key_Down,          59,      28,        2,   59},
    {Key_Keypad_Minus,  59,      28,        2,   59},
    {Key_Right,         Nothing, Nothing,   4,   61},
    {Key_Left,          Nothing, Nothing,   2,   59},
    {Key_Page_Up,       76,      92,        9,   70},
    {Key_Page_Down,     44,      28,       -3,   50},
    {Key_Home,          127,     127,      12,  127},
    {Key_End,           0,       0,       -12,    0},
    {Key_0,             Nothing, Nothing,   0,   63},
    {Key_Keypad_0,      Nothing, Nothing,   0,   63},
    {Unknown,           Nothing, Nothing,   3,   60},
}};
// clang-format on

}  // namespace

TEST(Key_Codes, are_the_classic_ones) {
    EXPECT_EQ(Key_Page_Up, 33);
    EXPECT_EQ(Key_Page_Down, 34);
    EXPECT_EQ(Key_End, 35);
    EXPECT_EQ(Key_Home, 36);
    EXPECT_EQ(Key_Left, 37);
    EXPECT_EQ(Key_Up, 38);
    EXPECT_EQ(Key_Right, 39);
    EXPECT_EQ(Key_Down, 40);
    EXPECT_EQ(Key_0, 48);
    EXPECT_EQ(Key_Keypad_0, 96);
    EXPECT_EQ(Key_Keypad_Plus, 107);
    EXPECT_EQ(Key_Keypad_Minus, 109);
}

TEST(Keys, move_each_kind_of_control_by_its_own_step) {
    for (const Key_Row& row : Keys) {
        EXPECT_EQ(Slider_Step(60, row.key, 16).value_or(Nothing), row.slider) << row.key;
        EXPECT_EQ(Switch_Step(60, row.key).value_or(Nothing), row.fourway) << row.key;
        EXPECT_EQ(Tune_Step(3, row.key), row.tune) << row.key;
        EXPECT_EQ(Fine_Step(60, row.key), row.fine) << row.key;
    }
}

TEST(Keys, never_leave_the_range) {
    EXPECT_EQ(Slider_Step(127, Key_Up, 16), 127);
    EXPECT_EQ(Slider_Step(120, Key_Page_Up, 16), 127);
    EXPECT_EQ(Slider_Step(0, Key_Down, 16), 0);
    EXPECT_EQ(Slider_Step(10, Key_Page_Down, 16), 0);
    EXPECT_EQ(Tune_Step(10, Key_Page_Up), 12);
    EXPECT_EQ(Tune_Step(-10, Key_Page_Down), -12);
    EXPECT_EQ(Fine_Step(120, Key_Page_Up), 127);
    EXPECT_EQ(Fine_Step(5, Key_Page_Down), 0);
}

TEST(Keys, page_a_slider_as_its_panel_has_it) {
    EXPECT_EQ(Slider_Step(60, Key_Page_Up, 10), 70);
    EXPECT_EQ(Slider_Step(60, Key_Page_Down, 10), 50);
}

TEST(Keys, step_a_switch_of_four_through_its_bands) {
    EXPECT_EQ(Switch_Step(96, Key_Up), 127);
    EXPECT_EQ(Switch_Step(127, Key_Up), 127);
    EXPECT_EQ(Switch_Step(200, Key_Up), 127);
    EXPECT_EQ(Switch_Step(31, Key_Down), 0);
    EXPECT_EQ(Switch_Step(32, Key_Down), 0);
    EXPECT_EQ(Switch_Step(33, Key_Down), 1);
    EXPECT_EQ(Switch_Step(127, Key_Down), 95);
}

TEST(Keys, step_a_switch_of_three_to_64_at_most) {
    EXPECT_EQ(Switch_Step(0, Key_Up, 64), 32);
    EXPECT_EQ(Switch_Step(32, Key_Up, 64), 64);
    EXPECT_EQ(Switch_Step(64, Key_Up, 64), 64);
    EXPECT_EQ(Switch_Step(0, Key_Home, 64), 64);
    EXPECT_EQ(Switch_Step(64, Key_End, 64), 0);
}

TEST(Keys, cannot_step_a_tune_knob_below_0_by_one) {
    EXPECT_EQ(Tune_Step(0, Key_Down), 0);
    EXPECT_EQ(Tune_Step(0, Key_Left), 0);
    EXPECT_EQ(Tune_Step(0, Key_Keypad_Minus), 0);
    EXPECT_EQ(Tune_Step(0, Key_Page_Down), -6);
    EXPECT_EQ(Tune_Step(-1, Key_Down), -2);
    EXPECT_EQ(Tune_Step(-1, Key_Up), 0);
}

TEST(Keys, toggle_a_switch_of_two_by_eight_codes) {
    for (int key = 0; key < 256; ++key) {
        const bool toggles = key == 33 || key == 34 || key == 35 || key == 36 || key == 38 || key == 40 ||
                             key == 107 || key == 109;
        EXPECT_EQ(Toggles(key), toggles) << key;
    }
}

TEST(A_Toggle, changes_sides_by_64) {
    EXPECT_EQ(Toggled(0), 64);
    EXPECT_EQ(Toggled(63), 127);
    EXPECT_EQ(Toggled(64), 0);
    EXPECT_EQ(Toggled(127), 63);
    EXPECT_EQ(Toggled(128), 128);
    EXPECT_EQ(Toggled(255), 255);
}

TEST(A_Drag, of_a_slider_takes_the_row_off_and_cuts_the_fraction) {
    EXPECT_EQ(Slider_Dragged(60, 8), 52);
    EXPECT_EQ(Slider_Dragged(60, -8), 68);
    EXPECT_EQ(Slider_Dragged(60, 8.25), 51);
    EXPECT_EQ(Slider_Dragged(60, -8.75), 68);
    EXPECT_EQ(Slider_Dragged(5, 8), 0);
    EXPECT_EQ(Slider_Dragged(120, -80), 127);
}

TEST(A_Drag, of_a_switch_rounds_halves_to_even) {
    EXPECT_EQ(Switch_Dragged(60, 8), 52);
    EXPECT_EQ(Switch_Dragged(60, 8.5), 52);
    EXPECT_EQ(Switch_Dragged(61, 8.5), 52);
    EXPECT_EQ(Switch_Dragged(60, 8.4), 52);
    EXPECT_EQ(Switch_Dragged(5, 8), 0);
    EXPECT_EQ(Switch_Dragged(120, -80), 127);
}

TEST(Inc_and_Dec, count_by_one_and_Dec_refuses_to_leave_0) {
    double value = 127;
    Panel_Inc(value);
    EXPECT_EQ(value, 128);
    value = 0.5;
    Panel_Dec(value);
    EXPECT_EQ(value, -0.5);
    value = 0;
    Panel_Dec(value);
    EXPECT_EQ(value, 0);
}
