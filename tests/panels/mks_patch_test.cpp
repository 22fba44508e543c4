// The MKS-70's patch window, as far as it goes.
#include "panels/mks_patch.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/hand.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "panels/patch.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/patch_mks70.h"
#include "synth/profile.h"
#include "synth/random_tone.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/undo.h"

namespace {

using Lines = std::vector<std::string>;

std::string Message(const std::string& number_and_value) {
    return "F0 41 36 00 21 30 01 " + number_and_value + " F7";
}

}  // namespace

class The_MKS_70_Patch_Window : public Started_Stage {
  protected:
    The_MKS_70_Patch_Window() { Window_Show(Patch_MKS70); }

    const Hand hand_{Patch_MKS70_Panel};
    MKS_Patch_Form& form_ = Patch_MKS70_Form;
};

TEST_F(The_MKS_70_Patch_Window, loads_with_its_name_its_lists_and_tone_A) {
    EXPECT_EQ(Patch_MKS70.caption, "Patch Parameter");
    EXPECT_EQ(Patch_MKS70.width, 332);
    EXPECT_EQ(Patch_MKS70.height, 421);
    EXPECT_EQ(Patch_Name_Text, "TEST PATCH MKS-70");
    EXPECT_EQ(form_.patch_name, "TEST PATCH MKS-70");
    ASSERT_EQ(form_.tone_number.entries.size(), 100U);
    EXPECT_EQ(form_.tone_number.entries.front(), "1");
    EXPECT_EQ(form_.tone_number.entries.back(), "100");
    EXPECT_EQ(form_.tone_number.selected, 0);
    ASSERT_EQ(form_.split_point.entries.size(), 88U);
    const std::vector<std::string> first(form_.split_point.entries.begin(),
                                         form_.split_point.entries.begin() + 17);
    EXPECT_EQ(first, (std::vector<std::string>{"A0", "A#0", "B0", "C1", "C#1", "D1", "D#1", "E1", "F1",
                                               "F#1", "G1", "G#1", "A1", "A#1", "B1", "C2", "C#2"}));
    EXPECT_EQ(form_.split_point.entries[86], "B7");
    EXPECT_EQ(form_.split_point.entries[87], "C8");
    EXPECT_EQ(form_.split_point.selected, 0);
    EXPECT_EQ(Patch_MKS70_Tone, "A");
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(The_MKS_70_Patch_Window, writes_21_and_0_for_tone_B_by_the_click_at_load) {
    std::array<std::uint8_t, 65> expected = {};
    expected[21] = 21;
    expected[38] = 0;
    EXPECT_EQ(Patch_MKS70_Data, expected);
    Patch_MKS70_Data[38] = 9;
    Window_Unload(Patch_MKS70);
    EXPECT_EQ(Patch_MKS70_Data[38], 9) << "it keeps its contents for the run";
    Window_Show(Patch_MKS70);
    EXPECT_EQ(Patch_MKS70_Data[38], 0);
}

TEST_F(The_MKS_70_Patch_Window, has_its_drawn_controls_in_their_places) {
    struct Place {
        const char* name;
        const char* kind;
        int left, top, width, height;
        Picture picture;
    };
    const Picture left_thumb = {Picture_Store::Buttons, 2};
    const Picture slider = {Picture_Store::Buttons, 6};
    const Picture body = {Picture_Store::Buttons, 8};
    const Picture dot = {Picture_Store::Buttons, 4};
    const Picture lamp = {Picture_Store::LED, 0};
    const std::vector<Place> places = {
        {"UL_Balance", "kn2fp", 76, 29, 28, 26, body},
        {"UL_Balance_Knopf", "kn2fp", 12, 5, 4, 4, dot},
        {"Dual_Detune", "kn2fp", 76, 91, 28, 26, body},
        {"Dual_Detune_Knopf", "kn2fp", 12, 5, 4, 4, dot},
        {"Chromatic_Shift", "kn2fp", 111, 335, 24, 26, body},
        {"Chromatic_Shift_Knopf", "kn2fp", 10, 5, 4, 4, dot},
        {"UDTune", "kn2fp", 165, 335, 24, 26, body},
        {"UDTune_Knopf", "kn2fp", 10, 5, 4, 4, dot},
        {"Key_Mode_0", "led", 8, 23, 14, 14, lamp},
        {"Key_Mode_1", "led", 8, 38, 14, 14, lamp},
        {"Key_Mode_2", "led", 8, 53, 14, 14, lamp},
        {"Key_Mode_3", "led", 8, 68, 14, 14, lamp},
        {"Key_Mode_4", "led", 8, 83, 14, 14, lamp},
        {"Key_Mode_5", "led", 8, 98, 14, 14, lamp},
        {"Chase_Mode_0", "led", 86, 189, 14, 14, lamp},
        {"Chase_Mode_1", "led", 86, 174, 14, 14, lamp},
        {"Chase_Mode_2", "led", 86, 159, 14, 14, lamp},
        {"Key_Assign_0", "led", 255, 322, 14, 14, lamp},
        {"Key_Assign_1", "led", 255, 337, 14, 14, lamp},
        {"Key_Assign_2", "led", 255, 352, 14, 14, lamp},
        {"Key_Assign_3", "led", 255, 367, 14, 14, lamp},
        {"Key_Assign_4", "led", 255, 382, 14, 14, lamp},
        {"Key_Assign_5", "led", 255, 397, 14, 14, lamp},
        {"AFT_Vibrato", "br", 143, 103, 16, 16, left_thumb},
        {"AFT_Brilliance", "bm", 182, 103, 16, 16, slider},
        {"AFT_Volume", "bm", 221, 103, 16, 16, slider},
        {"Bend_range", "bm", 221, 196, 16, 16, slider},
        {"Portamento", "bm", 165, 236, 16, 16, slider},
        {"Portamento_Sw", "br", 84, 393, 16, 16, left_thumb},
        {"Bender", "br", 128, 393, 16, 16, left_thumb},
        {"Hold", "br", 169, 393, 16, 16, left_thumb},
        {"Chase_Level", "bm", 8, 235, 16, 16, slider},
        {"Chase_Time", "br", 47, 235, 16, 16, left_thumb},
        {"Chase_Play", "bm", 85, 235, 16, 16, slider},
        {"LFO_Mod_Depth", "bm", 211, 397, 16, 16, slider},
        {"Total_Volume", "bm", 276, 236, 16, 16, slider},
    };
    for (const Place& place : places) {
        const Control& control = hand_.At(place.name);
        EXPECT_STREQ(control.kind, place.kind) << place.name;
        EXPECT_EQ(control.left, place.left) << place.name;
        EXPECT_EQ(control.top, place.top) << place.name;
        EXPECT_EQ(control.width, place.width) << place.name;
        EXPECT_EQ(control.height, place.height) << place.name;
        EXPECT_EQ(control.picture, place.picture) << place.name;
        const bool answers = std::string(place.name).starts_with("UDTune");
        EXPECT_EQ(control.focusable, answers) << place.name;
    }
    // And the two buttons with their symbols.
    EXPECT_EQ(Patch_MKS70_Panel.controls.size(), places.size() + 4);
    EXPECT_EQ(MKS_Tone_A.left, 6);
    EXPECT_EQ(MKS_Tone_B.left, 35);
    for (const Control* button : {&MKS_Tone_A, &MKS_Tone_B}) {
        EXPECT_EQ(button->top, 277);
        EXPECT_EQ(button->width, 22);
        EXPECT_EQ(button->height, 22);
    }
}

TEST_F(The_MKS_70_Patch_Window, has_inert_controls_that_change_nothing) {
    hand_.Focus("UDTune");
    const auto before = Patch_MKS70_Data;
    for (Control* control : Patch_MKS70_Panel.controls) {
        if (control->focusable) continue;
        hand_.Click(control->name);
        hand_.Drag(control->name, -40);
        hand_.Key(control->name, Key_Home);
    }
    EXPECT_EQ(Patch_MKS70_Data, before);
    EXPECT_EQ(hand_.At("Chromatic_Shift").top, 335);
    EXPECT_EQ(hand_.At("Chase_Level").top, 235);
    EXPECT_EQ(hand_.At("Key_Mode_2").picture, (Picture{Picture_Store::LED, 0}));
    EXPECT_EQ(Panel_Current_Control, &hand_.At("UDTune_Knopf"));
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

// -- choosing a tone
// ---------------------------------------------------------------------------------------

TEST_F(The_MKS_70_Patch_Window, has_two_buttons_of_which_the_chosen_one_stays_down) {
    const auto Expect_Down = [](const Control& down, const Control& up) {
        EXPECT_EQ(down.picture, Picture{Picture_Store::Button_Dn3D});
        EXPECT_EQ(down.symbol->left, 4);
        EXPECT_EQ(down.symbol->top, 4);
        EXPECT_EQ(up.picture, Picture{Picture_Store::Button_Up3D});
        EXPECT_EQ(up.symbol->left, 3);
        EXPECT_EQ(up.symbol->top, 3);
    };
    Expect_Down(MKS_Tone_A, MKS_Tone_B);
    EXPECT_EQ(MKS_Tone_A_Pic.picture, Picture{Picture_Store::Tone_A_Pic});
    EXPECT_EQ(MKS_Tone_B_Pic.picture, Picture{Picture_Store::Tone_B_Pic});
    hand_.Click("Tone_B");
    Expect_Down(MKS_Tone_B, MKS_Tone_A);
    EXPECT_EQ(Patch_MKS70_Tone, "B");
    hand_.Click("Tone_A");
    Expect_Down(MKS_Tone_A, MKS_Tone_B);
    EXPECT_EQ(Patch_MKS70_Tone, "A");
}

TEST_F(The_MKS_70_Patch_Window, stores_the_lists_for_the_tone_being_left) {
    form_.split_point.Select(10);
    form_.tone_number.Select(4);
    Patch_MKS70_Data[21] = 60;
    Patch_MKS70_Data[38] = 30;
    Tone_B_Select();
    EXPECT_EQ(Patch_MKS70_Tone, "B");
    EXPECT_EQ(Patch_MKS70_Data[20], 31);
    EXPECT_EQ(Patch_MKS70_Data[29], 4);
    EXPECT_EQ(form_.split_point.selected, 39);
    EXPECT_EQ(form_.tone_number.selected, 30);
    form_.split_point.Select(50);
    form_.tone_number.Select(99);
    Tone_A_Select();
    EXPECT_EQ(Patch_MKS70_Tone, "A");
    EXPECT_EQ(Patch_MKS70_Data[21], 71);
    EXPECT_EQ(Patch_MKS70_Data[38], 99);
    EXPECT_EQ(form_.tone_number.selected, 4);
    EXPECT_EQ(form_.split_point.selected, 50) << "a split point comes back for B only";
}

TEST_F(The_MKS_70_Patch_Window, leaves_the_split_point_of_B_on_show_behind_A_B_A) {
    MKS_Split_Point_Change(12);
    hand_.Click("Tone_B");
    MKS_Split_Point_Change(40);
    hand_.Click("Tone_A");
    EXPECT_EQ(form_.split_point.selected, 40);
    EXPECT_EQ(Patch_MKS70_Data[20], 33) << "while the cell of A keeps its own";
}

TEST_F(The_MKS_70_Patch_Window, writes_a_split_point_at_once_for_the_tone_on_show) {
    MKS_Split_Point_Change(87);
    EXPECT_EQ(Patch_MKS70_Data[20], 108);
    EXPECT_EQ(Patch_MKS70_Data[21], 21);
    hand_.Click("Tone_B");
    MKS_Split_Point_Change(1);
    EXPECT_EQ(Patch_MKS70_Data[20], 108);
    EXPECT_EQ(Patch_MKS70_Data[21], 22);
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(The_MKS_70_Patch_Window, keeps_a_tone_number_in_the_list_until_the_tone_is_left) {
    MKS_Tone_Number_Change(55);
    EXPECT_EQ(Patch_MKS70_Data[29], 0);
    hand_.Click("Tone_B");
    EXPECT_EQ(Patch_MKS70_Data[29], 55);
}

TEST_F(The_MKS_70_Patch_Window, moves_the_dot_of_the_other_window_and_loads_it) {
    EXPECT_TRUE(Patch.loaded);
    EXPECT_TRUE(Is_True(Patch_Window_Open));
    EXPECT_FALSE(Patch.visible);
    Window_Unload(Patch);
    Patch_Data[6] = 127;
    const int left = hand_.At("UDTune_Knopf").left;
    hand_.Click("Tone_B");
    EXPECT_TRUE(Patch.loaded);
    EXPECT_EQ(Patch_UDTune_Knopf.left, 13) << "150 degrees round 10 and 10";
    EXPECT_EQ(Patch_UDTune_Knopf.top, 14);
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, left);
}

// -- the knob
// ----------------------------------------------------------------------------------------------

TEST_F(The_MKS_70_Patch_Window, steps_the_detune_of_the_tone_on_show_by_key) {
    struct Row {
        int key;
        int before, after;
    };
    const Row rows[] = {{Key_Up, 64, 65},
                        {Key_Right, 64, 65},
                        {Key_Keypad_Plus, 64, 65},
                        {Key_Down, 64, 63},
                        {Key_Left, 64, 63},
                        {Key_Keypad_Minus, 64, 63},
                        {Key_Page_Up, 64, 74},
                        {Key_Page_Down, 64, 54},
                        {Key_Home, 64, 127},
                        {Key_End, 64, 0},
                        {Key_0, 90, 63},
                        {Key_Keypad_0, 90, 63},
                        {Key_Page_Up, 120, 127},
                        {Key_Page_Down, 3, 0},
                        {Key_Down, 0, 0},
                        {65, 64, 64},
                        {255, 64, 64}};
    for (const auto& [tone, cell, other] : {std::tuple{"Tone_A", 32U, 41U}, {"Tone_B", 41U, 32U}}) {
        hand_.Click(tone);
        Patch_MKS70_Data[other] = 99;
        for (const char* name : {"UDTune", "UDTune_Knopf"}) {
            for (const Row& row : rows) {
                Patch_MKS70_Data.at(cell) = static_cast<std::uint8_t>(row.before);
                hand_.Key(name, row.key);
                EXPECT_EQ(Patch_MKS70_Data.at(cell), row.after) << tone << " " << row.key;
                EXPECT_EQ(Sent().size(), 1U);
            }
        }
        EXPECT_EQ(Patch_MKS70_Data.at(other), 99) << "the other tone's stays";
    }
}

TEST_F(The_MKS_70_Patch_Window, drags_the_detune_of_B_and_leaves_that_of_A_alone) {
    hand_.Click("Tone_B");
    Patch_MKS70_Data[41] = 64;
    hand_.Press("UDTune");
    hand_.Drag("UDTune", 10);
    hand_.Drag("UDTune", 15);
    hand_.Drag("UDTune", 500);
    EXPECT_EQ(Sent(), (Lines{Message("29 40"), Message("29 4A"), Message("29 4F"), Message("29 7F")}));
    EXPECT_EQ(Shown(), "50");
    EXPECT_EQ(Patch_MKS70_Data[32], 0);
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 13);
    EXPECT_EQ(hand_.At("UDTune_Knopf").top, 14);
    hand_.Drag("UDTune", -500);
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 7);
    EXPECT_EQ(Patch_MKS70_Data[41], 0);
}

TEST_F(The_MKS_70_Patch_Window, has_its_knobs_mark_on_the_dot_and_blinks_it_on_the_other_window) {
    hand_.Focus("UDTune");
    EXPECT_EQ(Panel_Current_Control, &hand_.At("UDTune_Knopf"));
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(hand_.At("UDTune_Knopf").picture, (Picture{Picture_Store::Buttons, 4}));
    EXPECT_EQ(Patch_UDTune_Knopf.picture, (Picture{Picture_Store::Buttons, 5}));
    Panel_Knob_Last_Y = 7;
    hand_.Focus("Tone_A");
    EXPECT_EQ(Patch_UDTune_Knopf.picture, (Picture{Picture_Store::Buttons, 4}));
    EXPECT_EQ(Panel_Knob_Last_Y, 0);
}

// -- values and messages
// -----------------------------------------------------------------------------------

TEST_F(The_MKS_70_Patch_Window, stores_shows_and_sends_a_value_and_marks_the_tone_as_changed) {
    const std::vector<std::tuple<std::size_t, int, const char*, const char*>> rows = {
        {1, 127, "99", "01 7F"}, {5, 64, "49", "05 40"}, {32, 0, "-50", "20 00"}, {41, 127, "50", "29 7F"}};
    for (const auto& [index, value, shown, message] : rows) {
        Tone_Saved = Flag_16::True;
        Timer_Stop(Timer_Display);
        Patch_MKS70_Set_Value(index, static_cast<std::uint8_t>(value));
        EXPECT_EQ(Patch_MKS70_Data.at(index), value);
        EXPECT_EQ(Shown(), shown);
        EXPECT_EQ(Sent(), Lines{Message(message)});
        EXPECT_TRUE(Timer_Display.enabled);
        EXPECT_FALSE(Is_True(Tone_Saved));
    }
    Timer_Stop(Timer_Display);
    Patch_MKS70_Set_Value(64, 3);
    EXPECT_EQ(Shown(), "50") << "others show nothing";
    EXPECT_TRUE(Timer_Display.enabled) << "and wait two seconds all the same";
    EXPECT_EQ(Sent(), Lines{Message("40 03")});
    EXPECT_THROW(Patch_MKS70_Set_Value(65, 0), Fatal_Error);
}

TEST_F(The_MKS_70_Patch_Window, shows_nothing_while_a_tone_loads) {
    Tone_Loading = Flag_8::True;
    Patch_MKS70_Set_Value(1, 127);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(The_MKS_70_Patch_Window, sends_under_the_same_guard_with_format_21_on_the_channel_set) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    MIDI_Channel = 11;
    Patch_MKS70_Data[20] = 100;
    Patch_MKS70_Param_Send(20);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 0A 21 30 01 14 64 F7"});
    MIDI_Autosend = 0;
    Patch_MKS70_Param_Send(20);
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    Patch_MKS70_Param_Send(20);
    EXPECT_TRUE(Sent().empty());
}

// -- its place and its end
// ---------------------------------------------------------------------------------

TEST_F(The_MKS_70_Patch_Window, closes_by_escape_and_keeps_its_place_while_places_are_saved) {
    Patch_MKS70.left = 10;
    Patch_MKS70.top = 20;
    hand_.Key("UDTune", 27);
    EXPECT_FALSE(Patch_MKS70.loaded);
    EXPECT_EQ(Patch_Left, 0);
    Window_Show(Patch_MKS70);
    Menu(Menu_Windows_SavePos).checked = true;
    hand_.Key("Tone_A", 27);
    EXPECT_FALSE(Patch_MKS70.loaded);
    EXPECT_EQ(Patch_Left, 150);
    EXPECT_EQ(Patch_Top, 300);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(The_MKS_70_Patch_Window, has_a_record_that_no_tone_and_no_undo_touches) {
    Patch_MKS70_Data.fill(77);
    Undo_Store();
    Tone_Init();
    Tone_Random();
    Undo_Restore();
    EXPECT_EQ(Patch_MKS70_Data[0], 77);
    EXPECT_EQ(Patch_MKS70_Data[64], 77);
    EXPECT_EQ(Patch_Name_Text, "") << "New empties the name alone";
}

TEST_F(The_MKS_70_Patch_Window, has_a_record_that_goes_into_no_message_and_no_file) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    const auto Sent_And_Saved = [] {
        Sent();
        Tone_Send();
        Lines all = Sent();
        const std::size_t size = SYX_Image_Build();
        all.emplace_back(SYX_Image.begin(), SYX_Image.begin() + static_cast<std::ptrdiff_t>(size));
        return all;
    };
    Patch_MKS70_Data.fill(0);
    const Lines before = Sent_And_Saved();
    EXPECT_EQ(before.size(), 2U);
    Patch_MKS70_Data.fill(77);
    EXPECT_EQ(Sent_And_Saved(), before);
}

using The_MKS_70 = Started_Stage;

TEST_F(The_MKS_70, begins_with_a_record_of_zeros_and_no_window) {
    EXPECT_EQ(Patch_MKS70_Data, (std::array<std::uint8_t, 65>{}));
    EXPECT_FALSE(Patch_MKS70.loaded);
    EXPECT_EQ(Patch_Name_Text, "");
}
