#include "platform/profile_file.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "platform/text.h"

namespace {

// Where things stand in the text. `line_end` is behind the line's last character, `next` behind its end
// mark.
struct Line {
    std::size_t begin;
    std::size_t line_end;
    std::size_t next;
};

Line Line_At(std::string_view text, std::size_t begin) {
    const auto* const mark = std::find_if(text.begin() + begin, text.end(),
                                          [](char letter) { return letter == '\r' || letter == '\n'; });
    const auto end = static_cast<std::size_t>(mark - text.begin());
    std::size_t next = end;
    if (next < text.size() && text[next] == '\r') ++next;
    if (next < text.size() && text[next] == '\n') ++next;
    return {begin, end, next};
}

std::string_view Content(std::string_view text, const Line& line) {
    return Trimmed(text.substr(line.begin, line.line_end - line.begin));
}

// The name in "[name]"; nothing for any other line.
std::optional<std::string_view> Section_Name(std::string_view content) {
    if (content.empty() || content.front() != '[') return std::nullopt;
    const std::size_t close = content.find(']');
    if (close == std::string_view::npos) return std::nullopt;
    return Trimmed(content.substr(1, close - 1));
}

// The key of "key=value"; nothing for comments and other lines.
std::optional<std::string_view> Key_Name(std::string_view content) {
    if (content.empty() || content.front() == ';') return std::nullopt;
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    return Trimmed(content.substr(0, equals));
}

std::string_view Value_Of(std::string_view content) {
    std::string_view value = Trimmed(content.substr(content.find('=') + 1));
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

struct Place {
    bool section_found = false;
    std::optional<Line> key_line;  // the line that holds the key
    std::size_t section_end = 0;   // behind the section's last line that is not empty
};

Place Find(std::string_view text, std::string_view section, std::string_view key) {
    Place place;
    bool inside = false;
    for (std::size_t at = 0; at < text.size();) {
        const Line line = Line_At(text, at);
        const std::string_view content = Content(text, line);
        if (const auto name = Section_Name(content)) {
            if (inside) return place;
            inside = Same_Text(*name, section);
            if (inside) place = {true, std::nullopt, line.next};
        } else if (inside && !content.empty()) {
            const auto key_name = Key_Name(content);
            if (key_name && Same_Text(*key_name, key)) {
                place.key_line = line;
                return place;
            }
            place.section_end = line.next;
        }
        at = line.next;
    }
    return place;
}

// New lines end as the first line of the file does.
std::string_view Line_End_Of(std::string_view text) {
    const std::size_t end = text.find_first_of("\r\n");
    if (end == std::string_view::npos || text[end] == '\n') return "\n";
    return text.substr(end, 2) == "\r\n" ? "\r\n" : "\r";
}

}  // namespace

std::string Profile_Value(std::string_view text, std::string_view section, std::string_view key,
                          std::string_view missing) {
    const Place place = Find(text, section, key);
    if (!place.key_line) return std::string(missing);
    return std::string(Value_Of(Content(text, *place.key_line)));
}

std::string Profile_With_Value(std::string_view text, std::string_view section, std::string_view key,
                               std::string_view value) {
    value = value.substr(0, value.find_first_of("\r\n"));
    const Place place = Find(text, section, key);
    if (place.key_line) {
        const Line& line = *place.key_line;
        const std::size_t equals = text.find('=', line.begin);
        return std::string(text.substr(0, equals + 1)).append(value).append(text.substr(line.line_end));
    }

    const std::string_view line_end = Line_End_Of(text);
    const std::size_t at = place.section_found ? place.section_end : text.size();
    std::string result(text.substr(0, at));
    if (!result.empty() && result.back() != '\n' && result.back() != '\r') result.append(line_end);
    if (!place.section_found) result.append("[").append(section).append("]").append(line_end);
    result.append(key).append("=").append(value).append(line_end);
    return result.append(text.substr(at));
}
