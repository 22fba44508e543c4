// The smallest bodies of the platform, for figures and fuzz targets: nothing is shown and no time passes.
// Ports, boxes and events are bodies of their own.
#include "platform/display.h"
#include "platform/slow_work.h"
#include "platform/timer.h"
#include "platform/wake_up.h"

void Timer_Start(Timer& timer) {
    timer.enabled = true;
}
void Timer_Stop(Timer& timer) {
    timer.enabled = false;
}
void Timer_Set_Interval(Timer& timer, int milliseconds) {
    timer.interval = milliseconds;
}
double Display_Logical_Density() {
    return 96;
}
int Display_Width() {
    return 1920;
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
bool Slow_Work(std::function<void()> work, int) {
    work();
    return true;
}

void Wake_Up_Begin(Hook<void()>) {}
void Wake_Up_End() {}
