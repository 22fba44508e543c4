// The sequence: 13 note rows by 8 steps, its tempo and base note, and whether there is one and it is saved.
// There is exactly one in the process.
//
// A cell is a velocity: 0 empty, 63 soft, 127 loud. The program writes only these three; a file may bring
// others, which are played and shown as empty cells.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/hook.h"
#include "platform/numbers.h"

inline constexpr int Seq_Rows = 13;
inline constexpr int Seq_Steps = 8;
inline constexpr int Seq_Cells = Seq_Rows * Seq_Steps;
inline constexpr std::int16_t Seq_Loud = 127;
inline constexpr std::int16_t Seq_Soft = 63;

// Which picture a cell is shown by, here and in the file window's preview.
enum Seq_Picture : int {
    Seq_Empty_Picture = 0,
    Seq_Light_Picture = 1,
    Seq_Loud_Picture = 2,
    Seq_Soft_Picture = 3
};
inline Seq_Picture Seq_Cell_Picture(std::int16_t velocity) {
    if (velocity == Seq_Loud) return Seq_Loud_Picture;
    return velocity == Seq_Soft ? Seq_Soft_Picture : Seq_Empty_Picture;
}

inline constexpr int Seq_Lowest_Base_Note = 24;  // range "C0..C1", transpose "C"

// In cycles of 8 steps a minute.
inline constexpr std::int16_t Seq_Lowest_Tempo = 1;
inline constexpr std::int16_t Seq_Highest_Tempo = 120;

// The cell of step s and row r (0 on top, the highest note) has the index s * 13 + r, so the rows of a step
// lie next to each other. Row r sounds Seq_Base_Note + 12 - r.
extern std::array<std::int16_t, Seq_Cells> Seq_Notes;
extern std::int16_t Seq_Tempo_Value;
extern std::uint8_t Seq_Base_Note;    // the lowest row's: range * 12 + 24 + transpose
extern std::int16_t Seq_Range_Index;  // which octave the window shows, 0 to 4
extern Flag_8 Seq_Loaded;             // a file was read since the last reset
extern Flag_8 Seq_Saved;              // False while it has unsaved edits; only cells count as edits
extern std::string Seq_File_Name;     // as the window's title shows it
extern std::string Seq_File_Path;     // full path
extern Flag_8 Seq_Running;            // True while Seq_Tmr runs
extern std::int16_t Seq_Pos;          // the step that the next tick plays; -1 or 8 before a wrap

// Empties the sequence. The base note, the path, the window's title and controls and the timer stay: who
// needs more does it.
void Seq_New_Reset();

// A sequence was loaded or edited, so that a start has something to play.
bool Seq_Ready();

inline std::size_t Seq_Cell(int step, int row) {
    return static_cast<std::size_t>(step) * Seq_Rows + static_cast<std::size_t>(row);
}

// The note that a row sounds.
inline std::int16_t Seq_Row_Note(int row) {
    return static_cast<std::int16_t>(Seq_Base_Note + Seq_Rows - 1 - row);
}

// "Sequencer - NAME", or "Sequencer" alone without a name, into the window's title.
void Seq_Show_Title();

// Filled in by the sequencer's window: paints the matrix from Seq_Notes.
extern Hook<void()> Seq_Redraw;

// Filled in by the JX-8P's panel: its Start and Stop show that there is something to play, or not.
extern Hook<void()> Seq_Panel_Buttons_On;
extern Hook<void()> Seq_Panel_Buttons_Off;
