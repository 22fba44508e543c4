// The Patch window on the screen.
#pragma once

#include "panels/panel_child_window.h"

class Patch_Window : public Panel_Child_Window {
  public:
    explicit Patch_Window(QMainWindow* parent);

  protected:
    void Close_Asked() override;
};
