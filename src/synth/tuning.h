// The two tuning scales of the instrument: which byte reads as how many semitones or fine units.
#pragma once

#include <cstdint>

// -12 to 12 semitones. The bands at -12, -7, 0, 7 and 12 are wider than the others, as the instrument has
// it. Anything outside 0 to 127 reads 0.
int Panel_Tune_From_Byte(int byte);

// The lowest byte of a semitone's band; any other number than -12 to 12 gives 0.
std::uint8_t Panel_Tune_To_Byte(double semitones);

// -50 to 50; 63 and 64 both read 0. Anything outside 0 to 127 reads 0.
int Panel_Fine_From_Byte(int byte);
