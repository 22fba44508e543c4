// The system's list of mounted file systems as text, and which of them play a drive.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The folders at which a list like /proc/self/mounts has something that holds a user's files: discs, sticks
// and shares, but none of the system's own. "/" stands first, the others in order; each once.
std::vector<std::string> Volumes_In(std::string_view mounts);
