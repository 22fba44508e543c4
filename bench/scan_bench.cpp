// What reading a tone file costs, from a small one to one of 256 MB, in bytes a second: one with a tone at
// its start and nothing behind, and one of nothing but beginnings of messages. Beside it what the memory
// gives: a plain copy, and the reading of the file alone.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "midi/out.h"
#include "synth/syx_file.h"

namespace {

constexpr std::int64_t Kilobyte = 1 << 10;
constexpr std::int64_t Megabyte = 1 << 20;

class Tone_File {
  public:
    // `fill` stands behind the tone.
    Tone_File(std::int64_t size, char fill) {
        path_ = (std::filesystem::temp_directory_path() / "tonebench-bench-XXXXXX").string();
        const int descriptor = mkstemp(path_.data());
        if (descriptor < 0) std::abort();
        close(descriptor);
        std::ofstream file(path_, std::ios::binary);
        const std::string header("\xF0\x41\x35\x00\x21\x20\x01", 7);
        file << header << std::string(59, '\x2A') << '\xF7';
        const std::string block(Kilobyte, fill);
        for (std::int64_t left = size - 67; left > 0; left -= Kilobyte)
            file.write(block.data(), std::min(left, Kilobyte));
    }
    ~Tone_File() { unlink(path_.c_str()); }
    Tone_File(const Tone_File&) = delete;
    Tone_File& operator=(const Tone_File&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

void Scan(benchmark::State& state, char fill) {
    const Tone_File file(state.range(0), fill);
    MIDI_Autosend = 0;
    for (auto unused : state) {
        (void)unused;
        SYX_Load(file.Path(), "Soundcheck");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void Tone_And_Nothing_Else(benchmark::State& state) {
    Scan(state, '\x2A');
}
void Beginnings_Only(benchmark::State& state) {
    Scan(state, '\xF0');
}

void File_Read_Only(benchmark::State& state) {
    const Tone_File file(state.range(0), '\x2A');
    std::vector<char> block(64 * Kilobyte);
    for (auto unused : state) {
        (void)unused;
        const int descriptor = open(file.Path().c_str(), O_RDONLY | O_CLOEXEC);
        while (read(descriptor, block.data(), block.size()) > 0) benchmark::DoNotOptimize(block.data());
        close(descriptor);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

void Memory_Copied(benchmark::State& state) {
    const std::vector<char> from(static_cast<std::size_t>(state.range(0)), '\x2A');
    std::vector<char> to(from.size());
    for (auto unused : state) {
        (void)unused;
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * state.range(0));
}

}  // namespace

#define FIGURES(name) \
    BENCHMARK(name)->Repetitions(3)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond)
FIGURES(Tone_And_Nothing_Else)
    ->Arg(Kilobyte)
    ->Arg(32 * Kilobyte)
    ->Arg(Megabyte)
    ->Arg(16 * Megabyte)
    ->Arg(256 * Megabyte);
FIGURES(Beginnings_Only)->Arg(Megabyte);
FIGURES(File_Read_Only)->Arg(256 * Megabyte);
FIGURES(Memory_Copied)->Arg(256 * Megabyte);
#undef FIGURES

BENCHMARK_MAIN();
