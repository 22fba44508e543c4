// A real JACK server with the dummy driver, for tests of the real ports. It never touches the user's own
// server: it has a name of its own, which our process and its children find in the environment.
#pragma once

#include <memory>
#include <string>

#include "fakes/child_process.h"

class Jack_Server {
  public:
    // Waits until no other test has the server, and puts its name into the environment. Starts nothing.
    Jack_Server();
    ~Jack_Server();
    Jack_Server(const Jack_Server&) = delete;
    Jack_Server& operator=(const Jack_Server&) = delete;

    // A server that waits for its clients loses nothing on a busy machine, but stands still for seconds
    // when a client is killed. One that does not wait goes on, and may drop what a late client had to read.
    enum class Pace { Waits, Goes_On };

    // Starts the server, again if need be, and waits until it answers. Throws std::runtime_error.
    void Start(Pace pace = Pace::Waits);

    // The running server: to stop it for a while, or to kill it.
    Child_Process& Process() { return *process_; }

  private:
    int lock_ = -1;
    std::unique_ptr<Child_Process> process_;
};

// Starts JACK's midi dump: it has the port "<name>:input" and prints the bytes of each message that comes.
// Does not wait until the port is there.
std::unique_ptr<Child_Process> Started_Midi_Dump(const std::string& name);

// The bytes of each message printed so far, as "b0 7b 00".
std::vector<std::string> Messages_Dumped(Child_Process& midi_dump);
