// The timers that more than one room starts and stops.
#pragma once

#include "platform/timer.h"

// Focus blink of every panel: stands on Editor, 250 ms, running while Editor is loaded, except while a
// dialog is open. The tick is panels/controls.
extern Timer Timer1;

// 2000 ms, a one-shot: whoever puts a value in the place of the tone's name starts it again, and its tick
// (shell/frame) brings the name back. It also ends the wait of the file window's preview.
extern Timer Timer_Display;

// The sequencer's clock, one step a tick.
extern Timer Seq_Tmr;
