#include "filedlg/preview_widget.h"

#include <QPainter>

#include "filedlg/file_controls.h"
#include "panels/pictures_qt.h"

namespace {

// Eighteen points like the oscillator's; no file changes them.
constexpr int Points = 18;

void Paint_Glass(QPainter& painter, const QRect& place) {
    painter.fillRect(place, Ink_Colour(Ink::Rail));
    painter.setPen(Ink_Colour(Ink::Frame));
    painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace

Sequence_Preview::Sequence_Preview(QWidget* parent) : QWidget(parent) {
    setObjectName("FD_SEQ_Preview");
    setAccessibleName("Sequence");
    setFixedSize(FD_SEQ_Preview_Width, FD_SEQ_Preview_Height);
}

void Sequence_Preview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Paint_Glass(painter, rect());
    for (const Preview_Cell& cell : FD_SEQ_Preview) {
        if (cell.picture < 0) continue;
        painter.drawPixmap(
            cell.left, cell.top,
            Picture_Pixmap(Picture_Of(Picture_Store::FD_SEQ_Pics, cell.picture), devicePixelRatioF()));
    }
}

Curve_Preview::Curve_Preview(QWidget* parent) : QWidget(parent) {
    setObjectName("FD_OSC_Preview");
    setAccessibleName("Curve");
}

void Curve_Preview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Paint_Glass(painter, rect());
    painter.setRenderHint(QPainter::Antialiasing);
    const double apart = static_cast<double>(width()) / Points;
    const double middle = height() / 2.0;
    for (int point = 0; point < Points; ++point) {
        const double x = apart * (point + 0.5);
        painter.setPen(QPen(Ink_Colour(Ink::Frame), 1));
        painter.drawLine(QPointF(x, 4), QPointF(x, height() - 4));
        painter.setPen(QPen(Ink_Colour(Ink::Heading), 2));
        painter.drawLine(QPointF(x - apart / 2 + 1, middle), QPointF(x + apart / 2 - 1, middle));
    }
}
