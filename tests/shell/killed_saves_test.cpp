// The program is killed at every step of a save: before and behind each of its system calls. Settings are
// the old ones or the new ones; of tone and sequence a file is the old one, the new one, or an empty one
// that had not been there.
#include <cstdio>
#include <functional>
#include <set>
#include <string>

#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/own_process.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/juno.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"

namespace {

constexpr const char* Missing = "(none)";
// Behind a save that tells of no call nothing was tried.
constexpr int Fewest_Steps = 6;

std::string Contents(const std::string& path) {
    return File_Read_Whole(path).value_or(Missing);
}
void Put(const std::string& path, const std::string& contents) {
    if (contents == Missing) {
        std::filesystem::remove(path);
    } else {
        Write(path, contents);
    }
}
std::set<std::string> Names() {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Test_Folder()))
        names.insert(entry.path().filename().string());
    return names;
}

}  // namespace

class A_Killed_Program : public Started_Stage {
  protected:
    A_Killed_Program() {
        MIDI_Autosend = 0;
        Tone_File_Name = Path("x.syx");
        Seq_File_Path = Path("x.seq");
        Write(Path("other.syx"), "another");
        for (std::size_t index = 0; index < Seq_Notes.size(); ++index)
            Seq_Notes[index] = static_cast<std::int16_t>(index);
        for (std::size_t index = 0; index < Juno_Data.size(); ++index)
            Juno_Data[index] = static_cast<std::uint8_t>(index);
    }

    // The save is killed at every step over each of these files; `wanted` is what it makes of an old one.
    static void Kill_Everywhere(const std::string& path, void (*save)(),
                                const std::function<std::string(const std::string& old)>& wanted) {
        for (const std::string& old :
             {std::string(Missing), std::string(), std::string(30, 'o'), std::string(200, 'o')}) {
            const std::string whole = wanted(old == Missing ? "" : old);
            int step = 0;
            Put(path, old);
            while (Killed_At(step, save)) {
                const std::string left = Contents(path);
                const bool fresh = old == Missing && left.empty();
                EXPECT_TRUE(left == old || left == whole || fresh) << "step " << step << ": " << Hex(left);
                EXPECT_EQ(Contents(Path("other.syx")), "another");
                Put(path, old);
                ++step;
            }
            std::printf("killed at %d steps\n", step);
            EXPECT_GT(step, Fewest_Steps);
            EXPECT_EQ(Contents(path), whole);
        }
        EXPECT_EQ(Names(), (std::set<std::string>{"Tonebench.INI", "other.syx",
                                                  std::filesystem::path(path).filename().string()}));
    }

    static std::string Over(const std::string& bytes, const std::string& old) {
        return old.size() <= bytes.size() ? bytes : bytes + old.substr(bytes.size());
    }
    static std::string Image() {
        Sysex_Headers_Update();
        const std::size_t count = SYX_Image_Build();
        return {SYX_Image.begin(), SYX_Image.begin() + static_cast<std::ptrdiff_t>(count)};
    }
};

TEST_F(A_Killed_Program, leaves_a_tone_whole_or_not_begun) {
    Kill_Everywhere(Path("x.syx"), SYX_Save, [](const std::string& old) { return Over(Image(), old); });
}

TEST_F(A_Killed_Program, leaves_an_alpha_junos_tone_whole_or_not_begun) {
    Synthesizer = "Alpha Juno";
    Kill_Everywhere(Path("x.syx"), SYX_Save, [](const std::string& old) { return Over(Image(), old); });
}

TEST_F(A_Killed_Program, leaves_a_sequence_whole_or_not_begun) {
    std::string bytes =
        std::string("SEQ1") + static_cast<char>(Seq_Tempo_Value) + static_cast<char>(Seq_Base_Note);
    for (const std::int16_t cell : Seq_Notes) bytes += static_cast<char>(cell);
    Kill_Everywhere(
        Path("x.seq"), [] { (void)Seq_Write(); }, [&](const std::string& old) { return Over(bytes, old); });
}

// What a kill leaves of a new file is empty.
TEST_F(A_Killed_Program, leaves_nothing_that_the_next_one_stumbles_over) {
    Write(Path("x.syx"), "");
    Write(Path("x.seq"), "");
    Expect_Box("Wrong MIDI system exclusive data!");
    SYX_Load(Path("x.syx"), "Open");
    Expect_Box("Wrong SEQUENCE format!");
    Seq_Load(Path("x.seq"), "Open");
    Synthesizer = "Alpha Juno";
    Expect_Box("Wrong file length!");
    SYX_Load(Path("x.syx"), "Open");
}

TEST_F(A_Killed_Program, leaves_the_old_settings_or_the_new_ones_and_nothing_that_piles_up) {
    std::filesystem::remove(Path("other.syx"));
    const std::string first = "; mine\n" + Read_Settings();
    for (const std::string& old : {first, std::string(Missing)}) {
        Put(INI_File, old);
        Main_Window.left = 77;
        Settings_Write();
        const std::string wanted = Read_Settings();
        ASSERT_NE(wanted, old);
        ASSERT_NE(wanted.find("Left=77\n"), std::string::npos);
        Put(INI_File, old);
        int step = 0;
        while (Killed_At(step, [] { Settings_Write(); })) {
            const std::string left = Read_Settings();
            EXPECT_TRUE(left == old || left == wanted) << "step " << step << ": " << left;
            EXPECT_LE(Names().size(), 2U) << "step " << step;
            Put(INI_File, old);
            ++step;
        }
        std::printf("killed at %d steps\n", step);
        EXPECT_GT(step, Fewest_Steps);
        EXPECT_EQ(Read_Settings(), wanted);
        EXPECT_EQ(Names(), std::set<std::string>{"Tonebench.INI"}) << "what a kill left is gone again";
    }
}
