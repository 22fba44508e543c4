// Puts system exclusive messages together from the bytes of an input, however they are cut.
//
//      F0 41 35 00 21 | F8 | 20 01 4C | 90 3C 40 | 45 41 ... F7
//                       |               |
//                       dropped         a note in the middle: dropped with its data bytes
//
// Another F0 begins anew: a message that was broken off is lost, and never mixed with the next. Whatever
// stands outside of a message is dropped. Memory is taken once, at the beginning.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

class Sysex_Pieces {
  public:
    // Messages of up to `longest` bytes, F0 and F7 included, are taken.
    explicit Sysex_Pieces(std::size_t longest);

    enum class Found {
        Nothing,
        Message,  // this byte was the last of a message
        Refused,  // with this byte the message became too long; the rest of it is dropped
    };
    Found Take(unsigned char byte);

    // The message that the last Take found; good until the next.
    std::string_view Message() const { return {bytes_.data(), size_}; }

  private:
    Found Append(unsigned char byte);

    std::vector<char> bytes_;
    std::size_t size_ = 0;
    bool inside_ = false;   // an F0 has come, and no F7 yet
    int foreign_data_ = 0;  // data bytes still to come that belong to a message in the middle
};
