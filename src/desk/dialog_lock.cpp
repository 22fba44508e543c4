#include "desk/dialog_lock.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "platform/event_loop.h"

namespace {

// Every closing of a dialog is an event, and an event ends the sleep at once. The limit only bounds what
// an unheard one could cost.
constexpr int Wait_Milliseconds = 100;

}  // namespace

std::string App_Mode;
std::int16_t Dialog_Depth = 0;

Control* Panel_Current_Control = nullptr;
Control* Panel_Saved_Control = nullptr;
Hook<void()> Panel_Restore_Picture;

void Dialog_Begin(Window& window, const std::string& name) {
    Timer_Stop(Timer1);
    Panel_Restore_Picture();
    if (Is_True(Patch_Window_Open)) Patch.enabled = false;
    if (Is_True(Seq_Window_Open)) Sequencer.enabled = false;
    Menus_Disable();
    App_Mode = name;
    Main_Window.pointer = Pointer::Hourglass;
    Editor.enabled = false;
    Editor_Juno.enabled = false;
    window.pointer = Pointer::Arrow;
    Panel_Saved_Control = Panel_Current_Control;
    ++Dialog_Depth;
}

void Dialog_End() {
    Panel_Restore_Picture();
    Main_Window.pointer = Pointer::Default;
    Editor.enabled = true;
    Editor_Juno.enabled = true;
    if (Is_True(Patch_Window_Open)) {
        Patch.enabled = true;
        Patch.visible = true;
    }
    if (Is_True(Seq_Window_Open)) {
        Sequencer.enabled = true;
        Window_Show(Sequencer);
    }
    // App_Mode still names the dialog while these events run: a click that waited finds the lock on.
    Event_Loop_Turn();
    App_Mode.clear();
    Menus_Enable();
    Panel_Current_Control = Panel_Saved_Control;
    Timer_Start(Timer1);
    --Dialog_Depth;
}

void Dialog_Wait() {
    while (!App_Mode.empty()) {
        if (!Event_Loop_Wait(Wait_Milliseconds)) return;
    }
}
