#include "seqwin/seqwin_printing.h"

#include <array>

#include "seqwin/seqwin.h"

namespace {

constexpr double Heading_Size = 10;
constexpr double Caption_Size = 9;
constexpr double Digit_Size = 8;
constexpr double Stroke = 1.3;
constexpr int Steps_In_Beat = 4;

void Print_Box(Printing& printing, double left, double right) {
    constexpr double Top = 0.5;
    constexpr double Bottom = Seq_Window_Height - 1.5;
    printing.lines.push_back(
        {{{left, Top}, {right, Top}, {right, Bottom}, {left, Bottom}}, 1, Ink::Frame, true});
}

void Print_Step_Numbers(Printing& printing) {
    constexpr double Base_Line = Seq_Matrix_Top + Seq_Matrix_Height + 9;
    constexpr double Beat_Line = Base_Line + 5.5;
    for (int step = 0; step < Seq_Steps; ++step) {
        const double middle = Seq_Matrix_Left + step * Seq_Pitch + 5.5;
        const bool on_beat = step % Steps_In_Beat == 0;
        printing.texts.push_back({std::to_string(step + 1),
                                  {middle, Base_Line},
                                  Align::Centre,
                                  Digit_Size,
                                  on_beat ? Ink::Print : Ink::Faint});
        if (!on_beat) continue;
        const double left = Seq_Matrix_Left + step * Seq_Pitch;
        const double right = left + Steps_In_Beat * Seq_Pitch - 1;
        printing.lines.push_back({{{left + 0.5, Beat_Line - 3},
                                   {left + 0.5, Beat_Line},
                                   {right - 0.5, Beat_Line},
                                   {right - 0.5, Beat_Line - 3}},
                                  1,
                                  Ink::Faint});
    }
    printing.texts.push_back(
        {"STEP", {Seq_Matrix_Left - 4, Base_Line}, Align::Right, Digit_Size, Ink::Faint});
}

// -- directions -----------------------------------------------------------------------------------------

// The symbols' corners in pixels of a box of 24 by 12.
struct Direction_Row {
    Seq_Mode mode;
    const char* name;
    std::vector<std::vector<Print_Point>> strokes;
};

// clang-format off
const std::array<Direction_Row, 6> Directions = {{
    {Seq_Mode::Forward,         "FORWARD",          {{{0, 6}, {23, 6}}, {{18, 1.5}, {23, 6}, {18, 10.5}}}},
    {Seq_Mode::Backward,        "BACKWARD",         {{{1, 6}, {24, 6}}, {{6, 1.5}, {1, 6}, {6, 10.5}}}},
    {Seq_Mode::Back_And_Forth,  "BACK AND FORTH",   {{{1, 3}, {23, 3}}, {{19, 0}, {23, 3}, {19, 6}},
                                                     {{1, 9}, {23, 9}}, {{5, 6}, {1, 9}, {5, 12}}}},
    {Seq_Mode::Random_Position, "RANDOM POSITION",  {{{0, 9}, {5, 9}, {5, 1}, {10, 1}, {10, 11}, {15, 11}, {15, 4}, {20, 4}, {20, 7}, {24, 7}}}},
    {Seq_Mode::Random_During,   "R1  IN A CYCLE",   {{{1, 6}, {6, 6}, {8, 2}, {11, 10}, {14, 2}, {16, 6}, {23, 6}},
                                                     {{5, 2}, {1, 6}, {5, 10}}, {{19, 2}, {23, 6}, {19, 10}}}},
    {Seq_Mode::Random_After,    "R2  AFTER A CYCLE", {{{0, 6}, {12, 6}, {17, 2}, {23, 2}}, {{12, 6}, {17, 10}, {23, 10}},
                                                     {{20, -0.5}, {23, 2}, {20, 4.5}}, {{20, 7.5}, {23, 10}, {20, 12.5}}}},
}};
// clang-format on

const Direction_Row& Row_Of(Seq_Mode mode) {
    for (const Direction_Row& row : Directions) {
        if (row.mode == mode) return row;
    }
    throw Fatal_Error("No direction");
}

}  // namespace

Printing Seq_Printing() {
    Printing printing;
    Print_Box(printing, 0.5, 143.5);
    Print_Box(printing, 146.5, 294.5);
    Print_Box(printing, 297.5, Seq_Window_Width - 1.5);
    Print_Step_Numbers(printing);
    const auto heading = [&printing](const char* text, double x, double y) {
        printing.texts.push_back({text, {x, y}, Align::Left, Heading_Size, Ink::Heading});
    };
    heading("DIRECTION", 152, 14);
    heading("RANGE", 304, 14);
    heading("TRANSPOSE", 304, 57);
    heading("TEMPO", 304, 100);
    const auto caption = [&printing](const char* text, int left) {
        printing.texts.push_back(
            {text, {left + 11.0, Seq_Buttons_Top + 34.0}, Align::Centre, Caption_Size, Ink::Print});
    };
    caption("START", Seq_Start_Left);
    caption("STOP", Seq_Stop_Left);
    return printing;
}

const char* Seq_Direction_Name(Seq_Mode mode) {
    return Row_Of(mode).name;
}

Printing Seq_Direction_Printing(Seq_Mode mode) {
    constexpr Print_Point Symbol_At = {22, (Seq_Direction_Height - 12) / 2.0};
    constexpr Print_Point Name_At = {54, Seq_Direction_Height / 2.0 + 3.5};
    Printing printing;
    for (const std::vector<Print_Point>& stroke : Row_Of(mode).strokes) {
        Print_Line line = {{}, Stroke, Ink::Print};
        for (const Print_Point& corner : stroke)
            line.points.push_back({Symbol_At.x + corner.x, Symbol_At.y + corner.y});
        printing.lines.push_back(line);
    }
    printing.texts.push_back({Row_Of(mode).name, Name_At, Align::Left, Caption_Size, Ink::Print});
    return printing;
}
