#include "sequencer/seq_files.h"

#include <cerrno>

#include "sequencer/seq_commands.h"

namespace {

std::string Painted;
bool Preview_Shows = false;

// 13 rows in 8 columns, as text.
std::string Zeros(std::size_t count) {
    std::string text;
    for (std::size_t index = 0; index < count; ++index) text += " 00";
    return text;
}

}  // namespace

// -- the load, step by step ------------------------------------------------------------------------------

TEST_F(SEQ_Loaded, takes_tempo_base_note_and_cells) {
    Load(Sequence_File());
    EXPECT_EQ(Seq_Tempo_Value, 60);
    EXPECT_EQ(Seq_Base_Note, 48);
    EXPECT_EQ(Seq_Range_Index, 2);
    EXPECT_EQ(Seq_Tmr.interval, 125);
    EXPECT_EQ(Seq_Loaded, Flag_8::True);
    Expect_Cells_Of_File();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(SEQ_Loaded, becomes_the_current_file) {
    Seq_Saved = Flag_8::False;
    Menu(Menu_File_Seq_Save).enabled = false;
    Load(Sequence_File());
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled);
    EXPECT_EQ(Seq_File_Path, Path("x.seq"));
    EXPECT_EQ(Recent_Seq(1), Path("x.seq"));
    EXPECT_EQ(Seq_File_Name, "x.seq");
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Steps, (Lines{"Loaded", "Buttons on"}));
}

TEST_F(SEQ_Loaded, name_is_the_path_less_as_many_letters_as_its_folder_has) {
    for (const std::string& folder : {Test_Folder(), Test_Folder() + "/"}) {
        Dir_Sequences = folder;
        Load(Sequence_File());
        EXPECT_EQ(Seq_File_Name, "x.seq") << folder;
        EXPECT_EQ(Dir_Sequences, folder) << "the folder itself stays as it is";
    }
    Dir_Sequences = "/abc";
    Seq_Load(Path("x.seq"), "Open");
    EXPECT_EQ(Seq_File_Name, Path("x.seq").substr(5)) << "whichever folder it lies in";
    Dir_Sequences = std::string(1000, 'x');
    Seq_Load(Path("x.seq"), "Open");
    EXPECT_EQ(Seq_File_Name, "");
}

TEST_F(SEQ_Loaded, that_is_not_there_changes_the_name_only) {
    Expect_Box("File not found: " + Path("none.seq"));
    Seq_Load(Path("none.seq"), "Open");
    EXPECT_EQ(Seq_File_Name, "none.seq");
    EXPECT_EQ(Seq_File_Path, "");
    EXPECT_EQ(Recent_Seq(1), "");
    Expect_Old_Cells();
    EXPECT_EQ(Steps, Lines{});
    Expect_Box("File not found: " + Path("none.seq"));
    Seq_Load(Path("none.seq"), "Soundcheck");
    EXPECT_EQ(Boxes.back().icon, Icon::None);
}

TEST_F(SEQ_Loaded, is_found_in_any_case_of_its_name) {
    Write(Path("riff.seq"), Sequence_File());
    Seq_Load(Test_Folder() + "/RIFF.SEQ", "Open");
    Expect_Cells_Of_File();
    EXPECT_EQ(Seq_File_Path, Test_Folder() + "/RIFF.SEQ") << "as it was asked for";
}

TEST_F(SEQ_Loaded, of_111_bytes_is_read_as_far_as_110) {
    Load(Sequence_File() + '\x7F');
    Expect_Cells_Of_File();
}

TEST_F(SEQ_Loaded, of_109_bytes_is_refused) {
    Expect_Box(Wrong_Format);
    Load(Sequence_File().substr(0, 109));
    EXPECT_EQ(Boxes.back().icon, Icon::Stop);
    Expect_Old_Cells();
    EXPECT_EQ(Seq_File_Name, "x.seq");
    EXPECT_EQ(Seq_File_Path, "");
    EXPECT_EQ(Recent_Seq(1), "");
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(SEQ_Loaded, begins_with_seq_in_any_case_and_any_fourth_byte) {
    for (const char* start : {"53 45 51 31 3C 30", "73 65 71 31 3C 30", "73 45 71 00 3C 30",
                              "53 65 51 FF 3C 30", "53 45 51 0A 3C 30"}) {
        Seq_Notes.fill(7);
        Load(Sequence_File(start));
        Expect_Cells_Of_File();
    }
}

TEST_F(SEQ_Loaded, tempo_above_120_is_cut_and_0_is_the_lowest_there_is) {
    struct Row {
        int byte;
        int tempo;
        int interval;
    };
    for (const Row& row : {Row{200, 120, 62},
                           {121, 120, 62},
                           {120, 120, 62},
                           {255, 120, 62},
                           {119, 119, 63},
                           {60, 60, 125},
                           {30, 30, 250},
                           {1, 1, 7500},
                           {0, 1, 7500}}) {
        std::string file = Sequence_File();
        file[4] = static_cast<char>(row.byte);
        Load(file);
        EXPECT_EQ(Seq_Tempo_Value, row.tempo) << row.byte;
        EXPECT_EQ(Seq_Tmr.interval, row.interval) << row.byte;
    }
}

TEST_F(SEQ_Loaded, range_comes_from_the_base_note_with_halves_to_the_even_one) {
    struct Row {
        int base_note;
        int range;
    };
    for (const Row& row : {Row{30, 0},
                           {42, 2},
                           {54, 2},
                           {66, 4},
                           {0, 2},
                           {6, 2},
                           {18, 0},
                           {24, 0},
                           {31, 1},
                           {36, 1},
                           {48, 2},
                           {60, 3},
                           {72, 4},
                           {84, 5},
                           {255, 19}}) {
        std::string file = Sequence_File();
        file[5] = static_cast<char>(row.base_note);
        Load(file);
        EXPECT_EQ(Seq_Range_Index, row.range) << row.base_note;
        EXPECT_EQ(Seq_Base_Note, row.base_note);
    }
}

TEST_F(SEQ_Loaded, sets_the_clock_of_a_running_sequence) {
    Timer_Start(Seq_Tmr);
    Load(Sequence_File());
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Tmr.interval, 125);
}

TEST_F(SEQ_Loaded, into_an_open_window_moves_its_controls_title_and_matrix) {
    Seq_Window_Open = Flag_8::True;
    Seq_Window_Follow = [] {
        Steps.push_back("Follow " + std::to_string(Seq_Tempo_Value) + " " +
                        std::to_string(Seq_Range_Index) + " " + std::to_string(Seq_Notes[1]) +
                        Sequencer.caption);
    };
    Seq_Redraw = [] { Steps.push_back("Redraw " + std::to_string(Seq_Notes[103]) + Sequencer.caption); };
    Sequencer.caption = "";
    Load(Sequence_File());
    EXPECT_EQ(Steps, (Lines{"Follow 60 2 7", "Redraw 103Sequencer - X.SEQ", "Loaded", "Buttons on"}));
}

TEST_F(SEQ_Loaded, without_a_window_leaves_its_title_and_matrix) {
    Sequencer.caption = "Sequencer";
    Load(Sequence_File());
    EXPECT_EQ(Sequencer.caption, "Sequencer");
    EXPECT_EQ(Steps, (Lines{"Loaded", "Buttons on"}));
}

TEST_F(SEQ_Loaded, to_be_heard_only_fills_the_memory) {
    Seq_Window_Open = Flag_8::True;
    Sequencer.caption = "Sequencer";
    Seq_Saved = Flag_8::False;
    Load(Sequence_File(), "Soundcheck");
    Expect_Cells_Of_File();
    EXPECT_EQ(Seq_Tempo_Value, 60);
    EXPECT_EQ(Seq_Tmr.interval, 125);
    EXPECT_EQ(Seq_Loaded, Flag_8::True);
    EXPECT_EQ(Seq_File_Name, "x.seq");
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    EXPECT_EQ(Seq_File_Path, "");
    EXPECT_EQ(Recent_Seq(1), "");
    EXPECT_EQ(Sequencer.caption, "Sequencer");
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(SEQ_Loaded, to_be_heard_is_refused_without_a_word) {
    Load("SEQ", "Soundcheck");
    Expect_Old_Cells();
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
}

TEST_F(SEQ_Loaded, is_painted_into_a_preview_that_shows) {
    Preview_Shows = true;
    Seq_Preview_Clear = [] {
        Painted += "clear";
        return Preview_Shows;
    };
    Seq_Preview_Paint = [](int cell, int picture) {
        if (picture != 0) Painted += " " + std::to_string(cell) + ":" + std::to_string(picture);
        Steps.emplace_back("cell");
    };
    std::string file = Sequence_File("53 45 51 31 3C 30");
    file.replace(6, 104, 104, '\0');
    file[6] = 127;
    file[6 + 13] = 63;
    file[6 + 14] = 100;
    file[6 + 103] = 127;
    Load(file, "Soundcheck");
    EXPECT_EQ(Painted, "clear 0:2 13:3 103:2");
    EXPECT_EQ(Steps.size(), 104U) << "the empty cells too";
    Preview_Shows = false;
    Steps.clear();
    Load(file, "Soundcheck");
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(SEQ_Loaded, that_is_bad_over_a_loaded_one_gives_no_message_and_becomes_the_current_file) {
    Write(Path("good.seq"), Sequence_File());
    Seq_Load(Path("good.seq"), "Open");
    Seq_Saved = Flag_8::False;
    Steps.clear();
    Load("no sequence");
    Expect_Cells_Of_File();
    EXPECT_EQ(Seq_File_Path, Path("x.seq"));
    EXPECT_EQ(Seq_File_Name, "x.seq");
    EXPECT_EQ(Recent_Seq(1), Path("x.seq"));
    EXPECT_EQ(Recent_Seq(2), Path("good.seq"));
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Steps, (Lines{"Loaded", "Buttons on"}));
    Seq_New_Reset();
    Expect_Box(Wrong_Format);
    Load("no sequence");
}

TEST_F(SEQ_Loaded, that_is_bad_leaves_the_title_of_an_open_window) {
    Seq_Window_Open = Flag_8::True;
    Seq_Loaded = Flag_8::True;
    Sequencer.caption = "Sequencer - OLD";
    Load("no sequence");
    EXPECT_EQ(Sequencer.caption, "Sequencer - OLD");
    EXPECT_EQ(Steps, (Lines{"Loaded", "Buttons on"}));
}

TEST_F(SEQ_Loaded, with_a_cell_of_100_plays_it_at_100) {
    std::string file = Sequence_File();
    file[6] = 100;
    Load(file);
    Menu(Menu_File_Seq_Save).enabled = false;
    ED_Seq_Start_Click();
    Advance(std::chrono::milliseconds(125));
    EXPECT_EQ(Sent().front(), "90 3C 64");
    EXPECT_EQ(Seq_Cell_Picture(Seq_Notes[0]), Seq_Empty_Picture);
}

TEST_F(SEQ_Loaded, can_be_the_recent_file_itself) {
    Load(Sequence_File());
    Seq_Notes.fill(7);
    Seq_Load(Recent_Seq(1), "Open");
    Expect_Cells_Of_File();
    EXPECT_EQ(Seq_File_Path, Path("x.seq"));
}

// -- the save --------------------------------------------------------------------------------------------

class SEQ_Saved : public SEQ_Loaded {
  protected:
    SEQ_Saved() {
        Seq_Notes.fill(0);
        Seq_Notes[0] = 127;
        Seq_Notes[14] = 63;
        Seq_Notes[103] = 100;
        Seq_Tempo_Value = 90;
        Seq_Base_Note = 60;
        Seq_Saved = Flag_8::False;
        Seq_File_Path = Path("new.seq");
    }
};

TEST_F(SEQ_Saved, is_these_110_bytes) {
    Seq_Write();
    EXPECT_EQ(Read_Hex(Path("new.seq")), "53 45 51 31 5A 3C 7F" + Zeros(13) + " 3F" + Zeros(88) + " 64");
    EXPECT_EQ(std::filesystem::file_size(Path("new.seq")), 110U);
}

TEST_F(SEQ_Saved, becomes_the_current_file) {
    Menu(Menu_File_Seq_Save).enabled = false;
    Seq_Write();
    EXPECT_EQ(Recent_Seq(1), Path("new.seq"));
    EXPECT_EQ(Seq_File_Name, "new.seq");
    EXPECT_EQ(Sequencer.caption, "Sequencer - NEW.SEQ");
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Seq_File_Path, Path("new.seq"));
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(SEQ_Saved, name_is_cut_by_the_folders_own_length) {
    Dir_Sequences = Test_Folder();
    Seq_Write();
    EXPECT_EQ(Seq_File_Name, "/new.seq");
    Dir_Sequences = std::string(1000, 'x');
    Seq_Write();
    EXPECT_EQ(Seq_File_Name, "");
    EXPECT_EQ(Sequencer.caption, "Sequencer");
}

TEST_F(SEQ_Saved, but_never_loaded_does_not_play_from_the_panel) {
    Seq_Write();
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    ED_Seq_Start_Click();
    EXPECT_EQ(Seq_Running, Flag_8::False);
    Seq_Saved = Flag_8::False;
    ED_Seq_Start_Click();
    EXPECT_EQ(Seq_Running, Flag_8::True);
}

TEST_F(SEQ_Saved, over_a_longer_file_keeps_its_tail) {
    Write(Path("new.seq"), std::string(110, 'x') + "the tail");
    Seq_Write();
    const std::string file = File_Read_Whole(Path("new.seq")).value();
    EXPECT_EQ(Hex(file.substr(0, 7)), "53 45 51 31 5A 3C 7F");
    EXPECT_EQ(file.substr(110), "the tail");
}

TEST_F(SEQ_Saved, comes_back_as_it_was) {
    Seq_Write();
    const auto cells = Seq_Notes;
    Seq_Notes.fill(7);
    Seq_Tempo_Value = 1;
    Seq_Base_Note = 1;
    Seq_Load(Path("new.seq"), "Open");
    EXPECT_EQ(Seq_Notes, cells);
    EXPECT_EQ(Seq_Tempo_Value, 90);
    EXPECT_EQ(Seq_Base_Note, 60);
}

TEST_F(SEQ_Saved, that_failed_is_told_by_save_and_stays_unsaved) {
    Menu(Menu_File_Seq_Save).enabled = false;
    struct Row {
        std::string path;
        const char* text;
    };
    std::filesystem::create_directory(Path("folder"));
    for (const Row& row : {Row{Path("folder"), "Wrong filename!"},
                           {Path(std::string(300, 'x')), "Wrong filename!"},
                           {Path("none/x.seq"), "Error 2: No such file or directory"},
                           {"/dev/full", "Error 28: No space left on device"}}) {
        Seq_File_Path = row.path;
        Expect_Box(row.text);
        File_Seq_Save_Chosen();
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
        EXPECT_EQ(Seq_Saved, Flag_8::False) << row.path;
        EXPECT_EQ(Recent_Seq(1), "");
        EXPECT_EQ(Seq_File_Name, "");
        EXPECT_FALSE(Menu(Menu_File_Seq_Save).enabled);
    }
}

TEST_F(SEQ_Saved, into_a_file_that_may_not_be_written_is_told) {
    Write(Path("new.seq"), "old");
    const Plain_User user;
    std::filesystem::permissions(Path("new.seq"), std::filesystem::perms::owner_read);
    Expect_Box("Error 13: Permission denied");
    File_Seq_Save_Chosen();
    EXPECT_EQ(Seq_Saved, Flag_8::False);
}

TEST_F(SEQ_Saved, shows_no_failure_itself) {
    Seq_File_Path = Path("none/x.seq");
    EXPECT_EQ(Seq_Write(), ENOENT);
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    Seq_File_Path = Path("new.seq");
    EXPECT_EQ(Seq_Write(), 0);
}
