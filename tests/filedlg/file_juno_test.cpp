// The file window with an Alpha Juno: files of 57 bytes, a record of 49.
#include "filedlg/file_stage.h"
#include "synth/juno.h"
#include "synth/messages.h"
#include "synth/profile.h"

namespace {

// The record counts from 1.
std::string Juno_File() {
    std::string bytes = Bytes("F0 41 35 00 23 20 01");
    for (char value = 1; value <= 49; ++value) bytes += value;
    return bytes + '\xF7';
}

}  // namespace

class Alpha_Juno_File : public File_Window {
  protected:
    Alpha_Juno_File() {
        Synthesizer = "Alpha Juno";
        Sysex_Headers_Update();
        Write(Disk("juno.syx"), Juno_File());
        Juno_Data.fill(5);
        Soundcheck_Note = 48;
        Soundcheck_Velocity = 100;
        Sent();
    }
};

TEST_F(Alpha_Juno_File, is_pressed_sent_and_heard) {
    MIDI_Autosend = MIDI_Autoplay = 1;
    FD_Show("Open_SYX");
    Sent();
    Press_File("juno.syx");
    EXPECT_EQ(Juno_Data[0], 1);
    EXPECT_EQ(Juno_Data[48], 49);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 3U);
    EXPECT_EQ(sent[0], "B0 7B 00");
    EXPECT_EQ(sent[1].substr(0, 20), "F0 41 35 00 23 20 01");
    EXPECT_EQ(sent[2], "90 30 64");
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(Alpha_Juno_File, of_a_wrong_length_is_told_at_the_press_and_plays_nothing) {
    MIDI_Autoplay = 1;
    FD_Show("Open_SYX");
    Sent();
    Expect_Box("Wrong file length!");
    Press_File("a.syx");
    EXPECT_EQ(Juno_Data[0], 5);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Loop.waits, 0);
    EXPECT_EQ(FD_FileName.text, "a.syx");
}

TEST_F(Alpha_Juno_File, is_saved_and_comes_back_from_its_own_copy_and_is_sent) {
    MIDI_Autosend = 1;
    Tone_Saved = Flag_16::False;
    FD_Show("SaveAs_SYX");
    Sent();
    const auto others = Tone_Data;
    Tone_Loading = Flag_8::True;
    Juno_Data.fill(9);
    Type_And_Ok("New");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Read_Hex(Disk("new.syx")).substr(0, 26), "F0 41 35 00 23 20 01 09 09");
    EXPECT_EQ(std::filesystem::file_size(Disk("new.syx")), 57U);
    EXPECT_EQ(Juno_Data[0], 5) << "what it was when the window opened";
    EXPECT_EQ(Juno_Data[48], 5);
    EXPECT_EQ(Tone_Data, others);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 2U) << "the tone, and the notes off of the closing";
    EXPECT_EQ(sent[0].substr(0, 20), "F0 41 35 00 23 20 01");
}

TEST_F(Alpha_Juno_File, is_only_named_by_a_double_click_and_comes_back_from_the_copy) {
    FD_Show("SaveAs_SYX");
    Juno_Data.fill(9);
    Double_Click("juno.syx");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Juno_Data[48], 5);
    EXPECT_EQ(Read_Hex(Disk("juno.syx")).substr(0, 23), "F0 41 35 00 23 20 01 01");
}
