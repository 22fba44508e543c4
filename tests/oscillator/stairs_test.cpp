#include "oscillator/stairs.h"

#include "oscillator/open_oscillator.h"

namespace {

constexpr Osc_Line Aside = {130, 63, 137, 63};

std::string Drawn(const Osc_Line& line) {
    return std::to_string(line.x1) + "," + std::to_string(line.y1) + " " + std::to_string(line.x2) + "," +
           std::to_string(line.y2);
}

}  // namespace

using The_Stairs = Open_Oscillator;

TEST_F(The_Stairs, are_laid_out_level_on_a_grid_of_seven_columns) {
    Osc_Lay_Out();
    for (int i = 0; i < 18; ++i) {
        const auto index = static_cast<std::size_t>(i);
        EXPECT_EQ(Osc_Line1[index], (Osc_Line{7 * i, 63, 7 * i + 7, 63}));
        EXPECT_EQ(Osc_Line1[18 + index].x1, 130);
        EXPECT_EQ(Osc_Line1[18 + index].x2, 137);
    }
    ASSERT_EQ(Osc_VLine.size(), 17U);
    EXPECT_EQ(Osc_VLine.front(), (Osc_Line{7, 0, 7, 127}));
    EXPECT_EQ(Osc_VLine.back(), (Osc_Line{119, 0, 119, 127}));
    EXPECT_EQ(Osc_HLine, 63);
    EXPECT_EQ(Osc_TimeLine, 0);
}

TEST_F(The_Stairs, join_neighbours_that_differ) {
    Osc_Wave_Click(2);
    for (std::size_t i = 1; i < 18; ++i) {
        if (i == 9) {
            EXPECT_EQ(Drawn(Osc_Line1[27]), "63,95 63,31");
        } else {
            EXPECT_EQ(Drawn(Osc_Line1[18 + i]), Drawn(Aside)) << i;
        }
    }
    EXPECT_EQ(Drawn(Osc_Line1[8]), "56,95 63,95");
    EXPECT_EQ(Drawn(Osc_Line1[9]), "63,31 70,31");
    EXPECT_EQ(Drawn(Osc_Line1[18]), Drawn(Aside)) << "nothing stands before the first point";
}

TEST_F(The_Stairs, move_up_and_down_only) {
    for (int preset = 0; preset < 10; ++preset) {
        Osc_Wave_Click(preset);
        for (int i = 0; i < 18; ++i) {
            const Osc_Line& level = Osc_Line1[static_cast<std::size_t>(i)];
            const int row = Osc_Out[static_cast<std::size_t>(i)];
            EXPECT_EQ(level, (Osc_Line{7 * i, row, 7 * i + 7, row})) << preset << ' ' << i;
            if (i == 0) continue;
            const Osc_Line& upright = Osc_Line1[static_cast<std::size_t>(18 + i)];
            const int before = Osc_Out[static_cast<std::size_t>(i - 1)];
            EXPECT_EQ(upright, before == row ? Aside : (Osc_Line{7 * i, before, 7 * i, row}))
                << preset << ' ' << i;
        }
    }
}

TEST_F(The_Stairs, put_a_joint_aside_when_its_neighbours_become_equal) {
    Osc_Wave_Click(7);
    for (std::size_t i = 19; i < 36; ++i) EXPECT_LT(Osc_Line1[i].x1, 127);
    Osc_Wave_DblClick(8);
    for (std::size_t i = 18; i < 36; ++i) EXPECT_EQ(Osc_Line1[i], Aside);
}

TEST_F(The_Stairs, lift_the_zero_line_by_the_offset) {
    Osc_VScrollDelta_Change(20);
    EXPECT_EQ(Osc_HLine, 43);
    Osc_VScrollDelta_Change(-64);
    EXPECT_EQ(Osc_HLine, 127);
}

// -- drawing ---------------------------------------------------------------------------------------------

TEST_F(The_Stairs, find_the_point_by_bands_of_which_the_third_is_wider) {
    const auto Point_Drawn_At = [](int x) {
        Osc_Wave_DblClick(8);
        Dot(x, 5);
        int point = -1;
        for (int i = 0; i < 18; ++i) {
            if (Osc_Out[static_cast<std::size_t>(i)] != 5) continue;
            EXPECT_EQ(point, -1) << "one point only";
            point = i;
        }
        return point;
    };
    for (int x = 0; x <= 300; ++x) {
        const int expected = x >= 14 && x <= 23 ? 2 : x >= 119 ? 17 : x / 7;
        EXPECT_EQ(Point_Drawn_At(x), expected) << x;
    }
    EXPECT_EQ(Point_Drawn_At(22), 2);
    EXPECT_EQ(Point_Drawn_At(24), 3);
    EXPECT_EQ(Point_Drawn_At(-1), -1);
}

TEST_F(The_Stairs, limit_the_pointers_row_to_the_picture) {
    Dot(0, -40);
    EXPECT_EQ(Osc_Out[0], 0);
    EXPECT_EQ(Osc_Label2, "127");
    Dot(0, 400);
    EXPECT_EQ(Osc_Out[0], 127);
    EXPECT_EQ(Osc_Label2, "0");
    Dot(0, 27);
    EXPECT_EQ(Osc_Label2, "100");
}

TEST_F(The_Stairs, draw_both_ends_of_a_piece_and_its_joints) {
    Osc_Wave_DblClick(8);
    Dot(60, 10);
    EXPECT_EQ(Drawn(Osc_Line1[8]), "56,10 63,10");
    EXPECT_EQ(Drawn(Osc_Line1[18 + 8]), "56,63 56,10");
    EXPECT_EQ(Drawn(Osc_Line1[18 + 9]), "63,10 63,63");
    EXPECT_EQ(Drawn(Osc_Line1[18 + 10]), Drawn(Aside));
    Dot(0, 10);
    EXPECT_EQ(Drawn(Osc_Line1[0]), "0,10 7,10");
}

TEST_F(The_Stairs, work_the_shape_back_from_the_drawn_row) {
    Osc_Wave_DblClick(8);
    Osc_VScrollA_Change(32);
    Osc_VScrollDelta_Change(10);
    Dot(0, 100);
    EXPECT_EQ(Osc_Out[0], 100);
    EXPECT_EQ(Osc_Points[0], 158) << "(100 + 10 + 32 - 63) / 32 * 64";
    EXPECT_EQ(Osc_Points[1], 64);
}

TEST_F(The_Stairs, flatten_what_was_cut_by_any_later_drawing) {
    Osc_Wave_Click(1);
    Osc_VScrollDelta_Change(64);
    EXPECT_EQ(Osc_Out[17], 0);
    EXPECT_EQ(Osc_Points[17], 28);
    Dot(0, 50);
    EXPECT_EQ(Osc_Points[17], 65) << "row 0 lifted by 64";
    Osc_VScrollDelta_Change(0);
    EXPECT_EQ(Osc_Out[17], 64);
}

TEST_F(The_Stairs, work_back_with_another_button_but_draw_nothing) {
    Osc_Wave_Click(1);
    Osc_VScrollDelta_Change(64);
    for (const unsigned buttons :
         {0U + Osc_Right_Button, 0U + Osc_Middle_Button, 0U + Osc_Left_Button + Osc_Right_Button}) {
        Osc_Points[17] = 28;
        const Rows rows = Out();
        Osc_Label2 = "as it was";
        Dot(3, 20, buttons);
        EXPECT_EQ(Out(), rows);
        EXPECT_EQ(Osc_Points[17], 65);
        EXPECT_EQ(Osc_Label2, "as it was");
    }
}

TEST_F(The_Stairs, ignore_a_move_without_a_button) {
    Osc_Wave_Click(1);
    Osc_VScrollDelta_Change(64);
    const Rows points = Points();
    Osc_Picture1_MouseMove(0, 40, 5);
    EXPECT_EQ(Points(), points);
}

TEST_F(The_Stairs, draw_nothing_without_amplitude) {
    Osc_VScrollA_Change(0);
    Osc_VScrollDelta_Change(7);
    const Rows points = Points();
    Draw(0, 0, 126, 127);
    EXPECT_EQ(Points(), points);
    EXPECT_EQ(Out(), Rows(18, 56)) << "63 - offset";
    EXPECT_EQ(Osc_Label2, "");
}

TEST_F(The_Stairs, take_a_press_alone_for_no_drawing) {
    const Rows before = Out();
    Osc_Picture1_MouseDown(Osc_Left_Button, 60, 5);
    EXPECT_EQ(Out(), before);
}

TEST_F(The_Stairs, leave_out_no_point_that_the_pointer_has_crossed) {
    Draw(0, 0, 125, 125);
    EXPECT_EQ(Out(), (Rows{0, 10, 17, 24, 31, 38, 45, 52, 59, 66, 73, 80, 87, 94, 101, 108, 115, 125}));
    Draw(125, 20, 0, 20);
    EXPECT_EQ(Out(), Rows(18, 20));
}

TEST_F(The_Stairs, leave_out_no_point_when_the_pointer_comes_from_outside) {
    Osc_Wave_DblClick(8);
    Draw(-1000, 30, 1000, 30);
    EXPECT_EQ(Out(), Rows(18, 30));
    Draw(1000, 40, -1000, 40);
    EXPECT_EQ(Out(), Rows(18, 40));
}

TEST_F(The_Stairs, keep_what_each_event_has_drawn) {
    Osc_Picture1_MouseDown(Osc_Left_Button, 3, 10);
    for (int point = 0; point < 18; ++point)
        Osc_Picture1_MouseMove(Osc_Left_Button, 7 * point + 4, 7 * point);
    EXPECT_EQ(Out(), (Rows{0, 7, 14, 21, 28, 35, 42, 49, 56, 63, 70, 77, 84, 91, 98, 105, 112, 119}));
}

TEST_F(The_Stairs, keep_apart_what_two_presses_draw) {
    Osc_Wave_DblClick(8);
    Dot(3, 10);
    Dot(123, 10);
    Rows rows(18, 63);
    rows.front() = rows.back() = 10;
    EXPECT_EQ(Out(), rows);
}

TEST_F(The_Stairs, mark_a_curve_as_drawn_by_hand_at_the_release) {
    Osc_Wave_Click(4);
    Osc_Picture1_MouseDown(Osc_Left_Button, 3, 3);
    EXPECT_EQ(Presets_Lit(), (Rows{0, 0, 0, 0, 3, 0, 0, 0, 0, 0}));
    Osc_Picture1_MouseUp();
    EXPECT_EQ(Presets_Lit(), (Rows{0, 0, 0, 0, 0, 0, 0, 0, 2, 0}));
}

TEST_F(The_Stairs, are_marked_as_drawn_by_any_release_also_of_a_pointer_that_drew_nothing) {
    const Rows marked = {0, 0, 0, 0, 0, 0, 0, 0, 2, 0};
    Osc_Wave_Click(4);
    Osc_Picture1_MouseDown(Osc_Right_Button, 3, 3);
    Osc_Picture1_MouseUp();
    EXPECT_EQ(Presets_Lit(), marked);
    Osc_Wave_Click(4);
    Osc_VScrollA_Change(0);
    Dot(3, 3);
    EXPECT_EQ(Presets_Lit(), marked);
    EXPECT_EQ(Out(), Rows(18, 63));
}

TEST_F(The_Stairs, are_not_sent_while_they_are_drawn) {
    Draw(0, 0, 125, 100);
    EXPECT_EQ(Sent(), Lines{});
}
