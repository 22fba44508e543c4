// A panel's graph on the screen: line shapes over a dark glass, above everything else of the panel.
#pragma once

#include <QWidget>
#include <vector>

#include "panels/panel.h"

class Graph_Widget : public QWidget {
  public:
    Graph_Widget(const Panel_Graph& graph, QWidget* parent);

    void Show_Changes();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent*) override {}  // what lies under it is out of reach

  private:
    const Panel_Graph& graph_;
    std::vector<Line_Shape> shown_;  // the curve as it was last painted
};
