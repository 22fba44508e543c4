// The file window while an Alpha Juno is edited: its own record of 49 bytes, its own files of 57.
#include "filedlg/file_stage.h"
#include "panels/juno_panel.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/views.h"

namespace {

constexpr const char* All_Notes_Off = "B0 7B 00";

std::string Record_Of(char value) {
    return std::string(Juno_Size, value);
}

std::string File_Of(char value) {
    return Bytes("F0 41 35 00 23 20 01") + Record_Of(value) + '\xF7';
}

std::string Record() {
    return {Juno_Data.begin(), Juno_Data.end()};
}

}  // namespace

class File_Window_Of_An_Alpha_Juno : public File_Window {
  protected:
    File_Window_Of_An_Alpha_Juno() {
        Synthesizer = "Alpha Juno";
        Sysex_Headers_Update();
        Play_On(Juno_Panel);
        Write(Disk("Juno.SYX"), File_Of(2));
        Juno_Data.fill(1);
        Juno_To_Panel();
        Tone_Data.fill(0x55);
        Patch_Data.fill(0x56);
        Tone_Saved = Flag_16::False;
        Sent();
    }

    static std::string Small(std::string text) {
        for (char& letter : text)
            letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        return text;
    }
    // The JX-8P's tone without a patch header, 83 bytes.
    static void Expect_Tone(const std::string& line) {
        EXPECT_EQ(line.substr(0, 26), "F0 41 35 00 23 20 01 55 55");
        EXPECT_EQ(line.size(), 83U * 3 - 1);
    }
};

// -- saving ----------------------------------------------------------------------------------------------

TEST_F(File_Window_Of_An_Alpha_Juno, saves_57_bytes_under_a_new_name_and_sends) {
    MIDI_Autosend = 1;
    FD_Show("SaveAs_SYX");
    Sent();
    Type_And_Ok("New");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Read_Hex(Disk("new.syx")), Hex(File_Of(1)));
    EXPECT_EQ(Tone_File_Name, Small(Disk("new.syx")));
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 2U);
    Expect_Tone(sent[0]);
    EXPECT_EQ(sent[1], All_Notes_Off) << "of the closing";
}

TEST_F(File_Window_Of_An_Alpha_Juno, brings_all_49_bytes_back_from_its_copy_shows_and_sends_them) {
    MIDI_Autosend = 1;
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        FD_Show("SaveAs_SYX");
        Sent();
        Tone_Loading = Flag_8::True;
        Answer_With("File exists: " + Small(Disk("Juno.SYX")) + " Overwrite?", answer, [] {
            Juno_Data.fill(99);
            Tone_Data.fill(0x55);
            Patch_Data.fill(98);
            Juno_To_Panel();
        });
        Type_And_Ok("Juno.SYX");
        EXPECT_EQ(Record(), Record_Of(1));
        EXPECT_EQ(At("VCF_Res").top, 246);
        EXPECT_EQ(Shown(), "BBBBBBBBBB");
        EXPECT_EQ(Tone_Loading, Flag_8::False);
        EXPECT_EQ(Patch_Data[0], 98) << "the JX-8P's are not in the copy";
        const Lines sent = Sent();
        ASSERT_GE(sent.size(), 1U);
        Expect_Tone(sent[0]);
        const bool written = answer == Answer::Yes;
        EXPECT_EQ(Read_Hex(Disk("Juno.SYX")), Hex(File_Of(written ? 99 : 2)));
        EXPECT_EQ(Is_Open(), !written);
        if (!written) FD_Button_Cancel_Click();
    }
}

TEST_F(File_Window_Of_An_Alpha_Juno,
       takes_the_name_only_at_a_double_click_and_puts_the_record_back_unseen) {
    MIDI_Autosend = 1;
    FD_Show("SaveAs_SYX");
    Sent();
    Juno_Data.fill(99);
    Juno_To_Panel();
    const int row = At("VCF_Res").top;
    Double_Click("Juno.SYX");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Record(), Record_Of(1));
    EXPECT_EQ(At("VCF_Res").top, row) << "without a redraw";
    EXPECT_EQ(Read_Hex(Disk("Juno.SYX")), Hex(File_Of(2)));
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Sent(), Lines{All_Notes_Off});
}

// -- opening ---------------------------------------------------------------------------------------------

TEST_F(File_Window_Of_An_Alpha_Juno, reads_sends_and_plays_the_file_that_is_pressed) {
    MIDI_Autosend = MIDI_Autoplay = 1;
    Soundcheck_Note = 48;
    Soundcheck_Velocity = 100;
    FD_Show("Open_SYX");
    Sent();
    Press_File("Juno.SYX");
    EXPECT_EQ(Record(), Record_Of(2));
    EXPECT_EQ(At("VCF_Res").top, 245);
    EXPECT_EQ(Tone_Loading, Flag_8::True);
    EXPECT_EQ(Tone_File_Name, "");
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 3U);
    EXPECT_EQ(sent[0], All_Notes_Off);
    Expect_Tone(sent[1]);
    EXPECT_EQ(sent[2], "90 30 64");
    Ok();
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Tone_File_Name, Disk("Juno.SYX"));
    EXPECT_EQ(Tone_Loading, Flag_8::False);
}

TEST_F(File_Window_Of_An_Alpha_Juno, plays_no_note_for_a_file_of_another_instrument_and_keeps_its_record) {
    MIDI_Autosend = MIDI_Autoplay = 1;
    FD_Show("Open_SYX");
    Sent();
    Expect_Box("Wrong file length!");
    Press_File("lead.syx");
    EXPECT_EQ(Record(), Record_Of(1));
    EXPECT_EQ(Sent(), Lines{All_Notes_Off});
    Expect_Box("Wrong file length!");
    Ok();
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Record(), Record_Of(1));
    EXPECT_EQ(Tone_File_Name, "");
}
