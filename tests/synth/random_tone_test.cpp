#include "synth/random_tone.h"

#include <random>

#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "platform/random.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/undo.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

Lines Steps;
int Drawn = 0;

// A different number each time: 0/49, 1/49, 2/49 ...
double Rising() {
    return Drawn++ / 49.0;
}

}  // namespace

class Random : public Started_Stage {
  protected:
    Random() {
        const std::string name = "OLD NAME  ";
        std::copy(name.begin(), name.end(), Tone_Data.begin());
        Panel_Apply_Tone();
        Patch_Data.fill(99);
        Sent();
    }
};

TEST_F(Random, draws_49_numbers_and_cuts_127_times_each_down) {
    Random_Number = Rising;
    Tone_Random();
    EXPECT_EQ(Drawn, 49);
    EXPECT_EQ(Tone_Data[11], 2);    // 1/49 of 127 is 2.59
    EXPECT_EQ(Tone_Data[12], 5);    // 5.18
    EXPECT_EQ(Tone_Data[13], 7);    // 7.78
    EXPECT_EQ(Tone_Data[34], 62);   // 62.2
    EXPECT_EQ(Tone_Data[58], 124);  // 124.4
}

TEST_F(Random, never_reaches_127) {
    Random_Number = [] { return 0.9999999; };
    Tone_Random();
    for (std::size_t parameter = 11; parameter < Tone_Size; ++parameter)
        EXPECT_EQ(Tone_Data[parameter], 126) << parameter;
    Random_Number = [] { return 0.0; };
    Tone_Random();
    for (std::size_t parameter = 11; parameter < Tone_Size; ++parameter)
        EXPECT_EQ(Tone_Data[parameter], 0) << parameter;
}

TEST_F(Random, draws_the_parameters_without_a_control_too) {
    Random_Number = [] { return 0.5; };
    Tone_Random();
    for (const std::size_t parameter : {23u, 24u, 25u, 57u})
        EXPECT_EQ(Tone_Data[parameter], 63) << parameter;
    EXPECT_EQ(Tone_Data[10], 32) << "the name's blanks reach it";
}

TEST_F(Random, of_its_own_numbers_keeps_below_127_and_differs_from_tone_to_tone) {
    std::array<bool, 127> seen = {};
    for (int time = 0; time < 200; ++time) {
        const auto before = Tone_Data;
        Tone_Random();
        EXPECT_NE(Tone_Data, before);
        for (std::size_t parameter = 10; parameter < Tone_Size; ++parameter) {
            ASSERT_LE(Tone_Data[parameter], 126);
            seen[Tone_Data[parameter]] = true;
        }
    }
    for (std::size_t value = 0; value < seen.size(); ++value) EXPECT_TRUE(seen[value]) << value;
}

TEST_F(Random, does_not_begin_every_run_with_the_same_tone) {
    std::mt19937 unseeded;
    std::array<int, 49> same = {};
    for (int& value : same) value = static_cast<int>(static_cast<double>(unseeded()) / 4294967296.0 * 127);
    Tone_Random();
    EXPECT_FALSE(std::equal(same.begin() + 1, same.end(), Tone_Data.begin() + 11));
}

TEST_F(Random, is_called_random_and_its_patch_parameters_are_those_of_a_new_tone) {
    Tone_Random();
    const std::string name(Tone_Data.begin(), Tone_Data.begin() + 10);
    EXPECT_EQ(name, "RANDOM    ");
    EXPECT_EQ(Tone_Name_Text, "RANDOM");
    EXPECT_EQ(Patch_Data, (std::array<std::uint8_t, 9>{0, 0, 0, 0, 0, 0, 64, 0, 0}));
}

TEST_F(Random, shows_its_name_at_the_displays_next_tick) {
    Tone_Random();
    EXPECT_EQ(Shown(), "OLD NAME");
    EXPECT_EQ(Tone_Name_Text, "RANDOM");
    Timer_Display.tick();
    EXPECT_EQ(Shown(), "RANDOM");
}

TEST_F(Random, moves_the_panel) {
    Random_Number = [] { return 0.5; };
    Tone_Random();
    const int middle = At("VCF_Res").top;
    Random_Number = [] { return 0.0; };
    Tone_Random();
    EXPECT_NE(At("VCF_Res").top, middle);
}

TEST_F(Random, shows_the_patch_window_with_the_new_name_only_when_it_is_open) {
    Panel_Apply_Tone = [] { Steps.push_back("tone " + Tone_Name_Text); };
    Panel_Apply_Patch = [] { Steps.push_back("patch " + Tone_Name_Text); };
    Tone_Random();
    EXPECT_EQ(Steps, Lines{"tone OLD NAME"});
    Steps.clear();
    Patch_Window_Open = Flag_8::True;
    Tone_Random();
    EXPECT_EQ(Steps, (Lines{"tone RANDOM", "patch RANDOM"}));
}

TEST_F(Random, is_sent_once_with_its_name_also_without_automatic_sending) {
    for (const int autosend : {0, 1}) {
        MIDI_Autosend = static_cast<std::uint8_t>(autosend);
        Tone_Random();
        const Lines sent = Sent();
        ASSERT_EQ(sent.size(), 1U);
        EXPECT_EQ(sent[0].substr(21, 29), "52 41 4E 44 4F 4D 20 20 20 20");
    }
    MIDI_Enabled = 0;
    Tone_Random();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Random, leaves_the_tone_unsaved_and_offers_undo) {
    Tone_Random();
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_TRUE(Menu(Menu_Edit_Undo).enabled);
    EXPECT_EQ(Tone_Undo[0], 0) << "a saved tone is not stored";
}

TEST_F(Random, stores_an_unsaved_tone_first) {
    Tone_Saved = Flag_16::False;
    Tone_Random();
    EXPECT_EQ(Tone_Undo[0], 'O');
    EXPECT_EQ(Patch_Undo[0], 99);
}

TEST_F(Random, lets_waiting_events_run_at_its_end) {
    static bool ran = false;
    At_Next_Turn([] {
        EXPECT_EQ(Tone_Saved, Flag_16::False);
        ran = true;
    });
    Tone_Random();
    EXPECT_TRUE(ran);
}

TEST_F(Random, under_the_mks_70_is_the_same) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    Random_Number = [] { return 0.5; };
    Tone_Random();
    EXPECT_EQ(Tone_Data[58], 63);
    EXPECT_EQ(Sent().at(0).substr(0, 20), "F0 41 35 00 24 20 01");
}

TEST_F(Random, under_the_alpha_juno_draws_in_its_own_room_and_names_both) {
    Synthesizer = "Alpha Juno";
    Random_Number = [] { return 0.7; };
    Juno_Tone_Random = [](const Random_Draw& draw) {
        EXPECT_EQ(draw(4), 2);
        EXPECT_EQ(draw(6), 4);
        EXPECT_EQ(draw(1.5), 1);
        EXPECT_EQ(draw(12), 8);
        EXPECT_EQ(draw(127), 88);
        Steps.emplace_back("juno");
    };
    Tone_Data[58] = 5;
    Tone_Random();
    EXPECT_EQ(Steps, Lines{"juno"});
    EXPECT_EQ(Tone_Data[58], 5);
    EXPECT_EQ(Patch_Data[0], 99);
    EXPECT_EQ(Tone_Data[0], 'R');
    EXPECT_EQ(Tone_Data[10], 32);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
}
