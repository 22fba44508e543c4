// What a widget of our own tells a screen reader, and what it takes from one. The toolkit's own widgets
// speak for themselves.
#pragma once

#include <QAccessible>
#include <QString>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "panels/panel.h"

class QWidget;

class Speaking {
  public:
    // A name as the toolkit has it (press, increase, decrease), and what it does.
    using Action = std::pair<QString, std::function<void()>>;

    virtual ~Speaking() = default;
    virtual QAccessible::Role Role() const = 0;
    virtual QString Spoken_Name() const = 0;
    virtual QString Spoken_Value() const { return {}; }
    virtual std::optional<bool> Lit() const { return {}; }  // nothing: neither on nor off
    virtual std::optional<Control_Scale> Scale() const { return {}; }
    virtual void Enter(double /*value*/) {}
    virtual std::vector<Action> Actions() { return {}; }

    // Tells a screen reader that is there what has changed since the last time. `self` is the widget.
    void Announce_Changes(QWidget& self);

  private:
    QString told_name_;
    QString told_value_;
    bool told_ = false;
};

// Makes all such widgets known to screen readers. Called once.
void Widgets_Speak();
