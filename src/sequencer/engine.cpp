#include "sequencer/engine.h"

#include <algorithm>

#include "desk/timers.h"
#include "desk/windows.h"
#include "midi/out.h"
#include "platform/random.h"

namespace {

constexpr std::int16_t First_Step = 0;
constexpr std::int16_t Last_Step = Seq_Steps - 1;

bool At_An_End() {
    return Seq_Pos == First_Step || Seq_Pos == Last_Step;
}

bool Outside(std::int16_t position) {
    return position == First_Step - 1 || position == Last_Step + 1;
}

std::int16_t Random_Below(int limit) {
    return static_cast<std::int16_t>(Random_Next() * limit);
}

void Draw_Direction() {
    Seq_Dir = static_cast<std::uint8_t>(Random_Below(2));
}

void Send_Step() {
    // A run that began with MIDI off, or lost its port, goes on silently; switched on again, MIDI finds the
    // port closed.
    MIDI_Out_Open();
    for (int row = 0; row < Seq_Rows; ++row) {
        // A send that fails switches MIDI off; the rows behind it would each give a box of their own.
        if (MIDI_Enabled != 1) return;
        Seq_SendNote(Seq_Row_Note(row), Seq_Notes[Seq_Cell(Seq_Pos, row)]);
    }
}

// Plays the cursor's step and moves on. A cursor that has run off an end comes in at `entry`.
void Step(std::int16_t entry, int move) {
    if (Outside(Seq_Pos)) Seq_Pos = entry;
    if (Outside(Seq_Prev_Pos)) Seq_Prev_Pos = entry;
    if (Is_True(Seq_Window_Open)) {
        Seq_Clock[static_cast<std::size_t>(Seq_Prev_Pos)] = false;
        Seq_Clock[static_cast<std::size_t>(Seq_Pos)] = true;
    }
    if (MIDI_Enabled == 1) Send_Step();
    Seq_Prev_Pos = Seq_Pos;
    Seq_Pos = static_cast<std::int16_t>(Seq_Pos + move);
}

void Tick() {
    if (Seq_Mode_Is(Seq_Mode::Random_Position)) Draw_Direction();
    if (Seq_Mode_Is(Seq_Mode::Random_During)) Draw_Direction();
    // The cursor in front of the step. Forward it stands at 8 behind the last one, so that the end of a
    // cycle is met in front of step 7, and the beginning only in front of the first of all.
    if (Seq_Mode_Is(Seq_Mode::Random_After) && At_An_End()) Draw_Direction();

    if (Seq_Dir == 0) {
        Step(First_Step, 1);
    } else if (Seq_Dir == 1) {
        Step(Last_Step, -1);
    }

    // The moved cursor: a start at step 0 has left it by now, and does not turn round.
    if (Seq_Mode_Is(Seq_Mode::Back_And_Forth) && At_An_End()) Seq_Dir = Seq_Dir == 0 ? 1 : 0;
    // Step 7 is reached from step 6 only.
    if (Seq_Mode_Is(Seq_Mode::Random_Position)) Seq_Pos = Random_Below(Last_Step);
}

}  // namespace

std::int16_t Seq_Prev_Pos = 0;
std::uint8_t Seq_Dir = 0;

std::array<Seq_Direction, 6> Seq_Directions = {{
    {Seq_Mode::Forward, true},
    {Seq_Mode::Backward, false},
    {Seq_Mode::Back_And_Forth, false},
    {Seq_Mode::Random_Position, false},
    {Seq_Mode::Random_During, false},
    {Seq_Mode::Random_After, false},
}};
std::array<bool, Seq_Steps> Seq_Clock = {};

bool Seq_Mode_Is(Seq_Mode mode) {
    return std::any_of(Seq_Directions.begin(), Seq_Directions.end(),
                       [mode](const Seq_Direction& entry) { return entry.mode == mode && entry.selected; });
}

void Seq_Directions_Click(Seq_Mode mode) {
    for (Seq_Direction& entry : Seq_Directions) entry.selected = entry.mode == mode;
    Seq_Dir = mode == Seq_Mode::Backward ? 1 : 0;
}

void Seq_Clock_Dark() {
    Seq_Clock.fill(false);
}

int Seq_Interval(std::int16_t tempo) {
    return Narrow<int>(1000.0 / (tempo * Seq_Steps / 60.0));
}

void Seq_Set_Interval() {
    Timer_Set_Interval(Seq_Tmr, Seq_Interval(Seq_Tempo_Value));
}

void Sequencer_Install() {
    Seq_Tmr.tick = Tick;
}
