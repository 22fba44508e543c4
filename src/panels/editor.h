// The JX-8P's programmer on the screen: 44 drawn controls, the tone's name, the keyboard button and the
// sequencer's two buttons, in a window of 528 by 456 pixels. How a control moves is told here and in
// steps.h; which one edits what stands in editor_table.h.
//
// Written here: the records of the controls, and through them Tone_Data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "panels/common_controls.h"
#include "panels/controls.h"
#include "panels/editor_table.h"
#include "panels/panel.h"

// The controls of the table, in its order. A knob's body stands here, its dot below.
extern std::array<Control, Editor_Table.size()> Editor_Controls;
extern Control DCO1_Tune_Knopf;
extern Control DCO2_Tune_Knopf;
extern Control DCO2_FTune_Knopf;

// The rest of the window.
extern Control Editor_Tone_Name;  // "Tone_Name": the name, and for two seconds after a change the value
extern Control Editor_Seq_Start;  // "ED_Seq_Start" and its symbol
extern Control Editor_Seq_Start_Pic;
extern Control Editor_Seq_Stop;
extern Control Editor_Seq_Stop_Pic;
extern Control Editor_Keys_Pic;  // the keyboard button
extern Control Editor_Pic_Tonebench;
extern Control Editor_Pic_Sign;
extern const Common_Controls Editor_Common;

// The window as its toolkit side sees it: every control in the order of the focus, and the handlers.
extern const Panel Editor_Panel;

// The row of the table that a control belongs to: its own, or that of the knob whose dot it is. Null for
// the rest of the window.
const Editor_Row* Editor_Row_Of(const Control& control);

// The dot on a knob's body; null for any other control.
Control* Editor_Dot_Of(const Control& body);

// Where the window's events go.
extern const Panel_Events Editor_Events;

// A control of the table by its name; any other name is a programming mistake (Fatal_Error).
Control& Editor_Control(const std::string& name);

// Shows the value, sends it and marks the tone as changed; the one path of every slider and knob.
void Editor_Set_Value(std::size_t parameter, std::uint8_t value);

// The steps of sliders and switches. Place works on the control that has the focus, not on one named by the
// caller: a press on a thumb gives it the focus first.
void Editor_Slider_Key(int top_row, int bottom_row, std::size_t parameter, int key);
void Editor_Slider_Drag(int top_row, int bottom_row, std::size_t parameter, double row);
void Editor_Slider_Place(int top_row, int bottom_row, std::size_t parameter);
void Editor_Switch_Key(int top_row, int bottom_row, std::size_t parameter, int key);
void Editor_Switch_Drag(int top_row, int bottom_row, std::size_t parameter, double row);
void Editor_Switch_Place(int top_row, int bottom_row, std::size_t parameter);

// What stands for a value in the Tone_Name field: sliders 0 to 99 as on the instrument, tunes in semitones,
// fine tune -50 to 50. False for a parameter that shows nothing.
bool Editor_Value_Text(std::size_t parameter, std::uint8_t value, std::string& text);

// The thumb's top in a refresh from the record.
int Panel_Switch_Top_Upper(std::size_t parameter);
int Panel_Switch_Top_Lower(std::size_t parameter);
int Panel_Slider_Top(std::size_t parameter);

// Window events.
void Editor_Load();
void Editor_Load_Pictures();
void Editor_Activated();
void Editor_Deactivated();

// Its stop button, click and release; the sequencer's own window runs these too.
void ED_Seq_Stop_Click();
void ED_Seq_Stop_MouseUp();

// Fills the hooks that Editor stands behind.
void Editor_Install();
