// The question for a text on the screen.
#pragma once

#include "desk/child_window.h"

class QLabel;
class QLineEdit;

class Input_Dlg_Window : public Child_Window {
  public:
    explicit Input_Dlg_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;

  private:
    QLabel* message_;
    QLineEdit* text_;
    int times_selected_ = 0;
};
