// A panel as its toolkit window sees it: the window's record, its controls, and where events go.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "panels/controls.h"

enum class Mouse_Button { Left, Right, Other };

// What a widget reports. `row` is the pointer's row relative to the control at the moment of the event, in
// pixels; every handler gets the control's record.
struct Panel_Events {
    void (*focus_gained)(Control&);
    void (*focus_lost)(Control&);
    void (*key_pressed)(Control&, int key);  // classic key code
    void (*button_pressed)(Control&, Mouse_Button button);
    void (*pointer_moved)(Control&, double row);  // with any button held
    void (*button_released)(Control&, Mouse_Button button);
    void (*clicked)(Control&);  // pressed and released inside
    void (*activated)();
    void (*deactivated)();
    // As pointer_moved, with the column: for what is moved sideways.
    void (*pointer_moved_across)(Control&, double column) = nullptr;
};

// A picture that comes up over a panel and is drawn from line shapes; their ends are pixels in it.
struct Line_Shape {
    float x1, y1, x2, y2;
};
struct Panel_Graph {
    Control& picture;  // where it stands, and whether it is visible
    std::span<const Line_Shape> axes;
    std::span<const Line_Shape> curve;
};

// A control's value as a number on its scale, up being more.
struct Control_Scale {
    double value, lowest, highest;
};

struct Panel {
    Window* window;
    std::vector<Control*> controls;  // those that take the focus stand in its order
    Panel_Events events;
    // What a screen reader says behind the name; ANSI. Of a lamp "on" or "off".
    std::string (*spoken_value)(const Control&);
    // Null when no control has one.
    std::optional<Control_Scale> (*scale)(const Control&) = nullptr;
    const Panel_Graph* graph = nullptr;
};
