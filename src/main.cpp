// The entry: puts the program together, starts it and runs its events.
#include <QApplication>
#include <csignal>
#include <cstdio>

#include "desk/windows.h"
#include "panels/pictures_qt.h"
#include "panels/spoken_qt.h"
#include "platform/gate.h"
#include "platform/program.h"
#include "shell/app_window.h"
#include "shell/frame.h"
#include "shell/style_qt.h"
#include "shell/wiring.h"

namespace {

// The one main window, for the hook that brings it up to the records.
App_Window* The_Window = nullptr;

}  // namespace

int main(int argument_count, char** arguments) {
    // The places of the windows are settings, and only X lets a program place its windows.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    // A user whose files are limited in size is told like one whose disk is full.
    std::signal(SIGXFSZ, SIG_IGN);
    QApplication application(argument_count, arguments);
    QApplication::setApplicationName("Tonebench");
    // The desktop's entry of that name gives the windows their icon and their place in its bar.
    QApplication::setDesktopFileName("io.github.tonebench.Tonebench");
    Style_Install();
    Pictures_Open();
    QApplication::setWindowIcon(Program_Icon());
    Widgets_Speak();
    Program_Wire();
    Program_Leave_Home();

    App_Window window;
    The_Window = &window;
    Windows_Show_Changes = [] { The_Window->Show_Changes(); };

    // Boxes come and go before the main window shows: none of them is the last window.
    QApplication::setQuitOnLastWindowClosed(false);
    bool started = false;
    Guarded_Event([&started] { started = Main_Load(); });
    const int result = started ? QApplication::exec() : 0;
    Windows_Show_Changes = {};
    return result;
}
