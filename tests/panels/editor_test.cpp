#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/in.h"
#include "midi/out.h"
#include "sequencer/engine.h"
#include "sequencer/sequence.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

void Name_The_Tone(const std::string& name) {
    std::fill_n(Tone_Data.begin(), 10, 32);
    std::copy(name.begin(), name.end(), Tone_Data.begin());
    Panel_Apply_Tone();
}

}  // namespace

using The_Editor = Started_Stage;

// -- values in words -------------------------------------------------------------------------------------

TEST_F(The_Editor, shows_a_value_for_two_seconds_and_then_the_name) {
    Name_The_Tone("BRASS");
    Key("VCF_Res", Key_Home);
    EXPECT_EQ(Shown(), "99");
    Advance(1999ms);
    EXPECT_EQ(Shown(), "99");
    Advance(1ms);
    EXPECT_EQ(Shown(), "BRASS");
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(The_Editor, counts_the_two_seconds_from_the_last_change) {
    Name_The_Tone("BRASS");
    Key("VCF_Res", Key_Home);
    Advance(1500ms);
    Key("VCF_Res", Key_Down);
    Advance(1500ms);
    EXPECT_EQ(Shown(), "98");
    Advance(500ms);
    EXPECT_EQ(Shown(), "BRASS");
}

TEST_F(The_Editor, starts_the_two_seconds_also_for_a_switch_that_shows_nothing) {
    Key("DCO1_Range", Key_Up);
    EXPECT_TRUE(Timer_Display.enabled);
}

TEST_F(The_Editor, shows_nothing_and_leaves_the_timer_while_a_tone_loads) {
    Name_The_Tone("BRASS");
    Tone_Loading = Flag_8::True;
    Key("VCF_Res", Key_Home);
    EXPECT_EQ(Shown(), "BRASS");
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 7F F7"}) << "it sends all the same";
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(The_Editor, shows_these_parameters_and_no_others) {
    const std::vector<int> scaled = {14, 15, 21, 22, 28, 29, 30, 34, 35, 36, 37, 38,
                                     41, 45, 46, 47, 48, 49, 50, 52, 53, 54, 55};
    for (int parameter = 0; parameter < 59; ++parameter) {
        std::string text = "kept";
        const bool shows = Editor_Value_Text(static_cast<std::size_t>(parameter), 100, text);
        const bool is_scaled = std::find(scaled.begin(), scaled.end(), parameter) != scaled.end();
        std::string expected = "kept";
        if (is_scaled) expected = "77";
        if (parameter == 13 || parameter == 19) expected = "7";
        if (parameter == 20) expected = "28";
        EXPECT_EQ(text, expected) << parameter;
        EXPECT_EQ(shows, expected != "kept") << parameter;
    }
}

TEST_F(The_Editor, scales_a_value_to_0_to_99_by_cutting) {
    for (const auto& [value, shown] :
         {std::pair{0, "0"}, {1, "0"}, {2, "1"}, {64, "49"}, {126, "98"}, {127, "99"}}) {
        std::string text;
        Editor_Value_Text(35, static_cast<std::uint8_t>(value), text);
        EXPECT_EQ(text, shown) << value;
    }
}

// -- sliders at their ends -------------------------------------------------------------------------------

TEST_F(The_Editor, sends_and_shows_0_again_on_Down_at_0_and_127_on_Up_at_127) {
    Key("VCF_Res", Key_Down);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 00 F7"});
    EXPECT_EQ(Shown(), "0");
    Key("VCF_Res", Key_Home);
    Sent();
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 7F F7"});
    EXPECT_EQ(Shown(), "99");
}

TEST_F(The_Editor, sends_nothing_for_an_unknown_key_and_places_the_thumb_all_the_same) {
    Focus("VCF_Res");
    At("VCF_Res").top = 7;
    Tone_Saved = Flag_16::True;
    for (const int key : {Key_Left + 0, Key_Right + 0, Key_0 + 0, Key_Keypad_0 + 0, 65}) {
        Key("VCF_Res", key);
        Key("DCO1_Range", key);
    }
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(At("VCF_Res").top, 112);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(The_Editor, sends_nothing_with_automatic_sending_off_and_keeps_the_change) {
    MIDI_Autosend = 0;
    Key("VCF_Res", Key_Home);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Data[35], 127);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(The_Editor, places_the_thumb_that_has_the_focus) {
    Focus("VCF_LFO");
    Editor_Slider_Place(32, 112, 35);
    EXPECT_EQ(At("VCF_LFO").top, 112) << "and not the one whose parameter is named";
}

TEST_F(The_Editor, opens_the_port_at_the_first_send) {
    EXPECT_TRUE(Ports.opened.empty());
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Ports.opened, std::vector<int>{0});
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Ports.opened.size(), 1U);
}

// -- a switch's drag -------------------------------------------------------------------------------------

TEST_F(The_Editor, sends_a_dragged_switch_only_on_a_jump_of_more_than_4) {
    Press("VCF_HPF");
    Drag("VCF_HPF", -50);
    Drag("VCF_HPF", -4);
    Drag("VCF_HPF", 4);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Data[33], 50);
    Drag("VCF_HPF", 5);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 21 2D F7"});
    EXPECT_EQ(Panel_Last_Param, 33);
    EXPECT_EQ(Panel_Last_Value, 45);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Shown(), "");
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(The_Editor, marks_the_tone_as_changed_also_by_a_drag_that_sends_nothing) {
    Press("VCF_HPF");
    Drag("VCF_HPF", -3);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(The_Editor, leaves_the_chorus_thumb_on_its_row_at_a_dragged_20_and_moves_it_in_a_refresh) {
    Key("Chorus_Mode", Key_Up);
    EXPECT_EQ(At("Chorus_Mode").top, 408);
    Drag("Chorus_Mode", 12);
    EXPECT_EQ(Tone_Data[43], 20);
    EXPECT_EQ(At("Chorus_Mode").top, 408);
    Panel_Apply_Tone();
    EXPECT_EQ(At("Chorus_Mode").top, 418);
    EXPECT_EQ(Tone_Data[43], 20);
}

TEST_F(The_Editor, holds_20_of_two_parameters_in_different_bands) {
    Tone_Data[44] = 20;
    Tone_Data[42] = 20;
    Focus("LFO_Waveform");
    At("LFO_Waveform").top = 387;
    Editor_Switch_Place(377, 397, 44);
    EXPECT_EQ(At("LFO_Waveform").top, 387);
    Focus("VCA_Dynamics");
    Editor_Switch_Place(278, 308, 42);
    EXPECT_EQ(At("VCA_Dynamics").top, 308);
}

// -- refresh ---------------------------------------------------------------------------------------------

TEST_F(The_Editor, refreshes_without_sending_and_without_marking_the_tone) {
    for (std::size_t index = 0; index < Tone_Size; ++index)
        Tone_Data[index] = static_cast<std::uint8_t>(index * 2);
    Panel_Apply_Tone();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_TRUE(Ports.opened.empty());
}

TEST_F(The_Editor, shows_the_name_at_once_in_a_refresh_trimmed_and_in_capitals) {
    Key("VCF_Res", Key_Up);
    Name_The_Tone(" bass 1");
    EXPECT_EQ(Shown(), "BASS 1");
    EXPECT_EQ(Tone_Name_Text, "BASS 1");
    Advance(3s);
    EXPECT_EQ(Shown(), "BASS 1");
}

TEST_F(The_Editor, keeps_the_toggle_on_its_rail_when_a_message_has_changed_its_byte_alone) {
    Tone_Data[58] = 64;  // as a message does that is no tone: nothing is refreshed
    Press("VCA_Mode");
    EXPECT_EQ(Tone_Data[58], 0);
    EXPECT_EQ(At("VCA_Mode").top, 162);
    Press("VCA_Mode");
    EXPECT_EQ(Tone_Data[58], 64);
    EXPECT_EQ(At("VCA_Mode").top, 152);
}

TEST_F(The_Editor, shows_a_byte_above_127_at_the_edge_or_not_at_all_and_sends_it_back_unchanged) {
    const int chorus = At("Chorus_Mode").top;
    const int vca = At("VCA_Mode").top;
    const int key_follow = At("ENV1_Keyfollow").top;
    Tone_Data.fill(200);
    Panel_Apply_Tone();
    EXPECT_EQ(At("DCO1_Range").top, 0);
    EXPECT_EQ(At("DCO_Mode").top, 0);
    EXPECT_EQ(At("Chorus_Mode").top, chorus);
    EXPECT_EQ(At("VCA_Mode").top, vca);
    EXPECT_EQ(At("ENV1_Keyfollow").top, key_follow);
    EXPECT_EQ(At("VCF_Res").top, 112 - 200 * 80 / 127);
    EXPECT_EQ(At("DCO1_Tune_Knopf").top, 5) << "reads 0 semitones";
    Press("VCF_Res");
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 C8 F7"});
    Press("DCO1_Range");
    Key("DCO1_Range", 65);
    EXPECT_EQ(At("DCO1_Range").top, 0) << "a switch outside all bands stays where it was";
}

// -- name, buttons, keyboard -----------------------------------------------------------------------------

TEST_F(The_Editor, opens_the_name_dialog_on_a_click_or_a_key_unless_a_dialog_is_open) {
    static int opened = 0;
    TName_Show = [] { ++opened; };
    Click("Tone_Name");
    EXPECT_EQ(opened, 1);
    Key("Tone_Name", 65);
    EXPECT_EQ(opened, 2);
    App_Mode = "Help";
    Click("Tone_Name");
    Key("Tone_Name", 65);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Editor, start_button_does_nothing_without_a_sequence) {
    Press("ED_Seq_Start");
    EXPECT_EQ(At("ED_Seq_Start").picture.store, Picture_Store::Button_Dn3D);
    EXPECT_EQ(At("ED_Seq_Start_Pic").left, 4);
    EXPECT_EQ(At("ED_Seq_Start_Pic").top, 4);
    Release("ED_Seq_Start");
    EXPECT_EQ(At("ED_Seq_Start").picture.store, Picture_Store::Button_Up3D);
    EXPECT_EQ(At("ED_Seq_Start_Pic").left, 3);
    ED_Seq_Start_Click();
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_TRUE(Ports.opened.empty());
}

TEST_F(The_Editor, start_button_runs_a_sequence_that_is_loaded_or_edited_and_stays_down) {
    for (const auto& [loaded, saved] :
         {std::pair{Flag_8::True, Flag_8::True}, {Flag_8::False, Flag_8::False}}) {
        Seq_Loaded = loaded;
        Seq_Saved = saved;
        Seq_Running = Flag_8::False;
        Seq_Pos = 5;
        Seq_Status = 0;
        MIDI_Channel = 3;
        Click("ED_Seq_Start");
        EXPECT_EQ(Seq_Running, Flag_8::True);
        EXPECT_TRUE(Seq_Tmr.enabled);
        EXPECT_EQ(Seq_Pos, 0);
        EXPECT_EQ(Seq_Status, 146);
        EXPECT_EQ(Ports.opened.size(), 1U);
        EXPECT_EQ(At("ED_Seq_Start").picture.store, Picture_Store::Button_Dn3D);
    }
}

TEST_F(The_Editor, stop_button_ends_sequence_and_notes_and_frees_the_port) {
    static int raised = 0;
    Seq_Clock.fill(true);
    Seq_Start_Raise = [] { ++raised; };
    Seq_Loaded = Flag_8::True;
    Click("ED_Seq_Start");
    Seq_Pos = 4;
    At("Keys_Pic").picture = {Picture_Store::Buttons, Keys_Down};
    Press("ED_Seq_Stop");
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up) << "on the press already";
    EXPECT_EQ(At("ED_Seq_Stop_Pic").top, 4);
    At("Keys_Pic").picture = {Picture_Store::Buttons, Keys_Down};
    Release("ED_Seq_Stop");
    EXPECT_EQ(At("ED_Seq_Stop").picture.store, Picture_Store::Button_Up3D);
    EXPECT_EQ(At("ED_Seq_Start").picture.store, Picture_Store::Button_Up3D);
    EXPECT_EQ(raised, 0);
    ED_Seq_Stop_Click();
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Clock, (std::array<bool, 8>{}));
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00"}));
}

TEST_F(The_Editor, stop_button_raises_the_start_button_of_an_open_sequencer_window) {
    static int raised = 0;
    Seq_Start_Raise = [] { ++raised; };
    Seq_Window_Open = Flag_8::True;
    Release("ED_Seq_Stop");
    EXPECT_EQ(raised, 1);
}

TEST_F(The_Editor, stop_button_in_receive_mode_only_leaves_it) {
    static int toggled = 0;
    MIDI_Receive_Toggle = [] { ++toggled; };
    Seq_Loaded = Flag_8::True;
    Click("ED_Seq_Start");
    MIDI_Receiving = 1;
    Click("ED_Seq_Stop");
    EXPECT_EQ(toggled, 1);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Editor, sequencer_symbols_start_disabled) {
    EXPECT_EQ(At("ED_Seq_Start_Pic").picture.store, Picture_Store::Start_Disabled);
    EXPECT_EQ(At("ED_Seq_Stop_Pic").picture.store, Picture_Store::Stop_Disabled);
}

TEST_F(The_Editor, keyboard_plays_c_major_until_the_right_button_comes) {
    Press("Keys_Pic");
    EXPECT_EQ(Sent(), (Lines{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Down);
    Release("Keys_Pic");
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Down);
    EXPECT_EQ(Sent(), Lines{});
    Press("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Down);
    Release("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up);
}

TEST_F(The_Editor, keyboard_plays_the_first_column_when_it_holds_anything) {
    Seq_Base_Note = 48;
    Seq_Status = 0x95;
    Seq_Notes[0] = 127;
    Seq_Notes[12] = 63;
    Seq_Notes[13] = 99;
    Press("Keys_Pic");
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 13U);
    EXPECT_EQ(sent[0], "95 3C 7F");
    EXPECT_EQ(sent[1], "95 3B 00");
    EXPECT_EQ(sent[12], "95 30 3F");
}

TEST_F(The_Editor, keyboard_sends_the_empty_rows_of_the_column_as_ends_of_their_notes) {
    Seq_Base_Note = 48;
    Seq_Notes[4] = 100;
    Press("Keys_Pic");
    EXPECT_EQ(Sent(),
              (Lines{"90 3C 00", "90 3B 00", "90 3A 00", "90 39 00", "90 38 64", "90 37 00", "90 36 00",
                     "90 35 00", "90 34 00", "90 33 00", "90 32 00", "90 31 00", "90 30 00"}));
}

TEST_F(The_Editor, keyboard_plays_the_chord_on_the_present_channel_and_the_column_on_the_last_one) {
    MIDI_Channel = 3;
    Seq_Status = 0x95;
    Press("Keys_Pic");
    EXPECT_EQ(Sent().front().substr(0, 2), "92");
    Seq_Notes[0] = 127;
    Press("Keys_Pic");
    EXPECT_EQ(Sent().front().substr(0, 2), "95");
}

TEST_F(The_Editor, keyboard_opens_the_port_once) {
    Press("Keys_Pic");
    Press("Keys_Pic");
    EXPECT_EQ(Ports.open_calls, 1);
}

TEST_F(The_Editor, keyboard_silences_without_having_played) {
    Press("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
}

TEST_F(The_Editor, keyboard_tells_of_a_chord_that_cannot_be_sent_once) {
    Press("Keys_Pic");
    Ports.send_result = Port_Gone;
    Expect_Box("MIDI_SendNote*: (68) Text of 68");
    Press("Keys_Pic");
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(The_Editor, keyboard_has_this_help) {
    EXPECT_STREQ(
        At("Keys_Pic").help,
        "Click with the left button to play some notes. If the Sequencer matrix is filled, then the "
        "notes of the first column in the Sequencer matrix will be played. Click with the right mouse "
        "button to stop the notes playing.");
}

TEST_F(The_Editor, keyboard_tells_a_port_that_cannot_be_opened_once) {
    Seq_Notes[0] = 127;
    Ports.open_result = Port_Failed;
    Expect_Box("MIDI_Out_Open*: (1) Text of 1");
    Press("Keys_Pic");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Editor, keyboard_tells_a_port_that_has_gone_once) {
    Seq_Notes[0] = 127;
    Press("Keys_Pic");
    Ports.send_result = Port_Gone;
    Expect_Box("Seq_SendNote*: (68) Text of 68");
    Press("Keys_Pic");
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(The_Editor, keyboard_plays_a_loaded_column_straight_behind_the_start) {
    Seq_Notes[0] = 127;
    Press("Keys_Pic");
    EXPECT_EQ(Sent().front().substr(0, 2), "90");
}

TEST_F(The_Editor, keyboard_is_not_played_by_other_buttons) {
    Press("Keys_Pic", Mouse_Button::Other);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up);
}

TEST_F(The_Editor, keyboard_repeats_the_chord_without_an_end_of_the_notes) {
    Press("Keys_Pic");
    Sent();
    Press("Keys_Pic");
    EXPECT_EQ(Sent(), (Lines{"90 3C 5A", "90 40 5A", "90 43 5A", "90 48 5A"}));
}

TEST_F(The_Editor, keyboard_leaves_a_running_sequence_alone) {
    Seq_Loaded = Flag_8::True;
    Click("ED_Seq_Start");
    Press("Keys_Pic", Mouse_Button::Right);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::True);
}

TEST_F(The_Editor, keyboard_takes_an_empty_first_column_for_an_empty_matrix) {
    Seq_Notes[13] = 127;
    Press("Keys_Pic");
    EXPECT_EQ(Sent().size(), 4U);
}

TEST_F(The_Editor, keyboard_is_silent_with_midi_off) {
    MIDI_Enabled = 0;
    Press("Keys_Pic");
    EXPECT_EQ(At("Keys_Pic").picture.item, Keys_Up);
    Press("Keys_Pic", Mouse_Button::Right);
    Release("Keys_Pic", Mouse_Button::Right);
    EXPECT_EQ(Sent(), Lines{});
}

// -- what a screen reader says ---------------------------------------------------------------------------

TEST_F(The_Editor, speaks_values_as_they_are_shown_and_positions_by_name) {
    Key("VCF_Res", Key_Home);
    EXPECT_EQ(Editor_Panel.spoken_value(At("VCF_Res")), "99");
    EXPECT_STREQ(At("VCF_Res").spoken_name, "VCF Resonance");
    EXPECT_EQ(Editor_Panel.spoken_value(At("DCO1_Range")), "16'");
    Key("DCO1_Range", Key_Home);
    EXPECT_EQ(Editor_Panel.spoken_value(At("DCO1_Range")), "2'");
    EXPECT_EQ(Editor_Panel.spoken_value(At("DCO1_Waveform")), "Noise");
    EXPECT_EQ(Editor_Panel.spoken_value(At("VCA_Mode")), "GATE");
    EXPECT_EQ(Editor_Panel.spoken_value(At("DCO1_Tune_Knopf")), "0");
    Tone_Data[11] = 255;
    EXPECT_EQ(Editor_Panel.spoken_value(At("DCO1_Range")), "2'");
}

TEST_F(The_Editor, shows_bytes_above_127_as_its_formulas_have_them) {
    std::string text;
    Editor_Value_Text(35, 200, text);
    EXPECT_EQ(text, "155");
    Editor_Value_Text(13, 200, text);
    EXPECT_EQ(text, "0");
    Editor_Value_Text(20, 200, text);
    EXPECT_EQ(text, "0");
}

TEST_F(The_Editor, places_its_pictures_and_buttons_again_when_it_is_arranged) {
    for (const char* name : {"Keys_Pic", "ED_Seq_Start", "ED_Seq_Stop", "Pic_Tonebench", "Pic_Sign",
                             "Tone_Name", "DCO1_Tune"}) {
        const Control before = At(name);
        At(name).left = At(name).top = 1;
        Editor_Arrange();
        EXPECT_EQ(At(name).left, before.left) << name;
        EXPECT_EQ(At(name).top, before.top) << name;
    }
    EXPECT_EQ(At("Pic_Tonebench").width, 110);
    EXPECT_EQ(At("Pic_Tonebench").height, 50);
    EXPECT_EQ(At("Pic_Sign").width, 79);
    EXPECT_EQ(At("Pic_Sign").height, 14);
    EXPECT_EQ(At("ED_Seq_Start").width, 22);
    EXPECT_EQ(At("ED_Seq_Stop").top, 221);
}

TEST_F(The_Editor, blinks_on_while_it_is_hidden) {
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    EXPECT_FALSE(Editor.visible);
    EXPECT_TRUE(Timer1.enabled);
    const auto phase = Panel_Blink_Phase;
    Advance(250ms);
    EXPECT_NE(Panel_Blink_Phase, phase);
}
