#include "monkey/port.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

#include "midi/out.h"
#include "monkey/checks.h"
#include "monkey/clock.h"
#include "monkey/diary.h"
#include "monkey/dice.h"
#include "platform/wake_up.h"

Monkey_Ports Ports;

namespace {

constexpr std::int64_t Microseconds_A_Byte = 320;

Port_Handle Last_Handle = 0;
std::int64_t Quiet_At = 0;  // when the wire has played everything
std::vector<std::string> Heard;

std::deque<std::string> Arrived;
std::deque<Block_Address> Buffers;
bool Refused = false;

std::string Hex(std::string_view bytes) {
    std::string line;
    for (const char character : bytes) {
        std::array<char, 4> text = {};
        std::snprintf(text.data(), text.size(), "%02X ", static_cast<unsigned>(character) & 0xFFU);
        line += text.data();
    }
    return line;
}

std::uint8_t Byte(std::string_view bytes, std::size_t place) {
    return static_cast<std::uint8_t>(bytes[place]);
}

bool Is_Data(std::string_view bytes, std::size_t begin, std::size_t count) {
    if (Wild_Life) return true;
    const std::string_view data = bytes.substr(begin, count);
    return std::all_of(data.begin(), data.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// "F0 41 op cc ff le 01" at this place.
bool Is_Header(std::string_view bytes, std::size_t place, std::uint8_t operation) {
    if (bytes.size() < place + 7) return false;
    const std::uint8_t format = Byte(bytes, place + 4);
    const std::uint8_t level = Byte(bytes, place + 5);
    return Byte(bytes, place) == 0xF0 && Byte(bytes, place + 1) == 0x41 &&
           Byte(bytes, place + 2) == operation && Byte(bytes, place + 3) == MIDI_Channel - 1 &&
           (format == 0x21 || format == 0x23 || format == 0x24) && (level == 0x20 || level == 0x30) &&
           Byte(bytes, place + 6) == 1;
}

// The four forms of a message, by their lengths: a parameter, a name, a whole tone with and without patch.
bool Is_Known_Form(std::string_view bytes) {
    const std::uint8_t end = bytes.empty() ? 0 : Byte(bytes, bytes.size() - 1);
    if (bytes.size() == 10) return Is_Header(bytes, 0, 0x36) && Is_Data(bytes, 7, 2) && end == 0xF7;
    if (bytes.size() == 28)
        return Is_Header(bytes, 0, 0x36) && Is_Data(bytes, 7, 20) && (end == 0x0F || end == 0xF7);
    const bool tone = Is_Header(bytes, 0, 0x35) && bytes.size() >= 69 && Is_Data(bytes, 7, 59) &&
                      Byte(bytes, 66) == 0x24 && Byte(bytes, 67) == 0x07 && end == 0xF7;
    if (bytes.size() == 83) return tone && Is_Data(bytes, 68, 14);
    return bytes.size() == 90 && tone && Is_Header(bytes, 68, 0x36) && Is_Data(bytes, 75, 14);
}

void Check_On(std::string_view message) {
    if (MIDI_Enabled != 1) Finding("sent while MIDI is off: " + Hex(message));
}

void Play(std::size_t size) {
    Quiet_At =
        std::max(Quiet_At, Clock_Microseconds()) + static_cast<std::int64_t>(size) * Microseconds_A_Byte;
}

bool Is_Open(Port_Handle handle) {
    return handle != Port_Closed && handle == Ports.out_handle;
}

}  // namespace

void Ports_Heal() {
    const Port_Handle out = Ports.out_handle;
    const Port_Handle in = Ports.in_handle;
    Ports = {};
    Ports.out_handle = out;
    Ports.in_handle = in;
}

void Ports_Arrive(const std::string& message) {
    if (Ports.in_handle == Port_Closed) return;
    Arrived.push_back(message);
    Wake_Up();
}

void Ports_Refuse() {
    if (Ports.in_handle == Port_Closed) return;
    Refused = true;
    Wake_Up();
}

const std::vector<std::string>& Ports_Heard() {
    return Heard;
}

std::vector<std::string> Port_Out_Names() {
    return Ports.out_names;
}
std::vector<std::string> Port_In_Names() {
    return Ports.in_names;
}

Port_Result Port_Out_Open(int device, Port_Handle& handle) {
    if (MIDI_Enabled != 1) Finding("opened while MIDI is off");
    if (Ports.out_handle != Port_Closed) Finding("opened twice");
    if (Ports.out_open != Port_Ok) return Ports.out_open;
    if (device < 0 || device >= static_cast<int>(Ports.out_names.size())) return Port_Bad_Device;
    handle = Ports.out_handle = ++Last_Handle;
    return Port_Ok;
}

Port_Result Port_Out_Close(Port_Handle handle) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (Clock_Microseconds() < Quiet_At) return Port_Still_Playing;
    Ports.out_handle = Port_Closed;
    return Ports.out_close;
}

Port_Result Port_Out_Short(Port_Handle handle, std::uint32_t word) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (Ports.out_short != Port_Ok) return Ports.out_short;
    const std::array<char, 3> bytes = {static_cast<char>(word), static_cast<char>(word >> 8U),
                                       static_cast<char>(word >> 16U)};
    const std::string_view message(bytes.data(), bytes.size());
    Check_On(message);
    const std::uint8_t status = Byte(message, 0);
    const bool known =
        status == Note_On_Status(MIDI_Channel) || status == Control_Change_Status(MIDI_Channel);
    if (!known || !Is_Data(message, 1, 2)) Finding("a bad short message: " + Hex(message));
    Play(message.size());
    return Port_Ok;
}

Port_Result Port_Out_Ready(Port_Handle handle) {
    return Is_Open(handle) ? Ports.out_long : Port_Bad_Handle;
}

Port_Result Port_Out_Long(Port_Handle handle, std::string_view bytes) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (Is_Known_Instrument() && !Is_Known_Form(bytes)) Finding("a bad message: " + Hex(bytes));
    if (Ports.out_long != Port_Ok) return Ports.out_long;
    Check_On(bytes);
    constexpr std::size_t Kept = 16;
    if (Heard.size() == Kept) Heard.erase(Heard.begin());
    Heard.emplace_back(bytes);
    Play(bytes.size());
    return Port_Ok;
}

Port_Result Port_In_Open(int device, Port_Handle& handle) {
    if (Ports.in_handle != Port_Closed) Finding("the input opened twice");
    if (Ports.in_open != Port_Ok) return Ports.in_open;
    if (device < 0 || device >= static_cast<int>(Ports.in_names.size())) return Port_Bad_Device;
    handle = Ports.in_handle = ++Last_Handle;
    return Port_Ok;
}
Port_Result Port_In_Prepare(Port_Handle, Block_Address header) {
    const auto* record = Block_Record<Port_In_Header>(header);
    return record != nullptr && record->size >= Port_In_Longest ? Port_Ok : Port_Failed;
}
Port_Result Port_In_Add_Buffer(Port_Handle, Block_Address header) {
    if (Ports.in_add != Port_Ok) return Ports.in_add;
    Buffers.push_back(header);
    return Port_Ok;
}
Block_Address Port_In_Next(Port_Handle) {
    if (Arrived.empty() || Buffers.empty()) return 0;
    const Block_Address address = Buffers.front();
    Buffers.pop_front();
    auto* header = Block_Record<Port_In_Header>(address);
    if (header == nullptr || Block_At(header->data).size() < Port_In_Longest)
        Finding("a buffer that the port still has was released");
    std::copy(Arrived.front().begin(), Arrived.front().end(), Block_At(header->data).begin());
    header->bytes = static_cast<std::uint32_t>(Arrived.front().size());
    Arrived.pop_front();
    return address;
}
bool Port_In_Refused(Port_Handle) {
    return std::exchange(Refused, false);
}
bool Port_In_Present(Port_Handle) {
    return Ports.in_present;
}
Port_Result Port_In_Reset(Port_Handle) {
    Buffers.clear();
    Arrived.clear();
    return Ports.in_reset;
}
Port_Result Port_In_Close(Port_Handle) {
    Ports.in_handle = Port_Closed;
    return Port_Ok;
}

std::string Port_Error_Text(Port_Result result) {
    return result == 999 ? "" : "Text of " + std::to_string(result);
}
