// The drawn controls as one family: a control is a plain record that the rules move or repaint, and the
// widget that shows it reads the record when it paints. There are no stock sliders.
//
// A control's kind is a short text, and the only thing by which the shared procedures tell controls apart:
//
//   "bl"  switch thumb, handle to the left     "br"  switch thumb, handle to the right
//   "bm"  slider thumb                         "led" lamp of a group
//   "kn1" "kn2" "kn2f" "kn2fp" "knh"           knobs: a body, and a dot on it that moves round
//
// Body and dot of a knob both take the focus and answer alike, but the focus mark is always the dot's.
// The kind "cur" of a typed-text cursor is reserved; no control bears it, so nothing is drawn for it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "desk/dialog_lock.h"
#include "desk/windows.h"
#include "panels/pictures.h"

// What a control without a kind is to a screen reader: a button, unless it says otherwise.
enum class Spoken_Role { By_Kind, Check_Box, Radio_Button };

struct Control {
    const char* name = "";
    const char* kind = "";
    const char* spoken_name = "";  // for screen readers
    Spoken_Role role = Spoken_Role::By_Kind;
    const char* help = "";  // what it is for, shown to a pointer that rests on it
    Window* window = nullptr;
    Control* parent = nullptr;  // the control that this one lies on (a dot's knob, a symbol's button)
    Control* symbol = nullptr;  // of a push button: the picture that lies on it
    Control* twin = nullptr;    // of a push button: the same button on the other editor window
    int left = 0;               // pixels, in the window or on the parent
    int top = 0;
    int width = 0;
    int height = 0;
    Picture picture = {};
    std::string text = {};  // of a text field; ANSI
    std::string font = {};  // of a text field; empty is the default font
    bool focusable = false;
    bool takes_tab =
        false;  // the TAB key is a key like any other here, and does not move the focus by itself
    bool tab_stop = true;  // TAB stops here; else the pointer and the rules alone give the focus
    bool visible = true;
    bool enabled = true;
    std::int16_t help_context = 0;
};

extern std::uint8_t Panel_Blink_Phase;   // 0 or 1
extern std::int16_t Panel_Help_Context;  // help context number of the focused control, as of the last blink
extern std::int16_t Panel_Last_Param;    // of the last switch drag event, on any panel
extern std::int16_t Panel_Last_Value;
extern std::int16_t
    Panel_Knob_Last_Y;             // pointer row of the last knob drag event; 0 behind every focus change
extern double Panel_Scratch_Real;  // the value that the key and drag procedures work on
extern int Panel_Shift_State;      // keys held at the last key press: Shift 1, Ctrl 2, Alt 4, added up

// How far a dragged switch has come since the drag event before, on the same parameter; nothing when that
// was another parameter's. Remembers this event.
std::optional<int> Panel_Switch_Movement(std::size_t parameter, std::int16_t value);

// How far the pointer has moved since the last drag event of a knob. Behind a change of focus that counts
// from row 0 and not from the press, so the first event jumps by the row at which the pointer stands.
std::int16_t Panel_Knob_Movement(double row);

// A knob's kind names its dot, whichever knob has the focus, and the value that the dot shows. Each window
// fills in the knobs that it has: "kn1", "kn2" and "kn2f" are Editor's, "kn2fp" Patch's and
// "knh" Help's.
struct Knob {
    const char* kind;
    Control* dot = nullptr;
    Hook<double()> shown_value = {};
};
extern std::array<Knob, 5> Panel_Knobs;
void Panel_Set_Knob(const char* kind, Control& dot, double (*shown_value)());

// Filled in by the Patch window: lights the two lamps that are really selected.
extern Hook<void()> Patch_Relight_Lamps;

// Gives the focused control the picture of Panel_Blink_Phase. Timer1's tick moves the phase first.
void Panel_Blink();
void Panel_Blink_Tick();

// Place the dot of the focused knob for the value in Panel_Scratch_Real; of a knob named by its kind for
// the value in its record, which loads the window that the dot stands on. Value 0 is straight up, positive
// values go clockwise.
void Panel_Knob_Dot(int centre_left, int centre_top, double degrees_a_unit);
void Panel_Knob_Show(const std::string& kind, int centre_top, int centre_left, double degrees_a_unit);

// A control without a kind: a button, a field, a decoration.
Control Plain_Control(Window& window, const char* name, const char* spoken_name, bool focusable);

void Control_Set_Place(Control& control, int left, int top, int width, int height);
// The picture, and the size that comes with it.
void Control_Set_Picture(Control& control, Picture_Store store, int item = 0);

// The thumb of a switch's or slider's kind at rest.
Button_Item Thumb_Of_Kind(std::string_view kind);

// Moves the control that has the window's focus; without one there is no thumb to move.
void Window_Set_Active_Top(const Window& window, int top);

// Fills Panel_Restore_Picture (desk/dialog_lock.h): the focused control gets its resting picture, and the
// next knob drag counts from row 0.
void Controls_Install();
