// The printing of the Alpha Juno panel. The instrument itself has hardly a control; the groups are those of
// its tone, and the envelope's stages stand below their sliders as a drawing.
#pragma once

#include <string>

#include "panels/juno_table.h"
#include "panels/printing.h"

Printing Juno_Printing();

// The name printed above a control, and of a switch's position; "" where there is none.
std::string Juno_Caption(const Juno_Row& row);
std::string Juno_Position_Name(const Juno_Row& row, int position);

// Where the middle of a thumb stands at a value.
double Juno_Middle(const Juno_Row& row, int value);
