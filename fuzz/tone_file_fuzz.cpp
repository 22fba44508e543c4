// Any bytes as a tone file of each kind: read in both modes, then saved and read again, which must give the
// same record.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "shell/wiring.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

void Write(const std::string& path, const std::uint8_t* data, std::size_t size) {
    FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) std::abort();
    std::fwrite(data, 1, size, file);
    std::fclose(file);
}

template <class Record>
void Read_Save_And_Read(const char* instrument, const std::string& path, Record& record) {
    Synthesizer = instrument;
    SYX_Load(path, "Soundcheck");
    SYX_Load(path, SYX_Mode_Open);
    const Record before = record;
    // A save leaves what lies behind the bytes that it writes, and that may be another tone.
    std::remove(path.c_str());
    Tone_File_Name = path;
    SYX_Save();
    record.fill(1);
    SYX_Load(path, "Soundcheck");
    if (record != before) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = [] {
        Program_Wire();
        return "/tmp/tonebench-fuzz-" + std::to_string(getpid()) + ".syx";
    }();
    Write(path, data, size);
    Read_Save_And_Read("JX-8P", path, Tone_Data);
    const auto patch = Patch_Data;
    Patch_Data.fill(1);
    SYX_Load(path, SYX_Mode_Open);
    for (std::size_t number = 0; number < Patch_Sent_Count; ++number) {
        if (Patch_Data[number] != patch[number]) std::abort();
    }
    std::remove(path.c_str());
    Write(path, data, size);
    Read_Save_And_Read("Alpha Juno", path, Juno_Data);
    std::remove(path.c_str());
    return 0;
}
