#include "synth/tokens.h"

#include "midi/out.h"

namespace {

constexpr char Digits[] = "0123456789ABCDEF";

int Digit_Value(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return -1;
}

// At most 255, as two digits cannot say more.
int Pair_Value(char first, char second) {
    int value = 0;
    for (const char character : {first, second}) {
        if (character == ' ') continue;
        const int digit = Digit_Value(character);
        if (digit < 0) break;
        value = value * 16 + digit;
    }
    return value;
}

}  // namespace

void Append_Token(std::string& text, std::uint8_t value) {
    if (value >= 16) text += Digits[value / 16];
    text += Digits[value % 16];
}

std::string Channel_Token() {
    std::string token;
    Append_Token(token, static_cast<std::uint8_t>(MIDI_Channel - 1));
    return token;
}

std::string Sysex_Text_To_Bytes(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 2);
    // `place` counts from 0: there is a pair as long as the character behind it exists.
    for (std::size_t place = 0; place + 1 < text.size();) {
        bytes += static_cast<char>(Pair_Value(text[place], text[place + 1]));
        const bool blank_behind = place + 2 < text.size() && text[place + 2] == ' ';
        place += blank_behind ? 3 : 2;
    }
    return bytes;
}
