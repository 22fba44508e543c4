// The three lists of the file window as records: drives, folders and files. They show the disk as it was
// when they were last told a path or refreshed; nothing here asks the user anything or throws.
//
// Setting a path gives 0 or the error number (errno) for which the list stayed as it was. Paths come as
// they are stored, in any case; the lists hold them as they are written on the disk, without a final
// separator.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desk/form.h"

// The root and the mounted volumes.
extern Drop_Down FD_List_Drives;

// The path's levels from the root down, and below them the folders in it; full paths all.
struct Folder_List {
    std::string path;
    std::vector<std::string> entries = {};
    int levels = 0;    // how many entries lead down to the path
    int index = -1;    // the path itself after each listing
    int revision = 0;  // moves on with each listing
};
extern Folder_List FD_List_Dirs;

struct File_List {
    std::string path;
    std::string pattern = "*.syx";
    std::vector<std::string> entries = {};  // names
    int index = -1;
    int revision = 0;
};
extern File_List FD_List_Files;

// Fresh lists in the current directory.
void FD_Lists_Start();

std::string Drive_Of(const std::string& path);  // the volume that the path lies on, as last listed
void FD_List_Drives_Refresh();                  // reads the volumes anew; the chosen one stays chosen
void FD_List_Drives_Select(const std::string& drive);

[[nodiscard]] int FD_List_Dirs_Set_Path(const std::string& path);
void FD_List_Dirs_Refresh();  // a folder that has gone shows nothing below its levels

[[nodiscard]] int FD_List_Files_Set_Path(const std::string& path);
void FD_List_Files_Set_Pattern(const std::string& pattern);
void FD_List_Files_Refresh();

// What was typed as a name: a folder in it becomes the path, wildcards become the pattern, and a file that
// is listed becomes the chosen one. A name that is not there is no error, a folder that is not there is.
[[nodiscard]] int FD_List_Files_Set_FileName(const std::string& typed);

// The entry at the list index; empty when there is none.
std::string FD_List_Dirs_Entry();
std::string FD_List_Files_Entry();

// Whether a name falls under a pattern: "*" any letters, "?" any one, without regard to case. "*.*" is
// everything, and a semicolon parts several patterns.
bool Falls_Under(const std::string& name, const std::string& pattern);

// Whether the error says that the device with the folder cannot be reached: no medium, no connection.
bool Device_Is_Gone(int error);
