// The ALSA sequencer forgets a connection when its device is unplugged and goes on taking events. A device
// that is plugged in again mostly comes back at the same address, but without the connection. So before
// each send two questions go to the sequencer: is the port there, and is our port connected.
#include <alsa/asoundlib.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdlib>
#include <optional>

#include "platform/port_watch.h"

namespace {

// The kernel's buffer for one hardware port. What does not fit is dropped in the middle of a message. The
// pools that hold an event on its way to another program are not much larger.
constexpr std::size_t Kernel_Buffer_Bytes = 4096;

template <class Record, void (*Free)(Record*)>
struct Freed_By {
    void operator()(Record* record) const { Free(record); }
};
template <class Record, void (*Free)(Record*)>
using Owned = std::unique_ptr<Record, Freed_By<Record, Free>>;

using Port_Info = Owned<snd_seq_port_info_t, snd_seq_port_info_free>;
using Client_Info = Owned<snd_seq_client_info_t, snd_seq_client_info_free>;
using Query = Owned<snd_seq_query_subscribe_t, snd_seq_query_subscribe_free>;

template <class Owner, class Record>
Owner Made(int (*make)(Record**)) {
    Record* record = nullptr;
    if (make(&record) < 0) throw std::bad_alloc();
    return Owner(record);
}

// The address in the tail of a raw name: "UM-ONE:UM-ONE MIDI 1 20:0" gives 20 and 0.
std::optional<snd_seq_addr_t> Address_In(const std::string& raw_name) {
    const std::size_t blank = raw_name.rfind(' ');
    const std::size_t colon = raw_name.rfind(':');
    if (blank == std::string::npos || colon == std::string::npos || colon < blank) return std::nullopt;
    snd_seq_addr_t address = {};
    address.client = static_cast<unsigned char>(std::atoi(raw_name.c_str() + blank + 1));
    address.port = static_cast<unsigned char>(std::atoi(raw_name.c_str() + colon + 1));
    return address;
}

class Alsa_Watch final : public Port_Watch {
  public:
    Alsa_Watch(snd_seq_t* sequencer, Port_Way way)
        : sequencer_(sequencer),
          ours_at_target_(way == Port_Way::Out ? SND_SEQ_QUERY_SUBS_WRITE : SND_SEQ_QUERY_SUBS_READ),
          target_at_ours_(way == Port_Way::Out ? SND_SEQ_QUERY_SUBS_READ : SND_SEQ_QUERY_SUBS_WRITE),
          port_info_(Made<Port_Info>(snd_seq_port_info_malloc)),
          client_info_(Made<Client_Info>(snd_seq_client_info_malloc)),
          query_(Made<Query>(snd_seq_query_subscribe_malloc)) {}

    ~Alsa_Watch() override { snd_seq_close(sequencer_); }

    // The sequencer is part of the kernel and cannot go while it is open.
    bool Service_Alive() const override { return true; }
    bool Service_Runs() override { return true; }

    void Before_Open(const std::string& raw_name) override {
        target_ = Address_In(raw_name);
        ours_.reset();
    }

    // RtMidi does not tell its own address. It is the one at which this process writes to the target, or
    // reads from it.
    bool After_Open() override {
        if (!target_) return false;
        for (int index = 0; Ask_Subscription(*target_, ours_at_target_, index); ++index) {
            const snd_seq_addr_t other = *snd_seq_query_subscribe_get_addr(query_.get());
            if (!Is_Ours(other.client)) continue;
            ours_ = other;
            target_is_hardware_ = Is_Hardware(target_->client);
            return true;
        }
        return false;
    }

    bool Port_Present() override {
        return target_ && ours_ &&
               snd_seq_get_any_port_info(sequencer_, target_->client, target_->port, port_info_.get()) ==
                   0 &&
               Ask_Subscription(*ours_, target_at_ours_, 0);
    }

    std::size_t Longest_Message() const override { return Kernel_Buffer_Bytes; }

    // Hardware plays no faster than the wire. Programs take what they get at once.
    bool Has_Room(std::size_t size, std::size_t on_wire) override {
        return !target_is_hardware_ || on_wire + size <= Kernel_Buffer_Bytes;
    }

    void Note_Sent(std::size_t /*size*/) override {}

    // A send writes to the kernel before it returns.
    bool Handed_Over() override { return true; }

  private:
    // True when a connection of that index exists at `root`; its other end then stands in the query.
    bool Ask_Subscription(const snd_seq_addr_t& root, snd_seq_query_subs_type_t type, int index) {
        snd_seq_query_subscribe_set_root(query_.get(), &root);
        snd_seq_query_subscribe_set_type(query_.get(), type);
        snd_seq_query_subscribe_set_index(query_.get(), index);
        return snd_seq_query_port_subscribers(sequencer_, query_.get()) >= 0;
    }

    bool Is_Ours(int client) {
        return snd_seq_get_any_client_info(sequencer_, client, client_info_.get()) == 0 &&
               snd_seq_client_info_get_pid(client_info_.get()) == getpid();
    }

    bool Is_Hardware(int client) {
        return snd_seq_get_any_client_info(sequencer_, client, client_info_.get()) == 0 &&
               snd_seq_client_info_get_type(client_info_.get()) == SND_SEQ_KERNEL_CLIENT;
    }

    snd_seq_t* sequencer_;
    snd_seq_query_subs_type_t ours_at_target_;  // the list at the target in which our port stands
    snd_seq_query_subs_type_t target_at_ours_;  // and the other way
    Port_Info port_info_;
    Client_Info client_info_;
    Query query_;
    std::optional<snd_seq_addr_t> target_;  // the port at the other end
    std::optional<snd_seq_addr_t> ours_;    // RtMidi's port
    bool target_is_hardware_ = false;
};

// ALSA tells its troubles on the error output of the program; here they are results.
void Say_Nothing(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                 const char* /*format*/, ...) {}

}  // namespace

std::unique_ptr<Port_Watch> Watch_Alsa(const std::string& client_name, Port_Way way) {
    snd_lib_error_set_handler(Say_Nothing);
    snd_seq_t* sequencer = nullptr;
    if (snd_seq_open(&sequencer, "default", SND_SEQ_OPEN_OUTPUT, SND_SEQ_NONBLOCK) < 0) return nullptr;
    snd_seq_set_client_name(sequencer, client_name.c_str());
    return std::make_unique<Alsa_Watch>(sequencer, way);
}
