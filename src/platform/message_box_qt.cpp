#include "platform/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QString>

#include "platform/gate.h"

namespace {

// Our own drawings, in the panels' colours; the toolkit's icon gives the box its kind for screen readers.
struct Icon_Row {
    Icon icon;
    QMessageBox::Icon toolkit;
    const char* drawing;
};
constexpr Icon_Row Icons[] = {
    {Icon::None, QMessageBox::NoIcon, ""},
    {Icon::Stop, QMessageBox::Critical, ":/icons/stop.svg"},
    {Icon::Question, QMessageBox::Question, ":/icons/question.svg"},
    {Icon::Exclamation, QMessageBox::Warning, ":/icons/exclamation.svg"},
    {Icon::Information, QMessageBox::Information, ":/icons/information.svg"},
};

void Show_Icon(QMessageBox& box, Icon icon) {
    constexpr int Size = 40;
    for (const Icon_Row& row : Icons) {
        if (row.icon != icon || icon == Icon::None) continue;
        box.setIcon(row.toolkit);
        box.setIconPixmap(QIcon(row.drawing).pixmap(QSize(Size, Size), box.devicePixelRatioF()));
    }
}

QMessageBox::StandardButtons Toolkit_Buttons(Buttons_Set buttons) {
    switch (buttons) {
        case Buttons_Set::Yes_No:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons_Set::Yes_No_Cancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons_Set::Retry_Cancel:
            return QMessageBox::Retry | QMessageBox::Cancel;
        case Buttons_Set::Ok:
            break;
    }
    return QMessageBox::Ok;
}

Answer Answer_Of(int button, Buttons_Set buttons) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Retry:
            return Answer::Retry;
        case QMessageBox::Ok:
            return Answer::Ok;
        default:
            break;
    }
    if (buttons == Buttons_Set::Ok) return Answer::Ok;
    return buttons == Buttons_Set::Yes_No ? Answer::No : Answer::Cancel;
}

// The window that a box belongs to: the active one, or while another program is in front the main window,
// so that the box does not open behind everything.
QWidget* Window_In_Front() {
    if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) return window;
    }
    return nullptr;
}

// One line end for the three that the texts have.
QString Lines(const std::string& text) {
    return QString::fromStdString(text).replace("\r\n", "\n").replace('\r', '\n').trimmed();
}

}  // namespace

Answer Message_Box(const std::string& text, Buttons_Set buttons, Icon icon, const std::string& title) {
    Windows_Show_Changes();
    const QPointer<QWidget> before = Window_In_Front();
    QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), Lines(text),
                    Toolkit_Buttons(buttons), before);
    Show_Icon(box, icon);
    // Captions say enough.
    for (QAbstractButton* button : box.buttons()) button->setIcon({});
    box.setTextFormat(Qt::PlainText);  // names of devices and files are no markup
    box.setObjectName("Message_Box");
    const Answer answer = Answer_Of(box.exec(), buttons);
    // Keys go on where they went before, also where no window manager sees to it.
    if (before != nullptr) before->activateWindow();
    return answer;
}
