// The oscillator's clock: steps through the curve and sends each value to the target. It changes only the
// instrument's sound, neither the tone in memory nor a panel.
//
//   stopped  Timer_Osc off, Osc_Step 0, cursor at column 0
//   playing  Timer_Osc on; each tick is one of 18 steps
//
// It may run beside the sequencer and while a dialog is open.
#pragma once

#include <cstdint>

#include "desk/form.h"
#include "platform/timer.h"

extern std::int16_t Osc_Param;  // the target's code, see targets.h
extern std::uint8_t Osc_Step;   // 0 to 17, the point that the next tick plays

extern Timer Timer_Osc;
extern Scroll_Bar Osc_Time;  // milliseconds a step; 0 stops the ticks and leaves the clock on

// One step: moves the cursor, shows the value, sends it, and lets pending events run.
void Osc_Tick();

// Sends a value, 0 to 127, to the target, unless MIDI_Autosend or MIDI_Enabled is off. A code that is none
// of the targets' sends the text of the last parameter message once more.
void Osc_Send(std::int16_t value);

// Plays from the first point, at once; also when it is playing.
void Osc_Play();

// Stops the clock and puts the cursor back. What the instrument heard last stays.
void Osc_Halt();

// A curve that plays goes on at the new speed.
void Osc_Set_Interval(int milliseconds);

// Gives the clock its tick.
void Osc_Engine_Install();
