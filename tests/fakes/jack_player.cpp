// A program of its own that plays raw bytes into a JACK port, cut as one likes, for tests of an input:
//
//      jack_player NAME FILE [TARGET]
//
// Each line of the file is one event, in hexadecimal: "F0 41 35". An empty line waits for the next period.
// The port is "NAME:out"; it is connected with TARGET, or waits until somebody connects it. Then all lines
// are played, as many a period as there is room for, and "played" is printed. Ends when it is asked to.
#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

using Event = std::vector<jack_midi_data_t>;

struct Player {
    jack_port_t* port = nullptr;
    std::vector<Event> events;
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> playing = false;
};

int On_Process(jack_nframes_t frames, void* user) {
    auto& player = *static_cast<Player*>(user);
    void* const buffer = jack_port_get_buffer(player.port, frames);
    jack_midi_clear_buffer(buffer);
    if (!player.playing) return 0;
    while (player.next < player.events.size()) {
        const Event& event = player.events[player.next];
        if (event.empty()) {
            ++player.next;
            break;
        }
        jack_midi_data_t* const place = jack_midi_event_reserve(buffer, 0, event.size());
        if (place == nullptr) break;
        std::copy(event.begin(), event.end(), place);
        ++player.next;
    }
    return 0;
}

std::vector<Event> Events_In(const char* path) {
    std::vector<Event> events;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream text(line);
        text >> std::hex;
        events.emplace_back();
        std::transform(std::istream_iterator<unsigned>(text), {}, std::back_inserter(events.back()),
                       [](unsigned byte) { return static_cast<jack_midi_data_t>(byte); });
    }
    return events;
}

volatile std::sig_atomic_t Asked_To_End = 0;

void Sleep() {
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) return 2;
    std::signal(SIGTERM, [](int) { Asked_To_End = 1; });
    static Player player;
    player.events = Events_In(arguments[2]);
    jack_client_t* const client = jack_client_open(arguments[1], JackNoStartServer, nullptr);
    if (client == nullptr) return 1;
    player.port = jack_port_register(client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    jack_set_process_callback(client, On_Process, &player);
    if (player.port == nullptr || jack_activate(client) != 0) return 1;
    if (count > 3 && jack_connect(client, jack_port_name(player.port), arguments[3]) != 0) return 1;

    while (jack_port_connected(player.port) <= 0 && !Asked_To_End) Sleep();
    player.playing = true;
    while (player.next < player.events.size() && !Asked_To_End) Sleep();
    std::puts("played");
    std::fflush(stdout);
    // A client that goes without a word makes the server stand still.
    while (!Asked_To_End) Sleep();
    jack_client_close(client);
}
