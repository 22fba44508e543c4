#include "panels/editor.h"

#include <algorithm>

#include "desk/timers.h"
#include "panels/editor_printing.h"
#include "panels/keyboard.h"
#include "panels/spoken.h"
#include "sequencer/sequence.h"
#include "synth/tone.h"
#include "synth/tuning.h"
#include "synth/views.h"

namespace {

constexpr int Upper_Switch_Row = 32;
constexpr int Lower_Switch_Row = 278;

Button_Item Resting_Item(const Editor_Row& row) {
    return Is_Knob(row.type) ? Knob_Body : Thumb_Of_Kind(row.kind);
}

std::array<Control, Editor_Table.size()> Controls_Of_Table() {
    std::array<Control, Editor_Table.size()> controls;
    for (std::size_t index = 0; index < controls.size(); ++index) {
        const Editor_Row& row = Editor_Table[index];
        Control& control = controls[index];
        control.name = row.control;
        control.kind = row.kind;
        control.spoken_name = row.spoken_name;
        control.window = &Editor;
        control.focusable = true;
        control.help_context = static_cast<std::int16_t>(row.help_context);
    }
    return controls;
}

Control Dot(const char* name, const char* kind, const char* spoken_name, std::int16_t help_context) {
    return {.name = name,
            .kind = kind,
            .spoken_name = spoken_name,
            .window = &Editor,
            .focusable = true,
            .help_context = help_context};
}

struct Dot_Row {
    const char* knob;
    Control* dot;
};

const std::array<Dot_Row, 3> Dots = {{
    {"DCO1_Tune", &DCO1_Tune_Knopf},
    {"DCO2_Tune", &DCO2_Tune_Knopf},
    {"DCO2_FTune", &DCO2_FTune_Knopf},
}};

std::size_t Parameter_Of(const Editor_Row& row) {
    return static_cast<std::size_t>(row.parameter);
}

// -- refresh ---------------------------------------------------------------------------------------------

void Place_Three_Way(Control& control, const Editor_Row& row) {
    // No gaps here, unlike in a drag.
    const std::uint8_t value = Tone_Byte(Parameter_Of(row));
    if (value > 127) return;
    control.top = row.bottom_row - std::min(value / 32, 2) * Switch_Pitch;
}

void Place_Two_Way(Control& control, const Editor_Row& row) {
    const std::uint8_t value = Tone_Byte(Parameter_Of(row));
    if (value <= 127) control.top = value <= 63 ? row.bottom_row : row.top_row;
}

void Place_Four_Way(Control& control, const Editor_Row& row) {
    const std::size_t parameter = Parameter_Of(row);
    const int band = Tone_Byte(parameter) / 32;
    if (row.top_row == Upper_Switch_Row) {
        control.top = Panel_Switch_Top_Upper(parameter);
    } else if (row.top_row == Lower_Switch_Row) {
        control.top = Panel_Switch_Top_Lower(parameter);
    } else if (band < 4) {
        control.top = row.bottom_row - band * Switch_Pitch;
    }
}

void Apply_Tone() {
    Tone_Name_Text = Tone_Name_From_Data();
    Editor_Tone_Name.text = Tone_Name_Text;
    for (std::size_t index = 0; index < Editor_Table.size(); ++index) {
        const Editor_Row& row = Editor_Table[index];
        Control& control = Editor_Controls[index];
        switch (row.type) {
            case Control_Type::Slider:
                control.top = Panel_Slider_Top(Parameter_Of(row));
                break;
            case Control_Type::Four_Way:
                Place_Four_Way(control, row);
                break;
            case Control_Type::Three_Way:
                Place_Three_Way(control, row);
                break;
            case Control_Type::Two_Way:
                Place_Two_Way(control, row);
                break;
            case Control_Type::Tune_Knob:
                Panel_Knob_Show(row.kind, Dot_Centre_Top, Dot_Centre_Left, Degrees_A_Semitone);
                break;
            case Control_Type::Fine_Knob:
                Panel_Knob_Show(row.kind, Dot_Centre_Top, Dot_Centre_Left, Degrees_A_Fine_Unit);
                break;
        }
    }
}

// -- window ----------------------------------------------------------------------------------------------

void Show_All(bool visible) {
    for (Control* control : Editor_Panel.controls) control->visible = visible;
}

void Conceal() {
    Show_All(false);
}

// Everything that stands still: the columns of the table, and the rest of the window. Thumbs keep their
// rows, which are the tone's.
void Place_All() {
    for (std::size_t index = 0; index < Editor_Table.size(); ++index) {
        const Editor_Row& row = Editor_Table[index];
        Editor_Controls[index].left = row.left;
        if (Is_Knob(row.type)) Editor_Controls[index].top = row.top_row;
    }
    Control_Set_Place(Editor_Tone_Name, 105, 291, 121, 27);
    Control_Set_Place(Editor_Seq_Start, 190, 221, 22, 22);
    Control_Set_Place(Editor_Keys_Pic, 216, 221, 43, 22);
    Control_Set_Place(Editor_Seq_Stop, 263, 221, 22, 22);
    Control_Set_Place(Editor_Pic_Tonebench, 181, 150, 110, 50);
    Control_Set_Place(Editor_Pic_Sign, 197, 202, 79, 14);
}

void Arrange() {
    Place_All();
    Show_All(true);
}

void Set_Sequencer_Symbols(Picture_Store start, Picture_Store stop) {
    Editor_Seq_Start_Pic.picture = Picture_Of(start);
    Editor_Seq_Stop_Pic.picture = Picture_Of(stop);
}

std::string Spoken_Value(const Control& control) {
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return control.text;
    std::string text;
    const std::uint8_t value = Tone_Byte(Parameter_Of(*row));
    if (Editor_Value_Text(Parameter_Of(*row), value, text)) return text;
    const int position = row->type == Control_Type::Two_Way ? value / 64 : value / 32;
    return Editor_Position_Name(*row, std::min(position, Positions(row->type) - 1));
}

std::optional<Control_Scale> Scale(const Control& control) {
    const Editor_Row* row = Editor_Row_Of(control);
    if (row == nullptr) return {};
    return Scale_Of(row->type, Tone_Byte(Parameter_Of(*row)));
}

std::vector<Control*> Controls_In_Focus_Order() {
    std::vector<Control*> controls;
    for (Control& control : Editor_Controls) {
        controls.push_back(&control);
        if (Control* dot = Editor_Dot_Of(control)) controls.push_back(dot);
    }
    Common_Append_To(controls, Editor_Common);
    return controls;
}

}  // namespace

std::array<Control, Editor_Table.size()> Editor_Controls = Controls_Of_Table();
Control DCO1_Tune_Knopf = Dot("DCO1_Tune_Knopf", "kn1", "DCO-1 Tune", 0);
Control DCO2_Tune_Knopf = Dot("DCO2_Tune_Knopf", "kn2", "DCO-2 Tune", 0);
Control DCO2_FTune_Knopf = Dot("DCO2_FTune_Knopf", "kn2f", "DCO-2 Fine Tune", 0);
Control Editor_Tone_Name = Plain_Control(Editor, "Tone_Name", "Tone Name", true);
Control Editor_Seq_Start = Plain_Control(Editor, "ED_Seq_Start", "Sequencer Start", true);
Control Editor_Seq_Start_Pic = Plain_Control(Editor, "ED_Seq_Start_Pic", "", false);
Control Editor_Seq_Stop = Plain_Control(Editor, "ED_Seq_Stop", "Sequencer Stop", true);
Control Editor_Seq_Stop_Pic = Plain_Control(Editor, "ED_Seq_Stop_Pic", "", false);
Control Editor_Keys_Pic = Keys_Pic_Control(Editor);
Control Editor_Pic_Tonebench = Plain_Control(Editor, "Pic_Tonebench", "", false);
Control Editor_Pic_Sign = Plain_Control(Editor, "Pic_Sign", "", false);

constinit const Common_Controls Editor_Common = {
    .tone_name = Editor_Tone_Name,
    .seq_start = Editor_Seq_Start,
    .seq_start_pic = Editor_Seq_Start_Pic,
    .seq_stop = Editor_Seq_Stop,
    .seq_stop_pic = Editor_Seq_Stop_Pic,
    .keys_pic = Editor_Keys_Pic,
    .pic_tonebench = Editor_Pic_Tonebench,
    .pic_sign = Editor_Pic_Sign,
};

const Panel Editor_Panel = {
    .window = &Editor,
    .controls = Controls_In_Focus_Order(),
    .events = Editor_Events,
    .spoken_value = Spoken_Value,
    .scale = Scale,
};

Control* Editor_Dot_Of(const Control& body) {
    for (const Dot_Row& row : Dots) {
        if (std::string_view(row.knob) == body.name) return row.dot;
    }
    return nullptr;
}

// The row of the table that a control belongs to: its own, or that of the knob whose dot it is. Null for
// the rest of the window.
const Editor_Row* Editor_Row_Of(const Control& control) {
    const Control& owner = control.parent != nullptr ? *control.parent : control;
    for (std::size_t index = 0; index < Editor_Controls.size(); ++index) {
        if (&Editor_Controls[index] == &owner) return &Editor_Table[index];
    }
    return nullptr;
}

Control& Editor_Control(const std::string& name) {
    for (Control& control : Editor_Controls) {
        if (name == control.name) return control;
    }
    throw Fatal_Error("No control " + name);
}

void Editor_Load_Pictures() {
    Place_All();
    Common_Load_Pictures(Editor_Common);
    for (std::size_t index = 0; index < Editor_Table.size(); ++index) {
        const Editor_Row& row = Editor_Table[index];
        Control_Set_Picture(Editor_Controls[index], Picture_Store::Buttons, Resting_Item(row));
        Editor_Controls[index].top = row.bottom_row;
    }
    for (const Dot_Row& row : Dots) {
        Control_Set_Picture(*row.dot, Picture_Store::Buttons, Knob_Dot);
        row.dot->parent = &Editor_Control(row.knob);
        row.dot->left = Dot_Centre_Left;
        row.dot->top = 5;
    }
}

void Editor_Load() {
    Editor.caption = "Editor";
    Editor.width = Editor_Width;
    Editor.height = Editor_Height;
    Editor_Load_Pictures();
    Editor_Activated();
    Editor.active_control = Panel_Current_Control;
    Timer_Start(Timer1);
}

void Editor_Activated() {
    Panel_Restore_Picture();
    Panel_Blink_Phase = 0;
    Panel_Current_Control = &Editor_Controls.front();
}

void Editor_Deactivated() {
    Panel_Restore_Picture();
}

void Editor_Install() {
    Editor.load = Editor_Load;
    Panel_Apply_Tone = Apply_Tone;
    Editor_Arrange = Arrange;
    Editor_Conceal = Conceal;
    Seq_Panel_Buttons_On = [] {
        Set_Sequencer_Symbols(Picture_Store::Start_Enabled, Picture_Store::Stop_Enabled);
    };
    Seq_Panel_Buttons_Off = [] {
        Set_Sequencer_Symbols(Picture_Store::Start_Disabled, Picture_Store::Stop_Disabled);
    };
    Panel_Set_Knob("kn1", DCO1_Tune_Knopf,
                   [] { return 1.0 * Panel_Tune_From_Byte(Tone_Data[Parameter_DCO1_Tune]); });
    Panel_Set_Knob("kn2", DCO2_Tune_Knopf,
                   [] { return 1.0 * Panel_Tune_From_Byte(Tone_Data[Parameter_DCO2_Tune]); });
    Panel_Set_Knob("kn2f", DCO2_FTune_Knopf,
                   [] { return 1.0 * Panel_Fine_From_Byte(Tone_Data[Parameter_DCO2_FTune]); });
    Timer1.tick = Panel_Blink_Tick;
}
