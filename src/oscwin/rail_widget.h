// A scroll bar of the window Oscillator, drawn like a slider of the panel: a cap on a printed rail.
// Pointer, wheel and keys are the stock slider's.
#pragma once

#include <QSlider>

#include "desk/form.h"

class Rail_Widget : public QSlider {
  public:
    Rail_Widget(const Scroll_Bar& record, void (*changed)(int value), QWidget* parent);

    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Scroll_Bar& record_;
};
