#include "filedlg/lamps.h"

namespace {

constexpr int Tag_Off = 0;
constexpr int Check_Tag_On = 3;
constexpr int Option_Tag_On = 1;
constexpr int Disabled_Picture = 5;

// A tag is the number of its picture.
void Set(Lamp& lamp, int tag) {
    lamp.tag = tag;
    lamp.control.picture = Picture_Of(Picture_Store::LED, tag);
}

void Disable(Lamp& lamp) {
    lamp.control.picture = Picture_Of(Picture_Store::LED, Disabled_Picture);
    lamp.control.enabled = false;
}

}  // namespace

void Check_On(Lamp& box) {
    Set(box, Check_Tag_On);
}

void Check_Off(Lamp& box) {
    Set(box, Tag_Off);
}

void Check_Toggle(Lamp& box) {
    if (!box.control.enabled) return;
    if (box.tag == Tag_Off) {
        Check_On(box);
    } else {
        Check_Off(box);
    }
}

void Check_Disable(Lamp& box) {
    Disable(box);
}

void Option_Select(Option_Group& group, std::size_t index) {
    for (Lamp& option : group) {
        if (option.control.enabled) Set(option, Tag_Off);
    }
    Set(group.at(index), Option_Tag_On);
}

void Option_Enable(Lamp& option) {
    option.control.enabled = true;
    Set(option, option.tag);
}

void Option_Disable(Lamp& option) {
    Disable(option);
}

void Options_Disable(Option_Group& group) {
    for (Lamp& option : group) Option_Disable(option);
}
