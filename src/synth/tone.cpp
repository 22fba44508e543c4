#include "synth/tone.h"

#include <algorithm>

#include "desk/menus.h"
#include "desk/windows.h"
#include "platform/text.h"
#include "synth/patch.h"
#include "synth/patch_mks70.h"
#include "synth/profile.h"
#include "synth/views.h"

namespace {

constexpr std::uint8_t Blank = 32;
constexpr std::uint8_t Tune_Centre = 56;  // 0 semitones
constexpr std::uint8_t Fine_Centre = 64;  // 0

char ANSI_Upper_Character(char character) {
    const auto code = static_cast<std::uint8_t>(character);
    const bool small_letter =
        (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
    if (small_letter) return static_cast<char>(code - 0x20);
    switch (code) {
        case 0x9A:  // s, z with caron and the oe ligature stand 16 above their capitals
        case 0x9C:
        case 0x9E:
            return static_cast<char>(code - 0x10);
        case 0xFF:  // y with diaeresis
            return static_cast<char>(0x9F);
        default:
            return character;
    }
}

}  // namespace

std::array<std::uint8_t, Tone_Size> Tone_Data = {};
std::string Tone_Name_Text = "NEW";
Flag_16 Tone_Saved = Flag_16::True;
Flag_8 Tone_Loading = Flag_8::False;
std::string Tone_File_Name;
std::string Tone_File_Short;

std::uint8_t& Tone_Byte(std::size_t parameter) {
    if (parameter >= Tone_Size) throw Fatal_Error("Subscript out of range");
    return Tone_Data[parameter];
}

void Tone_Init() {
    Tone_Saved = Flag_16::True;
    Tone_File_Short.clear();
    Tone_File_Name.clear();
    Patch_Name_Text.clear();
    Main_Window.caption = "Tonebench";
    Menu(Menu_File_SYX_Save).enabled = false;

    // The Alpha Juno's record stands beside this one, which keeps its contents then.
    if (Is_Alpha_Juno()) {
        Juno_Tone_Init();
        return;
    }
    Tone_Data.fill(0);
    std::fill_n(Tone_Data.begin(), Tone_Name_Size, Blank);
    Tone_Data[Parameter_DCO1_Tune] = Tune_Centre;
    Tone_Data[Parameter_DCO2_Tune] = Tune_Centre;
    Tone_Data[Parameter_DCO2_FTune] = Fine_Centre;
    Patch_Init();
    Panel_Apply_Tone();
    if (Is_True(Patch_Window_Open)) Panel_Apply_Patch();
}

std::string Tone_Name_Of(const std::string& text) {
    // Blanks only: a tab is a character of the name.
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return ANSI_Upper(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Tone_Name_From_Data() {
    return Tone_Name_Of(std::string(Tone_Data.begin(), Tone_Data.begin() + Tone_Name_Size));
}

std::string ANSI_Upper(const std::string& text) {
    std::string capitals;
    for (const char character : text) capitals += ANSI_Upper_Character(character);
    return capitals;
}
