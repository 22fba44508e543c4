#include "oscillator/curve.h"

#include <array>

#include "oscillator/open_oscillator.h"

namespace {

// clang-format off
// Each preset as the first click behind the window's opening gives it, and inverted.
const std::array<Rows, 8> Shapes = {{
    {96, 89, 82, 75, 68, 61, 54, 47, 40, 96, 89, 82, 75, 68, 61, 54, 47, 40},
    {96, 92, 88, 84, 80, 76, 72, 68, 64, 60, 56, 52, 48, 44, 40, 36, 32, 28},
    {96, 96, 96, 96, 96, 96, 96, 96, 96, 32, 32, 32, 32, 32, 32, 32, 32, 32},
    {96, 89, 82, 75, 68, 61, 54, 47, 40, 33, 40, 47, 54, 61, 68, 75, 82, 89},
    {63, 52, 42, 35, 31, 32, 36, 43, 53, 65, 76, 85, 92, 95, 94, 89, 81, 71},
    {63, 52, 42, 35, 31, 32, 36, 43, 53, 61, 50, 41, 34, 31, 32, 37, 45, 55},
    {32, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96, 96},
    {32, 96, 32, 96, 32, 96, 32, 96, 32, 96, 32, 96, 32, 96, 32, 96, 32, 96},
}};
const std::array<Rows, 8> Shapes_Inverted = {{
    {31, 38, 45, 52, 59, 66, 73, 80, 87, 31, 38, 45, 52, 59, 66, 73, 80, 87},
    {31, 35, 39, 43, 47, 51, 55, 59, 63, 67, 71, 75, 79, 83, 87, 91, 95, 99},
    {31, 31, 31, 31, 31, 31, 31, 31, 31, 95, 95, 95, 95, 95, 95, 95, 95, 95},
    {31, 38, 45, 52, 59, 66, 73, 80, 87, 94, 87, 80, 73, 66, 59, 52, 45, 38},
    {64, 75, 85, 92, 96, 95, 91, 84, 74, 62, 51, 42, 35, 32, 33, 38, 46, 56},
    {64, 75, 85, 92, 96, 95, 91, 84, 74, 66, 77, 86, 93, 96, 95, 90, 82, 72},
    {95, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31, 31},
    {95, 31, 95, 31, 95, 31, 95, 31, 95, 31, 95, 31, 95, 31, 95, 31, 95, 31},
}};
// With the random numbers 0, 1/8, 1/4, 1/2 over and over, behind the first preset, which leaves 33.
const Rows Random_Shape = {33, 127, 111, 95, 64, 127, 111, 95, 64, 127, 111, 95, 64, 127, 111, 95, 64, 127};
const Rows Random_Inverted = {94, 0, 16, 32, 63, 0, 16, 32, 63, 0, 16, 32, 63, 0, 16, 32, 63, 0};
// clang-format on

int Drawn = 0;

void Take_Known_Numbers() {
    Drawn = 0;
    Random_Number = [] {
        constexpr std::array<double, 4> Numbers = {0, 0.125, 0.25, 0.5};
        return Numbers[static_cast<std::size_t>(Drawn++) % 4];
    };
}

// A real quotient to the nearest whole number, halves to the even one, without real arithmetic.
int Rounded(int numerator, int denominator) {
    int quotient = numerator / denominator;
    int rest = numerator % denominator;
    if (rest < 0) {
        rest += denominator;
        --quotient;
    }
    if (2 * rest > denominator || (2 * rest == denominator && quotient % 2 != 0)) ++quotient;
    return quotient;
}

}  // namespace

using The_Curve = Open_Oscillator;

TEST_F(The_Curve, is_that_of_button_0_when_nothing_is_pressed) {
    EXPECT_EQ(Points(), Shapes[0]);
    EXPECT_EQ(Osc_VScrollA.value, 64);
    EXPECT_EQ(Osc_VScrollDelta.value, 0);
    EXPECT_EQ(Out(), (Rows{95, 88, 81, 74, 67, 60, 53, 46, 39, 95, 88, 81, 74, 67, 60, 53, 46, 39}));
}

TEST_F(The_Curve, takes_each_preset) {
    for (int preset = 0; preset < 8; ++preset) {
        Osc_Wave_Click(preset);
        EXPECT_EQ(Points(), Shapes[static_cast<std::size_t>(preset)]) << preset;
    }
}

TEST_F(The_Curve, takes_each_preset_inverted) {
    Osc_Invert_Click();
    for (int preset = 0; preset < 8; ++preset) {
        Osc_Wave_Click(preset);
        EXPECT_EQ(Points(), Shapes_Inverted[static_cast<std::size_t>(preset)]) << preset;
    }
}

TEST_F(The_Curve, stays_as_it_is_at_free_drawing) {
    Osc_Wave_Click(3);
    Osc_Wave_Click(8);
    EXPECT_EQ(Points(), Shapes[3]);
}

TEST_F(The_Curve, is_turned_round_by_every_click_on_free_drawing_while_inverted) {
    Osc_Wave_Click(3);
    Osc_Invert_Click();
    EXPECT_EQ(Points(), Shapes_Inverted[3]);
    Osc_Wave_Click(8);
    EXPECT_EQ(Points(), Shapes[3]);
}

TEST_F(The_Curve, is_drawn_at_random) {
    Take_Known_Numbers();
    Osc_Wave_Click(9);
    EXPECT_EQ(Points(), Random_Shape);
    EXPECT_EQ(Drawn, 18);
}

TEST_F(The_Curve, is_drawn_at_random_and_inverted) {
    Take_Known_Numbers();
    Osc_Invert_Click();
    Osc_Wave_Click(9);
    EXPECT_EQ(Points(), Random_Inverted);
}

TEST_F(The_Curve, begins_at_random_with_what_the_preset_before_has_left) {
    Take_Known_Numbers();
    for (const auto& [before, first] : {std::pair{0, 33}, {1, 24}, {3, 96}, {4, 63}, {5, 63}}) {
        Osc_Wave_Click(before);
        Osc_Wave_Click(9);
        EXPECT_EQ(Osc_Points[0], first) << before;
    }
    for (const int no_user_of_it : {2, 6, 7, 8}) {
        Osc_Wave_Click(1);
        Osc_Wave_Click(no_user_of_it);
        Osc_Wave_Click(9);
        EXPECT_EQ(Osc_Points[0], 24) << no_user_of_it;
    }
    Drawn = 0;
    Osc_Wave_Click(9);
    Osc_Wave_Click(9);  // 127 - 0.125 * 127, of the 18th number
    EXPECT_EQ(Osc_Points[0], 111);
}

TEST_F(The_Curve, is_random_by_itself_and_within_the_picture) {
    Osc_Wave_Click(9);
    const Rows first = Points();
    Osc_Wave_Click(9);
    EXPECT_NE(Points(), first);
    for (const int row : Points()) {
        EXPECT_GE(row, 0);
        EXPECT_LE(row, 127);
    }
}

TEST_F(The_Curve, becomes_flat_by_a_double_click_on_free_drawing_alone) {
    Osc_VScrollDelta_Change(5);
    Osc_Wave_DblClick(8);
    EXPECT_EQ(Points(), Rows(18, 64));
    EXPECT_EQ(Out(), Rows(18, 58));
    Osc_Invert_Click();
    Osc_Wave_DblClick(8);
    EXPECT_EQ(Points(), Rows(18, 64)) << "not inverted";
    for (const int other : {0, 1, 2, 3, 4, 5, 6, 7, 9}) {
        Osc_Wave_Click(1);
        const Rows before = Points();
        Osc_Wave_DblClick(other);
        EXPECT_EQ(Points(), before) << other;
    }
}

TEST_F(The_Curve, knows_ten_presets) {
    EXPECT_THROW(Osc_Preset(10), Fatal_Error);
    EXPECT_THROW(Osc_Preset(-1), Fatal_Error);
}

// -- inverting -------------------------------------------------------------------------------------------

TEST_F(The_Curve, is_inverted_in_its_shape_and_not_behind_the_scaling) {
    Osc_Wave_Click(2);
    Osc_Invert_Click();
    EXPECT_EQ(Points(), Shapes_Inverted[2]);
    Rows rows(9, 30);
    rows.insert(rows.end(), 9, 94);
    EXPECT_EQ(Out(), rows);
}

TEST_F(The_Curve, of_button_2_with_invert_on_lies_on_30_and_94) {
    Osc_Invert_Click();
    Osc_Wave_Click(2);
    Rows rows(9, 30);
    rows.insert(rows.end(), 9, 94);
    EXPECT_EQ(Out(), rows);
}

TEST_F(The_Curve, comes_back_exactly_by_two_inversions) {
    Osc_Points = {-1000, -1, 0, 127, 128, 5000, 64, 63, 1, 2, 3, 4, 5, 6, 7, 8, 9, 8191};
    const Rows before = Points();
    Osc_Invert_Click();
    EXPECT_EQ(Osc_Points[0], 1127);
    EXPECT_EQ(Osc_Points[17], -8064);
    EXPECT_TRUE(Osc_Inverted);
    Osc_Invert_Click();
    EXPECT_EQ(Points(), before);
    EXPECT_FALSE(Osc_Inverted);
}

// -- scaling ---------------------------------------------------------------------------------------------

TEST_F(The_Curve, loses_one_at_the_start_values) {
    Osc_Points = {1, 2, 63, 64, 65, 100, 126, 127, 0, 128, 129, -5, 300, 10, 20, 30, 40, 50};
    Osc_Redraw();
    EXPECT_EQ(Out(), (Rows{0, 1, 62, 63, 64, 99, 125, 126, 0, 127, 127, 0, 127, 9, 19, 29, 39, 49}));
}

TEST_F(The_Curve, is_scaled_cut_and_limited_in_this_order) {
    Osc_Points = {96, 0, 32, 33, 34, 64, 65, 95, 97, 62, 61, 127, 1, 2, 3, 4, 5, 6};
    Osc_VScrollA_Change(127);
    EXPECT_EQ(Out(), (Rows{126, 0, 0, 1, 3, 63, 64, 124, 127, 59, 57, 127, 0, 0, 0, 0, 0, 0}));
    Osc_VScrollA_Change(33);
    EXPECT_EQ(Out(), (Rows{79, 30, 46, 47, 47, 63, 63, 78, 80, 61, 61, 95, 30, 31, 31, 32, 32, 33}));
    Osc_VScrollDelta_Change(-20);
    EXPECT_EQ(Out(), (Rows{99, 50, 66, 67, 67, 83, 83, 98, 100, 81, 81, 115, 50, 51, 51, 52, 52, 53}));
}

TEST_F(The_Curve, with_amplitude_127_is_cut_to_127_and_0) {
    Osc_Points.fill(96);
    Osc_Points[1] = 0;
    Osc_Points[2] = 97;
    Osc_VScrollA_Change(127);
    EXPECT_EQ(Osc_Out[0], 126);
    EXPECT_EQ(Osc_Out[1], 0);
    EXPECT_EQ(Osc_Out[2], 127);
    Osc_VScrollDelta_Change(-64);
    EXPECT_EQ(Osc_Out[0], 127);
}

TEST_F(The_Curve, is_flat_without_amplitude) {
    Osc_VScrollA_Change(0);
    EXPECT_EQ(Out(), Rows(18, 63));
    Osc_VScrollDelta_Change(64);
    EXPECT_EQ(Out(), Rows(18, 0)) << "63 - 64, limited";
    Osc_VScrollDelta_Change(-64);
    EXPECT_EQ(Out(), Rows(18, 127));
    Osc_VScrollDelta_Change(-10);
    EXPECT_EQ(Out(), Rows(18, 73));
}

TEST_F(The_Curve, grows_around_64) {
    Osc_Points.fill(64);
    for (int amplitude = 0; amplitude <= 127; ++amplitude) {
        Osc_VScrollA_Change(amplitude);
        EXPECT_EQ(Out(), Rows(18, 63)) << amplitude;
    }
}

TEST_F(The_Curve, is_scaled_alike_over_the_whole_range_of_both_scroll_bars) {
    const Osc_Curve points = {-300, -64, -1, 0, 1, 28, 32, 33, 47, 63, 64, 65, 80, 96, 127, 128, 190, 400};
    for (int amplitude = 0; amplitude <= 127; ++amplitude) {
        for (int offset = -64; offset <= 64; ++offset) {
            Osc_Points = points;
            Osc_VScrollA.value = amplitude;
            Osc_VScrollDelta.value = offset;
            Osc_Scale();
            for (std::size_t i = 0; i < points.size(); ++i) {
                const int row = (amplitude * points[i] + 64 * (63 - amplitude - offset)) / 64;
                ASSERT_EQ(Osc_Out[i], row < 0     ? 0
                                      : row > 127 ? 127
                                                  : row)
                    << amplitude << ' ' << offset << ' ' << points[i];
            }
        }
    }
}

TEST_F(The_Curve, is_worked_back_alike_over_the_whole_range_of_both_scroll_bars) {
    for (int amplitude = 1; amplitude <= 127; ++amplitude) {
        for (int offset = -64; offset <= 64; ++offset) {
            Osc_VScrollA.value = amplitude;
            Osc_VScrollDelta.value = offset;
            for (std::size_t i = 0; i < Osc_Count; ++i)
                Osc_Out[i] = static_cast<std::int16_t>(i * 127 / 17);
            Osc_Work_Back();
            for (std::size_t i = 0; i < Osc_Count; ++i) {
                const int numerator = 64 * (Osc_Out[i] + offset + amplitude - 63);
                ASSERT_EQ(Osc_Points[i], Rounded(numerator, amplitude)) << amplitude << ' ' << offset;
            }
        }
    }
}

TEST_F(The_Curve, cannot_be_worked_back_without_amplitude) {
    Osc_VScrollA_Change(0);
    EXPECT_THROW(Osc_Work_Back(), Fatal_Error);
}
