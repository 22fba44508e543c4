// A folder of the process's own on the real disk, with a fence round it: whatever the program under test
// makes, opens, lists or removes outside is refused (EACCES), as it is to a user who has no rights there.
// What it changes inside is told.
//
// The fence stands in the calls that the program makes itself: the linker leads open, opendir, mkdir,
// rmdir, unlink, rename and mkstemp here (--wrap). There must be no links inside.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Its path, without a final separator. Made at the first call, gone at the end.
const std::string& Fenced_Folder();

// While one is there the fence stands; the fuzzer's own calls go past it at other times.
class Fence {
  public:
    Fence();
    ~Fence();
    Fence(const Fence&) = delete;
    Fence& operator=(const Fence&) = delete;
};

// What was changed since the last call, in order: the full paths, without "." and "..".
struct Disk_Change {
    enum class Kind { Written, Made_Folder, Removed_Folder, Removed_File } kind;
    std::string path;
    bool operator==(const Disk_Change&) const = default;
};
std::vector<Disk_Change> Disk_Changes();

// The target's own way past the fence.
void Fenced_Write(const std::string& path, std::string_view bytes);
std::string Fenced_Read(const std::string& path);  // a file that is not there is a finding
void Fenced_Make_Folder(const std::string& path);
void Fenced_Remove(const std::string& path);
