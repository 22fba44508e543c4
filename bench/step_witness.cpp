// A JACK client that notes when each step of the sequencer arrives, by the system's clock:
//
//   step_witness STATUS NOTE     both in decimal, of the message that begins a step
//
// Has the port "witness:input". Ends at a line or the end of its input and prints the microseconds of each
// step, one a line, and behind them the number of the other messages.
#include <jack/jack.h>
#include <jack/midiport.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstdlib>

namespace {

jack_port_t* Port = nullptr;
int Status = 0;
int Note = 0;
std::array<jack_time_t, 100'000> Times = {};
std::atomic<std::size_t> Count = 0;
std::atomic<std::size_t> Others = 0;

int Process(jack_nframes_t frames, void*) {
    void* const buffer = jack_port_get_buffer(Port, frames);
    const jack_nframes_t events = jack_midi_get_event_count(buffer);
    for (jack_nframes_t index = 0; index < events; ++index) {
        jack_midi_event_t event = {};
        if (jack_midi_event_get(&event, buffer, index) != 0 || event.size < 2) continue;
        if (event.buffer[0] == Status && event.buffer[1] == Note && Count < Times.size()) {
            Times[Count] = jack_get_time();
            ++Count;
        } else {
            ++Others;
        }
    }
    return 0;
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count < 3) {
        std::fprintf(stderr, "usage: step_witness STATUS NOTE\n");
        return 2;
    }
    Status = std::atoi(arguments[1]);
    Note = std::atoi(arguments[2]);
    jack_client_t* const client = jack_client_open("witness", JackNullOption, nullptr);
    if (client == nullptr) return 1;
    Port = jack_port_register(client, "input", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    jack_set_process_callback(client, Process, nullptr);
    if (Port == nullptr || jack_activate(client) != 0) return 1;
    (void)std::getchar();
    jack_client_close(client);
    for (std::size_t index = 0; index < Count; ++index)
        std::printf("%llu\n", static_cast<unsigned long long>(Times[index]));
    std::printf("%zu others\n", Others.load());
    return 0;
}
