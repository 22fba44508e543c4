#include "oscillator/stairs.h"

#include <algorithm>

#include "platform/numbers.h"

namespace {

// Where an upright piece waits that is not needed: outside the picture.
constexpr int Aside_Left = 130;
constexpr int Aside_Right = 137;

struct Place {
    int x;
    int y;
};

// Where the pointer was at the last event of this press.
Place Last_Place = {};

// A point takes 7 columns; point 2 takes three more, from those of point 3. The last point takes all that
// is left. No point lies to the left of the picture.
constexpr int Last_Band_Left = 119;

bool Point_At(int x, std::size_t& point) {
    if (x < 0) return false;
    if (x >= 14 && x <= 23) {
        point = 2;
    } else {
        point = static_cast<std::size_t>(std::min(x, Last_Band_Left) / Osc_Point_Width);
    }
    return true;
}

void Set_Aside(Osc_Line& line) {
    line = {Aside_Left, Osc_Middle_Row, Aside_Right, Osc_Middle_Row};
}

void Draw_Row(Place place) {
    const int row = std::clamp<int>(place.y, 0, Osc_Bottom_Row);
    Osc_Label2 = std::to_string(Osc_Bottom_Row - row);
    std::size_t point = 0;
    if (Point_At(place.x, point)) Osc_Line1[point].y1 = Osc_Line1[point].y2 = row;
}

// Every column of the picture between the two places, in the order in which the pointer crossed them.
void Draw_Path(Place from, Place to) {
    constexpr int Leftmost = 0;
    constexpr int Rightmost = Last_Band_Left;
    const int step = to.x < from.x ? -1 : 1;
    const int first = std::clamp(from.x, Leftmost, Rightmost);
    const int end = std::clamp(to.x, Leftmost, Rightmost);
    if (to.x != from.x) {
        const double slope = (1.0 * to.y - from.y) / (1.0 * to.x - from.x);
        for (int x = first; x != end; x += step) {
            Draw_Row({x, static_cast<int>(Round_Half_Even(from.y + slope * (1.0 * x - from.x)))});
        }
    }
    Draw_Row(to);
}

}  // namespace

std::array<Osc_Line, 2 * Osc_Count> Osc_Line1 = {};
std::array<Osc_Line, Osc_Count - 1> Osc_VLine = {};
int Osc_HLine = Osc_Middle_Row;
int Osc_TimeLine = 0;
std::string Osc_Label2;

void Osc_Lay_Out() {
    for (std::size_t i = 0; i < Osc_Count; ++i) {
        const int left = Osc_Point_Width * static_cast<int>(i);
        Osc_Line1[i] = {left, Osc_Middle_Row, left + Osc_Point_Width, Osc_Middle_Row};
        if (i > 0) Osc_VLine[i - 1] = {left, 0, left, Osc_Bottom_Row};
        Set_Aside(Osc_Line1[Osc_Count + i]);
    }
    Osc_HLine = Osc_Middle_Row;
    Osc_TimeLine = 0;
    Osc_Label2.clear();
}

void Osc_Redraw() {
    Osc_Scale();
    for (std::size_t i = 0; i < Osc_Count; ++i) Osc_Line1[i].y1 = Osc_Line1[i].y2 = Osc_Out[i];
    Osc_Draw_Stairs();
}

void Osc_Draw_Stairs() {
    for (std::size_t i = 1; i < Osc_Count; ++i) {
        Osc_Line& level = Osc_Line1[i];
        Osc_Line& upright = Osc_Line1[Osc_Count + i];
        level.y2 = level.y1;
        const int before = Osc_Line1[i - 1].y2;
        if (before == level.y1) {
            Set_Aside(upright);
        } else {
            upright = {level.x1, before, level.x1, level.y1};
        }
    }
}

void Osc_Picture1_MouseDown(unsigned /*buttons*/, int x, int y) {
    Last_Place = {x, y};
}

void Osc_Picture1_MouseMove(unsigned buttons, int x, int y) {
    const Place from = Last_Place;
    Last_Place = {x, y};
    if (buttons == 0 || Osc_VScrollA.value == 0) return;
    if (buttons == Osc_Left_Button) Draw_Path(from, Last_Place);
    for (std::size_t i = 0; i < Osc_Count; ++i) Osc_Out[i] = To_Int16(Osc_Line1[i].y1);
    Osc_Work_Back();
    Osc_Draw_Stairs();
}
