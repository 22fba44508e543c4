// The file window and the sequencer's window, both open.
#include "desk/menus.h"
#include "filedlg/file_stage.h"
#include "sequencer/seq_file.h"
#include "seqwin/seqwin.h"

class Sequences_Beside_The_Sequencer : public File_Window {
  protected:
    Sequences_Beside_The_Sequencer() {
        Menu(Menu_MIDI_Seq).chosen();
        EXPECT_EQ(Seq_Window_Open, Flag_8::True);
        MIDI_Autoplay = 1;
        Sent();
    }
    static void Expect_Window(const std::string& caption, int tempo, Seq_Picture first_cell) {
        EXPECT_EQ(Sequencer.caption, caption);
        EXPECT_EQ(Sequencer_Form.tempo, tempo);
        EXPECT_EQ(Seq_Matrix[0], first_cell);
    }
};

TEST_F(Sequences_Beside_The_Sequencer, reach_its_window_when_opened_and_not_when_pressed) {
    FD_Show("Open_SEQ");
    Press_File("one.seq");
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_EQ(Seq_Tempo_Value, 60);
    Expect_Window("Sequencer", 30, Seq_Empty_Picture);
    Ok();
    EXPECT_FALSE(Is_Open());
    Expect_Window("Sequencer - ONE.SEQ", 60, Seq_Loud_Picture);
    EXPECT_EQ(Seq_Base_Note, 36) << "the nearest range and the window's transpose";
}

TEST_F(Sequences_Beside_The_Sequencer, name_it_when_saved) {
    Seq_Saved = Flag_8::False;
    FD_Show("SaveAs_SEQ");
    Type_And_Ok("Tune");
    EXPECT_EQ(Sequencer.caption, "Sequencer - TUNE.SEQ");
    EXPECT_FALSE(Is_Open());
}

TEST_F(Sequences_Beside_The_Sequencer, run_its_lights_and_darken_them_at_stop) {
    FD_Show("Open_SEQ");
    Press_File("one.seq");
    Advance(milliseconds(125));
    Advance(milliseconds(125));
    EXPECT_TRUE(Seq_Clock[1]);
    EXPECT_FALSE(Seq_Clock[0]);
    Click_Drawn("FD_SEQ_Button_Stop");
    EXPECT_EQ(Seq_Clock, (std::array<bool, 8>{}));
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
}

TEST_F(Sequences_Beside_The_Sequencer, start_at_the_first_step_whatever_the_direction) {
    Seq_Dir = 1;
    FD_Show("Open_SEQ");
    Press_File("one.seq");
    EXPECT_EQ(Seq_Pos, 0);
}

// A damaged file takes the place of the current one as long as a sequence is in memory.
TEST_F(Sequences_Beside_The_Sequencer, close_the_window_also_when_damaged_with_one_in_memory) {
    Write(Disk("bad.seq"), "bad");
    FD_Show("Open_SEQ");
    Press_File("one.seq");
    Type_And_Ok("bad");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Seq_File_Path, Disk("bad.seq"));
    EXPECT_EQ(Seq_Notes[0], 127);
}

TEST_F(Sequences_Beside_The_Sequencer, keep_the_window_when_damaged_with_none_in_memory) {
    Write(Disk("bad.seq"), "bad");
    FD_Show("Open_SEQ");
    Expect_Box("Wrong SEQUENCE format!");
    Type_And_Ok("bad");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Seq_File_Path, "");
}
