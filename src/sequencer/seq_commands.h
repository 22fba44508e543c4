// The File menu's commands for sequences, as the menu and the sequencer's window run them.
#pragma once

#include "platform/hook.h"

// Asks about unsaved edits first and then empties the sequence, unless the user gave up or nothing was
// saved. `answered` runs as soon as the question has its answer; not when there was nothing to ask.
void File_Seq_New_Chosen(Hook<void()> answered = {});

void File_Seq_Open_Chosen();             // asks likewise, then opens the file window
void File_Seq_Save_Chosen();             // to the current file, or by Save As when there is none
void File_Seq_Recent_Chosen(int place);  // 1 to 4; an empty place does nothing

// Filled in by the file window. Save As returns when the window has closed; whether the sequence was saved
// stands in Seq_Saved.
extern Hook<void()> Seq_Save_As;
extern Hook<void()> Seq_Open;
