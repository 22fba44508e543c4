#include "oscwin/curve_widget.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "oscwin/oscwin.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"

namespace {

const QColor Grid(0x15, 0x2f, 0x2e);
const QColor Mark(0x20, 0x45, 0x43);  // the fixed marks ZLine1 and ZLine2
const QColor Zero(0x3a, 0x9c, 0x90);
const QColor Curve(0xff, 0xb4, 0x3c);
const QColor Halo(0xf0, 0xa0, 0x30, 0x46);
const QColor Cursor(0xff, 0xff, 0xff, 0xd0);
const QColor Played(0x6c, 0xff, 0xe2, 0x38);  // the column of the step that sounds

// A quarter and three quarters of the height: where the presets turn.
constexpr int Mark_Rows[] = {31, 95};

// The row of value 0, and what the keys of a page draw by.
constexpr int Lowest_Row = 127;
constexpr int Page = 16;

constexpr double Curve_Width = 2;
constexpr double Halo_Width = 5;

unsigned Held(Qt::MouseButtons buttons) {
    unsigned held = 0;
    if (buttons.testFlag(Qt::LeftButton)) held |= Osc_Left_Button;
    if (buttons.testFlag(Qt::RightButton)) held |= Osc_Right_Button;
    if ((buttons & ~(Qt::LeftButton | Qt::RightButton)) != Qt::NoButton) held |= Osc_Middle_Button;
    return held;
}

int Column(const QMouseEvent& event) {
    return static_cast<int>(std::floor(event.position().x()));
}
int Row(const QMouseEvent& event) {
    return static_cast<int>(std::floor(event.position().y()));
}

// Through the middle of its row or column.
QLineF Line(const Osc_Line& line) {
    return QLineF(line.x1, line.y1, line.x2, line.y2).translated(0.5, 0.5);
}

}  // namespace

Curve_Widget::Curve_Widget(QWidget* parent) : QWidget(parent) {
    setObjectName("Picture1");
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::CrossCursor);
}

void Curve_Widget::Show_Lines() {
    Announce_Changes(*this);
    if (lines_ == Osc_Line1 && zero_row_ == Osc_HLine) return;
    lines_ = Osc_Line1;
    zero_row_ = Osc_HLine;
    update();
}

void Curve_Widget::Update_Cursor() {
    update(cursor_ - 1, 0, Osc_Point_Width + 2, height());
}

bool Curve_Widget::Shows_Cursor(int column, bool playing) const {
    return cursor_ == column && playing_ == playing;
}

void Curve_Widget::Show_Cursor(int column, bool playing) {
    if (Shows_Cursor(column, playing)) return;
    Update_Cursor();
    cursor_ = column;
    playing_ = playing;
    Update_Cursor();
}

void Curve_Widget::Paint_Grid(QPainter& painter) const {
    for (const Osc_Line& line : Osc_VLine) painter.fillRect(QRect(line.x1, 0, 1, height()), Grid);
    for (const int row : Mark_Rows) painter.fillRect(QRect(0, row, width(), 1), Mark);
    painter.fillRect(QRect(0, zero_row_, width(), 1), Zero);
}

void Curve_Widget::Paint_Stairs(QPainter& painter) const {
    // In two strokes, so that the light of one piece does not dim its neighbour.
    for (const auto& [colour, thickness] : {std::pair{Halo, Halo_Width}, {Curve, Curve_Width}}) {
        QPainterPath stairs;
        for (std::size_t i = 0; i < Osc_Count; ++i) {
            const QLineF level = Line(lines_[i]);
            if (i == 0) {
                stairs.moveTo(level.p1());
            } else {
                // The upright piece on the way; where it is set aside both ends are one.
                stairs.lineTo(level.p1());
            }
            stairs.lineTo(level.p2());
        }
        painter.strokePath(stairs, QPen(colour, thickness, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    }
}

void Curve_Widget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (playing_) painter.fillRect(QRect(cursor_, 0, Osc_Point_Width, height()), Played);
    Paint_Grid(painter);
    painter.fillRect(QRect(cursor_, 0, 1, height()), Cursor);
    painter.setRenderHint(QPainter::Antialiasing);
    Paint_Stairs(painter);
    if (!hasFocus()) return;
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(Ink_Colour(Ink::Heading), 1));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawRect(QRect(point_ * Osc_Point_Width, 0, Osc_Point_Width, height() - 1));
}

void Curve_Widget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return Move(-1);
        case Qt::Key_Right:
            return Move(1);
        default:
            break;
    }
    const std::pair<int, int> keys[] = {
        {Qt::Key_Up, Value() + 1},          {Qt::Key_Down, Value() - 1}, {Qt::Key_PageUp, Value() + Page},
        {Qt::Key_PageDown, Value() - Page}, {Qt::Key_Home, Lowest_Row},  {Qt::Key_End, 0}};
    for (const auto& [key, value] : keys) {
        if (key == event->key()) return Guarded_Event([this, wanted = value] { Enter(wanted); });
    }
    QWidget::keyPressEvent(event);
}

void Curve_Widget::Move(int points) {
    point_ = std::clamp(point_ + points, 0, static_cast<int>(Osc_Count) - 1);
    Announce_Changes(*this);
    update();
}

int Curve_Widget::Value() const {
    return Lowest_Row - Osc_Line1[static_cast<std::size_t>(point_)].y1;
}

// As if the pointer had drawn there.
void Curve_Widget::Enter(double value) {
    const int column = point_ * Osc_Point_Width + Osc_Point_Width / 2;
    const int row = Lowest_Row - static_cast<int>(std::clamp(std::round(value), 0.0, 1.0 * Lowest_Row));
    Osc_Picture1_MouseDown(Osc_Left_Button, column, row);
    Osc_Picture1_MouseMove(Osc_Left_Button, column, row);
    Osc_Picture1_MouseUp();
}

QString Curve_Widget::Spoken_Name() const {
    return QString("Curve, point %1 of %2").arg(point_ + 1).arg(Osc_Count);
}

QString Curve_Widget::Spoken_Value() const {
    return QString::number(Value());
}

std::optional<Control_Scale> Curve_Widget::Scale() const {
    return Control_Scale{1.0 * Value(), 0, Lowest_Row};
}

std::vector<Speaking::Action> Curve_Widget::Actions() {
    using Names = QAccessibleActionInterface;
    return {{Names::increaseAction(), [this] { Enter(Value() + 1); }},
            {Names::decreaseAction(), [this] { Enter(Value() - 1); }},
            {Names::previousPageAction(), [this] { Move(-1); }},
            {Names::nextPageAction(), [this] { Move(1); }}};
}

void Curve_Widget::mousePressEvent(QMouseEvent* event) {
    // Else the desktop drops what the pointer did on the way when moves come faster than events are
    // fetched, and a quick curve would turn into a straight line.
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, false);
    Guarded_Event([&] { Osc_Picture1_MouseDown(Held(event->buttons()), Column(*event), Row(*event)); });
}

void Curve_Widget::mouseMoveEvent(QMouseEvent* event) {
    Guarded_Event([&] { Osc_Picture1_MouseMove(Held(event->buttons()), Column(*event), Row(*event)); });
}

void Curve_Widget::mouseReleaseEvent(QMouseEvent*) {
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, true);
    Guarded_Event(Osc_Picture1_MouseUp);
}
