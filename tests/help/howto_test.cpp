#include "help/howto.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "help/help.h"
#include "synth/tone.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

const std::string First_Text =
    "Select a control element on the left and read the corresponding description here. With the keyboard, "
    "use "
    "TAB/SHIFT+TAB to jump to the next/previous control.";

// clang-format off
const struct { const char* control; const char* hint; } Hints[] = {
    {"Slider",     "Click and hold down a mouse button, move up or down.\nKeyboard: cursor up/down, page up/down, home/end, +/-"},
    {"Pos_Sw",     "Click and hold down a mouse button, move up or down.\nKeyboard: up/down, page up/down, home/end, +/-"},
    {"Tune",       "Click and hold down a mouse button and move left or right.\nKeyboard: left/right, page up/down, home/end, +/-"},
    {"Switch",     "Click to change. Applies to:\n Editor: VCA Mode, Portamento Switch\n Patch: After Touch, Key Mode\nKeyboard: cursor up/down, page up/down, home/end, +/-"},
    {"Tune_Knopf", "Click and hold down a mouse button and move left or right.\nKeyboard: left/right, page up/down, home/end, +/-"},
    {"LED_SW_0",   "Click to change. Applies to:\n Editor: VCA Mode, Portamento Switch\n Patch: After Touch, Key Mode\nKeyboard: cursor up/down, page up/down, home/end, +/-"},
};
// clang-format on

std::string Display_Text() {
    return Help_HName.text;
}

void Drag_Across(const std::string& name, double column) {
    Howto_Panel.events.pointer_moved_across(At(name), column);
}

std::string Lamps() {
    std::string lamps;
    for (const Control& lamp : Help_LED_SW) lamps += lamp.picture.item == 1 ? '*' : '.';
    return lamps;
}

}  // namespace

class Practice : public Started_Stage {
  protected:
    Practice() {
        Menu(Menu_Help_Howto).chosen();
        Play_On(Howto_Panel);
        Sent();
    }
    void TearDown() override {
        EXPECT_EQ(Sent(), Lines{}) << "practice sends nothing";
        EXPECT_EQ(Tone_Saved, Flag_16::True) << "and changes no tone";
        Started_Stage::TearDown();
    }
    // Keeps a key on a control and gives what the display shows behind each.
    static Lines Shown_Behind(const std::string& control, std::initializer_list<int> keys) {
        Lines shown;
        for (const int key : keys) {
            Help_HName.text = "-";
            Key(control, key);
            shown.push_back(Display_Text());
        }
        return shown;
    }
    static void Set(std::size_t demo, std::uint8_t value) { Help_Show_Demo_Value(demo, value); }
};

TEST_F(Practice, begins_on_the_position_switch_with_a_text_of_its_own) {
    EXPECT_EQ(Display_Text(), "Waiting for action...");
    EXPECT_EQ(Help_Info, First_Text);
    EXPECT_EQ(Panel_Current_Control, &Help_Pos_Sw);
    Howto_Panel.events.focus_gained(Help_Pos_Sw);
    EXPECT_EQ(Help_Info, First_Text) << "the focus that comes by itself says no more";
    Press("Pos_Sw");
    EXPECT_EQ(Help_Info, Hints[1].hint);
    Help_Cmd_Howto();
    EXPECT_EQ(Help_Info, First_Text);
}

TEST_F(Practice, tells_for_each_control_what_it_answers_to) {
    for (const auto& [control, hint] : Hints) {
        Focus(control);
        EXPECT_EQ(Help_Info, hint) << control;
        Help_Info.clear();
        Press(control);
        EXPECT_EQ(Help_Info, hint) << control;
        Help_Info.clear();
        Key(control, 255);
        EXPECT_EQ(Help_Info, hint) << control;
    }
}

TEST_F(Practice, has_a_control_of_each_kind) {
    for (const auto& [name, kind] : {std::pair{"Pos_Sw", "bl"},
                                     {"Switch", "br"},
                                     {"Slider", "bm"},
                                     {"Tune", "knh"},
                                     {"Tune_Knopf", "knh"},
                                     {"LED_SW_0", "led"},
                                     {"LED_SW_3", "led"}}) {
        EXPECT_STREQ(At(name).kind, kind);
        EXPECT_EQ(At(name).help_context, 0);
    }
    EXPECT_EQ(Help_Demo_Values.size(), 9U);
}

// -- what stands for a value -----------------------------------------------------------------------------

TEST_F(Practice, shows_values_so) {
    struct Row {
        std::size_t demo;
        std::uint8_t value;
        const char* text;
    };
    for (const Row& row : {Row{0, 0, "4"}, {0, 31, "4"},   {0, 32, "3"},  {0, 63, "3"},   {0, 64, "2"},
                           {0, 95, "2"},   {0, 96, "1"},   {0, 127, "1"}, {1, 0, "-12"},  {1, 56, "0"},
                           {1, 127, "12"}, {2, 0, "0"},    {2, 1, "0"},   {2, 2, "1"},    {2, 64, "49"},
                           {2, 126, "98"}, {2, 127, "99"}, {3, 0, "OFF"}, {3, 63, "OFF"}, {3, 64, "ON"},
                           {3, 127, "ON"}, {4, 0, "A"},    {4, 1, "B"},   {4, 2, "C"},    {4, 3, "D"}}) {
        Help_Show_Demo_Value(row.demo, row.value);
        EXPECT_EQ(Display_Text(), row.text) << row.demo << " " << int{row.value};
        EXPECT_EQ(Help_Demo_Values[row.demo], row.value);
    }
}

TEST_F(Practice, waits_again_two_seconds_behind_the_last_change) {
    Set(2, 127);
    Advance(1900ms);
    Set(2, 0);
    Advance(1900ms);
    EXPECT_EQ(Display_Text(), "0");
    Advance(100ms);
    EXPECT_EQ(Display_Text(), "Waiting...");
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(Practice, gives_the_tick_back_to_the_tones_name_when_it_is_closed) {
    Set(2, 127);
    Help_Close_Asked();
    Tone_Name_Text = "BRASS";
    Advance(2000ms);
    EXPECT_EQ(Display_Text(), "99");
    EXPECT_EQ(Editor_Tone_Name.text, "BRASS");
}

TEST_F(Practice, keeps_its_values_from_one_opening_to_the_next_and_nothing_else) {
    Set(0, 96);
    Set(1, 127);
    Set(2, 64);
    Set(3, 64);
    Set(4, 2);
    Help_Close_Asked();
    Menu(Menu_Help_Howto).chosen();
    EXPECT_EQ(Display_Text(), "Waiting for action...");
    EXPECT_EQ(Help_Pos_Sw.top, Pos_Sw_Bottom_Row - 30);
    EXPECT_EQ(Help_Slider.top, Slider_Bottom_Row - 40);
    EXPECT_EQ(Help_Switch.top, Switch_Row_Off + 10);
    EXPECT_EQ(Lamps(), "..*.");
    EXPECT_GT(Help_Tune_Knopf.top, 10) << "12 semitones stand low on the right";
    EXPECT_GT(Help_Tune_Knopf.left, 12);
}

// -- slider ----------------------------------------------------------------------------------------------

TEST_F(Practice, slider_answers_the_keys) {
    EXPECT_EQ(Shown_Behind("Slider", {Key_Home, Key_Up, Key_End, Key_Down}), (Lines{"99", "99", "0", "0"}));
    Set(2, 64);
    EXPECT_EQ(Shown_Behind("Slider", {Key_Up, Key_Keypad_Plus}), (Lines{"50", "51"}));
    EXPECT_EQ(Help_Demo_Values[2], 66);
    Key("Slider", Key_Down);
    Key("Slider", Key_Keypad_Minus);
    EXPECT_EQ(Help_Demo_Values[2], 64);
    Key("Slider", Key_Page_Up);
    EXPECT_EQ(Help_Demo_Values[2], 80);
    Key("Slider", Key_Page_Down);
    Key("Slider", Key_Page_Down);
    EXPECT_EQ(Help_Demo_Values[2], 48);
    for (int times = 0; times < 9; ++times) Key("Slider", Key_Page_Up);
    EXPECT_EQ(Help_Demo_Values[2], 127);
    for (int times = 0; times < 9; ++times) Key("Slider", Key_Page_Down);
    EXPECT_EQ(Help_Demo_Values[2], 0);
    EXPECT_EQ(Shown_Behind("Slider", {Key_Left, Key_Right, Key_0, 187, 189}), Lines(5, "-"));
}

TEST_F(Practice, slider_follows_the_pointer_up_and_down_on_its_rail) {
    Set(2, 40);
    Help_HName.text = "-";
    Press("Slider");
    EXPECT_EQ(Display_Text(), "31") << "a press shows the value";
    Drag("Slider", -20);
    EXPECT_EQ(Help_Demo_Values[2], 60);
    EXPECT_EQ(Display_Text(), "46");
    EXPECT_EQ(Help_Slider.top, Slider_Bottom_Row - 37);
    Drag_Across("Slider", 50);
    EXPECT_EQ(Help_Demo_Values[2], 60);
    Drag("Slider", -500);
    EXPECT_EQ(Help_Demo_Values[2], 127);
    EXPECT_EQ(Help_Slider.top, Slider_Bottom_Row - 80);
    Drag("Slider", 500);
    EXPECT_EQ(Help_Demo_Values[2], 0);
    EXPECT_EQ(Help_Slider.top, Slider_Bottom_Row);
}

// -- switch of four positions ----------------------------------------------------------------------------

TEST_F(Practice, position_switch_answers_the_keys) {
    EXPECT_EQ(Shown_Behind("Pos_Sw", {Key_Up, Key_Page_Up, Key_Keypad_Plus, Key_Up}),
              (Lines{"3", "2", "1", "1"}));
    EXPECT_EQ(Help_Demo_Values[0], 127);
    EXPECT_EQ(Shown_Behind("Pos_Sw", {Key_Down, Key_Page_Down, Key_Keypad_Minus, Key_Down}),
              (Lines{"2", "3", "4", "4"}));
    EXPECT_EQ(Help_Demo_Values[0], 0);
    EXPECT_EQ(Shown_Behind("Pos_Sw", {Key_Home, Key_End}), (Lines{"1", "4"}));
    EXPECT_EQ(Shown_Behind("Pos_Sw", {Key_Left, Key_Right, Key_0, 187}), Lines(4, "-"));
}

TEST_F(Practice, position_switch_follows_the_pointer_from_row_to_row) {
    Help_HName.text = "-";
    Press("Pos_Sw");
    EXPECT_EQ(Display_Text(), "-") << "a press on a switch does nothing";
    const struct {
        double row;
        int value;
        int rise;
        const char* text;
    } moves[] = {{-31, 31, 0, "4"},  {-1, 32, 10, "3"},    {-32, 64, 20, "2"},
                 {-32, 96, 30, "1"}, {-500, 127, 30, "1"}, {500, 0, 0, "4"}};
    for (const auto& move : moves) {
        Drag("Pos_Sw", move.row);
        EXPECT_EQ(Help_Demo_Values[0], move.value);
        EXPECT_EQ(Help_Pos_Sw.top, Pos_Sw_Bottom_Row - move.rise) << move.value;
        EXPECT_EQ(Display_Text(), move.text);
    }
}

// -- knob ------------------------------------------------------------------------------------------------

TEST_F(Practice, knob_answers_the_keys_on_body_and_dot_alike) {
    for (const char* name : {"Tune", "Tune_Knopf"}) {
        Set(1, 56);
        EXPECT_EQ(
            Shown_Behind(name, {Key_Right, Key_Up, Key_Keypad_Plus, Key_Left, Key_Down, Key_Keypad_Minus}),
            (Lines{"1", "2", "3", "2", "1", "0"}));
        EXPECT_EQ(Shown_Behind(name, {Key_Left, Key_Page_Down, Key_End, Key_Down}),
                  (Lines{"0", "-6", "-12", "-12"}))
            << "no key steps from 0 below it";
        EXPECT_EQ(
            Shown_Behind(name, {Key_0, Key_Page_Up, Key_Page_Up, Key_Page_Up, Key_Keypad_0, Key_Home}),
            (Lines{"0", "6", "12", "12", "0", "12"}));
    }
}

TEST_F(Practice, knob_shows_on_any_key_and_keeps_the_lowest_byte_of_its_semitone) {
    Set(1, 60);
    EXPECT_EQ(Shown_Behind("Tune", {255}), Lines{"0"});
    EXPECT_EQ(Help_Demo_Values[1], 56);
}

TEST_F(Practice, knob_follows_the_pointer_sideways_four_pixels_a_semitone) {
    Press("Tune");
    EXPECT_EQ(Display_Text(), "0") << "a press shows the value";
    EXPECT_EQ(Panel_Current_Control, &Help_Tune_Knopf);
    Drag_Across("Tune", 8);
    EXPECT_EQ(Display_Text(), "2") << "the first move counts from the left edge";
    Drag_Across("Tune", 20);
    EXPECT_EQ(Display_Text(), "5");
    Drag("Tune", 400);
    EXPECT_EQ(Display_Text(), "5") << "up and down is nothing";
    Drag_Across("Tune", 500);
    EXPECT_EQ(Display_Text(), "12");
    EXPECT_EQ(Help_Tune_Knopf.left, 12 + 3);
    EXPECT_EQ(Help_Tune_Knopf.top, 10 + 4);
    Drag_Across("Tune", 400);
    EXPECT_EQ(Display_Text(), "-12");
    Drag_Across("Tune_Knopf", 448);
    EXPECT_EQ(Display_Text(), "0") << "body and dot share one value";
    EXPECT_EQ(Help_Tune_Knopf.left, 12);
    EXPECT_EQ(Help_Tune_Knopf.top, 5);
}

TEST_F(Practice, knob_counts_anew_behind_a_change_of_focus) {
    Press("Tune");
    Drag_Across("Tune", 40);
    EXPECT_EQ(Display_Text(), "10");
    Focus("Slider");
    Set(1, 56);
    Press("Tune");
    Drag_Across("Tune", 4);
    EXPECT_EQ(Display_Text(), "1");
}

// -- switch of two positions -----------------------------------------------------------------------------

TEST_F(Practice, switch_is_flipped_by_a_click_and_its_lever_goes_down_when_it_is_on) {
    EXPECT_EQ(Help_Switch.top, Switch_Row_Off);
    Click("Switch");
    EXPECT_EQ(Display_Text(), "ON");
    EXPECT_EQ(Help_Demo_Values[3], 64);
    EXPECT_EQ(Help_Switch.top, Switch_Row_Off + 10);
    Drag("Switch", -40);
    EXPECT_EQ(Help_Demo_Values[3], 64) << "the pointer's movement does nothing";
    Click("Switch");
    EXPECT_EQ(Display_Text(), "OFF");
    EXPECT_EQ(Help_Demo_Values[3], 0);
    EXPECT_EQ(Help_Switch.top, Switch_Row_Off);
}

TEST_F(Practice, switch_is_flipped_by_each_of_its_keys) {
    EXPECT_EQ(Shown_Behind("Switch", {Key_Up, Key_Down, Key_Page_Up, Key_Page_Down, Key_Home, Key_End,
                                      Key_Keypad_Plus, Key_Keypad_Minus}),
              (Lines{"ON", "OFF", "ON", "OFF", "ON", "OFF", "ON", "OFF"}));
    EXPECT_EQ(Shown_Behind("Switch", {Key_Left, Key_Right, Key_0, 187, 189, 255}), Lines(6, "-"));
}

TEST_F(Practice, switch_knows_two_values_only) {
    Set(3, 63);
    Key("Switch", Key_Up);
    EXPECT_EQ(Help_Demo_Values[3], 64);
    Set(3, 100);
    Key("Switch", Key_Up);
    EXPECT_EQ(Help_Demo_Values[3], 0);
}

// -- lamps -----------------------------------------------------------------------------------------------

TEST_F(Practice, lamp_is_lit_alone_by_a_click) {
    EXPECT_EQ(Lamps(), "*...");
    const char* const lit[] = {"*...", ".*..", "..*.", "...*"};
    const char* const names[] = {"LED_SW_0", "LED_SW_1", "LED_SW_2", "LED_SW_3"};
    const char* const texts[] = {"A", "B", "C", "D"};
    for (const std::size_t entry : {2U, 0U, 3U, 1U}) {
        Click(names[entry]);
        EXPECT_EQ(Lamps(), lit[entry]);
        EXPECT_EQ(Display_Text(), texts[entry]);
        EXPECT_EQ(Help_Demo_Values[4], entry);
        EXPECT_EQ(Panel_Current_Control, &Help_LED_SW[entry]);
    }
}

TEST_F(Practice, lamp_that_is_only_pressed_is_not_selected) {
    Press("LED_SW_2");
    EXPECT_EQ(Help_Demo_Values[4], 0);
    EXPECT_EQ(Lamps(), "*...");
    EXPECT_EQ(Panel_Current_Control, &Help_LED_SW[0]);
}

TEST_F(Practice, lamps_answer_the_keys_and_stop_at_the_ends) {
    Focus("LED_SW_0");
    const auto Press_Key = [](int key) {
        Howto_Panel.events.key_pressed(*Pic_Howto_Bk.active_control, key);
        return Display_Text() + Lamps();
    };
    EXPECT_EQ(Press_Key(Key_Up), "A*...");
    EXPECT_EQ(Press_Key(Key_Down), "B.*..");
    EXPECT_EQ(Press_Key(Key_Page_Down), "C..*.");
    EXPECT_EQ(Press_Key(Key_Down), "D...*");
    EXPECT_EQ(Press_Key(Key_Down), "D...*");
    EXPECT_EQ(Press_Key(Key_Page_Up), "C..*.");
    EXPECT_EQ(Pic_Howto_Bk.active_control, &Help_LED_SW[2]) << "the focus goes with the selection";
    for (const int key :
         {Key_Home + 0, Key_End + 0, Key_Keypad_Plus + 0, Key_Keypad_Minus + 0, Key_Left + 0}) {
        EXPECT_EQ(Press_Key(key), "C..*.");
    }
    EXPECT_EQ(Press_Key(Key_Page_Up), "B.*..");
    EXPECT_EQ(Press_Key(Key_Up), "A*...");
}

TEST_F(Practice, tab_stops_at_the_selected_lamp_alone) {
    for (const std::size_t entry : {0U, 3U, 1U}) {
        Click(Help_LED_SW[entry].name);
        for (std::size_t lamp = 0; lamp < 4; ++lamp) EXPECT_EQ(Help_LED_SW[lamp].tab_stop, lamp == entry);
    }
}

TEST_F(Practice, selected_lamp_stays_lit_when_the_focus_leaves_it) {
    Click("LED_SW_2");
    Panel_Blink_Phase = 0;
    Panel_Blink();
    EXPECT_EQ(Lamps(), "....") << "it blinks";
    Focus("Slider");
    EXPECT_EQ(Lamps(), "..*.");
}

// -- the mark --------------------------------------------------------------------------------------------

TEST_F(Practice, blinks_the_selected_element_and_leaves_the_others_at_rest) {
    const struct {
        const char* control;
        const char* marked;
        int resting;
    } rows[] = {{"Pos_Sw", "Pos_Sw", Thumb_Left},
                {"Switch", "Switch", Thumb_Right},
                {"Slider", "Slider", Thumb_Slider},
                {"Tune", "Tune_Knopf", Knob_Dot},
                {"Tune_Knopf", "Tune_Knopf", Knob_Dot}};
    for (const auto& row : rows) {
        Focus(row.control);
        Panel_Blink_Phase = 0;
        Advance(250ms);
        EXPECT_EQ(At(row.marked).picture.item, row.resting + 1) << row.control;
        Advance(250ms);
        EXPECT_EQ(At(row.marked).picture.item, row.resting) << row.control;
        Advance(250ms);
        Focus("LED_SW_0");
        EXPECT_EQ(At(row.marked).picture.item, row.resting) << row.control << " behind the focus";
    }
}

TEST_F(Practice, rests_when_its_window_is_left) {
    Focus("Slider");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Howto_Panel.events.deactivated();
    EXPECT_EQ(Help_Slider.picture.item, Thumb_Slider);
}

TEST_F(Practice, is_left_by_escape_from_every_control) {
    for (const char* name : {"Pos_Sw", "Tune", "Tune_Knopf", "Slider", "Switch", "LED_SW_1"}) {
        Key(name, Key_Escape);
        EXPECT_FALSE(Help.loaded) << name;
        EXPECT_EQ(App_Mode, "");
        Menu(Menu_Help_Howto).chosen();
    }
    EXPECT_EQ(Display_Text(), "Waiting for action...") << "and changes nothing";
}
