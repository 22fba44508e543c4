#include "oscillator/curve.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"
#include "platform/random.h"

namespace {

constexpr std::int16_t High = 96;  // the presets' bottom and top
constexpr std::int16_t Low = 32;
constexpr std::int16_t Flat = 64;

constexpr double Unit_Amplitude = 64;
constexpr int Start_Amplitude = 64;
constexpr int Start_Offset = 0;
constexpr int Large_Step = 16;

// The running value of the presets. It stays behind a preset that uses it: the random preset begins with
// what the one before has left.
double Wave_Y = 0;

void Two_Teeth() {
    Wave_Y = High;
    for (std::int16_t& point : Osc_Points) {
        if (Wave_Y < 38) Wave_Y = High;
        point = To_Int16(Wave_Y);
        Wave_Y -= 7;
    }
}

void One_Tooth() {
    Wave_Y = High;
    for (std::int16_t& point : Osc_Points) {
        point = To_Int16(Wave_Y);
        Wave_Y -= 4;
    }
}

void Square() {
    std::fill_n(Osc_Points.begin(), 9, High);
    std::fill_n(Osc_Points.begin() + 9, 9, Low);
}

// The lowest row is reached once, behind the turn.
void Triangle() {
    Wave_Y = High;
    for (std::size_t i = 0; i < Osc_Count; ++i) {
        Osc_Points[i] = To_Int16(Wave_Y);
        Wave_Y += i < 9 ? -7 : 7;
    }
}

// A turn and a bit: 127 / 45 points to the radian.
double Sine_At(std::size_t i) {
    return std::sin(static_cast<double>(i) * 45 / 127);
}

void Sine() {
    Wave_Y = Osc_Middle_Row;
    for (std::size_t i = 0; i < Osc_Count; ++i) Osc_Points[i] = To_Int16(Wave_Y - 32 * Sine_At(i));
}

void Rectified_Sine() {
    Wave_Y = Osc_Middle_Row;
    for (std::size_t i = 0; i < Osc_Count; ++i)
        Osc_Points[i] = To_Int16(Wave_Y - 32 * std::abs(Sine_At(i)));
}

void Single_Drop() {
    Osc_Points.fill(High);
    Osc_Points.front() = Low;
}

void Alternation() {
    for (std::size_t i = 0; i < Osc_Count; ++i) Osc_Points[i] = i % 2 == 0 ? Low : High;
}

void Free_Drawing() {}

void Random_Points() {
    for (std::int16_t& point : Osc_Points) {
        point = To_Int16(Wave_Y);
        Wave_Y = Osc_Bottom_Row - Random_Next() * Osc_Bottom_Row;
    }
}

constexpr std::array<void (*)(), Osc_Preset_Count> Presets = {
    Two_Teeth,      One_Tooth,   Square,      Triangle,     Sine,
    Rectified_Sine, Single_Drop, Alternation, Free_Drawing, Random_Points,
};

}  // namespace

Osc_Curve Osc_Points = {};
Osc_Curve Osc_Out = {};
Scroll_Bar Osc_VScrollA = {
    .minimum = 0, .maximum = 127, .large_step = Large_Step, .value = Start_Amplitude};
Scroll_Bar Osc_VScrollDelta = {
    .minimum = -64, .maximum = 64, .large_step = Large_Step, .value = Start_Offset};
bool Osc_Inverted = false;

void Osc_Curve_Reset() {
    Osc_Points = {};
    Osc_Out = {};
    Osc_Inverted = false;
    Wave_Y = 0;
    Osc_VScrollA.value = Start_Amplitude;
    Osc_VScrollDelta.value = Start_Offset;
}

void Osc_Preset(int preset) {
    if (preset < 0 || preset >= Osc_Preset_Count) throw Fatal_Error("Subscript out of range");
    Presets[static_cast<std::size_t>(preset)]();
}

void Osc_Flatten() {
    Osc_Points.fill(Flat);
}

void Osc_Invert_Points() {
    for (std::int16_t& point : Osc_Points) point = To_Int16(Osc_Bottom_Row - point);
}

void Osc_Scale() {
    const double amplitude = Osc_VScrollA.value;
    const double offset = Osc_VScrollDelta.value;
    for (std::size_t i = 0; i < Osc_Count; ++i) {
        const double row = amplitude / Unit_Amplitude * Osc_Points[i] + Osc_Middle_Row - amplitude - offset;
        // The fraction is cut off before the limits are looked at, not rounded.
        Osc_Out[i] = static_cast<std::int16_t>(std::clamp<double>(std::trunc(row), 0, Osc_Bottom_Row));
    }
}

void Osc_Work_Back() {
    if (Osc_VScrollA.value == 0) throw Fatal_Error("Division by zero");
    const double amplitude = Osc_VScrollA.value;
    const double offset = Osc_VScrollDelta.value;
    for (std::size_t i = 0; i < Osc_Count; ++i) {
        Osc_Points[i] =
            To_Int16((Osc_Out[i] + offset + amplitude - Osc_Middle_Row) / amplitude * Unit_Amplitude);
    }
}
