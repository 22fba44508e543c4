// The settings file as its users call it: a text by section and key.
//
// "Tonebench.INI" lies beside the program. Nothing is held in memory: each call reads the file, each
// Setting_Put and Settings_Put replaces it in one step. A missing file is a first start.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// Full path of the settings file; written once by the start-up. While it is empty there are no settings.
extern std::string INI_File;

// The value, at most 63 bytes of it (a classic buffer of 64 with its final zero), cut at a zero
// character, without blanks at its ends. `missing` when file, section or key is not there.
std::string Setting_Get(std::string_view section, std::string_view key, std::string_view missing);

// Stores the value without the blanks at its ends. A file that cannot be written is left alone, without
// a word: the next start uses the old values.
void Setting_Put(std::string_view section, std::string_view key, std::string_view value);

struct Setting_Value {
    std::string_view section;
    std::string_view key;
    std::string value;
};

// Stores all of them, one behind the other, and replaces the file once: a replacement waits for the disk.
void Settings_Put(const std::vector<Setting_Value>& values);

// Gives the path a final separator, if it has none, and returns it. Blanks at its right end go.
std::string Path_Add_Slash(std::string& path);

// The system's version as a real number. Only the comparison with 3.95 counts, and every system that this
// program runs on is later.
double OS_Version();
