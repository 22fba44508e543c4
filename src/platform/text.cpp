#include "platform/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace {

constexpr std::string_view Blanks = " \t";

char Lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

char Upper(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool Inside_Character(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string_view Right_Trimmed(std::string_view text) {
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

std::string_view Trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(Blanks);
    return begin == std::string_view::npos ? std::string_view() : Right_Trimmed(text.substr(begin));
}

bool Same_Text(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return Lower(a) == Lower(b); });
}

std::string Upper_Text(std::string_view text) {
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), Upper);
    return capitals;
}

std::string Lower_Text(std::string_view text) {
    std::string small(text);
    std::transform(small.begin(), small.end(), small.begin(), Lower);
    return small;
}

std::string_view Cut_At_Zero(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

std::string_view Cut_To_Bytes(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes) return text;
    std::size_t end = bytes;
    // A character has at most three bytes behind its first; more of them are no UTF-8 anyway.
    for (int step = 0; step < 3 && end > 0 && Inside_Character(text[end]); ++step) --end;
    return text.substr(0, end);
}

double Number_At_Start(std::string_view text) {
    text = Trimmed(text);
    const bool plus = text.starts_with('+');
    if (plus) text.remove_prefix(1);
    // Words like "inf" and "nan" are no numbers here, and one sign is enough.
    const std::size_t digit = text.find_first_not_of(plus ? "." : "-.");
    if (digit == std::string_view::npos || text[digit] < '0' || text[digit] > '9') return 0;
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && std::isfinite(number) ? number : 0;
}

std::string Plain_Number(float number) {
    constexpr int Digits = 7;
    // The largest single has 39 digits before the point, the smallest 45 zeros behind it.
    std::array<char, 64> text;
    const auto Printed = [&text, number](std::chars_format format, int decimals) {
        const auto end = std::to_chars(text.data(), text.data() + text.size(), number, format, decimals);
        return std::string(text.data(), end.ptr);
    };
    if (number == 0 || !std::isfinite(number)) return "0";

    // The exponent of the rounded number tells how many of the digits stand behind the point.
    const std::string rounded = Printed(std::chars_format::scientific, Digits - 1);
    const int exponent = std::stoi(rounded.substr(rounded.find('e') + 1));
    std::string plain = Printed(std::chars_format::fixed, std::max(0, Digits - 1 - exponent));
    if (plain.find('.') == std::string::npos) return plain;
    plain.erase(plain.find_last_not_of('0') + 1);
    if (plain.back() == '.') plain.pop_back();
    return plain;
}
