// Cells, keys, lists and letters of the sequencer's window.
#include "seqwin/seqwin_stage.h"

namespace {

constexpr Seq_Shift Plain = {};
constexpr Seq_Shift Shift = {.shift = true};
constexpr Seq_Shift Control_Held = {.control = true};
constexpr Seq_Shift Alt = {.alt = true};

}  // namespace

// -- the matrix ------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, left_click_makes_a_cell_loud_or_empty) {
    Open();
    struct Row {
        std::int16_t before;
        std::int16_t after;
        Seq_Picture picture;
    };
    for (const Row& row : {Row{0, 127, Seq_Loud_Picture},
                           {127, 0, Seq_Empty_Picture},
                           {63, 127, Seq_Loud_Picture},
                           {100, 127, Seq_Loud_Picture},
                           {126, 127, Seq_Loud_Picture},
                           {128, 0, Seq_Empty_Picture},
                           {255, 0, Seq_Empty_Picture}}) {
        Seq_Notes[Cell(3, 4)] = row.before;
        Press_Cell(3, 4);
        EXPECT_EQ(Seq_Notes[Cell(3, 4)], row.after) << row.before;
        EXPECT_EQ(Seq_Matrix[Cell(3, 4)], row.picture) << row.before;
    }
    EXPECT_EQ(Sent(), Lines{}) << "a click is not heard";
}

TEST_F(The_Sequencer_Window, right_click_makes_a_cell_soft_or_empty) {
    Open();
    struct Row {
        std::int16_t before;
        std::int16_t after;
        Seq_Picture picture;
    };
    for (const Row& row : {Row{0, 63, Seq_Soft_Picture},
                           {63, 0, Seq_Empty_Picture},
                           {127, 63, Seq_Soft_Picture},
                           {64, 63, Seq_Soft_Picture},
                           {255, 63, Seq_Soft_Picture}}) {
        Seq_Notes[Cell(7, 12)] = row.before;
        Press_Cell(7, 12, Right);
        EXPECT_EQ(Seq_Notes[Cell(7, 12)], row.after) << row.before;
        EXPECT_EQ(Seq_Matrix[Cell(7, 12)], row.picture) << row.before;
    }
}

TEST_F(The_Sequencer_Window, middle_click_only_marks_the_sequence_as_edited) {
    Open();
    for (const int velocity : {0, 63, 100, 127}) {
        Seq_Saved = Flag_8::True;
        Seq_Notes[Cell(0, 0)] = static_cast<std::int16_t>(velocity);
        Press_Cell(0, 0, Other);
        EXPECT_EQ(Seq_Notes[Cell(0, 0)], velocity);
        EXPECT_EQ(Seq_Saved, Flag_8::False);
    }
}

TEST_F(The_Sequencer_Window, every_place_in_the_matrix_has_its_cell) {
    Open();
    for (int step = 0; step < 8; ++step) {
        for (int row = 0; row < 13; ++row) {
            for (const auto& [x, y] : {std::pair{0.0, 0.0}, {10.9, 0.4}, {-0.4, 11.4}, {5.0, 5.0}}) {
                if (step * 12 + x < 0) continue;
                Seq_Notes.fill(0);
                Seq_Matrix_MouseDown(Left, step * 12 + x, row * 12 + y);
                EXPECT_EQ(Seq_Notes[Cell(step, row)], 127) << step << ' ' << row << ' ' << x << ' ' << y;
            }
        }
    }
}

TEST_F(The_Sequencer_Window, rounds_the_place_to_whole_pixels_with_halves_to_the_even_one) {
    Open();
    Seq_Matrix_MouseDown(Left, 11.5, 0);
    EXPECT_EQ(Seq_Notes[Cell(1, 0)], 127) << "12";
    Seq_Matrix_MouseDown(Left, 10.5, 35.5);
    EXPECT_EQ(Seq_Notes[Cell(0, 3)], 127) << "10 and 36";
}

TEST_F(The_Sequencer_Window, ignores_a_place_outside_the_matrix) {
    Open();
    for (const auto& [x, y] :
         {std::pair{96.0, 0.0}, {0.0, 156.0}, {-12.0, 0.0}, {0.0, -12.0}, {1e9, 1e9}, {-1e9, 5.0}}) {
        Seq_Matrix_MouseDown(Left, x, y);
    }
    EXPECT_EQ(Seq_Notes, (std::array<std::int16_t, 104>{}));
    EXPECT_EQ(Seq_Saved, Flag_8::True);
}

TEST_F(The_Sequencer_Window, edit_enables_the_symbols_on_the_panel_with_midi_on) {
    Open();
    for (const Mouse_Button button : {Left, Right, Other}) {
        for (const bool enabled : {false, true}) {
            Seq_New_Reset();
            MIDI_Enabled = enabled ? 1 : 0;
            Press_Cell(0, 0, button);
            EXPECT_EQ(Editor_Seq_Start_Pic.picture.store,
                      enabled ? Picture_Store::Start_Enabled : Picture_Store::Start_Disabled);
            EXPECT_EQ(Editor_Seq_Stop_Pic.picture.store,
                      enabled ? Picture_Store::Stop_Enabled : Picture_Store::Stop_Disabled);
        }
    }
}

TEST_F(The_Sequencer_Window, only_cells_count_as_edits) {
    Open();
    Seq_Tempo_Change(99);
    Seq_Range_Change(1);
    Seq_Trans_Change(1);
    Seq_Directions_Click(Seq_Mode::Backward);
    Seq_KeyDown('D', Plain);
    Press_On(Seq_Keys[0]);
    Release_On(Seq_Keys[0]);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
}

TEST_F(The_Sequencer_Window, new_cell_is_heard_when_the_engine_reaches_it) {
    Open();
    Seq_Tempo_Change(60);
    Click_On(Seq_Start);
    Press_Cell(1, 0);
    Press_Cell(1, 12, Right);
    Advance(125ms);
    Sent();
    Advance(125ms);
    const Lines sent = Sent();
    EXPECT_EQ(sent.front(), "90 3C 7F");
    EXPECT_EQ(sent.back(), "90 30 3F");
}

// -- keys ------------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, keys_play_the_base_note_and_twelve_above) {
    Open();
    Seq_Range_Change(2);
    Sent();
    for (std::size_t key = 0; key < 13; ++key) {
        const int resting = Item(Seq_Keys[key]);
        Press_On(Seq_Keys[key]);
        EXPECT_EQ(Item(Seq_Keys[key]), resting + 2);
        EXPECT_EQ(Sent(), Lines{"90 " + Hex(std::string(1, static_cast<char>(48 + key))) + " 7F"});
        Release_On(Seq_Keys[key]);
        EXPECT_EQ(Item(Seq_Keys[key]), resting);
        EXPECT_EQ(Sent(), Lines{}) << "the note goes on";
    }
}

TEST_F(The_Sequencer_Window, keys_are_silenced_by_the_right_button) {
    Open();
    Press_On(Seq_Keys[1], Right);
    EXPECT_EQ(Item(Seq_Keys[1]), 3);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    Release_On(Seq_Keys[1], Right);
    EXPECT_EQ(Item(Seq_Keys[1]), 1);
    Press_On(Seq_Keys[0], Other);
    EXPECT_EQ(Item(Seq_Keys[0]), 2);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Sequencer_Window, keys_open_the_port) {
    Open();
    Menu(Menu_MIDI_CloseOutput).chosen();
    Sent();
    Press_On(Seq_Keys[12]);
    EXPECT_EQ(Sent(), Lines{"90 3C 7F"});
}

TEST_F(The_Sequencer_Window, keys_tell_once_of_a_port_that_cannot_be_opened) {
    Open();
    Menu(Menu_MIDI_CloseOutput).chosen();
    Ports.open_result = Port_Failed;
    for (const Mouse_Button button : {Left, Right}) {
        MIDI_Enabled = 1;
        Boxes.clear();
        Expect_Box("MIDI_Out_Open*: (1) Text of 1");
        Press_On(Seq_Keys[0], button);
        EXPECT_EQ(Boxes.size(), 1U);
        EXPECT_EQ(MIDI_Enabled, 0);
    }
}

TEST_F(The_Sequencer_Window, keys_only_move_with_midi_off) {
    Open();
    MIDI_Enabled = 0;
    for (const Mouse_Button button : {Left, Right}) {
        Press_On(Seq_Keys[0], button);
        EXPECT_EQ(Item(Seq_Keys[0]), 2);
        Release_On(Seq_Keys[0], button);
        EXPECT_EQ(Item(Seq_Keys[0]), 0);
    }
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Sequencer_Window, keys_have_this_help_and_the_names_of_their_notes) {
    EXPECT_STREQ(Seq_Keys_Help,
                 "Click with the left button to play notes. Click with the right mouse button to stop "
                 "playing the notes.");
    Open();
    EXPECT_EQ(Seq_Panel.spoken_value(Seq_Keys[0]), "C2");
    EXPECT_EQ(Seq_Panel.spoken_value(Seq_Keys[1]), "C#2");
    EXPECT_EQ(Seq_Panel.spoken_value(Seq_Keys[12]), "C3");
    EXPECT_EQ(Seq_Panel.spoken_value(Seq_Start), "");
    EXPECT_EQ(Seq_Note_Name(24), "C0");
    EXPECT_EQ(Seq_Note_Name(96), "C6");
    EXPECT_EQ(Seq_Note_Name(0), "C-2");
    EXPECT_EQ(Seq_Note_Name(71), "B3");
}

// -- tempo, range, transpose -----------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, tempo_changes_label_and_clock_at_once) {
    Open();
    Click_On(Seq_Start);
    struct Row {
        int moved;
        int tempo;
        const char* label;
        int interval;
    };
    for (const Row& row : {Row{1, 1, "1", 7500},
                           {120, 120, "120", 62},
                           {60, 60, "60", 125},
                           {0, 1, "1", 7500},
                           {1000, 120, "120", 62},
                           {-5, 1, "1", 7500}}) {
        Seq_Tempo_Change(row.moved);
        EXPECT_EQ(Seq_Tempo_Value, row.tempo);
        EXPECT_EQ(Sequencer_Form.tempo, row.tempo);
        EXPECT_EQ(Sequencer_Form.tempo_label, row.label);
        EXPECT_EQ(Seq_Tmr.interval, row.interval);
        EXPECT_TRUE(Seq_Tmr.enabled);
    }
}

TEST_F(The_Sequencer_Window, base_note_is_range_and_transpose) {
    Open();
    for (int range = 0; range < 5; ++range) {
        for (int transpose = 0; transpose < 13; ++transpose) {
            Seq_Range_Change(range);
            Sent();
            Seq_Trans_Change(transpose);
            EXPECT_EQ(Seq_Base_Note, range * 12 + 24 + transpose);
            EXPECT_EQ(Sent(), Lines{}) << "a transpose silences nothing";
            Seq_Range_Change(range);
            EXPECT_EQ(Seq_Base_Note, range * 12 + 24 + transpose);
            EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
        }
    }
    EXPECT_EQ(Seq_Base_Note, 84);
    EXPECT_EQ(Seq_Row_Note(0), 96);
}

TEST_F(The_Sequencer_Window, range_silences_the_old_notes_before_the_base_note_moves) {
    Open();
    Ports.send_result = Port_Gone;
    Answer_With("Seq_SendAllNotesOff*: (68) Text of 68", Answer::Ok, [] { EXPECT_EQ(Seq_Base_Note, 48); });
    Seq_Range_Change(0);
    EXPECT_EQ(Seq_Base_Note, 24);
}

TEST_F(The_Sequencer_Window, file_moves_its_controls_and_keeps_its_transpose) {
    Open();
    Seq_Trans_Change(5);
    Press_Cell(0, 0);
    Dir_Sequences = Test_Folder();
    Write(Path("x.seq"), Sequence_File("53 45 51 31 78 3D"));
    Seq_Load(Path("x.seq"), "Open");
    EXPECT_EQ(Sequencer_Form.tempo, 120);
    EXPECT_EQ(Sequencer_Form.tempo_label, "120");
    EXPECT_EQ(Seq_Tmr.interval, 62);
    EXPECT_EQ(Sequencer_Form.range.selected, 3);
    EXPECT_EQ(Seq_Base_Note, 3 * 12 + 24 + 5) << "not the 61 of the file";
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    EXPECT_EQ(Sequencer.caption, "Sequencer - X.SEQ");
    EXPECT_EQ(Seq_Matrix[63], Seq_Soft_Picture);
    EXPECT_EQ(Seq_Matrix[0], Seq_Empty_Picture);
}

TEST_F(The_Sequencer_Window, file_that_is_only_heard_moves_nothing) {
    Open();
    Write(Path("x.seq"), Sequence_File("53 45 51 31 78 3D"));
    Seq_Load(Path("x.seq"), "Soundcheck");
    EXPECT_EQ(Sequencer_Form.tempo, 30);
    EXPECT_EQ(Sequencer_Form.range.selected, 2);
    EXPECT_EQ(Seq_Base_Note, 61);
    EXPECT_EQ(Seq_Matrix[63], Seq_Empty_Picture);
    EXPECT_EQ(Sequencer.caption, "Sequencer");
}

TEST_F(The_Sequencer_Window, reset_clears_the_matrix_and_leaves_its_controls) {
    Open();
    Press_Cell(0, 0);
    Seq_Tempo_Change(99);
    Seq_Range_Change(4);
    Sequencer.caption = "Sequencer - OLD";
    Seq_New_Reset();
    EXPECT_EQ(Seq_Matrix[0], Seq_Empty_Picture);
    EXPECT_EQ(Sequencer_Form.tempo, 99);
    EXPECT_EQ(Sequencer_Form.tempo_label, "99");
    EXPECT_EQ(Sequencer_Form.range.selected, 4);
    EXPECT_EQ(Sequencer.caption, "Sequencer - OLD");
    Seq_File_Path = Path("x.seq");
    Seq_Write();
    EXPECT_NE(Sequencer.caption, "Sequencer - OLD");
}

// -- letters ---------------------------------------------------------------------------------------------

TEST_F(The_Sequencer_Window, letters_choose_the_transpose) {
    struct Row {
        char key;
        int plain;
        int shift;
        int alt;
    };
    // clang-format off
    constexpr Row Rows[] = {
        {'C',  0,  1, 12},
        {'D',  2,  3,  2},
        {'E',  4,  4,  4},
        {'F',  5,  6,  5},
        {'G',  7,  8,  7},
        {'A',  9, 10,  9},
        {'B', 11, 11, 11},
        {'H', 11, 11, 11},
    };
    // clang-format on
    Open();
    for (const Row& row : Rows) {
        for (const auto& [held, entry] :
             {std::pair{Plain, row.plain}, {Shift, row.shift}, {Alt, row.alt}}) {
            Seq_Trans_Change(row.key == 'E' ? 0 : 4);
            EXPECT_TRUE(Seq_KeyDown(row.key, held));
            EXPECT_EQ(Sequencer_Form.trans.selected, entry) << row.key;
            EXPECT_EQ(Seq_Base_Note, 48 + entry);
        }
    }
    EXPECT_EQ(Sent(), Lines{}) << "a transpose silences nothing";
}

TEST_F(The_Sequencer_Window, c_with_other_modifiers_leaves_the_transpose) {
    Open();
    Seq_Trans_Change(4);
    for (const Seq_Shift held :
         {Control_Held, Seq_Shift{.shift = true, .control = true}, Seq_Shift{.shift = true, .alt = true},
          Seq_Shift{.control = true, .alt = true},
          Seq_Shift{.shift = true, .control = true, .alt = true}}) {
        Seq_KeyDown('C', held);
        EXPECT_EQ(Sequencer_Form.trans.selected, 4);
    }
}

TEST_F(The_Sequencer_Window, any_key_computes_the_base_note_again) {
    Open();
    for (const int key : {13, 37, 0 + 'X', 0 + '1', 255}) {
        Seq_Trans_Change(3);
        Seq_Base_Note = 61;
        EXPECT_FALSE(Seq_KeyDown(key, Plain)) << "and goes on to the control";
        EXPECT_EQ(Seq_Base_Note, 51) << key;
        EXPECT_EQ(Sequencer_Form.trans.selected, 3);
    }
}
