// Saves on a disk on which nothing fits any more: the user is told, what was not saved stays unsaved, and
// the old file is whole.
#include <filesystem>
#include <set>
#include <string>
#include <system_error>

#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "fakes/own_process.h"
#include "fakes/stage.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"

class A_Full_Disk : public Started_Stage {
  protected:
    // The body runs with a full disk, on which stand the old settings, a tone and a sequence.
    static void On_It(const std::function<void(const Small_Disk& disk)>& body) {
        std::filesystem::create_directory(Disk(""));
        In_A_Process([&] {
            Small_Disk disk(Disk(""));
            INI_File = Disk("Tonebench.INI");
            Main_Window.left = 5;
            Settings_Write();
            for (const char* name : {"old.syx", "old.seq"}) Write(Disk(name), "old");
            const std::set<std::string> names = Names();
            Tone_Saved = Flag_16::False;
            Seq_Saved = Flag_8::False;
            disk.Fill();
            body(disk);
            EXPECT_EQ(Names(), names) << "nothing is left behind";
            Check_All_Boxes_Came();
        });
    }
    static std::string Disk(const std::string& name) { return Path("disk/" + name); }
    static std::set<std::string> Names() {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Disk(""))) {
            const std::string name = entry.path().filename().string();
            if (name != ".filler") names.insert(name);
        }
        return names;
    }
    static std::string Told(const Small_Disk& disk) {
        return "Error " + std::to_string(disk.Error()) + ": " +
               std::generic_category().message(disk.Error());
    }
};

TEST_F(A_Full_Disk, takes_no_new_tone_and_leaves_it_unsaved) {
    On_It([](const Small_Disk& disk) {
        Tone_File_Name = Disk("new.syx");
        Expect_Box(Told(disk));
        SYX_Save();
        EXPECT_EQ(Tone_Saved, Flag_16::False);
        EXPECT_EQ(Recent_Tone(1), "");
    });
}

TEST_F(A_Full_Disk, takes_no_new_sequence_and_leaves_it_unsaved) {
    On_It([](const Small_Disk& disk) {
        Seq_File_Path = Disk("new.seq");
        Expect_Box(Told(disk));
        Menu(Menu_File_Seq_Save).chosen();
        EXPECT_EQ(Seq_Saved, Flag_8::False);
        EXPECT_EQ(Recent_Seq(1), "");
    });
}

// A file that has its place on the disk can be written over even then.
TEST_F(A_Full_Disk, saves_over_an_old_file_or_leaves_it_whole) {
    On_It([](const Small_Disk& disk) {
        const bool has_its_place = disk.Error() == ENOSPC;
        Tone_File_Name = Disk("old.syx");
        if (!has_its_place) Expect_Box(Told(disk));
        SYX_Save();
        EXPECT_EQ(Tone_Saved, has_its_place ? Flag_16::True : Flag_16::False);
        EXPECT_EQ(File_Read_Whole(Disk("old.syx"))->size(), has_its_place ? 89U : 3U);
        Seq_File_Path = Disk("old.seq");
        if (!has_its_place) Expect_Box(Told(disk));
        Menu(Menu_File_Seq_Save).chosen();
        EXPECT_EQ(Seq_Saved, has_its_place ? Flag_8::True : Flag_8::False);
        EXPECT_EQ(File_Read_Whole(Disk("old.seq"))->size(), has_its_place ? 110U : 3U);
    });
}

TEST_F(A_Full_Disk, keeps_the_old_settings_and_says_nothing) {
    On_It([](const Small_Disk&) {
        const std::string old = *File_Read_Whole(INI_File);
        Main_Window.left = 77;
        Settings_Write();
        EXPECT_EQ(File_Read_Whole(INI_File), old);
    });
}
