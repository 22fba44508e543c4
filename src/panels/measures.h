// What every panel measures alike, in pixels.
#pragma once

inline constexpr int Switch_Pitch = 10;   // from one position of a switch to the next
inline constexpr int Slider_Travel = 80;  // from value 0 to value 127
inline constexpr int Thumb_Size = 16;

// A thumb's upper edge, from where it stands at value 0: of a slider, and of a switch whose positions are
// bands of 32.
inline constexpr int Slider_Top(int bottom_row, int value) {
    return bottom_row - value * Slider_Travel / 127;
}
inline constexpr int Band_Top(int bottom_row, int value) {
    return bottom_row - value / 32 * Switch_Pitch;
}

inline constexpr double Thumb_Half = Thumb_Size / 2.0;
inline constexpr int Editor_Width = 528;  // of both editor windows
inline constexpr int Editor_Height = 456;
