// The last folder of each file kind. Read from the settings at start, written by the file window.
#pragma once

#include <string>

extern std::string Dir_Tones;
extern std::string Dir_Sequences;
extern std::string Dir_Oscillators;

// What a stored folder stands for today: itself, in lower case and with a final separator, while it holds
// an ordinary file; else the current directory, as the system writes it.
std::string Folder_Or_Current(const std::string& stored);
