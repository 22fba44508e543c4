#include "monkey/diary.h"

#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <initializer_list>

// A sanitizer tells of a crash itself; the two compilers say in different ways that there is one.
#if defined(__SANITIZE_ADDRESS__)
#define MONKEY_WATCHED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MONKEY_WATCHED 1
#endif
#endif
#ifdef MONKEY_WATCHED
#include <sanitizer/common_interface_defs.h>
#endif

std::map<std::string, std::int64_t> Diary_Counts;

namespace {

constexpr std::size_t Last_Lines = 60;
constexpr std::size_t Longest_Line = 160;

// Plain memory, so that it can be told from inside a crash.
std::array<std::array<char, Longest_Line>, Last_Lines> Lines = {};
std::size_t Lines_Written = 0;

std::uint64_t Seed = 0;
int Life = 0;
volatile std::int64_t First = 0;
volatile std::int64_t Count = 0;

void Write_Line(std::string_view text) {
    auto& line = Lines[Lines_Written++ % Last_Lines];
    const std::size_t size = std::min(text.size(), Longest_Line - 1);
    std::copy_n(text.begin(), size, line.begin());
    line[size] = '\0';
}

// With no memory taken: the process may be in any state.
void Tell(const char* why) {
    std::fprintf(stderr, "\nmonkey: the last events:\n");
    const std::size_t begin = Lines_Written > Last_Lines ? Lines_Written - Last_Lines : 0;
    for (std::size_t place = begin; place < Lines_Written; ++place)
        std::fprintf(stderr, "    %s\n", Lines[place % Last_Lines].data());
    std::fprintf(stderr, "monkey: seed %llu, life %d, event %lld: %s\n",
                 static_cast<unsigned long long>(Seed), Life, static_cast<long long>(Count), why);
}

[[maybe_unused]] void On_Crash(int number) {
    static volatile sig_atomic_t crashed = 0;
    if (crashed != 0) _exit(1);
    crashed = 1;
    Tell(number == SIGABRT ? "the program gave up" : "the program crashed");
    std::signal(number, SIG_DFL);
    std::raise(number);
}

// -- the watchdog ----------------------------------------------------------------------------------------

// One event may take so long in real time on a machine that has time, and on any machine.
constexpr long Longest_Busy_Seconds = 10;
constexpr long Longest_Seconds = 60;

std::int64_t Seen = -1;
long Seen_Busy = 0;
long Seconds_Since = 0;

long Busy_Seconds() {
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    return used.ru_utime.tv_sec + used.ru_stime.tv_sec;
}

void On_Second(int) {
    if (Seen != Count) {
        Seen = Count;
        Seen_Busy = Busy_Seconds();
        Seconds_Since = 0;
        return;
    }
    ++Seconds_Since;
    if (Busy_Seconds() - Seen_Busy < Longest_Busy_Seconds && Seconds_Since < Longest_Seconds) return;
    Tell("an event does not come to its end");
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

}  // namespace

void Diary_Begin(std::uint64_t seed, int life, std::int64_t first) {
    Seed = seed;
    Life = life;
    First = first;
    Count = first;
#ifdef MONKEY_WATCHED
    __sanitizer_set_death_callback([] { Tell("the sanitizer found something"); });
#else
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) std::signal(number, On_Crash);
#endif
    std::signal(SIGABRT, On_Crash);

    struct sigaction action = {};
    action.sa_handler = On_Second;
    action.sa_flags = SA_RESTART;
    sigaction(SIGALRM, &action, nullptr);
    itimerval each_second = {{1, 0}, {1, 0}};
    setitimer(ITIMER_REAL, &each_second, nullptr);
}

void Diary_Note(std::string_view kind, std::string_view where, const std::string& what) {
    Count = Count + 1;
    ++Diary_Counts["kind " + std::string(kind)];
    if (!where.empty()) ++Diary_Counts["window " + std::string(where)];
    std::string line = std::to_string(Count) + " ";
    line.append(kind).append(" ").append(where).append(" ").append(what);
    Write_Line(line);
}

std::int64_t Diary_Events() {
    return Count - First;
}

void Diary_Remark(const std::string& text) {
    Write_Line("    " + text);
}

void Finding(const std::string& text) {
    Tell(text.c_str());
    std::fflush(nullptr);
    _exit(1);
}
