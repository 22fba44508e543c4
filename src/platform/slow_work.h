// Work that may keep one waiting, such as listing a folder on a network share or on a disk that sleeps.
#pragma once

#include <functional>

// Runs `work` beside the interface thread and returns true when it is done. Mostly that is at once. Else
// the windows are painted and the timers tick meanwhile, but neither pointer nor keys come through, and
// after a fifth of a second the pointer shows that one has to wait.
//
// An exception of the work is thrown here. False when it has not come back within so many milliseconds. It
// is left behind then and may yet end at any time: so it owns all that it touches, and reads nothing that
// anybody else writes.
[[nodiscard]] bool Slow_Work(std::function<void()> work, int milliseconds);
