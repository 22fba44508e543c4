#include "synth/profile.h"

#include "desk/menus.h"
#include "desk/windows.h"
#include "platform/text.h"
#include "synth/tokens.h"
#include "synth/views.h"

namespace {

// The first two are followed by the channel token, the rest follow it.
constexpr const char* APR_Start = "F0 41 35 ";
constexpr const char* IPR_Start = "F0 41 36 ";
constexpr const char* JX_Tone = " 21 20 01 ";
constexpr const char* JX_Patch = " 21 30 01 ";
constexpr const char* MKS_Tone_A = " 24 20 01 ";
constexpr const char* MKS_Tone_B = " 24 20 02 ";
constexpr const char* MKS_Patch = " 24 30 01 ";
constexpr const char* Juno_Tone = " 23 20 01 ";

std::string APR_Header(const char* level) {
    return APR_Start + Channel_Token() + level;
}
std::string IPR_Header(const char* level) {
    return IPR_Start + Channel_Token() + level;
}

void Set_Headers(const char* tone, const char* patch) {
    Sysex_Header_APR = APR_Header(tone);
    Sysex_Header_IPR = IPR_Header(tone);
    Sysex_Header_APR_Patch = APR_Header(patch);
    Sysex_Header_IPR_Patch = IPR_Header(patch);
}

void Show_JX_Panel() {
    Window_Hide(Editor_Juno);
    Menu(Menu_Tone_Patch).enabled = true;
    Menu(Menu_File_SYX_Open).enabled = true;
    Editor_Arrange();
    Window_Show(Editor);
}

void Show_Juno_Panel() {
    Menu(Menu_Tone_Patch).enabled = false;
    Window_Hide(Editor);
    Editor_Conceal();
    Juno_Arrange();
    Window_Show(Editor_Juno);
}

}  // namespace

std::string Synthesizer = "JX-8P";
std::string Sysex_Header_APR;
std::string Sysex_Header_IPR;
std::string Sysex_Header_APR_Tone_B;
std::string Sysex_Header_IPR_Tone_B;
std::string Sysex_Header_APR_Patch;
std::string Sysex_Header_IPR_Patch;

bool Is_Alpha_Juno() {
    return Same_Text(Synthesizer, "Alpha Juno");
}

void Sysex_Headers_Update() {
    if (Same_Text(Synthesizer, "JX-8P")) {
        Set_Headers(JX_Tone, JX_Patch);
        Show_JX_Panel();
    } else if (Same_Text(Synthesizer, "MKS-70")) {
        Set_Headers(MKS_Tone_A, MKS_Patch);
        Sysex_Header_APR_Tone_B = APR_Header(MKS_Tone_B);
        Sysex_Header_IPR_Tone_B = IPR_Header(MKS_Tone_B);
        Show_JX_Panel();
    } else if (Is_Alpha_Juno()) {
        Sysex_Header_APR = APR_Header(Juno_Tone);
        Sysex_Header_IPR = IPR_Header(Juno_Tone);
        Sysex_Header_APR_Patch.clear();
        Sysex_Header_IPR_Patch.clear();
        Show_Juno_Panel();
    }
}
