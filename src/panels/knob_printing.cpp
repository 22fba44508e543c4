#include "panels/knob_printing.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "panels/control_printing.h"

namespace {

// At this many degrees from straight up, clockwise.
Print_Point Round_Knob(Print_Point middle, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {middle.x + radius * std::sin(angle), middle.y - radius * std::cos(angle)};
}

}  // namespace

void Print_Knob_Marks(Printing& printing, Print_Point middle, int end, int step, double degrees_a_unit) {
    for (int unit = -end; unit <= end; unit += step) {
        const bool long_one = unit == 0 || unit == -end || unit == end;
        const double degrees = unit * degrees_a_unit;
        printing.lines.push_back(
            {{Round_Knob(middle, 13.5, degrees), Round_Knob(middle, long_one ? 17.5 : 16, degrees)},
             1,
             long_one ? Ink::Print : Ink::Faint});
    }
}

void Print_Knob_Ends(Printing& printing, Print_Point middle, const std::string& low,
                     const std::string& high) {
    constexpr double Out = 16;
    constexpr double Down = 20;
    for (const auto& [text, x] : {std::pair{low, middle.x - Out}, {high, middle.x + Out}}) {
        printing.texts.push_back({text, {x, middle.y + Down}, Align::Centre, Scale_Size, Ink::Print});
    }
}

void Print_Lamp_Name(Printing& printing, const char* name, int left, int top) {
    constexpr double Gap = 3;
    printing.texts.push_back({name,
                              {left + Lamp_Size + Gap, top + Lamp_Size / 2.0 + Digit_Half_Height},
                              Align::Left,
                              Position_Size,
                              Ink::Print});
}
