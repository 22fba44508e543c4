// The dialog TName on the screen.
#pragma once

#include "desk/child_window.h"

class QLineEdit;

class TName_Window : public Child_Window {
  public:
    explicit TName_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;

  private:
    QLineEdit* tone_name_;
};
