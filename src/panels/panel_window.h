// A panel on the screen: its ground with the printing, and a widget for each control. Holds no rule: events
// go to the panel's handlers, and what the records say is what is shown.
#pragma once

#include <QWidget>
#include <vector>

#include "panels/panel.h"
#include "panels/pictures_qt.h"

class Control_Widget;

class Panel_Window : public QWidget {
  public:
    Panel_Window(const Panel& panel, Printing printing, QWidget* parent);

    // Brings widgets up to the records.
    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    Control_Widget* Widget_Of(const Control* control) const;
    void Give_Focus_Back();

    const Panel& panel_;
    Printed_Ground ground_;
    std::vector<Control_Widget*> widgets_;
    int times_raised_ = 0;
};
