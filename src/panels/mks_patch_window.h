// The MKS-70's patch window on the screen.
#pragma once

#include "panels/panel_child_window.h"

class QComboBox;
class QLineEdit;

class MKS_Patch_Window : public Panel_Child_Window {
  public:
    explicit MKS_Patch_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Close_Asked() override;

  private:
    QLineEdit* patch_name_;
    QComboBox* tone_number_;
    QComboBox* split_point_;
};
