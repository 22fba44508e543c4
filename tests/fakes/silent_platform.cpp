// The smallest bodies of the platform, for figures and fuzz targets: nothing is shown, no time passes and
// nothing comes in. The output is the user's own.
#include "platform/display.h"
#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "platform/midi_port.h"
#include "platform/timer.h"
#include "platform/wake_up.h"

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

void Wake_Up_Begin(Hook<void()>) {}
void Wake_Up_End() {}

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
