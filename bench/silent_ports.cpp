// Ports that only take the bytes: nothing of them is measured.
#include <benchmark/benchmark.h>

#include "platform/midi_port.h"

std::vector<std::string> Port_Out_Names() {
    return {"Synth"};
}
Port_Result Port_Out_Open(int, Port_Handle& handle) {
    handle = 1;
    return Port_Ok;
}
Port_Result Port_Out_Close(Port_Handle) {
    return Port_Ok;
}
Port_Result Port_Out_Short(Port_Handle, std::uint32_t word) {
    benchmark::DoNotOptimize(word);
    return Port_Ok;
}
Port_Result Port_Out_Ready(Port_Handle) {
    return Port_Ok;
}
Port_Result Port_Out_Long(Port_Handle, std::string_view bytes) {
    benchmark::DoNotOptimize(bytes.data());
    return Port_Ok;
}
std::string Port_Error_Text(Port_Result) {
    return "";
}
