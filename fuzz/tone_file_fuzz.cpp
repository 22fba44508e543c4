// Any bytes as a tone file of the JX-8P, or of the MKS-70 (FUZZ_FORMAT says which, by the format byte of
// its messages). Read as the file window's press reads it, opened, saved over itself and read again. The
// records, every message sent, the questions and the bytes on the disk are held against a second reading of
// the format written here; nobody else's record may change.
//
//   byte 0   1 MIDI on, 2 automatic sending, 4 patch window open, 8 "Save As" saves (else it is cancelled)
//   byte 1   the channel
//   then     a length of 0 to 7 and so many answers, then the file
#include <array>
#include <vector>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/windows.h"
#include "feed.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/file_ok.h"
#include "memory_disk.h"
#include "midi/out.h"
#include "platform/text.h"
#include "sequencer/sequence.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

const std::string Path = std::string(Disk_Folder) + "/Tone.syx";
const std::string Kept_Path = std::string(Disk_Folder) + "/kept.syx";

constexpr char Format = FUZZ_FORMAT;  // 0x21 or 0x24

struct Reading {
    std::array<std::uint8_t, Tone_Size> tone;
    std::array<std::uint8_t, Patch_Size> patch;
    bool sending;         // the tone goes out behind every message of a file
    bool saves;           // the file window's answer
    std::string answers;  // not given yet
    std::vector<std::string> sent = {};
    std::vector<std::string> saved = {};  // images of tones that went to a file of their own
    bool found = false;
};

std::string Start_Of(std::initializer_list<int> bytes) {
    std::string text;
    for (const int byte : bytes) text += static_cast<char>(byte);
    return text;
}

std::string Tone_Message(const Reading& now) {
    const int channel = MIDI_Channel - 1;
    std::string message = Start_Of({0xF0, 0x41, 0x35, channel, Format, 0x20, 0x01});
    message.append(now.tone.begin(), now.tone.end());
    message += Start_Of({0x24, 0x07, 0xF0, 0x41, 0x36, channel, Format, 0x30, 0x01});
    for (int number = 0; number < 7; ++number) {
        message += static_cast<char>(number);
        message += static_cast<char>(now.patch[static_cast<std::size_t>(number)]);
    }
    return message + '\xF7';
}

// A file says 21, whatever the instrument.
std::string Image(const Reading& now) {
    const int channel = MIDI_Channel - 1;
    std::string image = Start_Of({0xF0, 0x41, 0x35, channel, 0x21, 0x20, 0x01});
    image.append(now.tone.begin(), now.tone.end());
    image += Start_Of({0xF7, 0xF0, 0x41, 0x36, channel, 0x21, 0x30, 0x01});
    for (int number = 0; number < 7; ++number) {
        image += static_cast<char>(number);
        image += static_cast<char>(now.patch[static_cast<std::size_t>(number)]);
    }
    return image + '\xF7';
}

bool Says_Yes(Reading& now) {
    if (now.answers.empty()) return false;
    const bool yes = static_cast<unsigned char>(now.answers.front()) % 2 == 1;
    now.answers.erase(0, 1);
    return yes;
}

bool Has_Header(std::string_view file, std::size_t at, int opcode, int level) {
    std::string header(file.substr(at, 7));
    header.resize(7);
    return header[0] == '\xF0' && header[1] == '\x41' && header[2] == opcode && header[4] == '\x21' &&
           header[5] == level && header[6] == '\x01';
}

void Take_Present(std::string_view file, std::size_t at, std::uint8_t& byte) {
    if (at < file.size()) byte = static_cast<std::uint8_t>(file[at]);
}

void Read(std::string_view file, bool opening, Reading& now) {
    now.found = false;
    bool foreign = false;
    bool first_is_tone = false;
    for (std::size_t at = 0; at < file.size(); ++at) {
        if (file[at] != '\xF0') continue;
        const std::size_t begin = at;
        at += 7;
        if (foreign) {
            // Nothing more is known in this file.
        } else if (Has_Header(file, begin, 0x35, 0x20)) {
            first_is_tone = begin == 0;
            if (now.found) {
                const bool yes = Says_Yes(now);
                if (!opening && !yes) return;
                if (opening && yes && now.saves) {
                    now.saved.push_back(Image(now));
                    if (now.sending) now.sent.push_back(Tone_Message(now));
                }
            }
            for (std::size_t place = 0; place < Tone_Size; ++place)
                Take_Present(file, begin + 7 + place, now.tone[place]);
            at = begin + 7 + 59;
            now.found = true;
        } else if (first_is_tone && Has_Header(file, begin, 0x36, 0x30)) {
            for (std::size_t number = 0; number < 7; ++number)
                Take_Present(file, begin + 8 + 2 * number, now.patch[number]);
            at = begin + 7 + 12;
        } else {
            foreign = true;
        }
        if (now.sending) now.sent.push_back(Tone_Message(now));
    }
}

void Check_Same(const Reading& now) {
    Check(Tone_Data == now.tone);
    Check(Patch_Data == now.patch);
    Check(SYX_Tone_Found == now.found);
    Check(Stand.sent == now.sent);
    Check(Stand.answers == now.answers);
}

// The user in front of the file window that a question has opened.
bool In_The_File_Window(Reading& now, std::vector<std::string>& saved) {
    Check(File_Dlg.loaded);
    if (!now.saves) {
        FD_Event(FD_Button_Cancel_Click);
        return true;
    }
    FD_FileName_Change("kept");
    FD_Event(FD_Button_Ok_Click);
    Check(!File_Dlg.loaded);
    saved.push_back(Disk.at(Kept_Path));
    Disk.erase(Kept_Path);
    return true;
}

void Load(const std::string& bytes, const std::string& mode, Reading& now) {
    const std::string answers = now.answers;
    Stand_Begin();
    Stand.answers = answers;
    now.sent.clear();
    now.saved.clear();
    std::vector<std::string> saved;
    Stand.waiting = [&] { return In_The_File_Window(now, saved); };
    const bool opening = mode == SYX_Mode_Open;
    const std::string caption = Main_Window.caption;
    const std::string name = Tone_File_Name;
    Disk[Path] = bytes;
    SYX_Load(Path, mode);
    Read(bytes, opening, now);
    Check_Same(now);
    Check(saved == now.saved);
    Check(Boxes_With("Wrong MIDI system exclusive data!") == (opening && !now.found ? 1U : 0U));
    if (opening && now.found) {
        Check(Main_Window.caption == "Tonebench - " + Upper_Text(Path));
        Check(Tone_File_Name == Path && Recent_Tone(1) == Path);
        Check(Menu(Menu_File_SYX_Save).enabled && !Is_True(Tone_Loading));
    } else {
        Check(Main_Window.caption == caption);
        // A tone that was saved on the way has the new name.
        Check(Tone_File_Name == name || !saved.empty());
        Check(Is_True(Tone_Loading));
    }
}

void Save_And_Read_Again(const std::string& bytes, Reading& now) {
    Stand_Begin();
    Tone_File_Name = Path;
    Tone_Saved = Flag_16::False;
    const std::string header = Sysex_Header_APR;
    SYX_Save();
    Check(Is_True(Tone_Saved) && Sysex_Header_APR == header && Stand.boxes.empty() && Stand.sent.empty());
    const std::string image = Image(now);
    Check(image.size() == SYX_Size);
    // What lies behind the tone is somebody else's.
    Check(Disk[Path] == image + (bytes.size() > SYX_Size ? bytes.substr(SYX_Size) : ""));

    Disk[Path] = image;
    Tone_Data.fill(1);
    Patch_Data.fill(1);
    Patch_Data[7] = now.patch[7];
    Patch_Data[8] = now.patch[8];
    SYX_Load(Path, "Soundcheck");
    Check(Tone_Data == now.tone && Patch_Data == now.patch);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor);
        Window_Load(Patch);
        Synthesizer = Format == 0x24 ? "MKS-70" : "JX-8P";
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
    Patch_Window_Open = (options & 4U) != 0 ? Flag_8::True : Flag_8::False;
    Dir_Tones = Disk_Folder;
    Sysex_Headers_Update();

    Reading now = {.tone = {},
                   .patch = {},
                   .sending = (options & 3U) == 3,
                   .saves = (options & 8U) != 0,
                   .answers = std::string(feed.Text(7))};
    const std::string bytes(feed.Rest());
    for (std::size_t place = 0; place < Tone_Size; ++place)
        now.tone[place] = static_cast<std::uint8_t>(3 * place + 5);
    for (std::size_t number = 0; number < Patch_Size; ++number)
        now.patch[number] = static_cast<std::uint8_t>(200 + number);
    Tone_Data = now.tone;
    Patch_Data = now.patch;
    Tone_Loading = Flag_8::False;
    const auto juno = Juno_Data;
    const auto cells = Seq_Notes;

    Load(bytes, "Soundcheck", now);
    Load(bytes, SYX_Mode_Open, now);
    Save_And_Read_Again(bytes, now);
    Check(Juno_Data == juno && Seq_Notes == cells);
    return 0;
}
