// The window Sequencer: the sequence as a matrix of 8 steps by 13 notes, a keyboard of one octave beside
// it, the running lights, the direction switches, tempo, range and transpose. It edits the sequence and
// starts and stops its engine.
//
// Written here: the cells of Seq_Notes, the tempo, the base note, and the records below.
#pragma once

#include <array>
#include <string>

#include "desk/form.h"
#include "panels/panel.h"
#include "sequencer/sequence.h"

// The window's size and where its parts stand, in pixels. Cells and lights are 12 apart.
inline constexpr int Seq_Window_Width = 424;
inline constexpr int Seq_Window_Height = 200;
inline constexpr int Seq_Pitch = 12;
inline constexpr int Seq_Matrix_Left = 44;
inline constexpr int Seq_Matrix_Top = 20;
inline constexpr int Seq_Matrix_Width = 95;
inline constexpr int Seq_Matrix_Height = 155;
inline constexpr int Seq_Keys_Left = 4;
inline constexpr int Seq_Keys_Top = 19;
inline constexpr int Seq_Clock_Top = 6;
inline constexpr int Seq_Start_Left = 318;
inline constexpr int Seq_Stop_Left = 380;
inline constexpr int Seq_Buttons_Top = 148;

inline constexpr const char* Seq_Keys_Help =
    "Click with the left button to play notes. Click with the right mouse button to stop playing the "
    "notes.";

struct Seq_Form {
    Drop_Down range;          // "Seq_Range"
    Drop_Down trans;          // "Seq_Trans"
    int tempo = 0;            // "Seq_Tempo", a scroll bar from 1 to 120 with a page of 30
    std::string tempo_label;  // "Seq_Tempo_Label"
};
extern Seq_Form Sequencer_Form;
inline constexpr int Seq_Tempo_Page = 30;

// The matrix as it was painted last. A sequence that is only heard in the file window is not painted here.
extern std::array<Seq_Picture, Seq_Cells> Seq_Matrix;

// Seq_Keys(k) plays the base note + k; the highest stands on top, beside row 0.
extern std::array<Control, Seq_Rows> Seq_Keys;
extern Control Seq_Start;
extern Control Seq_Start_Pic;
extern Control Seq_Stop;
extern Control Seq_Stop_Pic;
extern Control Seq_New;  // looks like one more key over the keyboard
extern Control Seq_New_Pic;

// The keys and buttons as the toolkit's side sees them.
extern const Panel Seq_Panel;

// The name of a note as the lists count octaves, 24 being "C0": 61 is "C#3".
std::string Seq_Note_Name(int note);

// A cell in words: "step 3, C#3, loud".
std::string Seq_Cell_Text(int step, int row);

bool Seq_Key_Is_Black(int key);

// Events. The position is in pixels from the matrix's corner; only the press counts.
void Seq_Matrix_MouseDown(Mouse_Button button, double x, double y);
void Seq_Tempo_Change(int tempo);  // 1 to 120; anything else is brought into it
void Seq_Range_Change(int index);
void Seq_Trans_Change(int index);
// A key anywhere in the window: the letters of the notes choose the transpose. True when it was one.
struct Seq_Shift {
    bool shift = false;
    bool control = false;
    bool alt = false;
};
bool Seq_KeyDown(int key, Seq_Shift held);

// Fills in the window's load and unload, and what the engine, the panels and the menu ask of it.
void Seqwin_Install();
