#include "panels/panel_window.h"

#include <QEvent>
#include <utility>

#include "panels/control_widget.h"
#include "platform/gate.h"

Panel_Window::Panel_Window(const Panel& panel, Printing printing, QWidget* parent)
    : QWidget(parent), panel_(panel), ground_(std::move(printing)) {
    setObjectName(panel.window->name);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(panel.window->width, panel.window->height);
    QWidget* before = nullptr;
    for (Control* control : panel.controls) {
        QWidget* below = Widget_Of(control->parent);
        auto* widget = new Control_Widget(*control, panel, below != nullptr ? below : this);
        widgets_.push_back(widget);
        if (!control->focusable) continue;
        if (before != nullptr) setTabOrder(before, widget);
        before = widget;
    }
}

Control_Widget* Panel_Window::Widget_Of(const Control* control) const {
    for (Control_Widget* widget : widgets_) {
        if (&widget->Record() == control) return widget;
    }
    return nullptr;
}

void Panel_Window::Show_Changes() {
    const Window& window = *panel_.window;
    for (Control_Widget* widget : widgets_) widget->Show_Changes();
    move(window.left, window.top);
    if (isEnabled() != window.enabled) setEnabled(window.enabled);
    if (isHidden() == window.visible) setVisible(window.visible);
    if (times_raised_ != window.times_raised) {
        times_raised_ = window.times_raised;
        raise();
    }
    Give_Focus_Back();
}

// A window that was locked or hidden has lost the focus; it goes back to the control that had it.
void Panel_Window::Give_Focus_Back() {
    if (!isVisible() || !isEnabled() || this->window()->focusWidget() != nullptr) return;
    Control_Widget* widget = Widget_Of(panel_.window->active_control);
    if (widget != nullptr) widget->setFocus(Qt::OtherFocusReason);
}

void Panel_Window::paintEvent(QPaintEvent*) {
    ground_.Paint(*this);
}

bool Panel_Window::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) Guarded_Event([this] { panel_.events.activated(); });
    if (event->type() == QEvent::WindowDeactivate) Guarded_Event([this] { panel_.events.deactivated(); });
    return QWidget::event(event);
}
