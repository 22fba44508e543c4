#include "panels/control_printing.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr double Label_Gap = 2;    // between a thumb and what is printed beside it
constexpr double Caption_Gap = 4;  // between a caption's base line and the highest thumb
constexpr double Mark_Gap = 1;     // between a thumb and the marks of its scale
constexpr double Long_Mark = 3;
constexpr double Short_Mark = 2;
constexpr double Mark_To_Symbol = 2.5;  // from a symbol to the figure beside it

void Print_Figure(Printing& printing, const Slider_Place& place, int unit, double y) {
    const double x = place.figures_right ? place.left + Thumb_Size + Mark_Gap + Long_Mark + 1
                                         : place.left - Mark_Gap - Long_Mark - 1;
    printing.texts.push_back({std::to_string(unit),
                              {x, y + Digit_Half_Height},
                              place.figures_right ? Align::Left : Align::Right,
                              Scale_Size,
                              Ink::Print});
}

}  // namespace

bool Marks_Fit_Right(const Thumb_Reach& thumb, const std::vector<Thumb_Reach>& all) {
    constexpr int Room_For_Marks = 20;
    return std::none_of(all.begin(), all.end(), [&thumb](const Thumb_Reach& other) {
        const int gap = other.left - (thumb.left + Thumb_Size);
        return gap >= 0 && gap < Room_For_Marks && other.top_row <= thumb.bottom_row &&
               other.bottom_row >= thumb.top_row;
    });
}

std::vector<Print_Point> Box(double left, double top, double right, double bottom) {
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

void Print_Group(Printing& printing, const Panel_Group& group) {
    printing.lines.push_back({group.outline, 1, Ink::Frame, true});
    printing.texts.push_back({group.heading, group.heading_at, Align::Left, Heading_Size, Ink::Heading});
}

void Print_Caption(Printing& printing, const char* caption, double middle, int top_row) {
    if (*caption == '\0') return;
    printing.texts.push_back(
        {caption, {middle, top_row - Caption_Gap}, Align::Centre, Caption_Size, Ink::Print});
}

void Print_Switch_Caption(Printing& printing, const char* caption, int left, int top_row,
                          bool labels_right) {
    constexpr double Half_A_Name = 7;
    Print_Caption(printing, caption, left + Thumb_Half + (labels_right ? Half_A_Name : -Half_A_Name),
                  top_row);
}

void Print_Rail(Printing& printing, const Thumb_Reach& thumb) {
    const double x = thumb.left + Thumb_Half;
    printing.lines.push_back(
        {{{x, thumb.top_row + Thumb_Half}, {x, thumb.bottom_row + Thumb_Half}}, 3, Ink::Rail});
}

void Print_Slider(Printing& printing, const char* caption, const Slider_Place& place) {
    constexpr int Units = 10;
    const int bottom_row = place.top_row + Slider_Travel;
    Print_Caption(printing, caption, place.left + Thumb_Half, place.top_row);
    Print_Rail(printing, {place.left, place.top_row, bottom_row});
    for (int unit = 0; unit <= Units; ++unit) {
        const int rise = unit * Slider_Travel / Units;  // 8 pixels a unit
        const double y = bottom_row + Thumb_Half - rise;
        const bool numbered = unit % 5 == 0;
        const double length = numbered ? Long_Mark : Short_Mark;
        const double width = numbered ? 2 : 1;
        const Ink ink = numbered ? Ink::Print : Ink::Faint;
        const double left = place.left - Mark_Gap;
        const double right = place.left + Thumb_Size + Mark_Gap;
        printing.lines.push_back({{{left - length, y}, {left, y}}, width, ink});
        if (place.marks_right) printing.lines.push_back({{{right, y}, {right + length, y}}, width, ink});
        if (numbered) Print_Figure(printing, place, unit, y);
    }
}

void Print_Position(Printing& printing, const Switch_Position& position, int left, double middle,
                    bool labels_right) {
    const double edge = labels_right ? left + Thumb_Size + Label_Gap : left - Label_Gap;
    if (position.symbol == Symbol::None) {
        const bool long_name = std::string_view(position.name).size() > 3;
        printing.texts.push_back({position.name,
                                  {edge, middle + Digit_Half_Height},
                                  labels_right ? Align::Left : Align::Right,
                                  long_name ? Scale_Size : Position_Size,
                                  Ink::Print});
        return;
    }
    const double half = position.symbol_width / 2;
    const double x = labels_right ? edge + half : edge - half;
    Print_Symbol(printing, position.symbol, {x, middle}, position.symbol_width);
    if (*position.mark != '\0') {
        printing.texts.push_back({position.mark,
                                  {x - half - Mark_To_Symbol, middle + Digit_Half_Height},
                                  Align::Right,
                                  Scale_Size,
                                  Ink::Print});
    }
}
