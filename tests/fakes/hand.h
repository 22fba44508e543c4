// Works the controls of any panel by their names, as its window would: the language of stage.h for the
// panels that come and go.
#pragma once

#include <string>

#include "panels/panel.h"
#include "panels/steps.h"

class Hand {
  public:
    explicit Hand(const Panel& panel) : panel_(panel) {}

    Control& At(const std::string& name) const;
    // Gives the control the focus, as the window does before any press or key.
    void Focus(const std::string& name) const;
    void Press(const std::string& name) const;
    void Drag(const std::string& name, double row) const;
    void Release(const std::string& name) const;
    void Click(const std::string& name) const;
    // `held` as the classic shift state: Shift 1, Ctrl 2, Alt 4.
    void Key(const std::string& name, int key, int held = 0) const;

  private:
    const Panel& panel_;
};
