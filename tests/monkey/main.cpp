// A monkey at the program: random events at every window, the same ones for the same seed.
//
//     monkey --seed 7 --events 100000
//
// The run is a chain of lives: each is a process of its own, which ends as the program ends and leaves its
// settings to the next. A finding ends the run with its seed, the number of the event and the last events.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/personality.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "monkey/life.h"

namespace fs = std::filesystem;

namespace {

using Counts = std::map<std::string, std::int64_t>;

constexpr std::int64_t Events_A_Life = 10000;
constexpr std::int64_t Events_For_All_Windows = 20000;
constexpr uid_t Nobody = 65534;

void Clear(const std::string& path) {
    std::error_code error;
    for (int round = 0; round < 3; ++round) {
        for (fs::recursive_directory_iterator entry(path, error), end; !error && entry != end;
             entry.increment(error)) {
            std::error_code refused;
            if (entry->is_directory(refused) && !entry->is_symlink(refused))
                fs::permissions(entry->path(), fs::perms(0700), refused);
        }
        fs::remove_all(path, error);
    }
}

// Named after the seed: the name shows in the windows, and a wider one moves what the pointer meets. A
// second run of the same seed waits for the first.
struct Own_Folder {
    std::string path;

    explicit Own_Folder(std::uint64_t seed)
        : path((fs::temp_directory_path() / ("tonebench-monkey-" + std::to_string(seed))).string()),
          lock_(creat((path + ".lock").c_str(), 0600)) {
        if (lock_ < 0 || flock(lock_, LOCK_EX) != 0) std::exit(2);
        Clear(path);
        fs::create_directories(path + "/disk/program");
        // The build lays it one folder above this program.
        const fs::path own = fs::read_symlink("/proc/self/exe");
        fs::copy_file(own.parent_path().parent_path() / "JX8P.FNT", path + "/disk/program/JX8P.FNT");
        if (::geteuid() != 0) return;
        (void)!::chown(path.c_str(), Nobody, Nobody);
        for (const auto& entry : fs::recursive_directory_iterator(path))
            (void)!::lchown(entry.path().c_str(), Nobody, Nobody);
    }
    ~Own_Folder() {
        Clear(path);
        std::error_code error;
        fs::remove(path + ".lock", error);
        close(lock_);
    }
    Own_Folder(const Own_Folder&) = delete;
    Own_Folder& operator=(const Own_Folder&) = delete;

  private:
    int lock_;
};

// The program's exit code, or 128 and the signal.
int Run_Apart(const std::vector<std::string>& command) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        // The same addresses each time: what the toolkit orders by address is the same each time too.
        (void)personality(ADDR_NO_RANDOMIZE);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        setenv("QT_NO_GLIB", "1", 1);
        setenv("QT_HASH_SEED", "0", 1);
        setenv("QT_SCALE_FACTOR", "1", 1);
        setenv("LANG", "C.UTF-8", 1);
        setenv("XDG_RUNTIME_DIR", "/nowhere", 0);
        std::vector<char*> arguments;
        for (const std::string& word : command) arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(nullptr);
        execv("/proc/self/exe", arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Adds what a life has counted. Its events; -1 when it left nothing.
std::int64_t Take_Counts(const std::string& path, Counts& counts) {
    std::ifstream file(path);
    std::int64_t events = -1;
    file >> events;
    std::int64_t count = 0;
    std::string name;
    while (file >> count && std::getline(file, name)) counts[name.substr(1)] += count;
    return events;
}

void Tell(const Counts& counts, const char* heading, const std::string& kind) {
    std::printf("%s", heading);
    for (const auto& [name, count] : counts) {
        if (name.starts_with(kind + " "))
            std::printf(" %s %lld", name.substr(kind.size() + 1).c_str(), static_cast<long long>(count));
    }
    std::printf("\n");
}

bool All_Windows_Opened(const Counts& counts) {
    bool all = true;
    for (const char* window : {"Editor", "Editor_Juno", "Patch", "Patch_MKS70", "Sequencer", "Oscillator",
                               "MIDI_Setup", "TName", "Help", "File_Dlg", "Input_Dlg", "Message_Box"}) {
        if (counts.contains(std::string("opened ") + window)) continue;
        std::fprintf(stderr, "monkey: never opened: %s\n", window);
        all = false;
    }
    return all;
}

int Run(std::uint64_t seed, std::int64_t events, bool boxes) {
    const auto begin = std::chrono::steady_clock::now();
    const Own_Folder folder(seed);
    Counts counts;
    std::int64_t done = 0;
    int lives = 0;
    for (; done < events; ++lives) {
        const std::string file = folder.path + "/counts";
        const int result = Run_Apart({"monkey", "--seed", std::to_string(seed), "--life",
                                      std::to_string(lives), "--first", std::to_string(done), "--events",
                                      std::to_string(std::min(events - done, Events_A_Life)), "--folder",
                                      folder.path + "/disk", "--counts", file});
        const std::int64_t more = result == 0 ? Take_Counts(file, counts) : -1;
        fs::remove(file);
        if (more <= 0) {
            std::fprintf(
                stderr, "monkey: life %d ended with %d; once more: monkey --seed %llu --events %lld\n",
                lives, result, static_cast<unsigned long long>(seed), static_cast<long long>(events));
            return 1;
        }
        done += more;
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    Tell(counts, "events:", "kind");
    Tell(counts, "at windows:", "window");
    Tell(counts, "opened:", "opened");
    if (boxes) {
        for (const auto& [name, count] : counts) {
            if (name.starts_with("box ") || name.starts_with("toolkit "))
                std::printf("%8lld %s\n", static_cast<long long>(count), name.c_str());
        }
    }
    std::printf("monkey: seed %llu, %lld events in %d lives, %.1f seconds, no finding\n",
                static_cast<unsigned long long>(seed), static_cast<long long>(done), lives, taken.count());
    return events < Events_For_All_Windows || All_Windows_Opened(counts) ? 0 : 1;
}

std::uint64_t Seed_From_Clock() {
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count() /
                                      1000000) %
           1000000007;
}

}  // namespace

int main(int argument_count, char** arguments) {
    Life_Plan plan;
    plan.seed = Seed_From_Clock();
    plan.events = Events_For_All_Windows;
    bool boxes = false;
    for (int place = 1; place < argument_count; ++place) {
        const std::string name = arguments[place];
        if (name == "--boxes") {
            boxes = true;
            continue;
        }
        if (place + 1 == argument_count) break;
        const char* const value = arguments[++place];
        if (name == "--seed") plan.seed = std::strtoull(value, nullptr, 10);
        if (name == "--events") plan.events = std::strtoll(value, nullptr, 10);
        if (name == "--life") plan.life = std::atoi(value);
        if (name == "--first") plan.first = std::strtoll(value, nullptr, 10);
        if (name == "--folder") plan.folder = value;
        if (name == "--counts") plan.counts = value;
    }
    if (!plan.folder.empty()) return Life_Run(plan, argument_count, arguments);
    return Run(plan.seed, plan.events, boxes);
}
