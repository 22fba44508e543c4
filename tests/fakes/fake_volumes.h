// Drives that are there and go when told to.
#pragma once

#include <string>
#include <vector>

extern std::vector<std::string> Volumes;  // "/" alone at first
