// Any path on a real disk, behind a fence (fence.h): what is found under it without regard to case, what is
// read and what is written over. A path is found where a list of the tree says, a file reads as it is byte
// by byte and as a whole, and a write changes the start of its one file.
//
//   byte 0   what is done; then a length of 0 to 60 and the path's bytes, then what is written
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "feed.h"
#include "fence.h"
#include "platform/files.h"
#include "platform/folder_list.h"
#include "platform/text.h"
#include "platform/volumes.h"
#include "shell/wiring.h"
#include "stand_in.h"

namespace {

std::map<std::string, std::string> Files;
std::set<std::string> Folders;

void Make_Tree() {
    const std::string& own = Fenced_Folder();
    Folders.insert(own);
    for (const char* folder : {"/Disk", "/disk", "/Disk/Leads", "/Disk/LEADS", "/Disk/\xC3\x84ra"}) {
        Fenced_Make_Folder(own + folder);
        Folders.insert(own + folder);
    }
    Files = {{own + "/Disk/a.syx", "small"},
             {own + "/Disk/A.SYX", std::string(70000, 'A')},
             {own + "/Disk/Leads/Solo.syx", "solo"},
             {own + "/Disk/LEADS/other.syx", "other"},
             {own + "/disk/a.syx", ""},
             {own + "/Disk/ blank ", "blank"},
             {own + "/Disk/\xC3\x84ra/tone.syx", "tone"}};
    for (const auto& [path, bytes] : Files) Fenced_Write(path, bytes);
}

bool Is_There(const std::string& path) {
    return Files.contains(path) || Folders.contains(path);
}

const char* const Words[] = {"/",     "disk",  "Disk",  "DISK",     "leads",      "LEADS",      "Leads",
                             "a.syx", "A.Syx", "A.SYX", "solo.syx", "SOLO.SYX",   "other.syx",  " blank ",
                             ".",     "..",    "//",    "new",      "\xC3\x84ra", "\xC3\xA4ra", "tone.syx"};

std::string Path_Of(Feed& feed) {
    std::string path = Fenced_Folder();
    for (int count = feed.Below(8); count > 0; --count) {
        const std::size_t choice = feed.Byte();
        if (choice < 8 * std::size(Words)) {
            path += "/";
            path += Words[choice % std::size(Words)];
        } else if (choice == 255) {
            path += std::string(300, 'n');
        } else {
            path += feed.Text(20);
        }
    }
    return path;
}

// Level by level: the exact name first, else the first in order that differs in case only. Nothing behind a
// level that is not there.
std::optional<std::string> Found(const std::string& path) {
    std::string found;
    for (std::size_t begin = 1; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name = path.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty() || name == ".") {
            if (name == "." && Files.contains(found)) return std::nullopt;
            continue;
        }
        if (name == "..") return std::nullopt;
        std::string next = found + "/" + name;
        const bool above = Fenced_Folder().starts_with(next);
        if (!above && !Is_There(next)) {
            std::string other;
            const auto look_at = [&](const std::string& entry) {
                const bool here = entry.starts_with(found) && entry.rfind('/') == found.size();
                if (here && Same_Text(entry, next) && (other.empty() || entry < other)) other = entry;
            };
            for (const std::string& folder : Folders) look_at(folder);
            for (const auto& file : Files) look_at(file.first);
            if (other.empty()) return std::nullopt;
            next = other;
        }
        found = next;
    }
    return found;
}

// Without empty and "." levels.
std::string Plain(const std::string& path) {
    std::string plain;
    for (std::size_t begin = 1; begin <= path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string name = path.substr(begin, end - begin);
        if (!name.empty() && name != ".") plain += "/" + name;
        begin = end + 1;
    }
    return plain;
}

void Finding(const std::string& path) {
    const std::string found = Path_Found(path);
    Check(Same_Text(found, path));
    Check_Equal(Path_Found(found), found);
    if (const auto expected = Found(path)) Check_Equal(Plain(found), *expected);
}

void Reading(const std::string& path) {
    const auto expected = Found(path);
    const bool file = expected && Files.contains(*expected);
    const bool plain = path.find("/..") == std::string::npos;
    if (plain && !path.ends_with('/') && !path.ends_with("/.")) Check(File_Exists(path) == file);
    File_Reader reader(path);
    if (!reader.Is_Open()) {
        Check(!reader.At(1));
        return;
    }
    std::string bytes;
    while (const auto byte = reader.At(bytes.size() + 1)) bytes += static_cast<char>(*byte);
    if (file) Check(bytes == Files.at(*expected));
    Check(!reader.At(0) && !reader.At(bytes.size() + 1) && !reader.At(~std::uint64_t{0}));
    if (!bytes.empty()) Check(reader.At(1) == static_cast<std::uint8_t>(bytes.front()));
    Check(File_Read_Whole(Path_Found(path)) == bytes);
}

void Writing(const std::string& path, std::string_view bytes) {
    const auto expected = Found(path);
    const int error = File_Overwrite(path, bytes);
    const std::vector<Disk_Change> changes = Disk_Changes();
    if (error != 0) {
        Check(changes.empty());
        return;
    }
    Check(changes.size() == 1 && changes.front().kind == Disk_Change::Kind::Written);
    const std::string& written = changes.front().path;
    if (expected) Check_Equal(written, *expected);
    const auto before = Files.find(written);
    std::string now(bytes);
    if (before != Files.end() && before->second.size() > now.size())
        now += before->second.substr(now.size());
    Check(Fenced_Read(written) == now);
    if (before == Files.end()) {
        Fenced_Remove(written);
    } else {
        Fenced_Write(written, before->second);
    }
}

// The whole file at once, through one beside it that is gone again.
void Replacing(const std::string& path, std::string_view bytes) {
    const bool done = File_Replace(path, std::string(bytes));
    const std::vector<Disk_Change> changes = Disk_Changes();
    if (!done) {
        // One that was made and could not take the place was removed.
        Check(changes.empty() || (changes.size() == 2 && changes[0].path == changes[1].path &&
                                  changes[1].kind == Disk_Change::Kind::Removed_File));
        return;
    }
    Check(changes.size() == 3 && changes[0].path == changes[1].path);
    Check(changes[1].kind == Disk_Change::Kind::Removed_File);
    const std::string& replaced = changes[2].path;
    Check(changes[0].path.starts_with(replaced) && changes[0].path.size() == replaced.size() + 7);
    Check(Fenced_Read(replaced) == bytes && !File_Is_Read_Only(replaced));
    const auto before = Files.find(replaced);
    if (before == Files.end()) {
        Check(!Folders.contains(replaced) && File_Delete(replaced) == 0 && Disk_Changes().size() == 1);
    } else {
        Fenced_Write(replaced, before->second);
    }
}

void Making(const std::string& path) {
    const int error = Folder_Make(Path_Found(path));
    std::vector<Disk_Change> changes = Disk_Changes();
    Check(changes.size() == (error == 0 ? 1U : 0U));
    if (error != 0) return;
    const std::string made = changes.front().path;
    Check(!Is_There(made) && Folder_Read(made).error == 0 && !Folder_Has_Files(made));
    Check(Folder_Remove(made) == 0 && Disk_Changes().size() == 1);
}

void Listing(const std::string& path) {
    const Folder_Contents contents = Folder_Read(Path_Found(path));
    const auto expected = Found(path);
    if (expected && Folders.contains(*expected)) {
        Check(contents.error == 0);
        std::set<std::string> names;
        for (const auto& [file, bytes] : Files) {
            if (file.rfind('/') == expected->size() && file.starts_with(*expected))
                names.insert(file.substr(expected->size() + 1));
        }
        Check(std::set<std::string>(contents.files.begin(), contents.files.end()) == names);
        Check(Folder_Has_Files(path) == !names.empty());
    } else if (expected) {
        Check(contents.error != 0 || Fenced_Folder().starts_with(*expected));
    }
}

}  // namespace

std::vector<std::string> Mounted_Volumes() {
    return {"/"};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool made = [] {
        Make_Tree();
        return true;
    }();
    (void)made;
    const Fence fence;
    Feed feed(data, size);
    const int what = feed.Below(6);
    // Who takes a name from outside cuts it at a zero.
    const std::string path(Cut_At_Zero(Path_Of(feed)));
    switch (what) {
        case 0:
            Finding(path);
            break;
        case 1:
            Reading(path);
            break;
        case 2:
            Writing(path, feed.Rest());
            break;
        case 3:
            Replacing(path, feed.Rest());
            break;
        case 4:
            Making(path);
            break;
        default:
            Listing(path);
            break;
    }
    Check(Disk_Changes().empty());
    return 0;
}
