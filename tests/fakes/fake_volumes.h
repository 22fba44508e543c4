// Drives that are there and go when told to.
#pragma once

#include <functional>
#include <string>
#include <vector>

extern std::vector<std::string> Volumes;  // "/" alone at first

// Runs each time somebody asks for them.
extern std::function<void()> When_Volumes_Are_Asked;
