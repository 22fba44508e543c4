// The sequencer's window as a user works it: controls pressed by their records, cells by step and row.
#pragma once

#include "desk/dialog_lock.h"
#include "sequencer/seq_files.h"
#include "seqwin/seqwin.h"

using enum Mouse_Button;
using Lights = std::array<bool, 8>;
using namespace std::chrono_literals;

inline void Press_On(Control& control, Mouse_Button button = Left) {
    Seq_Panel.events.button_pressed(control, button);
}
inline void Release_On(Control& control, Mouse_Button button = Left) {
    Seq_Panel.events.button_released(control, button);
}
inline void Click_On(Control& control) {
    Press_On(control);
    Release_On(control);
    Seq_Panel.events.clicked(control);
}

// Which key the picture shows: item 0 white, 1 black, 2 and 3 pressed.
inline int Item(const Control& control) {
    EXPECT_EQ(control.picture.store, Picture_Store::Seq_Keys);
    return control.picture.item;
}

inline bool Is_Down(const Control& button) {
    return button.picture.store == Picture_Store::Button_Dn3D && button.symbol->left == 4 &&
           button.symbol->top == 4;
}
inline bool Is_Up(const Control& button) {
    return button.picture.store == Picture_Store::Button_Up3D && button.symbol->left == 3 &&
           button.symbol->top == 3;
}

// The middle of a cell.
inline void Press_Cell(int step, int row, Mouse_Button button = Left) {
    Seq_Matrix_MouseDown(button, step * 12 + 5, row * 12 + 5);
}

inline std::size_t Cell(int step, int row) {
    return static_cast<std::size_t>(step * 13 + row);
}

class The_Sequencer_Window : public Started_Stage {
  protected:
    The_Sequencer_Window() { Sent(); }

    static void Open() {
        Menu(Menu_MIDI_Seq).chosen();
        Sent();
    }
    static void Close() { Window_Unload(Sequencer); }
};
