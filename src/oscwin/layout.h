// Where the plain controls of the window Oscillator stand, and what is printed round them. One table places
// a scroll bar, its printing and its number, so they cannot part.
#pragma once

#include <array>
#include <vector>

#include "panels/printing.h"

struct Osc_Place {
    int left;
    int top;
    int width;
    int height;
};

inline constexpr Osc_Place Osc_Picture1_Place = {8, 24, 127, 128};
inline constexpr Osc_Place Osc_Combo1_Place = {234, 21, 153, 22};
inline constexpr Osc_Place Osc_Label2_Place = {92, 163, 42, 18};

// A scroll bar with its number: the middle column of both.
struct Osc_Rail {
    const char* name;
    const char* spoken_name;
    const char* caption;
    int middle;
};

enum Osc_Rail_Index : std::size_t { Osc_Rail_Amplitude, Osc_Rail_Offset, Osc_Rail_Time, Osc_Rail_Count };
extern const std::array<Osc_Rail, Osc_Rail_Count> Osc_Rails;

Osc_Place Osc_Rail_Place(const Osc_Rail& rail);
Osc_Place Osc_Number_Place(const Osc_Rail& rail);

// Dark glass behind the curve and the numbers.
std::vector<Osc_Place> Osc_Glasses();

Printing Osc_Printing();
