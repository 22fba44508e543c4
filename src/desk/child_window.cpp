#include "desk/child_window.h"

#include <QGuiApplication>

#include "platform/gate.h"

Child_Window::Child_Window(Window& record, QMainWindow* parent)
    : QDialog(parent), record_(record), main_(parent) {
    setObjectName(record.name);
}

void Child_Window::Show_Changes() {
    if (!record_.visible) {
        if (isVisible()) {
            QDialog::hide();
            main_->activateWindow();
        }
        return;
    }
    // Before the contents: a window that is locked takes no focus.
    if (isEnabled() != record_.enabled) setEnabled(record_.enabled);
    Show_Contents();
    const QString title = QString::fromStdString(record_.caption);
    if (windowTitle() != title) setWindowTitle(title);
    if (size() != QSize(record_.width, record_.height)) setFixedSize(record_.width, record_.height);
    const Qt::CursorShape shape = record_.pointer == Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor;
    if (cursor().shape() != shape) setCursor(shape);
    Show_Place();
    if (!isVisible()) {
        show();
        Appeared();
    }
    if (times_raised_ != record_.times_raised) {
        times_raised_ = record_.times_raised;
        raise();
        activateWindow();
    }
}

QPoint Child_Window::Origin() const {
    return record_.inside ? main_->centralWidget()->mapToGlobal(QPoint()) : QPoint();
}

// Where the record differs from the last agreement, a rule has spoken; else the user's move stands, be it
// this window that moved or the main one below it.
void Child_Window::Show_Place() {
    const QPoint wanted(record_.left, record_.top);
    if (isVisible() && wanted == agreed_) {
        Take_Place();
        return;
    }
    const QPoint place = Origin() + wanted;
    // A screen that has been taken away takes no window with it.
    move(QGuiApplication::screenAt(place) == nullptr ? Origin() : place);
    agreed_ = wanted;
}

void Child_Window::Take_Place() {
    agreed_ = pos() - Origin();
    record_.left = agreed_.x();
    record_.top = agreed_.y();
}

void Child_Window::moveEvent(QMoveEvent*) {
    if (isVisible()) Take_Place();
}

// A locked window stays, also where the desktop would let its close box through.
void Child_Window::reject() {
    if (!isEnabled()) return;
    Guarded_Event([this] { Close_Asked(); });
}
