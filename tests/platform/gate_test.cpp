#include "platform/gate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fakes/fake_clock.h"
#include "fakes/fake_message_box.h"
#include "platform/numbers.h"
#include "platform/timer.h"

namespace {

std::vector<std::string> Steps;

}  // namespace

class Event_Gate : public ::testing::Test {
  protected:
    Event_Gate() {
        Windows_Show_Changes = [] { Steps.emplace_back("windows"); };
    }
    void TearDown() override { Check_All_Boxes_Came(); }
};

TEST_F(Event_Gate, brings_the_windows_up_to_the_records_behind_an_event) {
    Guarded_Event([] { Steps.emplace_back("event"); });
    EXPECT_EQ(Steps, (std::vector<std::string>{"event", "windows"}));
}

TEST_F(Event_Gate, shows_a_mistake_in_a_box_and_goes_on) {
    Answer_With("Overflow", Answer::Ok, [] { Steps.emplace_back("box"); });
    Guarded_Event([] {
        Steps.emplace_back("begun");
        To_Int16(40000);
        Steps.emplace_back("not reached");
    });
    EXPECT_EQ(Steps, (std::vector<std::string>{"begun", "box", "windows"}));
    ASSERT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
    EXPECT_EQ(Boxes[0].icon, Icon::Stop);
    EXPECT_EQ(Boxes[0].title, "Tonebench");
}

TEST_F(Event_Gate, lets_the_next_event_in_behind_a_mistake) {
    Expect_Box("Overflow");
    Guarded_Event([] { To_Int16(40000); });
    Guarded_Event([] { Steps.emplace_back("next"); });
    EXPECT_EQ(Steps, (std::vector<std::string>{"windows", "next", "windows"}));
}

TEST_F(Event_Gate, shows_the_text_of_any_exception) {
    Expect_Box("No control VCF_Rez");
    Expect_Box("out of words");
    Guarded_Event([] { throw Fatal_Error("No control VCF_Rez"); });
    Guarded_Event([] { throw std::logic_error("out of words"); });
}

TEST_F(Event_Gate, lets_an_event_in_while_the_box_of_another_one_is_open) {
    Answer_With("outer", Answer::Ok, [] { Guarded_Event([] { Steps.emplace_back("inner"); }); });
    Guarded_Event([] { throw Fatal_Error("outer"); });
    EXPECT_EQ(Steps, (std::vector<std::string>{"inner", "windows", "windows"}));
}

TEST_F(Event_Gate, is_passed_by_the_ticks_of_timers) {
    Timer timer = {.interval = 100, .tick = [] { To_Int16(40000); }};
    Timer_Start(timer);
    Expect_Box("Overflow");
    Expect_Box("Overflow");
    Advance(std::chrono::milliseconds(200));
    EXPECT_EQ(Steps, (std::vector<std::string>{"windows", "windows"}));
    EXPECT_TRUE(timer.enabled);
    Timer_Stop(timer);
}

TEST(Hook_Seam, that_is_empty_does_nothing_and_gives_the_empty_value) {
    const Hook<void()> nothing;
    const Hook<bool()> question;
    const Hook<int(int)> number;
    nothing();
    EXPECT_FALSE(question());
    EXPECT_EQ(number(7), 0);
    EXPECT_FALSE(number.Filled());
}

TEST(Hook_Seam, that_is_filled_runs_its_procedure) {
    Hook<int(int)> number;
    number = [](int value) { return value + 1; };
    EXPECT_TRUE(number.Filled());
    EXPECT_EQ(number(7), 8);
    number = {};
    EXPECT_FALSE(number.Filled());
}
