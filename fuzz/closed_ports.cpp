// Ports that never open, for the fuzz targets: nothing leaves.
#include "platform/midi_port.h"

std::vector<std::string> Port_Out_Names() {
    return {};
}
Port_Result Port_Out_Open(int, Port_Handle&) {
    return Port_No_Driver;
}
Port_Result Port_Out_Close(Port_Handle) {
    return Port_Ok;
}
Port_Result Port_Out_Short(Port_Handle, std::uint32_t) {
    return Port_Bad_Handle;
}
Port_Result Port_Out_Ready(Port_Handle) {
    return Port_Bad_Handle;
}
Port_Result Port_Out_Long(Port_Handle, std::string_view) {
    return Port_Bad_Handle;
}
std::string Port_Error_Text(Port_Result) {
    return "";
}
