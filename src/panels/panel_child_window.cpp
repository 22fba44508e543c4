#include "panels/panel_child_window.h"

#include <utility>

Panel_Child_Window::Panel_Child_Window(const Panel& panel, Printing printing, QMainWindow* parent)
    : Child_Window(*panel.window, parent), panel_(new Panel_Window(panel, std::move(printing), this)) {
    panel_->setObjectName(objectName() + "_Panel");
}

void Panel_Child_Window::Show_Contents() {
    panel_->Show_Controls();
}
