// A real JACK server with the dummy driver, for tests of the real ports. It never touches the user's own
// server: it has a name of its own, which our process and its children find in the environment.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "fakes/child_process.h"

// Another client of the server: how it is started, and the port by which one sees that it is there.
struct Jack_Client {
    std::vector<std::string> command;
    std::string port;
};
using Jack_Clients = std::vector<std::unique_ptr<Child_Process>>;

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

    // Starts the server and these clients, and waits until every one has its port. On a busy machine a
    // client may fail to connect, and then ends or hangs: it is started again, and behind that the server
    // too. Throws std::runtime_error with the words of all of them.
    Jack_Clients Start_With(const std::vector<Jack_Client>& wanted, Pace pace = Pace::Waits);

    // The running server: to stop it for a while, or to kill it.
    Child_Process& Process() { return *process_; }

  private:
    int lock_ = -1;
    std::unique_ptr<Child_Process> process_;
};

// Starts a client of the running server and waits until it has its port; a client that shows none is
// started once more. Throws std::runtime_error with what it printed.
std::unique_ptr<Child_Process> Started_Client(const Jack_Client& client);

// JACK's midi dump: it has the port "<name>:input" and prints the bytes of each message that comes.
Jack_Client Midi_Dump(const std::string& name);

// Whether the server has a port of that name now; nothing when it gives no answer.
std::optional<bool> Jack_Port_Is_There(const std::string& name);

// The bytes of each message printed so far, as "b0 7b 00".
std::vector<std::string> Messages_Dumped(Child_Process& midi_dump);
