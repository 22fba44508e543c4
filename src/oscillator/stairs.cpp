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

// Where the pointer was at the last event of this press, and whether that event drew.
Place Last_Place = {};
bool Last_Place_Drawn = false;

// A point takes 7 columns; point 2 takes three more, from those of point 3. The last point takes all that
// is left. No point lies to the left of the picture: -1.
int Point_At(int x) {
    constexpr int Last_Point = static_cast<int>(Osc_Count) - 1;
    if (x < 0) return -1;
    if (x >= 14 && x <= 23) return 2;
    return std::min(x / Osc_Point_Width, Last_Point);
}

int Middle_Of(int point) {
    return point * Osc_Point_Width + Osc_Point_Width / 2;
}

void Set_Aside(Osc_Line& line) {
    line = {Aside_Left, Osc_Middle_Row, Aside_Right, Osc_Middle_Row};
}

void Set_Row(int point, int y) {
    if (point < 0) return;
    Osc_Line& level = Osc_Line1[static_cast<std::size_t>(point)];
    level.y1 = level.y2 = std::clamp<int>(y, 0, Osc_Bottom_Row);
}

// The points between two places, which a quick pointer has crossed without an event of their own: each gets
// the row at which its middle was crossed.
void Draw_Way(Place from, Place to) {
    const int first = Point_At(from.x);
    const int last = Point_At(to.x);
    if (first == last) return;
    const int step = last < first ? -1 : 1;
    const double slope = (1.0 * to.y - from.y) / (1.0 * to.x - from.x);
    for (int point = first + step; point != last; point += step)
        Set_Row(point, static_cast<int>(Round_Half_Even(from.y + slope * (Middle_Of(point) - from.x))));
}

void Draw(Place from, bool from_drawn, Place to) {
    if (!from_drawn) Set_Row(Point_At(from.x), from.y);
    Draw_Way(from, to);
    Set_Row(Point_At(to.x), to.y);
    Osc_Label2 = std::to_string(Osc_Bottom_Row - std::clamp<int>(to.y, 0, Osc_Bottom_Row));
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
    Last_Place_Drawn = false;
}

void Osc_Picture1_MouseMove(unsigned buttons, int x, int y) {
    const Place from = Last_Place;
    const bool from_drawn = Last_Place_Drawn;
    Last_Place = {x, y};
    Last_Place_Drawn = false;
    if (buttons == 0 || Osc_VScrollA.value == 0) return;
    if (buttons == Osc_Left_Button) {
        Draw(from, from_drawn, Last_Place);
        Last_Place_Drawn = true;
    }
    for (std::size_t i = 0; i < Osc_Count; ++i) Osc_Out[i] = To_Int16(Osc_Line1[i].y1);
    Osc_Work_Back();
    Osc_Draw_Stairs();
}
