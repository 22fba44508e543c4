#include "platform/folder_list.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "platform/files.h"

namespace {

enum class Kind { Folder, File, Other };

Kind Kind_Of(mode_t mode) {
    if (S_ISDIR(mode)) return Kind::Folder;
    return S_ISREG(mode) ? Kind::File : Kind::Other;
}

// Most file systems tell the kind with the name; only links, and names on the few others, cost a look.
Kind Kind_Of(int folder, const dirent& entry) {
    if (entry.d_type == DT_DIR) return Kind::Folder;
    if (entry.d_type == DT_REG) return Kind::File;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return Kind::Other;
    struct stat facts = {};
    if (::fstatat(folder, entry.d_name, &facts, 0) != 0) return Kind::Other;
    return Kind_Of(facts.st_mode);
}

unsigned char Folded(char letter) {
    const auto byte = static_cast<unsigned char>(letter);
    return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte - 'A' + 'a') : byte;
}

// Names that differ in case only stand in the order of their bytes.
bool Stands_Before(const std::string& a, const std::string& b) {
    const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                            [](char x, char y) { return Folded(x) == Folded(y); });
    if (in_a == a.end() && in_b == b.end()) return a < b;
    if (in_a == a.end() || in_b == b.end()) return in_a == a.end();
    return Folded(*in_a) < Folded(*in_b);
}

}  // namespace

std::string Current_Directory() {
    std::error_code error;
    const std::filesystem::path here = std::filesystem::current_path(error);
    // A directory that was removed under the program has no name any more; the root always has one.
    return error ? std::string("/") : here.string();
}

bool Folder_Has_Files(const std::string& folder) {
    std::error_code error;
    std::filesystem::directory_iterator entry(Path_Found(folder), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code unreadable;
        const bool hidden = entry->path().filename().string().starts_with('.');
        if (!hidden && entry->is_regular_file(unreadable)) return true;
    }
    return false;
}

Folder_Contents Folder_Read(const std::string& folder) {
    Folder_Contents contents;
    DIR* const stream = ::opendir(folder.c_str());
    if (stream == nullptr) {
        contents.error = errno;
        return contents;
    }
    for (;;) {
        errno = 0;
        // The stream is this call's own, so the classic reader is safe.
        const dirent* const entry = ::readdir(stream);  // NOLINT(concurrency-mt-unsafe)
        if (entry == nullptr) break;
        const std::string_view name = static_cast<const char*>(entry->d_name);
        if (name.starts_with('.')) continue;
        const Kind kind = Kind_Of(::dirfd(stream), *entry);
        if (kind == Kind::Folder) contents.folders.emplace_back(name);
        if (kind == Kind::File) contents.files.emplace_back(name);
    }
    contents.error = errno;
    ::closedir(stream);
    std::sort(contents.folders.begin(), contents.folders.end(), Stands_Before);
    std::sort(contents.files.begin(), contents.files.end(), Stands_Before);
    return contents;
}

int Folder_Make(const std::string& path) {
    constexpr mode_t For_Everybody = 0777;  // less what the user's mask takes away
    return ::mkdir(path.c_str(), For_Everybody) == 0 ? 0 : errno;
}

int Folder_Remove(const std::string& path) {
    return ::rmdir(path.c_str()) == 0 ? 0 : errno;
}

int File_Delete(const std::string& path) {
    return ::unlink(path.c_str()) == 0 ? 0 : errno;
}
