// The dialog MIDI_Setup on the screen.
#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QPushButton;

class Setup_Window : public QDialog {
  public:
    explicit Setup_Window(QWidget* parent);

    // Brings the widgets up to the records, and the dialog onto the screen or off it.
    void Show_Changes();

    void reject() override;  // Escape and the close box

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
    int times_raised_ = 0;
};
