#include "shell/tone_commands.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "filedlg/state.h"
#include "midi/in.h"
#include "midi/out.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/patch.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* Save_Tone = "Save actual TONE first?";

int Saves = 0;
Lines Opened;

}  // namespace

class Tone_Command : public Started_Stage {
  protected:
    Tone_Command() {
        SYX_Save_As = [] { ++Saves; };
        File_Dlg.load = [] { Opened.push_back(FD_Mode); };
        Tone_Data.fill(5);
        Tone_File_Name = Path("x.syx");
        Main_Window.caption = "Tonebench - X";
        Sent();
    }

    static void Choose(Menu_Id id) { Menu(id).chosen(); }

    static void Expect_Question(Buttons_Set buttons) {
        ASSERT_EQ(Boxes.size(), 1U);
        EXPECT_EQ(Boxes[0].buttons, buttons);
        EXPECT_EQ(Boxes[0].icon, Icon::Question);
        EXPECT_EQ(Boxes[0].title, "Tonebench");
    }

    static void Expect_New_Tone() {
        EXPECT_EQ(Tone_Data[0], 32);
        EXPECT_EQ(Tone_Data[13], 56);
        EXPECT_EQ(Tone_File_Name, "");
        EXPECT_EQ(Main_Window.caption, "Tonebench");
        EXPECT_EQ(Tone_Saved, Flag_16::True);
        EXPECT_EQ(Tone_Loading, Flag_8::False);
        EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
        EXPECT_EQ(Sent().size(), 1U);
    }
    static void Expect_Old_Tone() {
        EXPECT_EQ(Tone_Data[0], 5);
        EXPECT_EQ(Tone_File_Name, Path("x.syx"));
        EXPECT_EQ(Sent(), Lines{});
    }
};

// -- New -------------------------------------------------------------------------------------------------

TEST_F(Tone_Command, new_gives_a_new_tone_without_a_question_when_the_old_is_saved) {
    Tone_Loading = Flag_8::True;
    MIDI_Autosend = 0;
    Choose(Menu_File_SYX_New);
    Expect_New_Tone();
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Tone_Command, new_moves_the_panel_without_words_and_sends_behind_that) {
    static int moved = 0;
    Panel_Apply_Tone = [] {
        EXPECT_EQ(Tone_Loading, Flag_8::True);
        EXPECT_EQ(Tone_Saved, Flag_16::True);
        EXPECT_EQ(Sent(), Lines{});
        ++moved;
    };
    Choose(Menu_File_SYX_New);
    EXPECT_EQ(moved, 1);
    Expect_New_Tone();
}

TEST_F(Tone_Command, new_asks_about_an_unsaved_tone_and_goes_on_at_no) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::No);
    Choose(Menu_File_SYX_New);
    Expect_Question(Buttons_Set::Yes_No);
    Expect_New_Tone();
    EXPECT_EQ(Saves, 0);
}

TEST_F(Tone_Command, new_goes_to_save_as_at_yes_and_on_when_that_saved) {
    Tone_Saved = Flag_16::False;
    SYX_Save_As = [] { Tone_Saved = Flag_16::True; };
    Answer_With(Save_Tone, Answer::Yes);
    Choose(Menu_File_SYX_New);
    Expect_New_Tone();
}

TEST_F(Tone_Command, new_ends_when_save_as_was_left_without_saving) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    Choose(Menu_File_SYX_New);
    EXPECT_EQ(Saves, 1) << "Save As, although the tone has a file";
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    Expect_Old_Tone();
}

// -- Receive ---------------------------------------------------------------------------------------------

TEST_F(Tone_Command, receive_enters_the_mode_with_the_focus_mark_at_rest) {
    static int toggled = 0;
    MIDI_Receive_Toggle = [] {
        ++toggled;
        EXPECT_EQ(Panel_Current_Control->picture.item % 2, 0);
    };
    Panel_Blink_Phase = 1;
    Panel_Blink();
    Choose(Menu_Tone_Receive);
    EXPECT_EQ(toggled, 1);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Tone_Command, receive_asks_about_an_unsaved_tone_with_yes_and_no) {
    static int toggled = 0;
    MIDI_Receive_Toggle = [] { ++toggled; };
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    Choose(Menu_Tone_Receive);
    Expect_Question(Buttons_Set::Yes_No);
    EXPECT_EQ(Saves, 1);
    EXPECT_EQ(toggled, 0) << "the save was left without saving";
    Answer_With(Save_Tone, Answer::No);
    Choose(Menu_Tone_Receive);
    EXPECT_EQ(toggled, 1);
}

// -- Open ------------------------------------------------------------------------------------------------

TEST_F(Tone_Command, open_shows_the_file_window) {
    Choose(Menu_File_SYX_Open);
    EXPECT_EQ(Opened, Lines{"Open_SYX"});
    EXPECT_TRUE(Boxes.empty());
    Expect_Old_Tone();
}

TEST_F(Tone_Command, open_asks_about_an_unsaved_tone_and_goes_on_at_no) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::No);
    Choose(Menu_File_SYX_Open);
    Expect_Question(Buttons_Set::Yes_No_Cancel);
    EXPECT_EQ(Opened, Lines{"Open_SYX"});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Tone_Command, open_ends_at_cancel) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Cancel);
    Choose(Menu_File_SYX_Open);
    EXPECT_EQ(Opened, Lines{});
    EXPECT_EQ(Saves, 0);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(Tone_Command, open_goes_to_save_as_at_yes_and_on_only_when_that_saved) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    Choose(Menu_File_SYX_Open);
    EXPECT_EQ(Saves, 1);
    EXPECT_EQ(Opened, Lines{});
    SYX_Save_As = [] { Tone_Saved = Flag_16::True; };
    Answer_With(Save_Tone, Answer::Yes);
    Choose(Menu_File_SYX_Open);
    EXPECT_EQ(Opened, Lines{"Open_SYX"});
    EXPECT_TRUE(File_Dlg.visible);
}

// -- Save and Save As ------------------------------------------------------------------------------------

TEST_F(Tone_Command, save_writes_the_current_file) {
    Tone_Saved = Flag_16::False;
    Choose(Menu_File_SYX_Save);
    EXPECT_EQ(std::filesystem::file_size(Path("x.syx")), 89U);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Saves, 0);
}

TEST_F(Tone_Command, save_goes_to_save_as_without_a_file_name) {
    Tone_File_Name = "";
    Choose(Menu_File_SYX_Save);
    EXPECT_EQ(Saves, 1);
    Tone_File_Name = ".syx";
    Choose(Menu_File_SYX_Save);
    EXPECT_EQ(Saves, 2);
    EXPECT_FALSE(std::filesystem::exists(".syx"));
}

TEST_F(Tone_Command, save_as_goes_to_save_as) {
    Choose(Menu_File_SYX_SaveAs);
    EXPECT_EQ(Saves, 1);
    EXPECT_FALSE(std::filesystem::exists(Path("x.syx")));
}

TEST_F(Tone_Command, save_is_what_the_end_of_the_program_runs) {
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(std::filesystem::file_size(Path("x.syx")), 89U);
}

TEST_F(Tone_Command, save_as_that_was_left_keeps_the_program_open) {
    Tone_File_Name = "";
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    EXPECT_FALSE(Main_Query_Unload());
    EXPECT_EQ(Saves, 1);
}

TEST_F(Tone_Command, that_failed_to_save_keeps_the_program_open) {
    Tone_File_Name = "/dev/full";
    Tone_Saved = Flag_16::False;
    Answer_With(Save_Tone, Answer::Yes);
    Expect_Box("Error 28: No space left on device");
    EXPECT_FALSE(Main_Query_Unload());
}

// -- recent files ----------------------------------------------------------------------------------------

TEST_F(Tone_Command, opens_each_recent_file_without_a_question) {
    MIDI_Autosend = 0;
    for (const char* name : {"4", "3", "2", "1"}) {
        Write(Path(name), Bytes(Tone_1));
        Recent_Tone_Add(Path(name));
    }
    Tone_Saved = Flag_16::False;
    Choose(Menu_File_SYX_4);
    EXPECT_EQ(Tone_File_Name, Path("4"));
    EXPECT_EQ(Tone_Data[0], 'B');
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    Choose(Menu_File_SYX_2);
    EXPECT_EQ(Tone_File_Name, Path("1")) << "4 has moved to the front";
    Choose(Menu_File_SYX_3);
    EXPECT_EQ(Tone_File_Name, Path("2"));
    Choose(Menu_File_SYX_1);
    EXPECT_EQ(Tone_File_Name, Path("2"));
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Tone_Command, on_a_hole_among_the_recent_files_does_nothing) {
    Choose(Menu_File_SYX_1);
    Choose(Menu_File_SYX_4);
    Expect_Old_Tone();
}

TEST_F(Tone_Command, on_a_recent_file_that_has_gone_leaves_without_a_word) {
    Write(Path("a"), Bytes(Tone_1));
    Recent_Tone_Add(Path("a"));
    std::filesystem::remove(Path("a"));
    Choose(Menu_File_SYX_1);
    Expect_Old_Tone();
    EXPECT_EQ(Recent_Tone(1), Path("a")) << "the next file that comes takes it out";
}

// -- the submenu -----------------------------------------------------------------------------------------

TEST_F(Tone_Command, submenu_stops_a_running_sequencer_and_closes_the_port) {
    Seq_Loaded = Flag_8::True;
    Press("ED_Seq_Start");
    Release("ED_Seq_Start");
    Click("ED_Seq_Start");
    ASSERT_EQ(Seq_Running, Flag_8::True);
    Seq_Pos = 5;
    MIDI_SendNote(60, 127);
    Sent();
    Menu(Menu_File_SYX).opened();
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00"})) << "its own, and that of the close";
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(Editor_Seq_Start.picture, Picture_Of(Picture_Store::Button_Up3D));
    EXPECT_EQ(Editor_Seq_Start_Pic.left, 3);
    EXPECT_EQ(Editor_Seq_Start_Pic.top, 3);
}

TEST_F(Tone_Command, submenu_leaves_the_port_open_when_no_sequencer_runs) {
    MIDI_SendNote(60, 127);
    Sent();
    Menu(Menu_File_SYX).opened();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_NE(MIDI_Out_Handle, -1);
}

// -- what the menu shows ---------------------------------------------------------------------------------

using Menu_Of_Tones = Started_Stage;

TEST_F(Menu_Of_Tones, has_a_procedure_for_every_entry) {
    for (const Menu_Id id : {Menu_File_SYX_New, Menu_File_SYX_Open, Menu_File_SYX_Save,
                             Menu_File_SYX_SaveAs, Menu_Edit_Undo, Menu_Tone_Random, Menu_Tone_Name})
        EXPECT_TRUE(Menu(id).chosen.Filled()) << Menu(id).name;
}
