#include "desk/timers.h"
#include "fakes/stage.h"
#include "shell/frame.h"

using namespace std::chrono_literals;

using Focus_Mark = Started_Stage;

namespace {

Picture Buttons(int item) {
    return {Picture_Store::Buttons, item};
}

}  // namespace

TEST_F(Focus_Mark, alternates_every_250_ms) {
    Focus("VCF_Res");
    Advance(250ms);
    const Picture first = At("VCF_Res").picture;
    Advance(250ms);
    const Picture second = At("VCF_Res").picture;
    EXPECT_NE(first, second);
    Advance(250ms);
    EXPECT_EQ(At("VCF_Res").picture, first);
    Advance(249ms);
    EXPECT_EQ(At("VCF_Res").picture, first);
    Advance(1ms);
    EXPECT_EQ(At("VCF_Res").picture, second);
}

TEST_F(Focus_Mark, shows_each_kind_in_its_two_pictures) {
    const std::vector<std::pair<const char*, int>> rows = {{"DCO1_Range", 0},      {"DCO2_Crossmod", 2},
                                                           {"VCF_Res", 6},         {"DCO1_Tune_Knopf", 4},
                                                           {"DCO2_Tune_Knopf", 4}, {"DCO2_FTune_Knopf", 4}};
    for (const auto& [name, resting] : rows) {
        Focus(name);
        Panel_Blink_Phase = 0;
        Panel_Blink();
        EXPECT_EQ(At(name).picture, Buttons(resting)) << name;
        Panel_Blink_Phase = 1;
        Panel_Blink();
        EXPECT_EQ(At(name).picture, Buttons(resting + 1)) << name;
        Panel_Restore_Picture();
        EXPECT_EQ(At(name).picture, Buttons(resting)) << name;
    }
}

TEST_F(Focus_Mark, of_a_focused_knob_blinks_on_the_dot_and_not_on_the_body) {
    Focus("DCO1_Tune");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(At("DCO1_Tune_Knopf").picture, Buttons(5));
    EXPECT_EQ(At("DCO1_Tune").picture, Buttons(8));
}

TEST_F(Focus_Mark, leaves_the_resting_picture_behind_when_the_focus_goes) {
    Focus("VCF_Res");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Focus("VCF_LFO");
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
}

TEST_F(Focus_Mark, is_restored_without_regard_to_case_and_blinks_by_exact_kind) {
    Control lamp = {.name = "odd", .kind = "BM"};
    Panel_Current_Control = &lamp;
    lamp.picture = Buttons(7);
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(lamp.picture, Buttons(7));
    Panel_Restore_Picture();
    EXPECT_EQ(lamp.picture, Buttons(6));
}

TEST_F(Focus_Mark, on_a_lamp_shows_the_lamps_own_pictures_and_relights_the_selected_ones) {
    static int relit = 0;
    Patch_Relight_Lamps = [] { ++relit; };
    Control lamp = {.name = "Key_Mode", .kind = "led"};
    Panel_Current_Control = &lamp;
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(lamp.picture, (Picture{Picture_Store::LED, 1}));
    Panel_Restore_Picture();
    EXPECT_EQ(lamp.picture, (Picture{Picture_Store::LED, 0}));
    EXPECT_EQ(relit, 0);
    Patch_Window_Open = Flag_8::True;
    Panel_Restore_Picture();
    EXPECT_EQ(relit, 1);
}

TEST_F(Focus_Mark, of_a_knob_on_a_window_that_is_not_there_does_nothing) {
    Control knob = {.name = "Tune_Knopf", .kind = "knh"};
    Panel_Current_Control = &knob;
    Panel_Blink();
    Panel_Restore_Picture();
    EXPECT_EQ(knob.picture, Picture{});
    Panel_Knob_Show("knh", 10, 12, 3);
    Panel_Knob_Show("bm", 10, 12, 3);
}

TEST_F(Focus_Mark, without_a_control_does_nothing) {
    Panel_Current_Control = nullptr;
    Panel_Knob_Last_Y = 5;
    Panel_Blink();
    Panel_Restore_Picture();
    EXPECT_EQ(Panel_Knob_Last_Y, 5);
}

TEST_F(Focus_Mark, copies_the_help_context_at_each_blink) {
    Focus("DCO2_Waveform");
    EXPECT_EQ(Panel_Help_Context, 0);
    Advance(250ms);
    EXPECT_EQ(Panel_Help_Context, 2);
    Focus("VCF_Res");
    Advance(250ms);
    EXPECT_EQ(Panel_Help_Context, 0);
}

TEST_F(Focus_Mark, wraps_its_phase) {
    Panel_Blink_Phase = 1;
    Panel_Blink_Tick();
    EXPECT_EQ(Panel_Blink_Phase, 0);
    Panel_Blink_Tick();
    EXPECT_EQ(Panel_Blink_Phase, 1);
    Panel_Blink_Phase = 7;
    Panel_Blink_Tick();
    EXPECT_EQ(Panel_Blink_Phase, 0);
}

TEST_F(Focus_Mark, rests_while_a_dialog_is_open_and_comes_back_behind_it) {
    Focus("VCF_Res");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Window_Show(MIDI_Setup);
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
    Advance(10s);
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
    Window_Unload(MIDI_Setup);
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
    Advance(500ms);
    EXPECT_TRUE(Timer1.enabled);
}

TEST_F(Focus_Mark, starts_on_the_first_range_and_returns_there_when_the_panel_is_activated) {
    EXPECT_EQ(Panel_Current_Control, &At("DCO1_Range"));
    Focus("VCF_Res");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Editor_Panel.events.deactivated();
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
    Panel_Blink_Phase = 1;
    Editor_Panel.events.activated();
    EXPECT_EQ(Panel_Blink_Phase, 0);
    EXPECT_EQ(Panel_Current_Control, &At("DCO1_Range"));
}

TEST_F(Focus_Mark, stays_on_the_last_control_while_a_button_or_the_name_has_the_focus) {
    Focus("VCF_Res");
    for (const char* name : {"ED_Seq_Start", "ED_Seq_Stop", "Keys_Pic", "Tone_Name"}) {
        Focus(name);
        EXPECT_EQ(Panel_Current_Control, &At("VCF_Res")) << name;
    }
}

TEST_F(Focus_Mark, on_the_name_field_is_restored_when_the_focus_leaves_it) {
    Focus("VCF_Res");
    Focus("Tone_Name");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Focus("VCF_LFO");
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
}

TEST_F(Focus_Mark, is_not_left_on_the_old_control_when_the_panel_is_activated) {
    Focus("VCF_Res");
    Focus("Keys_Pic");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    ASSERT_EQ(At("VCF_Res").picture, Buttons(7));
    Editor_Panel.events.activated();
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
}
