// A started program with an old sequence in memory, and files that are loaded over it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/plain_user.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "platform/text.h"
#include "sequencer/engine.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "synth/tone_files.h"

using Lines = std::vector<std::string>;

inline constexpr const char* Wrong_Format = "Wrong SEQUENCE format!";

// The calls upward, in their order.
inline Lines Steps;

// Tempo 60, base note 48, and cells that all differ: 0 to 103.
inline std::string Sequence_File(const std::string& start = "53 45 51 31 3C 30") {
    std::string bytes = Bytes(start);
    for (int cell = 0; cell < 104; ++cell) bytes += static_cast<char>(cell);
    return bytes;
}

class SEQ_Loaded : public Started_Stage {
  protected:
    SEQ_Loaded() {
        Dir_Sequences = Test_Folder() + "/";
        Seq_Notes.fill(7);
        Seq_Redraw = [] { Steps.emplace_back("Redraw"); };
        Seq_Window_Follow = [] { Steps.emplace_back("Follow"); };
        Seq_File_Loaded = [] { Steps.emplace_back("Loaded"); };
        Seq_Panel_Buttons_On = [] { Steps.emplace_back("Buttons on"); };
        Sent();
        Steps.clear();
    }

    static void Load(const std::string& contents, const char* mode = "Open") {
        Write(Path("x.seq"), contents);
        Seq_Load(Path("x.seq"), mode);
    }
    static void Expect_Old_Cells() {
        std::array<std::int16_t, 104> old;
        old.fill(7);
        EXPECT_EQ(Seq_Notes, old);
    }
    static void Expect_Cells_Of_File() {
        for (std::size_t cell = 0; cell < 104; ++cell)
            EXPECT_EQ(Seq_Notes[cell], static_cast<int>(cell)) << cell;
    }
};
