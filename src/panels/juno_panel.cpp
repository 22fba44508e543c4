#include "panels/juno_panel.h"

#include <algorithm>

#include "panels/editor.h"
#include "panels/juno_envelope.h"
#include "panels/juno_printing.h"
#include "panels/keyboard.h"
#include "synth/juno.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

std::array<Control, Juno_Table.size()> Controls_Of_Table() {
    std::array<Control, Juno_Table.size()> controls;
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const Juno_Row& row = Juno_Table[index];
        Control& control = controls[index];
        control.name = row.control;
        control.kind = row.kind;
        control.spoken_name = row.spoken_name;
        control.window = &Editor_Juno;
        control.focusable = true;
        control.help_context = static_cast<std::int16_t>(row.help_context);
    }
    return controls;
}

std::size_t Parameter_Of(const Juno_Row& row) {
    return static_cast<std::size_t>(row.parameter);
}

Control Plain(const char* name, const char* spoken_name, bool focusable) {
    return Plain_Control(Editor_Juno, name, spoken_name, focusable);
}

void To_Panel() {
    for (std::size_t index = 0; index < Juno_Table.size(); ++index) {
        const Juno_Row& row = Juno_Table[index];
        const std::size_t parameter = Parameter_Of(row);
        Juno_Controls[index].top =
            row.type == Juno_Type::Slider ? Juno_Slider_Top(parameter) : Juno_Switch_Top(parameter);
    }
    Tone_Name_Text = Juno_Name_From_Data();
    Juno_Tone_Name.text = Tone_Name_Text;
}

// Everything that stands still. Thumbs keep their rows, which are the tone's.
void Place_All() {
    for (std::size_t index = 0; index < Juno_Table.size(); ++index)
        Juno_Controls[index].left = Juno_Table[index].left;
    Control_Set_Place(Juno_Tone_Name, 378, 380, 121, 27);
    Control_Set_Place(Juno_Seq_Start, 226, 107, 22, 22);
    Control_Set_Place(Juno_Keys_Pic, 252, 107, 43, 22);
    Control_Set_Place(Juno_Seq_Stop, 299, 107, 22, 22);
    Control_Set_Place(Juno_Pic_Tonebench, 417, 274, 110, 50);
    Control_Set_Place(Juno_Pic_Sign, 433, 326, 79, 14);
    for (Control& unused : Juno_Unused_Controls) {
        const Editor_Row& row = *Editor_Row_Of(Editor_Control(unused.name));
        Control_Set_Place(unused, row.left, row.bottom_row, Thumb_Size, Thumb_Size);
    }
}

void Arrange() {
    Place_All();
    for (Control* control : Juno_Panel.controls) control->visible = true;
}

void Display_Name() {
    Juno_Tone_Name.text = Tone_Name_Text;
}

std::string Spoken_Value(const Control& control) {
    const Juno_Row* row = Juno_Row_Of(control);
    if (row == nullptr) return control.text;
    const std::uint8_t value = Juno_Byte(Parameter_Of(*row));
    const std::string position = Juno_Position_Name(*row, value);
    return position.empty() ? std::to_string(value) : position;
}

std::optional<Control_Scale> Scale(const Control& control) {
    const Juno_Row* row = Juno_Row_Of(control);
    if (row == nullptr) return {};
    const int value = Juno_Byte(Parameter_Of(*row));
    const int highest = row->type == Juno_Type::Slider ? 127 : row->positions - 1;
    const int reached = std::min(value, highest);
    return Control_Scale{1.0 * (row->type == Juno_Type::Inverted ? highest - reached : reached), 0,
                         1.0 * highest};
}

std::vector<Control*> Controls_In_Focus_Order() {
    std::vector<Control*> controls;
    for (Control& unused : Juno_Unused_Controls) controls.push_back(&unused);
    for (Control& control : Juno_Controls) controls.push_back(&control);
    Common_Append_To(controls, Juno_Common);
    return controls;
}

}  // namespace

std::array<Control, Juno_Table.size()> Juno_Controls = Controls_Of_Table();
std::array<Control, 4> Juno_Unused_Controls = {
    Plain("Mixer_DCO1", "", false),
    Plain("Mixer_DCO2", "", false),
    Plain("DCO_Dynamics", "", false),
    Plain("VCA_Dynamics", "", false),
};
Control Juno_Tone_Name = Plain("Tone_Name", "Tone Name", true);
Control Juno_Seq_Start = Plain("ED_Seq_Start", "Sequencer Start", true);
Control Juno_Seq_Start_Pic = Plain("ED_Seq_Start_Pic", "", false);
Control Juno_Seq_Stop = Plain("ED_Seq_Stop", "Sequencer Stop", true);
Control Juno_Seq_Stop_Pic = Plain("ED_Seq_Stop_Pic", "", false);
Control Juno_Keys_Pic = Keys_Pic_Control(Editor_Juno);
Control Juno_Pic_Tonebench = Plain("Pic_Tonebench", "", false);
Control Juno_Pic_Sign = Plain("Pic_Sign", "", false);

constinit const Common_Controls Juno_Common = {
    .tone_name = Juno_Tone_Name,
    .seq_start = Juno_Seq_Start,
    .seq_start_pic = Juno_Seq_Start_Pic,
    .seq_stop = Juno_Seq_Stop,
    .seq_stop_pic = Juno_Seq_Stop_Pic,
    .keys_pic = Juno_Keys_Pic,
    .pic_tonebench = Juno_Pic_Tonebench,
    .pic_sign = Juno_Pic_Sign,
};

const Panel Juno_Panel = {
    .window = &Editor_Juno,
    .controls = Controls_In_Focus_Order(),
    .events = Juno_Events,
    .spoken_value = Spoken_Value,
    .scale = Scale,
    .graph = &Juno_Envelope,
};

const Juno_Row* Juno_Row_Of(const Control& control) {
    for (std::size_t index = 0; index < Juno_Controls.size(); ++index) {
        if (&Juno_Controls[index] == &control) return &Juno_Table[index];
    }
    return nullptr;
}

const Juno_Row& Juno_Row_Of_Parameter(std::size_t parameter) {
    const auto* row = std::find_if(Juno_Table.begin(), Juno_Table.end(), [parameter](const Juno_Row& each) {
        return Parameter_Of(each) == parameter;
    });
    if (row == Juno_Table.end()) throw Fatal_Error("Subscript out of range");
    return *row;
}

void Juno_Load_Pictures() {
    Place_All();
    Common_Load_Pictures(Juno_Common);
    for (std::size_t index = 0; index < Juno_Table.size(); ++index) {
        const Juno_Row& row = Juno_Table[index];
        Control_Set_Picture(Juno_Controls[index], Picture_Store::Buttons, Thumb_Of_Kind(row.kind));
        Juno_Controls[index].top = row.row;
    }
}

void Juno_Load() {
    Editor_Juno.caption = "Editor";
    Editor_Juno.width = Editor_Width;
    Editor_Juno.height = Editor_Height;
    Juno_Load_Pictures();
    Juno_Activated();
    Editor_Juno.active_control = Panel_Current_Control;
}

void Juno_Activated() {
    Panel_Restore_Picture();
    Panel_Blink_Phase = 0;
    Panel_Current_Control = &Juno_Controls.front();
}

void Juno_Deactivated() {
    Panel_Restore_Picture();
}

void Juno_Set_Font(const char* face) {
    Juno_Tone_Name.font = face;
}

void Juno_Display_Tick() {
    Display_Name();
    PictureEnv.visible = false;
}

void Juno_Panel_Install() {
    Editor_Juno.load = Juno_Load;
    Juno_To_Panel = To_Panel;
    Juno_Arrange = Arrange;
    Juno_Display_Name = Display_Name;
    Editor_Seq_Start.twin = &Juno_Seq_Start;
    Juno_Seq_Start.twin = &Editor_Seq_Start;
    Editor_Seq_Stop.twin = &Juno_Seq_Stop;
    Juno_Seq_Stop.twin = &Editor_Seq_Stop;
}
