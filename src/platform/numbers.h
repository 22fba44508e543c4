// The arithmetic that binds the whole program: the two kinds of flag, the one rounding, the one
// checked narrowing.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

// A 16-bit flag is -1 or 0, an 8-bit one 255 or 0. Settings-like bytes (MIDI_Enabled, MIDI_Autosend)
// are no flags: they are 1 or 0 and plain std::uint8_t.
enum class Flag_16 : std::int16_t { False = 0, True = -1 };
enum class Flag_8 : std::uint8_t { False = 0, True = 255 };

constexpr bool Is_True(Flag_16 flag) {
    return flag != Flag_16::False;
}
constexpr bool Is_True(Flag_8 flag) {
    return flag != Flag_8::False;
}

// A programming mistake: it ends the operation that made it, never the program. The event loop
// catches it and shows its text.
class Fatal_Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// To the nearest whole number, exact halves to the even neighbour: 0.5 gives 0, 1.5 gives 2.
// Relies on the floating-point rounding mode that every process starts with.
inline double Round_Half_Even(double value) {
    return std::nearbyint(value);
}

// A real number into an integer type: rounded as above. Throws Fatal_Error where it does not fit.
template <class Integer>
Integer Narrow(double value) {
    const double rounded = Round_Half_Even(value);
    // Written so that a value that is no number fails as well.
    if (!(rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw Fatal_Error("Overflow");
    }
    return static_cast<Integer>(rounded);
}

inline std::int16_t To_Int16(double value) {
    return Narrow<std::int16_t>(value);
}
