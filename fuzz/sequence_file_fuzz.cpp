// Any bytes as a sequence file: read as the file window's press reads it, opened, saved over itself and
// read again, with and without the sequencer's window. The record, the clock, the matrix and the bytes on
// the disk are held against a second reading of the format written here; the tone never changes.
//
//   byte 0   1 the sequencer's window is open, 2 a sequence was loaded before
//   byte 1   the window's transpose
//   then     the file
#include <algorithm>
#include <array>
#include <cmath>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "feed.h"
#include "memory_disk.h"
#include "platform/text.h"
#include "sequencer/engine.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "seqwin/seqwin.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/tone.h"

namespace {

const std::string Path = std::string(Disk_Folder) + "/Song.seq";

struct Reading {
    std::array<std::int16_t, Seq_Cells> cells;
    std::int16_t tempo;
    std::uint8_t base_note;
    std::int16_t range;
    bool loaded;
    int transpose;  // of the open window, or -1
};

bool Is_Sequence(std::string_view file) {
    return file.size() >= 110 && Upper_Text(file.substr(0, 3)) == "SEQ";
}

void Read(std::string_view file, bool opening, Reading& now) {
    if (!Is_Sequence(file)) return;
    const auto byte = [&](std::size_t place) { return static_cast<std::uint8_t>(file[place]); };
    now.tempo = std::clamp<std::int16_t>(byte(4), 1, 120);
    now.base_note = byte(5);
    // Halves go to the even number.
    const int twelfths = std::abs(now.base_note - 24);
    const int rest = twelfths % 12;
    now.range = static_cast<std::int16_t>(twelfths / 12);
    if (rest > 6 || (rest == 6 && now.range % 2 == 1)) ++now.range;
    for (std::size_t cell = 0; cell < now.cells.size(); ++cell) now.cells[cell] = byte(6 + cell);
    now.loaded = true;
    if (opening && now.transpose >= 0) {
        now.base_note = static_cast<std::uint8_t>(std::min<int>(now.range, 4) * 12 + 24 + now.transpose);
    }
}

int Milliseconds(int tempo) {
    // 60000 / (tempo * 8), halves to the even number.
    const int doubled = 15000 / tempo;
    const bool exact = 15000 % tempo == 0;
    int whole = doubled / 2;
    if (doubled % 2 == 1 && (!exact || whole % 2 == 1)) ++whole;
    return whole;
}

void Check_Same(const Reading& now) {
    Check(Seq_Notes == now.cells && Seq_Tempo_Value == now.tempo && Seq_Base_Note == now.base_note);
    Check(Seq_Range_Index == now.range && Is_True(Seq_Loaded) == now.loaded);
}

void Load(const std::string& bytes, const std::string& mode, Reading& now) {
    Stand_Begin();
    const bool opening = mode == Seq_Mode_Open;
    const std::string path_before = Seq_File_Path;
    Disk[Path] = bytes;
    Seq_Load(Path, mode);
    Read(bytes, opening, now);
    Check_Same(now);
    Check(Seq_File_Name == "Song.seq");
    if (Is_Sequence(bytes)) Check(Seq_Tmr.interval == Milliseconds(now.tempo));
    const bool taken = opening && now.loaded;
    Check(Boxes_With("Wrong SEQUENCE format!") == (opening && !now.loaded ? 1U : 0U));
    Check(Seq_File_Path == (taken ? Path : path_before));
    if (!taken) return;
    Check(Recent_Seq(1) == Path && Menu(Menu_File_Seq_Save).enabled && Is_True(Seq_Saved));
    if (now.transpose < 0) return;
    // What the window shows of a sequence that was refused is the one before.
    for (std::size_t cell = 0; Is_Sequence(bytes) && cell < now.cells.size(); ++cell)
        Check(Seq_Matrix[cell] == Seq_Cell_Picture(now.cells[cell]));
}

void Save_And_Read_Again(const std::string& bytes, Reading& now) {
    Stand_Begin();
    Seq_File_Path = Path;
    Seq_Saved = Flag_8::False;
    Check(Seq_Write() == 0 && Is_True(Seq_Saved));
    std::string image = "SEQ1";
    image += static_cast<char>(now.tempo);
    image += static_cast<char>(now.base_note);
    for (const std::int16_t cell : now.cells) image += static_cast<char>(cell);
    Check(image.size() == SEQ_Size);
    // What lies behind the sequence is somebody else's.
    Check(Disk[Path] == image + (bytes.size() > SEQ_Size ? bytes.substr(SEQ_Size) : ""));

    Seq_Notes.fill(1);
    Seq_Load(Path, "Soundcheck");
    Check(Is_True(Seq_Loaded));
    now.loaded = true;
    // The range is that of the base note now, which a window has perhaps moved.
    now.range = Seq_Range_Index;
    Check_Same(now);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor);
        Dir_Sequences = Disk_Folder;
        return true;
    }();
    (void)wired;
    Stand_Begin();
    Feed feed(data, size);
    const std::uint8_t options = feed.Byte();
    Seq_New_Reset();
    Seq_Base_Note = 0;
    Seq_File_Path = "none";
    if ((options & 1U) != 0) {
        Window_Load(Sequencer);
        Seq_Trans_Change(feed.Below(13));
    } else {
        Window_Unload(Sequencer);
        feed.Byte();
    }
    Seq_Loaded = (options & 2U) != 0 ? Flag_8::True : Flag_8::False;
    const std::string bytes(feed.Rest());
    Reading now = {.cells = Seq_Notes,
                   .tempo = Seq_Tempo_Value,
                   .base_note = Seq_Base_Note,
                   .range = Seq_Range_Index,
                   .loaded = Is_True(Seq_Loaded),
                   .transpose = Is_True(Seq_Window_Open) ? Sequencer_Form.trans.selected : -1};
    const auto tone = Tone_Data;
    const auto patch = Patch_Data;
    const auto juno = Juno_Data;

    Seq_Load(Path + "x", Seq_Mode_Open);
    Check_Same(now);
    Check(Seq_File_Path == "none" && Boxes_With("File not found: " + Path + "x") == 1);
    Load(bytes, "Soundcheck", now);
    Load(bytes, Seq_Mode_Open, now);
    Save_And_Read_Again(bytes, now);
    Check(Tone_Data == tone && Patch_Data == patch && Juno_Data == juno);
    return 0;
}
