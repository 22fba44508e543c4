// The envelope of the Alpha Juno as a small graph that comes up over its panel while one of its sliders is
// worked, and goes with the next tick of Timer_Display. Levels L1 to L3 are drawn a pixel a unit, times T1
// to T4 half a pixel a unit, with a fixed plateau before the key is let go.
//
//        L1
//        /\      L3______
//       /  \    /        \         5 lines: T1, T2, T3, the plateau, T4
//      /    \  /          \        .
//     /    L2\/            \       .
#pragma once

#include <array>

#include "panels/panel.h"

extern Control PictureEnv;
extern std::array<Line_Shape, 5> LineEnv;
extern const Panel_Graph Juno_Envelope;

// Draws the lines from Juno_Data and makes the picture visible.
void Juno_Draw_Envelope();
