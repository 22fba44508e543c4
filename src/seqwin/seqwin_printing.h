// The printing of the sequencer's window: headings, captions, step numbers and the directions' symbols.
#pragma once

#include "panels/printing.h"
#include "sequencer/engine.h"

Printing Seq_Printing();

// One of the direction switches: 0 to 5 in their order.
inline constexpr int Seq_Directions_Left = 150;
inline constexpr int Seq_Directions_Top = 21;
inline constexpr int Seq_Direction_Width = 140;
inline constexpr int Seq_Direction_Height = 28;

const char* Seq_Direction_Name(Seq_Mode mode);
// Its symbol and name, in the switch's own pixels; the lamp stands left of them.
Printing Seq_Direction_Printing(Seq_Mode mode);
