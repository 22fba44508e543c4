// The parts of the sequencer's window that are drawn as a whole: matrix, lights, key names, direction
// switches. They show the records and hand their events to the rules.
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <array>

#include "panels/printing.h"
#include "panels/spoken_qt.h"
#include "sequencer/engine.h"
#include "seqwin/seqwin.h"

// The cells, with the column that plays marked. With the focus one cell is: the cursor keys move to
// another, the blank presses it like the left button, with Shift like the right one.
class Seq_Matrix_Widget : public QWidget, public Speaking {
  public:
    explicit Seq_Matrix_Widget(QWidget* parent);
    void Show_Changes();

    QAccessible::Role Role() const override { return QAccessible::Table; }
    QString Spoken_Name() const override;
    std::vector<Action> Actions() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Move(int steps, int rows);
    void Press_Cell(Mouse_Button button) const;

    int step_ = 0;  // the cell with the mark
    int row_ = 0;
    std::array<Seq_Picture, Seq_Cells> shown_ = {};
    std::array<bool, Seq_Steps> lit_ = {};
};

// The running lights over the steps.
class Seq_Clock_Widget : public QWidget {
  public:
    explicit Seq_Clock_Widget(QWidget* parent);
    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::array<bool, Seq_Steps> lit_ = {};
};

// The notes' names on the keys, as the base note has them.
class Seq_Key_Names : public QWidget {
  public:
    explicit Seq_Key_Names(QWidget* parent);
    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    int base_note_ = -1;
};

// One direction switch: lamp, symbol and name.
class Seq_Direction_Widget : public QAbstractButton {
  public:
    Seq_Direction_Widget(const Seq_Direction& record, QWidget* parent);
    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Seq_Direction& record_;
    Printing printing_;
};
