// What a step of the sequencer costs: the tick with its 13 messages handed to the port, of an empty and of
// a full sequence, with and without the running lights; and that it allocates nothing.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <new>

#include "desk/timers.h"
#include "desk/windows.h"
#include "midi/out.h"
#include "sequencer/engine.h"
#include "sequencer/sequence.h"
#include "shell/wiring.h"

namespace {

std::size_t Allocations = 0;

}  // namespace

// Kept out of line: the compiler takes a delete that it sees through for the wrong one.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++Allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace {

void Play(benchmark::State& state, Seq_Mode mode, std::int16_t velocity, Flag_8 window) {
    static const bool prepared = [] {
        Program_Wire();
        MIDI_Enabled = 1;
        MIDI_Out_Open();
        return true;
    }();
    (void)prepared;
    Seq_Status = Note_On_Status(1);
    Seq_Base_Note = 48;
    Seq_Notes.fill(velocity);
    Seq_Window_Open = window;
    Seq_Directions_Click(mode);
    Seq_Pos = 0;
    const std::size_t before = Allocations;
    for (auto unused : state) {
        (void)unused;
        Seq_Tmr.tick();
    }
    state.counters["allocations"] = static_cast<double>(Allocations - before);
}

void Step_Of_An_Empty_Sequence(benchmark::State& state) {
    Play(state, Seq_Mode::Forward, 0, Flag_8::False);
}
void Step_Of_A_Full_Sequence_With_Lights(benchmark::State& state) {
    Play(state, Seq_Mode::Forward, Seq_Loud, Flag_8::True);
}
void Random_Step(benchmark::State& state) {
    Play(state, Seq_Mode::Random_Position, Seq_Soft, Flag_8::True);
}

}  // namespace

#define FIGURES(name) \
    BENCHMARK(name)->Repetitions(9)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond)
FIGURES(Step_Of_An_Empty_Sequence);
FIGURES(Step_Of_A_Full_Sequence_With_Lights);
FIGURES(Random_Step);
#undef FIGURES

BENCHMARK_MAIN();
