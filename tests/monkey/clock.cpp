#include "monkey/clock.h"

#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

namespace {

bool By_Hand = false;
std::int64_t Now = 0;

// A steady clock does not start at 0.
constexpr std::int64_t Start_Seconds = 1000;

}  // namespace

void Clock_Begin() {
    By_Hand = true;
}

void Clock_Move(std::int64_t microseconds) {
    Now += microseconds;
}

std::int64_t Clock_Microseconds() {
    return Now;
}

// Stands before the C library's own for everybody in this process, the toolkit too.
extern "C" int clock_gettime(clockid_t clock, struct timespec* time) noexcept {
    if (By_Hand && clock == CLOCK_MONOTONIC) {
        time->tv_sec = Start_Seconds + Now / 1000000;
        time->tv_nsec = Now % 1000000 * 1000;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
}
