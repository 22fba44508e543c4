// A started program with a tone of its own, and files that are loaded over it.
#pragma once

#include <string>
#include <vector>

#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/windows.h"
#include "fakes/plain_user.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "synth/views.h"

using Lines = std::vector<std::string>;

inline constexpr const char* Wrong_Data = "Wrong MIDI system exclusive data!";
inline constexpr const char* Save_Old = "File contains another TONE. Save old TONE first?";
inline constexpr const char* Load_It = "File contains another TONE. Load it?";

// What the records hold before a load.
inline constexpr std::uint8_t Old_Tone = 0x55;
inline constexpr std::uint8_t Old_Patch = 0x66;

inline int Applied_Tones = 0;
inline int Applied_Patches = 0;
inline int Saves = 0;
inline int Loaded = 0;

// Bytes of the tone in a file's text: the name and parameters of Tone_1 or Tone_2.
inline std::string Record_Of(const std::string& tone_text) {
    return Bytes(tone_text).substr(7, 59);
}

inline std::string Tone() {
    return {Tone_Data.begin(), Tone_Data.end()};
}

inline std::string Patches() {
    return Hex({Patch_Data.begin(), Patch_Data.begin() + 7});
}

inline const std::string Old_Patches = "66 66 66 66 66 66 66";
inline const std::string Patches_1 = "70 71 72 73 74 75 76";
inline const std::string Patches_2 = "10 11 12 13 14 15 16";

class SYX_Loaded : public Started_Stage {
  protected:
    SYX_Loaded() {
        Tone_Data.fill(Old_Tone);
        Patch_Data.fill(Old_Patch);
        Tone_Saved = Flag_16::True;
        SYX_Save_As = [] { ++Saves; };
        Tone_File_Loaded = [] { ++Loaded; };
        Sent();
    }

    static void Load(const std::string& hex, const std::string& mode = "Open") {
        Write(Path("x.syx"), Bytes(hex));
        SYX_Load(Path("x.syx"), mode);
    }

    static void Expect_Tone_1() { EXPECT_EQ(Hex(Tone()), Hex(Record_Of(Tone_1))); }
    static void Expect_Tone_2() { EXPECT_EQ(Hex(Tone()), Hex(Record_Of(Tone_2))); }
    static void Expect_Old_Tone() { EXPECT_EQ(Tone(), std::string(59, static_cast<char>(Old_Tone))); }

    // The wrong-data box of a load that is to find nothing.
    static void Expect_Nothing_In(const std::string& hex) {
        Expect_Box(Wrong_Data);
        Load(hex);
        Expect_Old_Tone();
        EXPECT_EQ(Patches(), Old_Patches);
        EXPECT_EQ(Tone_File_Name, "");
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
    }
};
