// Any bytes as a tone file of the Alpha Juno: refused with the right words or taken byte for byte, saved
// over itself and read again. A refused file changes nothing, and the JX-8P's records never change.
//
//   byte 0   1 MIDI on, 2 automatic sending
//   byte 1   the channel
//   then     the file
#include <vector>

#include "desk/recent.h"
#include "desk/windows.h"
#include "feed.h"
#include "memory_disk.h"
#include "midi/out.h"
#include "platform/text.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

const std::string Path = std::string(Disk_Folder) + "/Tone.syx";

constexpr std::size_t File_Size = 57;

const char* Refusal(std::string_view file) {
    if (file.size() != File_Size) return "Wrong file length!";
    return file.back() == '\xF7' ? nullptr : "Wrong file header!";
}

std::string Header() {
    std::string header = "\xF0\x41\x35?\x23\x20\x01";
    header[3] = static_cast<char>(MIDI_Channel - 1);
    return header;
}

// The instrument hears of the other record: the whole-tone message is the JX-8P's for everybody.
std::string Tone_Message() {
    std::string message = Header();
    message.append(Tone_Data.begin(), Tone_Data.end());
    message += "\x24\x07";
    for (int number = 0; number < 7; ++number) {
        message += static_cast<char>(number);
        message += static_cast<char>(Patch_Data[static_cast<std::size_t>(number)]);
    }
    return message + '\xF7';
}

void Load(const std::string& bytes, const std::string& mode, bool sending) {
    Stand_Begin();
    auto expected = Juno_Data;
    const std::string caption = Main_Window.caption;
    SYX_Load(Path, mode);
    const char* const refusal = Refusal(bytes);
    Check(SYX_Tone_Found == (refusal == nullptr));
    Check(Stand.boxes.size() == (refusal == nullptr ? 0U : 1U));
    if (refusal != nullptr) {
        Check(Juno_Data == expected && Stand.boxes.front() == refusal && Stand.sent.empty());
        Check(Main_Window.caption == caption && Is_True(Tone_Loading));
        return;
    }
    std::copy_n(bytes.begin() + 7, Juno_Size, expected.begin());
    Check(Juno_Data == expected);
    Check(Stand.sent == (sending ? std::vector{Tone_Message()} : std::vector<std::string>()));
    Check(Tone_Name_Text == Juno_Name_From_Data() && Tone_Name_Text.size() <= Tone_Name_Size);
    if (mode != SYX_Mode_Open) return;
    Check(Main_Window.caption == "Tonebench - " + Upper_Text(Path));
    Check(Tone_File_Name == Path && Recent_Tone(1) == Path && !Is_True(Tone_Loading));
}

void Save_And_Read_Again(const std::string& bytes) {
    Stand_Begin();
    Tone_File_Name = Path;
    Tone_Saved = Flag_16::False;
    SYX_Save();
    Check(Is_True(Tone_Saved) && Stand.boxes.empty() && Stand.sent.empty());
    std::string image = Header();
    image.append(Juno_Data.begin(), Juno_Data.end());
    image += '\xF7';
    Check(image.size() == File_Size);
    // What lies behind the tone is somebody else's.
    Check(Disk[Path] == image + (bytes.size() > File_Size ? bytes.substr(File_Size) : ""));

    Disk[Path] = image;
    const auto before = Juno_Data;
    Juno_Data.fill(1);
    SYX_Load(Path, "Soundcheck");
    Check(Juno_Data == before);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor_Juno);
        Synthesizer = "Alpha Juno";
        return true;
    }();
    (void)wired;
    Feed feed(data, size);
    const std::uint8_t options = feed.Byte();
    MIDI_Channel = static_cast<std::uint8_t>(1 + feed.Below(16));
    MIDI_Enabled = options & 1U;
    MIDI_Autosend = (options & 2U) != 0 ? 1 : 0;
    MIDI_Out_Handle = Port_Closed;
    Stand.port_opens = true;
    Sysex_Headers_Update();

    Juno_Data.fill(0x15);
    Tone_Loading = Flag_8::False;
    const auto tone = Tone_Data;
    const auto patch = Patch_Data;
    const std::string bytes(feed.Rest());
    Disk[Path] = bytes;
    Load(bytes, "Soundcheck", (options & 3U) == 3);
    Load(bytes, SYX_Mode_Open, (options & 3U) == 3);
    Save_And_Read_Again(bytes);
    Check(Tone_Data == tone && Patch_Data == patch);
    return 0;
}
