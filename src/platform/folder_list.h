// Folders and what they list. Plain bytes, no toolkit. Body: folder_list.cpp.
#pragma once

#include <string>

// The current directory as the system writes it, without a final separator.
std::string Current_Directory();

// Whether the folder is there and lists an ordinary file: no folder, no device, and not hidden by a dot
// at the start of its name. The folder is found in any case (Path_Found).
bool Folder_Has_Files(const std::string& folder);
