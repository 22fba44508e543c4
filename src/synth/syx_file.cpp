#include "synth/syx_file.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/windows.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/text.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tokens.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

constexpr std::size_t Header_Size = 7;
constexpr std::size_t Channel_Place = 3;
constexpr std::uint8_t Exclusive = 0xF0;

using Header = std::array<std::uint8_t, Header_Size>;

constexpr Header Tone_Header = {0xF0, 0x41, 0x35, 0x00, 0x21, 0x20, 0x01};
constexpr Header Patch_Header = {0xF0, 0x41, 0x36, 0x00, 0x21, 0x30, 0x01};

// A file may come from any channel.
bool Same_Header(Header read, const Header& known) {
    read[Channel_Place] = known[Channel_Place];
    return read == known;
}

void Append_With_Blank(std::string& text, std::uint8_t value) {
    Append_Token(text, value);
    text += ' ';
}

std::string Image_Text() {
    // Literals, not the profile's headers: every file says 21.
    Sysex_Header_APR = "F0 41 35 " + Channel_Token() + " 21 20 01 ";
    Sysex_Header_IPR_Patch = "F0 41 36 " + Channel_Token() + " 21 30 01 ";
    std::string text = Sysex_Header_APR;
    for (const std::uint8_t value : Tone_Data) Append_With_Blank(text, value);
    text += "F7 " + Sysex_Header_IPR_Patch;
    for (std::uint8_t number = 0; number < Patch_Sent_Count; ++number) {
        Append_With_Blank(text, number);
        Append_With_Blank(text, Patch_Data[number]);
    }
    return text + "F7";
}

// Walks a file by hand, from one F0 to the next. Its notes are its own, as a load can start within a load:
// the question about a second tone may lead to the file window, which reads what is pressed there.
class Scanner {
  public:
    Scanner(const std::string& path, bool opening) : file_(path), opening_(opening) {}

    bool Is_Open() const { return file_.Is_Open(); }

    void Walk() {
        while (const auto found = file_.Find(Exclusive, position_)) {
            position_ = *found;
            if (!Take_Message()) return;
            // Behind every message, known or not. So the usual file sends twice: with the old patch
            // parameters, then with its own.
            if (MIDI_Autosend == 1) Tone_Send();
            ++position_;
        }
    }

  private:
    // The message whose F0 stands at the position. False when the user wants no more of the file.
    bool Take_Message() {
        Header header = {};
        for (std::size_t place = 0; place < Header_Size; ++place)
            header[place] = file_.At(position_ + place).value_or(0);
        position_ += Header_Size;
        // What follows a foreign message is not trusted: nothing behind it is recognised any more.
        if (foreign_seen_) return true;
        if (Same_Header(header, Tone_Header)) return Take_Tone();
        if (Same_Header(header, Patch_Header) && tone_at_start_) {
            Take_Patch();
        } else {
            foreign_seen_ = true;
        }
        return true;
    }

    bool Take_Tone() {
        tone_at_start_ = position_ == 1 + Header_Size;
        if (tone_read_ && !Wants_Another()) return false;
        for (std::size_t place = 0; place < Tone_Size; ++place) Take(Tone_Data[place], position_ + place);
        position_ += Tone_Size;
        tone_read_ = true;
        SYX_Tone_Found = true;
        Panel_Apply_Tone();
        return true;
    }

    bool Wants_Another() const {
        if (!opening_) {
            return Message_Box("File contains another TONE. Load it?", Buttons_Set::Yes_No) == Answer::Yes;
        }
        if (Message_Box("File contains another TONE. Save old TONE first?", Buttons_Set::Yes_No) ==
            Answer::Yes) {
            SYX_Save_As();
        }
        return true;
    }

    // Values only: the numbers between them are taken to stand in their order.
    void Take_Patch() {
        for (std::size_t number = 0; number < Patch_Sent_Count; ++number)
            Take(Patch_Data[number], position_ + 1 + 2 * number);
        // Two short of its end, on the last number: the walk looks at the last value once more.
        position_ += 2 * (Patch_Sent_Count - 1);
        if (opening_ && Is_True(Patch_Window_Open)) Panel_Apply_Patch();
    }

    // What a cut file does not hold stays as it was.
    void Take(std::uint8_t& byte, std::uint64_t position) { byte = file_.At(position).value_or(byte); }

    File_Reader file_;
    bool opening_;
    std::uint64_t position_ = 1;
    bool foreign_seen_ = false;
    bool tone_read_ = false;
    bool tone_at_start_ = false;  // only then does a patch message belong to the tone
};

void Make_Current(std::string path) {
    Main_Window.caption = "Tonebench - " + Upper_Text(path);
    Menu(Menu_File_SYX_Save).enabled = true;
    Recent_Tone_Add(path);
    Tone_File_Short = path.substr(path.rfind(Path_Separator) + 1);
    Tone_File_Name = std::move(path);
    Tone_Loading = Flag_8::False;
    Tone_File_Loaded();
}

}  // namespace

std::array<std::uint8_t, SYX_Size> SYX_Image = {};
bool SYX_Tone_Found = false;
Hook<void()> SYX_Save_As;
Hook<void()> Tone_File_Loaded;

std::size_t SYX_Image_Build() {
    if (Is_Alpha_Juno()) {
        const std::string bytes = Sysex_Text_To_Bytes(Juno_SYX_Text());
        const std::size_t count = std::min(bytes.size(), SYX_Size);
        std::copy_n(bytes.begin(), count, SYX_Image.begin());
        return count;
    }
    const std::string bytes = Sysex_Text_To_Bytes(Image_Text());
    std::copy_n(bytes.begin(), SYX_Size, SYX_Image.begin());
    Sysex_Headers_Update();
    return SYX_Size;
}

void SYX_Save() {
    Sysex_Headers_Update();
    const std::size_t count = SYX_Image_Build();
    const std::string contents(SYX_Image.begin(), SYX_Image.begin() + static_cast<std::ptrdiff_t>(count));
    const int error = File_Overwrite(Tone_File_Name, contents);
    if (error != 0) {
        Message_Box("Error " + std::to_string(error) + ": " + std::generic_category().message(error),
                    Buttons_Set::Ok, Icon::Stop);
        return;
    }
    Recent_Tone_Add(Tone_File_Name);
    Tone_Saved = Flag_16::True;
    Menu(Menu_Edit_Undo).enabled = false;
}

// The path by value, as it may stand in one of the places that a load writes.
void SYX_Load(std::string path, const std::string& mode) {
    const bool opening = mode == SYX_Mode_Open;
    SYX_Tone_Found = false;
    {
        Scanner scanner(path, opening);
        if (!scanner.Is_Open()) return;
        // Ends with an opened tone only. Behind a mere preview the panels stay without words until the file
        // window puts that right.
        Tone_Loading = Flag_8::True;
        if (Is_Alpha_Juno()) {
            // It has shown what was wrong itself.
            if (!Juno_SYX_Load(path)) return;
            SYX_Tone_Found = true;
        } else {
            scanner.Walk();
        }
    }
    if (!opening) return;
    if (SYX_Tone_Found) {
        Make_Current(std::move(path));
    } else {
        Message_Box("Wrong MIDI system exclusive data!", Buttons_Set::Ok, Icon::Stop);
    }
}
