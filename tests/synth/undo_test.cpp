#include "synth/undo.h"

#include "desk/menus.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/profile.h"
#include "synth/random_tone.h"
#include "synth/syx_file.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

Lines Steps;

template <std::size_t Size>
bool All(const std::array<std::uint8_t, Size>& record, int value) {
    for (const std::uint8_t byte : record) {
        if (byte != value) return false;
    }
    return true;
}

void Fill(int tone, int patch) {
    Tone_Data.fill(static_cast<std::uint8_t>(tone));
    Patch_Data.fill(static_cast<std::uint8_t>(patch));
}

}  // namespace

class Undo : public Started_Stage {
  protected:
    Undo() {
        Fill(11, 12);
        Sent();
        Panel_Apply_Tone = [] { Steps.emplace_back("tone"); };
        Panel_Apply_Patch = [] { Steps.emplace_back("patch"); };
        Juno_To_Panel = [] { Steps.emplace_back("juno"); };
        Juno_Undo_Store = [] { Steps.emplace_back("juno store"); };
        Juno_Undo_Restore = [] { Steps.emplace_back("juno restore"); };
    }

    static bool On_Offer() { return Menu(Menu_Edit_Undo).enabled; }
};

TEST_F(Undo, is_not_on_offer_at_the_start) {
    EXPECT_FALSE(On_Offer());
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_TRUE(All(Tone_Undo, 0));
    EXPECT_TRUE(All(Patch_Undo, 0));
}

TEST_F(Undo, stores_the_whole_tone_and_goes_on_offer) {
    Undo_Store();
    EXPECT_TRUE(All(Tone_Undo, 11));
    EXPECT_TRUE(All(Patch_Undo, 12));
    EXPECT_TRUE(On_Offer());
    EXPECT_EQ(Steps, Lines{});
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Undo, restores_shows_and_sends_the_tone_once) {
    Undo_Store();
    Fill(1, 2);
    Tone_Saved = Flag_16::False;
    Undo_Restore();
    EXPECT_TRUE(All(Tone_Data, 11));
    EXPECT_TRUE(All(Patch_Data, 12));
    EXPECT_EQ(Steps, Lines{"tone"});
    EXPECT_EQ(Sent().size(), 1U);
    EXPECT_FALSE(On_Offer());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(Undo, leaves_a_saved_tone_saved) {
    Undo_Store();
    Undo_Restore();
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Undo, shows_the_patch_window_behind_the_panel_when_it_is_open) {
    Patch_Window_Open = Flag_8::True;
    Undo_Restore();
    EXPECT_EQ(Steps, (Lines{"tone", "patch"}));
}

TEST_F(Undo, sends_also_without_automatic_sending) {
    MIDI_Autosend = 0;
    Undo_Restore();
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Undo, of_what_was_never_stored_gives_zeros) {
    Undo_Restore();
    EXPECT_TRUE(All(Tone_Data, 0));
    EXPECT_TRUE(All(Patch_Data, 0));
}

TEST_F(Undo, does_not_follow_edits_on_the_panel) {
    Press("VCF_Res");
    Key("VCF_Res", Key_Up);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_FALSE(On_Offer());
}

TEST_F(Undo, of_random_restores_the_edit_before_it) {
    Tone_Saved = Flag_16::False;
    Menu(Menu_Tone_Random).chosen();
    EXPECT_TRUE(On_Offer());
    EXPECT_FALSE(All(Tone_Data, 11));
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_TRUE(All(Tone_Data, 11));
    EXPECT_TRUE(All(Patch_Data, 12));
    EXPECT_FALSE(On_Offer());
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}

TEST_F(Undo, of_random_on_a_saved_tone_restores_zeros) {
    Menu(Menu_Tone_Random).chosen();
    EXPECT_TRUE(On_Offer());
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_TRUE(All(Tone_Data, 0));
    EXPECT_TRUE(All(Patch_Data, 0));
}

TEST_F(Undo, of_random_on_a_saved_tone_restores_an_older_copy) {
    Tone_Saved = Flag_16::False;
    Menu(Menu_Tone_Random).chosen();
    Fill(1, 2);
    Tone_Saved = Flag_16::True;
    Menu(Menu_Tone_Random).chosen();
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_TRUE(All(Tone_Data, 11));
}

TEST_F(Undo, of_random_twice_restores_the_first_random) {
    Tone_Saved = Flag_16::False;
    Menu(Menu_Tone_Random).chosen();
    const auto first = Tone_Data;
    Menu(Menu_Tone_Random).chosen();
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_EQ(Tone_Data, first);
}

TEST_F(Undo, goes_off_offer_with_a_save) {
    Menu(Menu_Tone_Random).chosen();
    Tone_File_Name = Test_Folder() + "/x.syx";
    SYX_Save();
    EXPECT_FALSE(On_Offer());
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Undo, keeps_the_alpha_junos_tone_in_its_own_room) {
    Synthesizer = "Alpha Juno";
    Patch_Window_Open = Flag_8::True;
    Undo_Store();
    EXPECT_TRUE(All(Tone_Undo, 0));
    EXPECT_TRUE(All(Patch_Undo, 0));
    EXPECT_TRUE(On_Offer());
    Undo_Restore();
    EXPECT_TRUE(All(Tone_Data, 11));
    EXPECT_TRUE(All(Patch_Data, 12));
    EXPECT_EQ(Steps, (Lines{"juno store", "juno restore", "juno"}));
    EXPECT_FALSE(On_Offer());
    EXPECT_EQ(Sent().size(), 1U);
}

// -- the file window's backup ----------------------------------------------------------------------------

TEST_F(Undo, copies_serve_as_a_backup_that_is_not_on_offer) {
    Tone_Backup_Store();
    EXPECT_TRUE(All(Tone_Undo, 11));
    EXPECT_TRUE(All(Patch_Undo, 12));
    EXPECT_FALSE(On_Offer());
    Fill(1, 2);
    Menu(Menu_Tone_Random).chosen();
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_TRUE(All(Tone_Data, 11)) << "what Undo of a saved tone brings back then";
}

TEST_F(Undo, backup_comes_back_with_the_patch_window_first_and_gives_the_panels_their_words) {
    Tone_Backup_Store();
    Fill(1, 2);
    Tone_Loading = Flag_8::True;
    Patch_Window_Open = Flag_8::True;
    Menu(Menu_Edit_Undo).enabled = true;
    Tone_Backup_Restore();
    EXPECT_TRUE(All(Tone_Data, 11));
    EXPECT_TRUE(All(Patch_Data, 12));
    EXPECT_EQ(Steps, (Lines{"patch", "tone"}));
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_TRUE(On_Offer()) << "untouched";
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Undo, backup_is_not_sent_without_automatic_sending) {
    MIDI_Autosend = 0;
    Tone_Backup_Restore();
    EXPECT_EQ(Steps, Lines{"tone"});
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Undo, backup_of_an_alpha_juno_lies_in_its_own_room) {
    Synthesizer = "Alpha Juno";
    Patch_Window_Open = Flag_8::True;
    Tone_Backup_Store();
    Tone_Backup_Restore();
    EXPECT_EQ(Steps, (Lines{"juno store", "juno restore", "juno"}));
    EXPECT_TRUE(All(Tone_Undo, 0));
}
