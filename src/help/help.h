// The window Help: About with the credits, How to use with living controls (howto.h), and Search over the
// topics (topics.h). One page at a time is visible. While it is open the rest is locked.
#pragma once

#include <string>

#include "desk/form.h"

extern std::string Help_Page;  // page to show when the window loads: "About", "Howto" or "Search"

// What stands on the window besides the practice controls. Texts are ANSI.
struct Help_Form {
    std::string page;         // the one that is visible: Frame_Credits, Frame_Howto or Frame_Search
    std::string keyword;      // "Help_Keyword", text entry
    Drop_Down key_list;       // "Help_KeyList", sorted
    std::string description;  // "Help_Description"
    std::string about;        // "About"
    Drop_Down credits;        // "Credits"
    std::string credits_why;  // "Credits_Why"
    int keyword_focused = 0;  // each count puts the input focus into the text entry once
};
extern Help_Form Help_Window_Form;

// The texts on the window.
inline constexpr const char* Help_Title = "Tonebench Help";
inline constexpr const char* Help_Caption_Howto = "How to use Tonebench";
inline constexpr const char* Help_Caption_Search = "Search";
inline constexpr const char* Help_Caption_About = "About";
inline constexpr const char* Help_Label_Keyword = "&Enter a keyword:";
inline constexpr const char* Help_Label_List = "&Select a topic:";
inline constexpr const char* Help_Label_Description = "Description:";
inline constexpr const char* Help_Label_Howto =
    "Tonebench has different control elements to change parameters. A selected element blinks. Select a "
    "control "
    "element below and read the corresponding description on the right side:";
inline constexpr const char* Help_Label_About = "Informations:";
inline constexpr const char* Help_Label_Credits = "Credits:";

// What the user does on the window. A list reports the index that was chosen.
void Help_Cmd_Howto();
void Help_Cmd_Search();
void Help_Cmd_About();
void Help_Keyword_Change(const std::string& text);  // the list follows the typing
void Help_KeyList_Click(int index);
void Help_Credits_Click(int index);
void Help_Close_Asked();  // Escape or the close box

// The menu's entries: each opens the window on its page.
void Menu_Help_Howto_Chosen();
void Menu_Help_Search_Chosen();
void Menu_Help_About_Chosen();

// Fills Help's load and unload procedures.
void Help_Install();
