// The program's windows as records. The rules write them; the toolkit's windows read them and show what
// they say (Windows_Show_Changes). There is exactly one of each.
//
// A window comes into being the first time anything touches it: Window_Load runs its load procedure then
// and does nothing later, until it is unloaded.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/hook.h"
#include "platform/numbers.h"

// The settings file holds the state by these numbers.
enum class Window_State { Normal = 0, Minimised = 1, Maximised = 2 };

enum class Pointer { Default, Arrow, Hourglass };

struct Control;  // panels/controls.h

struct Window {
    const char* name;
    std::string caption = {};
    bool loaded = false;
    bool unloading = false;  // its unload procedure runs; events may come in meanwhile
    bool visible = false;
    bool enabled = true;
    Pointer pointer = Pointer::Default;
    int left = 0;  // pixels on the screen
    int top = 0;
    int width = 0;
    int height = 0;
    bool inside = false;  // left and top count from the corner of the main window's client area
    Window_State state = Window_State::Normal;
    int times_raised = 0;               // each count brings the window to the front once
    Control* active_control = nullptr;  // the control of the window that has the focus
    Hook<void()> load = {};
    Hook<void()> unload = {};
};

// A minimised window stands nowhere on the screen. Its place is this one then, far outside; the next
// start finds it in the settings and brings the window back.
inline constexpr int Minimised_Place = -32000;

extern Window Main_Window;
extern Window Editor;
extern Window Editor_Juno;
extern Window Patch;
extern Window Patch_MKS70;
extern Window Sequencer;
extern Window Oscillator;
extern Window MIDI_Setup;
extern Window TName;
extern Window Help;
extern Window File_Dlg;
extern Window Input_Dlg;

// Whether the windows that may come and go stand open; written by their load and unload.
extern Flag_8 Patch_Window_Open;
extern Flag_8 Seq_Window_Open;
extern Flag_8 Osc_Window_Open;

// Remembered places, in twips. That of Patch is the place of whichever of the two patch windows closed
// last.
extern std::int16_t Patch_Left;
extern std::int16_t Patch_Top;
extern std::int16_t Seq_Window_Left;
extern std::int16_t Seq_Window_Top;

// For a window that stands open: bring it to its remembered place, and remember its place. What 16 bits of
// twips cannot hold is kept as near as they can.
void Window_Place(Window& window, std::int16_t left_twips, std::int16_t top_twips);
void Window_Keep_Place(const Window& window, std::int16_t& left_twips, std::int16_t& top_twips);

void Window_Load(Window& window);

// Loads the window if need be, makes it visible and brings it to the front.
void Window_Show(Window& window);
void Window_Hide(Window& window);

// Runs the unload procedure and takes the window from the screen; nothing when it is not loaded.
void Window_Unload(Window& window);

// The common place of dialog-like windows: half the difference of the two sizes, measured from the main
// window's place.
void Window_Centre_Over_Main(Window& window);

// The windows that stand open inside the frame, for the list under Menu_Windows.
std::vector<Window*> Windows_Inside();
