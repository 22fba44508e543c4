// A panel on the screen: its ground with the printing, and a widget for each control. Holds no rule: events
// go to the panel's handlers, and what the records say is what is shown.
#pragma once

#include <QWidget>
#include <vector>

#include "panels/panel.h"
#include "panels/pictures_qt.h"

class Control_Widget;
class Graph_Widget;

class Panel_Window : public QWidget {
  public:
    Panel_Window(const Panel& panel, Printing printing, QWidget* parent);

    // Brings the panel up to its window's record, and its controls up to theirs.
    void Show_Changes();
    // The controls and the focus alone: for a panel that fills a window of its own.
    void Show_Controls();

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    Control_Widget* Widget_Of(const Control* control) const;
    void Show_Focus();

    const Panel& panel_;
    Printed_Ground ground_;
    std::vector<Control_Widget*> widgets_;
    const Control* agreed_focus_ = nullptr;  // the active control as record and screen last agreed on it
    Graph_Widget* graph_ = nullptr;
    int times_raised_ = 0;
};
