// What a touch costs: from a drag event at a control to the bytes handed to the port, the whole-tone
// message, a refresh of the panel, and a step of the oscillator. The port is one that only takes the bytes.
#include <benchmark/benchmark.h>

#include "desk/windows.h"
#include "midi/out.h"
#include "oscillator/engine.h"
#include "oscillator/stairs.h"
#include "oscwin/oscwin.h"
#include "panels/editor.h"
#include "panels/steps.h"
#include "shell/wiring.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

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

// One tick: the cursor, the value, the text, the bytes. The pending events that it lets run are none here.
void Oscillator_Step(benchmark::State& state) {
    Prepare();
    Window_Load(Oscillator);
    for (auto unused : state) {
        (void)unused;
        Osc_Tick();
    }
}

// A move event that leaps over the whole picture.
void Oscillator_Drawing(benchmark::State& state) {
    Prepare();
    Window_Load(Oscillator);
    int x = 0;
    for (auto unused : state) {
        (void)unused;
        x = 126 - x;
        Osc_Picture1_MouseMove(Osc_Left_Button, x, x);
    }
}

void Oscillator_Redraw(benchmark::State& state) {
    Prepare();
    Window_Load(Oscillator);
    for (auto unused : state) {
        (void)unused;
        Osc_Redraw();
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
FIGURES(Oscillator_Step);
FIGURES(Oscillator_Drawing);
FIGURES(Oscillator_Redraw);
#undef FIGURES

BENCHMARK_MAIN();
