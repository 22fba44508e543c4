#include "panels/spoken_qt.h"

#include <QAccessibleWidget>
#include <QWidget>

#include "panels/reader_qt.h"
#include "platform/gate.h"

namespace {

class Spoken_Widget : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    Spoken_Widget(QWidget* widget, Speaking& speaking) : QAccessibleWidget(widget), speaking_(speaking) {}

    QAccessible::Role role() const override { return speaking_.Role(); }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return speaking_.Spoken_Name();
        if (kind == QAccessible::Value) return speaking_.Spoken_Value();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto lit = speaking_.Lit()) {
            state.checkable = true;
            state.checked = *lit;
        }
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) {
            return speaking_.Scale() ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
        }
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return Scale().value; }
    QVariant minimumValue() const override { return Scale().lowest; }
    QVariant maximumValue() const override { return Scale().highest; }
    QVariant minimumStepSize() const override { return 1.0; }
    void setCurrentValue(const QVariant& value) override {
        bool number = false;
        const double wanted = value.toDouble(&number);
        if (number && widget()->isEnabled()) Guarded_Event([&] { speaking_.Enter(wanted); });
    }

    QStringList actionNames() const override {
        QStringList names;
        if (widget()->isEnabled()) {
            for (const auto& [name, work] : speaking_.Actions()) names << name;
        }
        return names << QAccessibleWidget::actionNames();
    }
    void doAction(const QString& wanted) override {
        if (!widget()->isEnabled()) return;
        for (const auto& [name, work] : speaking_.Actions()) {
            if (name == wanted) return Guarded_Event(work);
        }
        QAccessibleWidget::doAction(wanted);
    }

  private:
    Control_Scale Scale() const { return speaking_.Scale().value_or(Control_Scale{}); }

    Speaking& speaking_;
};

QAccessibleInterface* Make_Spoken(const QString&, QObject* object) {
    auto* speaking = dynamic_cast<Speaking*>(object);
    return speaking == nullptr ? nullptr : new Spoken_Widget(static_cast<QWidget*>(object), *speaking);
}

}  // namespace

void Speaking::Announce_Changes(QWidget& self) {
    if (!Reader_Listens()) return;
    const QString name = Spoken_Name();
    const QString value = Spoken_Value();
    if (told_ && name != told_name_) {
        QAccessibleEvent renamed(&self, QAccessible::NameChanged);
        Reader_Tell(renamed);
    }
    if (told_ && value != told_value_) {
        if (const auto scale = Scale()) {
            QAccessibleValueChangeEvent moved(&self, scale->value);
            Reader_Tell(moved);
        }
        if (Lit()) {
            QAccessible::State changed;
            changed.checked = true;
            QAccessibleStateChangeEvent switched(&self, changed);
            Reader_Tell(switched);
        }
    }
    told_ = true;
    told_name_ = name;
    told_value_ = value;
}

void Widgets_Speak() {
    QAccessible::installFactory(Make_Spoken);
}
