// What a touch costs: from a drag event at a control to the bytes handed to the port, the whole-tone
// message, and a refresh of the panel. The port is one that only takes the bytes.
#include <benchmark/benchmark.h>

#include "desk/windows.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "panels/steps.h"
#include "platform/midi_port.h"
#include "shell/wiring.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

// Ports that only take the bytes: nothing of them is measured.
std::vector<std::string> Port_Out_Names() {
    return {"Synth"};
}
Port_Result Port_Out_Open(int, Port_Handle& handle) {
    handle = 1;
    return Port_Ok;
}
Port_Result Port_Out_Close(Port_Handle) {
    return Port_Ok;
}
Port_Result Port_Out_Short(Port_Handle, std::uint32_t word) {
    benchmark::DoNotOptimize(word);
    return Port_Ok;
}
Port_Result Port_Out_Ready(Port_Handle) {
    return Port_Ok;
}
Port_Result Port_Out_Long(Port_Handle, std::string_view bytes) {
    benchmark::DoNotOptimize(bytes.data());
    return Port_Ok;
}
std::string Port_Error_Text(Port_Result) {
    return "";
}
namespace {

void Prepare() {
    static const bool prepared = [] {
        Program_Wire();
        Window_Load(Editor);
        MIDI_Enabled = 1;
        Sysex_Headers_Update();
        Tone_Init();
        return true;
    }();
    (void)prepared;
}

void Drag(benchmark::State& state, const char* name) {
    Prepare();
    Control& control = Editor_Control(name);
    Editor_Panel.events.focus_gained(control);
    double row = 9;
    for (auto unused : state) {
        (void)unused;
        row = -row;  // to and fro, so that every event changes the value by more than 4
        Editor_Panel.events.pointer_moved(control, row);
    }
}

void Slider_Drag_To_Bytes(benchmark::State& state) {
    Drag(state, "VCF_Res");
}
void Switch_Drag_To_Bytes(benchmark::State& state) {
    Drag(state, "DCO1_Range");
}
void Knob_Drag_To_Bytes(benchmark::State& state) {
    Drag(state, "DCO1_Tune");
}

void Key_To_Bytes(benchmark::State& state) {
    Prepare();
    Control& control = Editor_Control("VCF_Res");
    Editor_Panel.events.focus_gained(control);
    for (auto unused : state) {
        (void)unused;
        Editor_Panel.events.key_pressed(control, Key_Page_Up);
    }
}

void Whole_Tone_Message(benchmark::State& state) {
    Prepare();
    for (auto unused : state) {
        (void)unused;
        Tone_Message_Build();
        benchmark::DoNotOptimize(Sysex_Text.data());
    }
}

void Panel_Refresh(benchmark::State& state) {
    Prepare();
    for (auto unused : state) {
        (void)unused;
        Panel_Apply_Tone();
    }
}

void Sequencer_Note(benchmark::State& state) {
    Prepare();
    MIDI_Out_Open();
    Seq_Status = Note_On_Status(1);
    for (auto unused : state) {
        (void)unused;
        Seq_SendNote(60, 90);
    }
}

}  // namespace

#define FIGURES(name) \
    BENCHMARK(name)->Repetitions(9)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond)
FIGURES(Slider_Drag_To_Bytes);
FIGURES(Switch_Drag_To_Bytes);
FIGURES(Knob_Drag_To_Bytes);
FIGURES(Key_To_Bytes);
FIGURES(Whole_Tone_Message);
FIGURES(Panel_Refresh);
FIGURES(Sequencer_Note);
#undef FIGURES

BENCHMARK_MAIN();
