// What the records ask of the windows that show them, filled in by panels/; and the Alpha Juno's part in
// what is done to a whole tone, filled in by its own files.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/hook.h"

extern Hook<void()> Panel_Apply_Tone;   // move every JX-8P control to Tone_Data; sends nothing
extern Hook<void()> Panel_Apply_Patch;  // the same for the Patch window and Patch_Data
extern Hook<void()> Editor_Arrange;     // the JX-8P panel: every control in its place and visible
extern Hook<void()> Editor_Conceal;     // every control of it invisible
extern Hook<void()> Juno_Arrange;       // the Alpha Juno panel: every control in its place and visible
extern Hook<void()> Juno_Tone_Init;     // an Alpha Juno's New tone, in Juno_Data and on its panel

// The Alpha Juno's part in what is done to a whole tone; its record stands beside the JX-8P's.
using Random_Draw = std::function<std::uint8_t(double limit)>;  // r * limit cut down, 0 <= r < 1

extern Hook<void()> Juno_To_Panel;                             // Panel_Apply_Tone for its record
extern Hook<bool(const std::string& path)> Juno_SYX_Load;      // true when a tone was read
extern Hook<std::string()> Juno_SYX_Text;                      // its file as token text
extern Hook<void()> Juno_Undo_Store;                           // copies the record away
extern Hook<void()> Juno_Undo_Restore;                         // and back
extern Hook<void(const Random_Draw& draw)> Juno_Tone_Random;   // a record drawn at random, named, shown
extern Hook<void(const std::string& name)> Juno_Name_To_Data;  // the name's ten bytes of the record
extern Hook<void()> Juno_Display_Name;                         // Tone_Name_Text into its display
