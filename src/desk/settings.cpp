#include "desk/settings.h"

#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/text.h"

namespace {

constexpr std::size_t Longest_Value = 63;

// A file that nobody may write keeps its contents. It would be replaced without being written to, so that
// its mark has to be looked at by hand.
bool Is_Marked_Read_Only(const std::string& path) {
    using std::filesystem::perms;
    constexpr perms Writing = perms::owner_write | perms::group_write | perms::others_write;
    std::error_code error;
    const std::filesystem::file_status file = std::filesystem::status(path, error);
    return std::filesystem::is_regular_file(file) && (file.permissions() & Writing) == perms::none;
}

}  // namespace

std::string INI_File;

std::string Setting_Get(std::string_view section, std::string_view key, std::string_view missing) {
    const std::string text = File_Read_Whole(INI_File).value_or(std::string());
    const std::string value = Profile_Value(text, section, key, missing);
    return std::string(Trimmed(Cut_To_Bytes(Cut_At_Zero(value), Longest_Value)));
}

void Setting_Put(std::string_view section, std::string_view key, std::string_view value) {
    if (INI_File.empty() || Is_Marked_Read_Only(INI_File)) return;
    const std::string text = File_Read_Whole(INI_File).value_or(std::string());
    // Nothing is told when this fails: settings are a comfort, never a reason to disturb the music.
    (void)File_Replace(INI_File, Profile_With_Value(text, section, key, Trimmed(value)));
}

std::string Path_Add_Slash(std::string& path) {
    path = Right_Trimmed(path);
    if (path.empty() || path.back() != Path_Separator) path += Path_Separator;
    return path;
}

double OS_Version() {
    return 4.0;
}
