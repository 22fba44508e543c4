#include "panels/panel_window.h"

#include <QEvent>
#include <utility>

#include "panels/control_widget.h"
#include "panels/graph_widget.h"
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
    if (panel.graph != nullptr) graph_ = new Graph_Widget(*panel.graph, this);
}

Control_Widget* Panel_Window::Widget_Of(const Control* control) const {
    for (Control_Widget* widget : widgets_) {
        if (&widget->Record() == control) return widget;
    }
    return nullptr;
}

void Panel_Window::Show_Changes() {
    const Window& window = *panel_.window;
    move(window.left, window.top);
    if (isEnabled() != window.enabled) setEnabled(window.enabled);
    if (isHidden() == window.visible) setVisible(window.visible);
    if (times_raised_ != window.times_raised) {
        times_raised_ = window.times_raised;
        raise();
    }
    Show_Controls();
}

void Panel_Window::Show_Controls() {
    for (Control_Widget* widget : widgets_) widget->Show_Changes();
    if (graph_ != nullptr) graph_->Show_Changes();
    Show_Focus();
}

// A rule that sends the focus elsewhere writes the record. And a window that was locked or hidden has lost
// the focus; it goes back to the control that had it.
void Panel_Window::Show_Focus() {
    const Control* active = panel_.window->active_control;
    if (active == nullptr) agreed_focus_ = nullptr;
    Control_Widget* widget = Widget_Of(active);
    if (widget == nullptr || !isEnabled() || !isVisibleTo(window())) return;
    const bool lost = isVisible() && window()->focusWidget() == nullptr;
    if (active == agreed_focus_ && !lost) return;
    agreed_focus_ = active;
    widget->setFocus(Qt::OtherFocusReason);
}

void Panel_Window::paintEvent(QPaintEvent*) {
    ground_.Paint(*this);
}

bool Panel_Window::event(QEvent* event) {
    // The frame tells all its panels; only the one on show is meant.
    if (panel_.window->visible) {
        if (event->type() == QEvent::WindowActivate) Guarded_Event([this] { panel_.events.activated(); });
        if (event->type() == QEvent::WindowDeactivate)
            Guarded_Event([this] { panel_.events.deactivated(); });
    }
    return QWidget::event(event);
}
