// A disk of the process's own, in memory: a body of platform/files.h that makes the targets of the formats
// ten times as fast and leaves nothing behind. One folder, Disk_Folder; names are found without regard to
// case as on a real disk. Real files are read and written by the target `files`.
#pragma once

#include <map>
#include <string>

inline constexpr const char* Disk_Folder = "/disk";

// By full path.
extern std::map<std::string, std::string> Disk;
