// The practice page of the help window: one control of each kind that the panels have, moved by the panels'
// own procedures. It works on values of its own, drives no synthesizer and knows no tone.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "panels/controls.h"
#include "panels/measures.h"
#include "panels/panel.h"

// One value a demonstration control, kept while the help window is closed.
enum Demo : std::size_t {
    Demo_Pos_Sw,  // 0 to 127
    Demo_Tune,    // 0 to 127, by the scale of the panels' tune knobs
    Demo_Slider,  // 0 to 127
    Demo_Switch,  // 0 or 64
    Demo_LED_SW,  // 0 to 3
};
extern std::array<std::uint8_t, 9> Help_Demo_Values;

extern Control Help_Pos_Sw;      // "Pos_Sw": switch of four positions
extern Control Help_Tune;        // "Tune": the knob's body
extern Control Help_Tune_Knopf;  // "Tune_Knopf": the dot on it
extern Control Help_Slider;      // "Slider"
extern Control Help_Switch;      // "Switch": switch of two positions
extern std::array<Control, 4> Help_LED_SW;
extern Control Help_HName;     // "HName", the display
extern std::string Help_Info;  // the text beside: what the selected control answers to

// The ground that the controls lie on, "Pic_Howto_Bk", as a panel of its own, and its window.
extern Window Pic_Howto_Bk;
extern const Panel Howto_Panel;

inline constexpr const char* Howto_First_Text =
    "Select a control element on the left and read the corresponding description here. With the keyboard, "
    "use "
    "TAB/SHIFT+TAB to jump to the next/previous control.";

// Where things stand on the ground, in pixels. A bottom row is where the thumb stands at value 0.
inline constexpr int Howto_Width = 330;
inline constexpr int Howto_Height = 254;
inline constexpr int Pos_Sw_Left = 36;
inline constexpr int Pos_Sw_Bottom_Row = 117;
inline constexpr int Tune_Left = 89;
inline constexpr int Tune_Top = 95;
inline constexpr int Slider_Left = 166;
inline constexpr int Slider_Bottom_Row = 142;
inline constexpr int Switch_Left = 216;
inline constexpr int Switch_Row_Off = 97;  // what is on stands below
inline constexpr int LED_Left = 286;
inline constexpr int LED_Top = 61;
inline constexpr int LED_Pitch = 26;

// The common end of every change: keeps the value, shows it in HName and lets Timer_Display run from now.
void Help_Show_Demo_Value(std::size_t demo, std::uint8_t value);

// What stands for a value in HName.
std::string Help_Demo_Text(std::size_t demo, std::uint8_t value);

// Pictures, and the places that the values have; the display and the text as at a first sight.
void Howto_Load();

// Pos_Sw gets the mark, and the text beside tells how to begin.
void Howto_Begin();

// The display is free again; Timer_Display has run down.
void Howto_Show_Waiting();

// Fills in the ground's knob.
void Howto_Install();
