// The machine's output through RtMidi. RtMidi never tells that a port has gone or that it is behind, so
// every send first asks the watch.
#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "platform/midi_port.h"
#include "platform/port_clients.h"
#include "platform/port_names.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto Byte_Time = std::chrono::microseconds(320);  // ten bits at 31250 baud

// What the buffers on the way to the instrument hold at most. Whoever sends faster than the wire plays
// fills them; what does not fit is lost, and closing need not wait for it.
constexpr auto Longest_Backlog = Byte_Time * 4096;

// Kept free of long messages, so that a flood of them leaves room for notes.
constexpr std::size_t Room_For_Short = 64;

// A service that takes nothing for so long stands still.
constexpr auto Standstill_Time = std::chrono::seconds(1);

struct Out_Port_State {
    std::vector<std::string> listed;      // the raw names of the last list, which an index means
    Port_Handle handle = Port_Closed;     // the open port
    Port_Handle last_handle = 0;          // handles are not used twice
    Port_Clients* opened_with = nullptr;  // dead when the service has died since
    Clock::time_point busy_until;         // when everything sent has had its time on the wire
};

Out_Port_State Out_Port;

bool Is_Open(Port_Handle handle) {
    return handle != Port_Closed && handle == Out_Port.handle;
}

bool Is_There() {
    return Out_Port.opened_with->watch->Service_Alive() && Out_Port.opened_with->watch->Port_Present();
}

// Closes RtMidi's port. It waits for the next period of the service and then for its answer, so a service
// that stands still is not asked: the port stays as it is and is closed before the next one opens.
Port_Result Closed(Port_Clients& clients) {
    if (!clients.watch->Service_Runs()) return Port_Failed_With("The MIDI service stands still.");
    return Asked([&] { clients.out->closePort(); });
}

Port_Result Opened(Port_Clients& clients, const Raw_Port& port) {
    const Port_Result before = Closed(clients);
    if (before != Port_Ok) return before;
    clients.watch->Before_Open(port.name);
    const Port_Result result =
        Asked([&] { clients.out->openPort(port.number, std::string(Port_Client_Name)); });
    if (result == Port_Ok && clients.watch->After_Open()) return Port_Ok;
    if (!clients.watch->Service_Alive()) {
        Port_Clients_Give_Up();
        return Port_Gone;
    }
    const std::string words = result == Port_Ok ? "The MIDI port could not be connected." : Port_Words();
    (void)Closed(clients);
    return Port_Failed_With(words);
}

std::size_t Bytes_On_Wire(Clock::time_point now) {
    if (Out_Port.busy_until <= now) return 0;
    return static_cast<std::size_t>((Out_Port.busy_until - now) / Byte_Time);
}

// Leaves `spare` bytes of room, where the port has so many beside the message.
Port_Result Send(const unsigned char* bytes, std::size_t size, std::size_t spare) {
    if (!Is_There()) return Port_Gone;
    Port_Watch& watch = *Out_Port.opened_with->watch;
    if (size > watch.Longest_Message()) {
        return Port_Failed_With("A MIDI message of " + std::to_string(size) +
                                " bytes is too long for this port: at most " +
                                std::to_string(watch.Longest_Message()) + " bytes arrive whole.");
    }
    const Clock::time_point now = Clock::now();
    const std::size_t kept_free = std::min(spare, watch.Longest_Message() - size);
    if (!watch.Has_Room(size + kept_free, Bytes_On_Wire(now))) {
        return Port_Failed_With("The MIDI port does not keep up: its buffer is full.");
    }
    const Port_Result result = Asked([&] { Out_Port.opened_with->out->sendMessage(bytes, size); });
    if (result != Port_Ok) return result;
    watch.Note_Sent(size);
    Out_Port.busy_until = std::max(now, Out_Port.busy_until) + Byte_Time * static_cast<long>(size);
    Out_Port.busy_until = std::min(Out_Port.busy_until, now + Longest_Backlog);
    return Port_Ok;
}

// The length of a short message; 0 where no short message begins with that byte.
std::size_t Short_Length(unsigned char status) {
    if (status < 0x80 || status == 0xF0) return 0;
    if (status < 0xF0) return status >= 0xC0 && status < 0xE0 ? 2 : 3;
    if (status == 0xF2) return 3;
    return status == 0xF1 || status == 0xF3 ? 2 : 1;
}

// What is still open is forgotten; whether it could be closed is not asked.
void Forget() {
    Out_Port.handle = Port_Closed;
    Out_Port.opened_with = nullptr;
}

}  // namespace

std::vector<std::string> Port_Out_Names() {
    Port_Clients* const clients = Port_Clients_Reached();
    Out_Port.listed.clear();
    if (clients != nullptr) Out_Port.listed = Raw_Names(Raw_Ports(*clients->out));
    return Port_Names_Stable(Out_Port.listed);
}

Port_Result Port_Out_Open(int device, Port_Handle& handle) {
    if (Out_Port.handle != Port_Closed) return Port_Failed_With("The MIDI output is open already.");
    Port_Clients* const clients = Port_Clients_Reached();
    if (clients == nullptr) return Port_No_Driver;
    if (device < 0 || static_cast<std::size_t>(device) >= Out_Port.listed.size()) return Port_Bad_Device;

    const std::vector<Raw_Port> ports = Raw_Ports(*clients->out);
    const Raw_Port* const port = Port_Found_Again(ports, Out_Port.listed, static_cast<std::size_t>(device));
    if (port == nullptr) return Port_Gone;
    const Port_Result result = Opened(*clients, *port);
    if (result != Port_Ok) return result;
    Out_Port.opened_with = clients;
    Out_Port.busy_until = Clock::now();
    handle = Out_Port.handle = ++Out_Port.last_handle;
    return Port_Ok;
}

Port_Result Port_Out_Close(Port_Handle handle) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    Port_Clients& clients = *Out_Port.opened_with;
    if (!clients.watch->Service_Alive()) {
        Forget();
        return Port_Ok;
    }
    if (clients.watch->Port_Present()) {
        const Clock::time_point now = Clock::now();
        if (now < Out_Port.busy_until) return Port_Still_Playing;
        const bool stands_still = now >= Out_Port.busy_until + Standstill_Time;
        if (!clients.watch->Handed_Over() && !stands_still) return Port_Still_Playing;
    }
    Forget();
    return Closed(clients);
}

Port_Result Port_Out_Short(Port_Handle handle, std::uint32_t word) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    const std::array<unsigned char, 3> bytes = {static_cast<unsigned char>(word & 0xFFU),
                                                static_cast<unsigned char>(word >> 8U & 0xFFU),
                                                static_cast<unsigned char>(word >> 16U & 0xFFU)};
    const std::size_t length = Short_Length(bytes[0]);
    if (length == 0) return Port_Failed_With("A short MIDI message cannot begin with this byte.");
    return Send(bytes.data(), length, 0);
}

Port_Result Port_Out_Ready(Port_Handle handle) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    return Is_There() ? Port_Ok : Port_Gone;
}

Port_Result Port_Out_Long(Port_Handle handle, std::string_view bytes) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    if (bytes.empty()) return Port_Ok;
    return Send(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), Room_For_Short);
}

std::string Port_Error_Text(Port_Result result) {
    switch (result) {
        case Port_Ok:
            return "There was no error.";
        case Port_Failed:
            return Port_Words().empty() ? "The MIDI service reported an error." : Port_Words();
        case Port_Bad_Device:
            return "There is no MIDI device of this number.";
        case Port_Bad_Handle:
            return "The MIDI port is not open.";
        case Port_No_Driver:
            return "No MIDI service can be reached: neither the ALSA sequencer nor a JACK server.";
        case Port_Still_Playing:
            return "The MIDI port is still playing what it was given.";
        case Port_Gone:
            return "The MIDI device is no longer there.";
        default:
            return "";
    }
}
