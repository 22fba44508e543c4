// The printing of a panel as drawing instructions: what stands where, without a toolkit. It is laid out
// from the tables that place the thumbs, so a rail and its thumb cannot part.
#pragma once

#include <string>
#include <vector>

enum class Ink {
    Ground,   // the panel
    Frame,    // rules round the groups
    Heading,  // names of the groups
    Print,    // names and scales
    Faint,    // the lesser marks of a scale
    Rail,     // the slot in which a thumb runs
};

enum class Align { Left, Centre, Right };

struct Print_Point {
    double x;  // pixels from the window's left edge
    double y;
};

struct Print_Text {
    std::string text;
    Print_Point at;  // on the base line, at the left end, the middle or the right end
    Align align;
    double size;  // pixels of the em square
    Ink ink;
};

// A line through its points; one that is closed is an outline.
struct Print_Line {
    std::vector<Print_Point> points;
    double width;
    Ink ink;
    bool closed = false;
};

struct Printing {
    std::vector<Print_Line> lines;
    std::vector<Print_Text> texts;
};

// Symbols at the positions of switches, drawn into a box of this size round their middle.
inline constexpr double Symbol_Width = 12;
inline constexpr double Symbol_Height = 6;
enum class Symbol {
    None,
    Noise,
    Square,
    Pulse,
    Sawtooth,
    Triangle,
    Random,
    Envelope,
    Envelope_Inverted,
    Gate,
    Pulse_Modulated,  // a pulse whose width changes
    Saw_Half,         // sawtooth cut off for half of its cycle
    Saw_Modulated,    // for a part that changes
    Saw_Twice,        // twice in a cycle
    Saw_Thrice,
    Sub_Square,  // an octave below: two cycles; Square and Pulse are the waves of two octaves below
    Sub_Pulse,
    Sub_Twice,  // its upper half cut off twice
    Sub_Thrice,
};
void Print_Symbol(Printing& printing, Symbol symbol, Print_Point middle, double width = Symbol_Width);
