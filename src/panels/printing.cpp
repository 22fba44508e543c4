#include "panels/printing.h"

#include <array>

namespace {

constexpr double Stroke = 1.1;

// Each symbol as corners in units of its box: x from -1 to 1, y from -1 (top) to 1.
struct Symbol_Row {
    Symbol symbol;
    std::vector<Print_Point> corners;
};

// clang-format off
const std::array<Symbol_Row, 18> Symbols = {{
    {Symbol::Noise,    {{-1, 0.2}, {-0.75, -0.9}, {-0.55, 0.9}, {-0.3, -0.5}, {-0.1, 0.6}, {0.1, -1}, {0.35, 1}, {0.55, -0.6}, {0.8, 0.5}, {1, -0.2}}},
    {Symbol::Square,   {{-1, 1}, {-1, -1}, {0, -1}, {0, 1}, {1, 1}, {1, -1}}},
    {Symbol::Pulse,    {{-1, 1}, {-0.6, 1}, {-0.6, -1}, {-0.1, -1}, {-0.1, 1}, {1, 1}, {1, -1}}},
    {Symbol::Sawtooth, {{-1, 1}, {0, -1}, {0, 1}, {1, -1}, {1, 1}}},
    {Symbol::Triangle, {{-1, 1}, {-0.4, -1}, {0.4, 1}, {1, -1}}},
    {Symbol::Random,   {{-1, 0.2}, {-0.6, 0.2}, {-0.6, -1}, {-0.1, -1}, {-0.1, 1}, {0.35, 1}, {0.35, -0.4}, {0.75, -0.4}, {0.75, 0.5}, {1, 0.5}}},
    {Symbol::Envelope,          {{-1, 1}, {-0.45, -1}, {0, -0.1}, {0.45, -0.1}, {1, 1}}},
    {Symbol::Envelope_Inverted, {{-1, -1}, {-0.45, 1}, {0, 0.1}, {0.45, 0.1}, {1, -1}}},
    {Symbol::Gate,            {{-1, 1}, {-0.6, 1}, {-0.6, -1}, {0.6, -1}, {0.6, 1}, {1, 1}}},
    {Symbol::Pulse_Modulated, {{-1, 1}, {-1, -1}, {-0.75, -1}, {-0.75, 1}, {-0.25, 1}, {-0.25, -1}, {0.45, -1}, {0.45, 1}, {1, 1}}},
    {Symbol::Saw_Half,        {{-1, 1}, {-0.5, 1}, {-0.5, 0}, {0, -1}, {0, 1}, {0.5, 1}, {0.5, 0}, {1, -1}, {1, 1}}},
    {Symbol::Saw_Modulated,   {{-1, 1}, {-0.25, 1}, {-0.25, -0.5}, {0, -1}, {0, 1}, {0.25, 1}, {0.25, 0.5}, {1, -1}, {1, 1}}},
    {Symbol::Saw_Twice,       {{-1, 1}, {-0.5, 1}, {-0.5, 0.5}, {0, 0}, {0, 1}, {0.5, 1}, {0.5, -0.5}, {1, -1}, {1, 1}}},
    {Symbol::Saw_Thrice,      {{-1, 1}, {-0.67, 1}, {-0.67, 0.67}, {-0.33, 0.33}, {-0.33, 1}, {0, 1}, {0, 0}, {0.33, -0.33}, {0.33, 1}, {0.67, 1}, {0.67, -0.67}, {1, -1}, {1, 1}}},
    {Symbol::Sub_Square,      {{-1, 1}, {-1, -1}, {-0.5, -1}, {-0.5, 1}, {0, 1}, {0, -1}, {0.5, -1}, {0.5, 1}, {1, 1}}},
    {Symbol::Sub_Pulse,       {{-1, 1}, {-1, -1}, {-0.75, -1}, {-0.75, 1}, {0, 1}, {0, -1}, {0.25, -1}, {0.25, 1}, {1, 1}}},
    {Symbol::Sub_Twice,       {{-1, 1}, {-1, -1}, {-0.75, -1}, {-0.75, 1}, {-0.5, 1}, {-0.5, -1}, {-0.25, -1}, {-0.25, 1}, {1, 1}}},
    {Symbol::Sub_Thrice,      {{-1, 1}, {-1, -1}, {-0.8, -1}, {-0.8, 1}, {-0.55, 1}, {-0.55, -1}, {-0.35, -1}, {-0.35, 1}, {-0.1, 1}, {-0.1, -1}, {0.1, -1}, {0.1, 1}, {1, 1}}},
}};
// clang-format on

}  // namespace

void Print_Symbol(Printing& printing, Symbol symbol, Print_Point middle, double width) {
    for (const Symbol_Row& row : Symbols) {
        if (row.symbol != symbol) continue;
        Print_Line line = {{}, Stroke, Ink::Print};
        for (const Print_Point& corner : row.corners) {
            line.points.push_back(
                {middle.x + corner.x * width / 2, middle.y + corner.y * Symbol_Height / 2});
        }
        printing.lines.push_back(line);
    }
}
