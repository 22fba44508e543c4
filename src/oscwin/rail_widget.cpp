#include "oscwin/rail_widget.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

#include "panels/pictures_qt.h"
#include "platform/gate.h"

Rail_Widget::Rail_Widget(const Scroll_Bar& record, void (*changed)(int value), QWidget* parent)
    : QSlider(Qt::Vertical, parent), record_(record) {
    setRange(record.minimum, record.maximum);
    setPageStep(record.large_step);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::valueChanged, [changed](int value) { Guarded_Event([&] { changed(value); }); });
}

void Rail_Widget::Show_Changes() {
    const QSignalBlocker quiet(this);
    setValue(record_.value);
}

// The rail is printed; only the cap is drawn here. With the focus it is lit.
void Rail_Widget::paintEvent(QPaintEvent*) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const Picture cap = Picture_Of(Picture_Store::Buttons, Thumb_Slider + (hasFocus() ? 1 : 0));
    const Picture_Role& role = Role_Of(cap);
    QPainter painter(this);
    painter.drawPixmap((width() - role.width) / 2, handle.center().y() - role.height / 2 + 1,
                       Picture_Pixmap(cap, devicePixelRatioF()));
}
