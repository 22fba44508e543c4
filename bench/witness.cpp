// A JACK client that notes every message that arrives and when, by the clock that the program's timers
// count by (JACK's own runs a little differently):
//
//   witness FILE
//
// Has the port "witness:input". Ends at a line or the end of its input and writes one line a message: the
// microseconds, and the bytes in hexadecimal. The numbers behind that, on the output: messages, messages
// for which there was no room (there is room for some millions), and how often the server told that a
// client came too late.
#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>

namespace {

using Clock = std::chrono::steady_clock;

struct Arrival {
    Clock::time_point time;
    std::uint32_t size;
};

// Untouched memory costs nothing.
std::array<unsigned char, 256U << 20U> Kept = {};
std::size_t Used = 0;
std::size_t Count = 0;
std::size_t No_Room = 0;
std::atomic<std::size_t> Late = 0;
jack_port_t* Port = nullptr;

void Keep(const jack_midi_event_t& event) {
    const Arrival arrival = {Clock::now(), static_cast<std::uint32_t>(event.size)};
    if (Used + sizeof arrival + event.size > Kept.size()) {
        ++No_Room;
        return;
    }
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&arrival);
    std::copy_n(bytes, sizeof arrival, Kept.begin() + static_cast<std::ptrdiff_t>(Used));
    Used += sizeof arrival;
    std::copy_n(event.buffer, event.size, Kept.begin() + static_cast<std::ptrdiff_t>(Used));
    Used += event.size;
    ++Count;
}

int Process(jack_nframes_t frames, void*) {
    void* const buffer = jack_port_get_buffer(Port, frames);
    const jack_nframes_t events = jack_midi_get_event_count(buffer);
    for (jack_nframes_t index = 0; index < events; ++index) {
        jack_midi_event_t event = {};
        if (jack_midi_event_get(&event, buffer, index) == 0) Keep(event);
    }
    return 0;
}

void Write(std::FILE* file) {
    for (std::size_t place = 0; place < Used;) {
        Arrival arrival = {};
        std::copy_n(Kept.begin() + static_cast<std::ptrdiff_t>(place), sizeof arrival,
                    reinterpret_cast<unsigned char*>(&arrival));
        place += sizeof arrival;
        const auto since =
            std::chrono::duration_cast<std::chrono::microseconds>(arrival.time.time_since_epoch());
        std::fprintf(file, "%lld ", static_cast<long long>(since.count()));
        for (std::uint32_t byte = 0; byte < arrival.size; ++byte)
            std::fprintf(file, "%02x", Kept[place + byte]);
        std::fputc('\n', file);
        place += arrival.size;
    }
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count < 2) {
        std::fprintf(stderr, "usage: witness FILE\n");
        return 2;
    }
    jack_client_t* const client = jack_client_open("witness", JackNoStartServer, nullptr);
    if (client == nullptr) return 1;
    Port = jack_port_register(client, "input", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    jack_set_process_callback(client, Process, nullptr);
    jack_set_xrun_callback(
        client,
        [](void*) {
            ++Late;
            return 0;
        },
        nullptr);
    if (Port == nullptr || jack_activate(client) != 0) return 1;
    (void)std::getchar();
    jack_client_close(client);
    std::FILE* const file = std::fopen(arguments[1], "w");
    if (file == nullptr) return 1;
    Write(file);
    if (std::fclose(file) != 0) return 1;
    std::printf("%zu messages, %zu without room, the server late %zu times\n", Count, No_Room, Late.load());
    return 0;
}
