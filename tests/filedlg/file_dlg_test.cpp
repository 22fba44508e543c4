// How the file window opens, in each of its modes, and how it closes.
#include "filedlg/file_dlg.h"

#include "desk/menus.h"
#include "filedlg/file_stage.h"
#include "sequencer/seq_commands.h"
#include "shell/frame.h"
#include "synth/undo.h"

namespace {

struct Expected {
    const char* mode;
    const char* title;
    Lines filter;
    int selected;
    FD_Panel panel;
    const char* extension;
    const char* pattern;
};

// clang-format off
const std::vector<Expected> Modes = {
    {"Open_SYX",   "Open Tone File",       {"Sysex (*.SYX)", "All Files (*.*)"},      0,  FD_Panel::SYX,  ".syx", "*.syx"},
    {"Open_SEQ",   "Open Sequencer File",  {"Sequence (*.SEQ)", "All Files (*.*)"},   0,  FD_Panel::SEQ,  ".seq", "*.seq"},
    {"Open_OSC",   "Open Oscillator File", {"Oscillator (*.OSC)", "All Files (*.*)"}, 0,  FD_Panel::OSC,  ".osc", "*.osc"},
    {"Open_ALL",   "Open File",            {"All Files (*.*)"},                       -1, FD_Panel::None, ".*",   "*.*"},
    {"Save_SYX",   "Save Tone File",       {"Sysex (*.SYX)", "All Files (*.*)"},      0,  FD_Panel::SYX,  ".syx", "*.syx"},
    {"SaveAs_SYX", "Save Tone File",       {"Sysex (*.SYX)", "All Files (*.*)"},      0,  FD_Panel::SYX,  ".syx", "*.syx"},
    {"SaveAs_SEQ", "Save Sequencer File",  {"Sequence (*.SEQ)", "All Files (*.*)"},   0,  FD_Panel::SEQ,  ".seq", "*.seq"},
    {"SaveAs_OSC", "Save Oscillator File", {"Oscillator (*.OSC)", "All Files (*.*)"}, 0,  FD_Panel::OSC,  ".osc", "*.osc"},
};
// clang-format on

bool Backs_Up(const std::string& mode) {
    return mode == "Save_SYX" || mode == "SaveAs_SYX";
}

}  // namespace

TEST_F(File_Window, is_set_up_by_its_mode) {
    for (const Expected& row : Modes) {
        Tone_Data.fill(9);
        Tone_Undo.fill(1);
        FD_Show(row.mode);
        EXPECT_EQ(File_Dlg.caption, row.title) << row.mode;
        EXPECT_EQ(FD_List_Filter.entries, row.filter) << row.mode;
        EXPECT_EQ(FD_List_Filter.selected, row.selected) << row.mode;
        EXPECT_EQ(FD_Shown_Panel, row.panel) << row.mode;
        EXPECT_EQ(FD_Default_Ext, row.extension) << row.mode;
        EXPECT_EQ(FD_List_Files.pattern, row.pattern) << row.mode;
        EXPECT_EQ(Tone_Undo[0], Backs_Up(row.mode) ? 9 : 1) << row.mode;
        FD_Button_Cancel_Click();
    }
}

TEST_F(File_Window, shows_the_remembered_folder_of_its_kind) {
    Dir_Tones = Disk("leads") + "/";
    Dir_Sequences = Disk("empty");
    Dir_Oscillators = Disk("");
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_List_Dirs.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.path, Disk("Leads"));
    EXPECT_EQ(FD_List_Files.entries, Lines{"solo.syx"});
    FD_Button_Cancel_Click();
    FD_Show("SaveAs_SEQ");
    EXPECT_EQ(FD_List_Dirs.path, Disk("empty"));
    FD_Button_Cancel_Click();
    FD_Show("Open_OSC");
    EXPECT_EQ(FD_List_Files.entries, Lines{"wave.osc"});
    FD_Button_Cancel_Click();
    FD_Show("Open_ALL");
    EXPECT_EQ(FD_List_Dirs.path, std::filesystem::current_path().string());
}

TEST_F(File_Window, shows_the_drive_of_the_remembered_folder) {
    Volumes = {"/", Disk("Leads")};
    Dir_Tones = Disk("Leads");
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_List_Drives.Selected_Text(), Disk("Leads"));
    EXPECT_EQ(FD_Drive, Disk("Leads"));
}

TEST_F(File_Window, opens_in_the_current_directory_when_the_remembered_one_has_gone) {
    Dir_Tones = Disk("gone") + "/";
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_List_Dirs.path, std::filesystem::current_path().string());
    EXPECT_EQ(FD_List_Files.path, std::filesystem::current_path().string());
    EXPECT_EQ(FD_Drive, "/");
}

TEST_F(File_Window, locks_the_rest_while_it_is_open) {
    FD_Cancelled = Flag_16::True;
    FD_Show("Open_SYX");
    EXPECT_EQ(App_Mode, "File_Dlg");
    EXPECT_FALSE(Menu(Menu_File).enabled);
    EXPECT_FALSE(Editor.enabled);
    EXPECT_FALSE(Timer1.enabled);
    EXPECT_EQ(FD_Open, Flag_16::True);
    EXPECT_EQ(FD_Cancelled, Flag_16::False);
    FD_Button_Cancel_Click();
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(FD_Open, Flag_16::False);
    EXPECT_EQ(FD_Cancelled, Flag_16::True);
    EXPECT_FALSE(File_Dlg.loaded);
}

TEST_F(File_Window, gives_the_focused_control_its_resting_picture) {
    Focus("VCF_Res");
    Advance(milliseconds(250));
    Advance(milliseconds(250));
    At("VCF_Res").picture = Picture_Of(Picture_Store::Buttons, 7);
    FD_Show("Open_SYX");
    EXPECT_EQ(At("VCF_Res").picture, Picture_Of(Picture_Store::Buttons, 6));
}

TEST_F(File_Window, selects_the_name_when_it_opens) {
    const int before = FD_FileName.times_selected;
    FD_FileName.text = "left over";
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_FileName.text, "");
    EXPECT_EQ(FD_FileName.times_selected, before + 1);
}

TEST_F(File_Window, opens_with_fresh_lists_each_time) {
    FD_Show("Open_SYX");
    FD_List_Files_Set_Pattern("x");
    FD_List_Filter_Click(1);
    FD_Button_Cancel_Click();
    FD_Show("Open_SYX");
    EXPECT_EQ(FD_List_Files.pattern, "*.syx");
    EXPECT_EQ(FD_List_Filter.selected, 0);
    EXPECT_EQ(FD_List_Files.index, -1);
}

// -- place -----------------------------------------------------------------------------------------------

TEST_F(File_Window, stands_in_the_corner_without_save_positions) {
    FD_Left = 150;
    FD_Top = 300;
    FD_Show("Open_SYX");
    EXPECT_EQ(File_Dlg.left, 0);
    EXPECT_EQ(File_Dlg.top, 0);
    File_Dlg.left = 77;
    FD_Button_Cancel_Click();
    EXPECT_EQ(FD_Left, 150);
    EXPECT_EQ(FD_Top, 300);
}

TEST_F(File_Window, remembers_its_place_in_twips_with_save_positions) {
    Menu(Menu_Windows_SavePos).checked = true;
    FD_Left = 150;
    FD_Top = 300;
    FD_Show("Open_SYX");
    EXPECT_EQ(File_Dlg.left, 10);
    EXPECT_EQ(File_Dlg.top, 20);
    File_Dlg.left = 100;
    File_Dlg.top = -4;
    FD_Button_Cancel_Click();
    EXPECT_EQ(FD_Left, 1500);
    EXPECT_EQ(FD_Top, -60);
}

TEST_F(File_Window, keeps_the_nearest_place_of_one_that_16_bits_cannot_hold) {
    Menu(Menu_Windows_SavePos).checked = true;
    FD_Show("Open_SYX");
    File_Dlg.left = 3000;
    File_Dlg.top = -3000;
    FD_Button_Cancel_Click();
    EXPECT_EQ(FD_Left, 32767);
    EXPECT_EQ(FD_Top, -32768);
    EXPECT_FALSE(File_Dlg.loaded);
}

// -- the filter ------------------------------------------------------------------------------------------

TEST_F(File_Window, takes_its_extension_from_the_filter) {
    FD_Show("Open_SYX");
    FD_List_Filter_Click(0);
    EXPECT_EQ(FD_Default_Ext, ".SYX");
    EXPECT_EQ(FD_List_Files.pattern, "*.SYX");
    EXPECT_EQ(FD_Mode, "Open_SYX");
    FD_Button_Cancel_Click();
    FD_Show("Open_SEQ");
    FD_List_Filter_Click(0);
    EXPECT_EQ(FD_Default_Ext, ".SEQ");
    EXPECT_EQ(FD_List_Files.pattern, "*.SEQ");
    FD_Button_Cancel_Click();
    FD_Show("Open_OSC");
    FD_List_Filter_Click(0);
    EXPECT_EQ(FD_Default_Ext, ".OSC");
    EXPECT_EQ(FD_List_Files.pattern, "*.OSC");
}

TEST_F(File_Window, is_not_widened_by_all_files_and_can_only_be_cancelled_then) {
    FD_Show("Open_SYX");
    const Lines before = FD_List_Files.entries;
    FD_List_Filter_Click(1);
    EXPECT_EQ(FD_Mode, "Open_ALL");
    EXPECT_EQ(FD_Default_Ext, ".syx");
    EXPECT_EQ(FD_List_Files.entries, before);
    Type_And_Ok("a.syx");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_File_Name, "");
    FD_List_Filter_Click(0);
    EXPECT_EQ(FD_Mode, "Open_ALL") << "going back does not bring the mode back";
    Type_And_Ok("a.syx");
    Double_Click("a.syx");
    EXPECT_TRUE(Is_Open());
    EXPECT_EQ(Tone_File_Name, "");
    FD_Button_Cancel_Click();
    EXPECT_FALSE(Is_Open());
}

// -- the end ---------------------------------------------------------------------------------------------

TEST_F(File_Window, stores_the_folder_of_its_pattern_when_it_closes) {
    FD_Show("Open_SYX");
    ASSERT_EQ(FD_Go_To(Disk("Leads")), 0);
    FD_List_Filter_Click(0);
    FD_Button_Cancel_Click();
    EXPECT_EQ(Dir_Tones, Disk("Leads")) << "without a final separator";
    EXPECT_EQ(Dir_Sequences, Disk("") + "/");
    FD_Show("Open_SEQ");
    ASSERT_EQ(FD_Go_To(Disk("empty")), 0);
    FD_Button_Cancel_Click();
    EXPECT_EQ(Dir_Sequences, Disk("empty"));
    FD_Show("SaveAs_OSC");
    ASSERT_EQ(FD_Go_To("/"), 0);
    FD_Button_Cancel_Click();
    EXPECT_EQ(Dir_Oscillators, "/");
}

TEST_F(File_Window, stores_no_folder_under_another_pattern) {
    FD_Show("Open_SYX");
    ASSERT_EQ(FD_Go_To(Disk("Leads")), 0);
    FD_List_Files_Set_Pattern("s*.syx");
    FD_Button_Cancel_Click();
    EXPECT_EQ(Dir_Tones, Disk("") + "/");
}

TEST_F(File_Window, stops_the_display_and_all_notes_when_it_closes) {
    FD_Show("Open_SYX");
    Timer_Start(Timer_Display);
    FD_Wait_Over = 0;
    FD_Button_Cancel_Click();
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_EQ(FD_Wait_Over, 1);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
}

TEST_F(File_Window, stores_the_soundcheck_when_it_closes) {
    FD_Show("Open_SYX");
    FD_SYX_SoundCheck_Note_List.Select(3);
    FD_SYX_SoundCheck_Velocity_List.Select(99);
    FD_Button_Cancel_Click();
    EXPECT_EQ(Soundcheck_Note, 60);
    EXPECT_EQ(Soundcheck_Velocity, 99);
}

TEST_F(File_Window, hears_nothing_while_it_closes_or_when_it_is_closed) {
    FD_Show("Open_SYX");
    Type("a.syx");
    At_Next_Turn([] { Ok(); });
    FD_Button_Cancel_Click();
    EXPECT_EQ(Tone_File_Name, "");
    Ok();
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(File_Window, does_not_open_and_nobody_waits_for_it_while_it_closes) {
    FD_Show("Open_SYX");
    At_Next_Turn([] {
        FD_Show("Open_SEQ");
        SYX_Save_As();
        Seq_Save_As();
        EXPECT_EQ(FD_Mode, "Open_SYX");
        EXPECT_EQ(Loop.waits, 0);
    });
    FD_Button_Cancel_Click();
    EXPECT_FALSE(Is_Open());
    EXPECT_EQ(App_Mode, "");
    FD_Show("Open_SEQ");
    EXPECT_TRUE(Is_Open());
}

TEST_F(File_Window, goes_with_the_frame) {
    FD_Show("Open_SYX");
    EXPECT_TRUE(Main_Close());
    EXPECT_FALSE(File_Dlg.loaded);
    EXPECT_NE(Read_Settings().find("Tones=" + Disk("") + "/\n"), std::string::npos);
}

TEST_F(File_Window, is_waited_for_by_save_as) {
    int turns = 0;
    At_Next_Turn([&turns] {
        ++turns;
        EXPECT_EQ(FD_Mode, "SaveAs_SYX");
        EXPECT_TRUE(Is_Open());
        FD_Button_Cancel_Click();
    });
    SYX_Save_As();
    EXPECT_EQ(turns, 1);
    EXPECT_FALSE(Is_Open());
    EXPECT_GE(Loop.waits, 1) << "asleep, not spinning";
    At_Next_Turn([] {
        EXPECT_EQ(FD_Mode, "SaveAs_SEQ");
        FD_Button_Cancel_Click();
    });
    Menu(Menu_File_Seq_SaveAs).chosen();
    EXPECT_FALSE(Is_Open());
}

TEST_F(File_Window, opens_from_the_menus_and_lets_them_return) {
    Menu(Menu_File_SYX_Open).chosen();
    EXPECT_EQ(FD_Mode, "Open_SYX");
    EXPECT_TRUE(Is_Open());
    FD_Button_Cancel_Click();
    Menu(Menu_File_Seq_Open).chosen();
    EXPECT_EQ(FD_Mode, "Open_SEQ");
    EXPECT_TRUE(Is_Open());
}

TEST_F(File_Window, saves_from_the_question_of_the_exit) {
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Yes);
    At_Next_Turn([] { Type_And_Ok("exit"); });
    EXPECT_TRUE(Main_Query_Unload());
    EXPECT_EQ(std::filesystem::file_size(Disk("exit.syx")), 89U);
}

TEST_F(File_Window, refuses_the_exit_when_it_was_cancelled) {
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Yes);
    At_Next_Turn(FD_Button_Cancel_Click);
    EXPECT_FALSE(Main_Query_Unload());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(File_Window, saves_from_the_question_of_new) {
    Tone_Saved = Flag_16::False;
    Tone_Data.fill(7);
    Answer_With("Save actual TONE first?", Answer::Yes);
    At_Next_Turn([] { Type_And_Ok("old"); });
    Menu(Menu_File_SYX_New).chosen();
    EXPECT_EQ(Read_Hex(Disk("old.syx")).substr(21, 8), "07 07 07");
    EXPECT_EQ(Tone_Data[0], ' ');
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(File_Window, saves_from_the_question_of_open_and_then_opens) {
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Yes);
    At_Next_Turn([] { Type_And_Ok("old"); });
    Menu(Menu_File_SYX_Open).chosen();
    EXPECT_TRUE(std::filesystem::exists(Disk("old.syx")));
    EXPECT_EQ(FD_Mode, "Open_SYX");
    EXPECT_TRUE(Is_Open());
}
