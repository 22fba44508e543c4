// What Ok and a double click carry out, by FD_Mode. They differ, see the table in state.h.
#pragma once

#include <string>

void FD_FileName_Change(const std::string& text);  // the user typed
void FD_Button_Ok_Click();                         // also Enter in FD_FileName
void FD_List_Files_DblClick();

// Where a name lies in a folder: under the name as it stands when there is such a file, else without the
// blanks at its ends.
std::string FD_Path_Of(const std::string& folder, const std::string& name);
