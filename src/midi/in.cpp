#include "midi/in.h"

#include <utility>

#include "platform/message_box.h"
#include "platform/text.h"
#include "platform/timer.h"
#include "platform/wake_up.h"

namespace {

constexpr std::size_t First_Buffer = 1;

// Size of the classic error text buffer, its final zero included.
constexpr std::size_t In_Error_Buffer = 160;

// How often a waiting port is asked whether its device is still there.
constexpr int Look_Milliseconds = 500;

struct In_State {
    Timer look = {.interval = Look_Milliseconds, .tick = MIDI_In_Arrived};
    bool arriving = false;  // MIDI_In_Arrived is running; a box in it lets further events in
};

In_State State;

// Ends also when a rule throws.
class Arriving {
  public:
    Arriving() { State.arriving = true; }
    ~Arriving() { State.arriving = false; }
    Arriving(const Arriving&) = delete;
    Arriving& operator=(const Arriving&) = delete;
};

void Block_Into(std::size_t size, Block_Handle& handle, Block_Address& address) {
    handle = Block_Make(size);
    address = Block_Lock(handle);
    Block_Page_Lock(handle);
}

// Makes a buffer and gives it to the port. False, with the failure shown, when the port does not take it.
bool Give(MIDI_In_Buffer& buffer) {
    buffer.in_use = "1";
    Block_Into(Port_In_Longest, buffer.data_block, buffer.data);
    Block_Into(sizeof(Port_In_Header), buffer.header_block, buffer.header);
    *Block_Record<Port_In_Header>(buffer.header) = {.data = buffer.data, .size = Port_In_Longest};

    Port_Result result = Port_In_Prepare(MIDI_In_Handle, buffer.header);
    MIDI_Show_In_Error(result, "vbMidiInPrepareHeader");
    if (result != Port_Ok) return false;
    result = Port_In_Add_Buffer(MIDI_In_Handle, buffer.header);
    MIDI_Show_In_Error(result, "vbMidiInAddBuffer");
    return result == Port_Ok;
}

// The next message of the port, if the string is free for it. The buffer goes back to the port at once.
void Fill(Byte_String& pending) {
    if (!pending.empty()) return;
    const Block_Address address = Port_In_Next(MIDI_In_Handle);
    if (address == 0) return;
    const auto& header = *Block_Record<Port_In_Header>(address);
    pending.assign(Block_At(header.data).data(), header.bytes);
    MIDI_Show_In_Error(Port_In_Add_Buffer(MIDI_In_Handle, address), "vbMidiInAddBuffer");
}

bool Pending() {
    return !MIDI_In_Pending_1.empty() || !MIDI_In_Pending_2.empty();
}

void Leave() {
    if (MIDI_Receiving != 0) {
        MIDI_Receive_Toggle();
    } else {
        MIDI_In_Close();
    }
}

}  // namespace

Port_Handle MIDI_In_Handle = Port_Closed;
std::int16_t MIDI_In_Device = 0;
Flag_16 MIDI_In_Missing = Flag_16::False;
std::int16_t MIDI_Receiving = 0;
Byte_String MIDI_In_Pending_1;
Byte_String MIDI_In_Pending_2;
std::array<MIDI_In_Buffer, 5> MIDI_In_Buffers;

Hook<void()> MIDI_Receive_Toggle;
Hook<void(const Byte_String& message)> MIDI_In_Message;

void MIDI_In_Open() {
    if (Is_True(MIDI_In_Missing) || MIDI_In_Handle > 0) return;
    const Port_Result result = Port_In_Open(MIDI_In_Device, MIDI_In_Handle);
    MIDI_Show_In_Error(result, "vbMidiInOpen");
    if (result != Port_Ok) return;
    for (std::size_t index = First_Buffer; index < MIDI_In_Buffers.size(); ++index) {
        if (!Give(MIDI_In_Buffers.at(index))) {
            MIDI_In_Close();
            return;
        }
    }
    Wake_Up_Begin(MIDI_In_Arrived);
    Timer_Start(State.look);
}

void MIDI_In_Close() {
    if (!Is_True(MIDI_In_Missing) && MIDI_In_Handle >= 0) {
        Timer_Stop(State.look);
        Wake_Up_End();
        MIDI_Show_In_Error(Port_In_Reset(MIDI_In_Handle), "vbMidiInClose");
        MIDI_Show_In_Error(MIDI_In_Free_Buffers(), "vbMidiInClose");
        MIDI_Show_In_Error(Port_In_Close(MIDI_In_Handle), "vbMidiInClose");
    }
    MIDI_In_Handle = Port_Closed;
}

std::int16_t MIDI_In_Free_Buffers() {
    for (std::size_t index = First_Buffer; index < MIDI_In_Buffers.size(); ++index) {
        MIDI_In_Buffer& buffer = MIDI_In_Buffers.at(index);
        if (Number_At_Start(buffer.in_use) == 0 || buffer.data == 0) continue;
        Block_Page_Unlock(buffer.data_block);
        Block_Page_Unlock(buffer.header_block);
        Block_Unlock(buffer.data_block);
        Block_Unlock(buffer.header_block);
        Block_Free(buffer.data_block);
        Block_Free(buffer.header_block);
        buffer.data_block = buffer.header_block = 0;
        buffer.data = buffer.header = 0;
    }
    return 0;
}

Byte_String MIDI_In_Take_1() {
    return std::exchange(MIDI_In_Pending_1, {});
}

Byte_String MIDI_In_Take_2() {
    return std::exchange(MIDI_In_Pending_2, {});
}

void MidiNotifyControl_Change() {
    const Byte_String first = MIDI_In_Take_1();
    if (!first.empty()) MIDI_In_Message(first);
    const Byte_String second = MIDI_In_Take_2();
    if (!second.empty()) MIDI_In_Message(second);
}

void MIDI_In_Arrived() {
    if (State.arriving) return;
    const Arriving arriving;
    bool more = true;
    while (more && MIDI_In_Handle > 0) {
        Fill(MIDI_In_Pending_1);
        Fill(MIDI_In_Pending_2);
        more = Pending();
        if (more) MidiNotifyControl_Change();
        // One box for all that were refused until now: a whole bank of them must not give a hundred.
        if (Port_In_Refused(MIDI_In_Handle)) Message_Box("Midi buffer overflow!");
    }
    if (MIDI_In_Handle > 0 && !Port_In_Present(MIDI_In_Handle)) Leave();
}

void MIDI_Show_In_Error(Port_Result result, const std::string& context) {
    if (result == 0) return;
    const std::string words = Port_Error_Text(result);
    const std::string text(Cut_To_Bytes(words, In_Error_Buffer - 1));
    Message_Box(context + ": " + (text.empty() ? "Unknown error" : text));
}
