#include "desk/windows.h"

// The main window's size is that of a first start: just large enough for a panel of 528 by 456 pixels
// with border and menu.
Window Main_Window = {.name = "Tonebench", .width = 541, .height = 508};
Window Editor = {.name = "Editor"};
Window Editor_Juno = {.name = "Editor_Juno"};
Window Patch = {.name = "Patch"};
Window Sequencer = {.name = "Sequencer"};
Window MIDI_Setup = {.name = "MIDI_Setup"};
Window TName = {.name = "TName"};
Window File_Dlg = {.name = "File_Dlg"};
Window Input_Dlg = {.name = "Input_Dlg"};

Flag_8 Patch_Window_Open = Flag_8::False;
Flag_8 Seq_Window_Open = Flag_8::False;

std::int16_t Patch_Left = 0;
std::int16_t Patch_Top = 0;
std::int16_t Seq_Window_Left = 0;
std::int16_t Seq_Window_Top = 0;

void Window_Load(Window& window) {
    if (window.loaded) return;
    window.loaded = true;
    window.load();
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
