// The shape that the oscillator plays: 18 points, and what amplitude and offset make of them.
//
// Screen sense throughout: a value is a row, 0 the top of the picture and 127 its bottom. What is sent for
// a point is 127 less its row.
//
// Written here only. All of it belongs to the window Oscillator, which fills it anew at each load.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "desk/form.h"

inline constexpr std::size_t Osc_Count = 18;
inline constexpr std::int16_t Osc_Bottom_Row = 127;
inline constexpr int Osc_Middle_Row = 63;  // where a flat curve lies without an offset

using Osc_Curve = std::array<std::int16_t, Osc_Count>;

// The shape. As a rule 0 to 127, but nothing limits what the inverting leaves here.
extern Osc_Curve Osc_Points;
// The shape behind amplitude and offset, 0 to 127: the rows at which the points stand.
extern Osc_Curve Osc_Out;

extern Scroll_Bar Osc_VScrollA;      // amplitude; 64 leaves the shape as it is
extern Scroll_Bar Osc_VScrollDelta;  // offset; positive values lift the curve

// The mark of the invert switch.
extern bool Osc_Inverted;

inline constexpr int Osc_Preset_Count = 10;
inline constexpr int Osc_Free_Drawing = 8;  // the preset that leaves the shape as it is

// A new start: no shape, not inverted, amplitude and offset at their start values.
void Osc_Curve_Reset();

// Fills the shape from a preset, 0 to 9; any other number is a programming mistake (Fatal_Error). The
// inverting and the scaling are the caller's.
void Osc_Preset(int preset);

// All points at 64, which no amplitude moves.
void Osc_Flatten();

// Turns every point to 127 less itself. Twice gives the exact shape back, whatever its values.
void Osc_Invert_Points();

// Osc_Out from Osc_Points.
void Osc_Scale();

// Osc_Points from Osc_Out. The amplitude must not be 0 (Fatal_Error). What the scaling has cut is gone for
// good.
void Osc_Work_Back();
