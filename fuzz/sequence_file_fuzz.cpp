// Any bytes as a sequence file: read in both modes, saved and read again, which must give the same record.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "desk/timers.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "shell/wiring.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::string path = [] {
        Program_Wire();
        return "/tmp/tonebench-fuzz-" + std::to_string(getpid()) + ".seq";
    }();
    FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) std::abort();
    std::fwrite(data, 1, size, file);
    std::fclose(file);
    Seq_New_Reset();
    Seq_Load(path, "Soundcheck");
    Seq_Load(path, Seq_Mode_Open);
    if (Seq_Tmr.interval < 62 || Seq_Tmr.interval > 7500) std::abort();

    const auto cells = Seq_Notes;
    const auto tempo = Seq_Tempo_Value;
    const auto base_note = Seq_Base_Note;
    Seq_File_Path = path;
    Seq_Write();
    Seq_Notes.fill(1);
    Seq_Load(path, "Soundcheck");
    if (Seq_Notes != cells || Seq_Tempo_Value != tempo || Seq_Base_Note != base_note) std::abort();
    std::remove(path.c_str());
    return 0;
}
