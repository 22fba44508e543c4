#include "desk/menus.h"
#include "desk/recent.h"
#include "fakes/juno_stage.h"
#include "midi/out.h"
#include "platform/text.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* Wrong_Length = "Wrong file length!";
constexpr const char* Wrong_Header = "Wrong file header!";

// The record's bytes in the file's text: every one different from its neighbours, the name "Alpha-1 z".
const std::string Record =
    "03 02 01 03 05 04 00 02 01 03 01 0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F "
    "20 21 22 0C 00 25 29 21 1A 3F 35 3E 33 3E 77 78 79";

std::string File(const std::string& header = "F0 41 35 00 23 20 01", const std::string& end = "F7") {
    return header + " " + Record + " " + end;
}

int Moved = 0;
int Loaded = 0;

}  // namespace

class Juno_Files : public Juno_Stage {
  protected:
    Juno_Files() {
        Tone_File_Loaded = [] { ++Loaded; };
        Tone_Data.fill(0x55);
    }

    static void Load(const std::string& bytes, const std::string& mode = "Open") {
        Write(Path("x.syx"), bytes);
        SYX_Load(Path("x.syx"), mode);
    }

    static void Expect_Refused(const std::string& bytes, const char* reason) {
        const std::string before = Juno_Record();
        Tone_Loading = Flag_8::False;
        Expect_Box(reason);
        Load(bytes);
        EXPECT_EQ(Boxes.back().title, "Load Alpha Juno SYX file");
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
        EXPECT_EQ(Juno_Record(), before);
        EXPECT_EQ(Tone_Loading, Flag_8::True) << "until the next good load, New or restore";
        EXPECT_FALSE(SYX_Tone_Found);
        EXPECT_EQ(Tone_File_Name, "");
        EXPECT_EQ(Loaded, 0);
        EXPECT_EQ(Sent(), Lines{});
    }
};

TEST_F(Juno_Files, are_these_57_bytes) {
    const std::string bytes = Bytes(Record);
    std::copy(bytes.begin(), bytes.end(), Juno_Data.begin());
    Tone_File_Name = Path("new.syx");
    Tone_Saved = Flag_16::False;
    Menu(Menu_Edit_Undo).enabled = true;
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("new.syx")), File());
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
    EXPECT_EQ(Recent_Tone(1), Path("new.syx"));
    EXPECT_EQ(SYX_Image_Build(), 57U);
}

TEST_F(Juno_Files, hold_any_byte_and_the_channel_at_the_time_of_the_save) {
    Juno_Data.fill(0xFF);
    MIDI_Channel = 16;
    Tone_File_Name = Path("new.syx");
    SYX_Save();
    const std::string hex = Read_Hex(Path("new.syx"));
    EXPECT_EQ(hex.substr(0, 23), "F0 41 35 0F 23 20 01 FF");
    EXPECT_EQ(hex.size(), 57U * 3 - 1);
    EXPECT_EQ(hex.substr(hex.size() - 5), "FF F7");
}

TEST_F(Juno_Files, are_written_over_the_start_of_a_longer_one_whose_length_is_wrong_then) {
    Write(Path("old.syx"), std::string(60, 'x'));
    Tone_File_Name = Path("old.syx");
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("old.syx")).substr(56 * 3), "F7 78 78 78");
    Expect_Box(Wrong_Length);
    SYX_Load(Path("old.syx"), "Open");
}

TEST_F(Juno_Files, are_loaded_shown_and_become_the_current_file) {
    Load(Bytes(File()));
    EXPECT_EQ(Juno_Record(), Record);
    EXPECT_EQ(At("VCF_Res").top, 246 - 17 * 80 / 127);
    EXPECT_EQ(At("DCO_Range").top, 29);
    EXPECT_EQ(Shown(), "ALPHA-1 Z");
    EXPECT_EQ(Tone_Name_Text, "ALPHA-1 Z");
    EXPECT_EQ(Main_Window.caption, "Tonebench - " + Upper_Text(Path("x.syx")));
    EXPECT_TRUE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(Tone_File_Name, Path("x.syx"));
    EXPECT_EQ(Recent_Tone(1), Path("x.syx"));
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_TRUE(SYX_Tone_Found);
    EXPECT_EQ(Loaded, 1);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    for (const std::uint8_t byte : Tone_Data) EXPECT_EQ(byte, 0x55);
}

TEST_F(Juno_Files, come_back_with_their_unused_bytes_unchanged) {
    Load(Bytes(File()));
    Tone_File_Name = Path("again.syx");
    SYX_Save();
    EXPECT_EQ(Read_Hex(Path("again.syx")), File());
    Menu(Menu_File_SYX_New).chosen();
    EXPECT_EQ(Juno_Record().substr(46 * 3), "00 00 00");
}

TEST_F(Juno_Files, send_the_jx_8ps_tone_before_the_panel_moves) {
    Juno_To_Panel = [] {
        ++Moved;
        const Lines sent = Sent();
        ASSERT_EQ(sent.size(), 1U);
        EXPECT_EQ(sent[0].substr(0, 26), "F0 41 35 00 23 20 01 55 55");
    };
    Load(Bytes(File()));
    EXPECT_EQ(Moved, 1);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Juno_Files, send_nothing_without_automatic_sending) {
    MIDI_Autosend = 0;
    Load(Bytes(File()));
    EXPECT_EQ(Juno_Record(), Record);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Juno_Files, are_only_read_by_a_preview) {
    Load(Bytes(File()), "Soundcheck");
    EXPECT_EQ(Juno_Record(), Record);
    EXPECT_TRUE(SYX_Tone_Found);
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_EQ(Tone_Loading, Flag_8::True);
    EXPECT_EQ(Loaded, 0);
}

TEST_F(Juno_Files, may_begin_with_any_seven_bytes) {
    for (const char* header : {"F0 41 35 0F 23 20 01", "F0 41 35 00 21 20 01", "00 01 02 03 04 05 06"}) {
        Juno_Data.fill(0);
        Load(Bytes(File(header)));
        EXPECT_EQ(Juno_Record(), Record) << header;
    }
}

TEST_F(Juno_Files, of_another_length_are_refused) {
    const std::string good = Bytes(File());
    for (const std::size_t length : {0U, 1U, 54U, 56U})
        Expect_Refused(good.substr(0, length), Wrong_Length);
    Expect_Refused(good + '\xF7', Wrong_Length);
    Expect_Refused(Bytes(Tone_1 + Patch_1), Wrong_Length);
    Expect_Refused(std::string(1000000, '\xF7'), Wrong_Length);
}

TEST_F(Juno_Files, of_the_family_as_other_programs_write_them_are_refused) {
    // The message with its own short header and 36 parameters and 10 characters: 54 bytes.
    Expect_Refused(Bytes("F0 41 35 00 23 20 01") + std::string(46, '\x01') + '\xF7', Wrong_Length);
}

TEST_F(Juno_Files, with_another_last_byte_are_refused) {
    for (const char* end : {"F0", "00", "7F", "F6", "F8"}) {
        Expect_Refused(Bytes(File("F0 41 35 00 23 20 01", end)), Wrong_Header);
    }
}

TEST_F(Juno_Files, that_were_refused_leave_the_display_without_values_until_a_good_one_came) {
    Expect_Refused("x", Wrong_Length);
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Shown(), "NEW");
    Load(Bytes(File()));
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Shown(), "18");
}

TEST_F(Juno_Files, that_were_refused_give_the_display_back_at_the_next_new) {
    Expect_Refused("x", Wrong_Length);
    Tone_Saved = Flag_16::True;
    Menu(Menu_File_SYX_New).chosen();
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}

TEST_F(Juno_Files, that_are_missing_change_nothing_and_say_nothing) {
    const std::string before = Juno_Record();
    SYX_Load(Path("missing.syx"), "Open");
    EXPECT_EQ(Juno_Record(), before);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}
