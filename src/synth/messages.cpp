#include "synth/messages.h"

#include <utility>

#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/patch_mks70.h"
#include "synth/profile.h"
#include "synth/tokens.h"
#include "synth/tone.h"

namespace {

// The end of the tone part is written as the decimal digits of F7 where all other tokens are hexadecimal.
// So 24 07 goes out in its place, and the next message's F0 ends the exclusive.
constexpr const char* Tone_End = "247 ";

constexpr const char* End = " F7";

bool Automatic() {
    return MIDI_Autosend == 1 && MIDI_Enabled == 1;
}

void Append_Pair(std::string& text, std::size_t number, std::uint8_t value) {
    Append_Token(text, static_cast<std::uint8_t>(number));
    text += ' ';
    Append_Token(text, value);
}

std::string Param_Text(std::size_t number, std::uint8_t value) {
    std::string text = Sysex_Header_IPR;
    Append_Pair(text, number, value);
    return text + End;
}

void Send_Param_Text() {
    MIDI_Send_Long(Sysex_Text_To_Bytes(Sysex_Param_Text));
}

// Literals, not the profile's header: parameters at patch level say 21 to every instrument.
void Send_Patch_Level(std::size_t number, std::uint8_t value) {
    Sysex_Param_Text = "F0 41 36 " + Channel_Token() + " 21 30 01 ";
    Append_Pair(Sysex_Param_Text, number, value);
    Sysex_Param_Text += End;
    Send_Param_Text();
}

}  // namespace

std::string Sysex_Text;
std::string Sysex_Param_Text;

void Tone_Message_Build() {
    Sysex_Text = Sysex_Header_APR;
    for (const std::uint8_t value : Tone_Data) {
        Append_Token(Sysex_Text, value);
        Sysex_Text += ' ';
    }
    Sysex_Text += Tone_End;
    Sysex_Text += Sysex_Header_IPR_Patch;
    for (std::size_t number = 0; number < Patch_Sent_Count; ++number) {
        Append_Pair(Sysex_Text, number, Patch_Data[number]);
        Sysex_Text += ' ';
    }
    Sysex_Text += "F7";
    Sysex_Text = Sysex_Text_To_Bytes(Sysex_Text);
}

void Tone_Send() {
    if (MIDI_Enabled != 1) return;
    Tone_Message_Build();
    MIDI_Send_Long(Sysex_Text);
}

void Editor_Send_Param(std::size_t parameter) {
    if (!Automatic()) return;
    Sysex_Param_Text = Param_Text(parameter, Tone_Byte(parameter));
    Send_Param_Text();
}

void Juno_Send_Param(std::size_t parameter) {
    if (!Automatic()) return;
    std::string text = Param_Text(parameter, Juno_Byte(parameter));
    if (text == Sysex_Param_Text) return;
    Sysex_Param_Text = std::move(text);
    Send_Param_Text();
}

void Patch_Send_Param(std::size_t parameter) {
    if (Automatic()) Send_Patch_Level(parameter, Patch_Byte(parameter));
}

void Patch_MKS70_Param_Send(std::size_t index) {
    if (Automatic()) Send_Patch_Level(index, Patch_MKS70_Byte(index));
}

void Tone_Name_Send() {
    if (!Automatic()) return;
    Sysex_Param_Text = Sysex_Header_IPR;
    for (std::size_t index = 0; index < Tone_Name_Size; ++index) {
        if (Is_Alpha_Juno()) {
            const std::size_t parameter = Juno_Name_Place + index;
            Append_Pair(Sysex_Param_Text, parameter, Juno_Data[parameter]);
        } else {
            Append_Pair(Sysex_Param_Text, index, Tone_Data[index]);
        }
        Sysex_Param_Text += ' ';
    }
    // The second blank in a row: behind a value of two digits the pairs fall on " F", so the message ends
    // in 0F. Behind one digit, as an Alpha Juno's codes below 16 are, it ends in F7.
    Sysex_Param_Text += End;
    Send_Param_Text();
}
