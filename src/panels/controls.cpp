#include "panels/controls.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

#include "platform/text.h"

namespace {

constexpr double Dot_Radius = 5;

// What the focus mark shows on a control of a kind: an item at rest, and the next one in the other phase.
struct Kind_Row {
    std::string_view kind;
    Picture_Store store;
    int resting_item;
};

// clang-format off
constexpr std::array Kinds = {
//           kind     store                   resting item
    Kind_Row{"bl",    Picture_Store::Buttons, Thumb_Left},
    Kind_Row{"br",    Picture_Store::Buttons, Thumb_Right},
    Kind_Row{"bm",    Picture_Store::Buttons, Thumb_Slider},
    Kind_Row{"kn1",   Picture_Store::Buttons, Knob_Dot},
    Kind_Row{"kn2",   Picture_Store::Buttons, Knob_Dot},
    Kind_Row{"kn2f",  Picture_Store::Buttons, Knob_Dot},
    Kind_Row{"kn2fp", Picture_Store::Buttons, Knob_Dot},
    Kind_Row{"knh",   Picture_Store::Buttons, Knob_Dot},
    Kind_Row{"led",   Picture_Store::LED,     0},
};
// clang-format on

// The knob that a kind names; null for other kinds.
const Knob* Knob_Of_Kind(std::string_view kind) {
    const auto* knob = std::find_if(Panel_Knobs.begin(), Panel_Knobs.end(), [kind](const Knob& candidate) {
        return Same_Text(candidate.kind, kind);
    });
    return knob == Panel_Knobs.end() ? nullptr : knob;
}

bool Is_Knob(std::string_view kind) {
    return Same_Text(kind.substr(0, 2), "kn");
}

// Gives the focused control the item of its kind that stands `step` behind the resting one.
void Show_Item(const Kind_Row& row, int step) {
    const Knob* knob = Knob_Of_Kind(row.kind);
    Control* shown = knob == nullptr ? Panel_Current_Control : knob->dot;
    if (shown != nullptr) shown->picture = Picture_Of(row.store, row.resting_item + step);
}

void Restore_Picture() {
    if (Panel_Current_Control == nullptr) return;
    const std::string_view kind = Panel_Current_Control->kind;
    for (const Kind_Row& row : Kinds) {
        if (Same_Text(row.kind, kind)) Show_Item(row, 0);
    }
    // The lamp that just lost the mark may be one that is on.
    if (Same_Text(kind, "led") && Is_True(Patch_Window_Open)) Patch_Relight_Lamps();
    Panel_Knob_Last_Y = 0;
}

void Place_Dot(Control& dot, int centre_left, int centre_top, double degrees) {
    const double angle = (degrees + 90) * std::numbers::pi / 180;
    dot.left = centre_left - To_Int16(Dot_Radius * std::cos(angle));
    dot.top = centre_top - To_Int16(Dot_Radius * std::sin(angle));
}

}  // namespace

std::uint8_t Panel_Blink_Phase = 1;
std::int16_t Panel_Help_Context = 0;
std::int16_t Panel_Last_Param = 0;
std::int16_t Panel_Last_Value = 0;
std::int16_t Panel_Knob_Last_Y = 0;
double Panel_Scratch_Real = 0;
int Panel_Shift_State = 0;
std::array<Knob, 5> Panel_Knobs = {{{"kn1"}, {"kn2"}, {"kn2f"}, {"kn2fp"}, {"knh"}}};
Hook<void()> Patch_Relight_Lamps;

void Panel_Blink() {
    if (Panel_Current_Control == nullptr) return;
    for (const Kind_Row& row : Kinds) {
        if (row.kind == Panel_Current_Control->kind) Show_Item(row, Panel_Blink_Phase);
    }
    Panel_Help_Context = Panel_Current_Control->help_context;
}

void Panel_Blink_Tick() {
    ++Panel_Blink_Phase;
    if (Panel_Blink_Phase > 1) Panel_Blink_Phase = 0;
    Panel_Blink();
}

void Panel_Set_Knob(const char* kind, Control& dot, double (*shown_value)()) {
    for (Knob& knob : Panel_Knobs) {
        if (Same_Text(knob.kind, kind)) {
            knob.dot = &dot;
            knob.shown_value = shown_value;
        }
    }
}

void Panel_Knob_Dot(int centre_left, int centre_top, double degrees_a_unit) {
    if (Panel_Current_Control == nullptr || !Is_Knob(Panel_Current_Control->kind)) return;
    Place_Dot(*Panel_Current_Control, centre_left, centre_top, degrees_a_unit * Panel_Scratch_Real);
}

void Panel_Knob_Show(const std::string& kind, int centre_top, int centre_left, double degrees_a_unit) {
    const Knob* knob = Knob_Of_Kind(kind);
    if (knob == nullptr || knob->dot == nullptr) return;
    if (knob->dot->window != nullptr) Window_Load(*knob->dot->window);
    Place_Dot(*knob->dot, centre_left, centre_top, degrees_a_unit * knob->shown_value());
}

std::optional<int> Panel_Switch_Movement(std::size_t parameter, std::int16_t value) {
    const auto this_parameter = static_cast<std::int16_t>(parameter);
    std::optional<int> movement;
    if (Panel_Last_Param == this_parameter) movement = value - Panel_Last_Value;
    Panel_Last_Value = value;
    Panel_Last_Param = this_parameter;
    return movement;
}

std::int16_t Panel_Knob_Movement(double row) {
    const std::int16_t now = To_Int16(row);
    const std::int16_t movement = To_Int16(now - Panel_Knob_Last_Y);
    Panel_Knob_Last_Y = now;
    return movement;
}

Control Plain_Control(Window& window, const char* name, const char* spoken_name, bool focusable) {
    return {.name = name, .spoken_name = spoken_name, .window = &window, .focusable = focusable};
}

void Control_Set_Place(Control& control, int left, int top, int width, int height) {
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
}

void Control_Set_Picture(Control& control, Picture_Store store, int item) {
    control.picture = Picture_Of(store, item);
    const Picture_Role& role = Role_Of(control.picture);
    control.width = role.width;
    control.height = role.height;
}

Button_Item Thumb_Of_Kind(std::string_view kind) {
    if (kind == "bl") return Thumb_Left;
    return kind == "br" ? Thumb_Right : Thumb_Slider;
}

void Window_Set_Active_Top(const Window& window, int top) {
    if (window.active_control != nullptr) window.active_control->top = top;
}

void Controls_Install() {
    Panel_Restore_Picture = Restore_Picture;
}
