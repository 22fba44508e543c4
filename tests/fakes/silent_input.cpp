// An input that never opens, for figures and fuzz targets.
#include "platform/midi_port.h"

std::vector<std::string> Port_In_Names() {
    return {};
}
Port_Result Port_In_Open(int, Port_Handle&) {
    return Port_No_Driver;
}
Port_Result Port_In_Prepare(Port_Handle, Block_Address) {
    return Port_Bad_Handle;
}
Port_Result Port_In_Add_Buffer(Port_Handle, Block_Address) {
    return Port_Bad_Handle;
}
Block_Address Port_In_Next(Port_Handle) {
    return 0;
}
bool Port_In_Refused(Port_Handle) {
    return false;
}
bool Port_In_Present(Port_Handle) {
    return false;
}
Port_Result Port_In_Reset(Port_Handle) {
    return Port_Bad_Handle;
}
Port_Result Port_In_Close(Port_Handle) {
    return Port_Bad_Handle;
}
Block_Handle Block_Make(std::size_t) {
    return 0;
}
Block_Address Block_Lock(Block_Handle) {
    return 0;
}
void Block_Page_Lock(Block_Handle) {}
void Block_Page_Unlock(Block_Handle) {}
void Block_Unlock(Block_Handle) {}
void Block_Free(Block_Handle) {}
std::span<char> Block_At(Block_Address) {
    return {};
}
