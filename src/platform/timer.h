// Event-loop timers as plain records: a tick is an ordinary event, never a thread.
// Bodies: timer_qt.cpp and tests/fakes/fake_clock.cpp (a clock moved by hand).
#pragma once

#include "platform/hook.h"

// Written through the procedures below only. A timer keeps its phase: a late tick does not push the
// later ones back. A timer does not tick while its own tick is still running (a box may be open in it);
// ticks missed meanwhile are not made up for. The tick enters the program through Guarded_Event (gate.h).
struct Timer {
    int interval;  // milliseconds; 0 never ticks
    bool enabled = false;
    Hook<void()> tick = {};
};

// Starts the interval anew, also when the timer is running.
void Timer_Start(Timer& timer);
void Timer_Stop(Timer& timer);
// A running timer takes the new interval at once.
void Timer_Set_Interval(Timer& timer, int milliseconds);
