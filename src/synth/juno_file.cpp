#include "synth/juno_file.h"

#include "midi/out.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "synth/juno.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/tokens.h"
#include "synth/views.h"

namespace {

constexpr std::size_t Header_Size = 7;
constexpr std::size_t File_Size = Header_Size + Juno_Size + 1;
constexpr std::uint8_t Exclusive_End = 0xF7;

bool Refuse(const char* reason) {
    Message_Box(reason, Buttons_Set::Ok, Icon::Stop, "Load Alpha Juno SYX file");
    return false;
}

// The file's bytes; of a longer one no more than shows that it is longer.
std::string First_Bytes(const std::string& path) {
    File_Reader file(path);
    std::string bytes;
    while (const auto byte = file.At(bytes.size() + 1)) {
        bytes += static_cast<char>(*byte);
        if (bytes.size() > File_Size) break;
    }
    return bytes;
}

bool Load(const std::string& path) {
    const std::string bytes = First_Bytes(path);
    if (bytes.size() != File_Size) return Refuse("Wrong file length!");
    if (static_cast<std::uint8_t>(bytes.back()) != Exclusive_End) return Refuse("Wrong file header!");
    for (std::size_t parameter = 0; parameter < Juno_Size; ++parameter)
        Juno_Data[parameter] = static_cast<std::uint8_t>(bytes[Header_Size + parameter]);
    if (MIDI_Autosend == 1) Tone_Send();
    Juno_To_Panel();
    return true;
}

std::string Text() {
    std::string text = Sysex_Header_APR;
    for (const std::uint8_t value : Juno_Data) {
        Append_Token(text, value);
        text += ' ';
    }
    return text + "F7";
}

}  // namespace

void Juno_File_Install() {
    Juno_SYX_Load = Load;
    Juno_SYX_Text = Text;
}
