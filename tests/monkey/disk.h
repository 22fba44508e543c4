// The disk of a run: one folder, furnished with files of all kinds. What the program writes goes through
// here: nothing outside of the folder is touched, and inside only what a window named.
#pragma once

#include <string>

// Empties the folder, but for the program's own, and furnishes it anew.
void Disk_Begin(const std::string& folder);

std::string Disk_Folder();
std::string Disk_Program();  // the program's own folder in it

// Takes note of the names that the windows show now.
void Disk_Notice_Names();

// Something else changes a file, a folder or the rights to it.
std::string Disk_Change();

// From now on one in so many calls fails; 0 = none.
void Disk_Fail_One_In(int count);

// The folder holds what was put there and what the program was seen to write, and nothing else.
void Disk_Check();

// Fills the settings file with what a user, an older version or an accident may leave there.
void Disk_Write_Settings();

// A name to type into a field.
std::string Disk_Any_Name();
