// The two small pictures on the preview panels: of a sequence, and of an oscillator's curve.
#pragma once

#include <QWidget>

class Sequence_Preview : public QWidget {
  public:
    explicit Sequence_Preview(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

class Curve_Preview : public QWidget {
  public:
    explicit Curve_Preview(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
