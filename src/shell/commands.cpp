#include "shell/commands.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "help/help.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "panels/push_buttons.h"
#include "platform/message_box.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/messages.h"
#include "synth/profile.h"

namespace {

void Stop_Sequencer() {
    Timer_Stop(Seq_Tmr);
    Seq_Pos = 0;
    Seq_Running = Flag_8::False;
}

}  // namespace

void MIDI_CloseOutput_Chosen() {
    MIDI_All_Notes_Off();
    if (Is_True(Seq_Running)) {
        Stop_Sequencer();
        Button_Release(Editor_Seq_Start);
    }
    MIDI_Out_Close_Fully();
}

void MIDI_Setup_Chosen() {
    if (MIDI_Enabled == 1 && Is_True(Seq_Running)) {
        Stop_Sequencer();
        MIDI_All_Notes_Off();
        Button_Release(Editor_Seq_Start);
        if (Is_True(Seq_Window_Open)) Seq_Start_Raise();
    }
    if (App_Mode.empty()) Window_Show(MIDI_Setup);
}

void Tone_Send_Chosen() {
    Sysex_Headers_Update();
    Tone_Send();
}

void Tone_Patch_Chosen() {
    if (Synthesizer == "JX-8P") {
        Window_Load(Patch);
        Window_Place(Patch, Patch_Left, Patch_Top);
        Window_Show(Patch);
    } else if (Synthesizer == "MKS-70") {
        Message_Box("Sorry, patch settings not available yet.", Buttons_Set::Ok, Icon::Exclamation);
    }
}

void Commands_Install() {
    Menu(Menu_File_Exit).chosen = [] { Main_Close(); };
    Menu(Menu_MIDI_CloseOutput).chosen = MIDI_CloseOutput_Chosen;
    Menu(Menu_MIDI_Setup).chosen = MIDI_Setup_Chosen;
    Menu(Menu_Tone_Patch).chosen = Tone_Patch_Chosen;
    Menu(Menu_Tone_Send).chosen = Tone_Send_Chosen;
    Menu(Menu_Help_Howto).chosen = Menu_Help_Howto_Chosen;
    Menu(Menu_Help_Search).chosen = Menu_Help_Search_Chosen;
    Menu(Menu_Help_About).chosen = Menu_Help_About_Chosen;
}
