// Timers on the kernel's clock, one counter of run-out intervals each, on which the event loop sleeps. The
// toolkit's own timers wait for whole milliseconds, rounded up, and begin a new phase when they are late by
// more than an interval: one of a millisecond would lose a tick in eight.
#include <sys/timerfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cerrno>
#include <cstdint>
#include <map>
#include <memory>
#include <system_error>

#include "platform/gate.h"
#include "platform/timer.h"

namespace {

class Clock {
  public:
    explicit Clock(Timer& timer)
        : timer_(timer),
          counter_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
          run_out_(counter_, QSocketNotifier::Read) {
        if (counter_ == -1) throw std::system_error(errno, std::generic_category(), "No clock");
        QObject::connect(&run_out_, &QSocketNotifier::activated, [this] { Run_Out(); });
    }
    ~Clock() {
        run_out_.setEnabled(false);
        close(counter_);
    }
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;

    // 0 milliseconds stop it. What has run out so far is forgotten.
    void Set(int milliseconds) {
        const timespec interval = {milliseconds / 1000, milliseconds % 1000 * 1'000'000L};
        const itimerspec phase = {interval, interval};
        timerfd_settime(counter_, 0, &phase, nullptr);
    }

  private:
    // Intervals that have run out together are one tick.
    void Run_Out() {
        // Reached from the tick itself, which lets events run: the counter waits until that is over.
        if (ticking_) {
            run_out_.setEnabled(false);
            return;
        }
        std::uint64_t intervals = 0;
        if (read(counter_, &intervals, sizeof intervals) != sizeof intervals) return;
        ticking_ = true;
        Guarded_Event([this] { timer_.tick(); });
        ticking_ = false;
        run_out_.setEnabled(true);
    }

    Timer& timer_;
    int counter_;
    QSocketNotifier run_out_;
    bool ticking_ = false;
};

// One clock a record, made when it first runs. They go with the application, which they must not outlive.
std::map<Timer*, std::unique_ptr<Clock>> Clocks;

}  // namespace

void Timer_Start(Timer& timer) {
    timer.enabled = true;
    if (timer.interval <= 0) return;
    std::unique_ptr<Clock>& clock = Clocks[&timer];
    if (clock == nullptr) {
        if (Clocks.size() == 1) qAddPostRoutine([] { Clocks.clear(); });
        clock = std::make_unique<Clock>(timer);
    }
    clock->Set(timer.interval);
}

void Timer_Stop(Timer& timer) {
    timer.enabled = false;
    const auto clock = Clocks.find(&timer);
    if (clock != Clocks.end()) clock->second->Set(0);
}

void Timer_Set_Interval(Timer& timer, int milliseconds) {
    timer.interval = milliseconds;
    if (!timer.enabled) return;
    Timer_Stop(timer);
    Timer_Start(timer);
}
