// Up a folder, a new folder, and Delete: the three small buttons. They act on what was pressed last in a
// list, FD_Selected, on the press of the mouse; before anything was pressed in this run they only beep.
#pragma once

#include <string>

void FD_List_Dirs_Press();  // notes the folder at the list index

void FD_Button_Updir_MouseDown();
void FD_Button_Newdir_MouseDown();
void FD_Button_Delete_MouseDown();

void FD_New_Folder();
void FD_Delete();

// The parent folder, with a final separator; that of a root is the root.
std::string FD_Parent_Dir(std::string path);
