#include "fence.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <utility>

#include "feed.h"

extern "C" {
int __real_open(const char* path, int flags, ...);
DIR* __real_opendir(const char* path);
int __real_mkdir(const char* path, mode_t mode);
int __real_rmdir(const char* path);
int __real_unlink(const char* path);
int __real_rename(const char* from, const char* to);
int __real_mkstemp(char* pattern);

int __wrap_open(const char* path, int flags, ...);
DIR* __wrap_opendir(const char* path);
int __wrap_mkdir(const char* path, mode_t mode);
int __wrap_rmdir(const char* path);
int __wrap_unlink(const char* path);
int __wrap_rename(const char* from, const char* to);
int __wrap_mkstemp(char* pattern);
}

namespace {

struct Own_Folder {
    std::string path;

    Own_Folder() {
        std::error_code error;
        const bool memory = std::filesystem::is_directory("/dev/shm", error);
        path = memory ? "/dev/shm" : std::filesystem::temp_directory_path().string();
        // No capitals in it, so that an input means the same in every run.
        path += "/tonebench-fuzz-" + std::to_string(getpid());
        Check(__real_mkdir(path.c_str(), 0700) == 0);
    }
    ~Own_Folder() {
        std::error_code error;
        std::filesystem::remove_all(path, error);
    }
    Own_Folder(const Own_Folder&) = delete;
    Own_Folder& operator=(const Own_Folder&) = delete;
};

std::vector<Disk_Change> Changes;
bool Standing = false;

// Without "." and ".."; where there are no links this is where the system ends up, or it ends up nowhere.
std::string Plain(std::string_view path) {
    std::vector<std::string_view> names;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name == ".." && !names.empty()) names.pop_back();
        if (!name.empty() && name != "." && name != "..") names.push_back(name);
        begin = end + 1;
    }
    std::string plain;
    for (const std::string_view name : names) plain.append("/").append(name);
    return plain;
}

// A relative path is outside: the program has no business with the folder that the fuzzer was started in.
bool Inside(const char* path, bool folder_itself) {
    if (!Standing) return true;
    const std::string plain = Plain(path);
    const std::string& own = Fenced_Folder();
    const bool inside = path[0] == '/' && plain.starts_with(own) &&
                        (plain.size() == own.size() ? folder_itself : plain[own.size()] == '/');
    if (!inside) errno = EACCES;
    return inside;
}

int Noted(int result, Disk_Change::Kind kind, const char* path) {
    if (Standing && result >= 0) Changes.push_back({kind, Plain(path)});
    return result;
}

}  // namespace

int __wrap_open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    if (!Inside(path, true)) return -1;
    const int descriptor = __real_open(path, flags, mode);
    if ((flags & O_ACCMODE) == O_RDONLY) return descriptor;
    return Noted(descriptor, Disk_Change::Kind::Written, path);
}
DIR* __wrap_opendir(const char* path) {
    return Inside(path, true) ? __real_opendir(path) : nullptr;
}
int __wrap_mkdir(const char* path, mode_t mode) {
    return Inside(path, false) ? Noted(__real_mkdir(path, mode), Disk_Change::Kind::Made_Folder, path) : -1;
}
int __wrap_rmdir(const char* path) {
    return Inside(path, false) ? Noted(__real_rmdir(path), Disk_Change::Kind::Removed_Folder, path) : -1;
}
int __wrap_unlink(const char* path) {
    return Inside(path, false) ? Noted(__real_unlink(path), Disk_Change::Kind::Removed_File, path) : -1;
}
int __wrap_rename(const char* from, const char* to) {
    if (!Inside(from, false) || !Inside(to, false)) return -1;
    const int result = Noted(__real_rename(from, to), Disk_Change::Kind::Removed_File, from);
    return Noted(result, Disk_Change::Kind::Written, to);
}
int __wrap_mkstemp(char* pattern) {
    if (!Inside(pattern, false)) return -1;
    return Noted(__real_mkstemp(pattern), Disk_Change::Kind::Written, pattern);
}

const std::string& Fenced_Folder() {
    static const Own_Folder folder;
    return folder.path;
}

Fence::Fence() {
    Standing = true;
}

Fence::~Fence() {
    Standing = false;
}

std::vector<Disk_Change> Disk_Changes() {
    return std::exchange(Changes, {});
}

void Fenced_Write(const std::string& path, std::string_view bytes) {
    const int descriptor = __real_open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    Check(descriptor >= 0);
    Check(write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    close(descriptor);
}

std::string Fenced_Read(const std::string& path) {
    const int descriptor = __real_open(path.c_str(), O_RDONLY | O_CLOEXEC);
    Check(descriptor >= 0);
    struct stat facts = {};
    Check(fstat(descriptor, &facts) == 0);
    std::string bytes(static_cast<std::size_t>(facts.st_size), '\0');
    Check(pread(descriptor, bytes.data(), bytes.size(), 0) == facts.st_size);
    close(descriptor);
    return bytes;
}

void Fenced_Make_Folder(const std::string& path) {
    Check(__real_mkdir(path.c_str(), 0700) == 0);
}

void Fenced_Remove(const std::string& path) {
    Check(__real_unlink(path.c_str()) == 0 || __real_rmdir(path.c_str()) == 0);
}
