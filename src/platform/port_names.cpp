#include "platform/port_names.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "platform/text.h"

namespace {

bool Is_Digit(char letter) {
    return letter >= '0' && letter <= '9';
}

// The text without the digits at its end, or the whole text where there are none.
std::string_view Without_Digits(std::string_view text) {
    while (!text.empty() && Is_Digit(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view Without_Alsa_Tail(std::string_view name) {
    const std::string_view client = Without_Digits(name);
    if (client.size() == name.size() || client.empty() || client.back() != ':') return name;
    const std::string_view colon = client.substr(0, client.size() - 1);
    const std::string_view rest = Without_Digits(colon);
    if (rest.size() == colon.size() || rest.empty() || rest.back() != ' ') return name;
    return rest;
}

std::size_t Length_By_First_Byte(unsigned char byte) {
    if (byte < 0x80) return 1;
    if (byte >= 0xC2 && byte <= 0xDF) return 2;
    if (byte >= 0xE0 && byte <= 0xEF) return 3;
    if (byte >= 0xF0 && byte <= 0xF4) return 4;
    return 0;
}

// The length of the UTF-8 character at the start of a text; 0 where there is none.
std::size_t Character_Length(std::string_view text) {
    const auto byte = [text](std::size_t place) { return static_cast<unsigned char>(text[place]); };
    const std::size_t length = Length_By_First_Byte(byte(0));
    if (length > text.size()) return 0;
    for (std::size_t place = 1; place < length; ++place) {
        if ((byte(place) & 0xC0U) != 0x80U) return 0;
    }
    // Four first bytes leave room for overlong forms, surrogates and numbers past the last character.
    if (byte(0) == 0xE0 && byte(1) < 0xA0) return 0;
    if (byte(0) == 0xED && byte(1) > 0x9F) return 0;
    if (byte(0) == 0xF0 && byte(1) < 0x90) return 0;
    if (byte(0) == 0xF4 && byte(1) > 0x8F) return 0;
    return length;
}

std::string Made_Valid(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = Character_Length(text);
        const auto first = static_cast<unsigned char>(text.front());
        if (length == 0) {
            valid += '?';
        } else if (first < 0x20 || first == 0x7F) {
            valid += ' ';
        } else {
            valid += text.substr(0, length);
        }
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return valid;
}

std::string Fitting(std::string_view text, std::size_t bytes) {
    return std::string(Right_Trimmed(Cut_To_Bytes(text, bytes)));
}

// The name that a port has where no other is called the same.
std::string Base_Name(const std::string& raw) {
    const std::string valid = Made_Valid(Cut_At_Zero(raw));
    return Fitting(Trimmed(Without_Alsa_Tail(Trimmed(valid))), Longest_Port_Name);
}

std::string Marked(const std::string& base, std::size_t number) {
    std::string mark = "(" + std::to_string(number) + ")";
    // The settings file brings a value back without blanks at its ends, so the mark alone has none.
    if (base.empty()) return mark;
    return Fitting(base, Longest_Port_Name - 1 - mark.size()) + " " + mark;
}

}  // namespace

std::vector<std::string> Port_Names_Stable(const std::vector<std::string>& raw) {
    std::vector<std::string> names;
    names.reserve(raw.size());
    for (const std::string& name : raw) names.push_back(Base_Name(name));

    // A port that really is called "A (2)" keeps that name, so it is taken before any mark is given.
    std::unordered_set<std::string> taken(names.begin(), names.end());
    std::unordered_map<std::string, std::size_t> next_number;
    for (std::string& name : names) {
        const auto [number, first] = next_number.try_emplace(name, 2);
        if (first) continue;
        std::string marked = Marked(name, number->second++);
        while (!taken.insert(marked).second) marked = Marked(name, number->second++);
        name = marked;
    }
    return names;
}
