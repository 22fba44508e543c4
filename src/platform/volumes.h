// What plays the part of drives: the root and the mounted volumes.
// Bodies: volumes.cpp and tests/fakes/fake_volumes.cpp.
#pragma once

#include <string>
#include <vector>

// Their folders as they are now, "/" first, the others in order, without a final separator.
std::vector<std::string> Mounted_Volumes();
