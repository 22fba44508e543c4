#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace {

bool Write_All(int descriptor, const std::string& contents) {
    std::size_t written = 0;
    while (written < contents.size()) {
        const ssize_t count = ::write(descriptor, contents.data() + written, contents.size() - written);
        if (count < 0) return false;
        written += static_cast<std::size_t>(count);
    }
    return ::fsync(descriptor) == 0;
}

}  // namespace

std::optional<std::string> File_Read_Whole(const std::string& path) {
    std::error_code error;
    // A folder opens like a file here, and reading it fails only later.
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool File_Replace(const std::string& path, const std::string& contents) {
    // A link stays a link: the file that it names is the one replaced.
    std::error_code error;
    std::filesystem::path target = std::filesystem::canonical(path, error);
    if (error) target = path;

    std::string beside = target.string() + ".XXXXXX";
    const int descriptor = ::mkstemp(beside.data());
    if (descriptor < 0) return false;

    struct stat old = {};
    const mode_t mode = ::stat(target.c_str(), &old) == 0 ? (old.st_mode & 07777U) : 0644U;
    bool done = ::fchmod(descriptor, mode) == 0 && Write_All(descriptor, contents);
    done = ::close(descriptor) == 0 && done;
    done = done && ::rename(beside.c_str(), target.c_str()) == 0;
    if (!done) ::unlink(beside.c_str());
    return done;
}
