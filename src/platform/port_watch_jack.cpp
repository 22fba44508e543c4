// RtMidi's output on JACK is a ring buffer that its process callback empties once a period:
//
//      sendMessage --> ring, 16383 bytes --> process callback --> the port's buffer of one period
//
// A message too long for the ring is dropped, one too many spins until there is room (for ever when the
// server has died), and one too many for the port's buffer is dropped. None of it is told. So this watch
// counts what went in during the last periods and refuses before any of the three can happen.
//
// Periods are counted by the server's clock, which libjack reads from shared memory. So this client has no
// process callback and sleeps until the graph changes; one that is called every period costs as much as
// RtMidi's own. The clock also goes on where RtMidi's callback comes late, or the server waits for a client
// that hangs. Then the ring may be fuller than it counts, a send spins until the callback comes, and what
// was sent fits into the port's buffer all the same: that holds twice as much as is counted. Nothing counts
// as handed over until the server has been in time for some periods.
#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <set>
#include <string_view>
#include <thread>

#include "platform/port_watch.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t Ring_Bytes = 16383;  // RtMidi's 16384, of which a ring buffer uses all but one

// What a message costs in the ring or in the port's buffer, whichever is more, beside its own bytes.
constexpr std::size_t Bytes_A_Message = 12;

// A message written now is read in the next period and played by the end of it. One more for a server that
// does not wait for its clients.
constexpr jack_nframes_t Periods_To_Hand_Over = 3;

// How long a running server may take for a period: it waits half a second for a client that hangs.
constexpr auto Longest_Period = std::chrono::milliseconds(600);

// For how long after a change the graph is looked at again at each send: the news of a change may come
// before the change itself can be seen.
constexpr auto Settling_Time = std::chrono::milliseconds(200);

// How long a new connection may take to show.
constexpr auto Connecting_Time = std::chrono::milliseconds(100);

std::set<std::string> Names_In(const char** names) {
    std::set<std::string> result;
    for (std::size_t place = 0; names != nullptr && names[place] != nullptr; ++place) {
        result.emplace(names[place]);
    }
    jack_free(names);
    return result;
}

class Jack_Watch final : public Port_Watch {
  public:
    explicit Jack_Watch(jack_client_t* client)
        : client_(client),
          capacity_(
              std::min(Ring_Bytes, jack_port_type_get_buffer_size(client, JACK_DEFAULT_MIDI_TYPE) / 2)) {
        jack_on_shutdown(client_, On_Shutdown, this);
        jack_set_xrun_callback(client_, On_Late, this);
        jack_set_port_registration_callback(client_, On_Registration, this);
        jack_set_port_connect_callback(client_, On_Connection, this);
    }

    // A dead server's clients are left alone: libjack clears them away itself when it opens the next one.
    ~Jack_Watch() override {
        if (Service_Alive()) jack_client_close(client_);
    }

    bool Activate() { return jack_activate(client_) == 0; }

    bool Service_Alive() const override { return !dead_.load(std::memory_order_acquire); }

    // A dead server's clock is not read: libjack may have cleared it away.
    bool Service_Runs() override {
        if (!Service_Alive()) return false;
        const jack_nframes_t before = Frames();
        const auto deadline = Clock::now() + Longest_Period;
        while (Frames() == before) {
            if (Clock::now() >= deadline) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (!Service_Alive()) return false;
        }
        return true;
    }

    void Before_Open(const std::string& raw_name) override {
        target_ = raw_name;
        source_ = nullptr;
        earlier_connections_ = Connections();
    }

    // RtMidi does not look whether the connection came about, and does not tell the name of its port. So
    // the port is the one that is newly connected with the target.
    bool After_Open() override {
        const auto deadline = Clock::now() + Connecting_Time;
        while (!Find_Source()) {
            if (Clock::now() >= deadline || !Service_Alive()) return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        changed_ = false;
        gone_ = false;
        recent_bytes_ = older_bytes_ = 0;
        section_began_ = last_sent_ = Frames();
        return true;
    }

    // Costs two looks at a flag while nothing changes in the graph.
    bool Port_Present() override {
        if (gone_) return false;
        const bool news = changed_.exchange(false, std::memory_order_acq_rel);
        if (news) look_again_until_ = Clock::now() + Settling_Time;
        if (news || settling_) {
            gone_ =
                jack_port_by_name(client_, target_.c_str()) == nullptr || jack_port_connected(source_) <= 0;
            settling_ = Clock::now() < look_again_until_;
        }
        return !gone_;
    }

    std::size_t Longest_Message() const override { return capacity_ - Bytes_A_Message; }

    bool Has_Room(std::size_t size, std::size_t /*on_wire*/) override {
        Forget_Old_Bytes();
        return older_bytes_ + recent_bytes_ + size + Bytes_A_Message <= capacity_;
    }

    void Note_Sent(std::size_t size) override {
        recent_bytes_ += size + Bytes_A_Message;
        last_sent_ = Frames();
    }

    bool Handed_Over() override {
        if (late_.exchange(false, std::memory_order_acq_rel)) last_sent_ = Frames();
        return Frames() - last_sent_ >= Frames_To_Hand_Over();
    }

  private:
    static void On_Shutdown(void* self) {
        static_cast<Jack_Watch*>(self)->dead_.store(true, std::memory_order_release);
    }
    static int On_Late(void* self) {
        static_cast<Jack_Watch*>(self)->late_.store(true, std::memory_order_release);
        return 0;
    }
    static void On_Registration(jack_port_id_t /*port*/, int /*on*/, void* self) {
        static_cast<Jack_Watch*>(self)->changed_.store(true, std::memory_order_release);
    }
    static void On_Connection(jack_port_id_t /*from*/, jack_port_id_t /*to*/, int /*on*/, void* self) {
        static_cast<Jack_Watch*>(self)->changed_.store(true, std::memory_order_release);
    }

    std::set<std::string> Connections() const {
        const jack_port_t* port = jack_port_by_name(client_, target_.c_str());
        if (port == nullptr) return {};
        return Names_In(jack_port_get_all_connections(client_, port));
    }

    bool Find_Source() {
        for (const std::string& name : Connections()) {
            if (earlier_connections_.contains(name)) continue;
            source_ = jack_port_by_name(client_, name.c_str());
            return source_ != nullptr;
        }
        return false;
    }

    // When the present period began; starts again at 0 after a day. Answers on any thread and asks nobody.
    jack_nframes_t Frames() const { return jack_last_frame_time(client_); }
    jack_nframes_t Frames_To_Hand_Over() const {
        return Periods_To_Hand_Over * jack_get_buffer_size(client_);
    }

    // Time is cut into sections, each long enough to hand everything over. What was sent before the last
    // section is out of the ring. When the server stands still no section ends, and the room stays used up.
    void Forget_Old_Bytes() {
        const jack_nframes_t now = Frames();
        const jack_nframes_t passed = now - section_began_;
        if (passed < Frames_To_Hand_Over()) return;
        older_bytes_ = passed < 2 * Frames_To_Hand_Over() ? recent_bytes_ : 0;
        recent_bytes_ = 0;
        section_began_ = now;
    }

    jack_client_t* client_;
    std::size_t capacity_;
    std::atomic<bool> dead_ = false;  // written by libjack's threads
    // Set by libjack's threads, cleared here.
    std::atomic<bool> changed_ = false;  // the graph
    std::atomic<bool> late_ = false;     // a client was not called or not ready in its period

    std::string target_;             // the port at the other end
    jack_port_t* source_ = nullptr;  // RtMidi's port
    std::set<std::string> earlier_connections_;
    bool gone_ = false;
    bool settling_ = false;
    Clock::time_point look_again_until_;

    std::size_t recent_bytes_ = 0;  // sent in this section
    std::size_t older_bytes_ = 0;   // sent in the section before
    jack_nframes_t section_began_ = 0;
    jack_nframes_t last_sent_ = 0;
};

}  // namespace

std::unique_ptr<Port_Watch> Watch_Jack(const std::string& client_name, Port_Way /*way*/) {
    // libjack tells its troubles on the outputs of the program; here they are results.
    jack_set_error_function([](const char*) {});
    jack_set_info_function([](const char*) {});
    jack_client_t* const client = jack_client_open(client_name.c_str(), JackNoStartServer, nullptr);
    if (client == nullptr) return nullptr;
    auto watch = std::make_unique<Jack_Watch>(client);
    if (!watch->Activate()) return nullptr;
    return watch;
}
