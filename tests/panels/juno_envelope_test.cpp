#include "panels/juno_envelope.h"

#include "desk/timers.h"
#include "fakes/juno_stage.h"
#include "synth/views.h"

using namespace std::chrono_literals;

namespace {

void Expect_Line(std::size_t item, float x1, float y1, float x2, float y2) {
    EXPECT_EQ(LineEnv[item].x1, x1) << item;
    EXPECT_EQ(LineEnv[item].y1, y1) << item;
    EXPECT_EQ(LineEnv[item].x2, x2) << item;
    EXPECT_EQ(LineEnv[item].y2, y2) << item;
}

}  // namespace

using Juno_Envelope_Graph = Juno_Stage;

TEST_F(Juno_Envelope_Graph, stands_over_the_panel_and_is_hidden_at_first) {
    EXPECT_STREQ(PictureEnv.name, "PictureEnv");
    EXPECT_EQ(PictureEnv.left, 90);
    EXPECT_EQ(PictureEnv.top, 136);
    EXPECT_EQ(PictureEnv.width, 378);
    EXPECT_EQ(PictureEnv.height, 135);
    EXPECT_FALSE(PictureEnv.visible);
    EXPECT_EQ(Juno_Panel.graph->curve.data(), LineEnv.data());
}

TEST_F(Juno_Envelope_Graph, has_two_axes_that_meet_at_time_and_level_0) {
    ASSERT_EQ(Juno_Envelope.axes.size(), 2U);
    const Line_Shape& levels = Juno_Envelope.axes[0];
    const Line_Shape& times = Juno_Envelope.axes[1];
    EXPECT_EQ(levels.x1, 5);
    EXPECT_EQ(levels.x2, 5);
    EXPECT_EQ(levels.y2, 130);
    EXPECT_EQ(times.x1, 5);
    EXPECT_EQ(times.y1, 130);
    EXPECT_EQ(times.y2, 130);
    EXPECT_LE(times.x2, 378);
    EXPECT_GE(times.x2, 309) << "as far as the longest envelope";
}

TEST_F(Juno_Envelope_Graph, draws_times_at_half_a_pixel_and_levels_at_a_pixel_a_unit) {
    Juno_Data[26] = 11;
    Juno_Data[27] = 100;
    Juno_Data[28] = 20;
    Juno_Data[29] = 50;
    Juno_Data[30] = 30;
    Juno_Data[31] = 70;
    Juno_Data[32] = 41;
    Juno_Draw_Envelope();
    Expect_Line(0, 5, 130, 10.5F, 30);
    Expect_Line(1, 10.5F, 30, 20.5F, 80);
    Expect_Line(2, 20.5F, 80, 35.5F, 60);
    Expect_Line(3, 35.5F, 60, 85.5F, 60);
    Expect_Line(4, 85.5F, 60, 106, 130);
    EXPECT_TRUE(PictureEnv.visible);
}

TEST_F(Juno_Envelope_Graph, of_zeros_is_a_line_with_a_plateau_of_50_pixels) {
    Juno_Draw_Envelope();
    Expect_Line(0, 5, 130, 5, 130);
    Expect_Line(1, 5, 130, 5, 130);
    Expect_Line(2, 5, 130, 5, 130);
    Expect_Line(3, 5, 130, 55, 130);
    Expect_Line(4, 55, 130, 55, 130);
}

TEST_F(Juno_Envelope_Graph, of_the_largest_values_stays_inside_the_picture) {
    for (std::size_t parameter = 26; parameter <= 32; ++parameter) Juno_Data[parameter] = 127;
    Juno_Draw_Envelope();
    Expect_Line(0, 5, 130, 68.5F, 3);
    Expect_Line(4, 245.5F, 3, 309, 130);
}

TEST_F(Juno_Envelope_Graph, comes_up_at_a_change_of_26_to_33_and_at_no_other) {
    for (const Juno_Row& row : Juno_Table) {
        PictureEnv.visible = false;
        Key(row.control, Key_Up);
        const bool one_of_its = row.parameter >= 26 && row.parameter <= 33;
        EXPECT_EQ(PictureEnv.visible, one_of_its) << row.control;
    }
}

TEST_F(Juno_Envelope_Graph, comes_up_with_the_key_follow_that_changes_nothing_in_it) {
    Key("ENV_T2", Key_Home);
    const auto before = LineEnv[4].x2;
    PictureEnv.visible = false;
    Key("ENV_Keyfollow", Key_Home);
    EXPECT_TRUE(PictureEnv.visible);
    EXPECT_EQ(LineEnv[4].x2, before);
}

TEST_F(Juno_Envelope_Graph, follows_a_drag_and_goes_two_seconds_behind_the_last_change_with_the_name_back) {
    Focus("ENV_T4");
    Drag("ENV_T4", -20);
    EXPECT_TRUE(PictureEnv.visible);
    Expect_Line(4, 55, 130, 65, 130);
    Advance(1500ms);
    Drag("ENV_T4", -20);
    Expect_Line(4, 55, 130, 75, 130);
    EXPECT_EQ(Shown(), "40");
    Advance(1999ms);
    EXPECT_TRUE(PictureEnv.visible);
    EXPECT_EQ(Shown(), "40");
    Advance(1ms);
    EXPECT_FALSE(PictureEnv.visible);
    EXPECT_EQ(Shown(), "NEW");
}

TEST_F(Juno_Envelope_Graph, stays_out_of_sight_in_a_refresh) {
    for (std::size_t parameter = 26; parameter <= 33; ++parameter) Juno_Data[parameter] = 60;
    const auto before = LineEnv[0].y2;
    Juno_To_Panel();
    EXPECT_FALSE(PictureEnv.visible);
    EXPECT_EQ(LineEnv[0].y2, before);
}

TEST_F(Juno_Envelope_Graph, stays_while_the_help_window_has_the_timer) {
    Key("ENV_T4", Key_Home);
    App_Mode = "Help";
    Timer_Display.tick();
    EXPECT_TRUE(PictureEnv.visible);
    App_Mode = "";
    Timer_Display.tick();
    EXPECT_FALSE(PictureEnv.visible);
}
