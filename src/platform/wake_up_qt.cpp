#include "platform/wake_up.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <atomic>
#include <cstdint>
#include <memory>

#include "platform/gate.h"

namespace {

// A counter that one thread adds to and the event loop sleeps on. It stays open for the life of the
// process, so that a late thread never writes into something else.
std::atomic<int> Counter = -1;

struct Listener_State {
    std::unique_ptr<QSocketNotifier> notifier;  // goes with the application, which it must not outlive
    Hook<void()> event;
};

Listener_State Listener;

void Empty_Counter() {
    std::uint64_t count = 0;
    (void)!read(Counter, &count, sizeof count);
}

}  // namespace

void Wake_Up_Begin(Hook<void()> event) {
    Listener.event = event;
    if (Counter == -1) Counter = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
    if (Counter == -1) return;
    Empty_Counter();
    if (Listener.notifier == nullptr) {
        Listener.notifier = std::make_unique<QSocketNotifier>(Counter, QSocketNotifier::Read);
        qAddPostRoutine([] { Listener.notifier.reset(); });
        QObject::connect(Listener.notifier.get(), &QSocketNotifier::activated, [] {
            Empty_Counter();
            Guarded_Event([] { Listener.event(); });
        });
    }
    Listener.notifier->setEnabled(true);
}

void Wake_Up_End() {
    if (Listener.notifier != nullptr) Listener.notifier->setEnabled(false);
}

void Wake_Up() {
    const std::uint64_t one = 1;
    if (Counter != -1) (void)!write(Counter, &one, sizeof one);
}
