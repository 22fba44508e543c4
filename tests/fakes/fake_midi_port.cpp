#include "fakes/fake_midi_port.h"

#include <array>
#include <utility>

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

std::string Port_Error_Text(Port_Result result) {
    if (result == 999) return "";
    if (result == 998) return std::string(500, 'x');
    return "Text of " + std::to_string(result);
}

std::vector<std::string> Sent() {
    return std::exchange(Ports.sent, {});
}
