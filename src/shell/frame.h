// The frame of the whole program: its start, its end, and the events of the main window itself.
#pragma once

#include "platform/hook.h"

// The start-up, in its fixed order. False when the screen is refused: the program has ended then.
[[nodiscard]] bool Main_Load();

// Whether the program may end: stops the sequencer, closes Patch and Sequencer and asks about unsaved work.
// A refused end leaves them stopped and closed.
[[nodiscard]] bool Main_Query_Unload();

// The end: font, timers, settings, port.
void Main_Unload();

// Query and unload, as the frame's close box and Menu_File_Exit do it. True when the program has ended.
bool Main_Close();

// A click on the frame's bare ground: with a dialog open the audible answer that the rest is locked.
void Main_Background_Click();

// Timer_Display's tick.
void Main_Display_Tick();

// The settings' place in the start and the end.
extern Hook<void()> Settings_Read;
extern Hook<void()> Settings_Write;
// The Patch window's: its two selected lamps go back to the first.
extern Hook<void()> Patch_Lamps_Reset;
// The Alpha Juno panel's: the name in its display, and the envelope's picture gone.
extern Hook<void()> Juno_Show_Name;
// The help window's: its display shows "Waiting...".
extern Hook<void()> Help_Show_Waiting;
