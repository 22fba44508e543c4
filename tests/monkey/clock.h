// The system's steady clock, moved by hand: timers of the toolkit and the port's time on the wire go by it,
// so a run is the same each time and as fast as the machine.
#pragma once

#include <cstdint>

void Clock_Begin();
void Clock_Move(std::int64_t microseconds);
std::int64_t Clock_Microseconds();  // since the begin
