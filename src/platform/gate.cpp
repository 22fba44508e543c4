#include "platform/gate.h"

#include <exception>

#include "platform/message_box.h"

Hook<void()> Windows_Show_Changes;

void Guarded_Event(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& mistake) {
        Message_Box(mistake.what(), Buttons_Set::Ok, Icon::Stop);
    }
    Windows_Show_Changes();
}
