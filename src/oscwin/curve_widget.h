// Picture1 of the window Oscillator: the staircase on its grid, the zero line and the play cursor. Its
// pixels are the columns and rows of oscillator/stairs.h.
#pragma once

#include <QWidget>
#include <array>

#include "oscillator/stairs.h"
#include "panels/spoken_qt.h"

// With the focus one point is: Left and Right move to another, Up, Down and the pages draw it higher or
// lower.
class Curve_Widget : public QWidget, public Speaking {
  public:
    explicit Curve_Widget(QWidget* parent);

    // Repaints if a line has moved.
    void Show_Lines();

    // Whether the cursor stands so, and putting it there; only its old and its new column are painted.
    bool Shows_Cursor(int column, bool playing) const;
    void Show_Cursor(int column, bool playing);

    QAccessible::Role Role() const override { return QAccessible::Slider; }
    QString Spoken_Name() const override;
    QString Spoken_Value() const override;
    std::optional<Control_Scale> Scale() const override;
    void Enter(double value) override;
    std::vector<Action> Actions() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Update_Cursor();
    void Move(int points);
    int Value() const;  // of the point with the mark, 0 to 127
    void Paint_Grid(QPainter& painter) const;
    void Paint_Stairs(QPainter& painter) const;

    // What stands on the screen.
    std::array<Osc_Line, 2 * Osc_Count> lines_ = {};
    int zero_row_ = 0;
    int cursor_ = 0;
    bool playing_ = false;
    int point_ = 0;  // the one with the mark
};
