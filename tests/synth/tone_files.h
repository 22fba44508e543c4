// Files and hex text for the tests of tone files.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

#include "fakes/fake_program.h"
#include "platform/files.h"

inline std::string Path(const std::string& name) {
    return Test_Folder() + "/" + name;
}

inline void Write(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

// "F0 41" as two bytes; what is no digit separates nothing and is skipped.
inline std::string Bytes(const std::string& hex) {
    std::string bytes;
    int high = -1;
    for (const char digit : hex) {
        const std::size_t value = std::string("0123456789ABCDEF").find(digit);
        if (value == std::string::npos) continue;
        if (high < 0) {
            high = static_cast<int>(value);
        } else {
            bytes += static_cast<char>(high * 16 + static_cast<int>(value));
            high = -1;
        }
    }
    return bytes;
}

inline std::string Hex(const std::string& bytes) {
    constexpr const char* Digits = "0123456789ABCDEF";
    std::string line;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (!line.empty()) line += ' ';
        line += Digits[byte / 16U];
        line += Digits[byte % 16U];
    }
    return line;
}

inline std::string Read_Hex(const std::string& path) {
    const auto contents = File_Read_Whole(path);
    return contents ? Hex(*contents) : "(none)";
}

// Two tones and their patch messages, every byte different from its neighbours.
inline const std::string Tone_1 =
    "F0 41 35 00 21 20 01 "
    "42 41 53 53 20 31 20 20 20 20 "
    "0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 "
    "25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 38 39 3A 3B "
    "F7 ";
inline const std::string Patch_1 = "F0 41 36 00 21 30 01 00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7 ";
inline const std::string Tone_2 =
    "F0 41 35 0F 21 20 01 "
    "73 6F 6C 6F 20 20 20 20 20 20 "
    "4B 4C 4D 4E 4F 50 51 52 53 54 55 56 57 58 59 5A 5B 5C 5D 5E 5F 60 61 62 63 64 "
    "65 66 67 68 69 6A 6B 6C 6D 6E 6F 70 71 72 73 74 75 76 77 78 79 7A 7B "
    "F7 ";
inline const std::string Patch_2 = "F0 41 36 0F 21 30 01 00 10 01 11 02 12 03 13 04 14 05 15 06 16 F7 ";
