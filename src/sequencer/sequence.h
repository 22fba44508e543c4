// The sequence: 13 note rows by 8 steps, and whether there is one.
#pragma once

#include <array>
#include <cstdint>

#include "platform/hook.h"
#include "platform/numbers.h"

inline constexpr int Seq_Rows = 13;
inline constexpr int Seq_Steps = 8;

// The cell of step s and row r (0 on top, the highest note) has the index s * 13 + r. A cell is a velocity:
// 0 empty, 63 soft, 127 loud. Row r sounds Seq_Base_Note + 12 - r.
extern std::array<std::int16_t, Seq_Rows * Seq_Steps> Seq_Notes;
extern std::uint8_t Seq_Base_Note;

extern Flag_8 Seq_Loaded;     // a sequence with content is in memory
extern Flag_8 Seq_Saved;      // False while it has unsaved edits
extern Flag_8 Seq_Running;    // True while Seq_Tmr runs
extern std::int16_t Seq_Pos;  // the step that the next tick plays

// Filled in by the sequencer's window: turns the running lights off, all eight.
extern Hook<void()> Seq_Clock_Dark;

// A sequence was loaded or edited, so that a start has something to play.
bool Seq_Ready();
