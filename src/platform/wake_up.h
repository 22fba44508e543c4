// An event of the interface thread that another thread asks for: how what arrives at the input reaches the
// rules. Bodies: wake_up_qt.cpp and tests/fakes/fake_clock.cpp.
#pragma once

#include "platform/hook.h"

// From now on each Wake_Up leads to `event`, through Guarded_Event (gate.h). Several that come before the
// event runs give one event.
void Wake_Up_Begin(Hook<void()> event);

// No event comes any more. May be called from inside the event.
void Wake_Up_End();

// From any thread; takes no lock and does not wait. Does nothing before Wake_Up_Begin.
void Wake_Up();
