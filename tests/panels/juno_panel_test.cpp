// How the Alpha Juno's panel answers pointer, keys and focus.
#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/juno_stage.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/juno_envelope.h"
#include "sequencer/sequence.h"
#include "setup/setup.h"
#include "shell/frame.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

Picture Buttons(int item) {
    return {Picture_Store::Buttons, item};
}

int Dialogs = 0;
int Toggles_Of_Reception = 0;

}  // namespace

using Juno_Panel_Played = Juno_Stage;

// -- a press ---------------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, does_nothing_at_a_mere_press) {
    for (const Juno_Row& row : Juno_Table) {
        Press(row.control);
        Release(row.control);
        Click(row.control);
        EXPECT_EQ(Panel_Current_Control, &At(row.control)) << row.control;
    }
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_FALSE(PictureEnv.visible);
}

// -- sliders, keys ---------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, steps_a_slider_by_key) {
    struct Step {
        int key;
        int from;
        int to;
    };
    const Step steps[] = {
        {Key_Up, 5, 6},           {Key_Keypad_Plus, 5, 6}, {Key_Up, 127, 127},   {Key_Down, 5, 4},
        {Key_Keypad_Minus, 5, 4}, {Key_Down, 0, 0},        {Key_Page_Up, 5, 21}, {Key_Page_Up, 120, 127},
        {Key_Page_Down, 40, 24},  {Key_Page_Down, 10, 0},  {Key_Home, 5, 127},   {Key_End, 5, 0},
        {Key_Up, 200, 127},
    };
    for (const Step& step : steps) {
        Sysex_Param_Text.clear();
        Juno_Data[17] = static_cast<std::uint8_t>(step.from);
        Key("VCF_Res", step.key);
        EXPECT_EQ(Juno_Data[17], step.to) << step.key << " from " << step.from;
        EXPECT_EQ(Shown(), std::to_string(step.to)) << "raw, without a scale";
        EXPECT_EQ(At("VCF_Res").top, 246 - step.to * 80 / 127);
        EXPECT_EQ(Sent().size(), 1U) << step.key << " from " << step.from;
    }
}

TEST_F(Juno_Panel_Played, places_the_thumb_at_a_key_without_a_meaning_and_sends_nothing) {
    Focus("VCF_Res");
    Juno_Data[17] = 64;
    for (const int key :
         {static_cast<int>(Key_Left), static_cast<int>(Key_Right), static_cast<int>(Key_0), 187, 189, 65}) {
        At("VCF_Res").top = 0;
        Key("VCF_Res", key);
        EXPECT_EQ(At("VCF_Res").top, 246 - 64 * 80 / 127) << key;
    }
    EXPECT_EQ(Juno_Data[17], 64);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Juno_Panel_Played, moves_the_first_time_by_the_keys_of_the_first_level) {
    Juno_Data[26] = 10;
    Juno_Data[27] = 90;
    Juno_To_Panel();
    Key("ENV_L1", Key_Up);
    EXPECT_EQ(Juno_Data[26], 11);
    EXPECT_EQ(Juno_Data[27], 90);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 1A 0B F7"});
    EXPECT_EQ(Shown(), "11");
    EXPECT_EQ(At("ENV_L1").top, 382 - 11 * 80 / 127) << "jumps to the row of the first time";
    EXPECT_EQ(At("ENV_T1").top, 382 - 10 * 80 / 127) << "does not follow";
    Juno_To_Panel();
    EXPECT_EQ(At("ENV_L1").top, 382 - 90 * 80 / 127);
    EXPECT_EQ(At("ENV_T1").top, 382 - 11 * 80 / 127);
    Drag("ENV_L1", -1);
    EXPECT_EQ(Juno_Data[27], 91) << "its own by pointer";
}

// -- sliders, pointer ------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, rounds_a_sliders_drag_with_halves_to_the_even_neighbour) {
    Focus("VCF_Res");
    struct Move {
        int from;
        double row;
        int to;
    };
    for (const Move& move : {Move{10, -0.5, 10},
                             {11, -0.5, 12},
                             {10, -0.6, 11},
                             {10, 0.5, 10},
                             {11, 0.5, 10},
                             {10, -20, 30},
                             {10, 20, 0},
                             {120, -20, 127},
                             {10, 0, 10}}) {
        Juno_Data[17] = static_cast<std::uint8_t>(move.from);
        Drag("VCF_Res", move.row);
        EXPECT_EQ(Juno_Data[17], move.to) << move.from << " by " << move.row;
        EXPECT_EQ(At("VCF_Res").top, 246 - move.to * 80 / 127);
    }
}

TEST_F(Juno_Panel_Played, sends_every_change_of_a_dragged_slider_once) {
    Focus("ENV_T4");
    Drag("ENV_T4", -20);
    Drag("ENV_T4", -10);
    Drag("ENV_T4", 0);
    EXPECT_EQ(Sent(), (Lines{"F0 41 36 00 23 20 01 20 14 F7", "F0 41 36 00 23 20 01 20 1E F7"}))
        << "the third says nothing new";
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

// -- switches, keys --------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, steps_a_plain_switch_by_key_within_its_positions) {
    struct Step {
        int key;
        int from;
        int to;
    };
    for (const Step& step : {Step{Key_Up, 0, 1},
                             {Key_Page_Up, 1, 2},
                             {Key_Keypad_Plus, 4, 5},
                             {Key_Up, 5, 5},
                             {Key_Down, 2, 1},
                             {Key_Page_Down, 1, 0},
                             {Key_Keypad_Minus, 1, 0},
                             {Key_Down, 0, 0},
                             {Key_End, 4, 0},
                             {Key_Home, 1, 5},
                             {Key_Up, 255, 5},
                             {Key_Down, 200, 5}}) {
        Sysex_Param_Text.clear();
        Juno_Data[4] = static_cast<std::uint8_t>(step.from);
        Key("DCO_SawTooth", step.key);
        EXPECT_EQ(Juno_Data[4], step.to) << step.key << " from " << step.from;
        EXPECT_EQ(Shown(), std::to_string(step.to));
        EXPECT_EQ(At("DCO_SawTooth").top, 79 - step.to * 10);
        EXPECT_EQ(Sent().size(), 1U);
    }
}

TEST_F(Juno_Panel_Played, steps_an_inverted_switch_the_other_way_round) {
    struct Step {
        int key;
        int from;
        int to;
    };
    for (const char* name : {"DCO_Range", "DCO_EnvMode"}) {
        const std::size_t parameter = std::string(name) == "DCO_Range" ? 6 : 0;
        for (const Step& step : {Step{Key_Down, 0, 1},
                                 {Key_Page_Down, 1, 2},
                                 {Key_Keypad_Minus, 2, 3},
                                 {Key_Down, 3, 3},
                                 {Key_Up, 2, 1},
                                 {Key_Page_Up, 1, 0},
                                 {Key_Keypad_Plus, 1, 0},
                                 {Key_Up, 0, 0},
                                 {Key_Home, 2, 0},
                                 {Key_End, 1, 3}}) {
            Sysex_Param_Text.clear();
            Juno_Data[parameter] = static_cast<std::uint8_t>(step.from);
            Key(name, step.key);
            EXPECT_EQ(Juno_Data[parameter], step.to) << step.key << " from " << step.from;
            EXPECT_EQ(At(name).top, 29 + step.to * 10);
            EXPECT_EQ(Sent().size(), 1U);
        }
    }
}

TEST_F(Juno_Panel_Played, places_a_switch_at_a_key_without_a_meaning_and_sends_nothing) {
    Focus("DCO_Sub");
    Juno_Data[5] = 3;
    At("DCO_Sub").top = 0;
    Key("DCO_Sub", Key_Left);
    EXPECT_EQ(At("DCO_Sub").top, 49);
    EXPECT_EQ(Juno_Data[5], 3);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Juno_Panel_Played, puts_two_switches_a_row_lower_by_hand_than_in_a_refresh) {
    for (const auto& [name, parameter] : {std::pair{"VCF_EnvMode", 1}, {"VCA_EnvMode", 2}}) {
        Key(name, Key_Down);
        EXPECT_EQ(At(name).top, 175) << name;
        Key(name, Key_Left);
        EXPECT_EQ(At(name).top, 175) << name;
        Drag(name, 20);
        EXPECT_EQ(At(name).top, 185) << name;
        EXPECT_EQ(Juno_Data[static_cast<std::size_t>(parameter)], 2);
        Juno_To_Panel();
        EXPECT_EQ(At(name).top, 184) << name;
    }
    Key("DCO_EnvMode", Key_Down);
    EXPECT_EQ(At("DCO_EnvMode").top, 39) << "not this one";
}

TEST_F(Juno_Panel_Played, sends_a_switch_again_that_stays_where_it_is) {
    Juno_Data[10] = 1;
    Key("Chorus_OnOff", Key_Up);
    EXPECT_EQ(Juno_Data[10], 1);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 0A 01 F7"});
    Key("Chorus_OnOff", Key_Up);
    EXPECT_EQ(Sent(), Lines{}) << "but not the same text twice in a row";
    Key("VCF_Res", Key_Up);
    Key("Chorus_OnOff", Key_Up);
    EXPECT_EQ(Sent().size(), 2U);
}

// -- switches, pointer -----------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, counts_20_pixels_a_position_with_halves_to_the_even_neighbour) {
    struct Move {
        int from;
        double row;
        int to;
    };
    Focus("DCO_SawTooth");
    for (const Move& move : {Move{2, -20, 3},
                             {2, -10, 2},
                             {3, -10, 4},
                             {2, -11, 3},
                             {2, 20, 1},
                             {2, 30, 0},
                             {2, 60, 0},
                             {2, -300, 5},
                             {2, 9, 2},
                             {200, 0, 5}}) {
        Juno_Data[4] = static_cast<std::uint8_t>(move.from);
        Drag("DCO_SawTooth", move.row);
        EXPECT_EQ(Juno_Data[4], move.to) << move.from << " by " << move.row;
        EXPECT_EQ(At("DCO_SawTooth").top, 79 - move.to * 10);
    }
    Focus("DCO_Range");
    for (const Move& move :
         {Move{2, 20, 3}, {2, 10, 2}, {1, 10, 2}, {2, -20, 1}, {2, -60, 0}, {2, 300, 3}}) {
        Juno_Data[6] = static_cast<std::uint8_t>(move.from);
        Drag("DCO_Range", move.row);
        EXPECT_EQ(Juno_Data[6], move.to) << move.from << " by " << move.row;
        EXPECT_EQ(At("DCO_Range").top, 29 + move.to * 10);
    }
}

TEST_F(Juno_Panel_Played, sends_a_dragged_switch_on_a_difference_of_exactly_one) {
    Focus("DCO_Sub");
    Panel_Last_Param = 5;
    Panel_Last_Value = 0;
    Drag("DCO_Sub", -20);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 05 01 F7"});
    Drag("DCO_Sub", 0);
    EXPECT_EQ(Sent(), Lines{}) << "no difference";
    Drag("DCO_Sub", -40);
    EXPECT_EQ(Juno_Data[5], 3);
    EXPECT_EQ(Sent(), Lines{}) << "a jump";
    EXPECT_EQ(Panel_Last_Value, 3);
    EXPECT_EQ(Panel_Last_Param, 5);
    Drag("DCO_Sub", 20);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 05 02 F7"}) << "downward too";
}

TEST_F(Juno_Panel_Played, does_not_send_a_switch_whose_last_drag_was_another_ones) {
    Focus("DCO_Sub");
    Panel_Last_Param = 4;
    Panel_Last_Value = 0;
    Drag("DCO_Sub", -20);
    EXPECT_EQ(Juno_Data[5], 1);
    EXPECT_EQ(Sent(), Lines{});
    Drag("DCO_Sub", -20);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 05 02 F7"});
}

TEST_F(Juno_Panel_Played, marks_the_tone_as_changed_and_shows_nothing_at_a_switchs_drag) {
    Focus("DCO_Sub");
    Drag("DCO_Sub", 0);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(Juno_Panel_Played, moves_the_bender_by_two_pixels_a_step_and_shows_its_number) {
    Focus("Bender_Range");
    Panel_Last_Param = 35;
    Panel_Last_Value = 0;
    Drag("Bender_Range", -60);
    EXPECT_EQ(Juno_Data[35], 3);
    EXPECT_EQ(At("Bender_Range").top, 322 - 6);
    EXPECT_EQ(Sent(), Lines{}) << "a jump by three";
    EXPECT_EQ(Shown(), "3");
    EXPECT_TRUE(Timer_Display.enabled);
    Advance(1999ms);
    Drag("Bender_Range", 0);
    Advance(1999ms);
    EXPECT_EQ(Shown(), "3") << "counted from the last";
    Advance(1ms);
    EXPECT_EQ(Shown(), "NEW");
    Drag("Bender_Range", -20);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 23 04 F7"});
    Key("Bender_Range", Key_Home);
    EXPECT_EQ(Juno_Data[35], 12);
    EXPECT_EQ(At("Bender_Range").top, 298);
}

TEST_F(Juno_Panel_Played, shows_the_benders_number_at_a_key_without_a_meaning_and_sends_nothing) {
    Juno_Data[35] = 7;
    Key("Bender_Range", Key_Left);
    EXPECT_EQ(At("Bender_Range").top, 322 - 14);
    EXPECT_EQ(Shown(), "7");
    EXPECT_TRUE(Timer_Display.enabled);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Juno_Panel_Played, does_not_show_its_envelope_at_the_bender) {
    Focus("Bender_Range");
    Drag("Bender_Range", -20);
    Key("Bender_Range", Key_Up);
    EXPECT_FALSE(PictureEnv.visible);
}

// -- what is shown ---------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, shows_a_value_for_two_seconds_from_the_last_change) {
    Key("VCF_Freq", Key_Home);
    EXPECT_EQ(Shown(), "127");
    Advance(1500ms);
    Key("VCF_Freq", Key_End);
    EXPECT_EQ(Shown(), "0");
    Advance(1999ms);
    EXPECT_EQ(Shown(), "0");
    Advance(1ms);
    EXPECT_EQ(Shown(), "NEW");
}

TEST_F(Juno_Panel_Played, shows_nothing_while_a_tone_is_loading_but_stores_and_sends) {
    Tone_Loading = Flag_8::True;
    Key("ENV_T4", Key_Home);
    Focus("Bender_Range");
    Drag("Bender_Range", -20);
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_FALSE(PictureEnv.visible);
    EXPECT_EQ(Juno_Data[32], 127);
    EXPECT_EQ(Juno_Data[35], 1);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 20 7F F7"});
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(Juno_Panel_Played, refreshes_without_sending_and_without_marking_the_tone) {
    for (std::size_t index = 0; index < 36; ++index) Juno_Data[index] = 1;
    Juno_To_Panel();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_FALSE(PictureEnv.visible);
}

TEST_F(Juno_Panel_Played, says_values_and_positions_to_a_screen_reader) {
    Juno_Data[17] = 99;
    Juno_Data[6] = 3;
    Juno_Data[3] = 3;
    Juno_Data[10] = 1;
    Juno_Data[35] = 7;
    Juno_Data[5] = 200;
    const auto said = [](const char* name) { return Juno_Panel.spoken_value(At(name)); };
    EXPECT_EQ(said("VCF_Res"), "99");
    EXPECT_EQ(said("DCO_Range"), "32'");
    EXPECT_EQ(said("DCO_Pulse"), "Pulse Width Modulation");
    EXPECT_EQ(said("Chorus_OnOff"), "ON");
    EXPECT_EQ(said("Bender_Range"), "7");
    EXPECT_EQ(said("DCO_Sub"), "200");
    EXPECT_EQ(said("Tone_Name"), "NEW");
}

// -- focus -----------------------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, has_its_first_focus_on_the_range) {
    EXPECT_EQ(Panel_Current_Control, &At("DCO_Range"));
    EXPECT_EQ(Editor_Juno.active_control, &At("DCO_Range"));
}

TEST_F(Juno_Panel_Played, blinks_by_the_hidden_editors_timer) {
    EXPECT_FALSE(Editor.visible);
    Focus("VCF_Res");
    Advance(250ms);
    const Picture first = At("VCF_Res").picture;
    Advance(250ms);
    const Picture second = At("VCF_Res").picture;
    EXPECT_NE(first, second);
    EXPECT_EQ(std::min(first.item, second.item), 6);
    EXPECT_EQ(std::max(first.item, second.item), 7);
    Focus("DCO_Range");
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6)) << "at rest again";
}

TEST_F(Juno_Panel_Played, rests_its_blinking_control_when_it_is_left_or_a_dialog_opens) {
    Focus("DCO_Sub");
    At("DCO_Sub").picture = Buttons(1);
    Juno_Panel.events.deactivated();
    EXPECT_EQ(At("DCO_Sub").picture, Buttons(0));
    Panel_Blink_Phase = 1;
    Juno_Panel.events.activated();
    EXPECT_EQ(Panel_Current_Control, &At("DCO_Range"));
    EXPECT_EQ(Panel_Blink_Phase, 0);
    Focus("VCF_Res");
    At("VCF_Res").picture = Buttons(7);
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_EQ(At("VCF_Res").picture, Buttons(6));
    EXPECT_FALSE(Editor_Juno.enabled);
    Setup_Escape();
    EXPECT_TRUE(Editor_Juno.enabled);
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
}

TEST_F(Juno_Panel_Played, tells_the_help_context_of_its_controls) {
    Focus("DCO_SawTooth");
    Panel_Blink();
    EXPECT_EQ(Panel_Help_Context, 2);
    Focus("VCF_Res");
    Panel_Blink();
    EXPECT_EQ(Panel_Help_Context, 0);
}

// -- the rest of the window ------------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, opens_the_names_dialog_by_click_and_key_unless_one_is_open) {
    TName_Show = [] { ++Dialogs; };
    Click("Tone_Name");
    EXPECT_EQ(Dialogs, 1);
    Key("Tone_Name", 'A');
    EXPECT_EQ(Dialogs, 2);
    App_Mode = "Help";
    Click("Tone_Name");
    Key("Tone_Name", 'A');
    EXPECT_EQ(Dialogs, 2);
}

TEST_F(Juno_Panel_Played, plays_its_keyboard_button) {
    Press("Keys_Pic");
    EXPECT_EQ(At("Keys_Pic").picture, Buttons(10));
    EXPECT_EQ(Sent(), (Lines{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
    Release("Keys_Pic");
    EXPECT_EQ(At("Keys_Pic").picture, Buttons(10)) << "the notes go on";
    Press("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(Sent().size(), 1U);
    Release("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(At("Keys_Pic").picture, Buttons(9));
}

TEST_F(Juno_Panel_Played, starts_and_stops_the_sequencer_with_buttons_that_are_one_on_both_panels) {
    Seq_Loaded = Flag_8::True;
    Seq_Pos = 5;
    Click("ED_Seq_Start");
    EXPECT_TRUE(Is_True(Seq_Running));
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Pos, 0);
    for (const Control* button : {&Juno_Seq_Start, &Editor_Seq_Start}) {
        EXPECT_EQ(button->picture.store, Picture_Store::Button_Dn3D) << "held down";
        EXPECT_EQ(button->symbol->left, 4);
    }
    Press("Keys_Pic");
    Sent();
    Press("ED_Seq_Stop");
    EXPECT_EQ(At("Keys_Pic").picture, Buttons(9));
    EXPECT_EQ(Editor_Seq_Stop.picture.store, Picture_Store::Button_Dn3D);
    At("Keys_Pic").picture = Buttons(10);
    Release("ED_Seq_Stop");
    Juno_Panel.events.clicked(At("ED_Seq_Stop"));
    EXPECT_EQ(At("Keys_Pic").picture, Buttons(9));
    EXPECT_FALSE(Is_True(Seq_Running));
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    for (const Control* button : {&Juno_Seq_Start, &Editor_Seq_Start, &Juno_Seq_Stop, &Editor_Seq_Stop}) {
        EXPECT_EQ(button->picture.store, Picture_Store::Button_Up3D);
        EXPECT_EQ(button->symbol->left, 3);
    }
}

TEST_F(Juno_Panel_Played, raises_its_start_button_at_once_without_a_sequence) {
    Press("ED_Seq_Start");
    EXPECT_EQ(Editor_Seq_Start.picture.store, Picture_Store::Button_Dn3D);
    Release("ED_Seq_Start");
    EXPECT_EQ(Editor_Seq_Start.picture.store, Picture_Store::Button_Up3D);
    Click("ED_Seq_Start");
    EXPECT_FALSE(Seq_Tmr.enabled);
}

TEST_F(Juno_Panel_Played, ends_the_reception_and_nothing_else_by_its_stop_button) {
    Seq_Loaded = Flag_8::True;
    Click("ED_Seq_Start");
    MIDI_Receiving = 1;
    MIDI_Receive_Toggle = [] { ++Toggles_Of_Reception; };
    Click("ED_Seq_Stop");
    EXPECT_EQ(Toggles_Of_Reception, 1);
    EXPECT_TRUE(Is_True(Seq_Running));
}

TEST_F(Juno_Panel_Played, pushes_the_editors_buttons_from_there_too) {
    Play_On(Editor_Panel);
    Press("ED_Seq_Stop");
    EXPECT_EQ(Juno_Seq_Stop.picture.store, Picture_Store::Button_Dn3D);
    EXPECT_EQ(Juno_Seq_Stop_Pic.left, 4);
    Release("ED_Seq_Stop");
    EXPECT_EQ(Juno_Seq_Stop.picture.store, Picture_Store::Button_Up3D);
}

// -- the change of the instrument ------------------------------------------------------------------------

TEST_F(Juno_Panel_Played, goes_and_comes_back_as_it_was_with_the_instrument) {
    Key("VCF_Res", Key_Home);
    Synthesizer = "JX-8P";
    Sysex_Headers_Update();
    EXPECT_FALSE(Editor_Juno.visible);
    EXPECT_TRUE(Editor.visible);
    EXPECT_TRUE(Editor_Controls[0].visible);
    At("VCF_Res").left = 0;
    At("Keys_Pic").top = 0;
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Editor.visible);
    EXPECT_FALSE(Editor_Controls[0].visible);
    EXPECT_EQ(At("VCF_Res").left, 169);
    EXPECT_EQ(At("VCF_Res").top, 166);
    EXPECT_EQ(At("Keys_Pic").top, 107);
    EXPECT_FALSE(PictureEnv.visible);
}

TEST_F(Juno_Panel_Played, leaves_the_other_record_alone) {
    Tone_Data.fill(9);
    Key("VCF_Res", Key_Home);
    Focus("DCO_Sub");
    Drag("DCO_Sub", -20);
    for (const std::uint8_t byte : Tone_Data) EXPECT_EQ(byte, 9);
}

TEST_F(Juno_Panel_Played, gives_its_display_the_face_of_the_instruments) {
    EXPECT_EQ(At("Tone_Name").font, "JX8P");
}

class Juno_Panel_Without_A_Font : public Stage {
  protected:
    Juno_Panel_Without_A_Font() {
        Display.font_can_be_added = false;
        Expect_Box("Error: Could not load font " + Test_Folder() + "/JX8P.FNT\nUsing default font.");
        Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\n");
        EXPECT_TRUE(Main_Load());
        Play_On(Juno_Panel);
    }
};

TEST_F(Juno_Panel_Without_A_Font, is_loaded_all_the_same_with_the_default_face) {
    EXPECT_TRUE(Editor_Juno.loaded);
    EXPECT_FALSE(Editor_Juno.visible);
    EXPECT_EQ(At("Tone_Name").font, "");
    EXPECT_EQ(At("DCO_Range").left, 18);
}
