// What Ok and a double click carry out.
#include "filedlg/file_ok.h"

#include "desk/menus.h"
#include "fakes/plain_user.h"
#include "filedlg/file_stage.h"
#include "synth/patch.h"

namespace {

std::string Tone_Name_Bytes() {
    return {Tone_Data.begin(), Tone_Data.begin() + 10};
}

std::string Question(const std::string& path) {
    return "File exists: " + path + " Overwrite?";
}

}  // namespace

class The_Ok : public File_Window {
  protected:
    // Test folders have capitals in their names; a saved path has none.
    static std::string Small(const std::string& name) { return Lower_Of(Disk(name)); }
    static std::string Lower_Of(std::string text) {
        for (char& letter : text)
            letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        return text;
    }
    static void Expect_Selected_And_Open(int before) {
        EXPECT_TRUE(Is_Open());
        EXPECT_EQ(FD_FileName.times_selected, before + 1);
    }
};

// -- opening ---------------------------------------------------------------------------------------------

TEST_F(The_Ok, opens_a_tone_and_closes) {
    FD_Show("Open_SYX");
    Type_And_Ok("a.syx");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Tone_File_Name, Disk("a.syx"));
    EXPECT_EQ(Tone_Name_Bytes(), "BASS 1    ");
    EXPECT_TRUE(Menu(Menu_File_SYX_Save).enabled);
    EXPECT_EQ(FD_Dir, Disk(""));
    EXPECT_EQ(FD_Done, Flag_8::True);
}

TEST_F(The_Ok, completes_a_bare_name_in_the_folder_shown) {
    FD_Show("Open_SYX");
    Type_And_Ok("lead");
    EXPECT_EQ(FD_FileName.text, "lead.syx");
    EXPECT_EQ(Tone_File_Name, Disk("lead.syx"));
}

TEST_F(The_Ok, looks_at_the_last_four_characters_for_a_point) {
    const std::pair<const char*, const char*> names[] = {
        {"x.abc", "x.abc"},
        {"x.a", "x.a"},
        {"x.", "x."},
        {"x.abcd", "x.abcd.syx"},
        {"my.tone", "my.tone.syx"},
        {"abc", "abc.syx"},
        {"", ".syx"},
        {"Leads/", "Leads/"},
        {"..", ".."},
        {"x.\xC3\xA4\xC3\xB6\xC3\xBC", "x.\xC3\xA4\xC3\xB6\xC3\xBC"},
        {"x.abc ", "x.abc .syx"},
    };
    FD_Show("Open_OSC");
    FD_Default_Ext = ".syx";
    for (const auto& [typed, completed] : names) {
        ASSERT_EQ(FD_Go_To(Disk("")), 0);
        Type_And_Ok(typed);
        EXPECT_EQ(FD_FileName.text, completed) << typed;
    }
}

TEST_F(The_Ok, does_nothing_for_a_missing_file_and_selects_the_name) {
    FD_Show("Open_SYX");
    const int before = FD_FileName.times_selected;
    Type_And_Ok("gone");
    Expect_Selected_And_Open(before);
    EXPECT_EQ(Tone_File_Name, "");
    EXPECT_EQ(FD_Done, Flag_8::False);
}

TEST_F(The_Ok, goes_into_a_typed_folder) {
    FD_Show("Open_SYX");
    Type_And_Ok("Leads/");
    EXPECT_EQ(FD_FileName.text, "Leads/");
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
    EXPECT_TRUE(Is_Open());
    Type_And_Ok("..");
    EXPECT_EQ(FD_List_Dirs.path, Disk(""));
    Type_And_Ok("Leads/solo");
    EXPECT_EQ(Tone_File_Name, Disk("Leads/solo.syx"));
    EXPECT_FALSE(Is_Open());
}

TEST_F(The_Ok, takes_a_typed_pattern) {
    FD_Show("Open_SYX");
    Type_And_Ok("*.txt");
    EXPECT_EQ(FD_List_Files.entries, Lines{"note.txt"});
    EXPECT_TRUE(Is_Open());
    Type_And_Ok("b*");
    EXPECT_EQ(FD_FileName.text, "b*.syx");
    EXPECT_EQ(FD_List_Files.entries, Lines{"Bass.SYX"});
}

TEST_F(The_Ok, tells_a_typed_folder_that_is_not_there_and_tries_again) {
    FD_Show("Open_SYX");
    const int before = FD_FileName.times_selected;
    Expect_Box("gone/x.syx : File not found");
    Type_And_Ok(" gone/x.syx");
    EXPECT_EQ(Boxes.back().icon, Icon::Exclamation);
    EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
    Expect_Selected_And_Open(before);

    Answer_With("later/ : File not found", Answer::Ok,
                [] { std::filesystem::create_directory(Disk("later")); });
    Type_And_Ok("later/");
    EXPECT_EQ(FD_List_Dirs.path, Disk("later"));
}

TEST_F(The_Ok, tells_the_systems_text_for_any_other_error) {
    std::filesystem::permissions(Disk("empty"), std::filesystem::perms::none);
    FD_Show("Open_SYX");
    Expect_Box("empty/ : Permission denied");
    const Plain_User user;
    Type_And_Ok("empty/");
    EXPECT_TRUE(Is_Open());
}

TEST_F(The_Ok, stays_open_over_a_file_that_is_no_tone) {
    Write(Disk("bad.syx"), "no tone");
    FD_Show("Open_SYX");
    Expect_Box("Wrong MIDI system exclusive data!");
    Type_And_Ok("bad.syx");
    EXPECT_TRUE(Is_Open());
}

TEST_F(The_Ok, opens_a_sequence_and_closes) {
    FD_Show("Open_SEQ");
    Type_And_Ok("one");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Seq_File_Path, Disk("one.seq"));
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_TRUE(Menu(Menu_File_Seq_Save).enabled);
}

TEST_F(The_Ok, loads_no_oscillator_but_moves_the_lists) {
    FD_Show("Open_OSC");
    Type_And_Ok("wave");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(FD_List_Files_Entry(), "wave.osc");
    Type_And_Ok("Leads/");
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
}

TEST_F(The_Ok, does_nothing_in_the_modes_that_nobody_asks_for) {
    for (const char* mode : {"Save_SYX", "SaveAs_OSC", "Open_ALL"}) {
        FD_Show(mode);
        ASSERT_EQ(FD_Go_To(Disk("")), 0);
        Type_And_Ok("a.syx");
        EXPECT_TRUE(Is_Open()) << mode;
        FD_Button_Cancel_Click();
    }
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(The_Ok, opens_a_file_whose_name_is_no_text) {
    Write(Disk("b\xE4ss\x01.syx"), Bytes(Tone_2));
    FD_Show("Open_SYX");
    Press_File("b\xE4ss\x01.syx");
    Ok();
    EXPECT_EQ(Tone_File_Name, Disk("b\xE4ss\x01.syx"));
    EXPECT_FALSE(Is_Open());
}

TEST_F(The_Ok, survives_a_file_that_was_deleted_behind_the_press) {
    FD_Show("Open_SYX");
    Press_File("a.syx");
    std::filesystem::remove(Disk("a.syx"));
    Ok();
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(The_Ok, survives_a_folder_that_was_deleted_behind_the_press) {
    FD_Show("Open_SYX");
    std::filesystem::remove_all(Disk(""));
    Type_And_Ok("a.syx");
    EXPECT_TRUE(Is_Open());
}

TEST_F(The_Ok, takes_names_that_no_file_can_have_for_missing_files) {
    for (const std::string& name : {std::string(300, 'x'), std::string("a\nb"), std::string("\t"),
                                    std::string("a.syx/"), std::string("."), std::string("x\x01.syx")}) {
        FD_Show("Open_SYX");
        if (name == "a.syx/") Expect_Box("a.syx/ : Not a directory");
        Type_And_Ok(name);
        EXPECT_TRUE(Is_Open());
        EXPECT_EQ(Tone_File_Name, "");
        FD_Button_Cancel_Click();
    }
}

TEST_F(The_Ok, trims_the_name_unless_there_is_a_file_with_the_blanks) {
    FD_Show("Open_SYX");
    Type_And_Ok("  a.syx");
    EXPECT_EQ(Tone_File_Name, Disk("a.syx"));
    Write(Disk("  a.syx"), Bytes(Tone_2));
    FD_Show("Open_SYX");
    Type_And_Ok("  a.syx");
    EXPECT_EQ(Tone_File_Name, Disk("  a.syx"));
}

TEST_F(The_Ok, can_save_the_old_tone_in_the_middle_of_opening) {
    Write(Disk("bank.syx"), Bytes(Tone_1 + Tone_2));
    FD_Show("Open_SYX");
    Answer_With("File contains another TONE. Save old TONE first?", Answer::Yes);
    At_Next_Turn([] {
        EXPECT_EQ(File_Dlg.caption, "Save Tone File");
        Type_And_Ok("first");
    });
    Type_And_Ok("bank.syx");
    EXPECT_EQ(Read_Hex(Disk("first.syx")).substr(21, 17), "42 41 53 53 20 31");
    EXPECT_EQ(Tone_Name_Bytes(), "solo      ");
    EXPECT_EQ(Tone_File_Name, Disk("bank.syx"));
    EXPECT_FALSE(File_Dlg.loaded);
    EXPECT_EQ(App_Mode, "");
}

// -- saving a tone ---------------------------------------------------------------------------------------

class Save_As : public The_Ok {
  protected:
    Save_As() {
        Tone_Data.fill(6);
        Patch_Data.fill(3);
        Tone_Saved = Flag_16::False;
    }
};

TEST_F(Save_As, writes_a_new_file_in_small_letters_and_closes) {
    FD_Show("SaveAs_SYX");
    Type_And_Ok("New Bass");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(std::filesystem::file_size(Disk("new bass.syx")), 89U);
    EXPECT_EQ(Tone_File_Name, Small("new bass.syx"));
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_TRUE(Boxes.empty());
}

// A paste may hold one. To the disk the whole name would be "two", with no extension, and that file is
// somebody else's.
TEST_F(Save_As, takes_a_name_to_its_first_zero_character) {
    Write(Disk("two"), "somebody else's");
    FD_Show("SaveAs_SYX");
    Type_And_Ok(std::string("two\0.syx", 8));
    EXPECT_EQ(std::filesystem::file_size(Disk("two")), 15U);
    EXPECT_TRUE(std::filesystem::exists(Disk("two.syx")));
    EXPECT_FALSE(Is_Open());
}

TEST_F(Save_As, asks_before_it_writes_over_a_file) {
    FD_Show("SaveAs_SYX");
    Answer_With(Question(Small("bass.syx")), Answer::Yes);
    Type_And_Ok("Bass.syx");
    EXPECT_EQ(Boxes.back().title, "Write TONE file");
    EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Yes_No);
    EXPECT_EQ(Boxes.back().icon, Icon::Stop);
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Read_Hex(Disk("Bass.SYX")).substr(0, 23), "F0 41 35 00 21 20 01 06");
    EXPECT_FALSE(std::filesystem::exists(Disk("bass.syx")));
}

TEST_F(Save_As, leaves_the_file_and_stays_open_at_no) {
    FD_Show("SaveAs_SYX");
    Answer_With(Question(Small("a.syx")), Answer::No);
    const int before = FD_FileName.times_selected;
    Type_And_Ok("a");
    Expect_Selected_And_Open(before);
    EXPECT_EQ(Read_Hex(Disk("a.syx")), Hex(Bytes(Tone_1)));
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Tone_File_Name, Small("a.syx")) << "the name is taken before the question";
}

TEST_F(Save_As, brings_the_tone_back_from_the_copy_in_every_case_and_sends_it) {
    MIDI_Autosend = 1;
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        FD_Show("SaveAs_SYX");
        Sent();
        Tone_Loading = Flag_8::True;
        Answer_With(Question(Small("a.syx")), answer, [] {
            Tone_Data.fill(99);
            Patch_Data.fill(98);
        });
        Type_And_Ok("a");
        EXPECT_EQ(Tone_Data[58], 6);
        EXPECT_EQ(Patch_Data[8], 3);
        EXPECT_EQ(Tone_Loading, Flag_8::False);
        const Lines sent = Sent();
        ASSERT_GE(sent.size(), 1U);
        EXPECT_EQ(sent[0].size(), 90U * 3 - 1) << "the whole tone";
        FD_Button_Cancel_Click();
    }
}

TEST_F(Save_As, stays_saved_though_the_panels_are_drawn_anew) {
    Menu(Menu_Tone_Patch).chosen();
    ASSERT_EQ(Patch_Window_Open, Flag_8::True);
    Tone_Saved = Flag_16::False;
    MIDI_Autosend = 1;
    FD_Show("SaveAs_SYX");
    Type_And_Ok("new");
    EXPECT_EQ(Tone_Saved, Flag_16::True) << "as whoever asked for the save will see it";
    EXPECT_FALSE(Is_Open());
    EXPECT_TRUE(Patch.enabled);
}

TEST_F(Save_As, sends_nothing_with_autosend_off) {
    FD_Show("SaveAs_SYX");
    Type_And_Ok("new");
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"}) << "the notes off of the closing";
}

TEST_F(Save_As, does_nothing_for_the_bare_pattern) {
    for (const char* name : {"*.syx", "*.SYX"}) {
        FD_Show("SaveAs_SYX");
        Tone_File_Name = "before";
        MIDI_Autosend = 1;
        Type_And_Ok(name);
        EXPECT_TRUE(Is_Open());
        EXPECT_EQ(Tone_File_Name, "before");
        EXPECT_EQ(Sent(), Lines{}) << "no restore either";
        MIDI_Autosend = 0;
    }
}

TEST_F(Save_As, shows_why_it_failed_and_stays_open) {
    FD_Show("SaveAs_SYX");
    Expect_Box("Error 2: No such file or directory");
    Type_And_Ok("gone/x");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    Expect_Box("Error 36: File name too long");
    Type_And_Ok(std::string(300, 'x'));
    EXPECT_TRUE(Is_Open());
    std::filesystem::create_symlink("/dev/full", Disk("full.syx"));
    Expect_Box("Error 28: No space left on device");
    Type_And_Ok("full");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    Expect_Box("Error 21: Is a directory");
    Type_And_Ok("Leads/");
    EXPECT_TRUE(Is_Open());
}

TEST_F(Save_As, fails_without_rights_and_leaves_the_file) {
    std::filesystem::permissions(Disk(""),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    FD_Show("SaveAs_SYX");
    Expect_Box("Error 13: Permission denied");
    const Plain_User user;
    Type_And_Ok("new");
    EXPECT_TRUE(Is_Open());
}

TEST_F(Save_As, tells_that_the_folder_was_removed_and_keeps_the_tone_unsaved) {
    FD_Show("SaveAs_SYX");
    std::filesystem::remove_all(Disk(""));
    Expect_Box("Error 2: No such file or directory");
    Type_And_Ok("new");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Tone_Data[58], 6);
}

TEST_F(Save_As, writes_nothing_at_a_double_click_and_takes_the_name_only) {
    MIDI_Autosend = 1;
    FD_Show("SaveAs_SYX");
    Sent();
    Tone_Data.fill(99);
    const std::string shown = Shown();
    Double_Click("Bass.SYX");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Read_Hex(Disk("Bass.SYX")), Hex(Bytes(Tone_1)));
    EXPECT_EQ(Tone_File_Name, Small("bass.syx"));
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Tone_Data[58], 6) << "from the copy";
    EXPECT_EQ(Shown(), shown) << "without a redraw";
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
}

TEST_F(Save_As, does_nothing_at_a_double_click_for_the_bare_pattern) {
    FD_Show("SaveAs_SYX");
    const int before = FD_FileName.times_selected;
    Type("*.syx");
    FD_Event(FD_List_Files_DblClick);
    Expect_Selected_And_Open(before);
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(Save_As, names_the_file_that_was_pressed_where_two_differ_in_case) {
    std::filesystem::create_directory(Disk("LEADS"));
    Write(Disk("BASS.syx"), "other");
    Write(Disk("bass.syx"), "small");
    FD_Show("SaveAs_SYX");
    Answer_With(Question(Disk("BASS.syx")), Answer::Yes);
    Type_And_Ok("BASS.syx");
    EXPECT_EQ(File_Read_Whole(Disk("bass.syx")), "small");
    EXPECT_EQ(Read_Hex(Disk("BASS.syx")).substr(0, 8), "F0 41 35");

    std::filesystem::create_directory(Disk("leads"));
    FD_Show("SaveAs_SYX");
    ASSERT_EQ(FD_Go_To(Disk("Leads")), 0);
    Type_And_Ok("New");
    EXPECT_TRUE(std::filesystem::exists(Disk("Leads/new.syx")));
    EXPECT_FALSE(std::filesystem::exists(Disk("leads/new.syx")));
}

TEST_F(Save_As, writes_no_other_file_than_the_named_one) {
    const auto count = [] {
        const std::filesystem::recursive_directory_iterator all(Disk(""));
        return std::distance(begin(all), end(all));
    };
    const auto before = count();
    FD_Show("SaveAs_SYX");
    Type_And_Ok("Leads/../x*?");
    EXPECT_EQ(count(), before + 1);
    EXPECT_TRUE(std::filesystem::exists(Disk("x*?.syx"))) << "no wildcard when saving";
}

// -- saving a sequence -----------------------------------------------------------------------------------

class Save_Sequence_As : public The_Ok {
  protected:
    Save_Sequence_As() {
        Seq_Notes[5] = 127;
        Seq_Saved = Flag_8::False;
    }
};

TEST_F(Save_Sequence_As, writes_a_new_file_and_closes) {
    FD_Show("SaveAs_SEQ");
    Type_And_Ok("Tune");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(std::filesystem::file_size(Disk("tune.seq")), 110U);
    EXPECT_EQ(Seq_File_Path, Small("tune.seq"));
    EXPECT_EQ(Seq_Saved, Flag_8::True);
}

TEST_F(Save_Sequence_As, asks_under_the_tones_title) {
    FD_Show("SaveAs_SEQ");
    Answer_With(Question(Small("one.seq")), Answer::No);
    Type_And_Ok("one");
    EXPECT_EQ(Boxes.back().title, "Write TONE file");
    EXPECT_EQ(Boxes.back().icon, Icon::Stop);
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(File_Read_Whole(Disk("one.seq")), Sequence_Bytes());
    Answer_With(Question(Small("one.seq")), Answer::Yes);
    Ok();
    EXPECT_FALSE(Is_Open());
    EXPECT_NE(File_Read_Whole(Disk("one.seq")), Sequence_Bytes());
}

TEST_F(Save_Sequence_As, stays_open_behind_a_saved_sequence_while_the_tone_is_unsaved) {
    Tone_Saved = Flag_16::False;
    FD_Show("SaveAs_SEQ");
    Type_And_Ok("tune");
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_TRUE(Is_Open());
}

TEST_F(Save_Sequence_As, shows_why_it_failed_and_stays_open) {
    FD_Show("SaveAs_SEQ");
    std::filesystem::create_symlink("/dev/full", Disk("full.seq"));
    const std::pair<const char*, const char*> failures[] = {
        {" gone/tune", "gone/tune.seq : File not found"},
        {"Leads/", "Leads/ : Is a directory"},
        {"full", "full.seq : No space left on device"},
    };
    for (const auto& [typed, text] : failures) {
        const int before = FD_FileName.times_selected;
        Expect_Box(text);
        Type_And_Ok(typed);
        EXPECT_EQ(Boxes.back().icon, Icon::Exclamation);
        EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
        Expect_Selected_And_Open(before);
        EXPECT_EQ(Seq_Saved, Flag_8::False);
    }
}

TEST_F(Save_Sequence_As, tells_that_the_folder_was_removed_and_keeps_the_sequence_unsaved) {
    FD_Show("SaveAs_SEQ");
    std::filesystem::remove_all(Disk(""));
    Expect_Box("tune.seq : File not found");
    Type_And_Ok("tune");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    EXPECT_EQ(Seq_Notes[5], 127);
}

TEST_F(Save_Sequence_As, fails_without_rights_and_leaves_the_folder_as_it_is) {
    std::filesystem::permissions(Disk(""),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    FD_Show("SaveAs_SEQ");
    Expect_Box("tune.seq : Permission denied");
    const Plain_User user;
    Type_And_Ok("tune");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    EXPECT_FALSE(std::filesystem::exists(Disk("tune.seq")));
}

TEST_F(Save_Sequence_As, tries_again_behind_a_failure) {
    FD_Show("SaveAs_SEQ");
    Answer_With("later/tune.seq : File not found", Answer::Ok,
                [] { std::filesystem::create_directory(Disk("later")); });
    Type_And_Ok("later/tune");
    EXPECT_EQ(std::filesystem::file_size(Disk("later/tune.seq")), 110U);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_FALSE(Is_Open());
}

TEST_F(Save_Sequence_As, tests_for_the_tones_pattern) {
    FD_Show("SaveAs_SEQ");
    Type_And_Ok("*.syx");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Seq_File_Path, "");
}

TEST_F(Save_Sequence_As, restores_and_sends_no_tone) {
    MIDI_Autosend = 1;
    FD_Show("SaveAs_SEQ");
    Tone_Data.fill(77);
    Type_And_Ok("tune");
    EXPECT_EQ(Tone_Data[0], 77);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
}

TEST_F(Save_Sequence_As, does_nothing_at_a_double_click) {
    FD_Show("SaveAs_SEQ");
    const int before = FD_FileName.times_selected;
    Double_Click("one.seq");
    Expect_Selected_And_Open(before);
    EXPECT_EQ(File_Read_Whole(Disk("one.seq")), Sequence_Bytes());
    EXPECT_EQ(Seq_File_Path, "");
}

// -- double click in the open modes ----------------------------------------------------------------------

TEST_F(The_Ok, is_done_by_a_double_click_too) {
    FD_Show("Open_SYX");
    Double_Click("lead.syx");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Tone_File_Name, Disk("lead.syx"));
    FD_Show("Open_SEQ");
    Double_Click("two.SEQ");
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(Seq_File_Path, Disk("two.SEQ"));
}

TEST_F(The_Ok, is_not_what_a_double_click_on_an_oscillator_does) {
    FD_Show("Open_OSC");
    const int before = FD_FileName.times_selected;
    Double_Click("wave.osc");
    Expect_Selected_And_Open(before);
}

TEST_F(The_Ok, completes_a_bare_name_only_behind_a_double_click) {
    FD_Show("Open_SYX");
    Write(Disk("lead"), Bytes(Tone_1));
    Type("lead");
    FD_Event(FD_List_Files_DblClick);
    EXPECT_EQ(Tone_File_Name, Disk("lead")) << "the name as it stood";
    FD_Show("Open_SYX");
    Type("gone");
    FD_Event(FD_List_Files_DblClick);
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(FD_FileName.text, "gone.syx");
}

TEST_F(The_Ok, tells_an_error_of_a_double_click_by_the_systems_text_and_goes_on) {
    FD_Show("Open_SYX");
    Expect_Box("gone/x.syx : No such file or directory");
    Type("gone/x.syx");
    FD_Event(FD_List_Files_DblClick);
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes.back().icon, Icon::Exclamation);
    EXPECT_TRUE(Is_Open());
}
