// The first checks of the start: the program's own font, and the two screen densities that the panels are
// laid out for.
#pragma once

#include <string>

#include "platform/hook.h"
#include "platform/numbers.h"

extern Flag_16 Font_Loaded;  // the font file was installed by this run

// Filled in by the Alpha Juno panel: the face of its Tone_Name field.
extern Hook<void(const char* face)> Juno_Take_Font;

// Path of "JX8P.FNT", beside the program.
std::string Font_Path();

// Installs the font and gives it to the Tone_Name fields of both editor windows, which loads them. On
// failure one message, and the fields keep their font.
void Font_Install();

// Takes the font away again, if this run installed it. A failure is told with the system's number.
void Font_Remove();

// Measures Screen_PPI and Font_Scale. False after the message for a density that is neither 96 nor 120.
[[nodiscard]] bool Display_Check();
