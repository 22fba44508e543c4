#include "platform/program.h"

#include <filesystem>
#include <system_error>

std::string Program_Directory() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string(".") : program.parent_path().string();
}
