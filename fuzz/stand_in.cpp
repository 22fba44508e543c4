#include "stand_in.h"

#include <algorithm>

#include "platform/event_loop.h"
#include "platform/midi_port.h"

namespace {

constexpr Port_Handle The_Port = 1;

Port_Handle Open_Port = Port_Closed;

// The choices of a box, the one that ends the matter first.
std::vector<Answer> Choices(Buttons_Set buttons) {
    switch (buttons) {
        case Buttons_Set::Yes_No:
            return {Answer::No, Answer::Yes};
        case Buttons_Set::Yes_No_Cancel:
            return {Answer::Cancel, Answer::Yes, Answer::No};
        case Buttons_Set::Retry_Cancel:
            return {Answer::Cancel, Answer::Retry};
        default:
            return {Answer::Ok};
    }
}

}  // namespace

Stand_In Stand;

void Stand_Begin() {
    Stand.answers = {};
    Stand.boxes.clear();
    Stand.waiting = nullptr;
    Stand.sent.clear();
    Stand.shorts = 0;
}

std::size_t Boxes_With(std::string_view text) {
    return static_cast<std::size_t>(std::count(Stand.boxes.begin(), Stand.boxes.end(), text));
}

Answer Message_Box(const std::string& text, Buttons_Set buttons, Icon, const std::string&) {
    Stand.boxes.push_back(text);
    const std::vector<Answer> choices = Choices(buttons);
    if (choices.size() == 1 || Stand.answers.empty()) return choices.front();
    const auto byte = static_cast<unsigned char>(Stand.answers.front());
    Stand.answers.remove_prefix(1);
    return choices[byte % choices.size()];
}

bool Event_Loop_Turn() {
    return true;
}

bool Event_Loop_Wait(int) {
    return Stand.waiting && Stand.waiting();
}

std::vector<std::string> Port_Out_Names() {
    return Stand.port_names;
}
Port_Result Port_Out_Open(int, Port_Handle& handle) {
    if (!Stand.port_opens) return Port_No_Driver;
    handle = Open_Port = The_Port;
    return Port_Ok;
}
Port_Result Port_Out_Close(Port_Handle handle) {
    if (handle != Open_Port) return Port_Bad_Handle;
    Open_Port = Port_Closed;
    return Port_Ok;
}
Port_Result Port_Out_Short(Port_Handle handle, std::uint32_t) {
    if (handle != Open_Port) return Port_Bad_Handle;
    ++Stand.shorts;
    return Port_Ok;
}
Port_Result Port_Out_Ready(Port_Handle handle) {
    return handle == Open_Port ? Port_Ok : Port_Bad_Handle;
}
Port_Result Port_Out_Long(Port_Handle handle, std::string_view bytes) {
    if (handle != Open_Port) return Port_Bad_Handle;
    Stand.sent.emplace_back(bytes);
    return Port_Ok;
}
std::string Port_Error_Text(Port_Result) {
    return "";
}
