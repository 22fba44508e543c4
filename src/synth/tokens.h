// A message as text: hexadecimal tokens in capitals without leading zero, one blank between them ("F0 41
// 36 0 21 20 01 23 7F F7"), and the one gate from that text to bytes. Only the fixed parts of headers have
// two digits everywhere.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// "0", "5", "A", "7F".
void Append_Token(std::string& text, std::uint8_t value);

// The channel's token: its number less one. Channel 1 gives "0", channel 16 "F".
std::string Channel_Token();

// Walks the text two characters at a time and skips a blank behind a pair. So a one-digit token and its
// blank are one pair, a token of three digits is read as two, and a single last character is never read.
// Blanks inside a pair do not count (" F" is 15), reading stops at what is no hexadecimal digit.
std::string Sysex_Text_To_Bytes(std::string_view text);
