// The classic file of sections and keys, as text in memory:
//
//     ; a comment, kept
//     [MIDI]
//     Channel=1
//
// Sections and keys compare without regard to case. The first section and the first key of a name win.
// Blanks round a key and its value do not count, one pair of quotation marks round a value is dropped.
// Everything that is no section and no key (comments, rubbish, whole binary files) is skipped when
// reading and kept when writing.
#pragma once

#include <string>
#include <string_view>

// The value, or `missing` when section or key is not there.
std::string Profile_Value(std::string_view text, std::string_view section, std::string_view key,
                          std::string_view missing);

// The text with that value in it. Section and key are added where they are missing, a key at the end of
// its section. All other lines stay as they are, line ends included. A value is one line: what stands
// behind a line end in it (the name of a file may hold one) is left out.
std::string Profile_With_Value(std::string_view text, std::string_view section, std::string_view key,
                               std::string_view value);
