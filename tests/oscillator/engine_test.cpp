#include "oscillator/engine.h"

#include <ctime>

#include "desk/dialog_lock.h"
#include "desk/timers.h"
#include "midi/out.h"
#include "oscillator/open_oscillator.h"
#include "oscillator/targets.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/undo.h"

using namespace std::chrono_literals;

namespace {

const std::string Head = "F0 41 36 00 21 20 01 ";
const std::string Patch_Head = "F0 41 36 00 21 30 01 ";

struct Expected {
    const char* entry;
    int code;
    std::string sent;  // for the value 100
};

// clang-format off
const std::vector<Expected> Targets = {
    {"DCO1 LFO Mod Depth",  14, Head + "0E 64 F7"},
    {"DCO1 ENV Mod Depth",  15, Head + "0F 64 F7"},
    {"DCO2 Fine Tune",      20, Head + "14 64 F7"},
    {"DCO2 LFO Mod Depth",  21, Head + "15 64 F7"},
    {"DCO2 ENV Mod Depth",  22, Head + "16 64 F7"},
    {"ENV1 Attack Time",    47, Head + "2F 64 F7"},
    {"ENV1 Decay Time",     48, Head + "30 64 F7"},
    {"ENV1 Sustain Level",  49, Head + "31 64 F7"},
    {"ENV1 Release Time",   50, Head + "32 64 F7"},
    {"ENV2 Attack Time",    52, Head + "34 64 F7"},
    {"ENV2 Decay Time",     53, Head + "35 64 F7"},
    {"ENV2 Sustain Level",  54, Head + "36 64 F7"},
    {"ENV2 Release Time",   55, Head + "37 64 F7"},
    {"LFO Rate",            46, Head + "2E 64 F7"},
    {"Mixer DCO1",          28, Head + "1C 64 F7"},
    {"Mixer DCO2",          29, Head + "1D 64 F7"},
    {"Mixer ENV Mod Depth", 30, Head + "1E 64 F7"},
    {"VCF Cutoff",          34, Head + "22 64 F7"},
    {"VCF Resonance",       35, Head + "23 64 F7"},
    {"VCF LFO Mod Depth",   36, Head + "24 64 F7"},
    {"VCF ENV Mod Depth",   37, Head + "25 64 F7"},
    {"VCF Key Follow",      38, Head + "26 64 F7"},
    {"VCA Level",           41, Head + "29 64 F7"},
    {"Mixer DCO1 <-> DCO2", 99, Head + "1D 1B F7"},
    {"Portamento Time",     98, Patch_Head + "01 64 F7"},
    {"Bend LFO Depth",      97, Patch_Head + "05 64 F7"},
    {"MIDI notes",          96, "90 64 7F"},
};
// clang-format on

constexpr int VCF_Cutoff = 17;
constexpr int Balance = 23;
constexpr int Notes = 26;

}  // namespace

class The_Oscillator : public Open_Oscillator {
  protected:
    // A flat curve that sends this value.
    static void Send_Always(int value) { Osc_Out.fill(static_cast<std::int16_t>(127 - value)); }
};

TEST_F(The_Oscillator, moves_each_of_27_targets) {
    ASSERT_EQ(Osc_Combo1.entries.size(), 27U);
    ASSERT_EQ(Osc_Targets.size(), 27U);
    Send_Always(100);
    for (std::size_t index = 0; index < Targets.size(); ++index) {
        EXPECT_EQ(Osc_Combo1.entries[index], Targets[index].entry);
        Osc_Combo1_Click(static_cast<int>(index));
        EXPECT_EQ(Osc_Combo1.selected, static_cast<int>(index));
        EXPECT_EQ(Osc_Param, Targets[index].code);
        Osc_Tick();
        EXPECT_EQ(Sent(), Lines{Targets[index].sent}) << Targets[index].entry;
    }
}

TEST_F(The_Oscillator, keeps_its_target_at_a_place_outside_the_list) {
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Combo1_Click(27);
    Osc_Combo1_Click(-1);
    EXPECT_EQ(Osc_Param, 34);
    EXPECT_EQ(Osc_Combo1.selected, VCF_Cutoff);
}

TEST_F(The_Oscillator, sends_every_value_as_one_byte) {
    Osc_Combo1_Click(VCF_Cutoff);
    for (const auto& [value, byte] : {std::pair{0, "00"}, {5, "05"}, {15, "0F"}, {16, "10"}, {127, "7F"}}) {
        Osc_Send(static_cast<std::int16_t>(value));
        EXPECT_EQ(Sent(), Lines{Head + "22 " + byte + " F7"});
    }
}

TEST_F(The_Oscillator, balances_the_mixer_by_dco_2_alone) {
    Osc_Combo1_Click(Balance);
    Osc_Send(0);
    Osc_Send(100);
    Osc_Send(127);
    EXPECT_EQ(Sent(), (Lines{Head + "1D 7F F7", Head + "1D 1B F7", Head + "1D 00 F7"}));
}

TEST_F(The_Oscillator, speaks_with_the_header_of_the_profile_and_the_channel) {
    MIDI_Channel = 16;
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    Osc_Send(64);
    Osc_Combo1_Click(24);
    Osc_Send(64);
    EXPECT_EQ(Sent(), (Lines{"F0 41 36 0F 24 20 01 0E 40 F7", "F0 41 36 0F 24 30 01 01 40 F7"}));
}

TEST_F(The_Oscillator, speaks_to_an_alpha_juno_which_has_no_header_for_a_patch) {
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    Sent();
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Send(100);
    Osc_Combo1_Click(24);
    Osc_Send(100);
    EXPECT_EQ(Sent(), (Lines{"F0 41 36 00 23 20 01 22 64 F7", "01 64 F7"}));
}

TEST_F(The_Oscillator, starts_its_notes_on_the_channel_that_is_set) {
    MIDI_Channel = 16;
    Osc_Combo1_Click(Notes);
    Send_Always(60);
    Osc_Tick();
    EXPECT_EQ(Sent(), Lines{"9F 3C 7F"});
}

TEST_F(The_Oscillator, sends_the_text_before_once_more_for_a_code_that_is_no_target) {
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Send(12);
    for (const int code : {90, 95, 100, 1000}) {
        Osc_Param = static_cast<std::int16_t>(code);
        Osc_Send(99);
    }
    EXPECT_EQ(Sent(), Lines(5, Head + "22 0C F7"));
    Tone_Data[35] = 7;
    Editor_Send_Param(35);
    Osc_Send(99);
    EXPECT_EQ(Sent(), Lines(2, Head + "23 07 F7")) << "also the panel's";
}

TEST_F(The_Oscillator, starts_notes_and_ends_none) {
    Osc_Combo1_Click(Notes);
    Osc_Wave_Click(2);
    Osc_Start_Click();
    Advance(500ms * 9);
    EXPECT_EQ(Sent(), (Lines{"90 20 7F", "90 20 7F", "90 20 7F", "90 20 7F", "90 20 7F", "90 20 7F",
                             "90 20 7F", "90 20 7F", "90 20 7F", "90 60 7F"}));
    Osc_Stop_Click();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Oscillator, sends_note_0_with_velocity_127_for_the_lowest_row) {
    Osc_Combo1_Click(Notes);
    Send_Always(0);
    Osc_Tick();
    Send_Always(127);
    Osc_Tick();
    EXPECT_EQ(Sent(), (Lines{"90 00 7F", "90 7F 7F"}));
}

TEST_F(The_Oscillator, plays_silently_without_midi_or_automatic_sending) {
    for (const bool midi : {true, false}) {
        MIDI_Enabled = midi ? 1 : 0;
        MIDI_Autosend = midi ? 0 : 1;
        Osc_Combo1_Click(VCF_Cutoff);
        Osc_Start_Click();
        Advance(1000ms);
        EXPECT_EQ(Sent(), Lines{});
        EXPECT_EQ(Osc_TimeLine, 14);
        EXPECT_EQ(Osc_Label2, "46");
        Osc_Combo1_Click(Notes);
        Advance(500ms);
        EXPECT_EQ(Sent(), midi ? Lines{"90 35 7F"} : Lines{}) << "notes look at MIDI alone";
    }
}

TEST_F(The_Oscillator, changes_neither_tone_nor_patch_nor_panel) {
    const auto tone = Tone_Data;
    const auto patch = Patch_Data;
    const int thumb = At("VCF_CutoffF").top;
    Osc_Start_Click();
    for (int index = 0; index < 27; ++index) {
        Osc_Combo1_Click(index);
        Advance(500ms * 18);
    }
    EXPECT_EQ(Tone_Data, tone);
    EXPECT_EQ(Patch_Data, patch);
    EXPECT_EQ(At("VCF_CutoffF").top, thumb);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Shown(), Tone_Name_Text);
}

// -- steps -----------------------------------------------------------------------------------------------

TEST_F(The_Oscillator, steps_through_18_points_and_begins_again) {
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Wave_Click(1);
    Osc_Start_Click();
    EXPECT_EQ(Sent(), Lines{Head + "22 20 F7"}) << "the first step comes at once";
    EXPECT_EQ(Osc_Step, 1);
    EXPECT_EQ(Osc_TimeLine, 0);
    EXPECT_EQ(Osc_Label2, "32");
    Lines expected;
    for (const char* value : {"24", "28", "2C", "30", "34", "38", "3C", "40", "44", "48", "4C", "50", "54",
                              "58", "5C", "60", "64", "20", "24"}) {
        expected.push_back(Head + "22 " + value + " F7");
    }
    Advance(499ms);
    EXPECT_EQ(Sent(), Lines{});
    Advance(1ms + 500ms * 16);
    EXPECT_EQ(Osc_TimeLine, 17 * 7);
    EXPECT_EQ(Osc_Label2, "100");
    EXPECT_EQ(Osc_Step, 0);
    Advance(500ms * 2);
    EXPECT_EQ(Osc_TimeLine, 7);
    EXPECT_EQ(Sent(), expected);
}

TEST_F(The_Oscillator, keeps_its_step_in_range_by_the_value_as_it_stands) {
    Osc_Step = 16;
    Osc_Tick();
    EXPECT_EQ(Osc_Step, 17);
    Osc_Tick();
    EXPECT_EQ(Osc_Step, 0);
}

TEST_F(The_Oscillator, stays_in_range_when_a_step_falls_into_the_events_of_another) {
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Wave_Click(1);
    Osc_Step = 16;
    At_Next_Turn(Osc_Tick);
    Osc_Tick();
    EXPECT_EQ(Osc_Step, 0);
    EXPECT_EQ(Sent(), (Lines{Head + "22 60 F7", Head + "22 64 F7"}));
}

TEST_F(The_Oscillator, takes_less_than_50_microseconds_for_a_step) {
    constexpr int Steps = 2000;
    Osc_Combo1_Click(VCF_Cutoff);
    // Of the processor and not of the clock on the wall: other programs may run beside the test.
    const std::clock_t begin = std::clock();
    for (int step = 0; step < Steps; ++step) Osc_Tick();
    const double seconds = 1.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds / Steps, 50e-6);
    EXPECT_EQ(Sent().size(), std::size_t{Steps});
}

TEST_F(The_Oscillator, lets_pending_events_run_behind_each_step) {
    static std::uint8_t step_seen = 99;
    At_Next_Turn([] { step_seen = Osc_Step; });
    Osc_Tick();
    EXPECT_EQ(Loop.turns, 1);
    EXPECT_EQ(step_seen, 1);
}

TEST_F(The_Oscillator, plays_what_is_drawn_at_the_next_steps) {
    Osc_Combo1_Click(VCF_Cutoff);
    Osc_Start_Click();
    Sent();
    Dot(8, 27);
    Advance(500ms);
    EXPECT_EQ(Sent(), Lines{Head + "22 64 F7"});
}

TEST_F(The_Oscillator, restarts_at_the_first_point) {
    Osc_Start_Click();
    Advance(500ms * 5);
    EXPECT_EQ(Osc_TimeLine, 35);
    Osc_Start_Click();
    EXPECT_EQ(Osc_TimeLine, 0);
    EXPECT_EQ(Osc_Step, 1);
    EXPECT_TRUE(Timer_Osc.enabled);
}

TEST_F(The_Oscillator, stops_and_puts_the_cursor_back) {
    Osc_Start_Click();
    Advance(500ms * 5);
    Sent();
    Osc_Stop_Click();
    EXPECT_EQ(Osc_TimeLine, 0);
    EXPECT_EQ(Osc_Step, 0);
    EXPECT_FALSE(Timer_Osc.enabled);
    Advance(5000ms);
    EXPECT_EQ(Sent(), Lines{}) << "the last value stays";
}

TEST_F(The_Oscillator, lets_a_stop_among_the_events_of_the_first_step_have_the_last_word) {
    At_Next_Turn(Osc_Stop_Click);
    Osc_Start_Click();
    EXPECT_FALSE(Timer_Osc.enabled);
    At_Next_Turn([] { Window_Unload(Oscillator); });
    Osc_Start_Click();
    EXPECT_FALSE(Timer_Osc.enabled);
    At_Next_Turn([] {
        Osc_Stop_Click();
        Osc_Start_Click();
    });
    Osc_Start_Click();
    EXPECT_TRUE(Timer_Osc.enabled);
}

// -- interval --------------------------------------------------------------------------------------------

TEST_F(The_Oscillator, goes_on_at_a_new_speed) {
    Osc_Start_Click();
    Advance(500ms);
    Sent();
    Osc_Time_Change(20);
    EXPECT_TRUE(Timer_Osc.enabled);
    Advance(100ms);
    EXPECT_EQ(Sent().size(), 5U);
    Osc_Time_Change(999);
    Advance(998ms);
    EXPECT_EQ(Sent().size(), 0U);
    Advance(1ms);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(The_Oscillator, stands_still_at_interval_0_without_being_switched_off) {
    Osc_Start_Click();
    Sent();
    Osc_Time_Change(0);
    EXPECT_TRUE(Timer_Osc.enabled);
    Advance(10000ms);
    EXPECT_EQ(Sent(), Lines{});
    Osc_Time_Change(10);
    Advance(10ms);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(The_Oscillator, is_not_started_by_an_interval) {
    Osc_Time_Change(0);
    Osc_Time_Change(10);
    EXPECT_FALSE(Timer_Osc.enabled);
    Advance(100ms);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Oscillator, plays_one_step_at_a_start_with_interval_0) {
    Osc_Time_Change(0);
    Osc_Start_Click();
    Advance(1000ms);
    EXPECT_EQ(Sent().size(), 1U);
    EXPECT_TRUE(Timer_Osc.enabled);
    EXPECT_EQ(Osc_Step, 1);
}

// -- beside the rest -------------------------------------------------------------------------------------

TEST_F(The_Oscillator, plays_on_while_a_dialog_is_open) {
    Osc_Start_Click();
    Sent();
    Window_Show(TName);
    EXPECT_EQ(App_Mode, "TName");
    EXPECT_TRUE(Oscillator.enabled);
    EXPECT_TRUE(Oscillator.visible);
    Advance(1500ms);
    EXPECT_EQ(Sent().size(), 3U);
    Window_Unload(TName);
    Advance(500ms);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(The_Oscillator, plays_beside_the_sequencers_clock) {
    static int ticks = 0;
    Seq_Tmr.tick = [] { ++ticks; };
    Timer_Start(Seq_Tmr);
    Osc_Time_Change(1);
    Osc_Start_Click();
    Advance(1000ms);
    EXPECT_EQ(Sent().size(), 1001U);
    EXPECT_EQ(ticks, 4);
}

TEST_F(The_Oscillator, tells_a_refusing_port_once_and_goes_on_in_silence) {
    Osc_Start_Click();
    Sent();
    Ports.ready_result = Port_Gone;
    Expect_Box("OutPreparerHeader\r\n" + Port_Error_Text(Port_Gone));
    Advance(5000ms);
    EXPECT_EQ(Boxes.size(), 1U) << "a box a step would never let the stop button be reached";
    EXPECT_TRUE(Timer_Osc.enabled);
    EXPECT_EQ(MIDI_Enabled, 1);
    Ports.ready_result = Port_Ok;
    Sent();
    Advance(500ms);
    EXPECT_EQ(Sent().size(), 1U) << "the device has come back";
    Ports.ready_result = Port_Gone;
    Expect_Box("OutPreparerHeader\r\n" + Port_Error_Text(Port_Gone));
    Advance(1000ms);
    Expect_Box("OutPreparerHeader\r\n" + Port_Error_Text(Port_Gone));
    Osc_Start_Click();
}

TEST_F(The_Oscillator, is_silent_while_the_port_closes_and_opens_it_again_behind_that) {
    Osc_Combo1_Click(Notes);
    Osc_Start_Click();
    Sent();
    Ports.close_results = {Port_Still_Playing, Port_Still_Playing};
    At_Next_Turn([] { Advance(1000ms); });
    MIDI_Out_Close();
    EXPECT_EQ(Osc_Step, 3) << "it steps on";
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"}) << "no note that nobody ends";
    EXPECT_FALSE(MIDI_Out_Closing);
    Osc_Combo1_Click(VCF_Cutoff);
    Advance(500ms);
    EXPECT_EQ(Sent(), Lines{Head + "22 35 F7"});
    EXPECT_NE(MIDI_Out_Handle, Port_Closed);
}

TEST_F(The_Oscillator, is_silent_behind_a_port_that_could_not_be_opened) {
    Ports.open_result = Port_Gone;
    Expect_Box("MIDI_Out_Open*: (" + std::to_string(Port_Gone) + ") " + Port_Error_Text(Port_Gone));
    Osc_Start_Click();
    Advance(5000ms);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_TRUE(Timer_Osc.enabled);
    EXPECT_EQ(Osc_Step, 11);
}
