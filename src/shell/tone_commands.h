// What the menus do with a whole tone: New, Open, Save, the recent files, Undo, Random, Name.
//
// A tone with unsaved changes is asked about before New and Open. Yes leads to Save As, never to Save, and
// the command goes on only when the tone is saved then.
#pragma once

#include "platform/hook.h"

void File_SYX_New_Chosen();
void File_SYX_Open_Chosen();
void File_SYX_Save_Chosen();  // Save As while the tone has no file name

// The submenu of tone files opens: a running sequencer stops, as its notes would hang while the menu is
// open.
void File_SYX_Opened();

// Filled in by the file window: opens it in this mode ("Open_SYX") and returns at once.
extern Hook<void(const char* mode)> File_Window_Open;

// Gives the entries their procedures, except those that lead into windows.
void Tone_Commands_Install();

// Open and Save As. Called when the file window is there: an entry without a procedure is not shown.
void File_Commands_Install();

// Name, with the dialog behind it. Called when the dialog's window is there.
void Name_Command_Install();
