#include "fakes/jack_server.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

// JACK's servers of one user share files, and one that was killed leaves some behind until its name comes
// back. So there is one server for tests at a time, and one name.
const std::string Server_Name = "tonebench-test";

// How long a busy machine may take: for one answer, for a server or a client to be there, and for a server
// that has to be started again and again.
constexpr auto Answer_Patience = 3s;
constexpr auto Start_Patience = 8s;
constexpr auto Server_Patience = 20s;
constexpr int Tries = 3;
constexpr std::size_t Longest_Report = 4000;

bool Answers() {
    return Child_Process({"jack_lsp"}).Wait_For_End(Answer_Patience) == 0;
}

// What a child did and said, for the report of a failure.
std::string Told(const std::string& name, Child_Process& child) {
    const int code = child.Is_Running() ? -1 : child.Wait_For_End(0ms);
    std::string words = "\n" + name + (code < 0 ? " (runs)" : " (ended with " + std::to_string(code) + ")");
    for (const std::string& line : child.Output()) words.append("\n  ").append(line);
    for (const std::string& line : child.Errors()) words.append("\n  ! ").append(line);
    return words;
}

// The client once it has its port; nothing, and its words in the report, when it shows none.
std::unique_ptr<Child_Process> Started_Once(const Jack_Client& client, std::string& report) {
    auto process = std::make_unique<Child_Process>(client.command);
    const auto deadline = Clock::now() + Start_Patience;
    while (process->Is_Running() && Clock::now() < deadline) {
        if (Jack_Port_Is_There(client.port).value_or(false)) return process;
        std::this_thread::sleep_for(20ms);
    }
    report += Told("no port " + client.port, *process);
    return nullptr;
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

    const auto deadline = Clock::now() + Server_Patience;
    std::string report;
    process_.reset();
    for (auto silent_since = Clock::now(); process_ == nullptr || !Answers();) {
        // It ends at once while an earlier one of its name is still on its way out.
        const bool ended = process_ != nullptr && !process_->Is_Running();
        const bool hangs = Clock::now() - silent_since > Start_Patience;
        if ((ended || hangs) && report.size() < Longest_Report) report += Told("server", *process_);
        if (Clock::now() >= deadline) throw std::runtime_error("the JACK server does not start" + report);
        if (process_ == nullptr || ended || hangs) {
            process_.reset();
            process_ = std::make_unique<Child_Process>(command);
            silent_since = Clock::now();
        }
        std::this_thread::sleep_for(20ms);
    }
}

Jack_Clients Jack_Server::Start_With(const std::vector<Jack_Client>& wanted, Pace pace) {
    std::string report;
    for (int attempt = 0; attempt < Tries; ++attempt) {
        Start(pace);
        Jack_Clients clients;
        for (const Jack_Client& client : wanted) {
            // A client that hung and was ended may leave a server that stands still: both begin anew.
            clients.push_back(Started_Once(client, report));
            if (clients.back() == nullptr) break;
        }
        if (clients.size() == wanted.size() && (clients.empty() || clients.back() != nullptr))
            return clients;
        report += Told("server", *process_);
        for (std::size_t place = 0; place + 1 < clients.size(); ++place)
            report += Told(wanted[place].port, *clients[place]);
    }
    throw std::runtime_error("no client at the JACK server" + report);
}

std::unique_ptr<Child_Process> Started_Client(const Jack_Client& client) {
    std::string report;
    std::unique_ptr<Child_Process> process;
    for (int attempt = 0; attempt < Tries && process == nullptr; ++attempt)
        process = Started_Once(client, report);
    if (process == nullptr) throw std::runtime_error("no client at the JACK server" + report);
    return process;
}

Jack_Client Midi_Dump(const std::string& name) {
    return {{"stdbuf", "-oL", "jack_midi_dump", name}, name + ":input"};
}

std::optional<bool> Jack_Port_Is_There(const std::string& name) {
    Child_Process list({"jack_lsp"});
    if (list.Wait_For_End(Answer_Patience) != 0) return std::nullopt;
    const std::vector<std::string>& lines = list.Output();
    return std::find(lines.begin(), lines.end(), name) != lines.end();
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
