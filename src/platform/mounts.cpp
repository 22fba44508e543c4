#include "platform/mounts.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace {

// File systems that hold files without a device of their own.
constexpr std::array<std::string_view, 8> Shares = {"nfs",        "nfs4", "cifs",  "smb3",
                                                    "fuse.sshfs", "9p",   "davfs", "virtiofs"};

// Where the system keeps its own.
constexpr std::array<std::string_view, 6> System_Folders = {"/proc", "/sys",  "/dev",
                                                            "/boot", "/snap", "/var/lib"};

bool Lies_Under(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

// The list writes a blank, a tab, a line feed and a backslash as three octal digits behind a backslash.
std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const std::string_view digits = text.substr(place + 1, 3);
        const bool octal = text[place] == '\\' && digits.size() == 3 &&
                           std::all_of(digits.begin(), digits.end(),
                                       [](char digit) { return digit >= '0' && digit <= '7'; });
        if (!octal) {
            plain += text[place];
            continue;
        }
        plain += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
        place += digits.size();
    }
    return plain;
}

bool Holds_Files(const std::string& device, const std::string& folder, const std::string& kind) {
    const bool of_system = std::any_of(System_Folders.begin(), System_Folders.end(),
                                       [&](std::string_view own) { return Lies_Under(folder, own); });
    if (of_system || kind == "squashfs") return false;
    // Sticks may be mounted below /run/media; nothing else there is the user's.
    if (Lies_Under(folder, "/run") && !Lies_Under(folder, "/run/media")) return false;
    return device.starts_with("/dev/") || std::find(Shares.begin(), Shares.end(), kind) != Shares.end();
}

}  // namespace

std::vector<std::string> Volumes_In(std::string_view mounts) {
    std::vector<std::string> volumes;
    std::istringstream lines{std::string(mounts)};
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string device;
        std::string folder;
        std::string kind;
        if (!(fields >> device >> folder >> kind)) continue;
        folder = Unescaped(folder);
        if (folder != "/" && folder.starts_with('/') && Holds_Files(device, folder, kind)) {
            volumes.push_back(folder);
        }
    }
    std::sort(volumes.begin(), volumes.end());
    volumes.erase(std::unique(volumes.begin(), volumes.end()), volumes.end());
    volumes.insert(volumes.begin(), "/");
    return volumes;
}
