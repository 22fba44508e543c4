// The dialog MIDI_Setup on the screen.
#pragma once

#include "desk/child_window.h"

class QCheckBox;
class QComboBox;
class QPushButton;

class Setup_Window : public Child_Window {
  public:
    explicit Setup_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;

  private:
    QComboBox* List(const char* name, void (*changed)(int));
    QCheckBox* Box(const char* name, const char* caption, void (*clicked)(bool));

    QComboBox* synthesizer_type_;
    QComboBox* output_devices_;
    QComboBox* input_devices_;
    QComboBox* channel_;
    QCheckBox* enable_;
    QCheckBox* auto_send_;
    QCheckBox* auto_play_;
    QPushButton* ok_;
};
