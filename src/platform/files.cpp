#include "platform/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/text.h"

namespace {

bool Write_All(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t count = ::write(descriptor, contents.data(), contents.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        contents.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool Is_There(const std::string& path) {
    struct stat facts = {};
    // A link counts whether or not it leads anywhere.
    return ::lstat(path.empty() ? "." : path.c_str(), &facts) == 0;
}

// The entry of the folder that differs from `name` in case only; empty when there is none.
std::string Entry_In_Other_Case(const std::string& folder, const std::string& name) {
    std::string found;
    std::error_code error;
    std::filesystem::directory_iterator entries(folder.empty() ? "." : folder, error);
    while (!error && entries != std::filesystem::directory_iterator()) {
        const std::string entry = entries->path().filename().string();
        if (Same_Text(entry, name) && (found.empty() || entry < found)) found = entry;
        entries.increment(error);
    }
    return found;
}

// Opens a plain file; -1 with errno set when there is none. Without O_NONBLOCK a pipe would wait here for
// somebody at its other end.
int Open_Plain_File(const std::string& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return -1;
    struct stat facts = {};
    if (::fstat(descriptor, &facts) == 0 && S_ISREG(facts.st_mode)) return descriptor;
    const int reason = S_ISDIR(facts.st_mode) ? EISDIR : EINVAL;
    ::close(descriptor);
    errno = reason;
    return -1;
}

// Whether the open file is the one of that name, empty now and ours alone as long as it is open.
bool Taken_Over(int descriptor, const std::string& path) {
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) return false;
    struct stat open = {};
    struct stat named = {};
    // Another copy of the program may have put it into its place meanwhile.
    return ::fstat(descriptor, &open) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino && S_ISREG(open.st_mode) &&
           open.st_nlink == 1 && ::ftruncate(descriptor, 0) == 0;
}

// Opens the file that will take the other's place, and tells its name; -1 when there can be none. It has
// always the same name, so that what a killed program left is taken over and never piles up. One that
// somebody else writes or owns is left alone, and a name of its own is found.
int Open_Beside(const std::string& target, std::string& beside) {
    constexpr mode_t For_Us = 0600;
    beside = target + ".new";
    const int descriptor =
        ::open(beside.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, For_Us);
    if (descriptor >= 0) {
        if (Taken_Over(descriptor, beside)) return descriptor;
        ::close(descriptor);
    }
    beside = target + ".XXXXXX";
    return ::mkstemp(beside.data());
}

// What a file held before it was written over: enough to put it back when the disk is full half-way.
struct Before {
    bool there = false;
    off_t size = 0;
    std::optional<std::string> start;  // as many bytes as will be written; nothing when they cannot be read
};

Before Before_Writing(const std::string& path, std::size_t count) {
    Before before;
    before.there = Is_There(path);
    const int descriptor = Open_Plain_File(path);
    if (descriptor < 0) return before;
    struct stat facts = {};
    std::string start(count, '\0');
    const ssize_t read = ::pread(descriptor, start.data(), start.size(), 0);
    if (::fstat(descriptor, &facts) == 0 && read >= 0) {
        start.resize(static_cast<std::size_t>(read));
        before.size = facts.st_size;
        before.start = std::move(start);
    }
    ::close(descriptor);
    return before;
}

void Put_Back(int descriptor, const std::string& path, const Before& before) {
    if (!before.there) ::unlink(path.c_str());
    if (!before.start || ::lseek(descriptor, 0, SEEK_SET) != 0) return;
    if (Write_All(descriptor, *before.start)) (void)!::ftruncate(descriptor, before.size);
}

int Open_For_Reading(const std::string& path) {
    return Open_Plain_File(Path_Found(path));
}

}  // namespace

int File_Last_Error = 0;

std::string Path_Found(const std::string& path) {
    std::string found;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t separator = path.find(Path_Separator, begin);
        const std::size_t end = separator == std::string::npos ? path.size() : separator;
        std::string name = path.substr(begin, end - begin);
        if (!name.empty() && !Is_There(found + name)) {
            name = Entry_In_Other_Case(found, name);
            if (name.empty()) return found + path.substr(begin);
        }
        found += name;
        if (end < path.size()) found += Path_Separator;
        begin = end + 1;
    }
    return found;
}

bool File_Exists(std::string path) {
    if (path.ends_with(Path_Separator)) path.pop_back();
    const int descriptor = Open_For_Reading(path);
    File_Last_Error = descriptor < 0 ? errno : 0;
    if (descriptor >= 0) ::close(descriptor);
    return descriptor >= 0;
}

std::optional<std::string> File_Read_Whole(const std::string& path) {
    const int descriptor = Open_Plain_File(path);
    if (descriptor < 0) return std::nullopt;
    std::optional<std::string> contents = std::string();
    std::array<char, 65536> block;
    for (;;) {
        const ssize_t count = ::read(descriptor, block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        // Half of a file is worse than none: it might be written back.
        if (count < 0) contents.reset();
        if (count <= 0) break;
        contents->append(block.data(), static_cast<std::size_t>(count));
    }
    ::close(descriptor);
    return contents;
}

bool File_Is_Read_Only(const std::string& path) {
    constexpr mode_t Writing = 0222;
    struct stat facts = {};
    if (::stat(path.c_str(), &facts) != 0) return false;
    return (facts.st_mode & Writing) == 0 || ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
}

bool File_Replace(const std::string& path, const std::string& contents) {
    // A link stays a link: the file that it names is the one replaced.
    std::error_code error;
    std::filesystem::path target = std::filesystem::canonical(path, error);
    if (error) target = path;

    std::string beside;
    const int descriptor = Open_Beside(target.string(), beside);
    if (descriptor < 0) return false;

    struct stat old = {};
    const mode_t mode = ::stat(target.c_str(), &old) == 0 ? (old.st_mode & 07777U) : 0644U;
    // It takes its place while it is ours: behind the close another copy of the program might take it over.
    const bool done = ::fchmod(descriptor, mode) == 0 && Write_All(descriptor, contents) &&
                      ::fsync(descriptor) == 0 && ::rename(beside.c_str(), target.c_str()) == 0;
    if (!done) ::unlink(beside.c_str());
    ::close(descriptor);
    return done;
}

int File_Overwrite(const std::string& path, std::string_view contents) {
    constexpr mode_t For_Everybody = 0666;  // less what the user's mask takes away
    const std::string found = Path_Found(path);
    const Before before = Before_Writing(found, contents.size());
    const int descriptor =
        ::open(found.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, For_Everybody);
    if (descriptor < 0) return errno;
    const int written = Write_All(descriptor, contents) ? 0 : errno;
    if (written != 0) Put_Back(descriptor, found, before);
    // Some file systems tell of a full disk only now.
    const int closed = ::close(descriptor) == 0 ? 0 : errno;
    return written != 0 ? written : closed;
}

File_Reader::File_Reader(const std::string& path) : descriptor_(Open_For_Reading(path)) {}

File_Reader::~File_Reader() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

bool File_Reader::Fill(std::uint64_t position) {
    first_ = position;
    count_ = 0;
    if (descriptor_ < 0 || position == 0) return false;
    ssize_t read = 0;
    do {
        read = ::pread(descriptor_, buffer_.data(), buffer_.size(), static_cast<off_t>(position - 1));
    } while (read < 0 && errno == EINTR);
    if (read <= 0) return false;
    count_ = static_cast<std::size_t>(read);
    return true;
}
