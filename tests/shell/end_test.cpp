// The end of the program: the questions about unsaved work, and the order of the unload.
#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/in.h"
#include "midi/out.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* Tone_Question = "Save actual TONE first?";
constexpr const char* Seq_Question = "Save actual SEQUENCE first?";

Lines Steps;
Window File_Window = {.name = "File_Dlg"};

void Step(const char* name) {
    Steps.emplace_back(name);
}

// What the user does about one kind of unsaved work.
enum class Work { Saved, Yes, Yes_But_Cancelled, No, Cancel };
using enum Work;

void Script(const char* question, Work work) {
    if (work == Yes || work == Yes_But_Cancelled) Answer_With(question, Answer::Yes);
    if (work == No) Answer_With(question, Answer::No);
    if (work == Cancel) Answer_With(question, Answer::Cancel);
}

struct Case {
    Work tone;
    Work sequence;
    bool ends;
    bool tone_saved;  // behind the questions
    bool sequence_saved;
};

// clang-format off
const Case Cases[] = {
//   tone               sequence           ends   tone   sequence saved
    {Saved,             Saved,             true,  true,  true},
    {Saved,             Yes,               true,  true,  true},
    {Saved,             Yes_But_Cancelled, false, true,  false},
    {Saved,             No,                true,  true,  true},
    {Saved,             Cancel,            false, true,  false},
    {Yes,               Saved,             true,  true,  true},
    {Yes,               Yes,               true,  true,  true},
    {Yes,               Yes_But_Cancelled, false, true,  false},
    {Yes,               No,                true,  true,  true},
    {Yes,               Cancel,            false, true,  false},
    {Yes_But_Cancelled, Saved,             false, false, true},
    {Yes_But_Cancelled, Yes,               false, false, true},
    {Yes_But_Cancelled, Yes_But_Cancelled, false, false, false},
    {Yes_But_Cancelled, No,                false, false, true},
    {Yes_But_Cancelled, Cancel,            false, false, false},
    {No,                Saved,             true,  true,  true},
    {No,                Yes,               true,  true,  true},
    {No,                Yes_But_Cancelled, false, true,  false},
    {No,                No,                true,  true,  true},
    {No,                Cancel,            false, true,  false},
    {Cancel,            Saved,             false, false, true},
    {Cancel,            Yes,               false, false, true},
    {Cancel,            Yes_But_Cancelled, false, false, false},
    {Cancel,            No,                false, false, true},
    {Cancel,            Cancel,            false, false, false},
};
// clang-format on

bool Tone_Save_Completes = true;
bool Seq_Save_Completes = true;

// The four entries that could save, each saying its name.
void Watch_Saving() {
    Menu(Menu_File_SYX_Save).chosen = [] {
        Step("Menu_File_SYX_Save");
        if (Tone_Save_Completes) Tone_Saved = Flag_16::True;
    };
    Menu(Menu_File_SYX_SaveAs).chosen = [] { Step("Menu_File_SYX_SaveAs"); };
    Menu(Menu_File_Seq_Save).chosen = [] { Step("Menu_File_Seq_Save"); };
    Menu(Menu_File_Seq_SaveAs).chosen = [] {
        Step("Menu_File_Seq_SaveAs");
        if (Seq_Save_Completes) Seq_Saved = Flag_8::True;
    };
}

}  // namespace

// -- the questions ---------------------------------------------------------------------------------------

class Program_End : public Started_Stage {
  protected:
    Program_End() {
        Watch_Saving();
        // A window without its own manners: what the end does about it is looked at here.
        Sequencer.load = {};
        Sequencer.unload = {};
    }
};

TEST_F(Program_End, is_refused_or_not_by_each_pair_of_answers) {
    for (std::size_t row = 0; row < std::size(Cases); ++row) {
        const Case& now = Cases[row];
        Tone_Saved = now.tone == Saved ? Flag_16::True : Flag_16::False;
        Seq_Saved = now.sequence == Saved ? Flag_8::True : Flag_8::False;
        Tone_Save_Completes = now.tone == Yes;
        Seq_Save_Completes = now.sequence == Yes;
        Script(Tone_Question, now.tone);
        Script(Seq_Question, now.sequence);
        EXPECT_EQ(Main_Query_Unload(), now.ends) << row;
        EXPECT_EQ(Is_True(Tone_Saved), now.tone_saved) << row;
        EXPECT_EQ(Is_True(Seq_Saved), now.sequence_saved) << row;
        Check_All_Boxes_Came();
    }
}

TEST_F(Program_End, asks_with_yes_no_and_cancel_and_the_question_icon) {
    Tone_Saved = Flag_16::False;
    Seq_Saved = Flag_8::False;
    Answer_With(Tone_Question, Answer::No);
    Answer_With(Seq_Question, Answer::No);
    EXPECT_TRUE(Main_Query_Unload());
    ASSERT_EQ(Boxes.size(), 2U);
    for (const Shown_Box& box : Boxes) {
        EXPECT_EQ(box.buttons, Buttons_Set::Yes_No_Cancel);
        EXPECT_EQ(box.icon, Icon::Question);
        EXPECT_EQ(box.title, "Tonebench");
    }
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(Program_End, saves_a_tone_by_save_and_a_sequence_by_save_as) {
    Tone_Saved = Flag_16::False;
    Seq_Saved = Flag_8::False;
    Answer_With(Tone_Question, Answer::Yes);
    Answer_With(Seq_Question, Answer::Yes);
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(Steps, (Lines{"Menu_File_SYX_Save", "Menu_File_Seq_SaveAs"}));
}

TEST_F(Program_End, waits_for_the_save_dialog_and_is_refused_when_that_is_cancelled) {
    Tone_Saved = Flag_16::False;
    Menu(Menu_File_SYX_Save).chosen = [] {
        Dialog_Begin(File_Window, "File_Dlg");
        At_Next_Turn([] { Dialog_End(); });
        Dialog_Wait();
        Step("dialog closed");
    };
    Answer_With(Tone_Question, Answer::Yes);
    EXPECT_FALSE(Main_Close());
    EXPECT_EQ(Steps, Lines{"dialog closed"});
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_TRUE(Main_Window.visible);
    EXPECT_EQ(App_Mode, "");
}

TEST_F(Program_End, stops_the_sequencer_and_closes_its_window_and_patch_before_it_asks) {
    MIDI_Out_Open();
    Timer_Start(Seq_Tmr);
    Seq_Running = Flag_8::True;
    Window_Show(Sequencer);
    Seq_Window_Open = Flag_8::True;
    Window_Show(Patch);
    Patch_Window_Open = Flag_8::True;
    Sequencer.unload = [] {
        EXPECT_FALSE(Seq_Tmr.enabled);
        EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
        Seq_Window_Open = Flag_8::False;
        Step("Sequencer");
    };
    Patch.unload = [] {
        Patch_Window_Open = Flag_8::False;
        Step("Patch");
    };
    Tone_Saved = Flag_16::False;
    Seq_Saved = Flag_8::False;
    Answer_With(Tone_Question, Answer::Cancel, [] { Step("tone question"); });
    Answer_With(Seq_Question, Answer::No, [] { Step("sequence question"); });
    EXPECT_FALSE(Main_Close());
    EXPECT_EQ(Steps, (Lines{"Sequencer", "Patch", "tone question", "sequence question"}));
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_FALSE(Seq_Tmr.enabled) << "a refused end leaves it stopped";
    EXPECT_FALSE(Patch.loaded);
    EXPECT_FALSE(Sequencer.loaded);
    EXPECT_TRUE(Main_Window.visible);
    EXPECT_TRUE(Timer1.enabled);
}

TEST_F(Program_End, leaves_windows_alone_that_are_not_open) {
    Sequencer.unload = [] { Step("Sequencer"); };
    Patch.unload = [] { Step("Patch"); };
    Window_Load(Sequencer);
    Window_Load(Patch);
    Patch_Window_Open = Flag_8::False;
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(Steps, Lines{});
}

TEST_F(Program_End, sends_all_notes_off_also_when_no_port_was_open) {
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    MIDI_Enabled = 0;
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Program_End, comes_from_the_menu_with_the_same_questions) {
    Tone_Saved = Flag_16::False;
    Answer_With(Tone_Question, Answer::Cancel);
    Menu(Menu_File_Exit).chosen();
    EXPECT_TRUE(Main_Window.visible);
    Answer_With(Tone_Question, Answer::No);
    Menu(Menu_File_Exit).chosen();
    EXPECT_FALSE(Main_Window.visible);
}

// -- the unload ------------------------------------------------------------------------------------------

TEST_F(Program_End, takes_font_timers_settings_and_port_down_in_this_order) {
    MIDI_Out_Open();
    Timer_Start(Timer_Display);
    Timer_Start(Seq_Tmr);
    Display.font_remove_error = 5;
    Answer_With("Error 5", Answer::Ok, [] {
        Step("font");
        EXPECT_TRUE(Timer_Display.enabled);
        EXPECT_TRUE(Timer1.enabled);
        EXPECT_TRUE(Seq_Tmr.enabled);
    });
    Settings_Write = [] {
        Step("settings");
        EXPECT_FALSE(Timer_Display.enabled);
        EXPECT_FALSE(Timer1.enabled);
        EXPECT_FALSE(Seq_Tmr.enabled);
        EXPECT_NE(MIDI_Out_Handle, -1);
        EXPECT_EQ(Ports.close_calls, 0);
        At_Next_Turn([] {
            Step("port closing");
            EXPECT_NE(MIDI_Out_Handle, -1);
            At_Next_Turn([] {
                Step("pending events");
                EXPECT_EQ(MIDI_Out_Handle, -1);
            });
        });
    };
    Main_Unload();
    EXPECT_EQ(Steps, (Lines{"font", "settings", "port closing", "pending events"}));
    EXPECT_EQ(Ports.open_handle, -1);
}

TEST_F(Program_End, waits_for_the_port_without_a_limit) {
    MIDI_Out_Open();
    Ports.close_results = std::vector<Port_Result>(1000, 65);
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(Ports.close_calls, 1001);
    EXPECT_EQ(Ports.open_handle, -1);
}

TEST_F(Program_End, closes_the_port_again_behind_a_note_that_a_waiting_click_played) {
    MIDI_Out_Open();
    Tone_Saved = Flag_16::True;
    // The settings take one turn of the events, the close another, the end of the program the third.
    At_Next_Turn([] { At_Next_Turn([] { At_Next_Turn([] { MIDI_SendNote(60, 90); }); }); });
    Sent();
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(Sent(), (Lines{"B0 7B 00", "B0 7B 00", "90 3C 5A", "B0 7B 00"}));
    EXPECT_EQ(Ports.open_handle, Port_Closed);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
}

TEST_F(Program_End, sends_no_new_tone_that_waited_for_a_save_window) {
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Yes);
    SYX_Save_As = [] {
        Tone_Saved = Flag_16::True;
        EXPECT_TRUE(Main_Close());
        Sent();
    };
    Menu(Menu_File_SYX_New).chosen();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Ports.open_handle, Port_Closed);
}

TEST_F(Program_End, waits_for_no_tone_whose_wait_would_begin_behind_a_save_window) {
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Yes);
    SYX_Save_As = [] {
        Tone_Saved = Flag_16::True;
        EXPECT_TRUE(Main_Close());
    };
    Menu(Menu_Tone_Receive).chosen();
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_TRUE(Ports.in_opened.empty());
}

TEST_F(Program_End, closes_a_port_that_stayed_open_with_midi_off) {
    MIDI_Out_Open();
    MIDI_Enabled = 0;
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(Ports.open_handle, -1);
}

TEST_F(Program_End, with_a_device_that_has_gone_gives_one_box) {
    MIDI_Out_Open();
    Ports.send_result = 68;
    Expect_Box("MIDI_Put*: (68) Text of 68");
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_FALSE(Main_Window.visible);
}

TEST_F(Program_End, removes_the_font_of_this_run) {
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(Display.fonts_removed, Lines{Test_Folder() + "/JX8P.FNT"});
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Program_End, writes_the_settings_once) {
    Settings_Write = [] { Step("settings"); };
    EXPECT_TRUE(Main_Close());
    EXPECT_EQ(Steps, Lines{"settings"});
}

TEST_F(Program_End, that_is_refused_writes_and_closes_nothing) {
    Settings_Write = [] { Step("settings"); };
    MIDI_Out_Open();
    Tone_Saved = Flag_16::False;
    Answer_With(Tone_Question, Answer::Cancel);
    EXPECT_FALSE(Main_Close());
    EXPECT_EQ(Steps, Lines{});
    EXPECT_NE(MIDI_Out_Handle, -1);
    EXPECT_EQ(Display.fonts_removed, Lines{});
}

TEST_F(Program_End, closes_an_open_setup_dialog_and_keeps_what_it_would_have_kept) {
    Window_Show(MIDI_Setup);
    EXPECT_TRUE(Main_Close());
    EXPECT_FALSE(MIDI_Setup.loaded);
    EXPECT_EQ(App_Mode, "");
    EXPECT_FALSE(Timer1.enabled);
    EXPECT_NE(Read_Settings().find("Control Channel=[Not used]"), std::string::npos);
}
