// What a large folder costs the file window: both lists of a folder of 5,000 and of 50,000 tones, and
// beside it the reading of the names alone, without order, which nobody can do without.
#include <benchmark/benchmark.h>
#include <dirent.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "filedlg/folder_model.h"

namespace {

class Large_Folder {
  public:
    explicit Large_Folder(std::int64_t files) {
        std::string pattern = (std::filesystem::temp_directory_path() / "tonebench-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) return;
        path_ = pattern;
        for (std::int64_t number = 0; number < files; ++number) {
            std::ofstream(path_ + "/Tone " + std::to_string(number * 7919 % files) + ".syx");
        }
    }
    ~Large_Folder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    Large_Folder(const Large_Folder&) = delete;
    Large_Folder& operator=(const Large_Folder&) = delete;

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

void Both_Lists(benchmark::State& state) {
    const Large_Folder folder(state.range(0));
    for (auto unused : state) {
        (void)unused;
        benchmark::DoNotOptimize(FD_List_Dirs_Set_Path(folder.Path()));
        benchmark::DoNotOptimize(FD_List_Files_Set_Path(folder.Path()));
    }
}

// Twice, as there are two lists.
void Names_Alone(benchmark::State& state) {
    const Large_Folder folder(state.range(0));
    for (auto unused : state) {
        (void)unused;
        for (int list = 0; list < 2; ++list) {
            DIR* const stream = opendir(folder.Path().c_str());
            while (const dirent* const entry = readdir(stream)) benchmark::DoNotOptimize(entry->d_name);
            closedir(stream);
        }
    }
}

}  // namespace

#define FIGURES(name) \
    BENCHMARK(name)->Repetitions(3)->ReportAggregatesOnly(true)->Unit(benchmark::kMicrosecond)
FIGURES(Both_Lists)->Arg(5000)->Arg(50000);
FIGURES(Names_Alone)->Arg(50000);
#undef FIGURES

BENCHMARK_MAIN();
