#include "desk/settings.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/files.h"
#include "platform/profile_file.h"
#include "platform/text.h"

namespace {

constexpr std::size_t Longest_Value = 63;

// What a write starts from; nothing when the file is to stay as it is. One that cannot be read is not
// written either: that would throw away what stands in it.
std::optional<std::string> Text_To_Change() {
    if (INI_File.empty() || File_Is_Read_Only(INI_File)) return std::nullopt;
    std::error_code error;
    const bool there = std::filesystem::exists(INI_File, error);
    return there ? File_Read_Whole(INI_File) : std::string();
}

}  // namespace

std::string INI_File;

std::string Setting_Get(std::string_view section, std::string_view key, std::string_view missing) {
    const std::string text = File_Read_Whole(INI_File).value_or(std::string());
    const std::string value = Profile_Value(text, section, key, missing);
    return std::string(Trimmed(Cut_To_Bytes(Cut_At_Zero(value), Longest_Value)));
}

void Setting_Put(std::string_view section, std::string_view key, std::string_view value) {
    Settings_Put({{section, key, std::string(value)}});
}

void Settings_Put(const std::vector<Setting_Value>& values) {
    std::optional<std::string> text = Text_To_Change();
    if (!text) return;
    for (const Setting_Value& stored : values)
        text = Profile_With_Value(*text, stored.section, stored.key, Trimmed(stored.value));
    // Nothing is told when this fails: settings are a comfort, never a reason to disturb the music.
    (void)File_Replace(INI_File, *text);
}

std::string Path_Add_Slash(std::string& path) {
    path = Right_Trimmed(path);
    if (path.empty() || path.back() != Path_Separator) path += Path_Separator;
    return path;
}

double OS_Version() {
    return 4.0;
}
