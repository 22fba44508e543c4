// Files as the settings need them. Plain bytes, no toolkit. Body: files.cpp.
#pragma once

#include <optional>
#include <string>

// The separator of paths, as text. A root or a mounted volume plays the part of a drive.
inline constexpr char Path_Separator = '/';

// The whole file; nothing when it cannot be read.
std::optional<std::string> File_Read_Whole(const std::string& path);

// Replaces the file in one step: a crash or a full disk leaves the old file or the new one, never half
// of one. False when it failed; the old file is then as it was.
[[nodiscard]] bool File_Replace(const std::string& path, const std::string& contents);
