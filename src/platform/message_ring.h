// Messages on their way from one thread to another: one puts them in, one takes them out, and neither waits
// for the other. Memory is taken once, at the beginning.
#pragma once

#include <atomic>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class Message_Ring {
  public:
    // Room for so many bytes; each message costs four more than it has.
    explicit Message_Ring(std::size_t bytes);

    // False, and nothing is put in, when there is no room for the whole message.
    bool Put(std::string_view message);

    // The oldest message. False when there is none.
    bool Take(std::string& message);

  private:
    void Write(std::size_t place, std::string_view bytes);
    void Read(std::size_t place, char* bytes, std::size_t size) const;

    // Both only grow; their difference is what the ring holds.
    std::vector<char> ring_;
    std::atomic<std::size_t> written_ = 0;  // moved by the thread that puts in
    std::atomic<std::size_t> taken_ = 0;    // moved by the thread that takes out
};
