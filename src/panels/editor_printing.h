// The printing of the JX-8P panel, in the manner of the instrument's programmer.
#pragma once

#include <string>

#include "panels/editor_table.h"
#include "panels/printing.h"

Printing Editor_Printing();

// The name printed above a control, and at a switch's position, counted from the lowest; "" where there is
// none.
std::string Editor_Caption(const Editor_Row& row);
std::string Editor_Position_Name(const Editor_Row& row, int position);

// Where the middle of a thumb stands: of a slider at a value, of a switch at a position.
double Slider_Middle(const Editor_Row& row, int value);
double Switch_Middle(const Editor_Row& row, int position);
