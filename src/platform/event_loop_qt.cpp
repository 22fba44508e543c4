#include "platform/event_loop.h"

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <algorithm>

#include "platform/gate.h"

namespace {

bool Any_Window_Open() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget* window) { return window->isVisible(); });
}

}  // namespace

bool Event_Loop_Turn() {
    Windows_Show_Changes();
    QCoreApplication::processEvents();
    return Any_Window_Open();
}

bool Event_Loop_Wait(int milliseconds) {
    Windows_Show_Changes();
    // The timer's own event ends the sleep at the latest.
    QTimer alarm;
    alarm.setSingleShot(true);
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.start(milliseconds);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return Any_Window_Open();
}
