// The machine's input through RtMidi.
//
//      RtMidi's thread                                            interface thread
//      pieces --> Sysex_Pieces --> Message_Ring --> Wake_Up  ...  Port_In_Next --> a buffer
//
// RtMidi puts pieces together too, but a note in the middle ends a message for it on ALSA and becomes a
// part of it on JACK, and one without an end runs into the next. So what it hands over is taken as bytes
// again. It collects a message of any length: what it holds is bounded only by how long the port is open.
#include <algorithm>
#include <atomic>
#include <deque>
#include <memory>
#include <utility>

#include "platform/message_ring.h"
#include "platform/midi_port.h"
#include "platform/port_clients.h"
#include "platform/port_names.h"
#include "platform/sysex_pieces.h"
#include "platform/wake_up.h"

namespace {

// Some 3700 dumps of one tone: more than a minute of a busy wire.
constexpr std::size_t Ring_Bytes = 256 * 1024;

// An open input. The client goes first: behind its end no callback runs.
struct Input {
    // Written by RtMidi's thread.
    Sysex_Pieces pieces{Port_In_Longest};
    Message_Ring arrived{Ring_Bytes};
    std::atomic<bool> refused = false;

    std::atomic<bool> stopped = false;  // written by the interface thread
    std::deque<Block_Address> buffers;  // headers of those given and not yet filled
    std::string message;                // the one on its way into a buffer
    std::unique_ptr<Port_Watch> watch;
    std::unique_ptr<RtMidiIn> client;
};

struct In_Port_State {
    std::vector<std::string> listed;           // the raw names of the last list, which an index means
    Port_Handle handle = Port_Closed;          // the open port
    Port_Handle last_handle = 0;               // handles are not used twice
    std::unique_ptr<Input> open;               // null while the port is closed
    std::vector<std::unique_ptr<Input>> dead;  // of services that died or stood still
};

// Not destroyed at the end of the process: closing what a dead service left would hold it up.
In_Port_State& In_Port = *new In_Port_State;

bool Is_Open(Port_Handle handle) {
    return handle != Port_Closed && handle == In_Port.handle;
}

// Runs on RtMidi's thread.
void On_Message(double /*time*/, std::vector<unsigned char>* bytes, void* user) {
    auto& input = *static_cast<Input*>(user);
    if (input.stopped.load(std::memory_order_acquire)) return;
    bool news = false;
    for (const unsigned char byte : *bytes) {
        const Sysex_Pieces::Found found = input.pieces.Take(byte);
        if (found == Sysex_Pieces::Found::Nothing) continue;
        news = true;
        const bool kept =
            found == Sysex_Pieces::Found::Message && input.arrived.Put(input.pieces.Message());
        if (!kept) input.refused.store(true, std::memory_order_release);
    }
    if (news) Wake_Up();
}

// Closing waits for the service's answer. One that is dead or stands still is not asked.
Port_Result Let_Go(std::unique_ptr<Input> input) {
    input->stopped.store(true, std::memory_order_release);
    Port_Result result = Port_Ok;
    if (input->watch != nullptr && !input->watch->Service_Runs()) {
        if (input->watch->Service_Alive()) result = Port_Failed_With("The MIDI service stands still.");
        In_Port.dead.push_back(std::move(input));
    }
    return result;
}

Port_Result Connected(Port_Clients& clients, Input& input, int device) {
    input.client = Port_In_Client(clients);
    if (input.client == nullptr) return Port_Failed_With("The MIDI input could not be made.");
    input.watch = Port_In_Watch(clients);
    if (input.watch == nullptr) return Port_Failed_With("The MIDI input could not be made.");

    const std::vector<Raw_Port> ports = Raw_Ports(*input.client);
    const Raw_Port* const port = Port_Found_Again(ports, In_Port.listed, static_cast<std::size_t>(device));
    if (port == nullptr) return Port_Gone;
    input.client->ignoreTypes(false, true, true);
    input.client->setCallback(On_Message, &input);
    input.watch->Before_Open(port->name);
    const Port_Result result =
        Asked([&] { input.client->openPort(port->number, std::string(Port_Client_Name)); });
    if (!input.watch->Service_Alive()) return Port_Gone;
    if (result != Port_Ok) return result;
    return input.watch->After_Open() ? Port_Ok : Port_Failed_With("The MIDI port could not be connected.");
}

}  // namespace

std::vector<std::string> Port_In_Names() {
    In_Port.listed.clear();
    Port_Clients* const clients = Port_Clients_Reached();
    const std::unique_ptr<RtMidiIn> in = clients == nullptr ? nullptr : Port_In_Client(*clients);
    if (in != nullptr) In_Port.listed = Raw_Names(Raw_Ports(*in));
    return Port_Names_Stable(In_Port.listed);
}

Port_Result Port_In_Open(int device, Port_Handle& handle) {
    if (In_Port.handle != Port_Closed) return Port_Failed_With("The MIDI input is open already.");
    Port_Clients* const clients = Port_Clients_Reached();
    if (clients == nullptr) return Port_No_Driver;
    if (device < 0 || static_cast<std::size_t>(device) >= In_Port.listed.size()) return Port_Bad_Device;
    if (!clients->watch->Service_Runs()) return Port_Failed_With("The MIDI service stands still.");

    auto input = std::make_unique<Input>();
    const Port_Result result = Connected(*clients, *input, device);
    if (result != Port_Ok) {
        std::string words = Port_Words();
        (void)Let_Go(std::move(input));
        return result == Port_Failed ? Port_Failed_With(std::move(words)) : result;
    }
    In_Port.open = std::move(input);
    handle = In_Port.handle = ++In_Port.last_handle;
    return Port_Ok;
}

Port_Result Port_In_Prepare(Port_Handle handle, Block_Address header) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    const auto* const record = Block_Record<Port_In_Header>(header);
    const bool fits = record != nullptr && record->size >= Port_In_Longest &&
                      Block_At(record->data).size() >= record->size;
    return fits ? Port_Ok : Port_Failed_With("The buffer is too small for a MIDI message.");
}

Port_Result Port_In_Add_Buffer(Port_Handle handle, Block_Address header) {
    const Port_Result prepared = Port_In_Prepare(handle, header);
    if (prepared == Port_Ok) In_Port.open->buffers.push_back(header);
    return prepared;
}

Block_Address Port_In_Next(Port_Handle handle) {
    if (!Is_Open(handle) || In_Port.open->buffers.empty()) return 0;
    Input& input = *In_Port.open;
    if (!input.arrived.Take(input.message)) return 0;
    const Block_Address address = input.buffers.front();
    input.buffers.pop_front();
    auto& header = *Block_Record<Port_In_Header>(address);
    std::copy(input.message.begin(), input.message.end(), Block_At(header.data).begin());
    header.bytes = static_cast<std::uint32_t>(input.message.size());
    return address;
}

bool Port_In_Refused(Port_Handle handle) {
    return Is_Open(handle) && In_Port.open->refused.exchange(false, std::memory_order_acq_rel);
}

bool Port_In_Present(Port_Handle handle) {
    return Is_Open(handle) && In_Port.open->watch->Service_Alive() && In_Port.open->watch->Port_Present();
}

Port_Result Port_In_Reset(Port_Handle handle) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    In_Port.open->stopped.store(true, std::memory_order_release);
    In_Port.open->buffers.clear();
    return Port_In_Present(handle) ? Port_Ok : Port_Gone;
}

Port_Result Port_In_Close(Port_Handle handle) {
    if (!Is_Open(handle)) return Port_Bad_Handle;
    In_Port.handle = Port_Closed;
    return Let_Go(std::move(In_Port.open));
}
