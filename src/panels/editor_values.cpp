// How the JX-8P panel's controls move, show and send: the half of editor.h that knows values.
#include <algorithm>
#include <array>
#include <cmath>

#include "desk/timers.h"
#include "panels/editor.h"
#include "panels/steps.h"
#include "synth/messages.h"
#include "synth/tone.h"
#include "synth/tuning.h"

namespace {

constexpr double Slider_Page = 16;

// The three-position switches; their highest position starts at 64 and is as far as keys go.
constexpr double Three_Way_Ceiling = 64;

bool Is_Three_Way(std::size_t parameter) {
    return parameter == Parameter_Chorus_Mode || parameter == Parameter_LFO_Waveform;
}

bool Is_Tune(std::size_t parameter) {
    return parameter == Parameter_DCO1_Tune || parameter == Parameter_DCO2_Tune;
}

bool Is_Slider(std::size_t parameter) {
    return std::any_of(Editor_Table.begin(), Editor_Table.end(), [parameter](const Editor_Row& row) {
        return row.type == Control_Type::Slider && static_cast<std::size_t>(row.parameter) == parameter;
    });
}

void Set_Active_Top(int top) {
    Window_Set_Active_Top(Editor, top);
}

// Which of four rows a byte belongs to, counted from the lowest; 4 above 127.
int Band(std::uint8_t value) {
    return value / 32;
}

int Switch_Top(std::size_t parameter, int bottom_row) {
    const int band = Band(Tone_Byte(parameter));
    // What no band holds shows at the window's upper edge, off the rail, where it can be seen to be wrong.
    return band < 4 ? Band_Top(bottom_row, Tone_Byte(parameter)) : 0;
}

int Bottom_Row(std::size_t parameter) {
    for (const Editor_Row& row : Editor_Table) {
        if (static_cast<std::size_t>(row.parameter) == parameter) return row.bottom_row;
    }
    throw Fatal_Error("Subscript out of range");
}

std::uint8_t Byte_Of(double value) {
    return Narrow<std::uint8_t>(value);
}

}  // namespace

bool Editor_Value_Text(std::size_t parameter, std::uint8_t value, std::string& text) {
    if (Is_Slider(parameter)) {
        text = std::to_string(Slider_Shown(value));
    } else if (Is_Tune(parameter)) {
        text = std::to_string(Panel_Tune_From_Byte(value));
    } else if (parameter == Parameter_DCO2_FTune) {
        text = std::to_string(Panel_Fine_From_Byte(value));
    } else {
        return false;
    }
    return true;
}

void Editor_Set_Value(std::size_t parameter, std::uint8_t value) {
    Tone_Byte(parameter) = value;
    if (!Is_True(Tone_Loading)) {
        Editor_Value_Text(parameter, value, Editor_Tone_Name.text);
        Timer_Start(Timer_Display);
    }
    Editor_Send_Param(parameter);
    Tone_Saved = Flag_16::False;
}

void Editor_Slider_Key(int top_row, int bottom_row, std::size_t parameter, int key) {
    if (const auto value = Slider_Step(Tone_Byte(parameter), key, Slider_Page)) {
        Panel_Scratch_Real = *value;
        Editor_Set_Value(parameter, Byte_Of(*value));
    }
    Editor_Slider_Place(top_row, bottom_row, parameter);
}

void Editor_Slider_Drag(int top_row, int bottom_row, std::size_t parameter, double row) {
    Panel_Scratch_Real = Slider_Dragged(Tone_Byte(parameter), row);
    Editor_Set_Value(parameter, Byte_Of(Panel_Scratch_Real));
    Editor_Slider_Place(top_row, bottom_row, parameter);
}

void Editor_Slider_Place(int /*top_row*/, int bottom_row, std::size_t parameter) {
    Set_Active_Top(Slider_Top(bottom_row, Tone_Byte(parameter)));
}

void Editor_Switch_Key(int top_row, int bottom_row, std::size_t parameter, int key) {
    const double ceiling = Is_Three_Way(parameter) ? Three_Way_Ceiling : Highest_Value;
    double value = Tone_Byte(parameter);
    if (Is_Three_Way(parameter)) value = std::min(value, ceiling);
    if (const auto stepped = Switch_Step(value, key, ceiling)) {
        Panel_Scratch_Real = *stepped;
        Editor_Set_Value(parameter, Byte_Of(*stepped));
    }
    Editor_Switch_Place(top_row, bottom_row, parameter);
}

void Editor_Switch_Drag(int top_row, int bottom_row, std::size_t parameter, double row) {
    Panel_Scratch_Real = Switch_Dragged(Tone_Byte(parameter), row);
    Tone_Byte(parameter) = Byte_Of(Panel_Scratch_Real);
    Editor_Switch_Place(top_row, bottom_row, parameter);
    // A slow drag moves the thumb without a message. The instrument hears the next jump, or the next key.
    const auto movement = Panel_Switch_Movement(parameter, To_Int16(Panel_Scratch_Real));
    if (movement && std::abs(*movement) > Switch_Send_Difference) Editor_Send_Param(parameter);
    Tone_Saved = Flag_16::False;
}

void Editor_Switch_Place(int top_row, int /*bottom_row*/, std::size_t parameter) {
    const std::uint8_t value = Tone_Byte(parameter);
    if (Is_Three_Way(parameter)) {
        // The bands have gaps here; a value in a gap leaves the thumb on its row.
        if (value <= 15) Set_Active_Top(top_row + 2 * Switch_Pitch);
        if (value >= 32 && value <= 47) Set_Active_Top(top_row + Switch_Pitch);
        if (value >= 64 && value <= 96) Set_Active_Top(top_row);
    } else if (Band(value) < 4) {
        Set_Active_Top(top_row + (3 - Band(value)) * Switch_Pitch);
    }
}

int Panel_Switch_Top_Upper(std::size_t parameter) {
    return Switch_Top(parameter, 62);
}
int Panel_Switch_Top_Lower(std::size_t parameter) {
    return Switch_Top(parameter, 308);
}

int Panel_Slider_Top(std::size_t parameter) {
    return Slider_Top(Bottom_Row(parameter), Tone_Byte(parameter));
}
