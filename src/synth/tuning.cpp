#include "synth/tuning.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

// The lowest byte of each semitone's band, from -12 to 12.
constexpr std::array<std::uint8_t, 25> Tune_Band_Start = {
    0,  8,  12, 16, 20, 24, 32, 36,  40,  44,  48,  52,  // -12 to -1
    56,                                                  // 0
    72, 76, 80, 84, 88, 92, 96, 104, 108, 112, 116, 120,
};
constexpr int Lowest_Semitone = -12;

// A byte in this list reads the same as the byte before it; every other one reads one more.
constexpr std::array<int, 27> Fine_Repeats = {
    5,  9,  14, 19, 24, 28, 33, 38,  42,  46,  51,  56,  60,  64,
    68, 72, 77, 82, 86, 90, 95, 100, 104, 109, 114, 119, 123,
};
constexpr int Lowest_Fine = -50;

static_assert(127 - static_cast<int>(Fine_Repeats.size()) + Lowest_Fine == 50, "byte 127 reads 50");

constexpr bool In_Range(int byte) {
    return byte >= 0 && byte <= 127;
}

}  // namespace

int Panel_Tune_From_Byte(int byte) {
    if (!In_Range(byte)) return 0;
    const auto* above = std::upper_bound(Tune_Band_Start.begin(), Tune_Band_Start.end(), byte);
    return Lowest_Semitone + static_cast<int>(above - Tune_Band_Start.begin()) - 1;
}

std::uint8_t Panel_Tune_To_Byte(double semitones) {
    const double index = semitones - Lowest_Semitone;
    if (!(index >= 0 && index < Tune_Band_Start.size()) || index != std::floor(index)) return 0;
    return Tune_Band_Start[static_cast<std::size_t>(index)];
}

int Panel_Fine_From_Byte(int byte) {
    if (!In_Range(byte)) return 0;
    const auto* above = std::upper_bound(Fine_Repeats.begin(), Fine_Repeats.end(), byte);
    return Lowest_Fine + byte - static_cast<int>(above - Fine_Repeats.begin());
}
