// What is printed round a knob and beside a lamp, the same on every panel.
#pragma once

#include <string>

#include "panels/printing.h"

// The middle of the face of a knob's body, from the body's upper left corner.
inline constexpr double Knob_Face_X = 14;
inline constexpr double Knob_Face_Y = 12;

// Marks round the face from -end to end units; the ends and the middle are longer.
void Print_Knob_Marks(Printing& printing, Print_Point middle, int end, int step, double degrees_a_unit);

// What the two ends mean, below them.
void Print_Knob_Ends(Printing& printing, Print_Point middle, const std::string& low,
                     const std::string& high);

// Behind a lamp whose upper left corner stands there.
inline constexpr int Lamp_Size = 14;
void Print_Lamp_Name(Printing& printing, const char* name, int left, int top);
