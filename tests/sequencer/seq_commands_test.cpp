// The File menu's entries for sequences.
#include "sequencer/seq_commands.h"

#include "sequencer/seq_files.h"
#include "shell/frame.h"

namespace {

constexpr const char* Question = "Save actual SEQUENCE first?";

// What Save As does in a test.
bool Save_Completes = true;

void Choose(Menu_Id entry) {
    Menu(entry).chosen();
}

}  // namespace

class Seq_Commands : public SEQ_Loaded {
  protected:
    Seq_Commands() {
        Seq_Save_As = [] {
            Steps.emplace_back("Save as");
            if (Save_Completes) Seq_Saved = Flag_8::True;
        };
        Seq_Open = [] { Steps.emplace_back("Open"); };
        Seq_Panel_Buttons_Off = [] { Steps.emplace_back("Reset"); };
        Steps.clear();
    }
    static void Expect_Question() {
        ASSERT_FALSE(Boxes.empty());
        EXPECT_EQ(Boxes.front().text, Question);
        EXPECT_EQ(Boxes.front().buttons, Buttons_Set::Yes_No_Cancel);
        EXPECT_EQ(Boxes.front().icon, Icon::Question);
    }
    static bool Is_Empty() { return Seq_Notes[0] == 0; }
};

// -- New -------------------------------------------------------------------------------------------------

TEST_F(Seq_Commands, new_empties_a_saved_sequence_without_a_question) {
    Choose(Menu_File_Seq_New);
    EXPECT_TRUE(Is_Empty());
    EXPECT_EQ(Steps, Lines{"Reset"});
}

TEST_F(Seq_Commands, new_empties_when_the_edits_may_go) {
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::No);
    Choose(Menu_File_Seq_New);
    Expect_Question();
    EXPECT_TRUE(Is_Empty());
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Steps, Lines{"Reset"});
}

TEST_F(Seq_Commands, new_empties_behind_a_save) {
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::Yes);
    Choose(Menu_File_Seq_New);
    EXPECT_TRUE(Is_Empty());
    EXPECT_EQ(Steps, (Lines{"Save as", "Reset"}));
}

TEST_F(Seq_Commands, new_keeps_what_was_not_saved_after_all_and_says_so) {
    Seq_Saved = Flag_8::False;
    Save_Completes = false;
    Answer_With(Question, Answer::Yes);
    Expect_Box("Sequence not saved.");
    Choose(Menu_File_Seq_New);
    EXPECT_EQ(Boxes.back().icon, Icon::Exclamation);
    Expect_Old_Cells();
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    EXPECT_EQ(Steps, Lines{"Save as"});
}

TEST_F(Seq_Commands, new_does_nothing_on_cancel) {
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::Cancel);
    Choose(Menu_File_Seq_New);
    Expect_Old_Cells();
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(Seq_Commands, new_tells_its_caller_of_the_answer_before_it_acts_on_it) {
    const auto answered = [] { Steps.emplace_back("answered"); };
    File_Seq_New_Chosen(answered);
    EXPECT_EQ(Steps, Lines{"Reset"}) << "nothing was asked";
    Steps.clear();
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::Yes);
    File_Seq_New_Chosen(answered);
    EXPECT_EQ(Steps, (Lines{"answered", "Save as", "Reset"}));
    Steps.clear();
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::Cancel);
    File_Seq_New_Chosen(answered);
    EXPECT_EQ(Steps, Lines{"answered"});
}

// -- Open ------------------------------------------------------------------------------------------------

TEST_F(Seq_Commands, open_shows_the_file_window_for_a_saved_sequence) {
    Choose(Menu_File_Seq_Open);
    EXPECT_EQ(Steps, Lines{"Open"});
    Expect_Old_Cells();
}

TEST_F(Seq_Commands, open_asks_about_edits_first) {
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::No);
    Choose(Menu_File_Seq_Open);
    Expect_Question();
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Steps, Lines{"Open"});

    Steps.clear();
    Seq_Saved = Flag_8::False;
    Answer_With(Question, Answer::Yes);
    Choose(Menu_File_Seq_Open);
    EXPECT_EQ(Steps, (Lines{"Save as", "Open"}));
}

TEST_F(Seq_Commands, open_gives_up_without_a_word_when_nothing_was_saved) {
    Seq_Saved = Flag_8::False;
    Save_Completes = false;
    Answer_With(Question, Answer::Yes);
    Choose(Menu_File_Seq_Open);
    EXPECT_EQ(Steps, Lines{"Save as"});

    Steps.clear();
    Answer_With(Question, Answer::Cancel);
    Choose(Menu_File_Seq_Open);
    EXPECT_EQ(Steps, Lines{});
    EXPECT_EQ(Seq_Saved, Flag_8::False);
}

// -- Save ------------------------------------------------------------------------------------------------

TEST_F(Seq_Commands, save_writes_the_current_file) {
    Seq_File_Path = Path("x.seq");
    Choose(Menu_File_Seq_Save);
    EXPECT_EQ(Steps, Lines{});
    EXPECT_EQ(File_Read_Whole(Path("x.seq")).value().size(), 110U);
}

TEST_F(Seq_Commands, save_asks_for_a_name_when_there_is_none) {
    for (const char* path : {"", ".seq"}) {
        Steps.clear();
        Seq_File_Path = path;
        Choose(Menu_File_Seq_Save);
        EXPECT_EQ(Steps, Lines{"Save as"}) << path;
    }
    EXPECT_FALSE(std::filesystem::exists(".seq"));
    Steps.clear();
    Seq_File_Path = Path(".SEQ");
    Choose(Menu_File_Seq_Save);
    EXPECT_EQ(Steps, Lines{}) << "exactly the bare ending";
}

TEST_F(Seq_Commands, save_as_always_asks_for_a_name) {
    Seq_File_Path = Path("x.seq");
    Choose(Menu_File_Seq_SaveAs);
    EXPECT_EQ(Steps, Lines{"Save as"});
}

// -- recent files ----------------------------------------------------------------------------------------

TEST_F(Seq_Commands, recent_files_are_opened_without_a_question) {
    for (int place = 1; place <= 4; ++place) {
        const std::string path = Path(std::to_string(place) + ".seq");
        std::string file = Sequence_File();
        file[6] = static_cast<char>(place);
        Write(path, file);
        Recent_Seq_Put(place, path);
    }
    const Menu_Id entries[] = {Menu_File_Seq_1, Menu_File_Seq_2, Menu_File_Seq_3, Menu_File_Seq_4};
    // Each one opened comes to the front: the fourth place always holds the next.
    for (const int first : {4, 3, 2, 1}) {
        Seq_Saved = Flag_8::False;
        Choose(entries[3]);
        EXPECT_EQ(Seq_Notes[0], first);
        EXPECT_EQ(Seq_Saved, Flag_8::True);
    }
    Choose(entries[1]);
    EXPECT_EQ(Seq_Notes[0], 2);
    Choose(entries[2]);
    EXPECT_EQ(Seq_Notes[0], 3);
    Choose(entries[0]);
    EXPECT_EQ(Seq_Notes[0], 3);
}

TEST_F(Seq_Commands, recent_file_that_has_gone_is_told) {
    Recent_Seq_Put(2, Path("gone.seq"));
    Expect_Box("File not found: " + Path("gone.seq"));
    Choose(Menu_File_Seq_2);
    Expect_Old_Cells();
}

TEST_F(Seq_Commands, recent_place_that_is_empty_does_nothing) {
    Choose(Menu_File_Seq_1);
    Expect_Old_Cells();
    EXPECT_EQ(Seq_File_Name, "");
}

// -- other stops -----------------------------------------------------------------------------------------

TEST_F(Seq_Commands, tone_files_menu_stops_a_running_sequence) {
    Seq_Loaded = Flag_8::True;
    Press("ED_Seq_Start");
    Release("ED_Seq_Start");
    ED_Seq_Start_Click();
    Advance(std::chrono::milliseconds(500));
    Sent();
    Menu(Menu_File_SYX).opened();
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00"}));
    EXPECT_EQ(At("ED_Seq_Start").picture.store, Picture_Store::Button_Up3D);
    Menu(Menu_File_SYX).opened();
    EXPECT_EQ(Sent(), Lines{}) << "nothing runs any more";
}

// -- at the start ----------------------------------------------------------------------------------------

class Preloaded : public Stage {};

TEST_F(Preloaded, sequence_is_there_behind_the_start_when_it_is_asked_for) {
    Write(Path("x.seq"), Sequence_File());
    Write_Settings(
        "[MIDI]\nOutput=Synth Out\nInput=Keys In\nSequence Preload=1\n[Recent Files]\nSequence1=" +
        Path("x.seq") + "\n");
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(Seq_Notes[103], 103);
    EXPECT_EQ(Seq_File_Path, Upper_Text(Path("x.seq")));
    EXPECT_EQ(Seq_Loaded, Flag_8::True);
    EXPECT_EQ(At("ED_Seq_Start_Pic").picture.store, Picture_Store::Start_Enabled);
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled);
}

TEST_F(Preloaded, sequence_is_left_when_it_is_not) {
    Write(Path("x.seq"), Sequence_File());
    Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\n[Recent Files]\nSequence1=" + Path("x.seq") +
                   "\n");
    ASSERT_TRUE(Main_Load());
    EXPECT_EQ(Seq_Notes[103], 0);
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    EXPECT_FALSE(Menu(Menu_File_Seq_Save).enabled);
}
