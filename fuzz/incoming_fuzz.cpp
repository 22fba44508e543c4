// Any bytes at the input while a tone is waited for, cut anywhere. What is put together of them, the order
// in which it is handed over, the tone's bytes, the end of the reception and what is refused are held
// against a second reading written here. Nothing is sent back, and nobody else's record changes.
//
//   byte 0   1 MIDI on, 2 automatic sending before, 4 not in receive mode, 8 Alpha Juno
//   then     steps: what comes in, and when the interface looks at it
#include <algorithm>
#include <array>
#include <deque>
#include <utility>

#include "desk/menus.h"
#include "desk/windows.h"
#include "feed.h"
#include "input_port.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/receive_mode.h"
#include "platform/midi_port.h"
#include "platform/sysex_pieces.h"
#include "sequencer/sequence.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

constexpr std::size_t Dump_Size = 67;

// -- a second reading ------------------------------------------------------------------------------------

// The messages that bytes hold. Real time is everywhere and means nothing.
class Reader {
  public:
    // True when the byte ends a message.
    bool Take(std::uint8_t byte) {
        if (byte >= 0xF8) return false;
        if (byte == 0xF0) {
            message = '\xF0';
            data_of_others_ = 0;
            open_ = true;
            too_long = false;
            return false;
        }
        if (!open_) return false;
        if (byte >= 0x80 && byte != 0xF7) {
            const bool one = (byte >= 0xC0 && byte <= 0xDF) || byte == 0xF1 || byte == 0xF3;
            const bool two = byte < 0xC0 || (byte >= 0xE0 && byte <= 0xEF) || byte == 0xF2;
            data_of_others_ = two ? 2 : (one ? 1 : 0);
            return false;
        }
        if (byte != 0xF7 && data_of_others_ > 0) {
            --data_of_others_;
            return false;
        }
        open_ = byte != 0xF7;
        if (message.size() == Port_In_Longest) {
            open_ = false;
            too_long = true;
            return true;
        }
        message += static_cast<char>(byte);
        return !open_;
    }

    std::string message;
    bool too_long = false;

  private:
    bool open_ = false;
    int data_of_others_ = 0;
};

struct World {
    Reader reader;
    std::deque<std::string> waiting;  // in the port
    std::size_t held = 0;             // bytes of the ring in use
    bool refused = false;
    std::array<std::uint8_t, Tone_Size> tone;
    bool receiving;
    std::size_t boxes = 0;
};

void Arrive(World& world, std::uint8_t byte) {
    if (!Input_Is_Open()) return;
    const Sysex_Pieces::Found found = Input_Arrive(byte);
    if (!world.reader.Take(byte)) {
        Check(found == Sysex_Pieces::Found::Nothing);
        return;
    }
    const std::string& message = world.reader.message;
    Check(found == (world.reader.too_long ? Sysex_Pieces::Found::Refused : Sysex_Pieces::Found::Message));
    if (world.reader.too_long || world.held + 4 + message.size() > Input_Ring_Bytes) {
        world.refused = true;
        return;
    }
    Check(Input_Message() == message);
    world.waiting.push_back(message);
    world.held += 4 + message.size();
}

// What waits in the port goes with it. A device that has gone says so.
void Close(World& world) {
    world.receiving = false;
    world.waiting.clear();
    world.held = 0;
    if (!Input.device_there) ++world.boxes;
}

// Stores whatever has come; a whole tone ends the reception, and begins one outside of it. False when that
// has closed the port.
bool Take_Over(World& world, const std::string& message, bool open) {
    for (std::size_t byte = 7; byte < std::min(message.size(), Dump_Size - 1); ++byte)
        world.tone[byte - 7] = static_cast<std::uint8_t>(message[byte]);
    if (message.size() != Dump_Size) return open;
    if (!world.receiving) {
        world.receiving = open;
        return open;
    }
    Close(world);
    return false;
}

// The interface looks at the port.
void Look(World& world) {
    bool open = Input_Is_Open();
    bool more = true;
    while (open && more) {
        // Two are fetched at a time, and both are handed over, also when the first one closes the port.
        std::deque<std::string> pair;
        while (pair.size() < 2 && !world.waiting.empty()) {
            world.held -= 4 + world.waiting.front().size();
            pair.push_back(world.waiting.front());
            world.waiting.pop_front();
        }
        more = !pair.empty();
        for (const std::string& message : pair) open = Take_Over(world, message, open);
        // One box for all that were refused until now.
        if (open && std::exchange(world.refused, false)) ++world.boxes;
    }
    if (open && !Input.device_there) {
        Close(world);
        open = false;
    }
    MIDI_In_Arrived();
    Check((Input_Is_Open()) == open);
}

void Step(Feed& feed, World& world) {
    const int step = feed.Below(8);
    if (step <= 1) {
        for (const char byte : feed.Text(31)) Arrive(world, static_cast<std::uint8_t>(byte));
    } else if (step <= 3) {
        // A dump with as many bytes as it should have, or a few more or less.
        Arrive(world, 0xF0);
        const int count = feed.Below(8) == 0 ? feed.Below(255) : 65;
        const std::uint8_t first = feed.Byte();
        for (int place = 0; place < count; ++place)
            Arrive(world, static_cast<std::uint8_t>((first + place) & 0x7F));
        if (step == 3) Arrive(world, feed.Byte());
        Arrive(world, 0xF7);
    } else if (step == 4) {
        // Much of the same, now and then more than any message may have.
        const std::uint8_t byte = feed.Byte();
        const int count = feed.Byte();
        for (int left = count == 255 ? 4200 : count; left > 0; --left) Arrive(world, byte);
    } else if (step == 5 && feed.Below(16) == 0) {
        Input.device_there = false;
    } else {
        Look(world);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor);
        Window_Load(Editor_Juno);
        return true;
    }();
    (void)wired;
    Feed feed(data, size);
    const std::uint8_t options = feed.Byte();
    Stand_Begin();
    Stand.port_opens = true;
    Input.device_there = true;
    MIDI_Enabled = options & 1U;
    MIDI_Autosend = (options & 2U) != 0 ? 1 : 0;
    Synthesizer = (options & 8U) != 0 ? "Alpha Juno" : "JX-8P";
    Tone_Data.fill(0x11);
    const std::uint8_t autosend = MIDI_Autosend;
    const auto patch = Patch_Data;
    const auto juno = Juno_Data;
    const auto cells = Seq_Notes;

    World world;
    world.tone = Tone_Data;
    world.receiving = (options & 4U) == 0;
    MIDI_In_Open();
    if (world.receiving) MIDI_Receive_Toggle();
    while (!feed.Empty()) {
        Step(feed, world);
        Check(Tone_Data == world.tone);
        Check((MIDI_Receiving != 0) == world.receiving);
        Check(Stand.boxes.size() == world.boxes);
        Check(MIDI_Autosend == (world.receiving ? 0 : autosend));
        Check(Menu(Menu_File).enabled != world.receiving);
        Check(MIDI_In_Pending_1.empty() && MIDI_In_Pending_2.empty());
    }
    Look(world);
    Check(Tone_Data == world.tone);
    // The way out without a tone.
    if (MIDI_Receiving != 0) MIDI_Receive_Toggle();
    MIDI_In_Close();
    Check(!Input_Is_Open() && MIDI_In_Handle == Port_Closed && MIDI_Autosend == autosend);
    for (const MIDI_In_Buffer& buffer : MIDI_In_Buffers) Check(buffer.data == 0 && buffer.header == 0);
    Check(Stand.sent.empty() && Stand.shorts == 0);
    Check(Patch_Data == patch && Juno_Data == juno && Seq_Notes == cells);
    return 0;
}
