#include "help/howto.h"

#include <algorithm>
#include <string_view>

#include "desk/timers.h"
#include "panels/editor.h"
#include "panels/knob_printing.h"
#include "panels/spoken.h"
#include "panels/steps.h"
#include "panels/tune_knob.h"
#include "synth/tuning.h"

namespace {

constexpr double Slider_Page = 16;
constexpr std::uint8_t Switch_On = 64;
constexpr std::uint8_t Last_Off = 63;
constexpr int Display_Width = 253;  // has room for "Waiting for action..."

constexpr std::array<const char*, 4> LED_Names = {"A", "B", "C", "D"};

constexpr const char* Up_And_Down = "Click and hold down a mouse button, move up or down.\n";
constexpr const char* Sideways = "Click and hold down a mouse button and move left or right.\n";
constexpr const char* Pos_Sw_Keys = "Keyboard: up/down, page up/down, home/end, +/-";
constexpr const char* Tune_Keys = "Keyboard: left/right, page up/down, home/end, +/-";
constexpr const char* Other_Keys = "Keyboard: cursor up/down, page up/down, home/end, +/-";
constexpr const char* Where_Switches_Are =
    "Click to change. Applies to:\n"
    " Editor: VCA Mode, Portamento Switch\n"
    " Patch: After Touch, Key Mode\n";

std::uint8_t Byte_Of(double value) {
    return Narrow<std::uint8_t>(value);
}

bool Is_LED(const Control& control) {
    return std::string_view(control.kind) == "led";
}

bool Is_Tune(const Control& control) {
    return &control == &Help_Tune || &control == &Help_Tune_Knopf;
}

std::size_t Lit_LED() {
    return std::min<std::size_t>(Help_Demo_Values[Demo_LED_SW], Help_LED_SW.size() - 1);
}

// The lamp of the selected entry alone is lit, and TAB stops at it alone: it walks from group to group.
void Light_LED() {
    for (Control& lamp : Help_LED_SW) {
        const bool lit = &lamp == &Help_LED_SW[Lit_LED()];
        lamp.picture = Picture_Of(Picture_Store::LED, lit ? 1 : 0);
        lamp.tab_stop = lit;
    }
}

void Place_Pos_Sw() {
    Help_Pos_Sw.top = Band_Top(Pos_Sw_Bottom_Row, Help_Demo_Values[Demo_Pos_Sw]);
}

void Place_Slider() {
    Help_Slider.top = Slider_Top(Slider_Bottom_Row, Help_Demo_Values[Demo_Slider]);
}

void Place_Switch() {
    const bool on = Help_Demo_Values[Demo_Switch] > Last_Off;
    Help_Switch.top = Switch_Row_Off + (on ? Switch_Pitch : 0);
}

// -- the mark --------------------------------------------------------------------------------------------

// The resting picture of a lamp is a dark one; the selected one may have been that lamp.
void Rest() {
    Panel_Restore_Picture();
    Light_LED();
}

std::string Hint(const Control& control) {
    if (&control == &Help_Pos_Sw) return std::string(Up_And_Down) + Pos_Sw_Keys;
    if (&control == &Help_Slider) return std::string(Up_And_Down) + Other_Keys;
    if (Is_Tune(control)) return std::string(Sideways) + Tune_Keys;
    return std::string(Where_Switches_Are) + Other_Keys;
}

// The mark of a knob is its dot's, that of the lamps is the selected one's.
Control& Marked_For(Control& control) {
    if (Is_Tune(control)) return Help_Tune_Knopf;
    return Is_LED(control) ? Help_LED_SW[Lit_LED()] : control;
}

void Focus_Gained(Control& control) {
    Pic_Howto_Bk.active_control = &control;
    Control& marked = Marked_For(control);
    // The page begins on a control that is marked already, with a text of its own.
    if (Panel_Current_Control != &marked) Help_Info = Hint(control);
    Panel_Current_Control = &marked;
}

void Focus_Lost(Control&) {
    Rest();
    Pic_Howto_Bk.active_control = nullptr;
}

// -- the moves -------------------------------------------------------------------------------------------

void Move_Slider(double value) {
    Help_Show_Demo_Value(Demo_Slider, Byte_Of(value));
    Place_Slider();
}

void Move_Pos_Sw(double value) {
    Help_Show_Demo_Value(Demo_Pos_Sw, Byte_Of(value));
    Place_Pos_Sw();
}

void Flip_Switch() {
    const std::uint8_t side = Help_Demo_Values[Demo_Switch] > Last_Off ? Switch_On : 0;
    Help_Show_Demo_Value(Demo_Switch, Byte_Of(Toggled(side)));
    Place_Switch();
}

void Select_LED(std::size_t entry) {
    Panel_Restore_Picture();
    Help_Show_Demo_Value(Demo_LED_SW, static_cast<std::uint8_t>(entry));
    Light_LED();
    Panel_Current_Control = &Help_LED_SW[entry];
    Pic_Howto_Bk.active_control = Panel_Current_Control;
}

void LED_Key(int key) {
    const std::size_t entry = Lit_LED();
    if (key == Key_Down || key == Key_Page_Down) Select_LED(std::min(entry + 1, Help_LED_SW.size() - 1));
    if (key == Key_Up || key == Key_Page_Up) Select_LED(entry == 0 ? 0 : entry - 1);
}

// -- events ----------------------------------------------------------------------------------------------

void Key_Pressed(Control& control, int key) {
    if (key == Key_Escape) {
        Window_Unload(Help);
        return;
    }
    Help_Info = Hint(control);
    if (&control == &Help_Slider) {
        const auto value = Slider_Step(Help_Demo_Values[Demo_Slider], key, Slider_Page);
        if (value) Move_Slider(*value);
    } else if (&control == &Help_Pos_Sw) {
        const auto value = Switch_Step(Help_Demo_Values[Demo_Pos_Sw], key);
        if (value) Move_Pos_Sw(*value);
    } else if (Is_Tune(control)) {
        // A knob has no notion of an unknown key: every key shows.
        Help_Show_Demo_Value(Demo_Tune, Tune_Knob_Key(Help_Demo_Values[Demo_Tune], key));
    } else if (&control == &Help_Switch) {
        if (Toggles(key)) Flip_Switch();
    } else {
        LED_Key(key);
    }
}

void Button_Pressed(Control& control, Mouse_Button) {
    Help_Info = Hint(control);
    if (&control == &Help_Slider) Help_Show_Demo_Value(Demo_Slider, Help_Demo_Values[Demo_Slider]);
    if (Is_Tune(control)) Help_Show_Demo_Value(Demo_Tune, Help_Demo_Values[Demo_Tune]);
    if (&control == &Help_Switch) Flip_Switch();
}

void Pointer_Moved(Control& control, double row) {
    if (&control == &Help_Slider) Move_Slider(Slider_Dragged(Help_Demo_Values[Demo_Slider], row));
    if (&control == &Help_Pos_Sw) Move_Pos_Sw(Switch_Dragged(Help_Demo_Values[Demo_Pos_Sw], row));
}

// The practice knob follows sideways; the panels' own follow up and down.
void Pointer_Moved_Across(Control& control, double column) {
    if (!Is_Tune(control)) return;
    Help_Show_Demo_Value(Demo_Tune, Tune_Knob_Drag(Help_Demo_Values[Demo_Tune], column));
}

void Clicked(Control& control) {
    for (std::size_t entry = 0; entry < Help_LED_SW.size(); ++entry) {
        if (&control == &Help_LED_SW[entry]) Select_LED(entry);
    }
}

// -- the records -----------------------------------------------------------------------------------------

Control Demo_Control(const char* name, const char* kind, const char* spoken_name) {
    return {
        .name = name, .kind = kind, .spoken_name = spoken_name, .window = &Pic_Howto_Bk, .focusable = true};
}

std::string Spoken_Value(const Control& control) {
    if (&control == &Help_HName) return control.text;
    if (Is_LED(control)) return &control == &Help_LED_SW[Lit_LED()] ? "on" : "off";
    const Demo demo = &control == &Help_Pos_Sw   ? Demo_Pos_Sw
                      : &control == &Help_Slider ? Demo_Slider
                      : &control == &Help_Switch ? Demo_Switch
                                                 : Demo_Tune;
    return Help_Demo_Text(demo, Help_Demo_Values[demo]);
}

std::optional<Control_Scale> Scale(const Control& control) {
    if (&control == &Help_Pos_Sw) return Scale_Of(Control_Type::Four_Way, Help_Demo_Values[Demo_Pos_Sw]);
    if (&control == &Help_Slider) return Scale_Of(Control_Type::Slider, Help_Demo_Values[Demo_Slider]);
    if (&control == &Help_Switch) return Scale_Of(Control_Type::Two_Way, Help_Demo_Values[Demo_Switch]);
    if (Is_Tune(control)) return Scale_Of(Control_Type::Tune_Knob, Help_Demo_Values[Demo_Tune]);
    return {};
}

}  // namespace

std::array<std::uint8_t, 9> Help_Demo_Values = {0, 56};  // the knob stands at 0 semitones

Window Pic_Howto_Bk = {
    .name = "Pic_Howto_Bk", .visible = true, .width = Howto_Width, .height = Howto_Height};

Control Help_Pos_Sw = Demo_Control("Pos_Sw", "bl", "Position Switch");
Control Help_Tune = Demo_Control("Tune", "knh", "Tune");
Control Help_Tune_Knopf = Demo_Control("Tune_Knopf", "knh", "Tune");
Control Help_Slider = Demo_Control("Slider", "bm", "Slider");
Control Help_Switch = Demo_Control("Switch", "br", "Switch");
std::array<Control, 4> Help_LED_SW = {
    Demo_Control("LED_SW_0", "led", "Lamp A"),
    Demo_Control("LED_SW_1", "led", "Lamp B"),
    Demo_Control("LED_SW_2", "led", "Lamp C"),
    Demo_Control("LED_SW_3", "led", "Lamp D"),
};
Control Help_HName = Plain_Control(Pic_Howto_Bk, "HName", "Display", false);
std::string Help_Info;

const Panel Howto_Panel = {
    .window = &Pic_Howto_Bk,
    .controls = {&Help_Pos_Sw, &Help_Tune, &Help_Tune_Knopf, &Help_Slider, &Help_Switch, &Help_LED_SW[0],
                 &Help_LED_SW[1], &Help_LED_SW[2], &Help_LED_SW[3], &Help_HName},
    .events = {
        .focus_gained = Focus_Gained,
        .focus_lost = Focus_Lost,
        .key_pressed = Key_Pressed,
        .button_pressed = Button_Pressed,
        .pointer_moved = Pointer_Moved,
        .button_released = [](Control&, Mouse_Button) {},
        .clicked = Clicked,
        .activated = [] {},
        .deactivated = Rest,
        .pointer_moved_across = Pointer_Moved_Across,
    },
    .spoken_value = Spoken_Value,
    .scale = Scale,
};

std::string Help_Demo_Text(std::size_t demo, std::uint8_t value) {
    switch (demo) {
        case Demo_Pos_Sw:
            return std::to_string((127 - value) / 32 + 1);
        case Demo_Tune:
            return std::to_string(Panel_Tune_From_Byte(value));
        case Demo_Slider:
            return std::to_string(Slider_Shown(value));
        case Demo_Switch:
            return value > Last_Off ? "ON" : "OFF";
        case Demo_LED_SW:
            return LED_Names.at(value);
        default:
            throw Fatal_Error("Subscript out of range");
    }
}

void Help_Show_Demo_Value(std::size_t demo, std::uint8_t value) {
    Help_Demo_Values.at(demo) = value;
    Help_HName.text = Help_Demo_Text(demo, value);
    Timer_Start(Timer_Display);
}

void Howto_Load() {
    Control_Set_Picture(Help_Pos_Sw, Picture_Store::Buttons, Thumb_Of_Kind(Help_Pos_Sw.kind));
    Control_Set_Picture(Help_Slider, Picture_Store::Buttons, Thumb_Of_Kind(Help_Slider.kind));
    Control_Set_Picture(Help_Switch, Picture_Store::Buttons, Thumb_Of_Kind(Help_Switch.kind));
    Control_Set_Picture(Help_Tune, Picture_Store::Buttons, Knob_Body);
    Control_Set_Picture(Help_Tune_Knopf, Picture_Store::Buttons, Knob_Dot);
    Help_Tune_Knopf.parent = &Help_Tune;
    Help_Pos_Sw.left = Pos_Sw_Left;
    Help_Slider.left = Slider_Left;
    Help_Switch.left = Switch_Left;
    Help_Tune.left = Tune_Left;
    Help_Tune.top = Tune_Top;
    for (std::size_t entry = 0; entry < Help_LED_SW.size(); ++entry) {
        Control_Set_Place(Help_LED_SW[entry], LED_Left, LED_Top + static_cast<int>(entry) * LED_Pitch,
                          Lamp_Size, Lamp_Size);
    }
    Control_Set_Place(Help_HName, (Howto_Width - Display_Width) / 2, 213, Display_Width,
                      Editor_Tone_Name.height);
    Help_HName.text = "Waiting for action...";

    Place_Pos_Sw();
    Place_Slider();
    Place_Switch();
    Light_LED();
    Panel_Knob_Show(Help_Tune.kind, Dot_Centre_Top, Dot_Centre_Left, Degrees_A_Semitone);
}

void Howto_Begin() {
    Rest();
    Panel_Current_Control = &Help_Pos_Sw;
    Pic_Howto_Bk.active_control = &Help_Pos_Sw;
    Help_Info = Howto_First_Text;
}

void Howto_Show_Waiting() {
    Help_HName.text = "Waiting...";
}

void Howto_Install() {
    Panel_Set_Knob("knh", Help_Tune_Knopf,
                   [] { return 1.0 * Panel_Tune_From_Byte(Help_Demo_Values[Demo_Tune]); });
}
