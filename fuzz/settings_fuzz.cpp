// Any text as a settings file: every value can be read, and a value that is written comes back, with every
// other value as it was. The value may be any bytes too.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/profile_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string other = Profile_Value(text, "Windows", "Save Positions", "none");
    const std::string changed = Profile_With_Value(text, "MIDI", "Channel", "7");
    if (Profile_Value(changed, "MIDI", "Channel", "") != "7") std::abort();
    if (Profile_Value(changed, "Windows", "Save Positions", "none") != other) std::abort();
    if (Profile_With_Value(changed, "MIDI", "Channel", "7") != changed) std::abort();

    const std::string_view value = text.substr(text.size() / 2);
    const std::string with_any = Profile_With_Value(text, "Recent Files", "Tone1", value);
    if (Profile_Value(with_any, "Windows", "Save Positions", "none") != other) std::abort();
    const std::string stored = Profile_Value(with_any, "Recent Files", "Tone1", "none");
    if (value.find(stored) == std::string_view::npos) std::abort();
    if (Profile_With_Value(with_any, "Recent Files", "Tone1", value) != with_any) std::abort();
    return 0;
}
