// The gate through which every event enters the rules: a window's event, a menu entry, a timer's tick.
#pragma once

#include <functional>

#include "platform/hook.h"

// Filled in by the windows: brings what they show up to the records. Called behind every event and
// before anything waits.
extern Hook<void()> Windows_Show_Changes;

// Runs `handler`. A programming mistake (any exception) ends this handler only: its text is shown in a
// box and the program goes on. Windows_Show_Changes follows in any case.
void Guarded_Event(const std::function<void()>& handler);
