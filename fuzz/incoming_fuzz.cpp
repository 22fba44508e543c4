// Any bytes at the input: what is put together of them is always a message, however the bytes are cut, and
// is always found again on the other side. The bytes themselves as a message touch nothing but the tone.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "midi/in.h"
#include "platform/message_ring.h"
#include "platform/midi_port.h"
#include "platform/sysex_pieces.h"
#include "shell/wiring.h"
#include "synth/patch.h"
#include "synth/tone.h"

namespace {

void Check(bool holds) {
    if (!holds) std::abort();
}

bool Is_Message(std::string_view bytes) {
    if (bytes.size() < 2 || bytes.size() > Port_In_Longest) return false;
    for (std::size_t place = 1; place + 1 < bytes.size(); ++place) {
        if (static_cast<unsigned char>(bytes[place]) >= 0x80) return false;
    }
    return bytes.front() == '\xF0' && bytes.back() == '\xF7';
}

void Take_Over(const std::string& message) {
    const auto patch = Patch_Data;
    const auto tone = Tone_Data;
    MIDI_In_Message(message);
    Check(Patch_Data == patch);
    for (std::size_t index = 0; index < Tone_Size; ++index) {
        const bool stored = index + 7 < message.size();
        Check(Tone_Data[index] == (stored ? static_cast<std::uint8_t>(message[index + 7]) : tone[index]));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        return true;
    }();
    (void)wired;

    Sysex_Pieces pieces(Port_In_Longest);
    Message_Ring ring(512);
    std::vector<std::string> expected;
    for (std::size_t place = 0; place < size; ++place) {
        if (pieces.Take(data[place]) != Sysex_Pieces::Found::Message) continue;
        Check(Is_Message(pieces.Message()));
        if (ring.Put(pieces.Message())) expected.emplace_back(pieces.Message());
        // The other side is now and then behind.
        if (data[place / 2] % 4 != 0) continue;
        std::string taken;
        for (const std::string& message : expected) {
            Check(ring.Take(taken));
            Check(taken == message);
            Take_Over(taken);
        }
        Check(!ring.Take(taken));
        expected.clear();
    }
    Take_Over(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
