// Stands in for libjack in the archive. RtMidi and the program need libjack, and it must be the system's
// own, as it has to fit the server; but a machine without JACK has none, and there the program shall start
// all the same and play through ALSA. So this library bears libjack's procedures and passes them to the
// system's libjack. Where there is none, each answers 0: no client can be opened, as if no server ran.
#include <dlfcn.h>
#include <jack/jack.h>
#include <jack/midiport.h>
#include <jack/ringbuffer.h>

namespace {

// PipeWire brings a libjack of its own, which Debian leaves out of the linker's path.
constexpr const char* Places[] = {
    "libjack.so.0",
    "/usr/lib/x86_64-linux-gnu/pipewire-0.3/jack/libjack.so.0",
    "/usr/lib64/pipewire-0.3/jack/libjack.so.0",
    "/usr/lib/pipewire-0.3/jack/libjack.so.0",
};

void* Library() {
    static void* const library = [] {
        void* found = nullptr;
        for (const char* place : Places) {
            if (found == nullptr) found = dlopen(place, RTLD_NOW);
        }
        return found;
    }();
    return library;
}

void* Procedure(const char* name) {
    return Library() == nullptr ? nullptr : dlsym(Library(), name);
}

template <class Result, class... Types>
Result Call(Result (*real)(Types...), Types... arguments) {
    return real == nullptr ? Result() : real(arguments...);
}

}  // namespace

// Looked up once; the calls come from the server's thread too.
#define FORWARD(result, name, parameters, ...)                                             \
    extern "C" result name parameters {                                                    \
        static const auto real = reinterpret_cast<result(*) parameters>(Procedure(#name)); \
        return Call(real __VA_OPT__(, ) __VA_ARGS__);                                      \
    }

// clang-format off
FORWARD(int, jack_activate, (jack_client_t* client), client)
FORWARD(int, jack_client_close, (jack_client_t* client), client)
FORWARD(int, jack_connect, (jack_client_t* client, const char* from, const char* to), client, from, to)
FORWARD(void, jack_free, (void* block), block)
FORWARD(jack_nframes_t, jack_get_buffer_size, (jack_client_t* client), client)
FORWARD(const char**, jack_get_ports, (jack_client_t* client, const char* name, const char* type, unsigned long flags), client, name, type, flags)
FORWARD(jack_time_t, jack_get_time, ())
FORWARD(jack_nframes_t, jack_last_frame_time, (const jack_client_t* client), client)
FORWARD(void, jack_midi_clear_buffer, (void* buffer), buffer)
FORWARD(int, jack_midi_event_get, (jack_midi_event_t* event, void* buffer, uint32_t index), event, buffer, index)
FORWARD(jack_midi_data_t*, jack_midi_event_reserve, (void* buffer, jack_nframes_t time, size_t size), buffer, time, size)
FORWARD(uint32_t, jack_midi_get_event_count, (void* buffer), buffer)
FORWARD(void, jack_on_shutdown, (jack_client_t* client, JackShutdownCallback callback, void* context), client, callback, context)
FORWARD(jack_port_t*, jack_port_by_name, (jack_client_t* client, const char* name), client, name)
FORWARD(int, jack_port_connected, (const jack_port_t* port), port)
FORWARD(const char**, jack_port_get_all_connections, (const jack_client_t* client, const jack_port_t* port), client, port)
FORWARD(void*, jack_port_get_buffer, (jack_port_t* port, jack_nframes_t frames), port, frames)
FORWARD(const char*, jack_port_name, (const jack_port_t* port), port)
FORWARD(int, jack_port_name_size, ())
FORWARD(jack_port_t*, jack_port_register, (jack_client_t* client, const char* name, const char* type, unsigned long flags, unsigned long size), client, name, type, flags, size)
FORWARD(int, jack_port_rename, (jack_client_t* client, jack_port_t* port, const char* name), client, port, name)
FORWARD(size_t, jack_port_type_get_buffer_size, (jack_client_t* client, const char* type), client, type)
FORWARD(int, jack_port_unregister, (jack_client_t* client, jack_port_t* port), client, port)
FORWARD(jack_ringbuffer_t*, jack_ringbuffer_create, (size_t size), size)
FORWARD(void, jack_ringbuffer_free, (jack_ringbuffer_t* ring), ring)
FORWARD(size_t, jack_ringbuffer_peek, (jack_ringbuffer_t* ring, char* bytes, size_t count), ring, bytes, count)
FORWARD(size_t, jack_ringbuffer_read, (jack_ringbuffer_t* ring, char* bytes, size_t count), ring, bytes, count)
FORWARD(void, jack_ringbuffer_read_advance, (jack_ringbuffer_t* ring, size_t count), ring, count)
FORWARD(size_t, jack_ringbuffer_read_space, (const jack_ringbuffer_t* ring), ring)
FORWARD(size_t, jack_ringbuffer_write, (jack_ringbuffer_t* ring, const char* bytes, size_t count), ring, bytes, count)
FORWARD(size_t, jack_ringbuffer_write_space, (const jack_ringbuffer_t* ring), ring)
FORWARD(void, jack_set_error_function, (void (*told)(const char* text)), told)
FORWARD(void, jack_set_info_function, (void (*told)(const char* text)), told)
FORWARD(int, jack_set_port_connect_callback, (jack_client_t* client, JackPortConnectCallback callback, void* context), client, callback, context)
FORWARD(int, jack_set_port_registration_callback, (jack_client_t* client, JackPortRegistrationCallback callback, void* context), client, callback, context)
FORWARD(int, jack_set_process_callback, (jack_client_t* client, JackProcessCallback callback, void* context), client, callback, context)
FORWARD(int, jack_set_xrun_callback, (jack_client_t* client, JackXRunCallback callback, void* context), client, callback, context)
// clang-format on

// The optional arguments belong to options that neither RtMidi nor the program uses.
extern "C" jack_client_t* jack_client_open(const char* name, jack_options_t options, jack_status_t* status,
                                           ...) {
    static const auto real = reinterpret_cast<decltype(&jack_client_open)>(Procedure("jack_client_open"));
    if (real != nullptr) return real(name, options, status);
    if (status != nullptr) *status = static_cast<JackStatus>(JackFailure | JackServerFailed);
    return nullptr;
}
