#include "fakes/own_process.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace {

pid_t Forked() {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    return child;
}

// A namespace of its own for mounting: as the administrator, or as one inside of a namespace of users.
bool May_Mount() {
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    if (unshare(CLONE_NEWNS) == 0) return true;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    return true;
}

}  // namespace

bool Killed_At(int step, const std::function<void()>& work) {
    const pid_t child = Forked();
    if (child == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(99);
        raise(SIGSTOP);
        work();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (!WIFSTOPPED(status)) throw std::runtime_error("no process may be watched here");
    for (int steps = 0; steps <= step; ++steps) {
        const int sign = WSTOPSIG(status);
        const long passed_on = sign == SIGTRAP || sign == SIGSTOP ? 0 : sign;
        if (ptrace(PTRACE_SYSCALL, child, nullptr, passed_on) != 0) break;
        waitpid(child, &status, 0);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return false;
        if (!WIFSTOPPED(status)) throw std::runtime_error("the work did not end well");
    }
    kill(child, SIGKILL);
    waitpid(child, &status, 0);
    return true;
}

void In_A_Process(const std::function<void()>& body) {
    const pid_t child = Forked();
    if (child == 0) {
        body();
        std::fflush(nullptr);
        _exit(::testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "in a process of its own";
}

Small_Disk::Small_Disk(std::string folder) : folder_(std::move(folder)) {
    mounted_ = May_Mount() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("small", folder_.c_str(), "tmpfs", 0, "size=32k,nr_inodes=24") == 0;
    std::printf("nothing fits any more: %s\n", mounted_ ? "a full disk" : "a limit on the size of files");
}

void Small_Disk::Fill() {
    if (!mounted_) {
        // What is written ends half-way.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit narrow = {50, RLIM_INFINITY};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &narrow), 0);
        return;
    }
    std::ofstream filler(folder_ + "/.filler", std::ios::binary);
    const std::string page(4096, 'x');
    while (filler.write(page.data(), static_cast<std::streamsize>(page.size())).flush()) {
    }
}

int Small_Disk::Error() const {
    return mounted_ ? ENOSPC : EFBIG;
}
