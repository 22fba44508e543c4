#include "fakes/fake_midi_port.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "platform/wake_up.h"

Fake_Ports Ports;

namespace {

std::string Hex_Line(std::string_view bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string line;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (!line.empty()) line += ' ';
        line += Digits[byte / 16U];
        line += Digits[byte % 16U];
    }
    return line;
}

bool Is_Open(Port_Handle handle) {
    return handle != Port_Closed && handle == Ports.open_handle;
}

Port_Result Next_Of(std::vector<Port_Result>& results) {
    if (results.empty()) return Port_Ok;
    const Port_Result result = results.front();
    results.erase(results.begin());
    return result;
}

// Blocks of memory: the handle tells which, the address is a hundred more.
constexpr Block_Address First_Address = 100;
std::map<Block_Handle, std::vector<char>> Blocks;
Block_Handle Last_Block = 0;

void Note(const std::string& call, std::int32_t handle) {
    Ports.in_calls.push_back(call + " " + std::to_string(handle));
}

}  // namespace

std::vector<std::string> Port_Out_Names() {
    return Ports.out_names;
}
std::vector<std::string> Port_In_Names() {
    return Ports.in_names;
}

Port_Result Port_Out_Open(int device, Port_Handle& handle) {
    ++Ports.open_calls;
    if (Ports.open_result != Port_Ok) return Ports.open_result;
    if (device < 0 || device >= static_cast<int>(Ports.out_names.size())) return Port_Bad_Device;
    Ports.opened.push_back(device);
    handle = Ports.open_handle = static_cast<Port_Handle>(Ports.opened.size());
    return Port_Ok;
}

Port_Result Port_Out_Close(Port_Handle handle) {
    ++Ports.close_calls;
    if (!Ports.close_results.empty()) {
        const Port_Result result = Ports.close_results.front();
        Ports.close_results.erase(Ports.close_results.begin());
        if (result != Port_Ok) return result;
    }
    if (!Is_Open(handle)) return Port_Bad_Handle;
    Ports.open_handle = Port_Closed;
    return Port_Ok;
}

Port_Result Port_Out_Short(Port_Handle handle, std::uint32_t word) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (Ports.send_result != Port_Ok) return Ports.send_result;
    const std::array<char, 3> bytes = {static_cast<char>(word), static_cast<char>(word >> 8U),
                                       static_cast<char>(word >> 16U)};
    Ports.sent.push_back(Hex_Line({bytes.data(), bytes.size()}));
    return Port_Ok;
}

Port_Result Port_Out_Ready(Port_Handle handle) {
    return Is_Open(handle) ? Ports.ready_result : Port_Bad_Handle;
}

Port_Result Port_Out_Long(Port_Handle handle, std::string_view bytes) {
    ++Ports.long_calls;
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (Ports.long_result == Port_Ok && Ports.ready_result == Port_Ok)
        Ports.sent.push_back(Hex_Line(bytes));
    return Ports.long_result;
}

void Arrive(std::string_view message) {
    Ports.in_arrived.emplace_back(message);
    Wake_Up();
}

Port_Result Port_In_Open(int device, Port_Handle& handle) {
    if (Ports.in_open_result != Port_Ok) return Ports.in_open_result;
    if (device < 0 || device >= static_cast<int>(Ports.in_names.size())) return Port_Bad_Device;
    Ports.in_opened.push_back(device);
    handle = Ports.in_handle = static_cast<Port_Handle>(Ports.in_opened.size());
    return Port_Ok;
}
Port_Result Port_In_Prepare(Port_Handle, Block_Address) {
    return Next_Of(Ports.in_prepare_results);
}
Port_Result Port_In_Add_Buffer(Port_Handle, Block_Address header) {
    const Port_Result result = Next_Of(Ports.in_add_results);
    if (result == Port_Ok) Ports.in_buffers.push_back(header);
    return result;
}
Block_Address Port_In_Next(Port_Handle) {
    if (Ports.in_arrived.empty() || Ports.in_buffers.empty()) return 0;
    const Block_Address address = Ports.in_buffers.front();
    Ports.in_buffers.pop_front();
    auto& header = *Block_Record<Port_In_Header>(address);
    const std::string& message = Ports.in_arrived.front();
    std::copy(message.begin(), message.end(), Block_At(header.data).begin());
    header.bytes = static_cast<std::uint32_t>(message.size());
    Ports.in_arrived.pop_front();
    return address;
}
bool Port_In_Refused(Port_Handle) {
    return std::exchange(Ports.in_refused, false);
}
bool Port_In_Present(Port_Handle) {
    return Ports.in_present;
}
Port_Result Port_In_Reset(Port_Handle handle) {
    Note("reset", handle);
    Ports.in_buffers.clear();
    Ports.in_arrived.clear();
    return Ports.in_reset_result;
}
Port_Result Port_In_Close(Port_Handle handle) {
    Note("close", handle);
    Ports.in_handle = Port_Closed;
    return Ports.in_close_result;
}

Block_Handle Block_Make(std::size_t size) {
    Blocks[++Last_Block].resize(size);
    return Last_Block;
}
Block_Address Block_Lock(Block_Handle handle) {
    return First_Address + handle;
}
void Block_Page_Lock(Block_Handle) {}
void Block_Page_Unlock(Block_Handle handle) {
    Note("page-unlock", handle);
}
void Block_Unlock(Block_Handle handle) {
    Note("unlock", handle);
}
void Block_Free(Block_Handle handle) {
    Note("free", handle);
    Blocks.erase(handle);
}
std::span<char> Block_At(Block_Address address) {
    const auto found = Blocks.find(address - First_Address);
    if (found == Blocks.end()) return {};
    return {found->second.data(), found->second.size()};
}

std::string Port_Error_Text(Port_Result result) {
    if (result == 999) return "";
    if (result == 998) return std::string(500, 'x');
    return "Text of " + std::to_string(result);
}

std::vector<std::string> Sent() {
    return std::exchange(Ports.sent, {});
}
