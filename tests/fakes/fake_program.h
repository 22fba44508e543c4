// The program's folder in a test: an empty one of its own, gone at the end.
#pragma once

#include <string>

std::string Test_Folder();
