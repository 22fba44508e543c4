// The program with a tap where its messages go to the port: the linker puts these two procedures between
// the callers and the port's own. Writes one line a message into "sent.txt" of its folder: the microseconds
// of the clock that the witness counts by too, and the bytes in hexadecimal; behind a message that was
// refused, the result. What it lists is what the port was given and took, so a witness must hear exactly
// that.
#include <array>
#include <chrono>
#include <cstdio>
#include <string_view>

#include "platform/midi_port.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C" {
Port_Result __real__Z14Port_Out_Shortij(Port_Handle handle, std::uint32_t word);
Port_Result __wrap__Z14Port_Out_Shortij(Port_Handle handle, std::uint32_t word);
Port_Result __real__Z13Port_Out_LongiSt17basic_string_viewIcSt11char_traitsIcEE(Port_Handle handle,
                                                                                std::string_view bytes);
Port_Result __wrap__Z13Port_Out_LongiSt17basic_string_viewIcSt11char_traitsIcEE(Port_Handle handle,
                                                                                std::string_view bytes);
}

namespace {

std::FILE* const Sent = std::fopen("sent.txt", "w");

void Note(std::string_view bytes, Port_Result result) {
    if (Sent == nullptr) return;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::fprintf(
        Sent, "%lld ",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
    for (const char byte : bytes) std::fprintf(Sent, "%02x", static_cast<unsigned char>(byte));
    if (result != Port_Ok) std::fprintf(Sent, " refused %d", result);
    std::fputc('\n', Sent);
}

}  // namespace

// The program's short messages are notes and controllers of three bytes.
Port_Result __wrap__Z14Port_Out_Shortij(Port_Handle handle, std::uint32_t word) {
    const std::array<char, 3> bytes = {static_cast<char>(word), static_cast<char>(word >> 8U),
                                       static_cast<char>(word >> 16U)};
    const Port_Result result = __real__Z14Port_Out_Shortij(handle, word);
    Note({bytes.data(), bytes.size()}, result);
    return result;
}

Port_Result __wrap__Z13Port_Out_LongiSt17basic_string_viewIcSt11char_traitsIcEE(Port_Handle handle,
                                                                                std::string_view bytes) {
    const Port_Result result =
        __real__Z13Port_Out_LongiSt17basic_string_viewIcSt11char_traitsIcEE(handle, bytes);
    Note(bytes, result);
    return result;
}
// NOLINTEND(bugprone-reserved-identifier)
