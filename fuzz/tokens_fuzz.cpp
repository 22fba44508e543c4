// Any text as a message: at most one byte for two characters.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "synth/tokens.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (Sysex_Text_To_Bytes(text).size() > size / 2) std::abort();
    return 0;
}
