// A second reading of a settings file, for the targets that look at one.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

// By section and key, both in capitals.
using Profile = std::map<std::string, std::map<std::string, std::string>>;

// The first section of a name counts, and in it the first key of a name.
inline Profile Profile_Reading(std::string_view text) {
    Profile profile;
    std::map<std::string, std::string> keys;
    std::optional<std::string> section;
    const auto keep = [&] {
        if (section) profile.try_emplace(*section, keys);
        keys.clear();
    };
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        const std::string_view line = Trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t close = line.find(']');
        const std::size_t equals = line.find('=');
        if (line.starts_with('[') && close != std::string_view::npos) {
            keep();
            section = Upper_Text(Trimmed(line.substr(1, close - 1)));
        } else if (!line.starts_with(';') && equals != std::string_view::npos) {
            std::string_view value = Trimmed(line.substr(equals + 1));
            const char first = value.empty() ? ' ' : value.front();
            if (value.size() > 1 && value.back() == first && (first == '"' || first == '\''))
                value = value.substr(1, value.size() - 2);
            keys.try_emplace(Upper_Text(Trimmed(line.substr(0, equals))), value);
        }
    }
    keep();
    return profile;
}
