// The sequencer's engine. Seq_Tmr ticks once a step; a tick moves the running light, sends the step's 13
// rows and moves the cursor by the chosen direction.
//
//   row 0   note + 12   velocity 127      A note ends when its row is empty in a later step: an empty cell
//   ...                                   goes out as velocity 0. There is no other note-off and no gate
//   row 12  note        velocity 0        time.
//
// The direction switches and the lights are part of the model: the engine reads and writes them also while
// the window is closed.
#pragma once

#include <array>
#include <cstdint>

#include "platform/numbers.h"
#include "sequencer/sequence.h"

extern std::int16_t Seq_Prev_Pos;  // the step played last
extern std::uint8_t Seq_Dir;       // 0 forward, 1 backward

// The direction modes, by the numbers of their switches.
enum class Seq_Mode : int {
    Forward = 0,
    Backward = 1,
    Back_And_Forth = 2,
    Random_Position = 7,  // a random direction on every tick, and behind it a random step
    Random_During = 8,    // R1: a random direction on every tick
    Random_After = 9,     // R2: a random direction where a cycle ends
};

// One switch of the six; exactly one is selected.
struct Seq_Direction {
    Seq_Mode mode;
    bool selected;
};
extern std::array<Seq_Direction, 6> Seq_Directions;

bool Seq_Mode_Is(Seq_Mode mode);

// Selects a mode. Backward turns Seq_Dir round, every other mode sets it forward; the cursor stays.
void Seq_Directions_Click(Seq_Mode mode);

// The running lights, one over each step. The tick moves the light only while the window is open.
extern std::array<bool, Seq_Steps> Seq_Clock;
void Seq_Clock_Dark();  // all eight off

// Milliseconds from step to step at a tempo in cycles of 8 steps a minute, 1 to 120. Exact halves go to the
// even number: 120 gives 62.
int Seq_Interval(std::int16_t tempo);

// Gives Seq_Tmr the interval of Seq_Tempo_Value; a running timer takes it at once.
void Seq_Set_Interval();

// Fills in Seq_Tmr's tick.
void Sequencer_Install();
