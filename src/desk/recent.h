// The two lists of recent files in the File menu, four places each.
//
// The names stand by place, 1 to 4. A file that has gone leaves a hole, which nothing fills from below: the
// menu then shows "&1 ..." and "&3 ...". The lists are written here only; the menu's entries follow at
// once.
#pragma once

#include <string>

// The path at a place, 1 to 4; empty when there is none. Any other place is a programming mistake
// (Fatal_Error).
const std::string& Recent_Tone(int place);
const std::string& Recent_Seq(int place);

// What the settings have for a place, before Add has looked at it: the file may have gone, and the menu
// does not show it yet.
void Recent_Tone_Put(int place, std::string name);
void Recent_Seq_Put(int place, std::string name);

// Takes files that have gone out of the list and puts `name` in front; an empty name only cleans up. Names
// that differ in case only are the same. A name that stands second or third moves to the front, one that
// stands fourth comes in like a new one.
void Recent_Tone_Add(const std::string& name);
void Recent_Seq_Add(const std::string& name);
