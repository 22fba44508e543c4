// A panel in a window of its own over the main one.
#pragma once

#include "desk/child_window.h"
#include "panels/panel_window.h"

class Panel_Child_Window : public Child_Window {
  public:
    // Made when the panel's window has loaded: its record has its size then.
    Panel_Child_Window(const Panel& panel, Printing printing, QMainWindow* parent);

  protected:
    void Show_Contents() override;

    Panel_Window* panel_;
};
