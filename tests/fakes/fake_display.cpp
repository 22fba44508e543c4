#include "fakes/fake_display.h"

#include "platform/display.h"

Fake_Display Display;

double Display_Logical_Density() {
    return Display.density;
}

int Display_Width() {
    return Display.width;
}

int Display_Height() {
    return Display.height;
}

bool Font_File_Add(const std::string& path) {
    if (Display.font_can_be_added) Display.fonts_added.push_back(path);
    return Display.font_can_be_added;
}

int Font_File_Remove(const std::string& path) {
    Display.fonts_removed.push_back(path);
    return Display.font_remove_error;
}

bool System_Sound_Play(const std::string& alias) {
    Display.sounds.push_back(alias);
    return Display.system_sound;
}

void Beep() {
    ++Display.beeps;
}
