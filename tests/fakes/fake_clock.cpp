#include "fakes/fake_clock.h"

#include <algorithm>
#include <deque>
#include <map>
#include <utility>

#include "platform/event_loop.h"
#include "platform/gate.h"
#include "platform/timer.h"
#include "platform/wake_up.h"

using std::chrono::milliseconds;

Fake_Loop Loop;

namespace {

milliseconds Now{0};
std::map<Timer*, milliseconds> Due;
std::deque<std::function<void()>> Pending;
Timer* Ticking = nullptr;
Hook<void()> Waking;
bool Woken = false;

void Run_Pending() {
    for (std::deque<std::function<void()>> events = std::exchange(Pending, {}); !events.empty();
         events.pop_front()) {
        events.front()();
    }
    if (std::exchange(Woken, false) && Waking.Filled()) Guarded_Event([] { Waking(); });
}

}  // namespace

void Timer_Start(Timer& timer) {
    timer.enabled = true;
    Due[&timer] = Now + milliseconds(timer.interval);
}

void Timer_Stop(Timer& timer) {
    timer.enabled = false;
    Due.erase(&timer);
}

void Timer_Set_Interval(Timer& timer, int interval) {
    timer.interval = interval;
    if (timer.enabled) Timer_Start(timer);
}

void Advance(milliseconds time) {
    const milliseconds end = Now + time;
    for (;;) {
        auto next = Due.end();
        for (auto candidate = Due.begin(); candidate != Due.end(); ++candidate) {
            if (candidate->first == Ticking || candidate->first->interval == 0) continue;
            if (next == Due.end() || candidate->second < next->second) next = candidate;
        }
        if (next == Due.end() || next->second > end) break;
        Now = std::max(Now, next->second);
        Timer* timer = next->first;
        next->second += milliseconds(timer->interval);
        Timer* const outer = std::exchange(Ticking, timer);
        Guarded_Event([timer] { timer->tick(); });
        Ticking = outer;
    }
    Now = std::max(Now, end);
}

void Wake_Up_Begin(Hook<void()> event) {
    Waking = event;
    Woken = false;
}
void Wake_Up_End() {
    Waking = {};
}
void Wake_Up() {
    Woken = true;
}
bool Wakes() {
    return Waking.Filled();
}

void At_Next_Turn(const std::function<void()>& event) {
    Pending.push_back(event);
}

bool Event_Loop_Turn() {
    ++Loop.turns;
    Run_Pending();
    return Loop.windows_open;
}

bool Event_Loop_Wait(int milliseconds_at_most) {
    ++Loop.waits;
    Run_Pending();
    Advance(milliseconds(milliseconds_at_most));
    return Loop.windows_open;
}
