#include "panels/graph_widget.h"

#include <QPainter>
#include <algorithm>

#include "panels/pictures_qt.h"

namespace {

QLineF Line_Of(const Line_Shape& shape) {
    return {shape.x1, shape.y1, shape.x2, shape.y2};
}

bool Same_Line(const Line_Shape& a, const Line_Shape& b) {
    return a.x1 == b.x1 && a.y1 == b.y1 && a.x2 == b.x2 && a.y2 == b.y2;
}

}  // namespace

Graph_Widget::Graph_Widget(const Panel_Graph& graph, QWidget* parent) : QWidget(parent), graph_(graph) {
    setObjectName(graph.picture.name);
    setAccessibleName(graph.picture.spoken_name);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_NoMousePropagation);
    hide();
}

void Graph_Widget::Show_Changes() {
    const Control& picture = graph_.picture;
    setGeometry(picture.left, picture.top, picture.width, picture.height);
    const bool same =
        std::equal(graph_.curve.begin(), graph_.curve.end(), shown_.begin(), shown_.end(), Same_Line);
    if (!same) {
        shown_.assign(graph_.curve.begin(), graph_.curve.end());
        update();
    }
    if (isHidden() == picture.visible) {
        setVisible(picture.visible);
        raise();
    }
}

void Graph_Widget::paintEvent(QPaintEvent*) {
    const QColor glass(0x06, 0x12, 0x12);
    const QColor curve(0x6c, 0xff, 0xe2);
    QPainter painter(this);
    painter.fillRect(rect(), Ink_Colour(Ink::Ground));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink_Colour(Ink::Frame), 1));
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(QPen(Ink_Colour(Ink::Faint), 1));
    for (const Line_Shape& axis : graph_.axes) painter.drawLine(Line_Of(axis));
    painter.setPen(QPen(curve, 1.5, Qt::SolidLine, Qt::RoundCap));
    for (const Line_Shape& line : graph_.curve) painter.drawLine(Line_Of(line));
}
