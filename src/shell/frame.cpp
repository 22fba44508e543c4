#include "shell/frame.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/settings.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "filedlg/preview.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "platform/display.h"
#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "sequencer/sequence.h"
#include "shell/display_check.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

constexpr const char* Settings_File = "Tonebench.INI";

// From the first question of the end on; an end that is refused takes it back.
bool Closing = false;

// The question of the end, for one kind of work.
Answer Ask_To_Save(const char* question) {
    return Message_Box(question, Buttons_Set::Yes_No_Cancel, Icon::Question);
}

}  // namespace

Hook<void()> Settings_Read;
Hook<void()> Settings_Write;
Hook<void()> Patch_Lamps_Reset;
Hook<void()> Juno_Show_Name;
Hook<void()> Help_Show_Waiting;

// Each step may rely on the ones before it.
bool Main_Load() {
    Dialog_Depth = 0;
    Font_Install();

    // The first touch creates the panel with all its pictures, before the settings are known.
    Window_Load(Editor);
    Panel_Current_Control = &Editor_Control("DCO1_Range");

    if (!Display_Check()) {
        Tone_Saved = Flag_16::True;
        Seq_Saved = Flag_8::True;
        Main_Close();
        return false;
    }

    INI_File = Program_Directory() + Path_Separator + Settings_File;
    Main_Window.caption = "Tonebench";

    MIDI_Setup_Needed = 0;
    Menu(Menu_Edit_Undo).enabled = false;
    Patch_Left = Patch_Top = Seq_Window_Left = Seq_Window_Top = 0;

    MIDI_Startup();
    Settings_Read();

    Patch_Window_Open = Flag_8::False;
    Seq_Window_Open = Flag_8::False;
    Seq_Running = Flag_8::False;
    Panel_Blink_Phase = 1;

    Seq_New_Reset();
    Seq_Saved = Flag_8::True;
    Menu(Menu_File_Seq_Save).enabled = false;
    if (Menu(Menu_MIDI_Seq_Load).checked) Menu(Menu_File_Seq_1).chosen();

    Patch_Lamps_Reset();
    Tone_Saved = Flag_16::True;

    Editor.height = Editor_Height;
    Editor.width = Editor_Width;
    Editor_Juno.left = 0;
    Editor_Juno.top = 0;
    Window_Load(Editor_Juno);

    Main_Window.pointer = Pointer::Default;
    Editor.enabled = true;
    if (Is_True(Patch_Window_Open)) Patch.enabled = true;
    App_Mode.clear();
    Menus_Enable();

    // Shown, not waited for: the rest of the start runs behind it.
    if (MIDI_Setup_Needed == 1) Window_Show(MIDI_Setup);
    if (MIDI_Enabled == 0) {
        Menu(Menu_MIDI).enabled = false;
        Menu(Menu_Tone_Send).enabled = false;
    }

    Sysex_Headers_Update();
    Tone_Init();
    Tone_Saved = Flag_16::True;
    Timer_Start(Timer1);
    Main_Window.visible = true;
    return true;
}

bool Main_Query_Unload() {
    if (Is_True(Seq_Running)) Timer_Stop(Seq_Tmr);
    MIDI_All_Notes_Off();
    if (Is_True(Seq_Window_Open)) Window_Unload(Sequencer);
    if (Is_True(Patch_Window_Open)) Window_Unload(Patch);

    Answer answer = Answer::No;
    if (!Is_True(Tone_Saved)) {
        answer = Ask_To_Save("Save actual TONE first?");
        if (answer == Answer::Yes) Menu(Menu_File_SYX_Save).chosen();
        if (answer == Answer::No) Tone_Saved = Flag_16::True;
    }
    bool refused = answer == Answer::Cancel;

    // Asked even behind a Cancel. A sequence goes to Save As, a tone to Save: so it is meant.
    if (!Is_True(Seq_Saved)) {
        answer = Ask_To_Save("Save actual SEQUENCE first?");
        if (answer == Answer::Yes) Menu(Menu_File_Seq_SaveAs).chosen();
        if (answer == Answer::No) Seq_Saved = Flag_8::True;
        refused = refused || answer == Answer::Cancel;
    }

    // A save that did not complete leaves its flag: the work is still unsaved.
    if (answer != Answer::Cancel && (!Is_True(Tone_Saved) || !Is_True(Seq_Saved))) refused = true;
    return !refused;
}

void Main_Unload() {
    Font_Remove();
    Timer_Stop(Timer_Display);
    Timer_Stop(Timer1);
    Timer_Stop(Seq_Tmr);
    // A tone that is still waited for must not leave automatic sending off in the settings.
    if (MIDI_Receiving != 0) MIDI_Receive_Toggle();
    Settings_Write();
    MIDI_Out_Close_Fully();
    Event_Loop_Turn();
    // A click that waited may have opened it once more, and a note must not outlive the program.
    MIDI_Out_Close_Fully();
}

bool Main_Close() {
    // A second close may come while the first one asks, or waits for the port.
    if (Closing) return false;
    Closing = true;
    try {
        Closing = Main_Query_Unload();
    } catch (...) {
        Closing = false;
        throw;
    }
    if (!Closing) return false;
    // A window that still stands open goes with the frame, and keeps its own settings as at any close.
    Window_Unload(MIDI_Setup);
    Window_Unload(TName);
    Window_Unload(Help);
    Window_Unload(Input_Dlg);
    Window_Unload(File_Dlg);
    Window_Unload(Oscillator);
    Window_Unload(Patch_MKS70);
    Main_Unload();
    // A handler that still waits for a window goes on behind this: it must find no port to send to, and
    // none to wait at.
    MIDI_Enabled = 0;
    MIDI_In_Missing = Flag_16::True;
    Main_Window.visible = false;
    return true;
}

void Main_Background_Click() {
    if (App_Mode.empty()) return;
    if (!System_Sound_Play("SystemDefault")) Beep();
}

void Main_Display_Tick() {
    Timer_Stop(Timer_Display);
    if (FD_Timer_Tick()) return;
    if (App_Mode == "Help") {
        Help_Show_Waiting();
        return;
    }
    Editor_Tone_Name.text = Tone_Name_Text;
    Juno_Show_Name();
}
