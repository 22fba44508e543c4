// The screen, the program's own font and the sound of a refused click.
// Bodies: display_qt.cpp and tests/fakes/fake_display.cpp.
#pragma once

#include <string>

// Logical pixels per inch of the screen in y, as the toolkit lays windows out by. A screen that the
// toolkit scales as a whole (device pixel ratio 1.25, 1.5, 2) counts by its scaled size: 96.
double Display_Logical_Density();

// Size of the screen in the pixels that windows are placed by.
int Display_Width();
int Display_Height();

// Makes the faces of a font file known to this process. False when the file cannot be used: it is no plain
// file, larger than 16 MB, no font of outlines, or damaged.
bool Font_File_Add(const std::string& path);

// Takes it back. 0 on success, else the system's error number.
int Font_File_Remove(const std::string& path);

// Plays the desktop's sound of that name and returns when it has ended. False when the system has none;
// there is no sound by default then.
bool System_Sound_Play(const std::string& alias);

void Beep();
