// The Alpha Juno's panel: 36 drawn controls, the name's display, the keyboard button, the sequencer's two
// buttons and the envelope's picture, in a window of the same size as the JX-8P's, whose place it takes. It
// is made of the same family of controls, but a switch holds a small number, its position, and not a byte
// with bands.
//
// Written here: the records of the controls, and through them Juno_Data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "panels/common_controls.h"
#include "panels/controls.h"
#include "panels/juno_table.h"
#include "panels/panel.h"

// The controls of the table, in its order.
extern std::array<Control, Juno_Table.size()> Juno_Controls;

// Four of the JX-8P's controls stand in this window too, at their places, without a picture or a handler.
extern std::array<Control, 4> Juno_Unused_Controls;

// The rest of the window.
extern Control Juno_Tone_Name;  // "Tone_Name"
extern Control Juno_Seq_Start;  // "ED_Seq_Start" and its symbol
extern Control Juno_Seq_Start_Pic;
extern Control Juno_Seq_Stop;
extern Control Juno_Seq_Stop_Pic;
extern Control Juno_Keys_Pic;
extern Control Juno_Pic_Tonebench;
extern Control Juno_Pic_Sign;
extern const Common_Controls Juno_Common;

// The window as its toolkit side sees it.
extern const Panel Juno_Panel;
extern const Panel_Events Juno_Events;

// The row of the table that a control belongs to; null for the rest of the window.
const Juno_Row* Juno_Row_Of(const Control& control);
// The row of a parameter; one without a control is a programming mistake (Fatal_Error).
const Juno_Row& Juno_Row_Of_Parameter(std::size_t parameter);

// Stores the byte, shows it as it is, draws the envelope if it is one of its, sends it and marks the tone
// as changed.
void Juno_Set_Value(std::size_t parameter, std::uint8_t value);

// The steps of sliders and switches. Place works on the control that has the focus, as the JX-8P's does;
// the parameter is named by the caller, as not every control's keys edit its own.
void Juno_Slider_Key(const Juno_Row& row, std::size_t parameter, int key);
void Juno_Slider_Drag(const Juno_Row& row, std::size_t parameter, double pointer_row);
void Juno_Slider_Place(const Juno_Row& row, std::size_t parameter);
void Juno_Switch_Key(const Juno_Row& row, std::size_t parameter, int key);
void Juno_Switch_Drag(const Juno_Row& row, std::size_t parameter, double pointer_row);
void Juno_Switch_Place(const Juno_Row& row, std::size_t parameter);

// The thumb's top in a refresh from the record.
int Juno_Switch_Top(std::size_t parameter);
int Juno_Slider_Top(std::size_t parameter);

// Window events.
void Juno_Load();
void Juno_Load_Pictures();
void Juno_Activated();
void Juno_Deactivated();

// The face of its display, and what Timer_Display's tick does: the name comes back and the envelope goes.
void Juno_Set_Font(const char* face);
void Juno_Display_Tick();

// Fills the hooks of views.h that Editor_Juno stands behind, and makes its sequencer buttons one with
// Editor's.
void Juno_Panel_Install();
