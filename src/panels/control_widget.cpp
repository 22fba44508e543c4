#include "panels/control_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desk/ansi_qt.h"
#include "panels/key_codes_qt.h"
#include "panels/pictures_qt.h"
#include "panels/spoken.h"
#include "platform/gate.h"

namespace {

// Where a knob's body has its disc.
constexpr double Knob_Middle_Row = 12;
constexpr double Knob_Radius = 11.5;

bool Is_Bare_Modifier(int key) {
    return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

// The part of a record that shows.
bool Same_Look(const Control& a, const Control& b) {
    return a.picture == b.picture && a.text == b.text && a.font == b.font;
}

}  // namespace

Mouse_Button Mouse_Button_Of(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return Mouse_Button::Left;
    return button == Qt::RightButton ? Mouse_Button::Right : Mouse_Button::Other;
}

Control_Widget::Control_Widget(Control& record, const Panel& panel, QWidget* parent)
    : QWidget(parent), record_(record), panel_(panel), shown_(record) {
    setObjectName(record.name);
    // As a paragraph, so that a long text is broken into lines.
    if (*record.help != '\0') setToolTip(QString("<p>%1</p>").arg(QString(record.help).toHtmlEscaped()));
    Show_Focus_Policy();
    // A symbol or a decoration lets the pointer through to what it lies on.
    setAttribute(Qt::WA_TransparentForMouseEvents, !record.focusable);
    setGeometry(record.left, record.top, record.width, record.height);
    setVisible(record.visible);
}

QAccessible::Role Control_Widget::Role() const {
    // What takes no focus is there to be looked at.
    if (!record_.focusable) return Is_Field() ? QAccessible::StaticText : QAccessible::Graphic;
    if (record_.role == Spoken_Role::Check_Box) return QAccessible::CheckBox;
    if (Is_Lamp(record_)) return QAccessible::RadioButton;
    return *record_.kind == '\0' ? QAccessible::PushButton : QAccessible::Slider;
}

QString Control_Widget::Spoken_Name() const {
    return From_ANSI(::Spoken_Name(panel_, record_));
}

QString Control_Widget::Spoken_Value() const {
    return From_ANSI(panel_.spoken_value(record_));
}

std::optional<bool> Control_Widget::Lit() const {
    if (!Is_Lamp(record_)) return {};
    return Is_Lit(panel_, record_);
}

std::optional<Control_Scale> Control_Widget::Scale() const {
    if (panel_.scale == nullptr || !record_.focusable) return {};
    return panel_.scale(record_);
}

void Control_Widget::Enter(double value) {
    Enter_Value(panel_, record_, value);
}

std::vector<Speaking::Action> Control_Widget::Actions() {
    using Names = QAccessibleActionInterface;
    if (!record_.focusable) return {};
    if (!Scale()) return {{Names::pressAction(), [this] { Press_Control(panel_, record_); }}};
    return {{Names::increaseAction(), [this] { Step_Control(panel_, record_, true); }},
            {Names::decreaseAction(), [this] { Step_Control(panel_, record_, false); }}};
}

void Control_Widget::Show_Focus_Policy() {
    const Qt::FocusPolicy way = record_.tab_stop ? Qt::StrongFocus : Qt::ClickFocus;
    setFocusPolicy(record_.focusable ? way : Qt::NoFocus);
}

void Control_Widget::Show_Changes() {
    setGeometry(record_.left, record_.top, record_.width, record_.height);
    if (isEnabledTo(parentWidget()) != record_.enabled) setEnabled(record_.enabled);
    if (shown_.visible != record_.visible) setVisible(record_.visible);
    if (shown_.tab_stop != record_.tab_stop) Show_Focus_Policy();
    if (!Same_Look(shown_, record_)) update();
    Announce_Changes(*this);
    shown_ = record_;
}

// A control without a picture shows its text; one that has none and takes no focus either is nothing to
// see.
bool Control_Widget::Is_Field() const {
    return record_.picture.store == Picture_Store::None && (record_.focusable || !record_.text.empty());
}

void Control_Widget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (Is_Field()) {
        Paint_Field(painter);
    } else {
        // A control may be narrower than its picture: then it shows the middle of it. A wider one has a
        // caption of its own beside the picture.
        const QPixmap& picture = Picture_Pixmap(record_.picture, devicePixelRatioF());
        const double aside = (width() - picture.deviceIndependentSize().width()) / 2;
        painter.drawPixmap(QPointF(std::min(aside, 0.0), 0), picture);
    }
    Paint_Mark(painter);
}

// The moving controls show the focus by blinking; the others need a mark of their own. And so does a knob,
// of which a dot blinks that is easily overlooked.
void Control_Widget::Paint_Mark(QPainter& painter) const {
    painter.setPen(QPen(Ink_Colour(Ink::Heading), 1));
    painter.setBrush(Qt::NoBrush);
    if (*record_.kind == '\0') {
        if (hasFocus()) painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    } else if (record_.picture == Picture_Of(Picture_Store::Buttons, Knob_Body)) {
        const QWidget* focused = window()->focusWidget();
        if (focused != this && (focused == nullptr || focused->parentWidget() != this)) return;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(QPointF(width() / 2.0, Knob_Middle_Row), Knob_Radius, Knob_Radius);
    }
}

// The instrument's display: lit segments on a dark glass, the unlit ones faintly behind them.
void Control_Widget::Paint_Field(QPainter& painter) const {
    constexpr int Cell_Width = 12;
    const int cells = (width() - 1) / Cell_Width;
    const QColor glass(0x06, 0x12, 0x12);
    const QColor lit(0x6c, 0xff, 0xe2);
    const QColor unlit(0x14, 0x2e, 0x2c);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x00, 0x00, 0x00), 1));
    painter.setBrush(glass);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);

    const QString text = From_ANSI(record_.text).left(cells);
    if (record_.font.empty()) {
        QFont font = Printing_Font(16);
        painter.setFont(font);
        painter.setPen(lit);
        painter.drawText(rect().adjusted(5, 0, -3, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
        return;
    }
    QFont font(QString::fromStdString(record_.font));
    font.setPixelSize(20);
    painter.setFont(font);
    const QChar all_segments(0xE000);
    for (int cell = 0; cell < cells; ++cell) {
        const QRect place(cell * Cell_Width + 1, 0, Cell_Width, height());
        painter.setPen(unlit);
        painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString(all_segments));
        if (cell >= text.size()) continue;
        painter.setPen(lit);
        painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString(text[cell]));
    }
}

// The rules move the control that has the focus. The toolkit gives it before a press, but tells so only
// once the window is active.
void Control_Widget::Take_Focus() {
    if (panel_.window->active_control == &record_ || !record_.focusable) return;
    Guarded_Event([&] { Give_Focus(panel_, record_); });
}

void Control_Widget::mousePressEvent(QMouseEvent* event) {
    Take_Focus();
    Guarded_Event([&] { panel_.events.button_pressed(record_, Mouse_Button_Of(event->button())); });
}

void Control_Widget::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) return;
    // TAB has moved the focus in the middle of the drag: another thumb would follow the pointer.
    Take_Focus();
    Guarded_Event([&] {
        panel_.events.pointer_moved(record_, event->position().y());
        if (panel_.events.pointer_moved_across != nullptr) {
            panel_.events.pointer_moved_across(record_, event->position().x());
        }
    });
}

void Control_Widget::mouseReleaseEvent(QMouseEvent* event) {
    Guarded_Event([&] { panel_.events.button_released(record_, Mouse_Button_Of(event->button())); });
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Guarded_Event([&] { panel_.events.clicked(record_); });
    }
}

void Control_Widget::keyPressEvent(QKeyEvent* event) {
    const bool push =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (push && *record_.kind == '\0' && !Is_Field()) {
        if (event->isAutoRepeat()) return;
        // The buttons work by keyboard too.
        Press_Control(panel_, record_);
        return;
    }
    if (Is_Field() && Is_Bare_Modifier(event->key())) {
        // The beginning of a shortcut; a key of its own would open the name's dialog.
        QWidget::keyPressEvent(event);
        return;
    }
    Panel_Shift_State = Classic_Shift_State(*event);
    Guarded_Event([&] { panel_.events.key_pressed(record_, Classic_Key_Code(*event)); });
}

bool Control_Widget::focusNextPrevChild(bool next) {
    return !record_.takes_tab && QWidget::focusNextPrevChild(next);
}

void Control_Widget::focusInEvent(QFocusEvent*) {
    Guarded_Event([&] { panel_.events.focus_gained(record_); });
    Update_Mark();
}

void Control_Widget::focusOutEvent(QFocusEvent*) {
    Guarded_Event([&] { panel_.events.focus_lost(record_); });
    Update_Mark();
}

// A dot's mark is on the knob that it lies on.
void Control_Widget::Update_Mark() {
    update();
    if (record_.parent != nullptr) parentWidget()->update();
}
