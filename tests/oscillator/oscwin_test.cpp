#include "oscwin/oscwin.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/screen.h"
#include "filedlg/state.h"
#include "oscillator/open_oscillator.h"
#include "shell/frame.h"
#include "shell/osc_commands.h"
#include "shell/tone_commands.h"
#include "synth/tone.h"

using namespace std::chrono_literals;

using Oscillators_Window = Open_Oscillator;
using Oscillators_Entries = Started_Stage;

namespace {

const Picture Raised = {Picture_Store::Button_Up3D, 0};
const Picture Pressed = {Picture_Store::Button_Dn3D, 0};

Lines Opened;

}  // namespace

TEST_F(Oscillators_Window, opens_in_its_start_state) {
    EXPECT_EQ(Oscillator.caption, "Oscillator");
    EXPECT_EQ(Oscillator.width, 394);
    EXPECT_EQ(Oscillator.height, 192);
    EXPECT_EQ(Osc_Window_Open, Flag_8::True);
    EXPECT_EQ(Osc_Label1, "500");
    EXPECT_EQ(Osc_Label3, "0");
    EXPECT_EQ(Osc_Label4, "64");
    EXPECT_EQ(Osc_Time.value, 500);
    EXPECT_EQ(Osc_Combo1.selected, 0);
    EXPECT_EQ(Osc_Param, 14);
    EXPECT_EQ(Presets_Lit(), (Rows{3, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Osc_Invert.picture, (Picture{Picture_Store::LED, 0}));
    EXPECT_EQ(Osc_Start.picture, Raised);
    EXPECT_EQ(Osc_Stop.picture, Raised);
    EXPECT_FALSE(Timer_Osc.enabled);
    EXPECT_EQ(Sent(), Lines{}) << "nothing is sent";
}

TEST_F(Oscillators_Window, has_scroll_bars_of_these_ranges) {
    EXPECT_EQ(Osc_Time.minimum, 0);
    EXPECT_EQ(Osc_Time.maximum, 999);
    EXPECT_EQ(Osc_Time.large_step, 50);
    EXPECT_EQ(Osc_VScrollA.minimum, 0);
    EXPECT_EQ(Osc_VScrollA.maximum, 127);
    EXPECT_EQ(Osc_VScrollDelta.minimum, -64);
    EXPECT_EQ(Osc_VScrollDelta.maximum, 64);
}

TEST_F(Oscillators_Window, shows_the_values_of_its_scroll_bars) {
    Osc_Time_Change(7);
    Osc_VScrollA_Change(100);
    Osc_VScrollDelta_Change(-33);
    EXPECT_EQ(Osc_Label1, "7");
    EXPECT_EQ(Osc_Label4, "100");
    EXPECT_EQ(Osc_Label3, "-33");
    EXPECT_EQ(Osc_HLine, 96);
    EXPECT_EQ(Osc_Out[0], 127) << "1.5625 * 96 + 63 - 100 + 33 = 146";
    EXPECT_EQ(Osc_Line1[0].y1, 127);
}

TEST_F(Oscillators_Window, places_its_lamps_in_two_columns_sixteen_rows_apart) {
    for (int preset = 0; preset < 10; ++preset) {
        const Control& lamp = Osc_Wave[static_cast<std::size_t>(preset)];
        EXPECT_EQ(lamp.left, preset % 2 == 0 ? 234 : 311);
        EXPECT_EQ(lamp.top, 74 + 16 * (preset / 2));
    }
}

TEST_F(Oscillators_Window, lights_the_chosen_preset_alone) {
    for (int preset = 0; preset < 10; ++preset) {
        Click("Osc_Wave_" + std::to_string(preset));
        Rows lit(10, 0);
        lit[static_cast<std::size_t>(preset)] = 3;
        EXPECT_EQ(Presets_Lit(), lit);
    }
}

TEST_F(Oscillators_Window, lights_the_invert_switch_while_it_is_on) {
    Click("Osc_Invert");
    EXPECT_EQ(Osc_Invert.picture, (Picture{Picture_Store::LED, 4}));
    EXPECT_TRUE(Osc_Inverted);
    EXPECT_EQ(Osc_Points[0], 31);
    Click("Osc_Invert");
    EXPECT_EQ(Osc_Invert.picture, (Picture{Picture_Store::LED, 0}));
    EXPECT_FALSE(Osc_Inverted);
    EXPECT_EQ(Osc_Points[0], 96);
}

TEST_F(Oscillators_Window, holds_the_start_button_down_until_the_stop_button_is_released) {
    Press("Osc_Start");
    EXPECT_EQ(Osc_Start.picture, Pressed);
    EXPECT_EQ(Osc_Start_Pic.left, 4);
    EXPECT_EQ(Osc_Start_Pic.top, 4);
    Release("Osc_Start");
    EXPECT_EQ(Osc_Start.picture, Pressed);
    EXPECT_FALSE(Timer_Osc.enabled) << "a click starts, not a press";
    Osc_Panel.events.clicked(Osc_Start);
    EXPECT_TRUE(Timer_Osc.enabled);
    Press("Osc_Stop");
    EXPECT_EQ(Osc_Stop.picture, Pressed);
    EXPECT_EQ(Osc_Start.picture, Pressed);
    Release("Osc_Stop");
    EXPECT_EQ(Osc_Stop.picture, Raised);
    EXPECT_EQ(Osc_Start.picture, Raised);
    EXPECT_EQ(Osc_Start_Pic.left, 3);
    EXPECT_EQ(Osc_Stop_Pic.top, 3);
    EXPECT_TRUE(Timer_Osc.enabled);
    Osc_Panel.events.clicked(Osc_Stop);
    EXPECT_FALSE(Timer_Osc.enabled);
}

TEST_F(Oscillators_Window, is_gone_with_all_its_state_and_opens_again_at_the_start) {
    Click("Osc_Wave_4");
    Click("Osc_Invert");
    Osc_VScrollA_Change(3);
    Osc_VScrollDelta_Change(9);
    Osc_Time_Change(77);
    Osc_Combo1_Click(20);
    Click("Osc_Start");
    Advance(770ms);
    Window_Unload(Oscillator);
    EXPECT_EQ(Osc_Window_Open, Flag_8::False);
    EXPECT_FALSE(Timer_Osc.enabled);
    Sent();
    Advance(5000ms);
    EXPECT_EQ(Sent(), Lines{}) << "the last value stays on the instrument";

    Window_Show(Oscillator);
    EXPECT_EQ(Points(), (Rows{96, 89, 82, 75, 68, 61, 54, 47, 40, 96, 89, 82, 75, 68, 61, 54, 47, 40}));
    EXPECT_EQ(Osc_Out[0], 95);
    EXPECT_EQ(Osc_Combo1.selected, 0);
    EXPECT_EQ(Osc_Combo1.entries.size(), 27U);
    EXPECT_EQ(Osc_Param, 14);
    EXPECT_EQ(Osc_Label1, "500");
    EXPECT_EQ(Timer_Osc.interval, 500);
    EXPECT_EQ(Osc_Label4, "64");
    EXPECT_EQ(Osc_Label3, "0");
    EXPECT_EQ(Osc_HLine, 63);
    EXPECT_EQ(Osc_TimeLine, 0);
    EXPECT_EQ(Osc_Label2, "");
    EXPECT_FALSE(Osc_Inverted);
    EXPECT_EQ(Osc_Invert.picture.item, 0);
    EXPECT_EQ(Osc_Start.picture, Raised);
    EXPECT_EQ(Presets_Lit(), (Rows{3, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(Oscillators_Window, forgets_what_the_presets_had_left_for_the_random_one) {
    Random_Number = [] { return 0.5; };
    Click("Osc_Wave_1");
    Window_Unload(Oscillator);
    Window_Show(Oscillator);
    Click("Osc_Wave_9");
    EXPECT_EQ(Osc_Points[0], 33);
}

TEST_F(Oscillators_Window, takes_no_part_in_the_lock_of_dialogs) {
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_EQ(Dialog_Depth, 0);
}

TEST_F(Oscillators_Window, puts_the_blinking_control_to_rest_when_it_opens) {
    Window_Unload(Oscillator);
    Panel_Blink_Phase = 0;
    Panel_Blink_Tick();
    ASSERT_EQ(At("DCO1_Range").picture.item, 1);
    Window_Show(Oscillator);
    EXPECT_EQ(At("DCO1_Range").picture.item, 0);
}

TEST_F(Oscillators_Window, goes_with_the_program_and_stops_before_the_port_closes) {
    Click("Osc_Start");
    EXPECT_TRUE(Main_Close());
    EXPECT_FALSE(Oscillator.loaded);
    EXPECT_FALSE(Timer_Osc.enabled);
    const Lines sent = Sent();
    EXPECT_EQ(sent.back(), "B0 7B 00");
}

TEST_F(Oscillators_Window, plays_on_when_the_end_is_refused) {
    Click("Osc_Start");
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Cancel);
    EXPECT_FALSE(Main_Close());
    EXPECT_TRUE(Oscillator.visible);
    EXPECT_TRUE(Timer_Osc.enabled);
}

TEST_F(Oscillators_Window, keeps_its_letters_the_same_size_in_pixels_on_both_densities) {
    EXPECT_EQ(Osc_Font_Size, 8);
    Window_Unload(Oscillator);
    Font_Scale = 1.25F;
    Window_Show(Oscillator);
    EXPECT_EQ(Osc_Font_Size, 6.4);
}

// -- menu entries ----------------------------------------------------------------------------------------

TEST_F(Oscillators_Entries, bring_the_window_to_the_front) {
    Menu(Menu_MIDI_Osc).chosen();
    EXPECT_TRUE(Oscillator.visible);
    EXPECT_EQ(Oscillator.times_raised, 1);
    Osc_VScrollA_Change(3);
    Menu(Menu_MIDI_Osc).chosen();
    EXPECT_EQ(Oscillator.times_raised, 2);
    EXPECT_EQ(Osc_Label4, "3") << "it was open already";
}

TEST_F(Oscillators_Entries, of_its_files_are_hidden) {
    EXPECT_FALSE(Menu(Menu_File_Osc).visible);
    for (const Menu_Id id : {Menu_File_Osc_New, Menu_File_Osc_Save, Menu_File_Osc_1, Menu_File_Osc_4})
        EXPECT_FALSE(Menu(id).chosen.Filled());
}

TEST_F(Oscillators_Entries, open_the_file_window_when_the_tone_is_saved) {
    File_Dlg.load = [] { Opened.push_back(FD_Mode); };
    Menu(Menu_File_Osc_Open).chosen();
    EXPECT_EQ(Opened, Lines{"Open_OSC"});
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Oscillators_Entries, ask_about_an_unsaved_tone_before_they_open_the_file_window) {
    File_Dlg.load = [] { Opened.push_back(FD_Mode); };
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Cancel);
    Menu(Menu_File_Osc_Open).chosen();
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Yes_No_Cancel);
    EXPECT_EQ(Boxes[0].icon, Icon::Question);
    EXPECT_EQ(Opened, Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::False);

    Answer_With("Save actual TONE first?", Answer::Yes);
    Expect_Box("OSC SaveAs");
    Menu(Menu_File_Osc_Open).chosen();
    EXPECT_EQ(Opened, Lines{}) << "that saves no tone";

    Answer_With("Save actual TONE first?", Answer::No);
    Menu(Menu_File_Osc_Open).chosen();
    EXPECT_EQ(Opened, Lines{"Open_OSC"});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Oscillators_Entries, say_nothing_more_than_their_name_at_save_as) {
    Expect_Box("OSC SaveAs");
    Menu(Menu_File_Osc_SaveAs).chosen();
}
