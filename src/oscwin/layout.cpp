#include "oscwin/layout.h"

#include <cmath>
#include <numbers>

#include "oscwin/oscwin.h"

namespace {

constexpr double Heading_Size = 10;
constexpr double Caption_Size = 9;
constexpr double Text_Size = 10;

constexpr int Thumb_Size = 16;
constexpr int Rail_Width = 20;
constexpr int Rail_Top = 36;  // of the thumb at the greatest value
constexpr int Rail_Travel = 100;
constexpr int Caption_Base_Line = 31;
constexpr int Number_Top = 163;
constexpr int Number_Width = 24;
constexpr int Number_Height = 18;
constexpr int Glass_Margin = 3;

struct Group {
    const char* heading;
    double left, top, right, bottom;
};

constexpr std::array<Group, 5> Groups = {{
    {"CURVE", 1.5, 2.5, 139.5, 189.5},
    {"LEVEL", 142.5, 2.5, 196.5, 189.5},
    {"TIME", 199.5, 2.5, 226.5, 189.5},
    {"TARGET", 229.5, 2.5, 392.5, 49.5},
    {"SHAPE", 229.5, 52.5, 392.5, 189.5},
}};

// The presets as small drawings: corners in units of a box, x from 0 to 1, y from 0 (top) to 1.
using Drawing = std::vector<Print_Point>;
constexpr double Drawing_Width = 44;
constexpr double Drawing_Height = 10;
constexpr double Drawing_Gap = 5;  // between a lamp and its drawing
constexpr double Lamp_Size = 14;
constexpr double Drawing_Stroke = 1.2;

Drawing Arcs(bool rectified) {
    constexpr int Pieces = 36;
    Drawing drawing;
    for (int piece = 0; piece <= Pieces; ++piece) {
        const double x = 1.0 * piece / Pieces;
        const double wave = std::sin(2 * std::numbers::pi * x);
        drawing.push_back({x, rectified ? 1 - std::abs(wave) : (1 - wave) / 2});
    }
    return drawing;
}

std::array<Drawing, Osc_Preset_Count> Drawings() {
    // clang-format off
    return {{
        {{0, 1}, {0.5, 0}, {0.5, 1}, {1, 0}},
        {{0, 1}, {1, 0}, {1, 1}},
        {{0, 1}, {0.5, 1}, {0.5, 0}, {1, 0}},
        {{0, 1}, {0.5, 0}, {1, 1}},
        Arcs(false),
        Arcs(true),
        {{0, 0}, {0.08, 0}, {0.08, 1}, {1, 1}},
        {{0, 0}, {0.1, 0}, {0.1, 1}, {0.2, 1}, {0.2, 0}, {0.3, 0}, {0.3, 1}, {0.4, 1}, {0.4, 0}, {0.5, 0}, {0.5, 1},
         {0.6, 1}, {0.6, 0}, {0.7, 0}, {0.7, 1}, {0.8, 1}, {0.8, 0}, {0.9, 0}, {0.9, 1}, {1, 1}},
        {{0, 0.7}, {0.06, 0.4}, {0.13, 0.2}, {0.2, 0.25}, {0.27, 0.5}, {0.34, 0.85}, {0.42, 1}, {0.5, 0.8}, {0.56, 0.45},
         {0.63, 0.1}, {0.7, 0}, {0.77, 0.15}, {0.84, 0.45}, {0.91, 0.6}, {1, 0.5}},
        {{0, 0.4}, {0.12, 0.4}, {0.12, 0.9}, {0.24, 0.9}, {0.24, 0}, {0.36, 0}, {0.36, 0.7}, {0.48, 0.7}, {0.48, 0.3},
         {0.6, 0.3}, {0.6, 1}, {0.72, 1}, {0.72, 0.15}, {0.86, 0.15}, {0.86, 0.6}, {1, 0.6}},
    }};
    // clang-format on
}

void Print_Drawings(Printing& printing) {
    const auto drawings = Drawings();
    for (std::size_t preset = 0; preset < drawings.size(); ++preset) {
        const double left = Osc_Wave[preset].left + Lamp_Size + Drawing_Gap;
        const double top = Osc_Wave[preset].top + (Lamp_Size - Drawing_Height) / 2;
        Print_Line line = {{}, Drawing_Stroke, Ink::Print};
        for (const Print_Point& corner : drawings[preset])
            line.points.push_back({left + corner.x * Drawing_Width, top + corner.y * Drawing_Height});
        printing.lines.push_back(line);
    }
}

// Nine marks from end to end; the ends and the middle are long.
void Print_Rail(Printing& printing, const Osc_Rail& rail) {
    constexpr int Marks = 8;
    const double middle = rail.middle;
    const double top = Rail_Top + Thumb_Size / 2.0;
    printing.texts.push_back(
        {rail.caption, {middle, Caption_Base_Line}, Align::Centre, Caption_Size, Ink::Print});
    printing.lines.push_back({{{middle, top}, {middle, top + Rail_Travel}}, 3, Ink::Rail});
    for (int mark = 0; mark <= Marks; ++mark) {
        const double y = top + 1.0 * mark * Rail_Travel / Marks;
        const bool main = mark % (Marks / 2) == 0;
        for (const double side : {-1.0, 1.0}) {
            const double near = middle + side * (Thumb_Size / 2.0 + 1);
            printing.lines.push_back(
                {{{near, y}, {near + side * 2, y}}, main ? 2.0 : 1.0, main ? Ink::Print : Ink::Faint});
        }
    }
}

Osc_Place Grown(const Osc_Place& place, int by) {
    return {place.left - by, place.top - by, place.width + 2 * by, place.height + 2 * by};
}

}  // namespace

const std::array<Osc_Rail, Osc_Rail_Count> Osc_Rails = {{
    {"VScrollA", "Amplitude", "AMP", 156},
    {"VScrollDelta", "Offset", "OFFS", 183},
    {"Osc_Time", "Milliseconds a step", "MS", 213},
}};

Osc_Place Osc_Rail_Place(const Osc_Rail& rail) {
    return {rail.middle - Rail_Width / 2, Rail_Top, Rail_Width, Rail_Travel + Thumb_Size};
}

Osc_Place Osc_Number_Place(const Osc_Rail& rail) {
    return {rail.middle - Number_Width / 2, Number_Top, Number_Width, Number_Height};
}

std::vector<Osc_Place> Osc_Glasses() {
    std::vector<Osc_Place> glasses = {Grown(Osc_Picture1_Place, Glass_Margin), Osc_Label2_Place};
    for (const Osc_Rail& rail : Osc_Rails) glasses.push_back(Osc_Number_Place(rail));
    return glasses;
}

Printing Osc_Printing() {
    Printing printing;
    for (const Group& group : Groups) {
        printing.lines.push_back({{{group.left, group.top},
                                   {group.right, group.top},
                                   {group.right, group.bottom},
                                   {group.left, group.bottom}},
                                  1,
                                  Ink::Frame,
                                  true});
        printing.texts.push_back(
            {group.heading, {group.left + 3.5, group.top + 11.5}, Align::Left, Heading_Size, Ink::Heading});
    }
    for (const Osc_Rail& rail : Osc_Rails) Print_Rail(printing, rail);
    Print_Drawings(printing);
    printing.texts.push_back({"INVERT",
                              {Osc_Invert.left + Lamp_Size + Drawing_Gap, Osc_Invert.top + 10.5},
                              Align::Left,
                              Text_Size,
                              Ink::Print});
    printing.texts.push_back(
        {"VALUE", {Osc_Label2_Place.left - 4.0, 175.5}, Align::Right, Caption_Size, Ink::Print});
    return printing;
}
