// The start-up in its fixed order, and the state that it leaves.
#include <fstream>

#include "desk/menus.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "sequencer/sequence.h"
#include "shell/display_check.h"
#include "shell/frame.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

Lines Steps;
int Calls = 0;

void Step(const char* name) {
    Steps.emplace_back(name);
}

constexpr const char* Both_Configured = "[MIDI]\nOutput=Synth Out\nInput=Keys In\n";
constexpr const char* Output_Open = "MIDI output device not configured - starting MIDI setup.";
constexpr const char* Input_Open = "MIDI input device not configured - starting MIDI setup.";

std::string Font_Message() {
    return "Error: Could not load font " + Test_Folder() + "/JX8P.FNT\nUsing default font.";
}

// Every step that calls another room says its name.
void Watch_Steps() {
    Editor.load = [] {
        Step("Editor");
        Editor_Load();
    };
    Editor_Juno.load = [] { Step("Editor_Juno"); };
    Juno_Take_Font = [](const char*) { Step("font of Editor_Juno"); };
    Settings_Read = [] {
        Step("Settings_Read");
        Menu(Menu_MIDI_Seq_Load).checked = true;
    };
    Seq_Panel_Buttons_Off = [] { Step("Seq_New_Reset"); };
    Menu(Menu_File_Seq_1).chosen = [] { Step("Menu_File_Seq_1"); };
    Patch_Lamps_Reset = [] { Step("Patch lamps"); };
    Editor_Arrange = [] { Step("Sysex_Headers_Update"); };
    Panel_Apply_Tone = [] { Step("Tone_Init"); };
    MIDI_Setup.load = [] {
        Step("MIDI_Setup");
        Dialog_Begin(MIDI_Setup, "MIDI_Setup");
    };
}

}  // namespace

class Start_Up : public Stage {
  protected:
    Start_Up() { Write_Settings(Both_Configured); }
};

// -- the order -------------------------------------------------------------------------------------------

TEST_F(Start_Up, with_a_font_runs_its_steps_in_this_order) {
    Watch_Steps();
    Write_Settings("");
    Answer_With(Output_Open, Answer::Ok, [] { Step("MIDI_Startup"); });
    Expect_Box(Input_Open);
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Steps, (Lines{"Editor", "Editor_Juno", "font of Editor_Juno", "MIDI_Startup", "Settings_Read",
                            "Seq_New_Reset", "Menu_File_Seq_1", "Patch lamps", "MIDI_Setup",
                            "Sysex_Headers_Update", "Tone_Init"}));
}

TEST_F(Start_Up, without_a_font_creates_each_panel_at_its_own_step) {
    Watch_Steps();
    Write_Settings("");
    Display.font_can_be_added = false;
    Answer_With(Font_Message(), Answer::Ok, [] { Step("Font_Install"); });
    Answer_With(Output_Open, Answer::Ok, [] { Step("MIDI_Startup"); });
    Expect_Box(Input_Open);
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Steps, (Lines{"Font_Install", "Editor", "MIDI_Startup", "Settings_Read", "Seq_New_Reset",
                            "Menu_File_Seq_1", "Patch lamps", "Editor_Juno", "MIDI_Setup",
                            "Sysex_Headers_Update", "Tone_Init"}));
}

TEST_F(Start_Up, clears_the_dialog_depth_before_the_font) {
    Dialog_Depth = 7;
    Display.font_can_be_added = false;
    Answer_With(Font_Message(), Answer::Ok, [] {
        EXPECT_EQ(Dialog_Depth, 0);
        EXPECT_FALSE(Editor.loaded);
        EXPECT_EQ(Screen_PPI, 0);
    });
    EXPECT_TRUE(Main_Load());
}

TEST_F(Start_Up, knows_screen_settings_path_and_title_before_the_devices) {
    Write_Settings("");
    MIDI_Setup_Needed = 1;
    Menu(Menu_Edit_Undo).enabled = true;
    Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 99;
    Main_Window.caption.clear();
    Answer_With(Output_Open, Answer::Ok, [] {
        EXPECT_EQ(Screen_PPI, 96);
        EXPECT_EQ(INI_File, Test_Folder() + "/Tonebench.INI");
        EXPECT_EQ(Main_Window.caption, "Tonebench");
        EXPECT_EQ(MIDI_Setup_Needed, 0);
        EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
        EXPECT_EQ(Patch_Left, 0);
        EXPECT_EQ(Patch_Top, 0);
        EXPECT_EQ(Seq_Window_Left, 0);
        EXPECT_EQ(Seq_Window_Top, 0);
    });
    Expect_Box(Input_Open);
    EXPECT_TRUE(Main_Load());
}

TEST_F(Start_Up, reads_the_settings_behind_the_devices) {
    Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\nChannel=-5\n");
    Patch_Window_Open = Flag_8::True;
    Settings_Read = [] {
        ++Calls;
        EXPECT_EQ(MIDI_Channel, 5);
        EXPECT_EQ(MIDI_Enabled, 1);
        EXPECT_EQ(Patch_Window_Open, Flag_8::True) << "cleared behind the settings";
        Patch_Left = 1500;
    };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 1);
    EXPECT_EQ(Patch_Left, 1500);
}

TEST_F(Start_Up, clears_the_windows_flags_before_the_empty_sequence) {
    Patch_Window_Open = Flag_8::True;
    Seq_Window_Open = Flag_8::True;
    Seq_Running = Flag_8::True;
    Seq_Panel_Buttons_Off = [] {
        ++Calls;
        EXPECT_EQ(Patch_Window_Open, Flag_8::False);
        EXPECT_EQ(Seq_Window_Open, Flag_8::False);
        EXPECT_EQ(Seq_Running, Flag_8::False);
        EXPECT_EQ(Panel_Blink_Phase, 1);
    };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 1);
}

TEST_F(Start_Up, has_an_empty_saved_sequence_before_the_first_recent_one_is_loaded) {
    Seq_Saved = Flag_8::False;
    Menu(Menu_File_Seq_Save).enabled = true;
    Menu(Menu_MIDI_Seq_Load).checked = true;
    Menu(Menu_File_Seq_1).chosen = [] {
        ++Calls;
        EXPECT_EQ(Seq_Saved, Flag_8::True);
        EXPECT_FALSE(Menu(Menu_File_Seq_Save).enabled);
        Menu(Menu_File_Seq_Save).enabled = true;
    };
    Settings_Read = [] { Menu(Menu_MIDI_Seq_Load).checked = true; };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 1);
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled) << "as the load left it";
}

TEST_F(Start_Up, loads_no_sequence_unless_preloading_is_checked) {
    Settings_Read = [] { Menu(Menu_MIDI_Seq_Load).checked = false; };
    Menu(Menu_File_Seq_1).chosen = [] { ++Calls; };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 0);
}

TEST_F(Start_Up, that_preloads_without_a_recent_sequence_loads_nothing_and_says_nothing) {
    Settings_Read = [] { Menu(Menu_MIDI_Seq_Load).checked = true; };
    EXPECT_TRUE(Main_Load());
    EXPECT_TRUE(Boxes.empty());
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
}

TEST_F(Start_Up, opens_menus_and_panels_before_the_setup_dialog_locks_them) {
    Write_Settings("");
    Expect_Box(Output_Open);
    Expect_Box(Input_Open);
    App_Mode = "Help";
    Editor.enabled = false;
    Main_Window.pointer = Pointer::Hourglass;
    Menus_Disable();
    Panel_Restore_Picture = [] {
        if (!MIDI_Setup.loaded) return;
        ++Calls;
        EXPECT_EQ(App_Mode, "");
        EXPECT_TRUE(Editor.enabled);
        EXPECT_EQ(Main_Window.pointer, Pointer::Default);
        EXPECT_TRUE(Menu(Menu_File).enabled);
        EXPECT_TRUE(Menu(Menu_Help).enabled);
    };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 1);
}

// -- what it leaves --------------------------------------------------------------------------------------

TEST_F(Start_Up, leaves_the_tone_new_on_the_panel_and_nothing_to_save) {
    Tone_Saved = Flag_16::False;
    Tone_File_Name = "/x.syx";
    Menu(Menu_File_SYX_Save).enabled = true;
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(Tone_Data[13], 56);
    EXPECT_EQ(Tone_Data[19], 56);
    EXPECT_EQ(Tone_Data[20], 64);
    EXPECT_FALSE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_FALSE(Menu(Menu_File_Seq_Save).enabled);
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_TRUE(Main_Window.visible);
    EXPECT_TRUE(Editor.visible);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Start_Up, sends_nothing_and_opens_no_port) {
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Ports.open_calls, 0);
    EXPECT_EQ(MIDI_Out_Handle, -1);
}

TEST_F(Start_Up, leaves_the_panel_in_its_size_and_the_focus_on_the_first_control) {
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Editor.width, 528);
    EXPECT_EQ(Editor.height, 456);
    EXPECT_EQ(Editor_Juno.left, 0);
    EXPECT_EQ(Editor_Juno.top, 0);
    EXPECT_TRUE(Editor_Juno.loaded);
    EXPECT_EQ(Panel_Current_Control, &At("DCO1_Range"));
}

TEST_F(Start_Up, gives_the_panels_size_and_place_again_behind_the_settings) {
    Settings_Read = [] {
        Editor.width = Editor.height = 1;
        Editor_Juno.left = Editor_Juno.top = 9;
    };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Editor.width, 528);
    EXPECT_EQ(Editor.height, 456);
    EXPECT_EQ(Editor_Juno.left, 0);
    EXPECT_EQ(Editor_Juno.top, 0);
}

TEST_F(Start_Up, has_a_saved_tone_before_and_behind_the_panels) {
    Patch_Lamps_Reset = [] { Tone_Saved = Flag_16::False; };
    Editor_Arrange = [] {
        ++Calls;
        EXPECT_EQ(Tone_Saved, Flag_16::True);
    };
    Panel_Apply_Tone = [] { Tone_Saved = Flag_16::False; };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Calls, 1);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Start_Up, starts_the_blink_and_no_other_timer) {
    EXPECT_TRUE(Main_Load());
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_FALSE(Seq_Tmr.enabled);
    const auto phase = Panel_Blink_Phase;
    Advance(std::chrono::milliseconds(250));
    EXPECT_NE(Panel_Blink_Phase, phase);
}

TEST_F(Start_Up, builds_the_headers_for_the_instrument_and_channel_of_the_settings) {
    Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\nChannel=11\n");
    Settings_Read = [] { Synthesizer = "Alpha Juno"; };
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 A 23 20 01 ");
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Editor.visible);
    EXPECT_FALSE(Menu(Menu_Tone_Patch).enabled);
}

TEST_F(Start_Up, with_a_missing_device_leaves_the_setup_dialog_open_and_goes_on_behind_it) {
    Write_Settings("[MIDI]\nOutput=Old Out\nInput=Keys In\n");
    Expect_Box("MIDI output device (Old Out) not available - starting MIDI setup.");
    EXPECT_TRUE(Main_Load());
    EXPECT_TRUE(MIDI_Setup.visible);
    EXPECT_EQ(App_Mode, "MIDI_Setup");
    EXPECT_FALSE(Menu(Menu_File).enabled);
    EXPECT_FALSE(Editor.enabled);
    EXPECT_EQ(Dialog_Depth, 1);
    EXPECT_TRUE(Main_Window.visible);
    EXPECT_EQ(Sysex_Header_APR, "F0 41 35 0 21 20 01 ");
    EXPECT_TRUE(Timer1.enabled) << "the last step of the start";
    EXPECT_EQ(Loop.waits, 0);
}

TEST_F(Start_Up, without_any_device_disables_the_midi_menu_and_sending) {
    Ports.out_names.clear();
    Ports.in_names.clear();
    Expect_Box("No MIDI output device installed. MIDI functions disabled");
    Expect_Box("No MIDI input device installed. MIDI IN functions disabled");
    EXPECT_TRUE(Main_Load());
    EXPECT_FALSE(Menu(Menu_MIDI).enabled);
    EXPECT_FALSE(Menu(Menu_Tone_Send).enabled);
    EXPECT_TRUE(Menu(Menu_Tone).enabled);
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_FALSE(MIDI_Setup.loaded);
}

TEST_F(Start_Up, with_devices_leaves_the_midi_menu_and_sending_enabled) {
    EXPECT_TRUE(Main_Load());
    EXPECT_TRUE(Menu(Menu_MIDI).enabled);
    EXPECT_TRUE(Menu(Menu_Tone_Send).enabled);
    EXPECT_FALSE(MIDI_Setup.loaded);
}

TEST_F(Start_Up, needs_no_settings_file) {
    Write_Settings("");
    Ports.in_names.clear();
    Ports.out_names.clear();
    Expect_Box("No MIDI output device installed. MIDI functions disabled");
    Expect_Box("No MIDI input device installed. MIDI IN functions disabled");
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Synthesizer, "JX-8P");
    EXPECT_EQ(MIDI_Channel, 1);
    EXPECT_EQ(MIDI_Autoplay, 1);
}

// -- before it -------------------------------------------------------------------------------------------

TEST(Program_Before_Its_Start, holds_these_values) {
    EXPECT_EQ(App_Mode, "");
    EXPECT_EQ(Dialog_Depth, 0);
    EXPECT_EQ(Panel_Saved_Control, nullptr);
    EXPECT_EQ(Panel_Blink_Phase, 1);
    EXPECT_EQ(INI_File, "");
    EXPECT_EQ(Font_Loaded, Flag_16::False);
    EXPECT_EQ(MIDI_Setup_Needed, 0);
    EXPECT_EQ(MIDI_Channel, 1);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(Synthesizer, "JX-8P");
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_EQ(Tone_Name_Text, "NEW");
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(Tone_File_Short, "");
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
}

// -- the sequence of the last time
// ---------------------------------------------------------------------------

TEST_F(Start_Up, loads_the_first_recent_sequence_when_that_is_wanted) {
    const std::string path = Test_Folder() + "/Bass.seq";
    std::string bytes = "SEQ1\x3C\x24";
    bytes.append(104, '\0');
    bytes[6] = '\x7F';
    std::ofstream(path, std::ios::binary) << bytes;
    Write_Settings(std::string(Both_Configured) + "Sequence Preload=1\n[Recent Files]\nSequence1=" + path +
                   "\n");
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Seq_Loaded, Flag_8::True);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_EQ(Seq_Base_Note, 36);
    EXPECT_EQ(Seq_Tmr.interval, 125);
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Start_Up, says_nothing_when_the_wanted_sequence_has_gone) {
    Write_Settings(std::string(Both_Configured) +
                   "Sequence Preload=1\n[Recent Files]\nSequence1=" + Test_Folder() + "/Gone.seq\n");
    EXPECT_TRUE(Main_Load());
    EXPECT_EQ(Seq_Loaded, Flag_8::False);
    EXPECT_TRUE(Boxes.empty());
}
