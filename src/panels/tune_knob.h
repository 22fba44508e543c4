// A tune knob as every panel has it, on the byte of its value: -12 to 12 semitones round the dial. Both
// procedures turn the focused dot, leave the semitones in Panel_Scratch_Real and give the new byte, the
// lowest of the semitone's band; storing and showing it is the panel's.
#pragma once

#include <cstdint>

// A key; one without a meaning gives the byte of the same semitone.
std::uint8_t Tune_Knob_Key(std::uint8_t byte, int key);

// A drag event with the pointer at this row (or column) of the control: four pixels a semitone.
std::uint8_t Tune_Knob_Drag(std::uint8_t byte, double pointer);
