// What the menus do with a whole tone: New, Open, Save, the recent files, Undo, Random, Name.
//
// A tone with unsaved changes is asked about before New and Open. Yes leads to Save As, never to Save, and
// the command goes on only when the tone is saved then.
#pragma once

void File_SYX_New_Chosen();
void File_SYX_Open_Chosen();
void File_SYX_Save_Chosen();  // Save As while the tone has no file name

// The submenu of tone files opens: a running sequencer stops, as its notes would hang while the menu is
// open.
void File_SYX_Opened();

// Gives the entries their procedures.
void Tone_Commands_Install();

// Name, with the dialog behind it. Called when the dialog's window is there.
void Name_Command_Install();
