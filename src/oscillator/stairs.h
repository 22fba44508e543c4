// The curve as lines in the picture Picture1, 128 rows high and 7 columns a point, and the drawing in it
// with the pointer. A redraw moves lines and nothing else: 36 of them.
//
//   0..17   the level piece of each point
//   18..35  the upright piece that joins a point with the one before it; set aside where there is none
//
// What is drawn is a staircase, because that is what goes out: each value holds until the next step.
#pragma once

#include <array>
#include <string>

#include "oscillator/curve.h"

inline constexpr int Osc_Point_Width = 7;

struct Osc_Line {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;

    bool operator==(const Osc_Line&) const = default;
};

extern std::array<Osc_Line, 2 * Osc_Count> Osc_Line1;
extern std::array<Osc_Line, Osc_Count - 1> Osc_VLine;  // the upright lines of the grid
extern int Osc_HLine;                                  // row of the zero line
extern int Osc_TimeLine;                               // column of the play cursor
extern std::string Osc_Label2;                         // the value of the current point

// The grid, a level curve, no current point.
void Osc_Lay_Out();

// Scales the curve and brings the lines to it.
void Osc_Redraw();

// Brings the upright pieces to the level ones.
void Osc_Draw_Stairs();

// The pointer's buttons, as held at an event.
enum Osc_Button : unsigned { Osc_Left_Button = 1, Osc_Right_Button = 2, Osc_Middle_Button = 4 };

// The pointer over the picture, in pixels of the picture; it may lie outside. Moving with the left button
// alone draws: the point at the pointer, and every point that it has crossed since the last event, however
// far apart the two are. The point of the press counts as crossed when the pointer moves on. Nothing is
// drawn while the amplitude is 0. What is drawn is not sent at once; it goes out at the next steps.
void Osc_Picture1_MouseDown(unsigned buttons, int x, int y);
void Osc_Picture1_MouseMove(unsigned buttons, int x, int y);
