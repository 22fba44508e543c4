// Looks after the one port that RtMidi has opened, because RtMidi does not tell when a port has gone,
// when the whole service has gone, how much it can take, or whether it has handed everything over.
//
// One watch a service. Each holds a small client of its own beside RtMidi's, so making one is also the
// question whether the service can be reached, asked without a line on the error output.
// All calls come from the interface thread.
//
// Bodies: port_watch_alsa.cpp, port_watch_jack.cpp.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

// Whether the program writes to the watched port or reads from it.
enum class Port_Way { Out, In };

class Port_Watch {
  public:
    Port_Watch() = default;
    virtual ~Port_Watch() = default;
    Port_Watch(const Port_Watch&) = delete;
    Port_Watch& operator=(const Port_Watch&) = delete;

    // False once the service has gone for good. From then on no call into RtMidi's clients returns in time.
    virtual bool Service_Alive() const = 0;

    // False when the service does nothing at the moment. What then asks it something may wait for ever.
    // May take some periods of the service to find out.
    virtual bool Service_Runs() = 0;

    // Called before and after RtMidi opens the port of that raw name. False when RtMidi is not connected
    // with it, which RtMidi itself may take for success.
    virtual void Before_Open(const std::string& raw_name) = 0;
    virtual bool After_Open() = 0;

    // False when the watched port has gone, or nothing is connected with ours any more.
    virtual bool Port_Present() = 0;

    // The longest message that arrives whole.
    virtual std::size_t Longest_Message() const = 0;

    // False while so many bytes are under way that `size` more would be lost or would block.
    // `on_wire` of the bytes sent before have not had their time on the wire.
    virtual bool Has_Room(std::size_t size, std::size_t on_wire) = 0;

    virtual void Note_Sent(std::size_t size) = 0;

    // True when all bytes sent have left RtMidi's own buffer.
    virtual bool Handed_Over() = 0;
};

// Null where the service cannot be reached.
std::unique_ptr<Port_Watch> Watch_Alsa(const std::string& client_name, Port_Way way);
std::unique_ptr<Port_Watch> Watch_Jack(const std::string& client_name, Port_Way way);
