#include "tname/tname.h"

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "shell/tone_commands.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

Lines Juno_Names;
Lines Juno_Displays;

std::string Name_Bytes() {
    return {Tone_Data.begin(), Tone_Data.begin() + 11};
}

}  // namespace

class Name_Dialog : public Started_Stage {
  protected:
    Name_Dialog() {
        Name_Command_Install();
        Juno_Name_To_Data = [](const std::string& name) { Juno_Names.push_back(name); };
        Juno_Display_Name = [] { Juno_Displays.push_back(Tone_Name_Text); };
        Tone_Name_Text = "OLD";
        Tone_Data.fill(7);
        Sent();
    }

    static void Open() { Menu(Menu_Tone_Name).chosen(); }
    static void Name(const std::string& text) {
        Open();
        TName_Tone_Name_Change(text);
        TName_Cmd_OK();
    }
};

TEST_F(Name_Dialog, opens_with_the_name_and_locks_the_rest) {
    Open();
    EXPECT_TRUE(TName.visible);
    EXPECT_EQ(TName.caption, "Tone Name");
    EXPECT_EQ(TName_Dialog.tone_name, "OLD");
    EXPECT_EQ(App_Mode, "TName");
    EXPECT_FALSE(Editor.enabled);
    EXPECT_FALSE(Menu(Menu_File).enabled);
    EXPECT_FALSE(Timer1.enabled);
}

TEST_F(Name_Dialog, has_these_texts) {
    EXPECT_STREQ(TName_Prompt, "Please enter a name for the Tone:");
    EXPECT_STREQ(TName_Caption_OK, "&OK");
    EXPECT_STREQ(TName_Caption_Cancel, "&Cancel");
}

TEST_F(Name_Dialog, stands_in_the_middle_of_the_main_window) {
    Main_Window.left = 100;
    Main_Window.top = 50;
    Main_Window.width = 800;
    Main_Window.height = 600;
    Open();
    EXPECT_EQ(TName.left + TName.width / 2, 500);
    EXPECT_EQ(TName.top + TName.height / 2, 350);
}

TEST_F(Name_Dialog, opens_by_a_click_and_by_a_key_on_the_display) {
    Click("Tone_Name");
    EXPECT_EQ(App_Mode, "TName");
    TName_Cmd_Cancel();
    EXPECT_EQ(App_Mode, "");
    Key("Tone_Name", Key_Up);
    EXPECT_EQ(App_Mode, "TName");
}

TEST_F(Name_Dialog, does_not_open_beside_another_dialog) {
    App_Mode = "Help";
    Open();
    EXPECT_FALSE(TName.loaded);
}

TEST_F(Name_Dialog, takes_the_name_trimmed_and_in_capitals) {
    Name(" bass 1 ");
    EXPECT_EQ(Tone_Name_Text, "BASS 1");
    EXPECT_EQ(Name_Bytes(), "BASS 1     ");
    EXPECT_EQ(Shown(), "BASS 1");
    EXPECT_EQ(Juno_Displays, Lines{"BASS 1"});
    EXPECT_EQ(Juno_Names, Lines{"BASS 1"}) << "under every profile";
    EXPECT_EQ(App_Mode, "");
    EXPECT_FALSE(TName.loaded);
    EXPECT_TRUE(Editor.enabled);
}

TEST_F(Name_Dialog, keeps_ten_characters) {
    Open();
    TName_Tone_Name_Change("abcdefghijk");
    EXPECT_EQ(TName_Dialog.tone_name, "abcdefghij");
    TName_Cmd_OK();
    EXPECT_EQ(Name_Bytes(), "ABCDEFGHIJ ");
}

TEST_F(Name_Dialog, takes_an_empty_name_as_ten_blanks) {
    Name("");
    EXPECT_EQ(Name_Bytes(), "           ");
    EXPECT_EQ(Shown(), "");
}

TEST_F(Name_Dialog, turns_ansi_letters_into_capitals) {
    Name("b\xE4ss");
    EXPECT_EQ(Name_Bytes().substr(0, 4), "B\xC4SS");
}

TEST_F(Name_Dialog, sends_the_name_as_one_message) {
    Name("bass 1");
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 21 20 01 00 42 01 41 02 53 03 53 04 20 05 31 06 20 07 20 08 20 09 20 0F"});
}

TEST_F(Name_Dialog, sends_nothing_without_automatic_sending_or_midi) {
    MIDI_Autosend = 0;
    Name("a");
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    Name("b");
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Name_Dialog, does_not_touch_whether_the_tone_is_saved) {
    Name("a");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    Tone_Saved = Flag_16::False;
    Name("b");
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
}

TEST_F(Name_Dialog, changes_nothing_on_cancel) {
    Open();
    TName_Tone_Name_Change("new");
    TName_Cmd_Cancel();
    EXPECT_EQ(Tone_Name_Text, "OLD");
    EXPECT_EQ(Name_Bytes(), std::string(11, '\7'));
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Juno_Names, Lines{});
    EXPECT_EQ(App_Mode, "");
    EXPECT_FALSE(TName.visible);
    Open();
    EXPECT_EQ(TName_Dialog.tone_name, "OLD");
}

TEST_F(Name_Dialog, gives_the_tone_its_name_unseen_under_the_alpha_juno) {
    Synthesizer = "Alpha Juno";
    Name("lead");
    EXPECT_EQ(Name_Bytes(), "LEAD       ");
    EXPECT_EQ(Juno_Names, Lines{"LEAD"});
}

TEST_F(Name_Dialog, gives_the_display_the_new_name_at_its_next_tick_too) {
    Name("lead");
    Timer_Display.tick();
    EXPECT_EQ(Shown(), "LEAD");
}
