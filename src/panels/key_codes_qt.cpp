#include "panels/key_codes_qt.h"

#include "panels/steps.h"

namespace {

struct Key_Row {
    int toolkit;
    int classic;
    int classic_on_keypad;
};

// Codes of keys that no rule names; a knob still answers them.
constexpr int Main_Minus = 189;
constexpr int Main_Plus = 187;
constexpr int Other_Key = 255;

// clang-format off
constexpr Key_Row Keys[] = {
//   toolkit           classic         on the keypad
    {Qt::Key_Tab,      Key_Tab,        Key_Tab},
    {Qt::Key_Backtab,  Key_Tab,        Key_Tab},
    {Qt::Key_Pause,    Key_Pause,      Key_Pause},
    {Qt::Key_Escape,   Key_Escape,     Key_Escape},
    {Qt::Key_PageUp,   Key_Page_Up,    Key_Page_Up},
    {Qt::Key_PageDown, Key_Page_Down,  Key_Page_Down},
    {Qt::Key_End,      Key_End,        Key_End},
    {Qt::Key_Home,     Key_Home,       Key_Home},
    {Qt::Key_Left,     Key_Left,       Key_Left},
    {Qt::Key_Up,       Key_Up,         Key_Up},
    {Qt::Key_Right,    Key_Right,      Key_Right},
    {Qt::Key_Down,     Key_Down,       Key_Down},
    {Qt::Key_0,        Key_0,          Key_Keypad_0},
    {Qt::Key_Plus,     Main_Plus,      Key_Keypad_Plus},
    {Qt::Key_Minus,    Main_Minus,     Key_Keypad_Minus},
};
// clang-format on

}  // namespace

int Classic_Shift_State(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held & Qt::ShiftModifier ? 1 : 0) + (held & Qt::ControlModifier ? 2 : 0) +
           (held & Qt::AltModifier ? 4 : 0);
}

int Classic_Key_Code(const QKeyEvent& event) {
    const bool keypad = (event.modifiers() & Qt::KeypadModifier) != 0;
    for (const Key_Row& row : Keys) {
        if (row.toolkit == event.key()) return keypad ? row.classic_on_keypad : row.classic;
    }
    // Letters and figures have their own codes in both worlds.
    const bool letter_or_figure = (event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9) ||
                                  (event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z);
    return letter_or_figure ? event.key() : Other_Key;
}
