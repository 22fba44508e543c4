#include "panels/editor_printing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>

#include "platform/numbers.h"

namespace {

constexpr double Heading_Size = 10;
constexpr double Caption_Size = 9;
constexpr double Position_Size = 9;
constexpr double Scale_Size = 8;

constexpr double Thumb_Half = Thumb_Size / 2.0;
constexpr double Label_Gap = 2;    // between a thumb and what is printed beside it
constexpr double Caption_Gap = 4;  // between a caption's base line and the highest thumb
constexpr double Mark_Gap = 1;     // between a thumb and the marks of its scale
constexpr double Long_Mark = 3;
constexpr double Short_Mark = 2;
constexpr double Digit_Half_Height = 3;  // from the middle of a figure to its base line

// -- groups: a heading and an outline
// -----------------------------------------------------------------------

struct Group_Row {
    const char* heading;
    Print_Point heading_at;  // left end of the base line
    std::vector<Print_Point> outline;
};

std::vector<Print_Point> Box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

// clang-format off
const std::array<Group_Row, 10> Groups = {{
    {"DCO-1",  {6, 14},    Box(0.5, 2.5, 101.5, 249.5)},
    {"DCO-2",  {110, 14},  {{104.5, 2.5}, {230.5, 2.5}, {230.5, 143.5}, {180.5, 143.5}, {180.5, 249.5}, {104.5, 249.5}}},
    {"MIXER",  {239, 14},  {{233.5, 2.5}, {336.5, 2.5}, {336.5, 329.5}, {233.5, 329.5}, {233.5, 252.5}, {292.5, 252.5}, {292.5, 143.5}, {233.5, 143.5}}},
    {"VCF",    {345, 14},  Box(339.5, 2.5, 464.5, 329.5)},
    {"VCA",    {473, 14},  Box(467.5, 2.5, 527.5, 329.5)},
    {"DCO",    {6, 263},   Box(0.5, 252.5, 101.5, 329.5)},
    {"LFO",    {6, 342.5},   Box(0.5, 332.5, 117.5, 454.5)},
    {"ENV-1",  {126, 342.5}, Box(120.5, 332.5, 298.5, 454.5)},
    {"ENV-2",  {306, 342.5}, Box(300.5, 332.5, 479.5, 454.5)},
    {"CHORUS", {486, 342.5}, Box(482.5, 332.5, 527.5, 454.5)},
}};

// -- captions and positions ---------------------------------------------------------------------------------

struct Position {
    const char* name;
    Symbol symbol = Symbol::None;  // drawn in place of the name, with `mark` beside it
    const char* mark = "";
};
using Positions_List = std::array<Position, 4>;

const Positions_List Ranges     = {{{"16'"}, {"8'"}, {"4'"}, {"2'"}}};
const Positions_List Waves      = {{{"Noise", Symbol::Noise}, {"Square", Symbol::Square}, {"Pulse", Symbol::Pulse}, {"Sawtooth", Symbol::Sawtooth}}};
const Positions_List Crossmod   = {{{"OFF"}, {"SYN1"}, {"SYN2"}, {"XMOD"}}};
const Positions_List Off_To_3   = {{{"OFF"}, {"1"}, {"2"}, {"3"}}};
const Positions_List Hpf        = {{{"0"}, {"1"}, {"2"}, {"3"}}};
const Positions_List Env_Modes  = {{{"ENV-2 inverted", Symbol::Envelope_Inverted, "2"}, {"ENV-2", Symbol::Envelope, "2"},
                                    {"ENV-1 inverted", Symbol::Envelope_Inverted, "1"}, {"ENV-1", Symbol::Envelope, "1"}}};
const Positions_List Vca_Modes  = {{{"GATE"}, {"ENV2"}, {""}, {""}}};
const Positions_List Lfo_Waves  = {{{"Random", Symbol::Random}, {"Square", Symbol::Square}, {"Triangle", Symbol::Triangle}, {""}}};
const Positions_List Chorus     = {{{"OFF"}, {"1"}, {"2"}, {""}}};
const Positions_List None       = {{{""}, {""}, {""}, {""}}};

struct Caption_Row {
    int parameter;
    const char* caption;
    const Positions_List* positions;  // from the lowest up
};

const std::array<Caption_Row, 44> Captions = {{
//   param.  caption     positions
    {11,     "RANGE",    &Ranges},
    {12,     "WAVE",     &Waves},
    {13,     "TUNE",     &None},
    {14,     "LFO",      &None},
    {15,     "ENV",      &None},
    {16,     "RANGE",    &Ranges},
    {17,     "WAVE",     &Waves},
    {18,     "X-MOD",    &Crossmod},
    {19,     "TUNE",     &None},
    {20,     "FINE",     &None},
    {21,     "LFO",      &None},
    {22,     "ENV",      &None},
    {26,     "DYN",      &Off_To_3},
    {27,     "MODE",     &Env_Modes},
    {28,     "DCO-1",    &None},
    {29,     "DCO-2",    &None},
    {30,     "ENV",      &None},
    {31,     "DYN",      &Off_To_3},
    {32,     "MODE",     &Env_Modes},
    {33,     "HPF",      &Hpf},
    {34,     "FREQ",     &None},
    {35,     "RES",      &None},
    {36,     "LFO",      &None},
    {37,     "ENV",      &None},
    {38,     "KEY",      &None},
    {39,     "DYN",      &Off_To_3},
    {40,     "MODE",     &Env_Modes},
    {41,     "LEVEL",    &None},
    {58,     "MODE",     &Vca_Modes},
    {42,     "DYN",      &Off_To_3},
    {44,     "WAVE",     &Lfo_Waves},
    {45,     "DELAY",    &None},
    {46,     "RATE",     &None},
    {47,     "A",        &None},
    {48,     "D",        &None},
    {49,     "S",        &None},
    {50,     "R",        &None},
    {51,     "KEY",      &Off_To_3},
    {52,     "A",        &None},
    {53,     "D",        &None},
    {54,     "S",        &None},
    {55,     "R",        &None},
    {56,     "KEY",      &Off_To_3},
    {43,     "MODE",     &Chorus},
}};
// clang-format on

const Caption_Row& Caption_Of(const Editor_Row& row) {
    for (const Caption_Row& caption : Captions) {
        if (caption.parameter == row.parameter) return caption;
    }
    throw Fatal_Error(std::string("No caption for ") + row.control);
}

// Whether the table has another control within this many pixels to the right of a thumb, at its height.
bool Neighbour_Within(const Editor_Row& row, int pixels) {
    return std::any_of(Editor_Table.begin(), Editor_Table.end(), [&](const Editor_Row& other) {
        const int gap = other.left - (row.left + Thumb_Size);
        return gap >= 0 && gap < pixels && other.top_row <= row.bottom_row &&
               other.bottom_row >= row.top_row;
    });
}

double Middle_X(const Editor_Row& row) {
    return row.left + Thumb_Half;
}

bool Labels_On_Right(const Editor_Row& row) {
    return std::string_view(row.kind) == "br";
}

// -- what is printed at each type of control
// ----------------------------------------------------------------

void Print_Caption(Printing& printing, const Editor_Row& row, double middle) {
    printing.texts.push_back({Caption_Of(row).caption,
                              {middle, row.top_row - Caption_Gap},
                              Align::Centre,
                              Caption_Size,
                              Ink::Print});
}

void Print_Rail(Printing& printing, const Editor_Row& row) {
    const double x = Middle_X(row);
    printing.lines.push_back(
        {{{x, row.top_row + Thumb_Half}, {x, row.bottom_row + Thumb_Half}}, 3, Ink::Rail});
}

void Print_Figure(Printing& printing, const Editor_Row& row, int unit, double y) {
    // The logo stands to the left of this one.
    const bool right = std::string_view(row.control) == "Mixer_ENV";
    const double x =
        right ? row.left + Thumb_Size + Mark_Gap + Long_Mark + 1 : row.left - Mark_Gap - Long_Mark - 1;
    printing.texts.push_back({std::to_string(unit),
                              {x, y + Digit_Half_Height},
                              right ? Align::Left : Align::Right,
                              Scale_Size,
                              Ink::Print});
}

// Marks at 0 to 10 with figures at 0, 5 and 10: on both sides of the rail, or on the left alone where the
// next thumb is near.
void Print_Slider(Printing& printing, const Editor_Row& row) {
    constexpr int Units = 10;
    constexpr int Room_For_Marks = 20;
    const bool both_sides = !Neighbour_Within(row, Room_For_Marks);
    Print_Caption(printing, row, Middle_X(row));
    Print_Rail(printing, row);
    for (int unit = 0; unit <= Units; ++unit) {
        const int rise = unit * Slider_Travel / Units;  // 8 pixels a unit
        const double y = row.bottom_row + Thumb_Half - rise;
        const bool numbered = unit % 5 == 0;
        const double length = numbered ? Long_Mark : Short_Mark;
        const double width = numbered ? 2 : 1;
        const Ink ink = numbered ? Ink::Print : Ink::Faint;
        const double left = row.left - Mark_Gap;
        const double right = row.left + Thumb_Size + Mark_Gap;
        printing.lines.push_back({{{left - length, y}, {left, y}}, width, ink});
        if (both_sides) printing.lines.push_back({{{right, y}, {right + length, y}}, width, ink});
        if (numbered) Print_Figure(printing, row, unit, y);
    }
}

void Print_Position(Printing& printing, const Editor_Row& row, const Position& position, double y) {
    const bool right = Labels_On_Right(row);
    const double edge = right ? row.left + Thumb_Size + Label_Gap : row.left - Label_Gap;
    if (position.symbol == Symbol::None) {
        const bool long_name = std::string_view(position.name).size() > 3;
        printing.texts.push_back({position.name,
                                  {edge, y + Digit_Half_Height},
                                  right ? Align::Left : Align::Right,
                                  long_name ? Scale_Size : Position_Size,
                                  Ink::Print});
        return;
    }
    const double middle = right ? edge + Symbol_Width / 2 : edge - Symbol_Width / 2;
    Print_Symbol(printing, position.symbol, {middle, y});
    if (*position.mark != '\0') {
        printing.texts.push_back({position.mark,
                                  {middle - Symbol_Width / 2 - 1, y + Digit_Half_Height},
                                  Align::Right,
                                  Scale_Size,
                                  Ink::Print});
    }
}

void Print_Switch(Printing& printing, const Editor_Row& row) {
    // Above the thumb and the names beside it.
    constexpr double Half_A_Name = 7;
    Print_Caption(printing, row, Middle_X(row) + (Labels_On_Right(row) ? Half_A_Name : -Half_A_Name));
    Print_Rail(printing, row);
    for (int position = 0; position < Positions(row.type); ++position) {
        const auto index = static_cast<std::size_t>(position);
        Print_Position(printing, row, (*Caption_Of(row).positions)[index], Switch_Middle(row, position));
    }
}

// The knob's face is round (14, 12) of its body; the dot's angle is degrees a unit from straight up.
Print_Point Round_Knob(const Editor_Row& row, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {row.left + 14 + radius * std::sin(angle), row.top_row + 12 - radius * std::cos(angle)};
}

// One mark a semitone, or one every ten units of fine tune; the ends and the middle are numbered.
void Print_Knob(Printing& printing, const Editor_Row& row) {
    const bool fine = row.type == Control_Type::Fine_Knob;
    const int end = fine ? 50 : 12;
    const int step = fine ? 10 : 1;
    const double degrees = fine ? Degrees_A_Fine_Unit : Degrees_A_Semitone;
    for (int unit = -end; unit <= end; unit += step) {
        const bool numbered = unit == 0 || unit == -end || unit == end;
        printing.lines.push_back(
            {{Round_Knob(row, 13.5, unit * degrees), Round_Knob(row, numbered ? 17.5 : 16, unit * degrees)},
             1,
             numbered ? Ink::Print : Ink::Faint});
    }
    printing.texts.push_back({Caption_Of(row).caption,
                              {row.left + 14.0, row.top_row - 11.0},
                              Align::Centre,
                              Caption_Size,
                              Ink::Print});
    const double base_line = row.top_row + 32;
    printing.texts.push_back(
        {"-" + std::to_string(end), {row.left + 1.0, base_line}, Align::Right, Scale_Size, Ink::Print});
    printing.texts.push_back(
        {"+" + std::to_string(end), {row.left + 28.0, base_line}, Align::Left, Scale_Size, Ink::Print});
}

void Print_Group(Printing& printing, const Group_Row& group) {
    printing.lines.push_back({group.outline, 1, Ink::Frame, true});
    printing.texts.push_back({group.heading, group.heading_at, Align::Left, Heading_Size, Ink::Heading});
}

}  // namespace

double Slider_Middle(const Editor_Row& row, int value) {
    const int rise = value * Slider_Travel / 127;  // cut, as the thumb is placed
    return row.bottom_row - rise + Thumb_Half;
}

double Switch_Middle(const Editor_Row& row, int position) {
    return row.bottom_row - position * Switch_Pitch + Thumb_Half;
}

std::string Editor_Caption(const Editor_Row& row) {
    return Caption_Of(row).caption;
}

std::string Editor_Position_Name(const Editor_Row& row, int position) {
    if (!Is_Switch(row.type) || position < 0 || position >= Positions(row.type)) return "";
    return (*Caption_Of(row).positions)[static_cast<std::size_t>(position)].name;
}

Printing Editor_Printing() {
    Printing printing;
    for (const Group_Row& group : Groups) Print_Group(printing, group);
    for (const Editor_Row& row : Editor_Table) {
        if (row.type == Control_Type::Slider) {
            Print_Slider(printing, row);
        } else if (Is_Knob(row.type)) {
            Print_Knob(printing, row);
        } else {
            Print_Switch(printing, row);
        }
    }
    printing.texts.push_back({"TONE NAME", {165.5, 286}, Align::Centre, Caption_Size, Ink::Print});
    return printing;
}
