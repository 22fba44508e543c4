#include "sequencer/engine.h"

#include <deque>

#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "midi/out.h"
#include "platform/random.h"

namespace {

using Lines = std::vector<std::string>;
using Order = std::vector<int>;
using Lights = std::array<bool, 8>;
using namespace std::chrono_literals;

std::deque<double> Draws;

double Next_Draw() {
    if (Draws.empty()) {
        ADD_FAILURE() << "a number too many is drawn";
        return 0;
    }
    const double number = Draws.front();
    Draws.pop_front();
    return number;
}

// A number of [0, 1) from which the engine takes this direction.
double Draws_Direction(int direction) {
    return direction == 0 ? 0.4999 : 0.5;
}

Lights Only(int step) {
    Lights lights = {};
    lights[static_cast<std::size_t>(step)] = true;
    return lights;
}

}  // namespace

// A sequence that tells its steps: the lowest row of step s has the velocity s + 1.
class The_Engine : public Started_Stage {
  protected:
    The_Engine() {
        Random_Number = Next_Draw;
        Seq_Base_Note = 48;
        for (std::size_t step = 0; step < 8; ++step)
            Seq_Notes[step * 13 + 12] = static_cast<std::int16_t>(step + 1);
        Seq_Loaded = Flag_8::True;
        Sent();
    }

    static void Tick() { Seq_Tmr.tick(); }

    // The steps heard in so many ticks.
    static Order Heard(int ticks) {
        Order steps;
        for (int tick = 0; tick < ticks; ++tick) {
            Tick();
            const Lines sent = Sent();
            EXPECT_EQ(sent.size(), 13U);
            steps.push_back(sent.empty() ? -1 : std::stoi(sent.back().substr(6), nullptr, 16) - 1);
        }
        return steps;
    }

    // As the sequencer's window starts it.
    static void Start(Seq_Mode mode) {
        Seq_Directions_Click(mode);
        MIDI_Out_Open();
        Seq_Status = Note_On_Status(1);
        Seq_Pos = Seq_Dir == 1 ? 7 : 0;
    }
};

// -- the order of the steps ------------------------------------------------------------------------------

TEST_F(The_Engine, plays_forward) {
    Start(Seq_Mode::Forward);
    EXPECT_EQ(Heard(24), (Order{0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(Seq_Pos, 8);
    EXPECT_EQ(Seq_Prev_Pos, 7);
    EXPECT_EQ(Seq_Dir, 0);
}

TEST_F(The_Engine, plays_backward) {
    Start(Seq_Mode::Backward);
    EXPECT_EQ(Heard(24), (Order{7, 6, 5, 4, 3, 2, 1, 0, 7, 6, 5, 4, 3, 2, 1, 0, 7, 6, 5, 4, 3, 2, 1, 0}));
    EXPECT_EQ(Seq_Pos, -1);
    EXPECT_EQ(Seq_Prev_Pos, 0);
    EXPECT_EQ(Seq_Dir, 1);
}

TEST_F(The_Engine, plays_back_and_forth_with_each_end_once) {
    Start(Seq_Mode::Back_And_Forth);
    EXPECT_EQ(Heard(42), (Order{0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3, 4, 5, 6,
                                7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(The_Engine, turns_round_by_the_cursor_that_has_moved) {
    Start(Seq_Mode::Back_And_Forth);
    Tick();
    EXPECT_EQ(Seq_Dir, 0) << "no turn at the start on step 0";
    EXPECT_EQ(Seq_Pos, 1);
    for (int tick = 0; tick < 5; ++tick) Tick();
    EXPECT_EQ(Seq_Dir, 0);
    Tick();
    EXPECT_EQ(Seq_Pos, 7);
    EXPECT_EQ(Seq_Dir, 1) << "before step 7 is played";
    Tick();
    EXPECT_EQ(Seq_Pos, 6);
}

TEST_F(The_Engine, jumps_to_a_random_step_from_0_to_6) {
    const Order directions = {0, 1, 0, 0, 1, 1, 0, 1, 0, 1, 0, 1, 1, 0, 0, 1, 0, 1, 0, 0, 1, 1, 0, 1};
    const Order jumps = {6, 0, 3, 5, 1, 4, 2, 6, 6, 0, 0, 5, 2, 3, 1, 4, 6, 2, 0, 1, 3, 5, 4, 6};
    for (std::size_t tick = 0; tick < 24; ++tick) {
        Draws.push_back(Draws_Direction(directions[tick]));
        Draws.push_back((jumps[tick] + 0.999) / 7);
    }
    Start(Seq_Mode::Random_Position);
    EXPECT_EQ(Heard(24), (Order{0, 6, 0, 3, 5, 1, 4, 2, 6, 6, 0, 0, 5, 2, 3, 1, 4, 6, 2, 0, 1, 3, 5, 4}));
    EXPECT_TRUE(Draws.empty()) << "two numbers a tick";
    EXPECT_EQ(Seq_Pos, 6);
    EXPECT_EQ(Seq_Dir, 1);
}

TEST_F(The_Engine, never_jumps_to_step_7) {
    Start(Seq_Mode::Random_Position);
    for (int number = 0; number < 1000; ++number) {
        Draws = {0.0, number / 1000.0};
        Tick();
        EXPECT_GE(Seq_Pos, 0);
        EXPECT_LE(Seq_Pos, 6);
    }
    Draws = {0.0, 0x0.fffffp0};
    Tick();
    EXPECT_EQ(Seq_Pos, 6);
    Sent();
    // From there step 7 is reached by a move, as another mode makes it.
    Seq_Directions_Click(Seq_Mode::Forward);
    EXPECT_EQ(Heard(2), (Order{6, 7}));
}

TEST_F(The_Engine, goes_at_random_during_a_cycle) {
    for (const int direction : {0, 0, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 0, 1, 1, 0, 0, 0})
        Draws.push_back(Draws_Direction(direction));
    Start(Seq_Mode::Random_During);
    EXPECT_EQ(Heard(24), (Order{0, 1, 2, 1, 0, 0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 1, 0, 0, 1, 0, 0, 1, 2}));
    EXPECT_TRUE(Draws.empty()) << "one number a tick";
}

TEST_F(The_Engine, goes_at_random_behind_a_cycle) {
    for (const int direction : {0, 1, 0, 0, 1, 1, 0}) Draws.push_back(Draws_Direction(direction));
    Start(Seq_Mode::Random_After);
    EXPECT_EQ(Heard(48), (Order{0, 1, 2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3, 4, 5, 6, 7, 0, 1,
                                2, 3, 4, 5, 6, 7, 6, 5, 4, 3, 2, 1, 0, 7, 6, 5, 4, 3, 2, 1, 0, 1, 2, 3}));
    EXPECT_TRUE(Draws.empty()) << "one number where a cycle ends";
}

TEST_F(The_Engine, asks_for_the_end_of_a_cycle_in_front_of_the_step) {
    Draws = {0.0};
    Start(Seq_Mode::Random_After);
    Tick();
    EXPECT_TRUE(Draws.empty()) << "in front of the very first step";
    for (int tick = 1; tick < 7; ++tick) Tick();
    EXPECT_EQ(Seq_Pos, 7);
    Draws = {0.0};
    Tick();
    EXPECT_TRUE(Draws.empty()) << "in front of step 7";
    EXPECT_EQ(Seq_Pos, 8);
    Tick();
    EXPECT_EQ(Seq_Pos, 1) << "but not at 8, on the way to step 0";
}

TEST_F(The_Engine, goes_on_from_where_the_cursor_stands_when_the_direction_changes) {
    Start(Seq_Mode::Forward);
    EXPECT_EQ(Heard(3), (Order{0, 1, 2}));
    Seq_Directions_Click(Seq_Mode::Backward);
    EXPECT_EQ(Seq_Pos, 3);
    EXPECT_EQ(Heard(5), (Order{3, 2, 1, 0, 7}));
    Seq_Directions_Click(Seq_Mode::Forward);
    EXPECT_EQ(Heard(3), (Order{6, 7, 0}));
}

TEST_F(The_Engine, repeats_a_step_when_the_direction_changes_at_a_limit) {
    Start(Seq_Mode::Forward);
    Heard(8);
    Seq_Directions_Click(Seq_Mode::Backward);
    EXPECT_EQ(Heard(2), (Order{7, 6})) << "8 comes in at 7 again";
    Heard(6);
    EXPECT_EQ(Seq_Pos, -1);
    Seq_Directions_Click(Seq_Mode::Forward);
    EXPECT_EQ(Heard(2), (Order{0, 1})) << "and -1 at 0";
}

TEST_F(The_Engine, started_from_the_panel_begins_at_step_0_in_any_direction) {
    Seq_Directions_Click(Seq_Mode::Backward);
    Seq_Pos = 5;
    ED_Seq_Start_Click();
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Dir, 1);
    EXPECT_EQ(Heard(4), (Order{0, 7, 6, 5}));
}

TEST_F(The_Engine, plays_by_itself_all_numbers_of_its_generator) {
    Random_Number = {};
    Start(Seq_Mode::Random_Position);
    std::array<int, 8> heard = {};
    for (const int step : Heard(2000)) ++heard[static_cast<std::size_t>(step)];
    for (int step = 0; step < 7; ++step) EXPECT_GT(heard[static_cast<std::size_t>(step)], 200) << step;
    EXPECT_EQ(heard[7], 0);
}

// -- direction switches ----------------------------------------------------------------------------------

TEST_F(The_Engine, has_exactly_one_direction_selected_and_begins_with_forward) {
    const std::array all = {Seq_Mode::Forward,         Seq_Mode::Backward,      Seq_Mode::Back_And_Forth,
                            Seq_Mode::Random_Position, Seq_Mode::Random_During, Seq_Mode::Random_After};
    EXPECT_TRUE(Seq_Mode_Is(Seq_Mode::Forward));
    const std::array numbers = {0, 1, 2, 7, 8, 9};
    for (std::size_t index = 0; index < all.size(); ++index) {
        EXPECT_EQ(static_cast<int>(Seq_Directions[index].mode), numbers[index]);
        Seq_Dir = 1;
        Seq_Directions_Click(all[index]);
        EXPECT_EQ(Seq_Dir, index == 1 ? 1 : 0);
        for (std::size_t other = 0; other < all.size(); ++other) {
            EXPECT_EQ(Seq_Directions[other].selected, other == index);
            EXPECT_EQ(Seq_Mode_Is(all[other]), other == index);
        }
    }
}

// -- what a step sends -----------------------------------------------------------------------------------

TEST_F(The_Engine, sends_thirteen_messages_a_step_from_the_highest_note_down) {
    Seq_Notes.fill(0);
    Seq_Notes[13] = 127;
    Seq_Notes[15] = 63;
    Seq_Notes[25] = 100;
    Start(Seq_Mode::Forward);
    Seq_Pos = 1;
    Tick();
    EXPECT_EQ(Sent(),
              (Lines{"90 3C 7F", "90 3B 00", "90 3A 3F", "90 39 00", "90 38 00", "90 37 00", "90 36 00",
                     "90 35 00", "90 34 00", "90 33 00", "90 32 00", "90 31 00", "90 30 64"}));
}

TEST_F(The_Engine, sends_thirteen_messages_when_all_cells_are_empty) {
    Seq_Notes.fill(0);
    Start(Seq_Mode::Forward);
    Tick();
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 13U);
    for (const std::string& message : sent) EXPECT_EQ(message.substr(6), "00");
}

TEST_F(The_Engine, strikes_a_note_again_in_the_next_step_and_ends_it_by_an_empty_cell) {
    Seq_Notes.fill(0);
    Seq_Notes[0] = Seq_Notes[13] = 127;
    Start(Seq_Mode::Forward);
    Lines top;
    for (int tick = 0; tick < 3; ++tick) {
        Tick();
        top.push_back(Sent().front());
    }
    EXPECT_EQ(top, (Lines{"90 3C 7F", "90 3C 7F", "90 3C 00"}));
}

TEST_F(The_Engine, reads_the_base_note_at_every_step) {
    Start(Seq_Mode::Forward);
    Tick();
    Sent();
    Seq_Base_Note = 60;
    Tick();
    const Lines sent = Sent();
    EXPECT_EQ(sent.front(), "90 48 00");
    EXPECT_EQ(sent.back(), "90 3C 02");
}

TEST_F(The_Engine, plays_on_the_channel_of_its_status_byte) {
    Start(Seq_Mode::Forward);
    Seq_Status = 0x95;
    MIDI_Channel = 3;
    Tick();
    EXPECT_EQ(Sent().front().substr(0, 2), "95") << "as it was when last set";
    ED_Seq_Start_Click();
    Tick();
    EXPECT_EQ(Sent().front().substr(0, 2), "92") << "a start from the panel sets it";
}

TEST_F(The_Engine, runs_its_lights_silently_with_midi_off) {
    MIDI_Enabled = 0;
    Seq_Window_Open = Flag_8::True;
    ED_Seq_Start_Click();
    EXPECT_EQ(Seq_Running, Flag_8::True);
    Advance(500ms);
    EXPECT_EQ(Seq_Clock, Only(1));
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Ports.open_calls, 0);
}

TEST_F(The_Engine, opens_the_port_for_a_run_that_midi_joins_later) {
    MIDI_Enabled = 0;
    ED_Seq_Start_Click();
    Tick();
    MIDI_Enabled = 1;
    Tick();
    EXPECT_EQ(Sent().size(), 13U);
    EXPECT_EQ(Ports.open_calls, 1);
}

TEST_F(The_Engine, tells_once_of_a_port_that_dies_and_runs_on_silently) {
    Seq_Window_Open = Flag_8::True;
    ED_Seq_Start_Click();
    Advance(250ms);
    EXPECT_EQ(Sent().size(), 13U);
    Ports.send_result = Port_Gone;
    Expect_Box("Seq_SendNote*: (68) Text of 68");
    Advance(250ms);
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_EQ(Seq_Running, Flag_8::True);
    EXPECT_EQ(Seq_Clock, Only(1));
    Advance(500ms);
    EXPECT_EQ(Seq_Clock, Only(3));
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Boxes.size(), 1U);
}

TEST_F(The_Engine, is_held_by_a_box_inside_a_step) {
    ED_Seq_Start_Click();
    Ports.send_result = Port_Gone;
    Answer_With("Seq_SendNote*: (68) Text of 68", Answer::Ok, [] {
        Advance(2000ms);
        EXPECT_EQ(Seq_Pos, 0) << "no step while the box is open";
    });
    Advance(250ms);
    EXPECT_EQ(Seq_Pos, 1);
}

// -- the lights ------------------------------------------------------------------------------------------

TEST_F(The_Engine, moves_one_light_along_the_steps) {
    Seq_Window_Open = Flag_8::True;
    Start(Seq_Mode::Forward);
    for (int tick = 0; tick < 20; ++tick) {
        Tick();
        EXPECT_EQ(Seq_Clock, Only(tick % 8)) << tick;
    }
    Seq_Directions_Click(Seq_Mode::Backward);
    Tick();
    EXPECT_EQ(Seq_Clock, Only(4));
    Tick();
    EXPECT_EQ(Seq_Clock, Only(3));
}

TEST_F(The_Engine, lights_up_before_it_sends) {
    Seq_Window_Open = Flag_8::True;
    Start(Seq_Mode::Forward);
    Ports.send_result = Port_Gone;
    Answer_With("Seq_SendNote*: (68) Text of 68", Answer::Ok, [] { EXPECT_EQ(Seq_Clock, Only(0)); });
    Tick();
}

TEST_F(The_Engine, keeps_its_light_when_the_step_repeats) {
    Seq_Window_Open = Flag_8::True;
    Start(Seq_Mode::Forward);
    Seq_Prev_Pos = 0;
    Tick();
    EXPECT_EQ(Seq_Clock, Only(0));
}

TEST_F(The_Engine, leaves_the_lights_of_a_closed_window_and_puts_out_all_at_a_stop) {
    ED_Seq_Start_Click();
    Tick();
    EXPECT_EQ(Seq_Clock, Lights{});
    Seq_Clock.fill(true);
    ED_Seq_Stop_Click();
    EXPECT_EQ(Seq_Clock, Lights{});
}

TEST_F(The_Engine, brings_a_last_position_outside_into_the_row) {
    Seq_Window_Open = Flag_8::True;
    struct Row {
        std::uint8_t direction;
        std::int16_t position;
        std::int16_t played;
    };
    for (const Row& row : {Row{0, -1, 0}, {0, 8, 0}, {1, -1, 7}, {1, 8, 7}}) {
        Seq_Clock.fill(false);
        Seq_Dir = row.direction;
        Seq_Pos = Seq_Prev_Pos = row.position;
        Tick();
        EXPECT_EQ(Seq_Prev_Pos, row.played);
        EXPECT_EQ(Seq_Clock, Only(row.played));
    }
}

TEST_F(The_Engine, keeps_the_last_position_over_a_stop) {
    ED_Seq_Start_Click();
    Advance(1000ms);
    EXPECT_EQ(Seq_Prev_Pos, 3);
    ED_Seq_Stop_Click();
    EXPECT_EQ(Seq_Pos, 0);
    EXPECT_EQ(Seq_Prev_Pos, 3);
}

// -- time ------------------------------------------------------------------------------------------------

TEST_F(The_Engine, interval_counts_cycles_of_eight_steps_a_minute) {
    struct Row {
        std::int16_t tempo;
        int milliseconds;
    };
    for (const Row& row : {Row{1, 7500},
                           {2, 3750},
                           {7, 1071},
                           {24, 312},
                           {30, 250},
                           {40, 188},
                           {60, 125},
                           {100, 75},
                           {119, 63},
                           {120, 62}}) {
        EXPECT_EQ(Seq_Interval(row.tempo), row.milliseconds) << row.tempo;
        Seq_Tempo_Value = row.tempo;
        Seq_Set_Interval();
        EXPECT_EQ(Seq_Tmr.interval, row.milliseconds);
    }
}

TEST_F(The_Engine, plays_its_first_step_one_interval_after_the_start) {
    ED_Seq_Start_Click();
    Advance(249ms);
    EXPECT_EQ(Sent(), Lines{});
    Advance(1ms);
    EXPECT_EQ(Sent().size(), 13U);
}

TEST_F(The_Engine, plays_a_thousand_steps_in_a_thousand_intervals) {
    Seq_Tempo_Value = 120;
    Seq_Set_Interval();
    ED_Seq_Start_Click();
    Advance(62'000ms);
    EXPECT_EQ(Sent().size(), 13'000U);
    EXPECT_EQ(Seq_Prev_Pos, 999 % 8);
    Advance(61ms);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(The_Engine, takes_a_new_tempo_while_it_runs) {
    ED_Seq_Start_Click();
    Advance(250ms);
    Seq_Tempo_Value = 60;
    Seq_Set_Interval();
    Sent();
    Advance(125ms);
    EXPECT_EQ(Sent().size(), 13U);
    EXPECT_TRUE(Seq_Tmr.enabled);
}
