#include "tname/tname.h"

#include "desk/dialog_lock.h"
#include "desk/windows.h"
#include "panels/editor.h"
#include "synth/messages.h"
#include "synth/tone.h"
#include "synth/tone_name.h"
#include "synth/views.h"

namespace {

void Load() {
    TName.caption = TName_Title;
    TName.width = 300;
    TName.height = 130;
    Window_Centre_Over_Main(TName);
    Dialog_Begin(TName, "TName");
    TName_Dialog.tone_name = Tone_Name_Text;
}

}  // namespace

TName_Form TName_Dialog;

void TName_Tone_Name_Change(const std::string& text) {
    TName_Dialog.tone_name = text.substr(0, Tone_Name_Size);
}

void TName_Cmd_OK() {
    Tone_Name_Text = Tone_Name_Of(TName_Dialog.tone_name);
    // Both records take the name whatever the instrument; the one that is not on show takes it unseen.
    Tone_Name_To_Data();
    Editor_Tone_Name.text = Tone_Name_Text;
    Juno_Display_Name();
    Juno_Name_To_Data(Tone_Name_Text);
    Tone_Name_Send();
    Window_Unload(TName);
}

void TName_Cmd_Cancel() {
    Window_Unload(TName);
}

void TName_Install() {
    TName.load = Load;
    TName.unload = Dialog_End;
    TName_Show = [] { Window_Show(TName); };
}
