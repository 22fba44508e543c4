// The keys that the window sees before any control, and the keys of its lists.
#include "filedlg/file_stage.h"

class Window_Key : public File_Window {
  protected:
    Window_Key() {
        MIDI_Autosend = 1;
        MIDI_Autoplay = 1;
        Seq_Loaded = Flag_8::True;
        FD_Show("Open_SYX");
        Loop = {};
    }
    static void Expect_Focus(FD_Field field, int times) {
        EXPECT_EQ(FD_Focus.field, field);
        EXPECT_EQ(FD_Focus.times, times);
    }
};

TEST_F(Window_Key, escape_cancels) {
    FD_Key('\x1B', false);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(FD_Cancelled, Flag_16::True);
}

TEST_F(Window_Key, alt_and_a_letter_moves_the_focus) {
    const std::pair<char, FD_Field> keys[] = {{'F', FD_Field::Files},
                                              {'D', FD_Field::Dirs},
                                              {'V', FD_Field::Drives},
                                              {'T', FD_Field::Filter},
                                              {'N', FD_Field::FileName}};
    const int selected = FD_FileName.times_selected;
    for (const auto& [letter, field] : keys) {
        const int before = FD_Focus.times;
        FD_Key(letter, true);
        Expect_Focus(field, before + 1);
        EXPECT_EQ(FD_FileName.times_selected, letter == 'N' ? selected + 1 : selected) << letter;
    }
    EXPECT_EQ(Loop.turns, 0);
}

TEST_F(Window_Key, alt_p_flips_autoplay) {
    FD_Key('P', true);
    EXPECT_EQ(MIDI_Autoplay, 0);
    EXPECT_EQ(FD_SYX_CB_Autoplay.tag, 0);
    FD_Key('P', true);
    EXPECT_EQ(MIDI_Autoplay, 1);
}

TEST_F(Window_Key, alt_s_flips_autosend) {
    FD_Key('S', true);
    EXPECT_EQ(MIDI_Autosend, 0);
    FD_Key('S', true);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(FD_SYX_CB_Autosend.tag, 3);
}

TEST_F(Window_Key, alt_q_and_alt_c_choose_the_soundcheck) {
    FD_Key('Q', true);
    EXPECT_EQ(Soundcheck_Mode, 1);
    EXPECT_EQ(FD_SYX_OB_Soundcheck[1].tag, 1);
    FD_Key('C', true);
    EXPECT_EQ(Soundcheck_Mode, 0);
    EXPECT_EQ(FD_SYX_OB_Soundcheck[0].tag, 1);
}

TEST_F(Window_Key, alt_q_does_nothing_without_a_sequence) {
    FD_Button_Cancel_Click();
    Seq_Loaded = Flag_8::False;
    FD_Show("Open_SYX");
    FD_Key('Q', true);
    EXPECT_EQ(Soundcheck_Mode, 0);
    EXPECT_FALSE(FD_SYX_OB_Soundcheck[1].control.enabled);
    // Edits alone enable the option, but not the key.
    FD_Button_Cancel_Click();
    Seq_Saved = Flag_8::False;
    FD_Show("Open_SYX");
    EXPECT_TRUE(FD_SYX_OB_Soundcheck[1].control.enabled);
    FD_Key('Q', true);
    EXPECT_EQ(Soundcheck_Mode, 0);
}

TEST_F(Window_Key, alt_c_does_nothing_while_the_options_are_disabled) {
    FD_Key('Q', true);
    FD_Key('P', true);
    FD_Key('C', true);
    EXPECT_EQ(Soundcheck_Mode, 1);
}

TEST_F(Window_Key, of_the_options_lets_events_run_and_goes_to_the_name) {
    for (const char letter : {'P', 'S', 'C', 'Q'}) {
        FD_Focus_To(FD_Field::Dirs);
        const int before = FD_Focus.times;
        const int turns = Loop.turns;
        FD_Key(letter, true);
        EXPECT_EQ(Loop.turns, turns + 1) << letter;
        Expect_Focus(FD_Field::FileName, before + 1);
    }
}

TEST_F(Window_Key, any_other_is_left_to_the_controls) {
    EXPECT_TRUE(FD_Takes_Key('N', true));
    EXPECT_TRUE(FD_Takes_Key('\x1B', false));
    EXPECT_FALSE(FD_Takes_Key('N', false));
    EXPECT_FALSE(FD_Takes_Key('X', true));
    EXPECT_FALSE(FD_Takes_Key('\x1B', true));
    EXPECT_FALSE(FD_Takes_Key('\0', false));
    FD_Key('X', true);
    EXPECT_TRUE(Is_Open());
}

TEST_F(Window_Key, blank_in_the_folder_list_goes_into_the_folder) {
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Disk("Leads")));
    EXPECT_EQ(FD_Selected, "");
    FD_List_Dirs_Choose();
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
    EXPECT_EQ(FD_Selected, Disk("Leads"));
    EXPECT_EQ(FD_Selected_Kind, "Dir");
}

TEST_F(Window_Key, press_in_the_folder_list_notes_the_folder_and_opens_nothing) {
    Press_Folder(Disk("Leads"));
    EXPECT_EQ(FD_Selected, Disk("Leads"));
    EXPECT_EQ(FD_Selected_Kind, "Dir");
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
}

TEST_F(Window_Key, press_beside_the_entries_keeps_the_list_index) {
    Press_Folder(Disk("Leads"));
    FD_List_Dirs_MouseDown(-1);
    EXPECT_EQ(FD_List_Dirs_Entry(), Disk("Leads"));
    FD_List_Files_Move(1);
    FD_List_Files_Move(99);
    EXPECT_EQ(FD_List_Files_Entry(), "Bass.SYX");
}

TEST_F(Window_Key, alone_can_walk_make_and_delete_folders) {
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Disk("empty")));
    FD_List_Dirs_Choose();
    At_Next_Turn([] {
        Input_Textbox_Change("new");
        Input_OK_Click();
    });
    Button_Down("FD_Button_Newdir");
    EXPECT_TRUE(std::filesystem::is_directory(Disk("empty/new")));
    FD_List_Dirs_Move(Row(FD_List_Dirs.entries, Disk("empty/new")));
    FD_List_Dirs_Choose();
    Button_Down("FD_Button_Updir");
    EXPECT_EQ(FD_List_Dirs.path, Disk("empty"));
}

TEST_F(Window_Key, has_a_spoken_state_for_every_lamp) {
    EXPECT_EQ(File_Panel.spoken_value(FD_SYX_CB_Autoplay.control), "on");
    EXPECT_EQ(File_Panel.spoken_value(FD_SYX_OB_Soundcheck[1].control), "off");
    EXPECT_EQ(File_Panel.spoken_value(FD_Button_Ok.button), "");
}
