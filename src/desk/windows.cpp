#include "desk/windows.h"

#include <algorithm>

#include "desk/screen.h"

namespace {

int Pixels(std::int16_t twips) {
    return Narrow<int>(twips / Twips_Per_Pixel());
}

std::int16_t Nearest_Twips(int pixels) {
    constexpr std::numeric_limits<std::int16_t> Limits;
    return To_Int16(std::clamp<double>(pixels * Twips_Per_Pixel(), Limits.min(), Limits.max()));
}

}  // namespace

// The main window's size is that of a first start: just large enough for a panel of 528 by 456 pixels
// with border and menu.
Window Main_Window = {.name = "Tonebench", .width = 541, .height = 508};
Window Editor = {.name = "Editor", .inside = true};
Window Editor_Juno = {.name = "Editor_Juno", .inside = true};
Window Patch = {.name = "Patch", .inside = true};
Window Patch_MKS70 = {.name = "Patch_MKS70", .inside = true};
Window Sequencer = {.name = "Sequencer", .inside = true};
Window Oscillator = {.name = "Oscillator", .inside = true};
Window MIDI_Setup = {.name = "MIDI_Setup"};
Window TName = {.name = "TName"};
Window Help = {.name = "Help"};
Window File_Dlg = {.name = "File_Dlg"};
Window Input_Dlg = {.name = "Input_Dlg"};

Flag_8 Patch_Window_Open = Flag_8::False;
Flag_8 Seq_Window_Open = Flag_8::False;
Flag_8 Osc_Window_Open = Flag_8::False;

std::int16_t Patch_Left = 0;
std::int16_t Patch_Top = 0;
std::int16_t Seq_Window_Left = 0;
std::int16_t Seq_Window_Top = 0;

void Window_Place(Window& window, std::int16_t left_twips, std::int16_t top_twips) {
    window.left = Pixels(left_twips);
    window.top = Pixels(top_twips);
}

void Window_Keep_Place(const Window& window, std::int16_t& left_twips, std::int16_t& top_twips) {
    left_twips = Nearest_Twips(window.left);
    top_twips = Nearest_Twips(window.top);
}

void Window_Load(Window& window) {
    if (window.loaded) return;
    window.loaded = true;
    try {
        window.load();
    } catch (...) {
        window.loaded = false;
        throw;
    }
}

void Window_Show(Window& window) {
    Window_Load(window);
    window.visible = true;
    ++window.times_raised;
}

void Window_Hide(Window& window) {
    window.visible = false;
}

void Window_Unload(Window& window) {
    if (!window.loaded || window.unloading) return;
    window.unloading = true;
    window.unload();
    window.unloading = false;
    window.visible = false;
    window.loaded = false;
}

void Window_Centre_Over_Main(Window& window) {
    window.left = Main_Window.left + (Main_Window.width - window.width) / 2;
    window.top = Main_Window.top + (Main_Window.height - window.height) / 2;
}

std::vector<Window*> Windows_Inside() {
    std::vector<Window*> open;
    for (Window* window : {&Editor, &Editor_Juno, &Patch, &Patch_MKS70, &Sequencer, &Oscillator}) {
        if (window->loaded && window->visible) open.push_back(window);
    }
    return open;
}
