// The density of the screen. Measured once at start by shell/display_check.
#pragma once

#include <cstdint>

extern std::int16_t Screen_PPI;  // logical pixels per inch in y; 0 before it is measured
extern float Font_Scale;         // Screen_PPI / 96

// The system holds window places in twips, 1440 to the inch: 15 a pixel at 96 ppi, 12 at 120.
double Twips_Per_Pixel();
