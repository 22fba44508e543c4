// What is printed at the drawn controls, the same on every panel: rails, scales, names of positions. Places
// are those of thumbs, in pixels of the window; a row is a thumb's upper edge.
#pragma once

#include <string>
#include <vector>

#include "panels/measures.h"
#include "panels/printing.h"

// Sizes of the letters.
inline constexpr double Heading_Size = 10;
inline constexpr double Caption_Size = 9;
inline constexpr double Position_Size = 9;
inline constexpr double Scale_Size = 8;

inline constexpr double Digit_Half_Height = 3;  // from the middle of a figure to its base line

struct Switch_Position {
    const char* name;
    Symbol symbol = Symbol::None;  // drawn in place of the name, with `mark` beside it
    const char* mark = "";
    double symbol_width = Symbol_Width;
};

// Where a thumb runs.
struct Thumb_Reach {
    int left;
    int top_row;
    int bottom_row;
};

// Whether the marks of a scale have room to the right of a thumb, before the next one.
bool Marks_Fit_Right(const Thumb_Reach& thumb, const std::vector<Thumb_Reach>& all);

struct Slider_Place {
    int left;
    int top_row;
    bool marks_right = true;     // on both sides of the rail, or on the left alone
    bool figures_right = false;  // of the scale; else on the left
};

std::vector<Print_Point> Box(double left, double top, double right, double bottom);

// A group of controls: a heading and an outline.
struct Panel_Group {
    const char* heading;
    Print_Point heading_at;  // left end of the base line
    std::vector<Print_Point> outline;
};
void Print_Group(Printing& printing, const Panel_Group& group);

// The name above a thumb's highest row; "" prints nothing.
void Print_Caption(Printing& printing, const char* caption, double middle, int top_row);
// The same above a switch's thumb and the names beside it.
void Print_Switch_Caption(Printing& printing, const char* caption, int left, int top_row,
                          bool labels_right);

// The slot that a thumb runs in.
void Print_Rail(Printing& printing, const Thumb_Reach& thumb);

// A slider whole: name, rail, marks at 0 to 10 with figures at 0, 5 and 10.
void Print_Slider(Printing& printing, const char* caption, const Slider_Place& place);

// One position's name or symbol beside the thumb; `middle` is the thumb's middle there.
void Print_Position(Printing& printing, const Switch_Position& position, int left, double middle,
                    bool labels_right);
