// The keyboard button of the editor windows, 43 by 22 pixels: one press plays a chord that sounds until the
// user stops it, to hear the tone without a keyboard at hand. Where on it the pointer is means nothing.
#pragma once

#include "panels/panel.h"

inline constexpr const char* Keys_Pic_Help =
    "Click with the left button to play some notes. If the Sequencer matrix is filled, then the notes of "
    "the "
    "first column in the Sequencer matrix will be played. Click with the right mouse button to stop the "
    "notes "
    "playing.";

// The control of a window, with its help.
Control Keys_Pic_Control(Window& window);

// Left: keys down, and the first column of the sequence (all 13 rows, the empty ones with velocity 0) or,
// where that is empty, the C major chord from middle C. Right: all notes off.
void Keys_Pic_MouseDown(Control& keys, Mouse_Button button);

// Right: keys up. The left button's release does nothing, the notes go on.
void Keys_Pic_MouseUp(Control& keys, Mouse_Button button);
