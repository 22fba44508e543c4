#include "input_port.h"

#include <algorithm>
#include <deque>
#include <memory>
#include <utility>

#include "feed.h"
#include "platform/message_ring.h"
#include "platform/midi_port.h"
#include "platform/port_blocks.h"

namespace {

struct Open_Input {
    Sysex_Pieces pieces{Port_In_Longest};
    Message_Ring arrived{Input_Ring_Bytes};
    bool refused = false;
    std::deque<Block_Address> buffers;
    std::string message;
};

constexpr Port_Handle The_Input = 1;
std::unique_ptr<Open_Input> Open;

}  // namespace

Input_Stand_In Input;

bool Input_Is_Open() {
    return Open != nullptr;
}

Sysex_Pieces::Found Input_Arrive(std::uint8_t byte) {
    const Sysex_Pieces::Found found = Open->pieces.Take(byte);
    if (found == Sysex_Pieces::Found::Nothing) return found;
    const bool kept = found == Sysex_Pieces::Found::Message && Open->arrived.Put(Open->pieces.Message());
    if (!kept) Open->refused = true;
    return found;
}

std::string_view Input_Message() {
    return Open->pieces.Message();
}

std::vector<std::string> Port_In_Names() {
    return Input.names;
}
Port_Result Port_In_Open(int, Port_Handle& handle) {
    Open = std::make_unique<Open_Input>();
    handle = The_Input;
    return Port_Ok;
}
Port_Result Port_In_Prepare(Port_Handle, Block_Address header) {
    const auto* const record = Block_Record<Port_In_Header>(header);
    Check(record != nullptr && Block_At(record->data).size() == Port_In_Longest);
    return Port_Ok;
}
Port_Result Port_In_Add_Buffer(Port_Handle, Block_Address header) {
    Check(Open->buffers.size() < 4);
    Open->buffers.push_back(header);
    return Port_Ok;
}
Block_Address Port_In_Next(Port_Handle) {
    if (Open->buffers.empty() || !Open->arrived.Take(Open->message)) return 0;
    const Block_Address address = Open->buffers.front();
    Open->buffers.pop_front();
    auto& header = *Block_Record<Port_In_Header>(address);
    std::copy(Open->message.begin(), Open->message.end(), Block_At(header.data).begin());
    header.bytes = static_cast<std::uint32_t>(Open->message.size());
    return address;
}
bool Port_In_Refused(Port_Handle) {
    return Open != nullptr && std::exchange(Open->refused, false);
}
bool Port_In_Present(Port_Handle) {
    return Input.device_there;
}
Port_Result Port_In_Reset(Port_Handle) {
    Open->buffers.clear();
    return Input.device_there ? Port_Ok : Port_Gone;
}
Port_Result Port_In_Close(Port_Handle) {
    Open = nullptr;
    return Port_Ok;
}
