// The dialog TName on the screen.
#pragma once

#include <QDialog>

class QLineEdit;

class TName_Window : public QDialog {
  public:
    explicit TName_Window(QWidget* parent);

    // Brings the field up to the record, and the dialog onto the screen or off it.
    void Show_Changes();

    void reject() override;  // Escape and the close box

  private:
    QLineEdit* tone_name_;
    int times_raised_ = 0;
};
