// Where the program lies. Bodies: program.cpp and tests/fakes/fake_program.cpp (a folder of the test's
// own).
#pragma once

#include <string>

// The folder of the running program, without a final separator.
std::string Program_Directory();
