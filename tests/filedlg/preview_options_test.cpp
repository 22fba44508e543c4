// The options below the lists.
#include "filedlg/file_stage.h"
#include "panels/push_buttons.h"
#include "shell/frame.h"

namespace {

const Picture Down = Picture_Of(Picture_Store::Button_Dn3D);
const Picture Up = Picture_Of(Picture_Store::Button_Up3D);

}  // namespace

class Options : public File_Window {
  protected:
    Options() {
        MIDI_Autosend = 1;
        MIDI_Autoplay = 1;
    }
    static void Expect_Lamp(const Lamp& lamp, int tag, int picture, bool enabled) {
        EXPECT_EQ(lamp.tag, tag) << lamp.control.name;
        EXPECT_EQ(lamp.control.picture, Lamp_Picture(picture)) << lamp.control.name;
        EXPECT_EQ(lamp.control.enabled, enabled) << lamp.control.name;
    }
    static void Expect_Lists(bool enabled) {
        EXPECT_EQ(FD_SYX_SoundCheck_Note_List.enabled, enabled);
        EXPECT_EQ(FD_SYX_SoundCheck_Velocity_List.enabled, enabled);
    }
    static void Expect_Symbols(const Drawn_Button& start, const Drawn_Button& stop, bool enabled) {
        EXPECT_EQ(start.symbol.picture,
                  Picture_Of(enabled ? Picture_Store::Start_Enabled : Picture_Store::Start_Disabled));
        EXPECT_EQ(stop.symbol.picture,
                  Picture_Of(enabled ? Picture_Store::Stop_Enabled : Picture_Store::Stop_Disabled));
    }
};

// -- at the opening --------------------------------------------------------------------------------------

TEST_F(Options, show_what_is_stored) {
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_CB_Autoplay, 3, 3, true);
    Expect_Lamp(FD_SYX_CB_Autosend, 3, 3, true);
    Expect_Lamp(FD_SEQ_CB_Autoplay, 3, 3, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 1, true);
    Expect_Lists(true);
    FD_Button_Cancel_Click();
    MIDI_Autosend = 0;
    MIDI_Autoplay = 0;
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_CB_Autoplay, 0, 0, true);
    Expect_Lamp(FD_SYX_CB_Autosend, 0, 0, true);
    Expect_Lamp(FD_SEQ_CB_Autoplay, 0, 0, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 5, false);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 5, false);
    Expect_Lists(false);
    Expect_Symbols(FD_SEQ_Button_Start, FD_SEQ_Button_Stop, false);
}

TEST_F(Options, list_five_notes_and_128_velocities) {
    Soundcheck_Note = 48;
    Soundcheck_Velocity = 100;
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_SYX_SoundCheck_Note_List.entries, (Lines{"C0", "C1", "C2", "C3", "C4"}));
    EXPECT_EQ(FD_SYX_SoundCheck_Note_List.Selected_Text(), "C2");
    ASSERT_EQ(FD_SYX_SoundCheck_Velocity_List.entries.size(), 128U);
    EXPECT_EQ(FD_SYX_SoundCheck_Velocity_List.entries[0], " 0");
    EXPECT_EQ(FD_SYX_SoundCheck_Velocity_List.entries[127], " 127");
    EXPECT_EQ(FD_SYX_SoundCheck_Velocity_List.selected, 100);
}

TEST_F(Options, round_a_stored_note_to_the_nearest_entry_and_halves_to_the_even_one) {
    const std::pair<int, int> notes[] = {{24, 0}, {29, 0}, {30, 0}, {31, 1},
                                         {42, 2}, {72, 4}, {0, 0},  {255, 4}};
    for (const auto& [note, index] : notes) {
        Soundcheck_Note = static_cast<std::uint8_t>(note);
        FD_Show("Open_SYX");
        EXPECT_EQ(FD_SYX_SoundCheck_Note_List.selected, index) << note;
        FD_Button_Cancel_Click();
    }
    Soundcheck_Velocity = 255;
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_SYX_SoundCheck_Velocity_List.selected, 127);
}

TEST_F(Options, are_cleared_for_good_while_midi_is_off) {
    MIDI_Enabled = 0;
    FD_Show("Open_SYX");
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_EQ(MIDI_Autosend, 0);
    Expect_Lamp(FD_SYX_CB_Autoplay, 3, 5, false);
    Expect_Lamp(FD_SYX_CB_Autosend, 3, 5, false);
    EXPECT_FALSE(FD_SYX_OB_Soundcheck[0].control.enabled);
    EXPECT_FALSE(FD_SYX_OB_Soundcheck[1].control.enabled);
    Expect_Lists(false);
    // A disabled box hears nothing.
    Click_Drawn("FD_SYX_CB_Autoplay");
    Click_Drawn("FD_SYX_CB_Autosend");
    FD_Key('P', true);
    FD_Key('S', true);
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_EQ(MIDI_Autosend, 0);
    FD_Button_Cancel_Click();
    EXPECT_TRUE(Main_Close());
    EXPECT_NE(Read_Settings().find("Autoplay=0\n"), std::string::npos);
    EXPECT_NE(Read_Settings().find("Autosend=0\n"), std::string::npos);
}

TEST_F(Options, offer_the_sequence_only_when_there_is_one) {
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 1, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 5, false);
    Expect_Symbols(FD_SYX_Button_Start, FD_SYX_Button_Stop, false);
    Expect_Symbols(FD_SEQ_Button_Start, FD_SEQ_Button_Stop, false);
    FD_Button_Cancel_Click();

    for (const bool loaded : {true, false}) {
        Seq_Loaded = loaded ? Flag_8::True : Flag_8::False;
        Seq_Saved = loaded ? Flag_8::True : Flag_8::False;
        FD_Show("Open_SYX");
        Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 0, true);
        Expect_Symbols(FD_SYX_Button_Start, FD_SYX_Button_Stop, true);
        Expect_Symbols(FD_SEQ_Button_Start, FD_SEQ_Button_Stop, true);
        FD_Button_Cancel_Click();
    }
}

TEST_F(Options, show_the_stored_soundcheck_with_a_sequence_in_memory) {
    Soundcheck_Mode = 1;
    Seq_Loaded = Flag_8::True;
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 0, 0, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 1, 1, true);
}

TEST_F(Options, select_the_note_without_a_sequence_whatever_is_stored) {
    Soundcheck_Mode = 1;
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 1, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 1, 1, true);
    EXPECT_EQ(Soundcheck_Mode, 1) << "the stored choice stays, and Autoplay shows it again";
    FD_Button_Cancel_Click();
    MIDI_Autoplay = 0;
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 5, false);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 1, 5, false);
}

// -- clicks ----------------------------------------------------------------------------------------------

TEST_F(Options, switch_autoplay_and_what_hangs_on_it) {
    Seq_Loaded = Flag_8::True;
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_CB_Autoplay");
    EXPECT_EQ(MIDI_Autoplay, 0);
    Expect_Lamp(FD_SYX_CB_Autoplay, 0, 0, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 5, false);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 5, false);
    Expect_Lists(false);
    Expect_Symbols(FD_SEQ_Button_Start, FD_SEQ_Button_Stop, false);
    Expect_Symbols(FD_SYX_Button_Start, FD_SYX_Button_Stop, true);
    Click_Drawn("FD_SYX_CB_Autoplay");
    EXPECT_EQ(MIDI_Autoplay, 1);
    Expect_Lamp(FD_SYX_CB_Autoplay, 3, 3, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 1, 1, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 0, true);
    Expect_Lists(true);
}

TEST_F(Options, enable_the_sequence_with_autoplay_only_for_a_reason) {
    MIDI_Autoplay = 0;
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_CB_Autoplay");
    EXPECT_FALSE(FD_SYX_OB_Soundcheck[1].control.enabled);
    Click_Drawn("FD_SYX_CB_Autoplay");
    Seq_Saved = Flag_8::False;
    Click_Drawn("FD_SYX_CB_Autoplay");
    EXPECT_TRUE(FD_SYX_OB_Soundcheck[1].control.enabled);
    Click_Drawn("FD_SYX_CB_Autoplay");
    Seq_Saved = Flag_8::True;
    Soundcheck_Mode = 1;
    Click_Drawn("FD_SYX_CB_Autoplay");
    EXPECT_TRUE(FD_SYX_OB_Soundcheck[1].control.enabled);
}

TEST_F(Options, switch_autosend) {
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_CB_Autosend");
    EXPECT_EQ(MIDI_Autosend, 0);
    Expect_Lamp(FD_SYX_CB_Autosend, 0, 0, true);
    Click_Drawn("FD_SYX_CB_Autosend");
    EXPECT_EQ(MIDI_Autosend, 1);
    Expect_Lamp(FD_SYX_CB_Autosend, 3, 3, true);
}

TEST_F(Options, share_autoplay_between_the_two_panels) {
    FD_Show("Open_SEQ");
    Click_Drawn("FD_SEQ_CB_Autoplay");
    EXPECT_EQ(MIDI_Autoplay, 0);
    Expect_Lamp(FD_SEQ_CB_Autoplay, 0, 0, true);
    FD_Button_Cancel_Click();
    FD_Show("Open_SYX");
    Expect_Lamp(FD_SYX_CB_Autoplay, 0, 0, true);
    Click_Drawn("FD_SYX_CB_Autoplay");
    FD_Button_Cancel_Click();
    FD_Show("Open_SEQ");
    Expect_Lamp(FD_SEQ_CB_Autoplay, 3, 3, true);
}

TEST_F(Options, choose_the_soundcheck) {
    Seq_Loaded = Flag_8::True;
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_OB_Soundcheck_1");
    EXPECT_EQ(Soundcheck_Mode, 1);
    Expect_Lamp(FD_SYX_OB_Soundcheck[0], 0, 0, true);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 1, 1, true);
    Click_Drawn("FD_SYX_OB_Soundcheck_0");
    EXPECT_EQ(Soundcheck_Mode, 0);
}

TEST_F(Options, that_are_disabled_hear_no_click) {
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_OB_Soundcheck_1");
    EXPECT_EQ(Soundcheck_Mode, 0);
    Expect_Lamp(FD_SYX_OB_Soundcheck[1], 0, 5, false);
}

TEST_F(Options, store_note_and_velocity_at_once) {
    FD_Show("Open_SYX");
    FD_SYX_SoundCheck_Note_List_Click(4);
    FD_SYX_SoundCheck_Velocity_List_Click(1);
    EXPECT_EQ(Soundcheck_Note, 72);
    EXPECT_EQ(Soundcheck_Velocity, 1);
}

// -- start and stop --------------------------------------------------------------------------------------

TEST_F(Options, start_and_stop_the_sequence_from_either_panel) {
    Seq_Loaded = Flag_8::True;
    const std::tuple<const char*, const char*, Drawn_Button*, Drawn_Button*> panels[] = {
        {"Open_SYX", "FD_SYX_Button_", &FD_SYX_Button_Start, &FD_SYX_Button_Stop},
        {"Open_SEQ", "FD_SEQ_Button_", &FD_SEQ_Button_Start, &FD_SEQ_Button_Stop},
    };
    for (const auto& [mode, names, start, stop] : panels) {
        FD_Show(mode);
        Seq_Pos = 4;
        Button_Down(std::string(names) + "Start");
        EXPECT_EQ(start->button.picture, Down);
        EXPECT_EQ(start->symbol.left, 4);
        EXPECT_EQ(Seq_Running, Flag_8::False) << "not before the click";
        Button_Up(std::string(names) + "Start");
        File_Panel.events.clicked(start->button);
        EXPECT_EQ(Seq_Running, Flag_8::True);
        EXPECT_TRUE(Seq_Tmr.enabled);
        EXPECT_EQ(Seq_Pos, 0);
        EXPECT_NE(MIDI_Out_Handle, Port_Closed);
        EXPECT_EQ(start->button.picture, Down) << "stays down";
        Seq_Pos = 3;
        Button_Down(std::string(names) + "Stop");
        EXPECT_EQ(stop->button.picture, Down);
        Button_Up(std::string(names) + "Stop");
        EXPECT_EQ(stop->button.picture, Up);
        EXPECT_EQ(start->button.picture, Up);
        EXPECT_EQ(start->symbol.left, 3);
        File_Panel.events.clicked(stop->button);
        EXPECT_EQ(Seq_Running, Flag_8::False);
        EXPECT_FALSE(Seq_Tmr.enabled);
        EXPECT_EQ(Seq_Pos, 0);
        EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
        FD_Button_Cancel_Click();
    }
}

TEST_F(Options, raise_the_start_button_when_nothing_can_play) {
    FD_Show("Open_SYX");
    Click_Drawn("FD_SYX_Button_Start");
    EXPECT_EQ(FD_SYX_Button_Start.button.picture, Up);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    Seq_Loaded = Flag_8::True;
    MIDI_Enabled = 0;
    Click_Drawn("FD_SYX_Button_Start");
    EXPECT_EQ(FD_SYX_Button_Start.button.picture, Up);
    EXPECT_EQ(Seq_Running, Flag_8::False);
}

TEST_F(Options, raise_the_start_button_that_was_left_while_it_was_held) {
    Seq_Loaded = Flag_8::True;
    FD_Show("Open_SYX");
    Button_Down("FD_SYX_Button_Start");
    Button_Up("FD_SYX_Button_Start");
    EXPECT_EQ(FD_SYX_Button_Start.button.picture, Up);
}

TEST_F(Options, darken_the_sequencers_lights_when_its_window_is_open) {
    Seq_Clock.fill(true);
    FD_Seq_Stop();
    EXPECT_TRUE(Seq_Clock[3]);
    Seq_Window_Open = Flag_8::True;
    FD_Seq_Stop();
    EXPECT_FALSE(Seq_Clock[3]);
}

TEST_F(Options, look_pressed_on_the_large_buttons) {
    FD_Show("Open_SYX");
    for (Drawn_Button* drawn : {&FD_Button_Ok, &FD_Button_Cancel}) {
        EXPECT_EQ(drawn->button.picture, Picture_Of(Picture_Store::Dlg2_Up));
        Button_Down(drawn->button.name);
        EXPECT_EQ(drawn->button.picture, Picture_Of(Picture_Store::Dlg2_Dn));
        EXPECT_EQ(drawn->symbol.left, 7);
        EXPECT_EQ(drawn->symbol.top, 6);
        Button_Up(drawn->button.name);
        EXPECT_EQ(drawn->button.picture, Picture_Of(Picture_Store::Dlg2_Up));
        EXPECT_EQ(drawn->symbol.left, 5);
    }
    EXPECT_EQ(FD_Button_Ok.symbol.picture, Picture_Of(Picture_Store::Dlg2_Ok));
    EXPECT_EQ(FD_Button_Cancel.symbol.picture, Picture_Of(Picture_Store::Dlg2_Cancel));
    Type("a.syx");
    Click_Drawn("FD_Button_Ok");
    EXPECT_EQ(Tone_File_Name, Disk("a.syx"));
    FD_Show("Open_SYX");
    Click_Drawn("FD_Button_Cancel");
    EXPECT_FALSE(Is_Open());
}
