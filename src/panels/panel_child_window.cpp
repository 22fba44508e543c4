#include "panels/panel_child_window.h"

#include <QMainWindow>
#include <utility>

Panel_Child_Window::Panel_Child_Window(const Panel& panel, Printing printing, QWidget* parent)
    : Child_Window(*panel.window, parent), panel_(new Panel_Window(panel, std::move(printing), this)) {
    panel_->setObjectName(objectName() + "_Panel");
}

void Panel_Child_Window::Show_Contents() {
    panel_->Show_Controls();
}

QPoint Panel_Child_Window::Origin() const {
    const auto* frame = qobject_cast<const QMainWindow*>(parentWidget());
    const QWidget* client = frame == nullptr ? parentWidget() : frame->centralWidget();
    return client == nullptr ? QPoint() : client->mapToGlobal(QPoint(0, 0));
}
