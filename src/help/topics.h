// The texts of the help window: the topics of its search, the About text and the credits.
#pragma once

#include <array>
#include <string>

// A topic's keyword and its description stand in the same slot of the two tables. The numbers of the panel
// controls' help contexts are slots too; those below 78 wait for topics yet to come and stay empty.
inline constexpr std::size_t Help_Slots = 101;
extern std::array<std::string, Help_Slots> Help_Keywords;
extern std::array<std::string, Help_Slots> Help_Descriptions;

// Fills both tables; the help window does when it loads.
void Help_Topics_Fill();

// The free projects that the program stands on or is tested with, each with its reason. Empty slots at the
// end have no row in the list.
inline constexpr std::size_t Help_Credits = 16;
extern const std::array<const char*, Help_Credits> Help_Credit_Names;
extern const std::array<const char*, Help_Credits> Help_Credit_Reasons;

// ANSI; each line ends with carriage return and line feed.
std::string Help_About_Text();
