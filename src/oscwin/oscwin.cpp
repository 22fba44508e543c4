#include "oscwin/oscwin.h"

#include "desk/dialog_lock.h"
#include "desk/screen.h"
#include "desk/windows.h"
#include "oscillator/engine.h"
#include "oscillator/stairs.h"
#include "oscillator/targets.h"
#include "panels/push_buttons.h"

namespace {

constexpr int Start_Target = 0;
constexpr double Plain_Font_Size = 8;

// The lamps stand in two columns, even numbers left.
constexpr int Lamp_Left = 234;
constexpr int Lamp_Right = 311;
constexpr int First_Lamp_Row = 74;
constexpr int Lamp_Pitch = 16;
constexpr int Lamp_Reach = 68;  // a lamp and what is drawn beside it
constexpr int Invert_Row = 168;
constexpr int Button_Row = 161;
constexpr int Start_Left = 9;
constexpr int Stop_Left = 35;

// Lamp colours, by their item of the store.
enum Lamp : int { Off = 0, Drawn_By_Hand = 2, Chosen = 3, Inverted = 4 };

const char* const Preset_Names[Osc_Preset_Count] = {
    "Two saw teeth",  "One saw tooth", "Square",      "Triangle",     "Sine",
    "Rectified sine", "Single drop",   "Alternation", "Free drawing", "Random",
};
// The controls' own names, each its number in the row.
const char* const Preset_Controls[Osc_Preset_Count] = {
    "Osc_Wave_0", "Osc_Wave_1", "Osc_Wave_2", "Osc_Wave_3", "Osc_Wave_4",
    "Osc_Wave_5", "Osc_Wave_6", "Osc_Wave_7", "Osc_Wave_8", "Osc_Wave_9",
};

Control Plain(const char* name, const char* spoken_name, bool focusable) {
    return {.name = name, .spoken_name = spoken_name, .window = &Oscillator, .focusable = focusable};
}

std::array<Control, Osc_Preset_Count> Lamps() {
    std::array<Control, Osc_Preset_Count> lamps;
    for (std::size_t preset = 0; preset < lamps.size(); ++preset) {
        lamps[preset] = Plain(Preset_Controls[preset], Preset_Names[preset], true);
        lamps[preset].role = Spoken_Role::Radio_Button;
    }
    return lamps;
}

void Light(Control& lamp, Lamp colour) {
    lamp.picture = Picture_Of(Picture_Store::LED, colour);
}

void Light_One(int preset, Lamp colour) {
    for (Control& lamp : Osc_Wave) Light(lamp, Off);
    Light(Osc_Wave[static_cast<std::size_t>(preset)], colour);
}

void Set_Place(Control& control, int left, int top, int width, int height) {
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
}

void Lay_Symbol(Control& button, Control& symbol, Picture_Store store) {
    button.symbol = &symbol;
    symbol.parent = &button;
    symbol.picture = Picture_Of(store);
    Set_Place(symbol, 3, 3, 14, 14);
    Button_Release(button);
}

// -- window ----------------------------------------------------------------------------------------------

void Load() {
    Panel_Restore_Picture();
    Oscillator.caption = "Oscillator";
    Oscillator.width = Osc_Window_Width;
    Oscillator.height = Osc_Window_Height;
    Oscillator.left = (Editor.width - Osc_Window_Width) / 2;
    Oscillator.top = (Editor.height - Osc_Window_Height) / 2;
    Osc_Window_Open = Flag_8::True;
    Osc_Curve_Reset();
    Osc_Lay_Out();
    Osc_VScrollDelta_Change(0);
    Osc_VScrollA_Change(64);
    Osc_Time_Change(500);
    Osc_Window_Init();
    Osc_Wave_Click(0);
    Osc_Combo1_Click(Start_Target);
}

// The target is left at its last value on the instrument.
void Unload() {
    Osc_Halt();
    Osc_Window_Open = Flag_8::False;
}

// -- events ----------------------------------------------------------------------------------------------

void Focus_Gained(Control& control) {
    Oscillator.active_control = &control;
}
void Focus_Lost(Control&) {}
void Key_Pressed(Control&, int) {}
void Pointer_Moved(Control&, double) {}
void Window_Changed() {}

void Button_Pressed(Control& control, Mouse_Button) {
    if (&control == &Osc_Start || &control == &Osc_Stop) Button_Push(control);
}

void Button_Released(Control& control, Mouse_Button) {
    if (&control == &Osc_Stop) Osc_Stop_MouseUp();
}

void Clicked(Control& control) {
    if (&control == &Osc_Start) Osc_Start_Click();
    if (&control == &Osc_Stop) Osc_Stop_Click();
    if (&control == &Osc_Invert) Osc_Invert_Click();
    for (std::size_t preset = 0; preset < Osc_Wave.size(); ++preset) {
        if (&control == &Osc_Wave[preset]) Osc_Wave_Click(static_cast<int>(preset));
    }
}

std::string Spoken_Value(const Control& control) {
    if (control.picture.store != Picture_Store::LED) return "";
    return control.picture.item == Off ? "off" : "on";
}

std::vector<Control*> Controls_In_Focus_Order() {
    std::vector<Control*> controls;
    for (Control& lamp : Osc_Wave) controls.push_back(&lamp);
    for (Control* control : {&Osc_Invert, &Osc_Start, &Osc_Start_Pic, &Osc_Stop, &Osc_Stop_Pic})
        controls.push_back(control);
    return controls;
}

}  // namespace

std::array<Control, Osc_Preset_Count> Osc_Wave = Lamps();
Control Osc_Invert = {.name = "Osc_Invert",
                      .spoken_name = "Invert",
                      .role = Spoken_Role::Check_Box,
                      .window = &Oscillator,
                      .focusable = true};
Control Osc_Start = Plain("Osc_Start", "Oscillator Start", true);
Control Osc_Start_Pic = Plain("Osc_Start_Pic", "", false);
Control Osc_Stop = Plain("Osc_Stop", "Oscillator Stop", true);
Control Osc_Stop_Pic = Plain("Osc_Stop_Pic", "", false);
Drop_Down Osc_Combo1;
std::string Osc_Label1;
std::string Osc_Label3;
std::string Osc_Label4;
double Osc_Font_Size = Plain_Font_Size;

const Panel Osc_Panel = {
    .window = &Oscillator,
    .controls = Controls_In_Focus_Order(),
    .events =
        {
            .focus_gained = Focus_Gained,
            .focus_lost = Focus_Lost,
            .key_pressed = Key_Pressed,
            .button_pressed = Button_Pressed,
            .pointer_moved = Pointer_Moved,
            .button_released = Button_Released,
            .clicked = Clicked,
            .activated = Window_Changed,
            .deactivated = Window_Changed,
        },
    .spoken_value = Spoken_Value,
};

void Osc_Wave_Click(int preset) {
    Light_One(preset, Chosen);
    Osc_Preset(preset);
    if (Osc_Inverted) Osc_Invert_Points();
    Osc_Redraw();
}

void Osc_Wave_DblClick(int preset) {
    if (preset != Osc_Free_Drawing) return;
    Osc_Flatten();
    Osc_Redraw();
}

void Osc_Invert_Click() {
    Osc_Invert_Points();
    Osc_Redraw();
    Osc_Inverted = !Osc_Inverted;
    Light(Osc_Invert, Osc_Inverted ? Inverted : Off);
}

void Osc_Start_Click() {
    Osc_Play();
}

void Osc_Stop_Click() {
    Osc_Halt();
}

void Osc_Stop_MouseUp() {
    Button_Release(Osc_Stop);
    Button_Release(Osc_Start);
}

void Osc_Time_Change(int value) {
    Osc_Label1 = std::to_string(value);
    Osc_Set_Interval(value);
}

void Osc_VScrollA_Change(int value) {
    Osc_VScrollA.value = value;
    Osc_Label4 = std::to_string(value);
    Osc_Redraw();
}

void Osc_VScrollDelta_Change(int value) {
    Osc_VScrollDelta.value = value;
    Osc_Label3 = std::to_string(value);
    Osc_HLine = Osc_Middle_Row - value;
    Osc_Redraw();
}

void Osc_Combo1_Click(int index) {
    if (index < 0 || index >= static_cast<int>(Osc_Targets.size())) return;
    Osc_Combo1.Select(index);
    Osc_Param = Osc_Targets[static_cast<std::size_t>(index)].code;
}

void Osc_Picture1_MouseUp() {
    Light_One(Osc_Free_Drawing, Drawn_By_Hand);
}

void Osc_Window_Init() {
    for (int preset = 0; preset < Osc_Preset_Count; ++preset) {
        Control& lamp = Osc_Wave[static_cast<std::size_t>(preset)];
        const int left = preset % 2 == 0 ? Lamp_Left : Lamp_Right;
        Set_Place(lamp, left, First_Lamp_Row + preset / 2 * Lamp_Pitch, Lamp_Reach, 14);
        Light(lamp, Off);
    }
    Set_Place(Osc_Invert, Lamp_Left, Invert_Row, Lamp_Reach, 14);
    Light(Osc_Invert, Off);
    Set_Place(Osc_Start, Start_Left, Button_Row, 22, 22);
    Set_Place(Osc_Stop, Stop_Left, Button_Row, 22, 22);
    Lay_Symbol(Osc_Start, Osc_Start_Pic, Picture_Store::Start_Enabled);
    Lay_Symbol(Osc_Stop, Osc_Stop_Pic, Picture_Store::Stop_Enabled);
    Osc_Combo1.entries.clear();
    for (const Osc_Target& target : Osc_Targets) Osc_Combo1.entries.emplace_back(target.entry);
    Osc_Font_Size = Plain_Font_Size / Font_Scale;
}

void Osc_Show() {
    Window_Show(Oscillator);
}

void Osc_Install() {
    Oscillator.load = Load;
    Oscillator.unload = Unload;
    Osc_Engine_Install();
}
