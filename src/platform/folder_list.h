// Folders: what they list, making and removing them. Plain bytes, no toolkit. Body: folder_list.cpp.
//
// Nothing here throws: a folder may vanish, or its disc may be pulled, at any moment.
#pragma once

#include <string>
#include <vector>

// The current directory as the system writes it, without a final separator.
std::string Current_Directory();

// Whether the folder is there and lists an ordinary file: no folder, no device, and not hidden by a dot
// at the start of its name. The folder is found in any case (Path_Found).
bool Folder_Has_Files(const std::string& folder);

struct Folder_Contents {
    std::vector<std::string> folders;  // names, sorted without regard to case
    std::vector<std::string> files;
    int error = 0;  // errno; what was read before it stays
};

// The folders and plain files of a folder, hidden ones left out. A link counts as what it leads to; one
// that leads nowhere, or round in a circle, is neither. The path is taken as it is written on the disk.
Folder_Contents Folder_Read(const std::string& folder);

// Makes one folder; those above it must be there. 0 or the error number (errno).
[[nodiscard]] int Folder_Make(const std::string& path);

// Removes an empty folder, never its contents. 0 or the error number (errno).
[[nodiscard]] int Folder_Remove(const std::string& path);

// Deletes one file, never a folder. 0 or the error number (errno).
[[nodiscard]] int File_Delete(const std::string& path);
