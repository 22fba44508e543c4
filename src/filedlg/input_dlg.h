// The program's general question for a text. The one window that is shown modally: Input_Box returns when
// it has closed, and nothing else can be worked meanwhile.
#pragma once

#include <string>

extern std::string Input_Result;  // the text handed back; empty after Cancel

struct Input_Form {
    std::string prompt;      // "Input_Msg"
    std::string text;        // "Input_Textbox"
    int times_selected = 0;  // each count selects the whole text once
};
extern Input_Form Input_Dialog;

inline constexpr const char* Input_Title = "Input_Box";  // until a caller gives its own
inline constexpr const char* Input_Caption_OK = "Ok";
inline constexpr const char* Input_Caption_Cancel = "Cancel";

// Asks with this default. The answer as it was typed, or empty.
std::string Input_Box(const std::string& prompt, const std::string& title, const std::string& text);

void Input_Textbox_Change(const std::string& text);
void Input_OK_Click();
void Input_Cancel_Click();  // also Escape and the window's close box

void Input_Install();
