// A clock moved by hand, which drives timers and the event loop.
#pragma once

#include <chrono>
#include <functional>

// Moves the clock on; timers tick in the order in which they fall due.
void Advance(std::chrono::milliseconds time);

// Runs `event` at the next turn of the event loop.
void At_Next_Turn(const std::function<void()>& event);

// Whether a Wake_Up leads to an event at the moment.
bool Wakes();

struct Fake_Loop {
    int turns = 0;             // calls of Event_Loop_Turn
    int waits = 0;             // calls of Event_Loop_Wait
    bool windows_open = true;  // what both answer
};
extern Fake_Loop Loop;
