#include "oscwin/oscillator_window.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include "oscillator/engine.h"
#include "oscillator/stairs.h"
#include "oscwin/curve_widget.h"
#include "oscwin/oscwin.h"
#include "oscwin/rail_widget.h"
#include "panels/control_widget.h"
#include "platform/gate.h"

namespace {

// What moves with each step is shown at most this often. Steps may come every millisecond; to paint each
// would leave no time for the pointer.
constexpr int Frame_Milliseconds = 16;

const QColor Glass(0x06, 0x12, 0x12);
const QColor Glass_Edge(0x00, 0x00, 0x00);
const char* const Number_Style = "color: #6cffe2; background: transparent;";

QRect Rect(const Osc_Place& place) {
    return {place.left, place.top, place.width, place.height};
}

// A preset. The second press of a double click is no press of its own.
class Preset_Widget : public Control_Widget {
  public:
    Preset_Widget(Control& record, int preset, QWidget* parent)
        : Control_Widget(record, Osc_Panel, parent), preset_(preset) {}

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        pressed_twice_ = true;
        Guarded_Event([this] { Osc_Wave_DblClick(preset_); });
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (!pressed_twice_) Control_Widget::mouseReleaseEvent(event);
        pressed_twice_ = false;
    }

  private:
    int preset_;
    bool pressed_twice_ = false;
};

}  // namespace

QLabel* Oscillator_Window::Number(const char* name, const Osc_Place& place) {
    auto* label = new QLabel(this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(Number_Style);
    QFont font = Printing_Font(1);
    font.setPointSizeF(Osc_Font_Size);
    label->setFont(font);
    label->setGeometry(Rect(place));
    return label;
}

Rail_Widget* Oscillator_Window::Rail(const Osc_Rail& rail, const Scroll_Bar& record, void (*changed)(int)) {
    auto* widget = new Rail_Widget(record, changed, this);
    widget->setObjectName(rail.name);
    widget->setAccessibleName(rail.spoken_name);
    widget->setGeometry(Rect(Osc_Rail_Place(rail)));
    return widget;
}

QComboBox* Oscillator_Window::Target_List() {
    auto* list = new QComboBox(this);
    list->setObjectName("Combo1");
    list->setAccessibleName("Target");
    QFont font = list->font();
    font.setPointSizeF(Osc_Font_Size);
    list->setFont(font);
    list->setGeometry(Rect(Osc_Combo1_Place));
    for (const std::string& entry : Osc_Combo1.entries) list->addItem(QString::fromStdString(entry));
    list->setMaxVisibleItems(list->count());
    connect(list, &QComboBox::activated,
            [](int index) { Guarded_Event([index] { Osc_Combo1_Click(index); }); });
    return list;
}

void Oscillator_Window::Add_Controls() {
    for (Control* control : Osc_Panel.controls) {
        Control_Widget* widget = nullptr;
        if (control >= Osc_Wave.data() && control < Osc_Wave.data() + Osc_Wave.size()) {
            widget = new Preset_Widget(*control, static_cast<int>(control - Osc_Wave.data()), this);
        } else {
            QWidget* below = this;
            if (control->parent != nullptr) below = findChild<QWidget*>(control->parent->name);
            widget = new Control_Widget(*control, Osc_Panel, below);
        }
        controls_.push_back(widget);
    }
}

Oscillator_Window::Oscillator_Window(QMainWindow* parent)
    : Child_Window(Oscillator, parent), ground_(Osc_Printing()) {
    curve_ = new Curve_Widget(this);
    curve_->setGeometry(Rect(Osc_Picture1_Place));
    targets_ = Target_List();
    Add_Controls();
    rails_ = {
        Rail(Osc_Rails[Osc_Rail_Amplitude], Osc_VScrollA, Osc_VScrollA_Change),
        Rail(Osc_Rails[Osc_Rail_Offset], Osc_VScrollDelta, Osc_VScrollDelta_Change),
        Rail(Osc_Rails[Osc_Rail_Time], Osc_Time, Osc_Time_Change),
    };
    value_ = Number("Label2", Osc_Label2_Place);
    amplitude_ = Number("Label4", Osc_Number_Place(Osc_Rails[Osc_Rail_Amplitude]));
    offset_ = Number("Label3", Osc_Number_Place(Osc_Rails[Osc_Rail_Offset]));
    interval_ = Number("Label1", Osc_Number_Place(Osc_Rails[Osc_Rail_Time]));
    // As it lies on the window: left to right, and down in each part.
    std::vector<QWidget*> order = {curve_, findChild<QWidget*>(Osc_Start.name),
                                   findChild<QWidget*>(Osc_Stop.name)};
    order.insert(order.end(), rails_.begin(), rails_.end());
    order.push_back(targets_);
    for (Control_Widget* control : controls_) {
        const Control& record = control->Record();
        if (record.focusable && record.role != Spoken_Role::By_Kind) order.push_back(control);
    }
    for (std::size_t next = 1; next < order.size(); ++next) setTabOrder(order[next - 1], order[next]);
    next_frame_.setSingleShot(true);
    connect(&next_frame_, &QTimer::timeout, this, &Oscillator_Window::Show_Running);
}

void Oscillator_Window::Show_Contents() {
    for (Control_Widget* widget : controls_) widget->Show_Changes();
    for (Rail_Widget* rail : rails_) rail->Show_Changes();
    // The entries never change, and a list of 27 is not looked through at each step.
    if (targets_->currentIndex() != Osc_Combo1.selected) targets_->setCurrentIndex(Osc_Combo1.selected);
    amplitude_->setText(QString::fromStdString(Osc_Label4));
    offset_->setText(QString::fromStdString(Osc_Label3));
    interval_->setText(QString::fromStdString(Osc_Label1));
    curve_->Show_Lines();
    Show_Running();
}

// Cursor and value.
void Oscillator_Window::Show_Running() {
    const QString value = QString::fromStdString(Osc_Label2);
    if (curve_->Shows_Cursor(Osc_TimeLine, Timer_Osc.enabled) && value_->text() == value) return;
    if (since_frame_.isValid() && !since_frame_.hasExpired(Frame_Milliseconds)) {
        if (!next_frame_.isActive()) next_frame_.start(Frame_Milliseconds);
        return;
    }
    since_frame_.start();
    curve_->Show_Cursor(Osc_TimeLine, Timer_Osc.enabled);
    value_->setText(value);
}

void Oscillator_Window::Appeared() {
    controls_.front()->setFocus();
}

void Oscillator_Window::Close_Asked() {
    Window_Unload(Oscillator);
}

// Escape closes nothing here, it would throw a drawn curve away: only the close box closes.
void Oscillator_Window::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

void Oscillator_Window::paintEvent(QPaintEvent*) {
    ground_.Paint(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Glass_Edge, 1));
    painter.setBrush(Glass);
    for (const Osc_Place& glass : Osc_Glasses())
        painter.drawRoundedRect(QRectF(Rect(glass)).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
}
