#include "windows/screen.h"

#include <QAccessible>
#include <filesystem>
#include <fstream>

#include "panels/pictures_qt.h"
#include "panels/spoken_qt.h"
#include "platform/gate.h"
#include "shell/frame.h"
#include "shell/style_qt.h"
#include "shell/wiring.h"

namespace {

int Argument_Count = 1;
char Program_Name[] = "tonebench";
char* Arguments[] = {Program_Name, nullptr};
App_Window* Shown_Window = nullptr;

}  // namespace

Screen::Screen(const char* scale) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_SCALE_FACTOR", scale, 1);
    application_ = std::make_unique<QApplication>(Argument_Count, Arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Style_Install();
    Pictures_Open();
    Widgets_Speak();
    std::filesystem::copy_file(BUILD_DIR "/JX8P.FNT", Test_Folder() + "/JX8P.FNT");
    Ports.out_names = {"Synth Out", "Other Out"};
    Ports.in_names = {"Keys In"};
    Program_Wire();
    window_ = std::make_unique<App_Window>();
    Shown_Window = window_.get();
    Windows_Show_Changes = [] { Shown_Window->Show_Changes(); };
}

Screen::~Screen() {
    Windows_Show_Changes = {};
    window_.reset();
}

void Screen::TearDown() {
    Check_All_Boxes_Came();
}

void Screen::Start(const std::string& settings) {
    std::ofstream(Test_Folder() + "/Tonebench.INI", std::ios::binary) << settings;
    ASSERT_TRUE(Main_Load());
    Windows_Show_Changes();
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    QTest::qWait(1);
}

QWidget* Screen::Widget(const char* name) const {
    auto* widget = window_->findChild<QWidget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return widget;
}

QString Screen::Focused() {
    const QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? QString("(none)") : widget->objectName();
}

QString Screen::Heard(QWidget* widget) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    QString heard = spoken->text(QAccessible::Name);
    if (QAccessibleValueInterface* value = spoken->valueInterface()) {
        const QString number = QString::number(value->currentValue().toDouble());
        if (spoken->text(QAccessible::Value) == number) heard += ", " + number;
    }
    if (spoken->state().checkable) heard += spoken->state().checked ? ", on" : ", off";
    return heard;
}
