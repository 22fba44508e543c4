// RtMidi's output client, for the life of the process, and the watch beside it. An input client is made
// when one is wanted: on JACK it would be woken every period for nothing.
//
// They are made at the first question for a list of ports, on ALSA's sequencer, or where that cannot be
// opened on JACK. When the service dies they are given up, and the next question tries to make new ones.
// RtMidi's exceptions and warnings end here: they become a result and its words.
//
// The state of this module is written by port_clients.cpp only. All calls come from the interface thread.
#pragma once

#include <rtmidi/RtMidi.h>

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/midi_port.h"
#include "platform/port_watch.h"

// The name of our clients and of our ports.
inline constexpr std::string_view Port_Client_Name = "Tonebench";

struct Port_Clients {
    std::unique_ptr<Port_Watch> watch;
    std::unique_ptr<RtMidiOut> out;
    RtMidi::Api api = RtMidi::UNSPECIFIED;
    Port_Clients* given_up_before = nullptr;  // a chain of those whose service has died
};

// The clients, made anew if there are none or if their service has died. Null where no service is reached.
Port_Clients* Port_Clients_Reached();

// A client for the input side, on the same service, and a watch of its own beside it. Null where they
// cannot be made.
std::unique_ptr<RtMidiIn> Port_In_Client(const Port_Clients& clients);
std::unique_ptr<Port_Watch> Port_In_Watch(const Port_Clients& clients);

// Forgets the clients without closing them, since closing waits for an answer that no longer comes.
void Port_Clients_Give_Up();

// A port as RtMidi knows it: its number, good until the next device comes or goes, and its full name.
struct Raw_Port {
    unsigned int number;
    std::string name;
};

// All ports at the other end, in the system's order, without our own.
std::vector<Raw_Port> Raw_Ports(RtMidi& client);

std::vector<std::string> Raw_Names(const std::vector<Raw_Port>& ports);

// The port that a device of an earlier list of raw names is now. Devices that came or went meanwhile change
// RtMidi's numbers, and a device that was plugged in again may have a new address, so the name decides. One
// that was in the list itself is never taken for another. Null when it has gone.
const Raw_Port* Port_Found_Again(const std::vector<Raw_Port>& ports, const std::vector<std::string>& listed,
                                 std::size_t device);

// The service's own words of the last failure.
const std::string& Port_Words();
Port_Result Port_Failed_With(std::string words);

// Whether a failure has been noted since the last clearing. The words stay.
bool Port_Failure_Noted();
void Port_Failure_Clear();

// Runs one piece of work with RtMidi. Allocates nothing unless it fails.
template <class Work>
Port_Result Asked(Work&& work) {
    Port_Failure_Clear();
    try {
        work();
    } catch (const std::exception& error) {
        return Port_Failed_With(error.what());
    }
    return Port_Failure_Noted() ? Port_Failed : Port_Ok;
}
