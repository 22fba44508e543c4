#include "platform/port_clients.h"

#include <algorithm>
#include <iostream>
#include <sstream>
#include <utility>

#include "platform/port_names.h"

namespace {

struct Clients_State {
    std::unique_ptr<Port_Clients> clients;
    Port_Clients* given_up = nullptr;  // kept for good, never touched again
    std::string words;
    bool failed = false;
};

Clients_State State;

void Give_Up_If_Dead() {
    if (State.clients && !State.clients->watch->Service_Alive()) Port_Clients_Give_Up();
}

// At the end of the process: closing the clients of a service that is dead or stands still would hold it
// up.
struct End_Of_Clients {
    ~End_Of_Clients() {
        if (State.clients && !State.clients->watch->Service_Runs()) Port_Clients_Give_Up();
    }
};
const End_Of_Clients At_The_End;  // behind the state, so that its end comes first

// RtMidi's constructors write to the error output, before a callback can be set. Here it goes into a text.
class Error_Output_Kept {
  public:
    Error_Output_Kept() : before_(std::cerr.rdbuf(kept_.rdbuf())) {}
    ~Error_Output_Kept() { std::cerr.rdbuf(before_); }
    Error_Output_Kept(const Error_Output_Kept&) = delete;
    Error_Output_Kept& operator=(const Error_Output_Kept&) = delete;

    bool Is_Empty() const { return kept_.view().empty(); }

  private:
    std::ostringstream kept_;
    std::streambuf* before_;
};

void On_Error(RtMidiError::Type type, const std::string& text, void* /*user*/) {
    if (type != RtMidiError::DEBUG_WARNING) (void)Port_Failed_With(text);
}

bool Is_Compiled_In(RtMidi::Api api) {
    std::vector<RtMidi::Api> apis;
    RtMidi::getCompiledApi(apis);
    return std::find(apis.begin(), apis.end(), api) != apis.end();
}

// The watch comes first: where it cannot be made, RtMidi need not be asked and has nothing to say.
std::unique_ptr<Port_Clients> Made(RtMidi::Api api,
                                   std::unique_ptr<Port_Watch> (*make_watch)(const std::string&,
                                                                             Port_Way)) {
    const std::string name(Port_Client_Name);
    if (!Is_Compiled_In(api)) return nullptr;
    auto clients = std::make_unique<Port_Clients>();
    clients->watch = make_watch(name + " watch", Port_Way::Out);
    if (!clients->watch) return nullptr;
    const Error_Output_Kept errors;
    clients->out = std::make_unique<RtMidiOut>(api, name);
    clients->api = api;
    if (!errors.Is_Empty()) return nullptr;
    clients->out->setErrorCallback(On_Error, nullptr);
    return clients;
}

}  // namespace

Port_Clients* Port_Clients_Reached() {
    Give_Up_If_Dead();
    if (!State.clients) {
        (void)Asked([] { State.clients = Made(RtMidi::LINUX_ALSA, Watch_Alsa); });
    }
    if (!State.clients) {
        (void)Asked([] { State.clients = Made(RtMidi::UNIX_JACK, Watch_Jack); });
    }
    return State.clients.get();
}

std::unique_ptr<RtMidiIn> Port_In_Client(const Port_Clients& clients) {
    std::unique_ptr<RtMidiIn> client;
    const Error_Output_Kept errors;
    (void)Asked([&] { client = std::make_unique<RtMidiIn>(clients.api, std::string(Port_Client_Name)); });
    if (!client || !errors.Is_Empty()) return nullptr;
    client->setErrorCallback(On_Error, nullptr);
    return client;
}

std::unique_ptr<Port_Watch> Port_In_Watch(const Port_Clients& clients) {
    const std::string name = std::string(Port_Client_Name) + " input watch";
    return clients.api == RtMidi::LINUX_ALSA ? Watch_Alsa(name, Port_Way::In)
                                             : Watch_Jack(name, Port_Way::In);
}

void Port_Clients_Give_Up() {
    if (!State.clients) return;
    State.clients->given_up_before = State.given_up;
    State.given_up = State.clients.release();
}

std::vector<Raw_Port> Raw_Ports(RtMidi& client) {
    std::vector<Raw_Port> ports;
    (void)Asked([&] {
        const unsigned int count = client.getPortCount();
        for (unsigned int number = 0; number < count; ++number) {
            std::string name = client.getPortName(number);
            // A port that went between the count and the name has none.
            if (name.empty() || name.starts_with(Port_Client_Name)) continue;
            ports.push_back({number, std::move(name)});
        }
    });
    return ports;
}

std::vector<std::string> Raw_Names(const std::vector<Raw_Port>& ports) {
    std::vector<std::string> names;
    names.reserve(ports.size());
    for (const Raw_Port& port : ports) names.push_back(port.name);
    return names;
}

const Raw_Port* Port_Found_Again(const std::vector<Raw_Port>& ports, const std::vector<std::string>& listed,
                                 std::size_t device) {
    const std::string& wanted = listed.at(device);
    for (const Raw_Port& port : ports) {
        if (port.name == wanted) return &port;
    }
    const std::vector<std::string> name = Port_Names_Stable({wanted});
    for (const Raw_Port& port : ports) {
        if (std::find(listed.begin(), listed.end(), port.name) != listed.end()) continue;
        if (Port_Names_Stable({port.name}) == name) return &port;
    }
    return nullptr;
}

const std::string& Port_Words() {
    return State.words;
}

Port_Result Port_Failed_With(std::string words) {
    State.words = std::move(words);
    State.failed = true;
    return Port_Failed;
}

bool Port_Failure_Noted() {
    return State.failed;
}

void Port_Failure_Clear() {
    State.failed = false;
}
