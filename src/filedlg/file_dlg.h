// The file window itself: how it opens, in which mode, and how it closes. A caller shows it and is done;
// the window carries the load or the save out on its own (file_ok.h).
#pragma once

#include <string>

#include "desk/form.h"

// Sets FD_Mode and shows the window. One that stands open already takes the new mode on.
// Nothing while the window closes.
void FD_Show(const std::string& mode);

// Title, filter, panel and extension of FD_Mode; before a save the tone is copied away.
void FD_Setup();

// "Sysex (*.SYX)" and "All Files (*.*)", and the like. The last entry does not widen the file list: the old
// extension stays. But it puts the window into a mode that only Cancel leaves, and going back to the first
// entry does not bring the mode back.
extern Drop_Down FD_List_Filter;
void FD_List_Filter_Click(int index);

void FD_Button_Cancel_Click();  // also Escape and the window's close box

// Fills the window's load and unload procedures and every hook that it stands behind.
void File_Dlg_Install();
