// The sequencer's window comes and goes, starts and stops.
#include <new>

#include "midi/in.h"
#include "sequencer/seq_commands.h"
#include "seqwin/seqwin_stage.h"

// -- load ------------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, opens_from_the_menu) {
    EXPECT_EQ(Menu(Menu_MIDI_Seq).caption, "Seq&uencer...");
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    Open();
    EXPECT_TRUE(Sequencer.visible);
    EXPECT_EQ(static_cast<int>(Seq_Window_Open), 255);
    EXPECT_EQ(App_Mode, "") << "it locks nothing";
    EXPECT_TRUE(Editor.enabled);
    EXPECT_EQ(Dialog_Depth, 0);
    const int raised = Sequencer.times_raised;
    Open();
    EXPECT_EQ(Sequencer.times_raised, raised + 1) << "once more brings it to the front";
}

TEST_F(The_Sequencer_Window, opens_at_its_remembered_place) {
    Seq_Window_Left = 30 * 15;
    Seq_Window_Top = 20 * 15;
    Open();
    EXPECT_EQ(Sequencer.left, 30);
    EXPECT_EQ(Sequencer.top, 20);
}

TEST_F(The_Sequencer_Window, title_names_the_file) {
    Open();
    EXPECT_EQ(Sequencer.caption, "Sequencer");
    Close();
    Seq_File_Name = "riff.seq";
    Open();
    EXPECT_EQ(Sequencer.caption, "Sequencer - RIFF.SEQ");
}

TEST_F(The_Sequencer_Window, has_its_parts_in_these_places) {
    Open();
    EXPECT_EQ(Seq_Matrix_Left, 44);
    EXPECT_EQ(Seq_Matrix_Top, 20);
    EXPECT_EQ(Seq_Matrix_Width, 95);
    EXPECT_EQ(Seq_Matrix_Height, 155);
    EXPECT_EQ(Seq_Pitch, 12);
    const std::array black = {false, true, false, true, false, false, true,
                              false, true, false, true, false, false};
    for (int key = 0; key < 13; ++key) {
        const Control& control = Seq_Keys[static_cast<std::size_t>(key)];
        EXPECT_EQ(control.top, (12 - key) * 12 + 19);
        EXPECT_EQ(control.height, 12);
        EXPECT_EQ(Seq_Key_Is_Black(key), black[static_cast<std::size_t>(key)]);
        EXPECT_EQ(Item(control), black[static_cast<std::size_t>(key)] ? 1 : 0);
        EXPECT_EQ(control.name, "Seq_Keys_" + std::to_string(key));
    }
    EXPECT_EQ(Item(Seq_New), 0);
    EXPECT_EQ(Seq_New_Pic.left, 8);
    EXPECT_EQ(Seq_New_Pic.top, 3);
    EXPECT_EQ(Seq_New_Pic.parent, &Seq_New);
}

TEST_F(The_Sequencer_Window, lists_ranges_and_transposes) {
    Open();
    EXPECT_EQ(Sequencer_Form.range.entries, (Lines{"C0..C1", "C1..C2", "C2..C3", "C3..C4", "C4..C5"}));
    EXPECT_EQ(Sequencer_Form.trans.entries,
              (Lines{"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B", "C+"}));
    EXPECT_EQ(Sequencer_Form.range.selected, 2);
    EXPECT_EQ(Sequencer_Form.trans.selected, 0);
    EXPECT_EQ(Seq_Tempo_Page, 30);
}

TEST_F(The_Sequencer_Window, load_shows_the_sequence_and_rests) {
    Seq_Notes[5] = 127;
    Seq_Notes[6] = 63;
    Seq_Notes[7] = 100;
    Seq_Tempo_Value = 60;
    Seq_Clock.fill(true);
    Open();
    EXPECT_EQ(Seq_Matrix[5], Seq_Loud_Picture);
    EXPECT_EQ(Seq_Matrix[6], Seq_Soft_Picture);
    EXPECT_EQ(Seq_Matrix[7], Seq_Empty_Picture);
    EXPECT_EQ(Sequencer_Form.tempo, 60);
    EXPECT_EQ(Sequencer_Form.tempo_label, "60");
    EXPECT_EQ(Seq_Tmr.interval, 125);
    EXPECT_EQ(Seq_Clock, Lights{});
    EXPECT_TRUE(Is_Up(Seq_Start));
    EXPECT_TRUE(Is_Up(Seq_Stop));
    EXPECT_EQ(Seq_Start_Pic.picture.store, Picture_Store::Start_Enabled);
    EXPECT_EQ(Seq_Stop_Pic.picture.store, Picture_Store::Stop_Enabled);
}

TEST_F(The_Sequencer_Window, load_silences_the_notes_and_so_sets_the_channel) {
    MIDI_Channel = 5;
    Seq_Status = 0;
    Menu(Menu_MIDI_Seq).chosen();
    EXPECT_EQ(Sent(), Lines{"B4 7B 00"});
    EXPECT_EQ(Seq_Status, 0x94);
}

TEST_F(The_Sequencer_Window, load_drops_the_transpose_that_a_file_brought) {
    Seq_Base_Note = 55;
    Seq_Range_Index = 3;
    Open();
    EXPECT_EQ(Seq_Base_Note, 60);
}

TEST_F(The_Sequencer_Window, load_shows_the_nearest_range_to_one_that_it_does_not_have) {
    Seq_Base_Note = 255;
    Seq_Range_Index = 19;
    Open();
    EXPECT_EQ(Sequencer_Form.range.selected, 4);
    EXPECT_EQ(Seq_Base_Note, 72);
}

TEST_F(The_Sequencer_Window, load_always_begins_forward) {
    Open();
    Seq_Directions_Click(Seq_Mode::Backward);
    Close();
    EXPECT_TRUE(Seq_Mode_Is(Seq_Mode::Backward)) << "kept while it is closed";
    Open();
    EXPECT_TRUE(Seq_Mode_Is(Seq_Mode::Forward));
    EXPECT_EQ(Seq_Dir, 0);
}

TEST_F(The_Sequencer_Window, load_with_midi_off_is_silent) {
    MIDI_Enabled = 0;
    Menu(Menu_MIDI_Seq).chosen();
    EXPECT_TRUE(Sequencer.visible);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Seq_Base_Note, 48);
}

TEST_F(The_Sequencer_Window, without_memory_is_told_and_can_be_tried_again) {
    static bool lacking = true;
    static const auto load = Sequencer.load;
    Sequencer.load = [] {
        Seq_Window_Open = Flag_8::True;
        if (lacking) throw std::bad_alloc();
        load();
    };
    Expect_Box("Not enough memory to display the Sequencer Window.");
    Open();
    EXPECT_FALSE(Sequencer.visible);
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    lacking = false;
    Open();
    EXPECT_TRUE(Sequencer.visible);
}

TEST_F(The_Sequencer_Window, other_failure_is_passed_over) {
    Sequencer.load = [] {
        Seq_Window_Open = Flag_8::True;
        throw Fatal_Error("Overflow");
    };
    Open();
    EXPECT_FALSE(Sequencer.visible);
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    EXPECT_TRUE(Boxes.empty());
}

// -- unload ----------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, closing_keeps_cells_and_range) {
    Open();
    Press_Cell(1, 2);
    Seq_Range_Change(4);
    Seq_Trans_Change(7);
    Sent();
    Close();
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    EXPECT_FALSE(Sequencer.visible);
    EXPECT_EQ(Seq_Range_Index, 4);
    Open();
    EXPECT_EQ(Seq_Notes[Cell(1, 2)], 127);
    EXPECT_EQ(Sequencer_Form.range.selected, 4);
    EXPECT_EQ(Sequencer_Form.trans.selected, 0);
    EXPECT_EQ(Seq_Base_Note, 72);
}

TEST_F(The_Sequencer_Window, closing_stops_a_running_sequence) {
    Open();
    Click_On(Seq_Start);
    Advance(600ms);
    Sent();
    Close();
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Clock, Lights{});
    EXPECT_TRUE(Is_Up(Editor_Seq_Start));
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00", "B0 7B 00"}));
}

TEST_F(The_Sequencer_Window, closing_leaves_a_stopped_sequence_alone) {
    Open();
    Seq_Pos = 5;
    Editor_Keys_Pic.picture = Picture_Of(Picture_Store::Buttons, Keys_Down);
    Close();
    EXPECT_EQ(Seq_Pos, 5);
    EXPECT_EQ(Editor_Keys_Pic.picture.item, Keys_Down);
}

TEST_F(The_Sequencer_Window, closing_remembers_the_place_when_places_are_saved) {
    for (const bool saved : {false, true}) {
        Menu(Menu_Windows_SavePos).checked = saved;
        Open();
        Sequencer.left = 33;
        Sequencer.top = 44;
        Close();
        EXPECT_EQ(Seq_Window_Left, saved ? 33 * 15 : 0);
        EXPECT_EQ(Seq_Window_Top, saved ? 44 * 15 : 0);
    }
}

TEST_F(The_Sequencer_Window, closing_ends_a_lock_that_never_began) {
    Open();
    Menus_Disable();
    App_Mode = "Help";
    Editor.enabled = false;
    Timer_Stop(Timer1);
    const int turns = Loop.turns;
    Close();
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(Dialog_Depth, -1);
    EXPECT_GT(Loop.turns, turns);
    EXPECT_FALSE(Sequencer.visible) << "the end of the lock does not show it again";
}

TEST_F(The_Sequencer_Window, panel_works_on_behind_it) {
    Open();
    Close();
    EXPECT_EQ(Panel_Current_Control, nullptr) << "none was ever kept";
    Advance(1000ms);
    Key("VCF_Res", Key_Home);
    EXPECT_EQ(Shown(), "99");
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
}

// -- Start and Stop --------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, start_runs_the_sequence_and_holds_both_buttons_down) {
    Open();
    Seq_Clock.fill(true);
    Seq_Pos = 5;
    Press_On(Seq_Start);
    EXPECT_TRUE(Is_Down(Seq_Start));
    EXPECT_TRUE(Is_Down(Editor_Seq_Start));
    Release_On(Seq_Start);
    Seq_Panel.events.clicked(Seq_Start);
    EXPECT_TRUE(Is_Down(Seq_Start));
    EXPECT_TRUE(Is_Down(Editor_Seq_Start));
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Clock, Lights{});
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_EQ(Sent(), Lines{}) << "the first step comes one interval later";
    Advance(250ms);
    EXPECT_EQ(Sent().size(), 13U);
    EXPECT_TRUE(Seq_Clock[0]);
}

TEST_F(The_Sequencer_Window, start_plays_an_empty_sequence_too) {
    Open();
    EXPECT_FALSE(Seq_Ready());
    Click_On(Seq_Start);
    Advance(250ms);
    EXPECT_EQ(Sent().size(), 13U);
}

TEST_F(The_Sequencer_Window, start_opens_the_port) {
    Open();
    Menu(Menu_MIDI_CloseOutput).chosen();
    Click_On(Seq_Start);
    EXPECT_NE(MIDI_Out_Handle, Port_Closed);
}

TEST_F(The_Sequencer_Window, start_backward_begins_at_step_7) {
    Open();
    Seq_Directions_Click(Seq_Mode::Backward);
    Click_On(Seq_Start);
    EXPECT_EQ(Seq_Pos, 7);
    Advance(250ms);
    EXPECT_TRUE(Seq_Clock[7]);
    EXPECT_EQ(Seq_Pos, 6);
}

TEST_F(The_Sequencer_Window, start_with_midi_off_only_comes_up_again) {
    Open();
    MIDI_Enabled = 0;
    Seq_Pos = 5;
    Click_On(Seq_Start);
    EXPECT_TRUE(Is_Up(Seq_Start));
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 5);
    EXPECT_TRUE(Is_Down(Editor_Seq_Start)) << "the panel's own comes up at a stop";
}

TEST_F(The_Sequencer_Window, stop_ends_everything_and_frees_the_port) {
    Open();
    Click_On(Seq_Start);
    Advance(600ms);
    Sent();
    Editor_Keys_Pic.picture = Picture_Of(Picture_Store::Buttons, Keys_Down);
    Press_On(Seq_Stop);
    EXPECT_TRUE(Is_Down(Seq_Stop));
    Release_On(Seq_Stop);
    EXPECT_TRUE(Is_Up(Seq_Stop));
    EXPECT_TRUE(Seq_Tmr.enabled) << "it is the click that stops";
    Seq_Panel.events.clicked(Seq_Stop);
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Prev_Pos, 1);
    EXPECT_EQ(Seq_Clock, Lights{});
    EXPECT_TRUE(Is_Up(Seq_Start));
    EXPECT_TRUE(Is_Up(Editor_Seq_Start));
    EXPECT_TRUE(Is_Up(Editor_Seq_Stop));
    EXPECT_EQ(Editor_Keys_Pic.picture.item, Keys_Up);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00", "B0 7B 00"}));
}

TEST_F(The_Sequencer_Window, panels_stop_raises_its_start_button) {
    Open();
    Click_On(Seq_Start);
    Click("ED_Seq_Stop");
    EXPECT_TRUE(Is_Up(Seq_Start));
    EXPECT_TRUE(Is_Up(Editor_Seq_Start));
    EXPECT_FALSE(Seq_Tmr.enabled);
}

TEST_F(The_Sequencer_Window, setup_raises_its_start_button) {
    Open();
    Click_On(Seq_Start);
    Menu(Menu_MIDI_Setup).chosen();
    EXPECT_TRUE(Is_Up(Seq_Start));
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_FALSE(Sequencer.enabled) << "locked while the dialog is open";
}

TEST_F(The_Sequencer_Window, stop_in_receive_mode_leaves_that_as_well) {
    static int toggled = 0;
    MIDI_Receive_Toggle = [] { ++toggled; };
    Open();
    Click_On(Seq_Start);
    MIDI_Receiving = 1;
    Click_On(Seq_Stop);
    EXPECT_EQ(toggled, 1);
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_NE(MIDI_Out_Handle, Port_Closed);
}

// -- New -------------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, new_stops_and_empties) {
    Open();
    Seq_Notes[3] = 127;
    Click_On(Seq_Start);
    Press_On(Seq_New);
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Notes[3], 0);
    EXPECT_EQ(Item(Seq_New), 2);
    EXPECT_EQ(Seq_New_Pic.left, 9);
    EXPECT_EQ(Seq_New_Pic.top, 4);
    Release_On(Seq_New);
    EXPECT_EQ(Item(Seq_New), 0);
    EXPECT_EQ(Seq_New_Pic.left, 8);
    EXPECT_EQ(Seq_New_Pic.top, 3);
}

TEST_F(The_Sequencer_Window, new_comes_up_behind_its_question) {
    Open();
    static bool lifted_before_save = false;
    Seq_Save_As = [] { lifted_before_save = Item(Seq_New) == 0 && Seq_New_Pic.left == 8; };
    Press_Cell(0, 0);
    Answer_With("Save actual SEQUENCE first?", Answer::Yes, [] { EXPECT_EQ(Item(Seq_New), 2); });
    Expect_Box("Sequence not saved.");
    Press_On(Seq_New);
    EXPECT_TRUE(lifted_before_save);
    EXPECT_EQ(Item(Seq_New), 0);
    EXPECT_EQ(Seq_Notes[0], 127);

    Answer_With("Save actual SEQUENCE first?", Answer::Cancel);
    Press_On(Seq_New);
    EXPECT_EQ(Item(Seq_New), 0);
    EXPECT_EQ(Seq_Notes[0], 127);

    Answer_With("Save actual SEQUENCE first?", Answer::No);
    Press_On(Seq_New);
    EXPECT_EQ(Seq_Notes[0], 0);
    EXPECT_EQ(Seq_Matrix[0], Seq_Empty_Picture);
}

// -- end of the program ----------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, goes_before_the_end_of_the_program_asks_about_it) {
    Open();
    Click_On(Seq_Start);
    Press_Cell(0, 0);
    Answer_With("Save actual SEQUENCE first?", Answer::Cancel, [] {
        EXPECT_FALSE(Sequencer.loaded);
        EXPECT_FALSE(Seq_Tmr.enabled);
        EXPECT_EQ(Seq_Running, Flag_8::False);
    });
    Menu(Menu_File_Exit).chosen();
    EXPECT_TRUE(Main_Window.visible);
    EXPECT_EQ(Seq_Notes[0], 127);
}
