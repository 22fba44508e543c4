#include "sequencer/sequence.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/out.h"

namespace {

int Redraws = 0;
int Buttons_Off = 0;

}  // namespace

class The_Sequence : public Stage {
  protected:
    The_Sequence() {
        Seq_Redraw = [] { ++Redraws; };
        Seq_Panel_Buttons_Off = [] { ++Buttons_Off; };
    }
};

TEST_F(The_Sequence, is_empty_and_saved_when_the_program_begins) {
    EXPECT_EQ(Seq_Notes, (std::array<std::int16_t, 104>{}));
    EXPECT_EQ(Seq_Tempo_Value, 30);
    EXPECT_EQ(Seq_Base_Note, 0);
    EXPECT_EQ(Seq_Range_Index, 2);
    EXPECT_EQ(static_cast<int>(Seq_Loaded), 0);
    EXPECT_EQ(static_cast<int>(Seq_Saved), 255);
    EXPECT_EQ(static_cast<int>(Seq_Running), 0);
    EXPECT_EQ(Seq_File_Name, "");
    EXPECT_EQ(Seq_File_Path, "");
    EXPECT_EQ(Seq_Tmr.interval, 250);
    EXPECT_FALSE(Seq_Tmr.enabled);
}

TEST_F(The_Sequence, reset_empties_what_belongs_to_the_file) {
    Seq_Pos = 5;
    Seq_Notes.fill(63);
    Menu(Menu_File_Seq_Save).enabled = true;
    Seq_Saved = Flag_8::False;
    Seq_File_Name = "riff.seq";
    Seq_Range_Index = 4;
    Seq_Tempo_Value = 99;
    Seq_Loaded = Flag_8::True;
    Seq_Running = Flag_8::True;
    Seq_New_Reset();
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Notes, (std::array<std::int16_t, 104>{}));
    EXPECT_FALSE(Menu(Menu_File_Seq_Save).enabled);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Seq_File_Name, "");
    EXPECT_EQ(Seq_Range_Index, 2);
    EXPECT_EQ(Seq_Tempo_Value, 30);
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Buttons_Off, 1);
}

TEST_F(The_Sequence, reset_leaves_base_note_path_title_and_timer) {
    Seq_Base_Note = 61;
    Seq_File_Path = "/songs/riff.seq";
    Sequencer.caption = "Sequencer - RIFF.SEQ";
    Timer_Set_Interval(Seq_Tmr, 62);
    Timer_Start(Seq_Tmr);
    Seq_New_Reset();
    EXPECT_EQ(Seq_Base_Note, 61);
    EXPECT_EQ(Seq_File_Path, "/songs/riff.seq");
    EXPECT_EQ(Sequencer.caption, "Sequencer - RIFF.SEQ");
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Tmr.interval, 62);
}

TEST_F(The_Sequence, reset_paints_the_matrix_of_an_open_window_only) {
    Seq_New_Reset();
    EXPECT_EQ(Redraws, 0);
    Seq_Window_Open = Flag_8::True;
    Seq_New_Reset();
    EXPECT_EQ(Redraws, 1);
}

TEST_F(The_Sequence, reset_disables_the_symbols_on_the_panel) {
    Editor_Install();
    Editor_Load();
    Seq_Panel_Buttons_On();
    EXPECT_EQ(At("ED_Seq_Start_Pic").picture.store, Picture_Store::Start_Enabled);
    EXPECT_EQ(At("ED_Seq_Stop_Pic").picture.store, Picture_Store::Stop_Enabled);
    Seq_New_Reset();
    EXPECT_EQ(At("ED_Seq_Start_Pic").picture.store, Picture_Store::Start_Disabled);
    EXPECT_EQ(At("ED_Seq_Stop_Pic").picture.store, Picture_Store::Stop_Disabled);
}

TEST_F(The_Sequence, is_ready_to_play_when_it_was_loaded_or_edited) {
    struct Row {
        Flag_8 loaded;
        Flag_8 saved;
        bool ready;
    };
    for (const Row& row : {Row{Flag_8::False, Flag_8::True, false},
                           {Flag_8::False, Flag_8::False, true},
                           {Flag_8::True, Flag_8::True, true},
                           {Flag_8::True, Flag_8::False, true}}) {
        Seq_Loaded = row.loaded;
        Seq_Saved = row.saved;
        EXPECT_EQ(Seq_Ready(), row.ready);
        Timer_Stop(Seq_Tmr);
        ED_Seq_Start_Click();
        EXPECT_EQ(Seq_Tmr.enabled, row.ready);
    }
}

TEST_F(The_Sequence, top_row_sounds_an_octave_over_the_base_note) {
    Seq_Base_Note = 48;
    EXPECT_EQ(Seq_Row_Note(0), 60);
    EXPECT_EQ(Seq_Row_Note(1), 59);
    EXPECT_EQ(Seq_Row_Note(12), 48);
    Seq_Base_Note = 255;
    EXPECT_EQ(Seq_Row_Note(0), 267);
}

TEST_F(The_Sequence, every_velocity_but_loud_and_soft_shows_as_an_empty_cell) {
    for (int velocity = 0; velocity < 256; ++velocity) {
        const int picture = velocity == 127 ? 2 : velocity == 63 ? 3 : 0;
        EXPECT_EQ(Seq_Cell_Picture(static_cast<std::int16_t>(velocity)), picture) << velocity;
    }
}

TEST_F(The_Sequence, title_has_the_files_name_in_capitals_or_stands_alone) {
    Seq_Show_Title();
    EXPECT_EQ(Sequencer.caption, "Sequencer");
    Seq_File_Name = "Sub/riff 1.seq";
    Seq_Show_Title();
    EXPECT_EQ(Sequencer.caption, "Sequencer - SUB/RIFF 1.SEQ");
}
