// Any text as a settings file, with any value for a key: the file reads as a second reading says, a value
// that is written comes back, a second write changes nothing, and all other lines stay as they were, byte
// for byte.
//
//   a length of 0 to 80 and so many bytes: the value; then the file
#include <array>

#include "feed.h"
#include "platform/profile_file.h"
#include "platform/text.h"
#include "profile_reading.h"

namespace {

struct Key {
    const char* section;
    const char* key;
};
constexpr std::array<Key, 4> Keys = {{{"MIDI", "Channel"},
                                      {"Windows", "Save Positions"},
                                      {"Recent Files", "Tone1"},
                                      {"Main Window", "Left"}}};

constexpr const char* Missing = "\x01 missing";

std::string Value(std::string_view text, const Key& key) {
    return Profile_Value(text, key.section, key.key, Missing);
}

void Check_Reading(std::string_view text) {
    const Profile profile = Profile_Reading(text);
    for (const Key& key : Keys) {
        const auto section = profile.find(Upper_Text(key.section));
        std::string expected = Missing;
        if (section != profile.end()) {
            const auto found = section->second.find(Upper_Text(key.key));
            if (found != section->second.end()) expected = found->second;
        }
        Check_Equal(Value(text, key), expected);
    }
}

// A value as it comes back: one line, without blanks at its ends and one pair of quotation marks.
std::string_view As_Stored(std::string_view value) {
    value = Trimmed(value.substr(0, value.find_first_of("\r\n")));
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// The new text is the old one but for one place: a value, or a piece that was put in.
void Check_Only_One_Place(std::string_view before, std::string_view after, std::string_view value) {
    std::size_t start = 0;
    while (start < std::min(before.size(), after.size()) && before[start] == after[start]) ++start;
    std::size_t end = 0;
    while (end < std::min(before.size(), after.size()) - start &&
           before[before.size() - 1 - end] == after[after.size() - 1 - end])
        ++end;
    const std::string_view gone = before.substr(start, before.size() - end - start);
    const std::string_view come = after.substr(start, after.size() - end - start);
    Check(gone.find_first_of("\r\n") == std::string_view::npos);
    // At most a line end, a section and a key come with the value.
    Check(come.size() <= value.size() + 40);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Feed feed(data, size);
    const std::string_view value = feed.Text(80);
    const std::string_view text = feed.Rest();
    Check_Reading(text);
    for (const Key& key : Keys) {
        const std::string changed = Profile_With_Value(text, key.section, key.key, value);
        Check(Value(changed, key) == As_Stored(value));
        Check(Profile_With_Value(changed, key.section, key.key, value) == changed);
        Check(Profile_Value(changed, Upper_Text(key.section), Lower_Text(key.key), "") == As_Stored(value));
        Check_Only_One_Place(text, changed, value);
        for (const Key& other : Keys) {
            if (&other != &key) Check(Value(changed, other) == Value(text, other));
        }
    }
    return 0;
}
