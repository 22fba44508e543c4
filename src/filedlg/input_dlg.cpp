#include "filedlg/input_dlg.h"

#include "desk/windows.h"
#include "platform/event_loop.h"

namespace {

// Every closing is an event, and an event ends the sleep at once.
constexpr int Wait_Milliseconds = 100;

// Its place is fixed, wherever the main window stands.
constexpr int Place = 150;

void Load() {
    Input_Dlg.caption = Input_Title;
    Input_Dlg.left = Place;
    Input_Dlg.top = Place;
    Input_Dlg.width = 360;
    Input_Dlg.height = 170;
    Input_Result.clear();
}

}  // namespace

std::string Input_Result;
Input_Form Input_Dialog;

std::string Input_Box(const std::string& prompt, const std::string& title, const std::string& text) {
    // A box that is asked for within its own events would never be answered.
    if (Input_Dlg.loaded) return "";
    Window_Load(Input_Dlg);
    Input_Dlg.caption = title;
    Input_Dialog.prompt = prompt;
    Input_Dialog.text = text;
    ++Input_Dialog.times_selected;
    Window_Show(Input_Dlg);
    while (Input_Dlg.loaded) {
        if (!Event_Loop_Wait(Wait_Milliseconds)) break;
    }
    Window_Unload(Input_Dlg);
    return Input_Result;
}

void Input_Textbox_Change(const std::string& text) {
    Input_Dialog.text = text;
}

void Input_OK_Click() {
    Input_Result = Input_Dialog.text;
    Window_Unload(Input_Dlg);
}

void Input_Cancel_Click() {
    Input_Result.clear();
    Window_Unload(Input_Dlg);
}

void Input_Install() {
    Input_Dlg.load = Load;
}
