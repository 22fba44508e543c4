#include "shell/window_commands.h"

#include "desk/menus.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "filedlg/options.h"
#include "platform/display.h"
#include "platform/message_box.h"
#include "platform/numbers.h"

namespace {

constexpr int Large_Fonts = 120;
constexpr int Lowest_Usual_Screen = 480;

void Flip(bool& mark) {
    mark = !mark;
}

void Size_Main_Window(int width, int height) {
    Main_Window.width = width;
    Main_Window.height = height;
}

}  // namespace

void Menu_Windows_SavePos_Chosen() {
    Flip(Menu(Menu_Windows_SavePos).checked);
}

void Menu_MIDI_Seq_Load_Chosen() {
    Flip(Menu(Menu_MIDI_Seq_Load).checked);
}

void Menu_Windows_Reset_Chosen() {
    const Answer answer = Message_Box("Do you really want to RESET the window settings?",
                                      Buttons_Set::Yes_No, Icon::Question);
    if (answer != Answer::Yes) return;

    // A pixel or two less than a first start has: the frame hugs the panel.
    if (OS_Version() < 3.95) {
        Size_Main_Window(536, 502);
    } else {
        Size_Main_Window(540, 506);
    }
    // One twip from the corner, which for a window on whole pixels is the corner.
    Main_Window.left = Main_Window.top = Narrow<int>(1 / Twips_Per_Pixel());
    if (Screen_PPI == Large_Fonts) Size_Main_Window(540, 516);
    // Too low for the whole panel: give up height, and make room for what a scroll bar would take.
    if (Display_Height() < Lowest_Usual_Screen) Size_Main_Window(556, 440);

    FD_Left = FD_Top = 1;
    Patch_Left = Patch_Top = 1;
    Seq_Window_Left = Seq_Window_Top = 1;
}

void Window_Commands_Install() {
    Menu(Menu_Windows_SavePos).chosen = Menu_Windows_SavePos_Chosen;
    Menu(Menu_Windows_Reset).chosen = Menu_Windows_Reset_Chosen;
    Menu(Menu_MIDI_Seq_Load).chosen = Menu_MIDI_Seq_Load_Chosen;
}
