// The Patch window: the JX-8P's performance settings that do not belong to a tone, in a small window of 296
// by 196 pixels over the main one. It may come and go freely; its record lives on while it is closed.
//
// Written here: the records of the controls, and through them Patch_Data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "panels/controls.h"
#include "panels/panel.h"
#include "panels/patch_table.h"

// The controls of the table, in its order, the knob's dot, and the lamps.
extern std::array<Control, Patch_Table.size()> Patch_Controls;
extern Control Patch_UDTune_Knopf;
extern std::array<Control, Key_Mode_Lamps.size()> Patch_Key_Mode_Items;
extern std::array<Control, After_Touch_Lamps.size()> Patch_After_Touch_Items;

// The lit item of each group. The record's byte stays apart from it: a byte that stands for no lamp is
// shown as item 0 and kept.
extern std::uint8_t Patch_Key_Mode_Sel;
extern std::uint8_t Patch_After_Touch_Sel;

extern const Panel Patch_Panel;
extern const Panel_Events Patch_Events;

// The row of the table that a control belongs to: its own, or that of the knob whose dot it is. Null for a
// lamp.
const Patch_Row* Patch_Row_Of(const Control& control);

// What stands for a value in Editor's display. False for a parameter that shows nothing.
bool Patch_Value_Text(std::size_t number, std::uint8_t value, std::string& text);

// Stores, shows in Editor's display (sliders 0 to 99, detune -50 to 50, the others nothing), sends, and
// marks the tone as changed.
void Patch_Set_Value(std::size_t number, std::uint8_t value);

// The steps of the sliders and of the bend range. Place works on the control that has the focus.
void Patch_Slider_Key(std::size_t number, int key);
void Patch_Slider_Drag(std::size_t number, double row);
void Patch_Slider_Place(std::size_t number);
void Patch_Switch_Drag(double row);
void Patch_Switch_Place();

// A step of a switch by key or press. It goes by the thumb's row and not by the value, and sends even when
// nothing moved. Any direction turns the portamento switch over.
enum class Direction { Up = 1, Down = 2 };
void Patch_Toggle(Control& control, Direction direction, int top_row, int bottom_row, std::size_t number);

// Selects an item and lights it alone; the record keeps its byte.
void Patch_Key_Mode_Light(std::size_t item);
void Patch_After_Touch_Light(std::size_t item);

// The user picks a lamp.
void Patch_Key_Mode_Click(std::size_t item);
void Patch_After_Touch_Click(std::size_t item);

// The user wants the window gone: Escape or the close box.
void Patch_Close_Asked();

// The two selected lamps go back to the first.
void Patch_Lamps_To_First();

// Fills the hooks that Patch stands behind, and the window's load and unload procedures.
void Patch_Install();
