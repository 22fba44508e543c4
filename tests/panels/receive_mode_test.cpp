// Receive mode: how the panels and the menus look in it, and how it is left.
#include "panels/receive_mode.h"

#include "desk/menus.h"
#include "fakes/stage.h"
#include "midi/in.h"
#include "panels/juno_panel.h"
#include "sequencer/sequence.h"
#include "synth/tone.h"

namespace {

constexpr Menu_Id Top_Menus[] = {Menu_File, Menu_Edit, Menu_Tone, Menu_MIDI, Menu_Windows, Menu_Help};

}  // namespace

class Receive_Mode : public Started_Stage {
  protected:
    Receive_Mode() { MIDI_In_Open(); }

    static void Expect_Pictures(Picture_Store button, Picture_Store start, Picture_Store stop) {
        for (const Control* control : {&Editor_Seq_Start, &Juno_Seq_Start})
            EXPECT_EQ(control->picture, Picture_Of(button));
        for (const Control* control : {&Editor_Seq_Start_Pic, &Juno_Seq_Start_Pic})
            EXPECT_EQ(control->picture, Picture_Of(start));
        for (const Control* control : {&Editor_Seq_Stop_Pic, &Juno_Seq_Stop_Pic})
            EXPECT_EQ(control->picture, Picture_Of(stop));
    }
    static void Expect_Start_Enabled(bool enabled) {
        EXPECT_EQ(Editor_Seq_Start.enabled, enabled);
        EXPECT_EQ(Juno_Seq_Start.enabled, enabled);
    }
    static void Expect_Menus(bool enabled) {
        for (const Menu_Id id : Top_Menus) EXPECT_EQ(Menu(id).enabled, enabled) << Menu(id).name;
    }
};

TEST_F(Receive_Mode, is_not_entered_without_an_open_port) {
    MIDI_In_Close();
    for (const Port_Handle handle : {-1, 0}) {
        MIDI_In_Handle = handle;
        MIDI_Receive_Toggle();
        EXPECT_EQ(MIDI_Receiving, 0);
        EXPECT_EQ(MIDI_Autosend, 1);
        EXPECT_EQ(Editor_Seq_Start_Pic.picture, Picture_Of(Picture_Store::Start_Disabled));
        Expect_Start_Enabled(true);
        Expect_Menus(true);
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Receive_Mode, shows_the_record_look_on_both_windows_and_locks_the_menus) {
    Tone_Name_Text = "BRASS";
    MIDI_Receive_Toggle();
    EXPECT_EQ(MIDI_Receiving, 1);
    EXPECT_EQ(MIDI_Display_Saved, "BRASS");
    Expect_Pictures(Picture_Store::Button_Dn3D, Picture_Store::Record, Picture_Store::Stop_Enabled);
    Expect_Start_Enabled(false);
    Expect_Menus(false);
    EXPECT_TRUE(Editor_Seq_Stop.enabled);
}

TEST_F(Receive_Mode, keeps_automatic_sending_off_and_gives_it_back) {
    for (const std::uint8_t autosend : {std::uint8_t{1}, std::uint8_t{0}}) {
        MIDI_In_Open();
        MIDI_Autosend = autosend;
        MIDI_Receive_Toggle();
        EXPECT_EQ(MIDI_Autosend, 0);
        EXPECT_EQ(MIDI_Autosend_Saved, autosend);
        MIDI_Receive_Toggle();
        EXPECT_EQ(MIDI_Autosend, autosend);
    }
}

TEST_F(Receive_Mode, is_left_with_the_port_closed_and_everything_free) {
    MIDI_Receive_Toggle();
    MIDI_Receive_Toggle();
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Ports.in_handle, -1);
    Expect_Pictures(Picture_Store::Button_Up3D, Picture_Store::Start_Disabled,
                    Picture_Store::Stop_Disabled);
    EXPECT_EQ(Editor_Seq_Start_Pic.left, 3);
    EXPECT_EQ(Juno_Seq_Start_Pic.left, 3);
    Expect_Start_Enabled(true);
    Expect_Menus(true);
}

TEST_F(Receive_Mode, is_left_with_the_buttons_of_a_sequence_where_there_is_one) {
    Seq_Loaded = Flag_8::True;
    MIDI_Receive_Toggle();
    MIDI_Receive_Toggle();
    Expect_Pictures(Picture_Store::Button_Up3D, Picture_Store::Start_Enabled, Picture_Store::Stop_Enabled);
    Seq_Loaded = Flag_8::False;
    Seq_Saved = Flag_8::False;
    MIDI_In_Open();
    MIDI_Receive_Toggle();
    MIDI_Receive_Toggle();
    Expect_Pictures(Picture_Store::Button_Up3D, Picture_Store::Start_Enabled, Picture_Store::Stop_Enabled);
}

TEST_F(Receive_Mode, is_left_by_the_stop_button_which_does_nothing_else) {
    MIDI_Receive_Toggle();
    Seq_Pos = 3;
    Sent();
    Click("ED_Seq_Stop");
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Seq_Pos, 3);
    EXPECT_TRUE(Sent().empty());
    Expect_Menus(true);
}
