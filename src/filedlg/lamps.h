// The drawn check boxes and option buttons of the file window. Each keeps its state in a small number, its
// tag, and shows it by a picture of the store LED:
//
//   state      check box     option
//   off        0, LED(0)     0, LED(0)
//   on         3, LED(3)     1, LED(1)
//   disabled   tag as it was, LED(5)
#pragma once

#include <array>
#include <cstddef>

#include "panels/controls.h"

struct Lamp {
    Control control;
    int tag = 0;
};

void Check_On(Lamp& box);
void Check_Off(Lamp& box);
void Check_Toggle(Lamp& box);  // a disabled box stays as it is
void Check_Disable(Lamp& box);

// A group is an array of options; an index outside of it is a programming mistake.
using Option_Group = std::array<Lamp, 2>;
void Option_Select(Option_Group& group, std::size_t index);  // the other enabled ones go off
void Option_Enable(Lamp& option);
void Option_Disable(Lamp& option);
void Options_Disable(Option_Group& group);
