// The dialog TName: the tone's name, up to ten characters. A name alone does not make a tone unsaved.
#pragma once

#include <string>

// The entry field "Tone_Name", ANSI (Windows-1252) like the name itself; the window translates.
struct TName_Form {
    std::string tone_name;
};
extern TName_Form TName_Dialog;

// The texts on the dialog.
inline constexpr const char* TName_Title = "Tone Name";
inline constexpr const char* TName_Prompt = "Please enter a name for the Tone:";
inline constexpr const char* TName_Caption_OK = "&OK";
inline constexpr const char* TName_Caption_Cancel = "&Cancel";

// What the user does.
void TName_Tone_Name_Change(const std::string& text);  // keeps the first ten characters
void TName_Cmd_OK();
void TName_Cmd_Cancel();  // also Escape and the window's close box

// Fills TName's load and unload procedures and the panels' way to the dialog.
void TName_Install();
