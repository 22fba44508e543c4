// Timers on the toolkit's event loop: precise ones, which keep their phase.
#include <QCoreApplication>
#include <QTimer>
#include <map>
#include <memory>

#include "platform/gate.h"
#include "platform/timer.h"

namespace {

// One QTimer a record, made when it first runs. They go with the application, which they must not outlive.
std::map<Timer*, std::unique_ptr<QTimer>> Clocks;

}  // namespace

void Timer_Start(Timer& timer) {
    timer.enabled = true;
    if (timer.interval <= 0) return;
    std::unique_ptr<QTimer>& clock = Clocks[&timer];
    if (clock == nullptr) {
        if (Clocks.size() == 1) qAddPostRoutine([] { Clocks.clear(); });
        clock = std::make_unique<QTimer>();
        clock->setTimerType(Qt::PreciseTimer);
        QObject::connect(clock.get(), &QTimer::timeout,
                         [&timer] { Guarded_Event([&timer] { timer.tick(); }); });
    }
    clock->start(timer.interval);
}

void Timer_Stop(Timer& timer) {
    timer.enabled = false;
    const auto clock = Clocks.find(&timer);
    if (clock != Clocks.end()) clock->second->stop();
}

void Timer_Set_Interval(Timer& timer, int milliseconds) {
    timer.interval = milliseconds;
    if (!timer.enabled) return;
    Timer_Stop(timer);
    Timer_Start(timer);
}
