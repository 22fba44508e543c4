// What a press on a file's name does, event by event.
#include "filedlg/preview.h"

#include "desk/menus.h"
#include "filedlg/file_stage.h"
#include "panels/push_buttons.h"

namespace {

constexpr const char* All_Notes_Off = "B0 7B 00";

// The whole tone with patch parameters as they are sent.
std::string First_Bytes(const std::string& line) {
    return line.substr(0, 26);
}

}  // namespace

class Press : public File_Window {
  protected:
    Press() {
        MIDI_Autosend = 1;
        MIDI_Autoplay = 1;
        Soundcheck_Note = 48;
        Soundcheck_Velocity = 100;
    }
    static void Expect_Tone(const std::string& line, const std::string& first_name_byte) {
        EXPECT_EQ(First_Bytes(line), "F0 41 35 00 21 20 01 " + first_name_byte + line.substr(23, 3));
        EXPECT_EQ(line.size(), 90U * 3 - 1);
    }
};

TEST_F(Press, ends_the_last_note_sends_the_tone_and_plays_it_two_seconds_later) {
    FD_Show("Open_SYX");
    Sent();
    Lines behind_1900;
    // The wait sleeps in pieces; the 20th ends at two seconds.
    int waits = 0;
    std::function<void()> each_turn = [&] {
        if (++waits == 19) behind_1900 = Sent();
        if (waits < 19) At_Next_Turn(each_turn);
    };
    At_Next_Turn(each_turn);
    Press_File("lead.syx");
    ASSERT_EQ(behind_1900.size(), 3U) << "all notes off, the tone with old and with new patch parameters";
    EXPECT_EQ(behind_1900[0], All_Notes_Off);
    Expect_Tone(behind_1900[1], "73");
    Expect_Tone(behind_1900[2], "73");
    EXPECT_EQ(Sent(), Lines{"90 30 64"});
    EXPECT_EQ(Loop.waits, 20);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_NE(FD_Wait_Over, 0);
}

TEST_F(Press, leaves_the_note_sounding_until_the_next) {
    FD_Show("Open_SYX");
    Press_File("a.syx");
    Sent();
    Advance(milliseconds(60000));
    EXPECT_EQ(Sent(), Lines{});
    Press_File("Bass.SYX");
    EXPECT_EQ(Sent().front(), All_Notes_Off);
}

TEST_F(Press, fills_the_name_and_notes_what_was_pressed) {
    FD_Show("Open_SYX");
    Press_File("Bass.SYX");
    EXPECT_EQ(FD_FileName.text, "Bass.SYX");
    EXPECT_EQ(FD_Selected, "Bass.SYX");
    EXPECT_EQ(FD_Selected_Kind, "File");
    EXPECT_EQ(FD_List_Files_Entry(), "Bass.SYX");
}

TEST_F(Press, reads_the_tone_without_making_it_the_current_file) {
    FD_Show("Open_SYX");
    Tone_Saved = Flag_16::False;
    Press_File("a.syx");
    EXPECT_EQ(Tone_Data[0], 'B');
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(Main_Window.caption, "Tonebench");
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(FD_Done, Flag_8::False);
    EXPECT_TRUE(Is_Open());
}

TEST_F(Press, plays_no_note_with_autoplay_off) {
    MIDI_Autoplay = 0;
    FD_Show("Open_SYX");
    Sent();
    Press_File("a.syx");
    EXPECT_EQ(Sent().size(), 2U) << "all notes off and the tone";
    EXPECT_EQ(Loop.waits, 0);
}

TEST_F(Press, sends_no_tone_with_autosend_off_though_it_reads_it) {
    MIDI_Autosend = 0;
    FD_Show("Open_SYX");
    Sent();
    Press_File("a.syx");
    EXPECT_EQ(Tone_Data[0], 'B');
    EXPECT_EQ(Sent(), Lines{"90 30 64"}) << "not even all notes off";
}

TEST_F(Press, only_fills_the_name_and_reads_while_midi_is_off) {
    MIDI_Enabled = 0;
    FD_Show("Open_SYX");
    Press_File("a.syx");
    EXPECT_EQ(FD_FileName.text, "a.syx");
    EXPECT_EQ(Tone_Data[0], 'B');
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Loop.waits, 0);
}

TEST_F(Press, plays_nothing_for_a_file_that_is_no_tone) {
    Write(Disk("bad.syx"), "no tone");
    FD_Show("Open_SYX");
    Sent();
    Press_File("bad.syx");
    EXPECT_EQ(Sent(), Lines{All_Notes_Off});
    EXPECT_EQ(Loop.waits, 0);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Press, asks_about_a_second_tone_also_in_a_preview) {
    Write(Disk("bank.syx"), Bytes(Tone_1 + Tone_2));
    FD_Show("Open_SYX");
    Answer_With("File contains another TONE. Load it?", Answer::No);
    Press_File("bank.syx");
    EXPECT_EQ(Tone_Data[0], 'B');
    EXPECT_EQ(Sent().back(), "90 30 64");
}

TEST_F(Press, survives_a_file_that_has_gone_or_may_not_be_read) {
    FD_Show("Open_SYX");
    std::filesystem::remove(Disk("a.syx"));
    Sent();
    Press_File("a.syx");
    EXPECT_EQ(Sent(), Lines{All_Notes_Off});
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Press, on_no_entry_empties_the_name_and_reads_nothing) {
    FD_Show("Open_SYX");
    Type("typed");
    Sent();
    FD_List_Files_MouseDown(-1);
    EXPECT_EQ(FD_FileName.text, "");
    EXPECT_EQ(FD_Selected, "");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Press, only_names_the_file_in_the_other_modes) {
    for (const char* mode :
         {"Open_OSC", "Open_ALL", "Save_SYX", "SaveAs_SYX", "SaveAs_SEQ", "SaveAs_OSC"}) {
        FD_Show(mode);
        ASSERT_EQ(FD_Go_To(Disk("")), 0);
        FD_List_Files_Set_Pattern("*.*");
        Sent();
        const auto before = Tone_Data;
        Press_File("a.syx");
        EXPECT_EQ(FD_FileName.text, "a.syx") << mode;
        EXPECT_EQ(FD_Selected, "a.syx") << mode;
        EXPECT_EQ(Tone_Data, before) << mode;
        EXPECT_EQ(Sent(), Lines{}) << mode;
        FD_Button_Cancel_Click();
    }
}

TEST_F(Press, is_not_what_a_move_by_keys_does) {
    FD_Show("Open_SYX");
    Sent();
    FD_List_Files_Move(2);
    EXPECT_EQ(FD_List_Files_Entry(), "lead.syx");
    EXPECT_EQ(FD_FileName.text, "");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Press, by_the_blank_key_names_the_file_and_sends_nothing) {
    FD_Show("Open_SYX");
    Sent();
    FD_List_Files_Move(2);
    FD_List_Files_Choose();
    EXPECT_EQ(FD_FileName.text, "lead.syx");
    EXPECT_EQ(FD_Selected, "lead.syx");
    EXPECT_EQ(FD_Selected_Kind, "File");
    EXPECT_EQ(Sent(), Lines{});
}

// -- the wait --------------------------------------------------------------------------------------------

TEST_F(Press, within_the_wait_of_another_loads_and_waits_inside_it) {
    FD_Show("Open_SYX");
    Sent();
    Lines of_second;
    At_Next_Turn([&] {
        Sent();
        Press_File("lead.syx");
        of_second = Sent();
    });
    Press_File("a.syx");
    ASSERT_EQ(of_second.size(), 4U);
    EXPECT_EQ(of_second[0], All_Notes_Off);
    Expect_Tone(of_second[1], "73");
    EXPECT_EQ(of_second[3], "90 30 64");
    EXPECT_EQ(Sent(), Lines{"90 30 64"}) << "the outer wait is over too, and plays";
}

TEST_F(Press, stops_waiting_when_the_window_closes_and_leaves_no_note) {
    FD_Show("Open_SYX");
    Sent();
    Lines at_closing;
    At_Next_Turn([&] {
        Sent();
        FD_Button_Cancel_Click();
        at_closing = Sent();
    });
    Press_File("a.syx");
    EXPECT_EQ(at_closing, Lines{All_Notes_Off});
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Loop.waits, 1);
    EXPECT_FALSE(Timer_Display.enabled);
}

TEST_F(Press, plays_no_note_into_a_window_that_was_opened_anew) {
    FD_Show("Open_SYX");
    At_Next_Turn([] {
        FD_Button_Cancel_Click();
        FD_Show("Open_SYX");
        Sent();
    });
    Press_File("a.syx");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Press, hears_an_ok_during_the_wait) {
    FD_Show("Open_SYX");
    At_Next_Turn(Ok);
    Press_File("a.syx");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Tone_File_Name, Disk("a.syx"));
}

TEST_F(Press, ends_its_wait_when_the_last_window_has_gone) {
    FD_Show("Open_SYX");
    At_Next_Turn([] { Loop.windows_open = false; });
    Press_File("a.syx");
    EXPECT_EQ(Loop.waits, 1);
}

TEST_F(Press, uses_the_tick_of_the_display_only_while_the_window_is_open) {
    EXPECT_FALSE(FD_Timer_Tick());
    FD_Show("Open_SYX");
    FD_Wait_Over = 0;
    EXPECT_TRUE(FD_Timer_Tick());
    EXPECT_EQ(FD_Wait_Over, -1);
    EXPECT_TRUE(FD_Timer_Tick());
    EXPECT_EQ(FD_Wait_Over, 0);
}

// -- behind the preview ----------------------------------------------------------------------------------

TEST_F(Press, leaves_the_tone_behind_a_cancel) {
    FD_Show("Open_SYX");
    Press_File("lead.syx");
    FD_Button_Cancel_Click();
    EXPECT_EQ(Tone_Data[0], 's');
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(Press, is_loaded_again_in_full_by_ok) {
    FD_Show("Open_SYX");
    Press_File("lead.syx");
    Tone_Data[0] = 'X';
    Sent();
    Ok();
    EXPECT_EQ(Tone_Data[0], 's');
    EXPECT_EQ(Sent().size(), 3U) << "the tone twice, and the notes off of the closing";
}

// -- with the sequence as the soundcheck -----------------------------------------------------------------

class Press_With_Sequence : public Press {
  protected:
    Press_With_Sequence() {
        Soundcheck_Mode = 1;
        Seq_Loaded = Flag_8::True;
        Seq_Notes[0] = 127;
        FD_Show("Open_SYX");
        Sent();
    }
};

TEST_F(Press_With_Sequence, plays_the_sequence_in_memory_with_the_new_tone) {
    Seq_Pos = 5;
    Press_File("a.syx");
    EXPECT_EQ(Loop.waits, 0) << "without the wait";
    EXPECT_EQ(Sent().size(), 2U);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(FD_SYX_Button_Start.button.picture, Picture_Of(Picture_Store::Button_Dn3D));
    Advance(milliseconds(250));
    EXPECT_EQ(Sent().size(), 13U);
}

TEST_F(Press_With_Sequence, raises_the_start_button_when_there_is_no_sequence) {
    Seq_Loaded = Flag_8::False;
    Button_Push(FD_SYX_Button_Start.button);
    Press_File("a.syx");
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(FD_SYX_Button_Start.button.picture, Picture_Of(Picture_Store::Button_Up3D));
}

// -- sequence files --------------------------------------------------------------------------------------

class Press_Sequence : public Press {
  protected:
    Press_Sequence() {
        FD_Show("Open_SEQ");
        Sent();
    }
};

TEST_F(Press_Sequence, plays_it_and_shows_it) {
    Press_File("one.seq");
    EXPECT_EQ(FD_FileName.text, "one.seq");
    EXPECT_EQ(FD_Selected, "one.seq");
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_File_Path, "") << "not the current file";
    EXPECT_EQ(FD_SEQ_Preview[0].picture, 2);
    EXPECT_EQ(FD_SEQ_Preview[14].picture, 3);
    EXPECT_EQ(FD_SEQ_Preview[28].picture, 0) << "another velocity looks empty";
    EXPECT_EQ(FD_SEQ_Preview[1].picture, 0);
    EXPECT_EQ(FD_SEQ_Button_Start.button.picture, Picture_Of(Picture_Store::Button_Dn3D));
}

TEST_F(Press_Sequence, places_the_cells_by_step_and_row) {
    for (int cell = 0; cell < 104; ++cell) {
        EXPECT_EQ(FD_SEQ_Preview[static_cast<std::size_t>(cell)].left, (cell / 13) * 8 + 1) << cell;
        EXPECT_EQ(FD_SEQ_Preview[static_cast<std::size_t>(cell)].top, (cell % 13) * 8 + 1) << cell;
        EXPECT_EQ(FD_SEQ_Preview[static_cast<std::size_t>(cell)].picture, -1) << "nothing to see at first";
    }
}

TEST_F(Press_Sequence, starts_anew_with_the_new_file_while_another_plays) {
    Press_File("one.seq");
    Advance(milliseconds(125));
    Advance(milliseconds(125));
    EXPECT_EQ(Seq_Pos, 2);
    Sent();
    Press_File("two.SEQ");
    EXPECT_EQ(Sent(), Lines{All_Notes_Off}) << "of the closed port";
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    Advance(milliseconds(249));
    EXPECT_EQ(Sent(), Lines{}) << "at its own tempo";
    Advance(milliseconds(1));
    const Lines first_step = Sent();
    ASSERT_EQ(first_step.size(), 13U);
    EXPECT_EQ(first_step[0], "90 30 7F");
}

TEST_F(Press_Sequence, is_read_but_not_played_with_autoplay_or_midi_off) {
    MIDI_Autoplay = 0;
    Press_File("one.seq");
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_EQ(Seq_Running, Flag_8::False);
    MIDI_Autoplay = 1;
    MIDI_Enabled = 0;
    Press_File("two.SEQ");
    EXPECT_EQ(Seq_Running, Flag_8::False);
}

TEST_F(Press_Sequence, that_is_none_plays_nothing_as_long_as_none_was_loaded) {
    Write(Disk("one.seq"), "bad");
    Press_File("one.seq");
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Press_Sequence, that_has_gone_tells_so) {
    std::filesystem::remove(Disk("one.seq"));
    Expect_Box("File not found: " + Disk("one.seq"));
    Press_File("one.seq");
}

TEST_F(Press_Sequence, goes_on_playing_behind_a_cancel) {
    Press_File("one.seq");
    FD_Button_Cancel_Click();
    EXPECT_EQ(Seq_Running, Flag_8::True);
}

TEST_F(Press_Sequence, starts_nothing_when_the_window_closes_while_the_port_does) {
    Press_File("one.seq");
    Ports.close_results = {Port_Still_Playing};
    At_Next_Turn(FD_Button_Cancel_Click);
    Press_File("two.SEQ");
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_FALSE(Seq_Tmr.enabled);
}
