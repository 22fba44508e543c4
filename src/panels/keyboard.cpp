#include "panels/keyboard.h"

#include <algorithm>

#include "midi/out.h"
#include "sequencer/sequence.h"

namespace {

constexpr std::int16_t C_Major[] = {60, 64, 67, 72};
constexpr std::int16_t Chord_Velocity = 90;

void Play_First_Column() {
    // A send that fails switches MIDI off; the rows behind it would each give a box of their own.
    for (int row = 0; row < Seq_Rows && MIDI_Enabled == 1; ++row) {
        Seq_SendNote(Seq_Row_Note(row), Seq_Notes[static_cast<std::size_t>(row)]);
    }
}

}  // namespace

Control Keys_Pic_Control(Window& window) {
    Control keys = Plain_Control(window, "Keys_Pic", "Keyboard", true);
    keys.help = Keys_Pic_Help;
    return keys;
}

void Keys_Pic_MouseDown(Control& keys, Mouse_Button button) {
    const bool column_filled = std::any_of(Seq_Notes.begin(), Seq_Notes.begin() + Seq_Rows,
                                           [](std::int16_t velocity) { return velocity != 0; });
    if (button == Mouse_Button::Left && MIDI_Enabled == 1) {
        keys.picture = Picture_Of(Picture_Store::Buttons, Keys_Down);
        if (MIDI_Out_Handle == Port_Closed) MIDI_Out_Open();
        if (column_filled) {
            Play_First_Column();
        } else {
            for (const std::int16_t note : C_Major) MIDI_SendNote(note, Chord_Velocity);
        }
    } else if (button == Mouse_Button::Right) {
        MIDI_All_Notes_Off();
    }
}

void Keys_Pic_MouseUp(Control& keys, Mouse_Button button) {
    if (button == Mouse_Button::Right) keys.picture = Picture_Of(Picture_Store::Buttons, Keys_Up);
}
