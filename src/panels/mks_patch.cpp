#include "panels/mks_patch.h"

#include "desk/menus.h"
#include "desk/timers.h"
#include "panels/editor.h"
#include "panels/push_buttons.h"
#include "panels/spoken.h"
#include "panels/steps.h"
#include "synth/messages.h"
#include "synth/patch_mks70.h"
#include "synth/tone.h"
#include "synth/tuning.h"

namespace {

constexpr int Full_Scale = 99;  // the instrument's own display shows 0 to 99
constexpr int Dot_Centre = 10;  // of a narrow knob's dot, from the left and from the top

bool On_A() {
    return Patch_MKS70_Tone == "A";
}

std::size_t UDTune_Cell() {
    return On_A() ? MKS70_UDTune_A : MKS70_UDTune_B;
}

std::uint8_t Key_Of(const Drop_Down& split_point) {
    return Narrow<std::uint8_t>(split_point.selected + MKS70_Lowest_Key);
}

bool Value_Text(std::size_t index, std::uint8_t value, std::string& text) {
    if (index == 1 || index == 5) {
        text = std::to_string(value * Full_Scale / 127);
    } else if (index == MKS70_UDTune_A || index == MKS70_UDTune_B) {
        text = std::to_string(Panel_Fine_From_Byte(value));
    } else {
        return false;
    }
    return true;
}

// -- controls --------------------------------------------------------------------------------------------

template <std::size_t Count>
std::array<Control, Count> Drawn(const std::array<MKS_Row, Count>& rows) {
    std::array<Control, Count> controls;
    for (std::size_t index = 0; index < Count; ++index) {
        controls[index].name = rows[index].control;
        controls[index].kind = rows[index].kind;
        controls[index].spoken_name = rows[index].spoken_name;
        controls[index].window = &Patch_MKS70;
    }
    return controls;
}

std::array<Control, MKS_Dots.size()> Drawn_Dots() {
    std::array<Control, MKS_Dots.size()> dots;
    for (std::size_t index = 0; index < dots.size(); ++index) {
        dots[index].name = MKS_Dots[index];
        dots[index].kind = MKS_Knobs[index].kind;
        dots[index].spoken_name = MKS_Knobs[index].spoken_name;
        dots[index].window = &Patch_MKS70;
    }
    return dots;
}

Control Push_Button(const char* name, const char* spoken_name, Control& symbol) {
    return {.name = name,
            .spoken_name = spoken_name,
            .role = Spoken_Role::Radio_Button,
            .window = &Patch_MKS70,
            .symbol = &symbol,
            .focusable = true};
}

Control Symbol_On(const char* name, Control& button) {
    return {.name = name, .window = &Patch_MKS70, .parent = &button};
}

bool Is_UDTune(const Control& control) {
    return &control == &MKS_Knob_Controls[MKS_UDTune] || &control == &MKS_Dot_Controls[MKS_UDTune];
}

template <std::size_t Count>
void Place(std::array<Control, Count>& controls, const std::array<MKS_Row, Count>& rows) {
    for (std::size_t index = 0; index < Count; ++index) {
        controls[index].left = rows[index].left;
        controls[index].top = rows[index].top;
    }
}

// Which of the two is down has been settled by then, and with it where the symbol stands.
void Place_Button(Control& button, int left, Picture_Store symbol) {
    Control_Set_Place(button, left, MKS_Tone_Button_Top, 22, 22);
    Control_Set_Picture(*button.symbol, symbol);
}

std::vector<Control*> All_Controls() {
    std::vector<Control*> controls = {&MKS_Tone_A, &MKS_Tone_A_Pic, &MKS_Tone_B, &MKS_Tone_B_Pic};
    for (Control& control : MKS_Thumb_Controls) controls.push_back(&control);
    for (Control& control : MKS_Lamp_Controls) controls.push_back(&control);
    for (std::size_t index = 0; index < MKS_Knob_Controls.size(); ++index) {
        controls.push_back(&MKS_Knob_Controls[index]);
        controls.push_back(&MKS_Dot_Controls[index]);
    }
    return controls;
}

std::string Spoken_Value(const Control& control) {
    std::string text;
    if (Is_UDTune(control)) Value_Text(UDTune_Cell(), Patch_MKS70_Byte(UDTune_Cell()), text);
    if (&control == &MKS_Tone_A) text = On_A() ? "on" : "off";
    if (&control == &MKS_Tone_B) text = On_A() ? "off" : "on";
    return text;
}

std::optional<Control_Scale> Scale(const Control& control) {
    if (!Is_UDTune(control)) return {};
    return Scale_Of(Control_Type::Fine_Knob, Patch_MKS70_Byte(UDTune_Cell()));
}

// -- events ----------------------------------------------------------------------------------------------

void UDTune_To(double byte) {
    const auto value = Narrow<std::uint8_t>(Clamped(byte, 0, Highest_Value));
    Panel_Scratch_Real = Panel_Fine_From_Byte(value);
    Panel_Knob_Dot(Dot_Centre, Dot_Centre, Degrees_A_Fine_Unit);
    Patch_MKS70_Set_Value(UDTune_Cell(), value);
}

void Focus_Gained(Control& control) {
    Patch_MKS70.active_control = &control;
    if (Is_UDTune(control)) Panel_Current_Control = &MKS_Dot_Controls[MKS_UDTune];
}

void Focus_Lost(Control& control) {
    if (Is_UDTune(control)) Panel_Restore_Picture();
}

void Key_Pressed(Control& control, int key) {
    if (key == Key_Escape) {
        MKS_Patch_Close_Asked();
    } else if (Is_UDTune(control)) {
        // A knob has no notion of an unknown key: every key sends.
        UDTune_To(Fine_Step(Patch_MKS70_Byte(UDTune_Cell()), key));
    }
}

void Button_Pressed(Control& control, Mouse_Button) {
    if (Is_UDTune(control)) Patch_MKS70_Set_Value(UDTune_Cell(), Patch_MKS70_Byte(UDTune_Cell()));
}

void Pointer_Moved(Control& control, double pointer_row) {
    if (Is_UDTune(control)) {
        UDTune_To(Patch_MKS70_Byte(UDTune_Cell()) + Panel_Knob_Movement(pointer_row));
    }
}

void Clicked(Control& control) {
    if (&control == &MKS_Tone_A) MKS_Tone_A_Click();
    if (&control == &MKS_Tone_B) MKS_Tone_B_Click();
}

constexpr Panel_Events Events = {
    .focus_gained = Focus_Gained,
    .focus_lost = Focus_Lost,
    .key_pressed = Key_Pressed,
    .button_pressed = Button_Pressed,
    .pointer_moved = Pointer_Moved,
    .button_released = [](Control&, Mouse_Button) {},
    .clicked = Clicked,
    .activated = [] {},
    .deactivated = [] { Panel_Restore_Picture(); },
};

// -- window ----------------------------------------------------------------------------------------------

// The dot of the JX-8P's patch window: a knob's kind names its dot.
void Show_Knob() {
    Panel_Knob_Show("kn2fp", Dot_Centre, Dot_Centre, Degrees_A_Fine_Unit);
}

void Load() {
    Patch_MKS70.caption = "Patch Parameter";
    Patch_MKS70.width = MKS_Patch_Width;
    Patch_MKS70.height = MKS_Patch_Height;
    Patch_Name_Text = "TEST PATCH MKS-70";
    Patch_MKS70_Form.patch_name = Patch_Name_Text;
    Patch_MKS70_Form.tone_number.entries = MKS70_Tone_Numbers();
    Patch_MKS70_Form.split_point.entries = MKS70_Key_Names();
    Patch_MKS70_Form.tone_number.Select(0);
    Patch_MKS70_Form.split_point.Select(0);
    MKS_Tone_A_Click();
    MKS70_Load_Pictures();
}

void Unload() {
    if (Menu(Menu_Windows_SavePos).checked) Window_Keep_Place(Patch_MKS70, Patch_Left, Patch_Top);
}

}  // namespace

MKS_Patch_Form Patch_MKS70_Form;
std::array<Control, MKS_Knobs.size()> MKS_Knob_Controls = Drawn(MKS_Knobs);
std::array<Control, MKS_Dots.size()> MKS_Dot_Controls = Drawn_Dots();
std::array<Control, MKS_Thumbs.size()> MKS_Thumb_Controls = Drawn(MKS_Thumbs);
std::array<Control, MKS_Lamps.size()> MKS_Lamp_Controls = Drawn(MKS_Lamps);
Control MKS_Tone_A = Push_Button("Tone_A", "Tone A", MKS_Tone_A_Pic);
Control MKS_Tone_A_Pic = Symbol_On("Tone_A_Pic", MKS_Tone_A);
Control MKS_Tone_B = Push_Button("Tone_B", "Tone B", MKS_Tone_B_Pic);
Control MKS_Tone_B_Pic = Symbol_On("Tone_B_Pic", MKS_Tone_B);

const Panel Patch_MKS70_Panel = {
    .window = &Patch_MKS70,
    .controls = All_Controls(),
    .events = Events,
    .spoken_value = Spoken_Value,
    .scale = Scale,
};

void Tone_A_Select() {
    Patch_MKS70_Data[MKS70_Split_B] = Key_Of(Patch_MKS70_Form.split_point);
    Patch_MKS70_Data[MKS70_Tone_Number_B] = Narrow<std::uint8_t>(Patch_MKS70_Form.tone_number.selected);
    Patch_MKS70_Tone = "A";
    Patch_MKS70_Form.tone_number.Select(Patch_MKS70_Data[MKS70_Tone_Number_A]);
    Show_Knob();
}

void Tone_B_Select() {
    Patch_MKS70_Tone = "B";
    Patch_MKS70_Data[MKS70_Split_A] = Key_Of(Patch_MKS70_Form.split_point);
    Patch_MKS70_Data[MKS70_Tone_Number_A] = Narrow<std::uint8_t>(Patch_MKS70_Form.tone_number.selected);
    Patch_MKS70_Form.split_point.Select(Patch_MKS70_Data[MKS70_Split_B] - MKS70_Lowest_Key);
    Patch_MKS70_Form.tone_number.Select(Patch_MKS70_Data[MKS70_Tone_Number_B]);
    Show_Knob();
}

void Patch_MKS70_Set_Value(std::size_t index, std::uint8_t value) {
    Patch_MKS70_Byte(index) = value;
    if (!Is_True(Tone_Loading)) {
        Value_Text(index, value, Editor_Tone_Name.text);
        Timer_Start(Timer_Display);
    }
    Patch_MKS70_Param_Send(index);
    Tone_Saved = Flag_16::False;
}

void MKS70_Load_Pictures() {
    for (std::size_t index = 0; index < MKS_Knob_Controls.size(); ++index) {
        const bool narrow = index == MKS_Chromatic || index == MKS_UDTune;
        Control& body = MKS_Knob_Controls[index];
        Control& dot = MKS_Dot_Controls[index];
        Control_Set_Picture(body, Picture_Store::Buttons, Knob_Body);
        if (narrow) body.width = MKS_Narrow_Knob;
        Control_Set_Picture(dot, Picture_Store::Buttons, Knob_Dot);
        dot.parent = &body;
        dot.left = narrow ? MKS_Narrow_Dot_Left : MKS_Dot_Left;
        dot.top = MKS_Dot_Top;
        body.focusable = dot.focusable = index == MKS_UDTune;
    }
    Place(MKS_Knob_Controls, MKS_Knobs);
    for (std::size_t index = 0; index < MKS_Thumb_Controls.size(); ++index) {
        Control_Set_Picture(MKS_Thumb_Controls[index], Picture_Store::Buttons,
                            Thumb_Of_Kind(MKS_Thumbs[index].kind));
    }
    Place(MKS_Thumb_Controls, MKS_Thumbs);
    for (Control& lamp : MKS_Lamp_Controls) Control_Set_Picture(lamp, Picture_Store::LED);
    Place(MKS_Lamp_Controls, MKS_Lamps);
    Place_Button(MKS_Tone_A, MKS_Tone_A_Left, Picture_Store::Tone_A_Pic);
    Place_Button(MKS_Tone_B, MKS_Tone_B_Left, Picture_Store::Tone_B_Pic);
}

// The two buttons of a pair: the chosen one stays down.
void MKS_Tone_A_Click() {
    Button_Push(MKS_Tone_A);
    Button_Release(MKS_Tone_B);
    Tone_A_Select();
}

void MKS_Tone_B_Click() {
    Button_Push(MKS_Tone_B);
    Button_Release(MKS_Tone_A);
    Tone_B_Select();
}

void MKS_Tone_Number_Change(int index) {
    Patch_MKS70_Form.tone_number.Select(index);
}

void MKS_Split_Point_Change(int index) {
    Patch_MKS70_Form.split_point.Select(index);
    Patch_MKS70_Data[On_A() ? MKS70_Split_A : MKS70_Split_B] = Key_Of(Patch_MKS70_Form.split_point);
}

void MKS_Patch_Name_Change(const std::string& text) {
    Patch_MKS70_Form.patch_name = text;
}

void MKS_Patch_Close_Asked() {
    Window_Unload(Patch_MKS70);
}

void MKS_Patch_Install() {
    Patch_MKS70.load = Load;
    Patch_MKS70.unload = Unload;
}
