#include "seqwin/seqwin_parts_widget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "panels/control_widget.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"
#include "seqwin/seqwin_printing.h"

namespace {

void Draw_Cell(QPainter& painter, int left, int top, Seq_Picture picture, qreal ratio) {
    painter.drawPixmap(left, top, Picture_Pixmap(Picture_Of(Picture_Store::Seq_Pics, picture), ratio));
}

}  // namespace

// -- the matrix ------------------------------------------------------------------------------------------

Seq_Matrix_Widget::Seq_Matrix_Widget(QWidget* parent) : QWidget(parent) {
    setObjectName("Seq_Matrix");
    setFocusPolicy(Qt::TabFocus);
    setGeometry(Seq_Matrix_Left, Seq_Matrix_Top, Seq_Matrix_Width, Seq_Matrix_Height);
}

void Seq_Matrix_Widget::Show_Changes() {
    Announce_Changes(*this);
    if (shown_ == Seq_Matrix && lit_ == Seq_Clock) return;
    shown_ = Seq_Matrix;
    lit_ = Seq_Clock;
    update();
}

void Seq_Matrix_Widget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int cell = 0; cell < Seq_Cells; ++cell) {
        Draw_Cell(painter, cell / Seq_Rows * Seq_Pitch, cell % Seq_Rows * Seq_Pitch,
                  Seq_Matrix[static_cast<std::size_t>(cell)], devicePixelRatioF());
    }
    for (int step = 0; step < Seq_Steps; ++step) {
        if (!Seq_Clock[static_cast<std::size_t>(step)]) continue;
        const QRectF column(step * Seq_Pitch, 0, Seq_Pitch - 1, height());
        painter.fillRect(column, QColor(0xff, 0xc0, 0x60, 0x38));
        painter.setPen(QPen(QColor(0xff, 0xc0, 0x60, 0xc0), 1));
        painter.drawRect(column.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(Ink_Colour(Ink::Print), 2));
    painter.drawRect(QRectF(step_ * Seq_Pitch, row_ * Seq_Pitch, Seq_Pitch - 1, Seq_Pitch - 1));
}

void Seq_Matrix_Widget::mousePressEvent(QMouseEvent* event) {
    const Mouse_Button button = Mouse_Button_Of(event->button());
    const QPointF at = event->position();
    Guarded_Event([&] { Seq_Matrix_MouseDown(button, at.x(), at.y()); });
}

void Seq_Matrix_Widget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return Move(-1, 0);
        case Qt::Key_Right:
            return Move(1, 0);
        case Qt::Key_Up:
            return Move(0, -1);
        case Qt::Key_Down:
            return Move(0, 1);
        case Qt::Key_Space:
            if (event->isAutoRepeat()) return;
            return Press_Cell((event->modifiers() & Qt::ShiftModifier) != 0 ? Mouse_Button::Right
                                                                            : Mouse_Button::Left);
        default:
            QWidget::keyPressEvent(event);
    }
}

void Seq_Matrix_Widget::Move(int steps, int rows) {
    step_ = std::clamp(step_ + steps, 0, Seq_Steps - 1);
    row_ = std::clamp(row_ + rows, 0, Seq_Rows - 1);
    Announce_Changes(*this);
    update();
}

// In the middle of the cell.
void Seq_Matrix_Widget::Press_Cell(Mouse_Button button) const {
    constexpr int Middle = Seq_Pitch / 2 - 1;
    const int column = step_ * Seq_Pitch + Middle;
    const int row = row_ * Seq_Pitch + Middle;
    Guarded_Event([&] { Seq_Matrix_MouseDown(button, column, row); });
}

QString Seq_Matrix_Widget::Spoken_Name() const {
    return "Matrix, " + QString::fromStdString(Seq_Cell_Text(step_, row_));
}

std::vector<Speaking::Action> Seq_Matrix_Widget::Actions() {
    using Names = QAccessibleActionInterface;
    return {{Names::pressAction(), [this] { Press_Cell(Mouse_Button::Left); }},
            {Names::toggleAction(), [this] { Press_Cell(Mouse_Button::Right); }},
            {Names::previousPageAction(), [this] { Move(-1, 0); }},
            {Names::nextPageAction(), [this] { Move(1, 0); }},
            {Names::increaseAction(), [this] { Move(0, -1); }},
            {Names::decreaseAction(), [this] { Move(0, 1); }}};
}

// -- the lights ------------------------------------------------------------------------------------------

Seq_Clock_Widget::Seq_Clock_Widget(QWidget* parent) : QWidget(parent) {
    setObjectName("Seq_Clock");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(Seq_Matrix_Left, Seq_Clock_Top, Seq_Matrix_Width, Seq_Pitch);
}

void Seq_Clock_Widget::Show_Changes() {
    if (lit_ == Seq_Clock) return;
    lit_ = Seq_Clock;
    update();
}

void Seq_Clock_Widget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int step = 0; step < Seq_Steps; ++step) {
        const bool lit = Seq_Clock[static_cast<std::size_t>(step)];
        Draw_Cell(painter, step * Seq_Pitch, 0, lit ? Seq_Light_Picture : Seq_Empty_Picture,
                  devicePixelRatioF());
    }
}

// -- the key names ---------------------------------------------------------------------------------------

Seq_Key_Names::Seq_Key_Names(QWidget* parent) : QWidget(parent) {
    setObjectName("Seq_Key_Names");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(Seq_Keys_Left, Seq_Keys_Top, Seq_Keys.front().width, Seq_Rows * Seq_Pitch);
}

void Seq_Key_Names::Show_Changes() {
    if (base_note_ == Seq_Base_Note) return;
    base_note_ = Seq_Base_Note;
    update();
}

void Seq_Key_Names::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(Printing_Font(9));
    for (int key = 0; key < Seq_Rows; ++key) {
        const bool black = Seq_Key_Is_Black(key);
        painter.setPen(Ink_Colour(black ? Ink::Print : Ink::Rail));
        painter.drawText(QRect(4, (Seq_Rows - 1 - key) * Seq_Pitch, width() - 4, Seq_Pitch - 1),
                         Qt::AlignVCenter | Qt::AlignLeft,
                         QString::fromStdString(Seq_Note_Name(Seq_Base_Note + key)));
    }
}

// -- a direction -----------------------------------------------------------------------------------------

Seq_Direction_Widget::Seq_Direction_Widget(const Seq_Direction& record, QWidget* parent)
    : QAbstractButton(parent), record_(record), printing_(Seq_Direction_Printing(record.mode)) {
    setObjectName(QString("Seq_Directions_%1").arg(static_cast<int>(record.mode)));
    setAccessibleName(Seq_Direction_Name(record.mode));
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked,
            [mode = record.mode] { Guarded_Event([mode] { Seq_Directions_Click(mode); }); });
}

void Seq_Direction_Widget::Show_Changes() {
    if (isChecked() != record_.selected) setChecked(record_.selected);
}

void Seq_Direction_Widget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Picture lamp = Picture_Of(Picture_Store::LED, record_.selected ? 1 : 0);
    painter.drawPixmap(3, (height() - Role_Of(lamp).height) / 2, Picture_Pixmap(lamp, devicePixelRatioF()));
    Paint_Printing(painter, printing_);
    if (!hasFocus()) return;
    painter.setPen(QPen(Ink_Colour(Ink::Heading), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}
