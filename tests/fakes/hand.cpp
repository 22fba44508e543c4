#include "fakes/hand.h"

Control& Hand::At(const std::string& name) const {
    for (Control* control : panel_.controls) {
        if (name == control->name) return *control;
    }
    throw Fatal_Error("no control " + name);
}

void Hand::Focus(const std::string& name) const {
    Control& control = At(name);
    Control* const before = panel_.window->active_control;
    if (before == &control || !control.focusable) return;
    if (before != nullptr) panel_.events.focus_lost(*before);
    panel_.events.focus_gained(control);
}

void Hand::Press(const std::string& name) const {
    Focus(name);
    panel_.events.button_pressed(At(name), Mouse_Button::Left);
}

void Hand::Drag(const std::string& name, double row) const {
    panel_.events.pointer_moved(At(name), row);
}

void Hand::Release(const std::string& name) const {
    panel_.events.button_released(At(name), Mouse_Button::Left);
}

void Hand::Click(const std::string& name) const {
    Press(name);
    Release(name);
    panel_.events.clicked(At(name));
}

void Hand::Key(const std::string& name, int key, int held) const {
    Focus(name);
    Panel_Shift_State = held;
    panel_.events.key_pressed(At(name), key);
}
