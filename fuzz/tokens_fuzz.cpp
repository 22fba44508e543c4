// Any text as a message: the bytes are those of a second reading written here, at most one for two
// characters; and any bytes written as tokens come back.
#include "feed.h"
#include "synth/tokens.h"

namespace {

// A pair: blanks do not count, and reading stops at what is no digit.
char Pair(char first, char second) {
    constexpr std::string_view Digits = "0123456789ABCDEFabcdef";
    int value = 0;
    for (const char letter : {first, second}) {
        if (letter == ' ') continue;
        const std::size_t digit = Digits.find(letter);
        if (digit == std::string_view::npos) break;
        value = value * 16 + static_cast<int>(digit < 16 ? digit : digit - 6);
    }
    return static_cast<char>(value);
}

std::string Bytes_Of(std::string_view text) {
    std::string bytes;
    while (text.size() >= 2) {
        bytes += Pair(text[0], text[1]);
        text.remove_prefix(2);
        if (text.starts_with(' ')) text.remove_prefix(1);
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string bytes = Sysex_Text_To_Bytes(input);
    Check(bytes == Bytes_Of(input));
    Check(bytes.size() <= size / 2);

    // The last token needs a blank behind it, or its single digit would not be read.
    std::string text;
    for (const char byte : input) {
        Append_Token(text, static_cast<std::uint8_t>(byte));
        text += ' ';
    }
    Check(text.size() <= 3 * size && Sysex_Text_To_Bytes(text) == input);
    return 0;
}
