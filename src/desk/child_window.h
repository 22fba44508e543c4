// A window over the main one on the screen: shows its record and reports what the user does with it.
// Each such window derives from this and adds its contents.
#pragma once

#include <QDialog>
#include <QMainWindow>

#include "desk/windows.h"

class Child_Window : public QDialog {
  public:
    Child_Window(Window& record, QMainWindow* parent);

    // Brings the contents up to the records, and the window onto the screen or off it.
    void Show_Changes();

    void reject() override;  // Escape and the close box

  protected:
    // Runs while the record is visible, also just before the window appears.
    virtual void Show_Contents() = 0;
    // The window came onto the screen: the place to give the focus away.
    virtual void Appeared() {}
    // The user wants it gone. Runs guarded; as a rule it unloads the record.
    virtual void Close_Asked() = 0;

    void moveEvent(QMoveEvent* event) override;

  private:
    QPoint Origin() const;  // of the record's place, on the screen
    void Show_Place();
    void Take_Place();

    Window& record_;
    QMainWindow* main_;
    QPoint agreed_;  // the place as record and screen last agreed on it
    int times_raised_ = 0;
};
