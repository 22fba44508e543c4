#include "platform/program.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

std::string Program_Directory() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string(".") : program.parent_path().string();
}

void Program_Leave_Home() {
    std::error_code error;
    const std::filesystem::path here = std::filesystem::current_path(error);
    const char* const home = std::getenv("HOME");
    const bool is_home = home != nullptr && std::filesystem::equivalent(here, home, error);
    if (is_home || here == here.root_path()) std::filesystem::current_path(Program_Directory(), error);
}
