// The window Oscillator on the screen.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <vector>

#include "desk/child_window.h"
#include "oscwin/layout.h"
#include "panels/pictures_qt.h"

class Control_Widget;
class Curve_Widget;
class QComboBox;
class QLabel;
class Rail_Widget;
struct Scroll_Bar;

class Oscillator_Window : public Child_Window {
  public:
    explicit Oscillator_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLabel* Number(const char* name, const Osc_Place& place);
    Rail_Widget* Rail(const Osc_Rail& rail, const Scroll_Bar& record, void (*changed)(int));
    QComboBox* Target_List();
    void Add_Controls();
    void Show_Running();

    Printed_Ground ground_;
    Curve_Widget* curve_;
    QComboBox* targets_;
    std::vector<Control_Widget*> controls_;
    std::vector<Rail_Widget*> rails_;
    QLabel* value_;
    QLabel* amplitude_;
    QLabel* offset_;
    QLabel* interval_;

    QElapsedTimer since_frame_;
    QTimer next_frame_;
};
