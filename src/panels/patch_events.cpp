// How the Patch window's controls move, show and send, and its answers to pointer, keys and focus.
#include <algorithm>
#include <cmath>

#include "desk/timers.h"
#include "panels/editor.h"
#include "panels/patch.h"
#include "panels/steps.h"
#include "synth/messages.h"
#include "synth/tone.h"
#include "synth/tuning.h"

namespace {

constexpr double Slider_Page = 10;  // less than on the other panels
constexpr double Range_Step = 32;
constexpr double Portamento_Step = 64;

const Patch_Row& Bend_Range = Patch_Table[3];
static_assert(Patch_Table[3].number == Patch_Pitch_Bend_Range);

Control& Named(const char* name) {
    for (Control& control : Patch_Controls) {
        if (std::string_view(control.name) == name) return control;
    }
    throw Fatal_Error(std::string("No control ") + name);
}

std::uint8_t Byte_Of(double value) {
    return Narrow<std::uint8_t>(Clamped(value, 0, Highest_Value));
}

// -- the knob --------------------------------------------------------------------------------------------

void Knob_To(double byte) {
    const std::uint8_t value = Byte_Of(byte);
    Panel_Scratch_Real = Panel_Fine_From_Byte(value);
    Panel_Knob_Dot(Dot_Centre_Left, Dot_Centre_Top, Degrees_A_Fine_Unit);
    Patch_Set_Value(Patch_UDTune, value);
}

// The sideways keys, which step the other panels' knobs, step nothing here.
double Knob_Step(double byte, int key) {
    return key == Key_Left || key == Key_Right ? byte : Fine_Step(byte, key);
}

// -- the lamps -------------------------------------------------------------------------------------------

// Which item of a group a control is; nothing when it is none.
template <std::size_t Count>
std::optional<std::size_t> Item_Of(const Control& control, const std::array<Control, Count>& group) {
    for (std::size_t item = 0; item < Count; ++item) {
        if (&group[item] == &control) return item;
    }
    return std::nullopt;
}

void Focus_Gained(Control& control) {
    Patch.active_control = &control;
    // The mark of a group is the selected lamp's, whichever lamp the toolkit gave the focus to.
    if (Item_Of(control, Patch_Key_Mode_Items)) {
        Panel_Current_Control = &Patch_Key_Mode_Items.at(Patch_Key_Mode_Sel);
    } else if (Item_Of(control, Patch_After_Touch_Items)) {
        Panel_Current_Control = &Patch_After_Touch_Items.at(Patch_After_Touch_Sel);
    } else {
        const bool body = Is_Knob(Patch_Row_Of(control)->type) && &control != &Patch_UDTune_Knopf;
        Panel_Current_Control = body ? &Patch_UDTune_Knopf : &control;
    }
}

void Send_Focus(Control& control) {
    Panel_Restore_Picture();
    Focus_Gained(control);
}

// The key that leaves a group backward: its code is the number of the keys held, with the digit 9 behind
// it. So it is 19 with Shift, 29 with Ctrl, 49 with Alt, and never TAB itself, which goes forward before
// this.
bool Goes_Back(int key) {
    return key == Panel_Shift_State * 10 + 9;
}

enum class Step { Up, Down, None };
Step Step_Of(int key) {
    if (key == Key_Up || key == Key_Page_Up) return Step::Up;
    return key == Key_Down || key == Key_Page_Down ? Step::Down : Step::None;
}

// The keys of the two groups run opposite ways.
void Key_Mode_Key(int key) {
    const std::size_t last = Patch_Key_Mode_Items.size() - 1;
    const std::size_t item = Patch_Key_Mode_Sel;
    if (Step_Of(key) == Step::Up) {
        Patch_Key_Mode_Click(item == 0 ? 0 : item - 1);
    } else if (Step_Of(key) == Step::Down) {
        Patch_Key_Mode_Click(std::min(item + 1, last));
    } else if (key == Key_Tab) {
        Send_Focus(Patch_After_Touch_Items.at(Patch_After_Touch_Sel));
    } else if (Goes_Back(key)) {
        Send_Focus(Named("Pitch_Bend_Range"));
    }
}

void After_Touch_Key(int key) {
    const std::size_t last = Patch_After_Touch_Items.size() - 1;
    const std::size_t item = Patch_After_Touch_Sel;
    if (Step_Of(key) == Step::Up) {
        Patch_After_Touch_Click(std::min(item + 1, last));
    } else if (Step_Of(key) == Step::Down) {
        Patch_After_Touch_Click(item == 0 ? 0 : item - 1);
    } else if (key == Key_Tab) {
        Send_Focus(Named("UDTune"));
    } else if (Goes_Back(key)) {
        Send_Focus(Patch_Key_Mode_Items.at(Patch_Key_Mode_Sel));
    }
}

// -- events ----------------------------------------------------------------------------------------------

void Focus_Lost(Control&) {
    Panel_Restore_Picture();
}

void Switch_Key(Control& control, const Patch_Row& row, int key) {
    const Step step = Step_Of(key);
    if (step == Step::None) return;
    Patch_Toggle(control, step == Step::Up ? Direction::Up : Direction::Down, row.top_row, row.bottom_row,
                 row.number);
}

void Key_Pressed(Control& control, int key) {
    if (key == Key_Escape) {
        Patch_Close_Asked();
        return;
    }
    if (Item_Of(control, Patch_Key_Mode_Items)) return Key_Mode_Key(key);
    if (Item_Of(control, Patch_After_Touch_Items)) return After_Touch_Key(key);
    const Patch_Row& row = *Patch_Row_Of(control);
    if (row.type == Control_Type::Slider) {
        Patch_Slider_Key(row.number, key);
    } else if (Is_Knob(row.type)) {
        // A knob has no notion of an unknown key: every key sends.
        Knob_To(Knob_Step(Patch_Data[Patch_UDTune], key));
    } else {
        Switch_Key(control, row, key);
    }
}

void Button_Pressed(Control& control, Mouse_Button) {
    const Patch_Row* row = Patch_Row_Of(control);
    if (row == nullptr) return;
    if (row->type == Control_Type::Slider || Is_Knob(row->type)) {
        Patch_Set_Value(row->number, Patch_Byte(row->number));
    } else if (row->type == Control_Type::Two_Way) {
        Patch_Toggle(control, Direction::Up, row->top_row, row->bottom_row, row->number);
    }
}

void Pointer_Moved(Control& control, double pointer_row) {
    const Patch_Row* row = Patch_Row_Of(control);
    if (row == nullptr) return;
    if (row->type == Control_Type::Slider) {
        Patch_Slider_Drag(row->number, pointer_row);
    } else if (row->type == Control_Type::Four_Way) {
        Patch_Switch_Drag(pointer_row);
    } else if (Is_Knob(row->type)) {
        Knob_To(Patch_Data[Patch_UDTune] + Panel_Knob_Movement(pointer_row));
    }
}

void Clicked(Control& control) {
    if (const auto item = Item_Of(control, Patch_Key_Mode_Items)) Patch_Key_Mode_Click(*item);
    if (const auto item = Item_Of(control, Patch_After_Touch_Items)) Patch_After_Touch_Click(*item);
}

}  // namespace

constinit const Panel_Events Patch_Events = {
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

bool Patch_Value_Text(std::size_t number, std::uint8_t value, std::string& text) {
    if (number == Patch_Portamento_Time || number == Patch_Pitch_Bend_LFO) {
        text = std::to_string(Slider_Shown(value));
    } else if (number == Patch_UDTune) {
        text = std::to_string(Panel_Fine_From_Byte(value));
    } else {
        return false;
    }
    return true;
}

void Patch_Set_Value(std::size_t number, std::uint8_t value) {
    Patch_Byte(number) = value;
    if (!Is_True(Tone_Loading)) {
        Patch_Value_Text(number, value, Editor_Tone_Name.text);
        Timer_Start(Timer_Display);
    }
    Patch_Send_Param(number);
    Tone_Saved = Flag_16::False;
}

void Patch_Slider_Key(std::size_t number, int key) {
    if (const auto value = Slider_Step(Patch_Byte(number), key, Slider_Page)) {
        Panel_Scratch_Real = *value;
        Patch_Set_Value(number, Byte_Of(*value));
    }
    Patch_Slider_Place(number);
}

void Patch_Slider_Drag(std::size_t number, double row) {
    Panel_Scratch_Real = Slider_Dragged(Patch_Byte(number), row);
    Patch_Set_Value(number, Byte_Of(Panel_Scratch_Real));
    Patch_Slider_Place(number);
}

void Patch_Slider_Place(std::size_t number) {
    constexpr int Bottom_Row = 108;
    Window_Set_Active_Top(Patch, Slider_Top(Bottom_Row, Patch_Byte(number)));
}

void Patch_Switch_Drag(double row) {
    std::uint8_t& byte = Patch_Data[Patch_Pitch_Bend_Range];
    Panel_Scratch_Real = Switch_Dragged(byte, row);
    byte = Byte_Of(Panel_Scratch_Real);
    Patch_Switch_Place();
    // A slow drag moves the thumb without a message. The instrument hears the next jump, or the next key.
    const auto movement = Panel_Switch_Movement(Patch_Pitch_Bend_Range, byte);
    if (movement && std::abs(*movement) > Switch_Send_Difference) Patch_Send_Param(Patch_Pitch_Bend_Range);
    Tone_Saved = Flag_16::False;
}

void Patch_Switch_Place() {
    // The bands have gaps here; a value in a gap leaves the thumb on its row.
    const int value = Patch_Data[Patch_Pitch_Bend_Range];
    const bool in_gap = value % 32 > 15;
    if (!in_gap && value <= 127)
        Window_Set_Active_Top(Patch, Bend_Range.bottom_row - value / 32 * Switch_Pitch);
}

void Patch_Toggle(Control& control, Direction direction, int top_row, int bottom_row, std::size_t number) {
    std::uint8_t& byte = Patch_Byte(number);
    // What a drag has left off its row may lie less than a step from an end; it goes to that end then.
    const auto Step_Up = [&](double step) {
        control.top -= Switch_Pitch;
        byte = Byte_Of(byte + step);
    };
    const auto Step_Down = [&](double step) {
        control.top += Switch_Pitch;
        byte = Byte_Of(byte - step);
    };
    if (number == Patch_Pitch_Bend_Range) {
        if (direction == Direction::Up && control.top > top_row) Step_Up(Range_Step);
        if (direction == Direction::Down && control.top < bottom_row) Step_Down(Range_Step);
    } else if (number == Patch_Portamento_Switch) {
        if (control.top > top_row) {
            Step_Up(Portamento_Step);
        } else if (control.top < bottom_row) {
            Step_Down(Portamento_Step);
        }
    }
    Patch_Send_Param(number);
    Tone_Saved = Flag_16::False;
}

void Patch_Key_Mode_Click(std::size_t item) {
    Panel_Restore_Picture();
    Panel_Current_Control = &Patch_Key_Mode_Items.at(item);
    Patch_Key_Mode_Light(item);
    Patch_Set_Value(Patch_Key_Mode, Key_Mode_Lamps.at(item).code);
}

void Patch_After_Touch_Click(std::size_t item) {
    Panel_Restore_Picture();
    Panel_Current_Control = &Patch_After_Touch_Items.at(item);
    Patch_After_Touch_Light(item);
    Patch_Set_Value(Patch_After_Touch, After_Touch_Lamps.at(item).code);
}
