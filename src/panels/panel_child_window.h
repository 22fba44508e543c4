// A panel in a window of its own over the main one. Its place counts from the main window's client area, and
// so it opens again where it stood on the panel, wherever the main window is now.
#pragma once

#include "desk/child_window.h"
#include "panels/panel_window.h"

class Panel_Child_Window : public Child_Window {
  public:
    // Made when the panel's window has loaded: its record has its size then.
    Panel_Child_Window(const Panel& panel, Printing printing, QWidget* parent);

  protected:
    void Show_Contents() override;
    QPoint Origin() const override;

    Panel_Window* panel_;
};
