// A screen and a font store that say what they are told to.
#pragma once

#include <string>
#include <vector>

struct Fake_Display {
    double density = 96;
    int width = 1024;
    int height = 768;
    bool font_can_be_added = true;
    int font_remove_error = 0;
    bool system_sound = true;

    std::vector<std::string> fonts_added;
    std::vector<std::string> fonts_removed;
    std::vector<std::string> sounds;
    int beeps = 0;
};
extern Fake_Display Display;
