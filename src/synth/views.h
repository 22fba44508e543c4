// What the records ask of the windows that show them. Filled in by panels/.
#pragma once

#include "platform/hook.h"

extern Hook<void()> Panel_Apply_Tone;   // move every JX-8P control to Tone_Data; sends nothing
extern Hook<void()> Panel_Apply_Patch;  // the same for the Patch window and Patch_Data
extern Hook<void()> Editor_Arrange;     // the JX-8P panel: every control in its place and visible
extern Hook<void()> Editor_Conceal;     // every control of it invisible
extern Hook<void()> Juno_Arrange;       // the Alpha Juno panel: every control in its place and visible
extern Hook<void()> Juno_Tone_Init;     // an Alpha Juno's New tone, in Juno_Data and on its panel
