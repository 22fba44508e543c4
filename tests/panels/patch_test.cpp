// The Patch window: its controls one by one, what they store, show and send.
#include "panels/patch.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/hand.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "shell/frame.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/random_tone.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "synth/undo.h"
#include "synth/views.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// "01 14" as the whole message on channel 1.
std::string Message(const std::string& number_and_value) {
    return "F0 41 36 00 21 30 01 " + number_and_value + " F7";
}

Picture Lamp(bool lit) {
    return {Picture_Store::LED, lit ? 1 : 0};
}

}  // namespace

class The_Patch_Window : public Started_Stage {
  protected:
    The_Patch_Window() { Window_Show(Patch); }

    const Hand hand_{Patch_Panel};

    int Top(const std::string& name) const { return hand_.At(name).top; }

    // Which items of a group are lit.
    template <std::size_t Count>
    static std::vector<int> Lit(const std::array<Control, Count>& group) {
        std::vector<int> lit;
        for (std::size_t item = 0; item < Count; ++item) {
            if (group[item].picture == Lamp(true)) lit.push_back(static_cast<int>(item));
        }
        return lit;
    }

    // Puts a byte into the record and the window up to it.
    static void Set(std::size_t number, std::uint8_t value) {
        Patch_Data.at(number) = value;
        Panel_Apply_Patch();
    }
};

// -- the window
// --------------------------------------------------------------------------------------------

TEST_F(The_Patch_Window, has_its_size_its_caption_and_its_controls_in_their_places) {
    EXPECT_EQ(Patch.caption, "Patch Parameter");
    EXPECT_EQ(Patch.width, 296);
    EXPECT_EQ(Patch.height, 196);
    struct Place {
        const char* name;
        const char* kind;
        int left, top, width, height;
    };
    const Place places[] = {
        {"Portamento_Time", "bm", 20, 108, 16, 16}, {"Portamento_Switch", "br", 20, 143, 16, 16},
        {"Pitch_Bend_LFO", "bm", 86, 108, 16, 16},  {"Pitch_Bend_Range", "br", 117, 58, 16, 16},
        {"Key_Mode_0", "led", 152, 17, 14, 14},     {"Key_Mode_1", "led", 152, 32, 14, 14},
        {"Key_Mode_2", "led", 152, 47, 14, 14},     {"Key_Mode_3", "led", 152, 62, 14, 14},
        {"Key_Mode_4", "led", 152, 77, 14, 14},     {"Key_Mode_5", "led", 152, 92, 14, 14},
        {"After_Touch_0", "led", 222, 17, 14, 14},  {"After_Touch_1", "led", 222, 32, 14, 14},
        {"After_Touch_2", "led", 222, 47, 14, 14},  {"After_Touch_3", "led", 222, 62, 14, 14},
        {"UDTune", "kn2fp", 161, 132, 28, 26},      {"UDTune_Knopf", "kn2fp", 12, 5, 4, 4},
    };
    ASSERT_EQ(Patch_Panel.controls.size(), std::size(places));
    for (std::size_t index = 0; index < std::size(places); ++index) {
        const Place& place = places[index];
        const Control& control = *Patch_Panel.controls[index];
        EXPECT_STREQ(control.name, place.name) << "also the order of the focus";
        EXPECT_STREQ(control.kind, place.kind) << place.name;
        EXPECT_EQ(control.left, place.left) << place.name;
        EXPECT_EQ(control.top, place.top) << place.name;
        EXPECT_EQ(control.width, place.width) << place.name;
        EXPECT_EQ(control.height, place.height) << place.name;
        EXPECT_TRUE(control.focusable) << place.name;
        EXPECT_EQ(control.help_context, 0) << place.name;
    }
    EXPECT_EQ(hand_.At("UDTune_Knopf").parent, &hand_.At("UDTune"));
}

TEST_F(The_Patch_Window, has_the_resting_pictures_of_its_kinds) {
    EXPECT_EQ(hand_.At("Portamento_Time").picture, (Picture{Picture_Store::Buttons, 6}));
    EXPECT_EQ(hand_.At("Portamento_Switch").picture, (Picture{Picture_Store::Buttons, 2}));
    EXPECT_EQ(hand_.At("Pitch_Bend_LFO").picture, (Picture{Picture_Store::Buttons, 6}));
    EXPECT_EQ(hand_.At("Pitch_Bend_Range").picture, (Picture{Picture_Store::Buttons, 2}));
    EXPECT_EQ(hand_.At("UDTune").picture, (Picture{Picture_Store::Buttons, 8}));
    EXPECT_EQ(hand_.At("UDTune_Knopf").picture, (Picture{Picture_Store::Buttons, 4}));
}

TEST_F(The_Patch_Window, loads_with_the_mark_on_the_portamento_time_and_sends_nothing) {
    Window_Unload(Patch);
    Focus("VCF_Res");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Window_Show(Patch);
    EXPECT_EQ(At("VCF_Res").picture, (Picture{Picture_Store::Buttons, 6})) << "no mark is left behind";
    EXPECT_EQ(Panel_Blink_Phase, 0);
    EXPECT_EQ(Panel_Current_Control, &hand_.At("Portamento_Time"));
    EXPECT_EQ(Patch.active_control, &hand_.At("Portamento_Time"));
    EXPECT_TRUE(Is_True(Patch_Window_Open));
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
}

TEST_F(The_Patch_Window, loads_with_what_the_record_holds_by_then) {
    Window_Unload(Patch);
    Patch_Data = {70, 127, 64, 5, 2, 64, 127, 0, 0};
    Window_Show(Patch);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 38);
    EXPECT_EQ(Top("Portamento_Time"), 28);
    EXPECT_EQ(Top("Portamento_Switch"), 133);
    EXPECT_EQ(Top("Pitch_Bend_LFO"), 108 - 64 * 80 / 127);
    EXPECT_EQ(Lit(Patch_Key_Mode_Items), std::vector<int>{4});
    EXPECT_EQ(Lit(Patch_After_Touch_Items), std::vector<int>{2});
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 15);
    EXPECT_EQ(hand_.At("UDTune_Knopf").top, 14);
}

TEST_F(The_Patch_Window, closes_by_escape_and_by_its_close_box) {
    hand_.Key("Portamento_Time", 27);
    EXPECT_FALSE(Patch.loaded);
    EXPECT_FALSE(Patch.visible);
    EXPECT_FALSE(Is_True(Patch_Window_Open));
    for (const char* name : {"Key_Mode_0", "After_Touch_0", "UDTune", "Portamento_Switch"}) {
        Window_Show(Patch);
        hand_.Key(name, 27);
        EXPECT_FALSE(Patch.loaded) << name;
    }
    Window_Show(Patch);
    Patch_Close_Asked();
    EXPECT_FALSE(Patch.loaded);
    EXPECT_TRUE(Sent().empty()) << "not even from the knob, to which every key means something";
}

TEST_F(The_Patch_Window, is_locked_by_a_dialog_and_back_behind_it) {
    Window_Show(MIDI_Setup);
    EXPECT_FALSE(Patch.enabled);
    Window_Unload(MIDI_Setup);
    EXPECT_TRUE(Patch.enabled);
    EXPECT_TRUE(Patch.visible);
}

TEST_F(The_Patch_Window, keeps_its_place_only_while_places_are_saved) {
    Patch.left = 40;
    Patch.top = 7;
    Window_Unload(Patch);
    EXPECT_EQ(Patch_Left, 0);
    EXPECT_EQ(Patch_Top, 0);
    Window_Show(Patch);
    Menu(Menu_Windows_SavePos).checked = true;
    Window_Unload(Patch);
    EXPECT_EQ(Patch_Left, 600);
    EXPECT_EQ(Patch_Top, 105);
    Window_Show(Patch);
    Patch.left = 5000;
    Patch.top = -5000;
    Window_Unload(Patch);
    EXPECT_EQ(Patch_Left, 32767) << "what 16 bits hold";
    EXPECT_EQ(Patch_Top, -32768);
    EXPECT_FALSE(Patch.loaded);
}

TEST_F(The_Patch_Window, leaves_the_record_alive_when_it_closes) {
    hand_.Key("Portamento_Time", Key_Home);
    Window_Unload(Patch);
    EXPECT_EQ(Patch_Data[1], 127);
    Sent();
    Tone_Send();
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_NE(sent.front().find("F0 41 36 00 21 30 01 00 00 01 7F 02 00"), std::string::npos);
}

// -- refresh
// -----------------------------------------------------------------------------------------------

TEST_F(The_Patch_Window, shows_the_bend_range_by_bands_without_gaps) {
    for (int value = 0; value <= 127; ++value) {
        Set(0, static_cast<std::uint8_t>(value));
        EXPECT_EQ(Top("Pitch_Bend_Range"), value < 32   ? 58
                                           : value < 64 ? 48
                                           : value < 96 ? 38
                                                        : 28)
            << value;
    }
}

TEST_F(The_Patch_Window, shows_the_switch_by_halves_and_the_sliders_by_their_80_rows) {
    for (int value = 0; value <= 127; ++value) {
        const auto byte = static_cast<std::uint8_t>(value);
        Patch_Data = {0, byte, byte, 0, 0, byte, 64, 0, 0};
        Panel_Apply_Patch();
        EXPECT_EQ(Top("Portamento_Switch"), value < 64 ? 143 : 133) << value;
        EXPECT_EQ(Top("Portamento_Time"), 108 - value * 80 / 127) << value;
        EXPECT_EQ(Top("Pitch_Bend_LFO"), 108 - value * 80 / 127) << value;
    }
    EXPECT_EQ(Top("Portamento_Time"), 28);
}

TEST_F(The_Patch_Window, leaves_the_switches_for_a_byte_that_no_position_holds) {
    Set(0, 100);
    Set(2, 100);
    Set(0, 200);
    Set(2, 200);
    EXPECT_EQ(Top("Pitch_Bend_Range"), 28);
    EXPECT_EQ(Top("Portamento_Switch"), 133);
}

TEST_F(The_Patch_Window, lights_the_lamp_of_each_code_and_the_first_for_any_other) {
    const std::vector<std::pair<int, int>> key_modes = {{0, 0}, {1, 1}, {2, 2}, {3, 0},  {4, 3},
                                                        {5, 4}, {6, 5}, {7, 0}, {255, 0}};
    for (const auto& [code, item] : key_modes) {
        Set(3, static_cast<std::uint8_t>(code));
        EXPECT_EQ(Lit(Patch_Key_Mode_Items), std::vector<int>{item}) << code;
        EXPECT_EQ(Patch_Key_Mode_Sel, item) << code;
        EXPECT_EQ(Patch_Data[3], code) << "the byte stays";
    }
    const std::vector<std::pair<int, int>> touches = {{0, 0}, {1, 1}, {2, 2}, {3, 0},
                                                      {4, 3}, {5, 0}, {6, 0}};
    for (const auto& [code, item] : touches) {
        Set(4, static_cast<std::uint8_t>(code));
        EXPECT_EQ(Lit(Patch_After_Touch_Items), std::vector<int>{item}) << code;
        EXPECT_EQ(Patch_After_Touch_Sel, item) << code;
        EXPECT_EQ(Patch_Data[4], code) << "the byte stays";
    }
}

TEST_F(The_Patch_Window, sends_a_code_without_a_lamp_back_unchanged_until_a_lamp_is_picked) {
    Set(3, 3);
    Tone_Send();
    EXPECT_NE(Sent().front().find(" 03 03 04 "), std::string::npos);
    hand_.Click("Key_Mode_0");
    EXPECT_EQ(Sent(), Lines{Message("03 00")});
    EXPECT_EQ(Patch_Data[3], 0);
}

TEST_F(The_Patch_Window, is_refreshed_without_a_message_and_without_a_change) {
    Patch_Data = {127, 1, 2, 3, 4, 5, 6, 7, 8};
    Panel_Apply_Patch();
    EXPECT_TRUE(Sent().empty());
    EXPECT_TRUE(Is_True(Tone_Saved));
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(The_Patch_Window, follows_new_random_and_undo_while_it_is_open) {
    Patch_Data = {127, 127, 127, 6, 4, 127, 127, 9, 9};
    Panel_Apply_Patch();
    Undo_Store();
    Tone_Init();
    EXPECT_EQ(Patch_Data, (std::array<std::uint8_t, 9>{0, 0, 0, 0, 0, 0, 64, 0, 0}));
    EXPECT_EQ(Top("Portamento_Time"), 108);
    EXPECT_EQ(Lit(Patch_Key_Mode_Items), std::vector<int>{0});
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 12);
    Undo_Restore();
    EXPECT_EQ(Patch_Data, (std::array<std::uint8_t, 9>{127, 127, 127, 6, 4, 127, 127, 9, 9}))
        << "with the two that nothing uses";
    EXPECT_EQ(Top("Portamento_Time"), 28);
    EXPECT_EQ(Lit(Patch_Key_Mode_Items), std::vector<int>{5});
    Tone_Random();
    EXPECT_EQ(Patch_Data, (std::array<std::uint8_t, 9>{0, 0, 0, 0, 0, 0, 64, 0, 0}));
    EXPECT_EQ(Top("Portamento_Time"), 108);
}

TEST_F(The_Patch_Window, is_not_opened_by_a_refresh) {
    Window_Unload(Patch);
    Tone_Init();
    Undo_Store();
    Undo_Restore();
    EXPECT_FALSE(Patch.loaded);
}

// -- values
// ------------------------------------------------------------------------------------------------

TEST_F(The_Patch_Window, stores_shows_and_sends_a_value_and_marks_the_tone_as_changed) {
    Patch_Set_Value(1, 127);
    EXPECT_EQ(Patch_Data[1], 127);
    EXPECT_EQ(Shown(), "99");
    EXPECT_TRUE(Timer_Display.enabled);
    EXPECT_EQ(Sent(), Lines{Message("01 7F")});
    EXPECT_FALSE(Is_True(Tone_Saved));
    Patch_Set_Value(5, 64);
    EXPECT_EQ(Shown(), "49");
    Patch_Set_Value(6, 0);
    EXPECT_EQ(Shown(), "-50");
    Patch_Set_Value(6, 127);
    EXPECT_EQ(Shown(), "50");
    Patch_Set_Value(6, 64);
    EXPECT_EQ(Shown(), "0");
    EXPECT_EQ(Sent(), (Lines{Message("05 40"), Message("06 00"), Message("06 7F"), Message("06 40")}));
}

TEST_F(The_Patch_Window, shows_nothing_for_the_other_parameters_but_waits_two_seconds_all_the_same) {
    Patch_Set_Value(1, 127);
    for (const std::size_t number : {0U, 2U, 3U, 4U}) {
        Timer_Stop(Timer_Display);
        Patch_Set_Value(number, 1);
        EXPECT_EQ(Shown(), "99") << number;
        EXPECT_TRUE(Timer_Display.enabled) << number;
    }
    Advance(1999ms);
    EXPECT_EQ(Shown(), "99");
    Advance(1ms);
    EXPECT_EQ(Shown(), "") << "the tone's name is back";
}

TEST_F(The_Patch_Window, shows_no_value_while_a_tone_loads) {
    Tone_Loading = Flag_8::True;
    Patch_Set_Value(1, 127);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_EQ(Sent(), Lines{Message("01 7F")});
    EXPECT_FALSE(Is_True(Tone_Saved));
}

TEST_F(The_Patch_Window, sends_nothing_while_sending_is_off_and_keeps_the_value) {
    MIDI_Autosend = 0;
    hand_.Key("Portamento_Time", Key_Home);
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Patch_Data[1], 127);
    EXPECT_FALSE(Is_True(Tone_Saved));
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    hand_.Key("Portamento_Time", Key_End);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(The_Patch_Window, has_changes_that_the_end_of_the_program_asks_about) {
    hand_.Click("Key_Mode_2");
    Answer_With("Save actual TONE first?", Answer::Cancel);
    EXPECT_FALSE(Main_Close());
    EXPECT_FALSE(Patch.loaded) << "the end closes it before it asks";
    EXPECT_EQ(Patch_Data[3], 2);
}

TEST_F(The_Patch_Window, follows_a_file_that_is_opened_and_none_that_is_only_looked_at) {
    const auto Load_With = [](const std::string& patch, const char* mode) {
        std::string file = "F0 41 35 00 21 20 01 " + std::string(59 * 3, ' ') + "F7 F0 41 36 00 21 30 01 ";
        for (std::size_t place = 21; place < 21 + 59 * 3; place += 3) file.replace(place, 2, "20");
        Write(Path("x.syx"), Bytes(file + patch + " F7"));
        SYX_Load(Path("x.syx"), mode);
    };
    Load_With("00 7F 01 7F 02 40 03 03 04 04 05 7F 06 7F", "Open");
    EXPECT_EQ(Patch_Data, (std::array<std::uint8_t, 9>{127, 127, 64, 3, 4, 127, 127, 0, 0}));
    EXPECT_EQ(Top("Pitch_Bend_Range"), 28);
    EXPECT_EQ(Top("Portamento_Time"), 28);
    EXPECT_EQ(Top("Portamento_Switch"), 133);
    EXPECT_EQ(Top("Pitch_Bend_LFO"), 28);
    EXPECT_EQ(Lit(Patch_Key_Mode_Items), std::vector<int>{0}) << "code 3 is no lamp's";
    EXPECT_EQ(Lit(Patch_After_Touch_Items), std::vector<int>{3});
    EXPECT_EQ(hand_.At("UDTune_Knopf").left, 15);
    EXPECT_TRUE(Is_True(Tone_Saved));
    Load_With("00 00 01 00 02 00 03 06 04 00 05 00 06 40", "Preview");
    EXPECT_EQ(Top("Portamento_Time"), 28);
    EXPECT_EQ(Lit(Patch_After_Touch_Items), std::vector<int>{3});
}

TEST_F(The_Patch_Window, refuses_a_number_that_the_record_does_not_have) {
    EXPECT_THROW(Patch_Set_Value(9, 0), Fatal_Error);
    EXPECT_THROW(Patch_Byte(9), Fatal_Error);
}
