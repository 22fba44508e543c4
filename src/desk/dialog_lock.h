// The lock that a dialog-like window puts on the rest by hand. Such a window is an ordinary window: its
// load procedure calls Dialog_Begin, its unload procedure Dialog_End. Locks do not nest in any useful
// way: a second Dialog_Begin takes the first one's place.
#pragma once

#include <cstdint>
#include <string>

#include "desk/windows.h"
#include "platform/hook.h"

// Name of the open dialog-like window: "Help", "MIDI_Setup", "File_Dlg", "TName"; empty when none.
// Written by Dialog_Begin and Dialog_End, and emptied once by the start-up.
extern std::string App_Mode;

// Dialog_Begin minus Dialog_End. Nothing decides on it.
extern std::int16_t Dialog_Depth;

// The one control with the focus mark, on any panel, and what it was at the last Dialog_Begin. What a
// control is, is known to panels/ alone, which also moves the mark.
extern Control* Panel_Current_Control;
extern Control* Panel_Saved_Control;

// Filled in by panels/: the focused control gets its resting picture.
extern Hook<void()> Panel_Restore_Picture;

void Dialog_Begin(Window& window, const std::string& name);
void Dialog_End();

// Returns when App_Mode is empty (or the program's last window has gone). Events run meanwhile; the wait
// sleeps between them.
void Dialog_Wait();
