#include "fakes/child_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto Polite_Time = std::chrono::seconds(1);
constexpr int Look_Every_Milliseconds = 5;

std::vector<std::string> Changed_Environment(const Child_Process::Environment& changes) {
    std::vector<std::string> result;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        const std::string_view name = text.substr(0, text.find('='));
        const bool changed = std::any_of(changes.begin(), changes.end(),
                                         [name](const auto& change) { return change.first == name; });
        if (!changed) result.emplace_back(text);
    }
    for (const auto& [name, value] : changes) result.emplace_back(name).append("=").append(value);
    return result;
}

std::vector<char*> Pointers_To(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

Child_Process::Child_Process(const std::vector<std::string>& command, const Environment& changes) {
    // Everything that allocates happens before the fork: a test that holds threads may only call the few
    // safe functions between fork and exec.
    std::vector<std::string> words = command;
    std::vector<std::string> settings = Changed_Environment(changes);
    const std::vector<char*> arguments = Pointers_To(words);
    const std::vector<char*> environment = Pointers_To(settings);
    const pid_t parent = getpid();

    std::array<std::array<int, 2>, 2> pipes = {};
    for (auto& ends : pipes) {
        if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe for " + command[0]);
    }
    process_ = fork();
    if (process_ < 0) throw std::runtime_error("no process for " + command[0]);
    if (process_ == 0) {
        // A test that crashes takes its children along.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent) _exit(127);
        // Some libraries block signals in our threads; the child starts with none blocked.
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        dup2(pipes[0][1], STDOUT_FILENO);
        dup2(pipes[1][1], STDERR_FILENO);
        execvpe(arguments[0], arguments.data(), environment.data());
        _exit(127);
    }
    for (std::size_t place = 0; place < pipes.size(); ++place) {
        close(pipes[place][1]);
        fcntl(pipes[place][0], F_SETFL, O_NONBLOCK);
        streams_[place].descriptor = pipes[place][0];
    }
}

Child_Process::~Child_Process() {
    Signal(SIGTERM);
    if (Wait_For_End(Polite_Time) < 0) Kill();
    for (const Stream& stream : streams_) {
        if (stream.descriptor >= 0) close(stream.descriptor);
    }
}

const std::vector<std::string>& Child_Process::Output() {
    Read_All(0);
    return streams_[0].lines;
}

const std::vector<std::string>& Child_Process::Errors() {
    Read_All(0);
    return streams_[1].lines;
}

bool Child_Process::Wait_For_Line(std::string_view part, std::chrono::milliseconds limit) {
    return Wait_For_Lines(part, 1, limit);
}

bool Child_Process::Wait_For_Lines(std::string_view part, std::size_t count,
                                   std::chrono::milliseconds limit) {
    const auto deadline = Clock::now() + limit;
    for (;;) {
        const std::vector<std::string>& lines = Output();
        const auto found = std::count_if(lines.begin(), lines.end(), [part](const std::string& line) {
            return line.find(part) != std::string::npos;
        });
        if (static_cast<std::size_t>(found) >= count) return true;
        if (Clock::now() >= deadline || streams_[0].descriptor < 0) return false;
        Read_All(Look_Every_Milliseconds);
    }
}

int Child_Process::Wait_For_End(std::chrono::milliseconds limit) {
    const auto deadline = Clock::now() + limit;
    while (Is_Running()) {
        if (Clock::now() >= deadline) return -1;
        // A child that writes more than a pipe holds would otherwise wait for us.
        Read_All(0);
        std::this_thread::sleep_for(std::chrono::milliseconds(Look_Every_Milliseconds));
    }
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : 128 + WTERMSIG(status_);
}

bool Child_Process::Is_Running() {
    if (!ended_) ended_ = waitpid(process_, &status_, WNOHANG) == process_;
    return !ended_;
}

void Child_Process::Signal(int number) const {
    if (!ended_) kill(process_, number);
}

void Child_Process::Kill() {
    if (ended_) return;
    kill(process_, SIGKILL);
    waitpid(process_, &status_, 0);
    ended_ = true;
}

void Child_Process::Read_All(int wait_milliseconds) {
    std::array<pollfd, 2> questions = {};
    for (std::size_t place = 0; place < streams_.size(); ++place) {
        questions[place] = {streams_[place].descriptor, POLLIN, 0};
    }
    if (poll(questions.data(), questions.size(), wait_milliseconds) <= 0) return;
    for (Stream& stream : streams_) Take(stream);
}

void Child_Process::Take(Stream& stream) {
    std::array<char, 4096> buffer = {};
    while (stream.descriptor >= 0) {
        const ssize_t count = read(stream.descriptor, buffer.data(), buffer.size());
        if (count < 0) return;  // nothing more for now
        if (count == 0) {
            close(stream.descriptor);
            stream.descriptor = -1;
            return;
        }
        stream.begun.append(buffer.data(), static_cast<std::size_t>(count));
        for (std::size_t end = 0; (end = stream.begun.find('\n')) != std::string::npos;) {
            stream.lines.push_back(stream.begun.substr(0, end));
            stream.begun.erase(0, end + 1);
        }
    }
}
