#include "shell/osc_commands.h"

#include "desk/menus.h"
#include "filedlg/file_dlg.h"
#include "oscwin/oscwin.h"
#include "platform/message_box.h"
#include "synth/tone.h"

void File_Osc_Open_Chosen() {
    if (!Is_True(Tone_Saved)) {
        const Answer answer =
            Message_Box("Save actual TONE first?", Buttons_Set::Yes_No_Cancel, Icon::Question);
        if (answer == Answer::No) Tone_Saved = Flag_16::True;
        if (answer == Answer::Yes) File_Osc_SaveAs_Chosen();
        if (answer == Answer::Cancel) return;
    }
    if (Is_True(Tone_Saved)) FD_Show("Open_OSC");
}

void File_Osc_SaveAs_Chosen() {
    Message_Box("OSC SaveAs");
}

void Osc_Commands_Install() {
    Menu(Menu_MIDI_Osc).chosen = Osc_Show;
    Menu(Menu_File_Osc_Open).chosen = File_Osc_Open_Chosen;
    Menu(Menu_File_Osc_SaveAs).chosen = File_Osc_SaveAs_Chosen;
}
