// What a large folder costs the file window: both lists of a folder of 50,000 tones.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "filedlg/folder_model.h"

namespace {

constexpr int Files = 50000;

class Large_Folder {
  public:
    Large_Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "tonebench-bench-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) return;
        path_ = pattern;
        for (int number = 0; number < Files; ++number) {
            std::ofstream(path_ + "/Tone " + std::to_string(number * 7919 % Files) + ".syx");
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

void A_Folder_Of_50000_Files(benchmark::State& state) {
    const Large_Folder folder;
    for (auto unused : state) {
        (void)unused;
        benchmark::DoNotOptimize(FD_List_Dirs_Set_Path(folder.Path()));
        benchmark::DoNotOptimize(FD_List_Files_Set_Path(folder.Path()));
    }
}
BENCHMARK(A_Folder_Of_50000_Files)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
