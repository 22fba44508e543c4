#include "fakes/jack_server.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// JACK's servers of one user share files, and one that was killed leaves some behind until its name comes
// back. So there is one server for tests at a time, and one name.
const std::string Server_Name = "tonebench-test";

bool Answers() {
    return Child_Process({"jack_lsp"}).Wait_For_End(2s) == 0;
}

// " b0 7b 00 control change" gives "b0 7b 00".
std::string Leading_Bytes(const std::string& text) {
    const auto is_digit = [&text](std::size_t place) {
        return std::isxdigit(static_cast<unsigned char>(text[place])) != 0;
    };
    std::size_t end = 0;
    while (end + 3 <= text.size() && text[end] == ' ' && is_digit(end + 1) && is_digit(end + 2) &&
           (end + 3 == text.size() || text[end + 3] == ' ')) {
        end += 3;
    }
    return end == 0 ? "" : text.substr(1, end - 1);
}

}  // namespace

Jack_Server::Jack_Server() {
    const auto path =
        std::filesystem::temp_directory_path() / (Server_Name + "-" + std::to_string(getuid()) + ".lock");
    lock_ = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    // Waits in the queue of the tests that want the server; the time limit of the test is the end of it.
    if (lock_ < 0 || flock(lock_, LOCK_EX) != 0) throw std::runtime_error("no lock for the JACK server");
    setenv("JACK_DEFAULT_SERVER", Server_Name.c_str(), 1);
    setenv("JACK_NO_AUDIO_RESERVATION", "1", 1);
    setenv("JACK_NO_START_SERVER", "1", 1);
}

Jack_Server::~Jack_Server() {
    process_.reset();
    close(lock_);
}

void Jack_Server::Start(Pace pace) {
    std::vector<std::string> command = {"jackd", "-r", "-n", Server_Name};
    if (pace == Pace::Waits) command.emplace_back("-S");
    command.insert(command.end(), {"-d", "dummy", "-r", "48000", "-p", "256"});

    const auto deadline = Clock::now() + 3s;
    process_.reset();
    do {
        if (Clock::now() >= deadline) throw std::runtime_error("the JACK server does not start");
        // It ends at once while an earlier one of its name is still on its way out.
        if (process_ == nullptr || !process_->Is_Running())
            process_ = std::make_unique<Child_Process>(command);
        std::this_thread::sleep_for(20ms);
    } while (!Answers());
}

std::unique_ptr<Child_Process> Started_Midi_Dump(const std::string& name) {
    return std::make_unique<Child_Process>(
        std::vector<std::string>{"stdbuf", "-oL", "jack_midi_dump", name});
}

std::vector<std::string> Messages_Dumped(Child_Process& midi_dump) {
    std::vector<std::string> messages;
    for (const std::string& line : midi_dump.Output()) {
        // The time stands before the colon.
        const std::size_t colon = line.find(':');
        if (colon != std::string::npos) messages.push_back(Leading_Bytes(line.substr(colon + 1)));
    }
    return messages;
}
