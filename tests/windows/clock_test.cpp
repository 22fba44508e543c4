// The timers on the real clock. What is looked at is the middle of several ticks, which a busy machine does
// not move far.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/event_loop.h"
#include "platform/timer.h"

using namespace std::chrono_literals;

namespace {

using Now = std::chrono::steady_clock;

class Timers_On_The_Real_Clock : public ::testing::Test {
  protected:
    template <class Condition>
    static void Run_Until(Condition condition) {
        const auto deadline = Now::now() + 20s;
        while (!condition() && Now::now() < deadline)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    int count_ = 1;
    char name_[8] = "clock";
    char* names_[2] = {name_, nullptr};
    QCoreApplication application_{count_, names_};
};

// The hook of a timer takes no state along.
struct State {
    Timer timer = {};
    std::vector<Now::time_point> ticks;
    int depth = 0;
    int deepest = 0;
};
State Played;

}  // namespace

TEST_F(Timers_On_The_Real_Clock, a_tick_that_is_late_by_intervals_leaves_the_others_at_their_places) {
    Played.timer.interval = 60;
    Played.timer.tick = [] {
        Played.ticks.push_back(Now::now());
        // Two and a half intervals.
        if (Played.ticks.size() == 1) std::this_thread::sleep_for(150ms);
    };
    const auto begin = Now::now();
    Timer_Start(Played.timer);
    Run_Until([] { return Played.ticks.size() >= 9; });
    ASSERT_GE(Played.ticks.size(), 9U);
    Timer_Stop(Played.timer);

    std::vector<long> behind;  // behind the last interval's end, for those that were not held up
    for (std::size_t tick = 2; tick < 9; ++tick) {
        const auto since =
            std::chrono::duration_cast<std::chrono::milliseconds>(Played.ticks[tick] - begin);
        behind.push_back(since.count() % 60);
    }
    std::sort(behind.begin(), behind.end());
    EXPECT_LT(behind[behind.size() / 2], 15);
    // The intervals that ran out meanwhile are one late tick.
    EXPECT_GT(Played.ticks[8] - begin, 60ms * 10);
}

TEST_F(Timers_On_The_Real_Clock, a_tick_that_lets_events_run_is_not_entered_again_and_the_next_one_comes) {
    Played.timer.interval = 2;
    Played.timer.tick = [] {
        Played.deepest = std::max(Played.deepest, ++Played.depth);
        for (int turn = 0; turn < 3; ++turn) {
            std::this_thread::sleep_for(3ms);
            QCoreApplication::processEvents();
        }
        --Played.depth;
        Played.ticks.push_back(Now::now());
    };
    Timer_Start(Played.timer);
    Run_Until([] { return Played.ticks.size() >= 5; });
    EXPECT_GE(Played.ticks.size(), 5U);
    EXPECT_EQ(Played.deepest, 1);
    Timer_Stop(Played.timer);
}

TEST_F(Timers_On_The_Real_Clock,
       a_stopped_timer_forgets_what_has_run_out_and_an_interval_of_0_never_ticks) {
    Played.timer.interval = 1;
    Played.timer.tick = [] { Played.ticks.push_back(Now::now()); };
    Timer_Start(Played.timer);
    std::this_thread::sleep_for(20ms);
    Timer_Stop(Played.timer);
    EXPECT_FALSE(Played.timer.enabled);
    const auto wait = [] {
        const auto end = Now::now() + 30ms;
        Run_Until([end] { return Now::now() > end; });
    };
    wait();
    EXPECT_TRUE(Played.ticks.empty());

    Timer_Start(Played.timer);
    Timer_Set_Interval(Played.timer, 0);
    EXPECT_TRUE(Played.timer.enabled);
    wait();
    EXPECT_TRUE(Played.ticks.empty());

    Timer_Set_Interval(Played.timer, 1);
    Run_Until([] { return Played.ticks.size() >= 3; });
    EXPECT_GE(Played.ticks.size(), 3U);
    Timer_Stop(Played.timer);
}
