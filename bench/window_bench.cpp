// What stands behind every event while the program's windows are open, the oscillator's among them: the
// comparison of all widgets with their records; what a new tone on the panel costs until it is painted; and
// what a step of the oscillator costs as the program runs it, from the tick to the painted cursor. Run it
// on a screen, or with QT_QPA_PLATFORM=offscreen.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>

#include "desk/windows.h"
#include "midi/out.h"
#include "oscillator/engine.h"
#include "panels/pictures_qt.h"
#include "platform/event_loop.h"
#include "platform/gate.h"
#include "shell/app_window.h"
#include "shell/style_qt.h"
#include "shell/wiring.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

App_Window* Shown_Window = nullptr;

void Windows_Compared(benchmark::State& state) {
    for (auto unused : state) {
        (void)unused;
        Windows_Show_Changes();
    }
}

// Every control moves, to and fro.
void Panel_Refresh_Painted(benchmark::State& state) {
    std::uint8_t value = 0;
    for (auto unused : state) {
        (void)unused;
        value ^= 0x7F;
        std::fill(Tone_Data.begin() + Tone_Name_Size, Tone_Data.end(), value);
        Guarded_Event([] { Panel_Apply_Tone(); });
        Event_Loop_Turn();
    }
}

void Oscillator_Step_On_Screen(benchmark::State& state) {
    for (auto unused : state) {
        (void)unused;
        Guarded_Event(Osc_Tick);
    }
}

}  // namespace

#define FIGURES(name) \
    BENCHMARK(name)->Repetitions(9)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond)
FIGURES(Windows_Compared);
FIGURES(Panel_Refresh_Painted);
FIGURES(Oscillator_Step_On_Screen);
#undef FIGURES

int main(int argument_count, char** arguments) {
    QApplication application(argument_count, arguments);
    Style_Install();
    Pictures_Open();
    Program_Wire();
    Window_Load(Editor);
    MIDI_Enabled = 1;
    Sysex_Headers_Update();
    Tone_Init();
    App_Window window;
    Shown_Window = &window;
    Windows_Show_Changes = [] { Shown_Window->Show_Changes(); };
    Main_Window.visible = true;
    Windows_Show_Changes();
    Window_Show(Oscillator);
    Windows_Show_Changes();
    Event_Loop_Turn();
    benchmark::Initialize(&argument_count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    Windows_Show_Changes = {};
    return 0;
}
