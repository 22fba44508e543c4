// What a screen reader is told of the drawn controls, and how it moves them: by their own keys and by the
// pointer, so that a value that is entered so is stored, shown and sent like any other.
#pragma once

#include <cstdint>
#include <string>

#include "panels/editor_table.h"
#include "panels/panel.h"

// The scale of a type of control, and where on it a byte stands: sliders from 0 to 99 as in the display,
// tune knobs in semitones, fine tune knobs from -50 to 50, switches by position from 0 up.
Control_Scale Scale_Of(Control_Type type, std::uint8_t byte);

// The control's name. What no number and no lamp can tell is said behind it: "DCO-1 Range, 16'".
std::string Spoken_Name(const Panel& panel, const Control& control);

// Whether it is one of those that are on or off, and whether it is on.
bool Is_Lamp(const Control& control);
bool Is_Lit(const Panel& panel, const Control& control);

// The focus goes to the control; nothing if it is there or cannot.
void Give_Focus(const Panel& panel, Control& control);

// A press of the left button and its release, on the control.
void Press_Control(const Panel& panel, Control& control);

// One step up or down by its keys.
void Step_Control(const Panel& panel, Control& control, bool up);

// Moves it until it stands at the value, or as near as its rules let it. A value off the scale is brought
// onto it; a control without a scale stays.
void Enter_Value(const Panel& panel, Control& control, double value);
