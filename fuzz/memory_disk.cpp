#include "memory_disk.h"

#include <algorithm>
#include <cerrno>

#include "platform/files.h"
#include "platform/folder_list.h"
#include "platform/text.h"

namespace {

// The file that an open reader reads, by its descriptor.
std::map<int, const std::string*> Readers;

const std::string* Contents_Of(const std::string& path) {
    const auto found = Disk.find(Path_Found(path));
    return found == Disk.end() ? nullptr : &found->second;
}

}  // namespace

std::map<std::string, std::string> Disk;
int File_Last_Error = 0;

std::string Path_Found(const std::string& path) {
    if (Disk.contains(path)) return path;
    const auto found = std::find_if(Disk.begin(), Disk.end(),
                                    [&](const auto& file) { return Same_Text(file.first, path); });
    return found == Disk.end() ? path : found->first;
}

bool File_Exists(std::string path) {
    if (path.ends_with(Path_Separator)) path.pop_back();
    File_Last_Error = Contents_Of(path) == nullptr ? ENOENT : 0;
    return File_Last_Error == 0;
}

std::optional<std::string> File_Read_Whole(const std::string& path) {
    const auto found = Disk.find(path);
    if (found == Disk.end()) return std::nullopt;
    return found->second;
}

bool File_Is_Read_Only(const std::string&) {
    return false;
}

bool File_Replace(const std::string& path, const std::string& contents) {
    Disk[path] = contents;
    return true;
}

int File_Overwrite(const std::string& path, std::string_view contents) {
    std::string& file = Disk[Path_Found(path)];
    file.replace(0, std::min(file.size(), contents.size()), contents);
    return 0;
}

File_Reader::File_Reader(const std::string& path) {
    const std::string* const contents = Contents_Of(path);
    if (contents == nullptr) return;
    descriptor_ = Readers.empty() ? 0 : Readers.rbegin()->first + 1;
    Readers[descriptor_] = contents;
}

File_Reader::~File_Reader() {
    Readers.erase(descriptor_);
}

bool File_Reader::Fill(std::uint64_t position) {
    first_ = position;
    count_ = 0;
    if (descriptor_ < 0 || position == 0) return false;
    const std::string& contents = *Readers.at(descriptor_);
    if (position > contents.size()) return false;
    count_ = std::min(buffer_.size(), contents.size() - static_cast<std::size_t>(position - 1));
    std::copy_n(contents.begin() + static_cast<std::ptrdiff_t>(position - 1), count_, buffer_.begin());
    return true;
}

std::string Current_Directory() {
    return Disk_Folder;
}

bool Folder_Has_Files(const std::string& folder) {
    return !Folder_Read(folder).files.empty();
}

Folder_Contents Folder_Read(const std::string& folder) {
    Folder_Contents contents;
    std::string path = folder;
    while (path.size() > 1 && path.ends_with(Path_Separator)) path.pop_back();
    if (!Same_Text(path, Disk_Folder)) {
        contents.error = ENOENT;
        return contents;
    }
    for (const auto& [name, bytes] : Disk) {
        const std::string file = name.substr(name.rfind(Path_Separator) + 1);
        if (!file.starts_with('.')) contents.files.push_back(file);
    }
    return contents;
}

int Folder_Make(const std::string&) {
    return EACCES;
}
int Folder_Remove(const std::string&) {
    return EACCES;
}
int File_Delete(const std::string& path) {
    return Disk.erase(path) == 1 ? 0 : ENOENT;
}
