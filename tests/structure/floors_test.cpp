// The house keeps its floors: what a file includes lies in its own room or on a lower floor, and nothing
// imports itself by a detour.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

// clang-format off
const std::map<std::string, int> Floors = {
    {"platform",   0},
    {"desk",       1},
    {"midi",       2},
    {"synth",      3},
    {"sequencer",  4},
    {"oscillator", 4},
    {"panels",     5},
    {"filedlg",    6},
    {"help",       6},
    {"oscwin",     6},
    {"seqwin",     6},
    {"setup",      6},
    {"tname",      6},
    {"shell",      7},
};
// clang-format on

const std::filesystem::path Source = std::filesystem::path(SOURCE_DIR) / "src";

struct Include {
    std::string file;   // path below src/
    std::string named;  // what stands between the quotation marks or angle brackets
    bool own;           // in quotation marks
};

std::vector<Include> All_Includes() {
    const std::regex pattern(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
    std::vector<Include> includes;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Source)) {
        const std::string ending = entry.path().extension().string();
        if (ending != ".h" && ending != ".cpp") continue;
        std::ifstream file(entry.path());
        std::smatch match;
        for (std::string line; std::getline(file, line);) {
            if (!std::regex_search(line, match, pattern)) continue;
            includes.push_back(
                {std::filesystem::relative(entry.path(), Source).string(), match[2], match[1] == "\""});
        }
    }
    return includes;
}

std::string Room(const std::string& path) {
    return path.substr(0, path.find('/'));
}

// The file without its ending: a header and its body are one module.
std::string Module(const std::string& path) {
    return path.substr(0, path.rfind('.'));
}

bool Is_Window_Source(const std::string& path) {
    static const std::regex pattern("(_qt|_widget|_window)\\.(cpp|h)$");
    return path == "main.cpp" || std::regex_search(path, pattern);
}

bool Is_Port_Source(const std::string& path) {
    static const std::regex pattern("^platform/(midi_port|port)_[a-z_]+\\.(cpp|h)$");
    return std::regex_search(path, pattern);
}

// Follows the imports from `module`; the path of a circle back to `goal`, or empty.
bool Reaches(const std::map<std::string, std::set<std::string>>& imports, const std::string& module,
             const std::string& goal, std::set<std::string>& seen) {
    const auto found = imports.find(module);
    if (found == imports.end()) return false;
    for (const std::string& next : found->second) {
        if (next == goal) return true;
        if (seen.insert(next).second && Reaches(imports, next, goal, seen)) return true;
    }
    return false;
}

}  // namespace

TEST(The_House, has_sources_to_look_at) {
    EXPECT_GT(All_Includes().size(), 100U);
}

TEST(The_House, imports_its_own_room_and_lower_floors_only) {
    for (const Include& include : All_Includes()) {
        if (!include.own || include.file == "main.cpp") continue;
        ASSERT_TRUE(Floors.contains(Room(include.file))) << include.file << " stands in no room";
        ASSERT_TRUE(Floors.contains(Room(include.named))) << include.file << " imports " << include.named;
        if (Room(include.file) == Room(include.named)) continue;
        EXPECT_LT(Floors.at(Room(include.named)), Floors.at(Room(include.file)))
            << include.file << " imports upward: " << include.named;
    }
}

TEST(The_House, names_every_own_file_from_the_root_of_the_sources) {
    for (const Include& include : All_Includes()) {
        if (!include.own) continue;
        EXPECT_TRUE(std::filesystem::exists(Source / include.named)) << include.file;
    }
}

TEST(The_House, has_no_circles_between_modules) {
    std::map<std::string, std::set<std::string>> imports;
    for (const Include& include : All_Includes()) {
        const std::string from = Module(include.file);
        const std::string to = Module(include.named);
        if (include.own && from != to) imports[from].insert(to);
    }
    for (const auto& [module, unused] : imports) {
        std::set<std::string> seen;
        EXPECT_FALSE(Reaches(imports, module, module, seen)) << module << " imports itself by a detour";
    }
}

TEST(The_House, keeps_the_toolkit_out_of_the_logic) {
    const std::regex toolkit("^(Q[A-Z]|Qt)");
    for (const Include& include : All_Includes()) {
        if (include.own || Is_Window_Source(include.file)) continue;
        EXPECT_FALSE(std::regex_search(include.named, toolkit)) << include.file << " knows the toolkit";
    }
}

TEST(The_House, lets_only_windows_import_windows) {
    for (const Include& include : All_Includes()) {
        if (!include.own || Is_Window_Source(include.file)) continue;
        EXPECT_FALSE(Is_Window_Source(include.named)) << include.file << " imports " << include.named;
    }
}

TEST(The_House, keeps_midi_libraries_inside_the_ports) {
    const std::regex library("RtMidi|jack/|alsa/");
    for (const Include& include : All_Includes()) {
        if (include.own || Is_Port_Source(include.file)) continue;
        EXPECT_FALSE(std::regex_search(include.named, library))
            << include.file << " knows " << include.named;
    }
}
