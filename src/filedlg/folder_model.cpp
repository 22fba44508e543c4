#include "filedlg/folder_model.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/files.h"
#include "platform/folder_list.h"
#include "platform/slow_work.h"
#include "platform/text.h"
#include "platform/volumes.h"

namespace {

const std::string Root(1, Path_Separator);

std::string Without_Final_Separator(std::string path) {
    while (path.size() > 1 && path.back() == Path_Separator) path.pop_back();
    return path;
}

// As it is written on the disk, without "." and ".." and doubled separators.
std::string Plain_Path(const std::string& path) {
    const std::string absolute = path.starts_with(Path_Separator) ? path : Current_Directory() + "/" + path;
    return Path_Found(Without_Final_Separator(std::filesystem::path(absolute).lexically_normal().string()));
}

bool Lies_On(const std::string& path, const std::string& drive) {
    if (drive == Root || path == drive) return true;
    return path.starts_with(drive) && path[drive.size()] == Path_Separator;
}

// A share whose server is silent may never answer. A disk that has to start up does within this time.
constexpr int Patience_Milliseconds = 20'000;

// A folder and what is in it.
struct Listing {
    std::string path;
    Folder_Contents contents;
};

// `where` finds the folder, on the disk as well.
Listing Read_Patiently(const std::string& path, std::string (*where)(const std::string& path)) {
    const auto listing = std::make_shared<Listing>();
    const bool answered = Slow_Work(
        [listing, path, where] {
            listing->path = where(path);
            listing->contents = Folder_Read(listing->path);
        },
        Patience_Milliseconds);
    if (answered) return std::move(*listing);
    Listing silent = {path, {}};
    silent.contents.error = ETIMEDOUT;
    return silent;
}

// A folder as somebody wrote it down, by its path as it is written on the disk.
Listing Found(const std::string& path) {
    return Read_Patiently(path, Plain_Path);
}

// A folder by its path on the disk.
Folder_Contents Contents_Of(const std::string& path) {
    return Read_Patiently(path, [](const std::string& same) { return same; }).contents;
}

// A missing folder on a volume that is missing itself: the medium was pulled.
int Reason(const Listing& listing) {
    const int error = listing.contents.error;
    if (error != ENOENT) return error;
    const std::string drive = Drive_Of(listing.path);
    if (drive == Root) return error;
    return Contents_Of(drive).error == 0 ? error : ENODEV;
}

std::vector<std::string> Levels_Of(const std::string& path) {
    std::vector<std::string> levels = {Root};
    for (std::size_t end = 1; path != Root && end != std::string::npos;) {
        end = path.find(Path_Separator, end + 1);
        levels.push_back(path.substr(0, end));
    }
    return levels;
}

// One pattern against one name: on a mismatch the last "*" takes one letter more.
bool Matches(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t in_pattern = 0;
    std::size_t star = std::string_view::npos;
    std::size_t behind_star = 0;
    while (at < name.size()) {
        const bool inside = in_pattern < pattern.size();
        if (inside && pattern[in_pattern] == '*') {
            star = in_pattern++;
            behind_star = at;
        } else if (inside && (pattern[in_pattern] == '?' ||
                              Same_Text(name.substr(at, 1), pattern.substr(in_pattern, 1)))) {
            ++at;
            ++in_pattern;
        } else if (star != std::string_view::npos) {
            in_pattern = star + 1;
            at = ++behind_star;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', in_pattern) == std::string_view::npos;
}

void Show_Folders(const std::string& path, const std::vector<std::string>& below) {
    Folder_List& list = FD_List_Dirs;
    list.path = path;
    list.entries = Levels_Of(path);
    list.levels = static_cast<int>(list.entries.size());
    list.index = list.levels - 1;
    const std::string start = path == Root ? Root : path + Path_Separator;
    for (const std::string& name : below) list.entries.push_back(start + name);
    ++list.revision;
}

void Show_Files(const std::string& path, const std::vector<std::string>& names) {
    File_List& list = FD_List_Files;
    list.path = path;
    list.entries.clear();
    for (const std::string& name : names) {
        if (Falls_Under(name, list.pattern)) list.entries.push_back(name);
    }
    list.index = -1;
    ++list.revision;
}

template <class List>
std::string Entry_Of(const List& list) {
    const auto index = static_cast<std::size_t>(list.index);
    return list.index >= 0 && index < list.entries.size() ? list.entries[index] : std::string();
}

bool Has_Wildcards(const std::string& name) {
    return name.find_first_of("*?") != std::string::npos;
}

}  // namespace

Drop_Down FD_List_Drives;
Folder_List FD_List_Dirs;
File_List FD_List_Files;

void FD_Lists_Start() {
    const int dirs = FD_List_Dirs.revision;
    const int files = FD_List_Files.revision;
    FD_List_Drives = {};
    FD_List_Dirs = {.path = Root, .revision = dirs};
    FD_List_Files = {.path = Root, .revision = files};
    FD_List_Drives_Refresh();
    const std::string here = Current_Directory();
    if (FD_List_Dirs_Set_Path(here) != 0) Show_Folders(Root, {});
    if (FD_List_Files_Set_Path(FD_List_Dirs.path) != 0) Show_Files(Root, {});
    FD_List_Drives_Select(Drive_Of(FD_List_Dirs.path));
}

std::string Drive_Of(const std::string& path) {
    std::string found = Root;
    for (const std::string& drive : FD_List_Drives.entries) {
        if (drive.size() > found.size() && Lies_On(path, drive)) found = drive;
    }
    return found;
}

void FD_List_Drives_Refresh() {
    const std::string before = FD_List_Drives.Selected_Text();
    FD_List_Drives.entries = Mounted_Volumes();
    FD_List_Drives_Select(before);
}

// A drive that is chosen stays in the list when it has gone: somebody may bring it back.
void FD_List_Drives_Select(const std::string& drive) {
    std::vector<std::string>& entries = FD_List_Drives.entries;
    if (!drive.empty() && std::find(entries.begin(), entries.end(), drive) == entries.end()) {
        entries.push_back(drive);
    }
    FD_List_Drives.Select_Text(drive);
}

int FD_List_Dirs_Set_Path(const std::string& path) {
    const Listing listing = Found(path);
    if (listing.contents.error != 0) return Reason(listing);
    Show_Folders(listing.path, listing.contents.folders);
    return 0;
}

void FD_List_Dirs_Refresh() {
    Show_Folders(FD_List_Dirs.path, Contents_Of(FD_List_Dirs.path).folders);
}

int FD_List_Files_Set_Path(const std::string& path) {
    const Listing listing = Found(path);
    if (listing.contents.error != 0) return Reason(listing);
    Show_Files(listing.path, listing.contents.files);
    return 0;
}

void FD_List_Files_Set_Pattern(const std::string& pattern) {
    FD_List_Files.pattern = pattern;
    FD_List_Files_Refresh();
}

void FD_List_Files_Refresh() {
    Show_Files(FD_List_Files.path, Contents_Of(FD_List_Files.path).files);
}

int FD_List_Files_Set_FileName(const std::string& typed) {
    const std::size_t separator = typed.rfind(Path_Separator);
    std::string folder = separator == std::string::npos ? "" : typed.substr(0, separator + 1);
    std::string name = separator == std::string::npos ? typed : typed.substr(separator + 1);
    if (name == "." || name == "..") {
        folder += name;
        name.clear();
    }
    if (!folder.empty()) {
        if (!folder.starts_with(Path_Separator)) folder = FD_List_Files.path + "/" + folder;
        const int error = FD_List_Files_Set_Path(folder);
        if (error != 0) return error;
    }
    if (Has_Wildcards(name)) {
        FD_List_Files_Set_Pattern(name);
        return 0;
    }
    const auto& entries = FD_List_Files.entries;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&name](const std::string& entry) { return Same_Text(entry, name); });
    if (found != entries.end()) FD_List_Files.index = static_cast<int>(found - entries.begin());
    return 0;
}

std::string FD_List_Dirs_Entry() {
    return Entry_Of(FD_List_Dirs);
}

std::string FD_List_Files_Entry() {
    return Entry_Of(FD_List_Files);
}

bool Falls_Under(const std::string& name, const std::string& pattern) {
    for (std::size_t begin = 0; begin <= pattern.size();) {
        const std::size_t end = std::min(pattern.find(';', begin), pattern.size());
        const std::string one = pattern.substr(begin, end - begin);
        if (one == "*.*" || (!one.empty() && Matches(name, one))) return true;
        begin = end + 1;
    }
    return false;
}

bool Device_Is_Gone(int error) {
    switch (error) {
        case ENODEV:
        case ENXIO:
        case EIO:
        case ENOMEDIUM:
        case ESTALE:
        case ENOTCONN:
        case EHOSTDOWN:
        case EHOSTUNREACH:
        case ETIMEDOUT:
        case EREMOTEIO:
            return true;
        default:
            return false;
    }
}
