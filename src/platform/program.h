// Where the program lies. Bodies: program.cpp and tests/fakes/fake_program.cpp (a folder of the test's
// own).
#pragma once

#include <string>

// The folder of the running program, without a final separator.
std::string Program_Directory();

// Makes the program's folder the current one when that is the user's home or the root. A desktop starts
// programs there, but the tones that come with the program, with which the file window begins, lie beside
// it. Any other folder was chosen by somebody and stays.
void Program_Leave_Home();
