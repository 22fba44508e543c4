// What the two editor windows have in common besides their instruments' controls: the display of the tone's
// name, the keyboard button, the sequencer's two buttons and the decorations. Each window has its own of
// these; they look and answer alike.
#pragma once

#include <vector>

#include "panels/panel.h"

struct Common_Controls {
    Control& tone_name;  // the name, and for two seconds after a change the value; never typed into
    Control& seq_start;  // "ED_Seq_Start" and its symbol
    Control& seq_start_pic;
    Control& seq_stop;
    Control& seq_stop_pic;
    Control& keys_pic;  // the keyboard button
    Control& pic_tonebench;
    Control& pic_sign;
};

// Pictures and sizes, and the symbols on their buttons.
void Common_Load_Pictures(const Common_Controls& common);

// Adds them to a window's controls, those that take the focus last in its order.
void Common_Append_To(std::vector<Control*>& controls, const Common_Controls& common);

// The handlers. Those that give a bool tell whether the control was one of these.
bool Common_Key_Pressed(const Common_Controls& common, Control& control);
bool Common_Button_Pressed(const Common_Controls& common, Control& control, Mouse_Button button);
void Common_Button_Released(const Common_Controls& common, Control& control, Mouse_Button button);
void Common_Clicked(const Common_Controls& common, Control& control);

// The start button's click, the same on both windows.
void ED_Seq_Start_Click();
// The stop button's, for those who stop the sequencer elsewhere.
void Common_Seq_Stop_Click(const Common_Controls& common);
void Common_Seq_Stop_MouseUp(const Common_Controls& common);

// Filled in by the name dialog: opens it.
extern Hook<void()> TName_Show;

// Filled in by the sequencer's window: its start button gets the raised look.
extern Hook<void()> Seq_Start_Raise;
