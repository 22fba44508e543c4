#include "oscillator/engine.h"

#include <string>

#include "midi/out.h"
#include "oscillator/stairs.h"
#include "oscillator/targets.h"
#include "platform/event_loop.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/tokens.h"

namespace {

constexpr std::int16_t Note_Velocity = 127;
constexpr int Start_Interval = 500;

constexpr std::uint8_t Mixer_DCO1 = 28;
constexpr std::uint8_t Mixer_DCO2 = 29;
constexpr std::uint8_t Portamento_Time = 1;  // patch parameters
constexpr std::uint8_t Bend_LFO_Depth = 5;

// The port has refused a message, and a box has told it.
bool Refusal_Told = false;

// Since the last start.
bool Halted = false;

void Build(const std::string& header, std::int16_t number, int value) {
    Sysex_Param_Text = header;
    Append_Token(Sysex_Param_Text, static_cast<std::uint8_t>(number));
    Sysex_Param_Text += ' ';
    Append_Token(Sysex_Param_Text, static_cast<std::uint8_t>(value));
    Sysex_Param_Text += " F7";
}

// A port that takes nothing is told in a box. One box a step would never let the user reach the stop
// button, so the steps behind it stay silent until the port is ready again.
bool Would_Tell_Again() {
    const bool refuses = MIDI_Out_Handle != Port_Closed && Port_Out_Ready(MIDI_Out_Handle) != Port_Ok;
    const bool again = refuses && Refusal_Told;
    Refusal_Told = refuses;
    return again;
}

}  // namespace

std::int16_t Osc_Param = 0;
std::uint8_t Osc_Step = 0;
Timer Timer_Osc = {.interval = Start_Interval};
Scroll_Bar Osc_Time = {.minimum = 0, .maximum = 999, .large_step = 50, .value = Start_Interval};

void Osc_Tick() {
    Osc_TimeLine = Osc_Step * Osc_Point_Width;
    const auto value = static_cast<std::int16_t>(Osc_Bottom_Row - Osc_Out[Osc_Step]);
    Osc_Label2 = std::to_string(value);
    if (MIDI_Out_Closing) {
        // A note started now would sound on behind the close.
    } else if (Osc_Param == Osc_Target_Notes) {
        // No note is ended: they pile up until somebody sends all notes off.
        MIDI_SendNote(value, Note_Velocity);
    } else {
        Osc_Send(value);
    }
    // On the value as it stands: what ran meanwhile may have moved it.
    if (Osc_Step > 16) {
        Osc_Step = 0;
    } else {
        ++Osc_Step;
    }
    Event_Loop_Turn();
}

void Osc_Send(std::int16_t value) {
    if (MIDI_Autosend != 1 || MIDI_Enabled != 1) return;
    if (Osc_Param < Osc_First_Private_Code) {
        Build(Sysex_Header_IPR, Osc_Param, value);
    } else if (Osc_Param == Osc_Target_Balance) {
        // One text takes the other's place: only DCO2 moves, against the curve.
        Build(Sysex_Header_IPR, Mixer_DCO1, value);
        Build(Sysex_Header_IPR, Mixer_DCO2, Osc_Bottom_Row - value);
    } else if (Osc_Param == Osc_Target_Portamento) {
        Build(Sysex_Header_IPR_Patch, Portamento_Time, value);
    } else if (Osc_Param == Osc_Target_Bend_LFO) {
        Build(Sysex_Header_IPR_Patch, Bend_LFO_Depth, value);
    }
    if (Would_Tell_Again()) return;
    MIDI_Send_Long(Sysex_Text_To_Bytes(Sysex_Param_Text));
}

void Osc_Play() {
    Osc_Step = 0;
    Refusal_Told = false;
    Halted = false;
    Osc_Tick();
    // A stop or a close among the events of that step has the last word.
    if (!Halted) Timer_Start(Timer_Osc);
}

void Osc_Halt() {
    Halted = true;
    Timer_Stop(Timer_Osc);
    Osc_TimeLine = 0;
    Osc_Step = 0;
}

void Osc_Set_Interval(int milliseconds) {
    Osc_Time.value = milliseconds;
    Timer_Set_Interval(Timer_Osc, milliseconds);
}

void Osc_Engine_Install() {
    Timer_Osc.tick = Osc_Tick;
}
