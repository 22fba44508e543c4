#include "platform/folder_list.h"

#include <filesystem>
#include <system_error>

#include "platform/files.h"

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
