// How the three lists hang together, and the question that a medium which is gone gives.
//
//   a drive is chosen  ->  the folder list goes to its top  ->  the file list shows that folder
#pragma once

#include <string>

// The folder list goes to a path and the file list follows; so does the drive that is shown. 0, or the
// error number (errno) for which everything stayed. When the medium goes between the two lists, the user is
// asked.
[[nodiscard]] int FD_Go_To(const std::string& path);

// A drive was chosen. One that is not ready gives a question, and its Cancel the drive before.
void FD_List_Drives_Change(int index);

// A folder was opened in the folder list, by the blank key or a double click: the entry at the list index.
// One that is not there any more, or that nobody may look into, stays closed without a word.
void FD_List_Dirs_Open();
