// The smallest bodies of the platform for the fuzz targets: nothing is shown, nothing leaves, no time
// passes.
#include "platform/display.h"
#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "platform/midi_port.h"
#include "platform/timer.h"

std::vector<std::string> Port_Out_Names() {
    return {};
}
std::vector<std::string> Port_In_Names() {
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
Answer Message_Box(const std::string&, Buttons_Set buttons, Icon, const std::string&) {
    return buttons == Buttons_Set::Ok ? Answer::Ok : Answer::Yes;
}
void Timer_Start(Timer& timer) {
    timer.enabled = true;
}
void Timer_Stop(Timer& timer) {
    timer.enabled = false;
}
void Timer_Set_Interval(Timer& timer, int milliseconds) {
    timer.interval = milliseconds;
}
bool Event_Loop_Turn() {
    return true;
}
bool Event_Loop_Wait(int) {
    return true;
}
double Display_Logical_Density() {
    return 96;
}
int Display_Height() {
    return 1080;
}
bool Font_File_Add(const std::string&) {
    return false;
}
int Font_File_Remove(const std::string&) {
    return 0;
}
bool System_Sound_Play(const std::string&) {
    return true;
}
void Beep() {}
