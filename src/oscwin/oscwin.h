// The window Oscillator: the curve, its scroll bars, ten presets with lamps, the list of targets, start and
// stop. It is no dialog: it locks nothing, and plays on while a dialog is open. It plays the curve of
// oscillator/ and knows no rule of it beyond what each control does.
//
// Written here: the records of its controls. All of it is lost when the window goes.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "desk/form.h"
#include "oscillator/curve.h"
#include "panels/controls.h"
#include "panels/panel.h"

inline constexpr int Osc_Window_Width = 394;
inline constexpr int Osc_Window_Height = 192;

// The drawn controls. A lamp takes a press on the little drawing beside it too.
extern std::array<Control, Osc_Preset_Count> Osc_Wave;
extern Control Osc_Invert;
extern Control Osc_Start;
extern Control Osc_Start_Pic;
extern Control Osc_Stop;
extern Control Osc_Stop_Pic;
extern const Panel Osc_Panel;

// The plain ones. The scroll bars and the value of the current point stand in oscillator/.
extern Drop_Down Osc_Combo1;
extern std::string Osc_Label1;  // the interval
extern std::string Osc_Label3;  // the offset
extern std::string Osc_Label4;  // the amplitude
extern double Osc_Font_Size;    // points; the same size in pixels on every screen

// What a press on the preset of this number does; a double click on the free drawing gives a flat curve.
void Osc_Wave_Click(int preset);
void Osc_Wave_DblClick(int preset);

void Osc_Invert_Click();

// No release of the mouse raises the start button; the stop button's release raises both.
void Osc_Start_Click();
void Osc_Stop_Click();
void Osc_Stop_MouseUp();

// The scroll bars, to a value in their range.
void Osc_Time_Change(int value);
void Osc_VScrollA_Change(int value);
void Osc_VScrollDelta_Change(int value);

// Chooses a target by its place in the list; any other number changes nothing.
void Osc_Combo1_Click(int index);

// Marks the curve as drawn by hand.
void Osc_Picture1_MouseUp();

// Fills pictures and list and places the controls.
void Osc_Window_Init();

// Brings the window to the front and shows it.
void Osc_Show();

// Fills the hooks that the window stands behind.
void Osc_Install();
