#include "shell/display_check.h"

#include "desk/screen.h"
#include "desk/windows.h"
#include "panels/editor.h"
#include "platform/display.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/program.h"

namespace {

constexpr const char* Font_File = "JX8P.FNT";
constexpr const char* Font_Face = "JX8P";
constexpr double Base_Density = 96;
constexpr std::int16_t Small_Fonts = 96;
constexpr std::int16_t Large_Fonts = 120;

}  // namespace

Flag_16 Font_Loaded = Flag_16::False;
Hook<void(const char* face)> Juno_Take_Font;

std::string Font_Path() {
    return Program_Directory() + Path_Separator + Font_File;
}

void Font_Install() {
    const std::string path = Font_Path();
    if (!Font_File_Add(path)) {
        Message_Box("Error: Could not load font " + path + "\nUsing default font.", Buttons_Set::Ok,
                    Icon::Stop);
        return;
    }
    Window_Load(Editor);
    Editor_Tone_Name.font = Font_Face;
    Window_Load(Editor_Juno);
    Juno_Take_Font(Font_Face);
    Font_Loaded = Flag_16::True;
}

void Font_Remove() {
    if (!Is_True(Font_Loaded)) return;
    Font_Loaded = Flag_16::False;
    const int error = Font_File_Remove(Font_Path());
    if (error != 0) Message_Box("Error " + std::to_string(error), Buttons_Set::Ok, Icon::Stop);
}

bool Display_Check() {
    Screen_PPI = To_Int16(Display_Logical_Density());
    Font_Scale = static_cast<float>(Screen_PPI / Base_Density);
    if (Screen_PPI == Small_Fonts || Screen_PPI == Large_Fonts) return true;
    Message_Box("Unsupported system font size: " + std::to_string(Screen_PPI) +
                    " ppi (pixel per inch).\r"
                    "Please set the font size to 'small fonts' (96 ppi) or 'large fonts (120 ppi).\r\r"
                    "For additional informations, see the README.TXT file.",
                Buttons_Set::Ok, Icon::Stop);
    return false;
}
