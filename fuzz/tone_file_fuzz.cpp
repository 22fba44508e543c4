// Any bytes as a tone file: read in both modes, then saved and read again, which must give the same record.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "shell/wiring.h"
#include "synth/patch.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = [] {
        Program_Wire();
        return "/tmp/tonebench-fuzz-" + std::to_string(getpid()) + ".syx";
    }();
    FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) std::abort();
    std::fwrite(data, 1, size, file);
    std::fclose(file);
    SYX_Load(path, "Soundcheck");
    SYX_Load(path, SYX_Mode_Open);

    const auto tone = Tone_Data;
    const auto patch = Patch_Data;
    // A save leaves what lies behind its 89 bytes, and that may be another tone.
    std::remove(path.c_str());
    Tone_File_Name = path;
    SYX_Save();
    Tone_Data.fill(1);
    SYX_Load(path, "Soundcheck");
    if (Tone_Data != tone) std::abort();
    for (std::size_t number = 0; number < Patch_Sent_Count; ++number) {
        if (Patch_Data[number] != patch[number]) std::abort();
    }
    std::remove(path.c_str());
    return 0;
}
