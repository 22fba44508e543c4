// What the rules need of the event loop. Bodies: event_loop_qt.cpp and tests/fakes/fake_clock.cpp.
#pragma once

// Runs the events that are pending, without waiting for more. False when no window is open any more.
bool Event_Loop_Turn();

// Sleeps until something happens, at most `milliseconds`, and runs it. False as above.
// This is how a procedure waits: it neither blocks the windows nor burns a core.
bool Event_Loop_Wait(int milliseconds);
