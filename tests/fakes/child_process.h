// Another program, started for a test: its lines can be read while it runs, and it never outlives the test.
#pragma once

#include <sys/types.h>

#include <array>
#include <chrono>
#include <csignal>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class Child_Process {
  public:
    using Environment = std::vector<std::pair<std::string, std::string>>;

    // Starts command[0], found along the PATH, with `changes` on top of our own environment.
    // Throws std::runtime_error when no process can be made; a command that is not found ends with 127.
    explicit Child_Process(const std::vector<std::string>& command, const Environment& changes = {});
    // Asks it to end, and ends it by force when it does not within a second.
    ~Child_Process();
    Child_Process(const Child_Process&) = delete;
    Child_Process& operator=(const Child_Process&) = delete;

    // The lines that have come so far, without their ends.
    const std::vector<std::string>& Output();
    const std::vector<std::string>& Errors();

    // Waits until a line of the output contains the text. False when the time is over or the output ends.
    bool Wait_For_Line(std::string_view part, std::chrono::milliseconds limit);
    // Waits until the output has at least so many lines that contain the text.
    bool Wait_For_Lines(std::string_view part, std::size_t count, std::chrono::milliseconds limit);

    // Waits for the end by itself; the exit code, 128 + the signal, or -1 when the time is over.
    int Wait_For_End(std::chrono::milliseconds limit);

    bool Is_Running();
    pid_t Id() const { return process_; }
    void Signal(int number) const;  // SIGSTOP, SIGCONT, SIGTERM
    void Kill();                    // by force, and waits until it is gone

  private:
    struct Stream {
        int descriptor = -1;
        std::string begun;  // a line whose end has not come yet
        std::vector<std::string> lines;
    };

    void Read_All(int wait_milliseconds);
    static void Take(Stream& stream);

    pid_t process_ = -1;
    int status_ = -1;  // of waitpid, once it has ended
    bool ended_ = false;
    std::array<Stream, 2> streams_;
};
