#include "seqwin/seqwin_window.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include "desk/form_qt.h"
#include "panels/control_widget.h"
#include "panels/key_codes_qt.h"
#include "platform/gate.h"
#include "seqwin/seqwin.h"
#include "seqwin/seqwin_parts_widget.h"
#include "seqwin/seqwin_printing.h"

QComboBox* Sequencer_Window::List(const char* name, const char* spoken, QRect place, void (*changed)(int)) {
    auto* list = new QComboBox(this);
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    list->setGeometry(place);
    // Makes the list that drops down, so that the window sees the keys there too.
    list->view();
    connect(list, &QComboBox::activated, [changed](int index) { Guarded_Event([&] { changed(index); }); });
    return list;
}

Sequencer_Window::Sequencer_Window(QMainWindow* parent)
    : Child_Window(Sequencer, parent), ground_(Seq_Printing()) {
    matrix_ = new Seq_Matrix_Widget(this);
    clock_ = new Seq_Clock_Widget(this);
    for (Control* control : Seq_Panel.controls) {
        QWidget* below = this;
        for (Control_Widget* made : controls_) {
            if (&made->Record() == control->parent) below = made;
        }
        controls_.push_back(new Control_Widget(*control, Seq_Panel, below));
    }
    // The keys are for the pointer: thirteen stops on the way to the next control would be a nuisance.
    for (std::size_t key = 0; key < Seq_Keys.size(); ++key) controls_[key]->setFocusPolicy(Qt::NoFocus);
    key_names_ = new Seq_Key_Names(this);
    for (std::size_t index = 0; index < Seq_Directions.size(); ++index) {
        auto* direction = new Seq_Direction_Widget(Seq_Directions[index], this);
        direction->setGeometry(Seq_Directions_Left,
                               Seq_Directions_Top + static_cast<int>(index) * Seq_Direction_Height,
                               Seq_Direction_Width, Seq_Direction_Height);
        directions_.push_back(direction);
    }
    range_ = List("Seq_Range", "Range", {303, 19, 114, 24}, Seq_Range_Change);
    trans_ = List("Seq_Trans", "Transpose", {303, 62, 114, 24}, Seq_Trans_Change);
    tempo_ = new QScrollBar(Qt::Horizontal, this);
    tempo_->setObjectName("Seq_Tempo");
    tempo_->setAccessibleName("Tempo");
    tempo_->setRange(Seq_Lowest_Tempo, Seq_Highest_Tempo);
    tempo_->setPageStep(Seq_Tempo_Page);
    // Right and up are faster, by keys and wheel: a scroll bar by itself means the place in a text.
    tempo_->setInvertedControls(false);
    tempo_->setFocusPolicy(Qt::StrongFocus);
    tempo_->setGeometry(303, 105, 114, 18);
    connect(tempo_, &QScrollBar::valueChanged,
            [](int tempo) { Guarded_Event([&] { Seq_Tempo_Change(tempo); }); });
    tempo_label_ = new QLabel(this);
    tempo_label_->setObjectName("Seq_Tempo_Label");
    tempo_label_->setFont(Printing_Font(11));
    tempo_label_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    tempo_label_->setGeometry(370, 88, 46, 16);

    // As it lies on the window: left to right, and down in each part.
    std::vector<QWidget*> order = {findChild<QWidget*>(Seq_New.name), matrix_};
    order.insert(order.end(), directions_.begin(), directions_.end());
    for (QWidget* widget :
         {static_cast<QWidget*>(range_), static_cast<QWidget*>(trans_), static_cast<QWidget*>(tempo_),
          findChild<QWidget*>(Seq_Start.name), findChild<QWidget*>(Seq_Stop.name)})
        order.push_back(widget);
    for (std::size_t next = 1; next < order.size(); ++next) setTabOrder(order[next - 1], order[next]);

    for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
    installEventFilter(this);
}

void Sequencer_Window::Show_Contents() {
    for (Control_Widget* control : controls_) control->Show_Changes();
    for (Seq_Direction_Widget* direction : directions_) direction->Show_Changes();
    matrix_->Show_Changes();
    clock_->Show_Changes();
    key_names_->Show_Changes();
    Show_List(*range_, Sequencer_Form.range);
    Show_List(*trans_, Sequencer_Form.trans);
    const QSignalBlocker quiet(tempo_);
    tempo_->setValue(Sequencer_Form.tempo);
    tempo_label_->setText(QString::fromStdString(Sequencer_Form.tempo_label));
}

void Sequencer_Window::Appeared() {
    findChild<QWidget*>(Seq_Start.name)->setFocus();
}

void Sequencer_Window::Close_Asked() {
    Window_Unload(Sequencer);
}

void Sequencer_Window::paintEvent(QPaintEvent*) {
    ground_.Paint(*this);
}

// An Escape meant for a list must not end a pattern that plays: only the close box closes.
void Sequencer_Window::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

// The window sees every key first. A letter that names a note goes no further: the lists would look for an
// entry that begins with it.
bool Sequencer_Window::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return Child_Window::eventFilter(object, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    const Seq_Shift held = {.shift = (key.modifiers() & Qt::ShiftModifier) != 0,
                            .control = (key.modifiers() & Qt::ControlModifier) != 0,
                            .alt = (key.modifiers() & Qt::AltModifier) != 0};
    bool chosen = false;
    Guarded_Event([&] { chosen = Seq_KeyDown(Classic_Key_Code(key), held); });
    return chosen;
}
