#include "platform/gate.h"

#include <cstdio>
#include <exception>

#include "platform/message_box.h"

Hook<void()> Windows_Show_Changes;

void Guarded_Event(const std::function<void()>& handler) {
    try {
        handler();
    } catch (const std::exception& mistake) {
        Message_Box(mistake.what(), Buttons_Set::Ok, Icon::Stop);
    }
    // A mistake in the showing itself must not go out into the toolkit, and a box would only show it again.
    try {
        Windows_Show_Changes();
    } catch (const std::exception& mistake) {
        std::fprintf(stderr, "tonebench: %s\n", mistake.what());
    }
}
