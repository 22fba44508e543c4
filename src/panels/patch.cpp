#include "panels/patch.h"

#include <algorithm>

#include "desk/menus.h"
#include "panels/spoken.h"
#include "synth/tuning.h"
#include "synth/views.h"

namespace {

const char* const Caption = "Patch Parameter";

std::array<Control, Patch_Table.size()> Controls_Of_Table() {
    std::array<Control, Patch_Table.size()> controls;
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const Patch_Row& row = Patch_Table[index];
        Control& control = controls[index];
        control.name = row.control;
        control.kind = row.kind;
        control.spoken_name = row.spoken_name;
        control.window = &Patch;
        control.left = row.left;
        control.top = row.bottom_row;
        control.focusable = true;
    }
    return controls;
}

template <std::size_t Count>
std::array<Control, Count> Lamps_Of_Table(const std::array<Lamp_Row, Count>& rows, int left) {
    std::array<Control, Count> lamps;
    for (std::size_t item = 0; item < Count; ++item) {
        Control& lamp = lamps[item];
        lamp.name = rows[item].control;
        lamp.kind = "led";
        lamp.spoken_name = rows[item].spoken_name;
        lamp.window = &Patch;
        lamp.left = left;
        lamp.top = Patch_Lamp_Row + static_cast<int>(item) * Lamp_Pitch;
        lamp.focusable = true;
        // TAB leaves the group at once and does not walk through its lamps.
        lamp.takes_tab = true;
    }
    return lamps;
}

// -- refresh ---------------------------------------------------------------------------------------------

// A byte that no position holds leaves the thumb on its row.
void Place(Control& control, const Patch_Row& row) {
    const std::uint8_t value = Patch_Byte(row.number);
    switch (row.type) {
        case Control_Type::Slider:
            control.top = Slider_Top(row.bottom_row, value);
            break;
        case Control_Type::Four_Way:
            if (value <= 127) control.top = row.bottom_row - value / 32 * Switch_Pitch;
            break;
        case Control_Type::Two_Way:
            if (value <= 127) control.top = value <= 63 ? row.bottom_row : row.top_row;
            break;
        default:
            break;
    }
}

// The item that stands for a code; the first one for a code that is no lamp's.
template <std::size_t Count>
std::uint8_t Item_Of(const std::array<Lamp_Row, Count>& rows, std::uint8_t code) {
    for (std::size_t item = 0; item < Count; ++item) {
        if (rows[item].code == code) return static_cast<std::uint8_t>(item);
    }
    return 0;
}

template <std::size_t Count>
void Light(std::array<Control, Count>& lamps, std::size_t lit) {
    for (Control& lamp : lamps) lamp.picture = Picture_Of(Picture_Store::LED, 0);
    lamps.at(lit).picture = Picture_Of(Picture_Store::LED, 1);
}

void Relight() {
    Patch_After_Touch_Items.at(Patch_After_Touch_Sel).picture = Picture_Of(Picture_Store::LED, 1);
    Patch_Key_Mode_Items.at(Patch_Key_Mode_Sel).picture = Picture_Of(Picture_Store::LED, 1);
}

void Apply_Patch() {
    for (std::size_t index = 0; index < Patch_Table.size(); ++index) {
        Place(Patch_Controls[index], Patch_Table[index]);
    }
    Patch_Key_Mode_Sel = Item_Of(Key_Mode_Lamps, Patch_Data[Patch_Key_Mode]);
    Patch_After_Touch_Sel = Item_Of(After_Touch_Lamps, Patch_Data[Patch_After_Touch]);
    Light(Patch_Key_Mode_Items, Patch_Key_Mode_Sel);
    Light(Patch_After_Touch_Items, Patch_After_Touch_Sel);
    Panel_Knob_Show("kn2fp", Dot_Centre_Top, Dot_Centre_Left, Degrees_A_Fine_Unit);
}

// -- window ----------------------------------------------------------------------------------------------

Button_Item Resting_Item(const Patch_Row& row) {
    return Is_Knob(row.type) ? Knob_Body : Thumb_Of_Kind(row.kind);
}

void Load_Pictures() {
    for (std::size_t index = 0; index < Patch_Table.size(); ++index) {
        const Patch_Row& row = Patch_Table[index];
        Control_Set_Picture(Patch_Controls[index], Picture_Store::Buttons, Resting_Item(row));
        Patch_Controls[index].top = row.bottom_row;
    }
    Control_Set_Picture(Patch_UDTune_Knopf, Picture_Store::Buttons, Knob_Dot);
    Patch_UDTune_Knopf.parent = &Patch_Controls.back();
    for (Control& lamp : Patch_Key_Mode_Items) Control_Set_Picture(lamp, Picture_Store::LED);
    for (Control& lamp : Patch_After_Touch_Items) Control_Set_Picture(lamp, Picture_Store::LED);
}

void Load() {
    Panel_Restore_Picture();
    Patch.caption = Caption;
    Patch.width = Patch_Width;
    Patch.height = Patch_Height;
    Patch_Window_Open = Flag_8::True;
    Load_Pictures();
    Apply_Patch();
    Panel_Blink_Phase = 0;
    Panel_Current_Control = &Patch_Controls.front();
    Patch.active_control = Panel_Current_Control;
}

void Unload() {
    if (Menu(Menu_Windows_SavePos).checked) Window_Keep_Place(Patch, Patch_Left, Patch_Top);
    Patch_Window_Open = Flag_8::False;
}

std::vector<Control*> Controls_In_Focus_Order() {
    std::vector<Control*> controls;
    for (Control& control : Patch_Controls) {
        const bool knob = &control == &Patch_Controls.back();
        if (knob) {
            for (Control& lamp : Patch_Key_Mode_Items) controls.push_back(&lamp);
            for (Control& lamp : Patch_After_Touch_Items) controls.push_back(&lamp);
        }
        controls.push_back(&control);
    }
    controls.push_back(&Patch_UDTune_Knopf);
    return controls;
}

std::string Spoken_Value(const Control& control) {
    if (std::string_view(control.kind) == "led") {
        const bool lit = &control == &Patch_Key_Mode_Items.at(Patch_Key_Mode_Sel) ||
                         &control == &Patch_After_Touch_Items.at(Patch_After_Touch_Sel);
        return lit ? "on" : "off";
    }
    const Patch_Row& row = *Patch_Row_Of(control);
    const std::uint8_t value = Patch_Byte(row.number);
    std::string text;
    if (Patch_Value_Text(row.number, value, text)) return text;
    if (row.type == Control_Type::Two_Way) return Portamento_Names.at(std::min<std::size_t>(value / 64, 1));
    return Bend_Range_Names.at(std::min<std::size_t>(value / 32, 3));
}

std::optional<Control_Scale> Scale(const Control& control) {
    const Patch_Row* row = Patch_Row_Of(control);
    if (row == nullptr) return {};
    return Scale_Of(row->type, Patch_Byte(row->number));
}

}  // namespace

std::array<Control, Patch_Table.size()> Patch_Controls = Controls_Of_Table();
Control Patch_UDTune_Knopf = {.name = "UDTune_Knopf",
                              .kind = "kn2fp",
                              .spoken_name = "Unison Detune",
                              .window = &Patch,
                              .focusable = true};
std::array<Control, Key_Mode_Lamps.size()> Patch_Key_Mode_Items =
    Lamps_Of_Table(Key_Mode_Lamps, Patch_Key_Mode_Left);
std::array<Control, After_Touch_Lamps.size()> Patch_After_Touch_Items =
    Lamps_Of_Table(After_Touch_Lamps, Patch_After_Touch_Left);
std::uint8_t Patch_Key_Mode_Sel = 0;
std::uint8_t Patch_After_Touch_Sel = 0;

const Panel Patch_Panel = {
    .window = &Patch,
    .controls = Controls_In_Focus_Order(),
    .events = Patch_Events,
    .spoken_value = Spoken_Value,
    .scale = Scale,
};

const Patch_Row* Patch_Row_Of(const Control& control) {
    const Control& owner = control.parent != nullptr ? *control.parent : control;
    for (std::size_t index = 0; index < Patch_Controls.size(); ++index) {
        if (&Patch_Controls[index] == &owner) return &Patch_Table[index];
    }
    return nullptr;
}

void Patch_Key_Mode_Light(std::size_t item) {
    Patch_Key_Mode_Sel = static_cast<std::uint8_t>(item);
    Light(Patch_Key_Mode_Items, item);
}

void Patch_After_Touch_Light(std::size_t item) {
    Patch_After_Touch_Sel = static_cast<std::uint8_t>(item);
    Light(Patch_After_Touch_Items, item);
}

void Patch_Close_Asked() {
    Window_Unload(Patch);
}

void Patch_Lamps_To_First() {
    Patch_Key_Mode_Sel = 0;
    Patch_After_Touch_Sel = 0;
}

void Patch_Install() {
    Patch.load = Load;
    Patch.unload = Unload;
    Panel_Apply_Patch = Apply_Patch;
    Patch_Relight_Lamps = Relight;
    Panel_Set_Knob("kn2fp", Patch_UDTune_Knopf,
                   [] { return 1.0 * Panel_Fine_From_Byte(Patch_Data[Patch_UDTune]); });
}
