#include "shell/tone_commands.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/timers.h"
#include "filedlg/file_dlg.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "panels/push_buttons.h"
#include "platform/message_box.h"
#include "sequencer/sequence.h"
#include "synth/messages.h"
#include "synth/random_tone.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/undo.h"
#include "tname/tname.h"

namespace {

// Whether the command goes on.
bool Tone_May_Go(Buttons_Set buttons) {
    if (!Is_True(Tone_Saved)) {
        const Answer answer = Message_Box("Save actual TONE first?", buttons, Icon::Question);
        if (answer == Answer::No) Tone_Saved = Flag_16::True;
        if (answer == Answer::Yes) SYX_Save_As();
        if (answer == Answer::Cancel) return false;
    }
    return Is_True(Tone_Saved);
}

void Open_Recent(int place) {
    if (!Recent_Tone(place).empty()) SYX_Load(Recent_Tone(place), SYX_Mode_Open);
}

}  // namespace

void File_SYX_New_Chosen() {
    if (!Tone_May_Go(Buttons_Set::Yes_No)) return;
    Tone_Saved = Flag_16::True;
    Tone_Loading = Flag_8::True;
    Tone_Init();
    Tone_Loading = Flag_8::False;
    Tone_Send();
}

void File_SYX_Open_Chosen() {
    if (Tone_May_Go(Buttons_Set::Yes_No_Cancel)) FD_Show("Open_SYX");
}

void File_SYX_Save_Chosen() {
    // The file window leaves the bare ending when no name was typed.
    if (Tone_File_Name.empty() || Tone_File_Name == ".syx") {
        SYX_Save_As();
    } else {
        SYX_Save();
    }
}

void File_SYX_Opened() {
    if (!Is_True(Seq_Running)) return;
    Timer_Stop(Seq_Tmr);
    Seq_Pos = 0;
    MIDI_All_Notes_Off();
    MIDI_Out_Close();
    Seq_Running = Flag_8::False;
    Button_Release(Editor_Seq_Start);
}

void Tone_Receive_Chosen() {
    Panel_Restore_Picture();
    if (!Tone_May_Go(Buttons_Set::Yes_No)) return;
    // The mode needs an open port; without one nothing more happens.
    MIDI_In_Open();
    MIDI_Receive_Toggle();
}

void Tone_Commands_Install() {
    Menu(Menu_File_SYX).opened = File_SYX_Opened;
    Menu(Menu_File_SYX_New).chosen = File_SYX_New_Chosen;
    Menu(Menu_File_SYX_Open).chosen = File_SYX_Open_Chosen;
    Menu(Menu_File_SYX_Save).chosen = File_SYX_Save_Chosen;
    Menu(Menu_File_SYX_SaveAs).chosen = [] { SYX_Save_As(); };
    // No question here: a recent file takes the place of unsaved changes without a word.
    Menu(Menu_File_SYX_1).chosen = [] { Open_Recent(1); };
    Menu(Menu_File_SYX_2).chosen = [] { Open_Recent(2); };
    Menu(Menu_File_SYX_3).chosen = [] { Open_Recent(3); };
    Menu(Menu_File_SYX_4).chosen = [] { Open_Recent(4); };
    Menu(Menu_Edit_Undo).chosen = Undo_Restore;
    Menu(Menu_Tone_Random).chosen = Tone_Random;
    Menu(Menu_Tone_Receive).chosen = Tone_Receive_Chosen;
}

void Name_Command_Install() {
    TName_Install();
    Menu(Menu_Tone_Name).chosen = [] {
        if (App_Mode.empty()) TName_Show();
    };
}
