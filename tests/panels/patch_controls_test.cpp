// The Patch window's controls under pointer and keys.
#include "desk/timers.h"
#include "fakes/hand.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "panels/patch.h"
#include "shell/frame.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

std::string Message(const std::string& number_and_value) {
    return "F0 41 36 00 21 30 01 " + number_and_value + " F7";
}

Picture Buttons(int item) {
    return {Picture_Store::Buttons, item};
}
Picture Lamp(int item) {
    return {Picture_Store::LED, item};
}

constexpr int Keys_Of_No_Switch[] = {Key_Home,         Key_End, Key_Left, Key_Right, Key_Keypad_Plus,
                                     Key_Keypad_Minus, Key_0,   65,       255};

}  // namespace

class Patch_Controls_By_Hand : public Started_Stage {
  protected:
    Patch_Controls_By_Hand() { Window_Show(Patch); }

    const Hand hand_{Patch_Panel};
    int Top(const std::string& name) const { return hand_.At(name).top; }
    static void Set(std::size_t number, std::uint8_t value) {
        Patch_Data.at(number) = value;
        Panel_Apply_Patch();
    }
    static const Control* Focused() { return Patch.active_control; }
};

// -- sliders
// -----------------------------------------------------------------------------------------------

TEST_F(Patch_Controls_By_Hand, step_the_sliders_by_key_with_a_page_of_10) {
    const std::vector<std::pair<const char*, std::size_t>> sliders = {{"Portamento_Time", 1},
                                                                      {"Pitch_Bend_LFO", 5}};
    struct Row {
        int key;
        int before, after;
    };
    const Row rows[] = {{Key_Up, 50, 51},           {Key_Keypad_Plus, 50, 51}, {Key_Down, 50, 49},
                        {Key_Keypad_Minus, 50, 49}, {Key_Page_Up, 50, 60},     {Key_Page_Down, 50, 40},
                        {Key_Home, 50, 127},        {Key_End, 50, 0},          {Key_Page_Up, 120, 127},
                        {Key_Page_Down, 5, 0},      {Key_Up, 127, 127},        {Key_Down, 0, 0}};
    for (const auto& [name, number] : sliders) {
        for (const Row& row : rows) {
            Set(number, static_cast<std::uint8_t>(row.before));
            hand_.Key(name, row.key);
            EXPECT_EQ(Patch_Data.at(number), row.after) << name << " " << row.key;
            EXPECT_EQ(Top(name), 108 - row.after * 80 / 127) << name << " " << row.key;
            EXPECT_EQ(Sent().size(), 1U) << "sent again even where nothing changed";
            EXPECT_EQ(Shown(), std::to_string(row.after * 99 / 127));
        }
    }
    hand_.Key("Pitch_Bend_LFO", Key_Home);
    EXPECT_EQ(Sent(), Lines{Message("05 7F")});
}

TEST_F(Patch_Controls_By_Hand, let_a_slider_alone_on_a_key_without_a_meaning) {
    hand_.Focus("Portamento_Time");
    hand_.At("Portamento_Time").top = 1;
    for (const int key : {37, 39, 48, 96, 65, 255}) {
        hand_.Key("Portamento_Time", key);
        EXPECT_EQ(Patch_Data[1], 0);
        EXPECT_EQ(Top("Portamento_Time"), 108) << "but the thumb is placed";
    }
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(Patch_Controls_By_Hand, drag_a_slider_a_unit_a_pixel) {
    hand_.Press("Portamento_Time");
    hand_.Drag("Portamento_Time", -20.5);
    EXPECT_EQ(Patch_Data[1], 20) << "the fraction is cut";
    EXPECT_EQ(Top("Portamento_Time"), 108 - 20 * 80 / 127);
    hand_.Drag("Portamento_Time", -500);
    EXPECT_EQ(Top("Portamento_Time"), 28);
    hand_.Drag("Portamento_Time", 500);
    EXPECT_EQ(Top("Portamento_Time"), 108);
    EXPECT_EQ(Sent(), (Lines{Message("01 00"), Message("01 14"), Message("01 7F"), Message("01 00")}))
        << "the press alone sends too";
}

TEST_F(Patch_Controls_By_Hand, place_the_thumb_that_has_the_focus) {
    hand_.Focus("Pitch_Bend_LFO");
    Patch_Data[1] = 127;
    Patch_Slider_Place(1);
    EXPECT_EQ(Top("Pitch_Bend_LFO"), 28);
    EXPECT_EQ(Top("Portamento_Time"), 108);
    Patch.active_control = nullptr;
    Patch_Slider_Place(1);
}

// -- the bend range
// ----------------------------------------------------------------------------------------

TEST_F(Patch_Controls_By_Hand, step_the_bend_range_by_rows) {
    for (const int up : {Key_Up, Key_Page_Up}) {
        Set(0, 0);
        for (const auto& [value, top] : {std::pair{32, 48}, {64, 38}, {96, 28}}) {
            hand_.Key("Pitch_Bend_Range", up);
            EXPECT_EQ(Patch_Data[0], value);
            EXPECT_EQ(Top("Pitch_Bend_Range"), top);
        }
    }
    EXPECT_EQ(Sent(), (Lines{Message("00 20"), Message("00 40"), Message("00 60"), Message("00 20"),
                             Message("00 40"), Message("00 60")}));
    for (const int down : {Key_Down, Key_Page_Down}) {
        Set(0, 96);
        for (const auto& [value, top] : {std::pair{64, 38}, {32, 48}, {0, 58}}) {
            hand_.Key("Pitch_Bend_Range", down);
            EXPECT_EQ(Patch_Data[0], value);
            EXPECT_EQ(Top("Pitch_Bend_Range"), top);
        }
    }
}

TEST_F(Patch_Controls_By_Hand, send_the_bend_range_again_at_its_ends) {
    Set(0, 100);
    hand_.Key("Pitch_Bend_Range", Key_Up);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 28);
    EXPECT_EQ(Patch_Data[0], 100);
    EXPECT_EQ(Sent(), Lines{Message("00 64")});
    EXPECT_FALSE(Is_True(Tone_Saved));
    Set(0, 7);
    hand_.Key("Pitch_Bend_Range", Key_Down);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 58);
    EXPECT_EQ(Sent(), Lines{Message("00 07")});
    EXPECT_EQ(Shown(), "") << "nothing is shown as text";
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(Patch_Controls_By_Hand, step_the_bend_range_by_its_thumb_and_not_by_its_value) {
    Set(0, 40);
    hand_.Focus("Pitch_Bend_Range");
    hand_.At("Pitch_Bend_Range").top = 58;  // the thumb says 0
    hand_.Key("Pitch_Bend_Range", Key_Up);
    EXPECT_EQ(Patch_Data[0], 72);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 48);
}

TEST_F(Patch_Controls_By_Hand, keep_the_bend_range_inside_a_message_where_thumb_and_value_have_parted) {
    Set(0, 40);
    hand_.Focus("Pitch_Bend_Range");
    hand_.Drag("Pitch_Bend_Range", 20);  // 20 lies in a gap: the thumb stays one row up
    EXPECT_EQ(Patch_Data[0], 20);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 48);
    hand_.Key("Pitch_Bend_Range", Key_Down);
    EXPECT_EQ(Patch_Data[0], 0);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 58);
    Patch_Data[0] = 120;
    hand_.Key("Pitch_Bend_Range", Key_Up);
    EXPECT_EQ(Patch_Data[0], 127);
}

TEST_F(Patch_Controls_By_Hand, let_both_switches_alone_on_any_other_key) {
    for (const char* name : {"Pitch_Bend_Range", "Portamento_Switch"}) {
        for (const int key : Keys_Of_No_Switch) hand_.Key(name, key);
    }
    EXPECT_EQ(Patch_Data[0], 0);
    EXPECT_EQ(Patch_Data[2], 0);
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(Patch_Controls_By_Hand, do_nothing_on_a_press_of_the_bend_range) {
    hand_.Click("Pitch_Bend_Range");
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(Patch_Controls_By_Hand, drag_the_bend_range_through_bands_with_gaps) {
    hand_.Focus("Pitch_Bend_Range");
    for (int value = 0; value <= 127; ++value) {
        const int before = Top("Pitch_Bend_Range");
        Patch_Data[0] = static_cast<std::uint8_t>(value);
        hand_.Drag("Pitch_Bend_Range", 0);
        const int expected = value <= 15                   ? 58
                             : value >= 32 && value <= 47  ? 48
                             : value >= 64 && value <= 79  ? 38
                             : value >= 96 && value <= 111 ? 28
                                                           : before;
        EXPECT_EQ(Top("Pitch_Bend_Range"), expected) << value;
    }
}

TEST_F(Patch_Controls_By_Hand, round_a_dragged_bend_range_to_even_and_clamp_it) {
    hand_.Focus("Pitch_Bend_Range");
    hand_.Drag("Pitch_Bend_Range", -0.5);
    EXPECT_EQ(Patch_Data[0], 0);
    hand_.Drag("Pitch_Bend_Range", -1.5);
    EXPECT_EQ(Patch_Data[0], 2);
    hand_.Drag("Pitch_Bend_Range", -500);
    EXPECT_EQ(Patch_Data[0], 127);
    hand_.Drag("Pitch_Bend_Range", 500);
    EXPECT_EQ(Patch_Data[0], 0);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Is_True(Tone_Saved));
}

TEST_F(Patch_Controls_By_Hand, send_a_dragged_bend_range_on_a_jump_of_more_than_4_only) {
    hand_.Focus("Pitch_Bend_Range");
    Panel_Last_Param = 39;  // another switch was dragged last
    hand_.Drag("Pitch_Bend_Range", -20);
    EXPECT_TRUE(Sent().empty()) << "not the first event";
    EXPECT_EQ(Panel_Last_Param, 0);
    EXPECT_EQ(Panel_Last_Value, 20);
    hand_.Drag("Pitch_Bend_Range", -4);
    EXPECT_TRUE(Sent().empty());
    hand_.Drag("Pitch_Bend_Range", -5);
    EXPECT_EQ(Sent(), Lines{Message("00 1D")});
    hand_.Drag("Pitch_Bend_Range", 5);
    EXPECT_EQ(Sent(), Lines{Message("00 18")});
}

// -- the portamento switch
// ---------------------------------------------------------------------------------

TEST_F(Patch_Controls_By_Hand, turn_the_portamento_over_by_every_key_of_it_and_by_a_press) {
    for (const int key : {Key_Up, Key_Page_Up, Key_Down, Key_Page_Down}) {
        Set(2, 0);
        hand_.Key("Portamento_Switch", key);
        EXPECT_EQ(Patch_Data[2], 64) << key;
        EXPECT_EQ(Top("Portamento_Switch"), 133) << key;
        hand_.Key("Portamento_Switch", key);
        EXPECT_EQ(Patch_Data[2], 0) << key;
        EXPECT_EQ(Top("Portamento_Switch"), 143) << key;
        EXPECT_EQ(Sent(), (Lines{Message("02 40"), Message("02 00")}));
    }
    hand_.Press("Portamento_Switch");
    EXPECT_EQ(Sent(), Lines{Message("02 40")});
    hand_.Drag("Portamento_Switch", -40);
    hand_.Release("Portamento_Switch");
    EXPECT_EQ(Patch_Data[2], 64) << "the pointer's movement does nothing";
    hand_.Press("Portamento_Switch");
    EXPECT_EQ(Sent(), Lines{Message("02 00")});
    EXPECT_FALSE(Is_True(Tone_Saved));
    EXPECT_EQ(Shown(), "");
}

TEST_F(Patch_Controls_By_Hand, turn_the_portamento_over_by_64_whatever_it_held) {
    Set(2, 100);
    hand_.Press("Portamento_Switch");
    EXPECT_EQ(Patch_Data[2], 36);
    hand_.Press("Portamento_Switch");
    EXPECT_EQ(Patch_Data[2], 100);
}

// -- the knob
// ----------------------------------------------------------------------------------------------

TEST_F(Patch_Controls_By_Hand, turn_the_detune_by_key_on_body_and_dot_alike) {
    struct Row {
        int key;
        int before, after;
        const char* shown;
    };
    const Row rows[] = {{Key_Up, 64, 65, "1"},
                        {Key_Keypad_Plus, 64, 65, "1"},
                        {Key_Down, 64, 63, "0"},
                        {Key_Right, 90, 90, "20"},  // no step here, but it sends
                        {Key_Left, 90, 90, "20"},
                        {Key_Keypad_Minus, 64, 63, "0"},
                        {Key_Page_Up, 64, 74, "8"},
                        {Key_Page_Down, 64, 54, "-7"},
                        {Key_Home, 64, 127, "50"},
                        {Key_End, 64, 0, "-50"},
                        {Key_0, 90, 63, "0"},
                        {Key_Keypad_0, 90, 63, "0"},
                        {Key_Up, 127, 127, "50"},
                        {Key_Down, 0, 0, "-50"},
                        {Key_Page_Up, 125, 127, "50"},
                        {Key_Page_Down, 3, 0, "-50"},
                        {65, 64, 64, "0"}};
    for (const char* name : {"UDTune", "UDTune_Knopf"}) {
        for (const Row& row : rows) {
            Set(6, static_cast<std::uint8_t>(row.before));
            hand_.Key(name, row.key);
            EXPECT_EQ(Patch_Data[6], row.after) << row.key;
            EXPECT_EQ(Shown(), row.shown) << row.key;
            EXPECT_EQ(Sent().size(), 1U) << "every key sends";
        }
    }
}

TEST_F(Patch_Controls_By_Hand, drag_the_detune_a_byte_a_pixel_from_row_0_on) {
    hand_.Press("UDTune");
    EXPECT_EQ(Shown(), "0");
    hand_.Drag("UDTune", 10);
    EXPECT_EQ(Patch_Data[6], 74) << "the first event jumps by the row of the pointer";
    hand_.Drag("UDTune", 13);
    EXPECT_EQ(Patch_Data[6], 77);
    hand_.Drag("UDTune", -500);
    EXPECT_EQ(Patch_Data[6], 0);
    hand_.Drag("UDTune", 500);
    EXPECT_EQ(Patch_Data[6], 127);
    EXPECT_EQ(Sent(), (Lines{Message("06 40"), Message("06 4A"), Message("06 4D"), Message("06 00"),
                             Message("06 7F")}));
    hand_.Focus("Portamento_Time");
    EXPECT_EQ(Panel_Knob_Last_Y, 0);
}

TEST_F(Patch_Controls_By_Hand, place_the_detunes_dot_3_degrees_a_unit) {
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 12);
    EXPECT_EQ(hand_.At("UDTune_Knopf").top, 5);
    hand_.Key("UDTune", Key_Home);  // 150 degrees
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 15);
    EXPECT_EQ(hand_.At("UDTune_Knopf").top, 14);
    hand_.Key("UDTune", Key_End);
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 9);
    EXPECT_EQ(hand_.At("UDTune_Knopf").top, 14);
}

TEST_F(Patch_Controls_By_Hand, give_the_mark_of_the_knob_to_its_dot) {
    for (const char* name : {"UDTune", "UDTune_Knopf"}) {
        hand_.Focus("Portamento_Time");
        hand_.Focus(name);
        EXPECT_EQ(Panel_Current_Control, &hand_.At("UDTune_Knopf"));
        Panel_Blink_Phase = 1;
        Panel_Blink();
        EXPECT_EQ(hand_.At("UDTune_Knopf").picture, Buttons(5));
        EXPECT_EQ(hand_.At("UDTune").picture, Buttons(8));
    }
    hand_.Focus("Portamento_Time");
    EXPECT_EQ(hand_.At("UDTune_Knopf").picture, Buttons(4));
}

// -- the lamps
// ---------------------------------------------------------------------------------------------

class Patch_Lamps : public Patch_Controls_By_Hand {
  protected:
    template <std::size_t Count>
    static void Expect_Lit(const std::array<Control, Count>& group, std::size_t lit) {
        for (std::size_t item = 0; item < Count; ++item) {
            EXPECT_EQ(group[item].picture, Lamp(item == lit ? 1 : 0)) << item;
        }
    }
};

TEST_F(Patch_Lamps, are_picked_by_a_click_with_the_code_that_jumps_over_3) {
    const std::vector<std::pair<const char*, const char*>> key_modes = {
        {"Key_Mode_5", "03 06"}, {"Key_Mode_4", "03 05"}, {"Key_Mode_3", "03 04"},
        {"Key_Mode_2", "03 02"}, {"Key_Mode_1", "03 01"}, {"Key_Mode_0", "03 00"}};
    std::size_t item = 6;
    for (const auto& [name, message] : key_modes) {
        --item;
        Tone_Saved = Flag_16::True;
        hand_.Click(name);
        EXPECT_EQ(Sent(), Lines{Message(message)});
        EXPECT_EQ(Patch_Key_Mode_Sel, item);
        EXPECT_EQ(Panel_Current_Control, &hand_.At(name));
        Expect_Lit(Patch_Key_Mode_Items, item);
        EXPECT_FALSE(Is_True(Tone_Saved));
    }
    const std::vector<std::pair<const char*, const char*>> touches = {{"After_Touch_3", "04 04"},
                                                                      {"After_Touch_2", "04 02"},
                                                                      {"After_Touch_1", "04 01"},
                                                                      {"After_Touch_0", "04 00"}};
    item = 4;
    for (const auto& [name, message] : touches) {
        --item;
        hand_.Click(name);
        EXPECT_EQ(Sent(), Lines{Message(message)});
        EXPECT_EQ(Patch_After_Touch_Sel, item);
        EXPECT_EQ(Panel_Current_Control, &hand_.At(name));
        Expect_Lit(Patch_After_Touch_Items, item);
    }
    EXPECT_EQ(Shown(), "");
}

TEST_F(Patch_Lamps, send_nothing_on_a_press_or_a_drag) {
    hand_.Press("Key_Mode_3");
    hand_.Drag("Key_Mode_3", -30);
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Patch_Key_Mode_Sel, 0);
}

TEST_F(Patch_Lamps, of_the_key_modes_step_down_the_list_by_Down_and_stop_at_its_ends) {
    hand_.Focus("Key_Mode_0");
    for (const int down : {Key_Down, Key_Page_Down}) {
        Set(3, 0);
        for (int step = 0; step < 6; ++step) hand_.Key("Key_Mode_0", down);
        EXPECT_EQ(Sent(), (Lines{Message("03 01"), Message("03 02"), Message("03 04"), Message("03 05"),
                                 Message("03 06"), Message("03 06")}));
    }
    Expect_Lit(Patch_Key_Mode_Items, 5);
    EXPECT_EQ(Panel_Current_Control, &hand_.At("Key_Mode_5"));
    for (const int up : {Key_Up, Key_Page_Up}) {
        Set(3, 6);
        for (int step = 0; step < 6; ++step) hand_.Key("Key_Mode_0", up);
        EXPECT_EQ(Sent(), (Lines{Message("03 05"), Message("03 04"), Message("03 02"), Message("03 01"),
                                 Message("03 00"), Message("03 00")}));
    }
}

TEST_F(Patch_Lamps, of_the_after_touch_step_the_other_way) {
    hand_.Focus("After_Touch_0");
    for (const int up : {Key_Up, Key_Page_Up}) {
        Set(4, 0);
        for (int step = 0; step < 4; ++step) hand_.Key("After_Touch_0", up);
        EXPECT_EQ(Sent(), (Lines{Message("04 01"), Message("04 02"), Message("04 04"), Message("04 04")}));
    }
    for (const int down : {Key_Down, Key_Page_Down}) {
        Set(4, 4);
        for (int step = 0; step < 4; ++step) hand_.Key("After_Touch_0", down);
        EXPECT_EQ(Sent(), (Lines{Message("04 02"), Message("04 01"), Message("04 00"), Message("04 00")}));
    }
}

TEST_F(Patch_Lamps, step_from_the_lamp_that_is_lit_whatever_the_byte) {
    Set(3, 3);  // no lamp's code: the first one is lit
    hand_.Key("Key_Mode_0", Key_Down);
    EXPECT_EQ(Sent(), Lines{Message("03 01")});
}

TEST_F(Patch_Lamps, do_nothing_on_other_keys) {
    for (const int key : {35, 36, 37, 39, 48, 65, 107, 109, 255}) {
        hand_.Key("Key_Mode_0", key);
        hand_.Key("After_Touch_0", key);
    }
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Focused(), &hand_.At("After_Touch_0"));
}

TEST_F(Patch_Lamps, have_their_mark_on_the_selected_item_whichever_has_the_focus) {
    Set(3, 5);
    Set(4, 4);
    hand_.Focus("Key_Mode_0");
    EXPECT_EQ(Panel_Current_Control, &hand_.At("Key_Mode_4"));
    hand_.Focus("After_Touch_1");
    EXPECT_EQ(Panel_Current_Control, &hand_.At("After_Touch_3"));
}

TEST_F(Patch_Lamps, blink_between_off_and_on_and_stay_lit_when_the_focus_goes) {
    Set(3, 5);
    hand_.Focus("Key_Mode_0");
    Panel_Blink_Phase = 0;
    Panel_Blink();
    EXPECT_EQ(hand_.At("Key_Mode_4").picture, Lamp(0));
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(hand_.At("Key_Mode_4").picture, Lamp(1));
    Panel_Blink_Phase = 0;
    Panel_Blink();
    hand_.Focus("Portamento_Time");
    Expect_Lit(Patch_Key_Mode_Items, 4);
    Expect_Lit(Patch_After_Touch_Items, 0);
}

TEST_F(Patch_Lamps, are_left_alone_by_a_blink_and_a_restore_behind_the_closing) {
    Set(3, 5);
    hand_.Focus("Key_Mode_0");
    Window_Unload(Patch);
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Panel_Restore_Picture();
    EXPECT_EQ(hand_.At("Key_Mode_4").picture, Lamp(0)) << "only the lamp itself";
    EXPECT_FALSE(Patch.loaded);
}

TEST_F(Patch_Lamps, are_left_at_once_by_TAB_with_and_without_shift) {
    Set(4, 2);
    for (const int held : {0, 1}) {
        hand_.Key("Key_Mode_1", Key_Tab, held);
        EXPECT_EQ(Focused(), &hand_.At("After_Touch_2"));
        EXPECT_EQ(Panel_Current_Control, &hand_.At("After_Touch_2"));
        hand_.Key("After_Touch_0", Key_Tab, held);
        EXPECT_EQ(Focused(), &hand_.At("UDTune"));
        EXPECT_EQ(Panel_Current_Control, &hand_.At("UDTune_Knopf"));
    }
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Lamps, are_left_backward_by_the_code_of_the_held_keys_with_a_9_behind_it) {
    Set(3, 6);
    for (const auto& [held, key] :
         {std::pair{1, 19}, {2, 29}, {3, 39}, {4, 49}, {5, 59}, {6, 69}, {7, 79}}) {
        hand_.Key("After_Touch_0", key, held);
        EXPECT_EQ(Focused(), &hand_.At("Key_Mode_5")) << held;
        EXPECT_EQ(Panel_Current_Control, &hand_.At("Key_Mode_5")) << held;
        hand_.Key("Key_Mode_0", key, held);
        EXPECT_EQ(Focused(), &hand_.At("Pitch_Bend_Range")) << held;
    }
    hand_.Key("Key_Mode_0", 19, 2);
    EXPECT_EQ(Focused(), &hand_.At("Key_Mode_0")) << "Ctrl wants another key";
    hand_.Key("Key_Mode_0", 19, 0);
    EXPECT_EQ(Focused(), &hand_.At("Key_Mode_0"));
    Expect_Lit(Patch_Key_Mode_Items, 5);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_Lamps, take_the_TAB_key_and_the_other_controls_do_not) {
    for (const Control* control : Patch_Panel.controls) {
        EXPECT_EQ(control->takes_tab, std::string_view(control->kind) == "led") << control->name;
    }
}

TEST_F(Patch_Lamps, go_back_to_the_first_at_the_start) {
    Patch_Key_Mode_Sel = 4;
    Patch_After_Touch_Sel = 2;
    Patch_Lamps_Reset();
    EXPECT_EQ(Patch_Key_Mode_Sel, 0);
    EXPECT_EQ(Patch_After_Touch_Sel, 0);
}

// -- the message
// -------------------------------------------------------------------------------------------

TEST_F(Patch_Controls_By_Hand, say_21_to_every_instrument_and_the_channel_less_one) {
    for (const char* synthesizer : {"JX-8P", "MKS-70", "Alpha Juno"}) {
        Synthesizer = synthesizer;
        Sysex_Headers_Update();
        Sent();
        hand_.Key("Portamento_Time", Key_Home);
        EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 30 01 01 7F F7"}) << synthesizer;
    }
    MIDI_Channel = 16;
    hand_.Key("Portamento_Time", Key_End);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 0F 21 30 01 01 00 F7"});
}
