#include "monkey/acts.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <array>
#include <utility>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/windows.h"
#include "midi/in.h"
#include "monkey/checks.h"
#include "monkey/clock.h"
#include "monkey/diary.h"
#include "monkey/dice.h"
#include "monkey/disk.h"
#include "monkey/port.h"
#include "platform/gate.h"

namespace {

Qt::MouseButtons Held = Qt::NoButton;

int Milliseconds() {
    return static_cast<int>(Clock_Microseconds() / 1000);
}

// -- whom it meets ---------------------------------------------------------------------------------------

QMainWindow* Main() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<QMainWindow*>(widget)) return main;
    }
    return nullptr;
}

QWidget* Widget_Of(const QWindow* window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window) return widget;
    }
    return nullptr;
}

std::string Name_Of(const QWidget* widget) {
    if (widget == nullptr) return "(none)";
    const QString name = widget->objectName();
    return (name.isEmpty() ? QString(widget->metaObject()->className()) : name).toStdString();
}

// What gets the keys; nothing that has gone from the screen.
QWindow* Front() {
    QWindow* const front = QGuiApplication::focusWindow();
    return front != nullptr && front->isVisible() ? front : nullptr;
}

// A window that the user sees, in the order in which they came to be. Whoever is in front gets the most.
QWindow* Any_Window() {
    const QWidget* const popup = QApplication::activePopupWidget();
    if (popup != nullptr && !Chance.One_In(8)) return popup->windowHandle();
    if (Front() != nullptr && !Chance.One_In(3)) return Front();
    std::vector<QWindow*> seen;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) seen.push_back(window);
    }
    return seen.empty() ? nullptr : Chance.Of(seen);
}

bool Is_Blocked(const QWidget* window) {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != window;
}

QPoint Any_Point(const QWidget& window) {
    if (!Chance.One_In(5)) {
        std::vector<QWidget*> seen;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->window() == &window && widget->isVisible()) seen.push_back(widget);
        }
        if (!seen.empty()) {
            const QWidget* const widget = Chance.Of(seen);
            const QPoint place(Chance.Below(std::max(1, widget->width())),
                               Chance.Below(std::max(1, widget->height())));
            return widget->mapTo(&window, place);
        }
    }
    return {Chance.Between(-20, window.width() + 20), Chance.Between(-20, window.height() + 20)};
}

// -- the pointer -----------------------------------------------------------------------------------------

void Pointer(QWindow* window, const std::string& name, QPoint place, Qt::MouseButton button,
             QEvent::Type type) {
    if (type == QEvent::MouseButtonPress) Held |= button;
    if (type == QEvent::MouseButtonRelease) Held &= ~button;
    const char* const kind = type == QEvent::MouseMove        ? "move"
                             : button != 0 && (Held & button) ? "press"
                                                              : "release";
    Diary_Note(
        kind, name,
        std::to_string(place.x()) + "," + std::to_string(place.y()) + " button " + std::to_string(button));
    qt_handleMouseEvent(window, place, window->mapToGlobal(place), Held,
                        type == QEvent::MouseMove ? Qt::NoButton : button, type, Qt::NoModifier,
                        Milliseconds());
    Check_Records();
}

Qt::MouseButton Any_Button() {
    if (Chance.One_In(8)) return Qt::RightButton;
    return Chance.One_In(40) ? Qt::MiddleButton : Qt::LeftButton;
}

void Press_In(const QPointer<QWindow>& window) {
    const QWidget* const widget = window == nullptr ? nullptr : Widget_Of(window);
    if (widget == nullptr) return;
    const std::string name = Name_Of(widget);
    QPoint place = Any_Point(*widget);
    const Qt::MouseButton button = Any_Button();
    const int presses = Chance.One_In(5) ? 2 : 1;
    const int moves = Chance.One_In(3) ? Chance.Between(1, 6) : 0;
    const bool far = Chance.One_In(4);
    const bool leaves_held = Chance.One_In(30);
    for (int press = 0; press < presses && window != nullptr; ++press) {
        Pointer(window, name, place, button, QEvent::MouseButtonPress);
        for (int move = 0; move < moves && window != nullptr; ++move) {
            const int reach = far ? 600 : 40;
            place += QPoint(Chance.Between(-reach, reach), Chance.Between(-reach, reach));
            Pointer(window, name, place, button, QEvent::MouseMove);
        }
        if (leaves_held || window == nullptr) break;
        Pointer(window, name, place, button, QEvent::MouseButtonRelease);
    }
}

// A press brings a window to the front, which the desktop sees to; it is pressed on when it has come there.
QPointer<QWindow> To_Be_Pressed;

void Pointer_Act() {
    QWindow* const window = Any_Window();
    QWidget* const widget = window == nullptr ? nullptr : Widget_Of(window);
    if (widget == nullptr) return;
    const bool comes = window == Front() || widget->windowType() == Qt::Popup || Is_Blocked(widget) ||
                       QApplication::activePopupWidget() != nullptr;
    if (comes) {
        Press_In(window);
        return;
    }
    widget->activateWindow();
    To_Be_Pressed = window;
}

void Wheel_Act() {
    QWindow* const window = Any_Window();
    QWidget* const widget = window == nullptr ? nullptr : Widget_Of(window);
    if (widget == nullptr || Is_Blocked(widget) || !widget->isEnabled()) return;
    const QPoint place = Any_Point(*widget);
    QWidget* const below = widget->childAt(place);
    if (below == nullptr || !below->isEnabled()) return;
    Diary_Note("wheel", Name_Of(widget), Name_Of(below));
    QWheelEvent event(below->mapFrom(widget, place), widget->mapToGlobal(place), {},
                      {0, Chance.Between(-240, 240)}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(below, &event);
    Check_Records();
}

// -- the keys --------------------------------------------------------------------------------------------

void Press_Key(QWindow* window, int key, Qt::KeyboardModifiers held, const QString& text) {
    const QPointer<QWindow> kept = window;
    Diary_Note("key", Name_Of(Widget_Of(window)),
               QKeySequence(key | static_cast<int>(held)).toString().toStdString());
    qt_handleKeyEvent(window, QEvent::KeyPress, key, held, text);
    if (kept != nullptr) qt_handleKeyEvent(kept, QEvent::KeyRelease, key, held, text);
    Check_Records();
}

// A letter beyond the first 128 in a tone's name becomes a byte that no well-formed message has.
void Press_Letter(QWindow* window, QChar letter, Qt::KeyboardModifiers held) {
    if (!Wild_Life && letter.unicode() > 127) return;
    Press_Key(window, letter.toUpper().unicode(), held,
              held.testFlag(Qt::ControlModifier) ? QString() : letter);
}

Qt::KeyboardModifiers Any_Modifiers() {
    Qt::KeyboardModifiers held = Qt::NoModifier;
    if (Chance.One_In(10)) held |= Qt::ShiftModifier;
    if (Chance.One_In(14)) held |= Qt::ControlModifier;
    if (Chance.One_In(14)) held |= Qt::AltModifier;
    return held;
}

void Key_Act() {
    static const std::vector<int> keys = {
        Qt::Key_Tab,  Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Up,     Qt::Key_Down,
        Qt::Key_Left, Qt::Key_Right,     Qt::Key_PageUp,  Qt::Key_Home,   Qt::Key_PageDown,
        Qt::Key_End,  Qt::Key_Space,     Qt::Key_Return,  Qt::Key_Escape, Qt::Key_Delete,
        Qt::Key_F1,   Qt::Key_Backspace, Qt::Key_Plus,    Qt::Key_Minus,  Qt::Key_Insert,
        Qt::Key_F4,   Qt::Key_F10,       Qt::Key_Menu,    Qt::Key_Shift,  Qt::Key_Enter};
    QWindow* const window = Front();
    if (window == nullptr) return;
    const Qt::KeyboardModifiers held = Any_Modifiers();
    if (Chance.One_In(3)) {
        static const QString letters =
            QString::fromUtf8("abcdefghijklmnopqrstuvwxyz0123456789.-*/ \u00e4\u20ac\u4e2d");
        Press_Letter(window, letters[Chance.Below(static_cast<int>(letters.size()))], held);
        return;
    }
    const int key = Chance.Of(keys);
    for (int times = Chance.One_In(4) ? Chance.Between(2, 6) : 1; times > 0; --times) {
        if (Front() != nullptr) Press_Key(Front(), key, held, key == Qt::Key_Space ? " " : "");
    }
}

// A whole name into the field that has the keyboard.
void Type_Act() {
    if (qobject_cast<QLineEdit*>(QApplication::focusWidget()) == nullptr) return;
    const QPointer<QWindow> window = Front();
    if (window == nullptr) return;
    Press_Key(window, Qt::Key_A, Qt::ControlModifier, "");
    for (const QChar letter : QString::fromStdString(Disk_Any_Name())) {
        if (Front() != window || window == nullptr) return;
        Press_Letter(window, letter, Qt::NoModifier);
    }
    if (Chance.One_In(2) && window != nullptr) Press_Key(window, Qt::Key_Return, Qt::NoModifier, "\r");
}

// -- menus -----------------------------------------------------------------------------------------------

bool Is_On_Offer(const QAction& action) {
    return action.isVisible() && action.isEnabled() && !action.isSeparator();
}

// The entries that a user could choose now, those that lead far several times.
void Collect(const QList<QAction*>& actions, std::vector<QAction*>& offered) {
    static const std::vector<Menu_Id> favourites = {
        Menu_File_SYX_Open, Menu_File_SYX_SaveAs, Menu_File_Seq_Open, Menu_File_Seq_SaveAs,
        Menu_MIDI_Setup,    Menu_Tone_Receive,    Menu_MIDI_Osc,      Menu_MIDI_Seq};
    constexpr int Times = 4;
    for (QAction* action : actions) {
        if (!Is_On_Offer(*action)) continue;
        if (action->menu() != nullptr) {
            Collect(action->menu()->actions(), offered);
            continue;
        }
        const bool favourite = std::any_of(favourites.begin(), favourites.end(), [action](Menu_Id id) {
            return action->objectName() == Menu(id).name;
        });
        offered.insert(offered.end(), favourite ? Times : 1, action);
    }
}

void Menu_Act() {
    const QMainWindow* const main = Main();
    if (main == nullptr || !main->isVisible() || Is_Blocked(main) ||
        QApplication::activePopupWidget() != nullptr)
        return;
    std::vector<QAction*> offered;
    Collect(main->menuBar()->actions(), offered);
    if (offered.empty()) return;
    const QPointer<QAction> chosen = Chance.Of(offered);
    if (chosen->objectName() == Menu(Menu_File_Exit).name && !Chance.One_In(12)) return;
    Diary_Note("menu", "Tonebench", chosen->objectName().toStdString());
    for (QObject* above = chosen->parent(); above != nullptr; above = above->parent()) {
        if (auto* menu = qobject_cast<QMenu*>(above)) emit menu->aboutToShow();
    }
    if (chosen != nullptr && Is_On_Offer(*chosen)) chosen->trigger();
    Check_Records();
}

// No menu leads to it yet.
void MKS_Act() {
    if (!App_Mode.empty() || Patch.loaded || QApplication::activeModalWidget() != nullptr) return;
    Diary_Note("menu", "Patch_MKS70", "show");
    Guarded_Event([] { Window_Show(Patch_MKS70); });
}

// -- the desktop -----------------------------------------------------------------------------------------

void Desktop_Act() {
    QWindow* const window = Any_Window();
    QWidget* const widget = window == nullptr ? nullptr : Widget_Of(window);
    if (widget == nullptr) return;
    const std::string name = Name_Of(widget);
    const bool main = widget == Main();
    switch (Chance.Below(8)) {
        case 0:
            Diary_Note("desktop", name, "move");
            widget->move(Chance.Between(-300, 1500), Chance.Between(-300, 1000));
            break;
        case 1:
            if (!main) break;
            Diary_Note("desktop", name, "resize");
            widget->resize(Chance.Between(1, 1600), Chance.Between(1, 1200));
            break;
        case 2:
            if (!main) break;
            Diary_Note("desktop", name, "state");
            if (Chance.One_In(3)) {
                widget->showMaximized();
            } else if (Chance.One_In(3)) {
                widget->showMinimized();
            } else {
                widget->showNormal();
            }
            break;
        case 3:
        case 4:
            if (Is_Blocked(widget)) break;
            Diary_Note("desktop", name, "activate");
            widget->activateWindow();
            break;
        default:
            if (Is_Blocked(widget) || (main && !Chance.One_In(20))) break;
            Diary_Note("desktop", name, "close");
            widget->close();
            break;
    }
    Check_Records();
}

// -- instrument and disk ---------------------------------------------------------------------------------

void Port_Act() {
    static const std::vector<Port_Result> failures = {Port_Failed, Port_Bad_Device, Port_No_Driver,
                                                      Port_Gone, 999};
    static const std::vector<std::string> names = {"Synth Out",      "Other Out", "Keys In",
                                                   "UM-ONE & <b>co", "",          "x"};
    const Port_Result failure = Chance.Of(failures);
    std::string what = "healed";
    switch (Chance.Below(14)) {
        case 0:
            what = "open fails";
            Ports.out_open = failure;
            break;
        case 1:
            what = "notes fail";
            Ports.out_short = failure;
            break;
        case 2:
            what = "messages fail";
            Ports.out_long = failure;
            break;
        case 3:
            what = "close fails";
            Ports.out_close = failure;
            break;
        case 4:
            what = "gone";
            Ports.out_short = Ports.out_long = Port_Gone;
            Ports.out_open = Port_Bad_Device;
            Ports.in_present = false;
            Ports.in_reset = Port_Gone;
            Ports.out_names.clear();
            Ports.in_names.clear();
            break;
        case 5:
            what = "other devices";
            Ports.out_names = {Chance.Of(names), Chance.Of(names), "Synth Out"};
            Ports.in_names = {Chance.Of(names), "Keys In"};
            break;
        case 6:
            what = "input fails";
            Ports.in_open = failure;
            break;
        case 7:
            what = "buffers fail";
            Ports.in_add = failure;
            break;
        case 8:
            what = "input gone";
            Ports.in_present = false;
            break;
        default:
            Ports_Heal();
            break;
    }
    Diary_Note("port", "", what);
}

std::string Any_Data(int count) {
    std::string text;
    for (int place = 0; place < count; ++place) text += static_cast<char>(Chance.Below(128));
    return text;
}

// A whole tone, another maker's message, and in a wild life one that was cut.
std::string Any_Message() {
    if (!Chance.One_In(3)) return std::string("\xF0\x41\x35\x00\x21\x20\x01", 7) + Any_Data(59) + '\xF7';
    if (Wild_Life && Chance.One_In(2)) return '\xF0' + Any_Data(Chance.Below(65)) + '\xF7';
    return '\xF0' + Any_Data(Chance.One_In(10) ? 4094 : Chance.Between(70, 300)) + '\xF7';
}

void Arrival_Act() {
    if (MIDI_In_Handle == Port_Closed) return;
    const int messages = Chance.One_In(5) ? Chance.Between(2, 12) : 1;
    for (int message = 0; message < messages; ++message) {
        Diary_Note("arrival", "", "");
        Ports_Arrive(Any_Message());
    }
    if (Chance.One_In(20)) Ports_Refuse();
}

void Disk_Act() {
    if (Chance.One_In(3)) {
        const int one_in = Chance.One_In(4) ? Chance.Between(2, 20) : 0;
        Diary_Note("disk", "", "fails one in " + std::to_string(one_in));
        Disk_Fail_One_In(one_in);
        return;
    }
    Diary_Note("disk", "", Disk_Change());
}

struct Kind {
    int weight;
    void (*act)();
};
// clang-format off
constexpr std::array Kinds = {
    Kind{30, Pointer_Act}, Kind{20, Key_Act}, Kind{5, Type_Act},    Kind{2, Wheel_Act}, Kind{16, Menu_Act},
    Kind{6, Desktop_Act},  Kind{3, Port_Act}, Kind{6, Arrival_Act}, Kind{2, Disk_Act},  Kind{1, MKS_Act},
};
// clang-format on

}  // namespace

void Act() {
    Disk_Notice_Names();
    if (To_Be_Pressed != nullptr) {
        // Not there yet: the desktop takes its time, and may think better of it.
        if (To_Be_Pressed != Front() && !Chance.One_In(4)) return;
        const QPointer<QWindow> window = std::exchange(To_Be_Pressed, nullptr);
        if (window == Front()) Press_In(window);
        return;
    }
    int total = 0;
    for (const Kind& kind : Kinds) total += kind.weight;
    int place = Chance.Below(total);
    for (const Kind& kind : Kinds) {
        place -= kind.weight;
        if (place >= 0) continue;
        kind.act();
        return;
    }
}

void Desktop_Sees_To_The_Front() {
    static QPointer<QWidget> before;
    if (Front() != nullptr) {
        if (QApplication::activeWindow() != nullptr) before = QApplication::activeWindow();
        return;
    }
    QWidget* next = QApplication::activeModalWidget();
    if (next == nullptr) next = before != nullptr && before->isVisible() ? before.data() : Main();
    if (next != nullptr && next->isVisible() && !next->isMinimized()) next->activateWindow();
}

bool Act_To_Leave() {
    if (QWidget* const popup = QApplication::activePopupWidget()) {
        Diary_Note("leave", Name_Of(popup), "");
        popup->close();
        return true;
    }
    if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        for (const auto button : {QMessageBox::No, QMessageBox::Cancel, QMessageBox::Ok}) {
            if (box->button(button) == nullptr) continue;
            Diary_Note("leave", Name_Of(box), box->button(button)->text().toStdString());
            box->button(button)->click();
            return true;
        }
    }
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        QWidget* const widget = Widget_Of(window);
        if (widget == nullptr || widget == Main() || !widget->isVisible()) continue;
        if (Is_Blocked(widget) || !widget->isEnabled()) continue;
        Diary_Note("leave", Name_Of(widget), "");
        widget->close();
        return true;
    }
    return false;
}

void Act_Exit() {
    QMainWindow* const main = Main();
    if (main == nullptr || Is_Blocked(main)) return;
    Diary_Note("leave", "Tonebench", "exit");
    main->close();
}
