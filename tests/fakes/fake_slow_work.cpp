#include "fakes/fake_slow_work.h"

#include "platform/slow_work.h"

bool Work_Hangs = false;

bool Slow_Work(std::function<void()> work, int) {
    if (!Work_Hangs) work();
    return !Work_Hangs;
}
