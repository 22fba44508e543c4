#include <array>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// The window Oscillator stands in the middle of the panel.
constexpr int Window_Left = (528 - 394) / 2;
constexpr int Window_Top = (456 - 192) / 2;  // below the menu bar
constexpr int Picture_Left = Window_Left + 8;

constexpr int Points = 18;

// As the witness prints a value of VCF Cutoff.
std::string Cutoff(int value) {
    constexpr const char* Digits = "0123456789abcdef";
    return std::string("f0 41 36 00 21 20 01 22 ") + Digits[value / 16] + Digits[value % 16] + " f7";
}

}  // namespace

class Oscillator_On_The_Desktop : public Desktop {
  protected:
    void In_Window(int x, int y) { Move_To(Window_Left + x, window_top_ + y); }
    void In_Picture(int x, int y) { Move_To(Picture_Left + x, picture_top_ + y); }
    void Click_In_Window(int x, int y) {
        In_Window(x, y);
        Xdotool({"click", "1"});
        std::this_thread::sleep_for(100ms);
    }

    void Open() {
        Start_Jack();
        Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\n");
        Wait_For_Main_Window();
        window_top_ = Menu_Height() + Window_Top;
        picture_top_ = window_top_ + 24;
        Press_Key("ctrl+i");
        ASSERT_TRUE(Wait_For_Window("^Oscillator$"));
        std::this_thread::sleep_for(300ms);
    }

    void Choose_Cutoff() {
        Click_In_Window(310, 32);
        Press_Key("Home");
        for (int step = 0; step < 17; ++step) Press_Key("Down");
        Press_Key("Return");
        std::this_thread::sleep_for(200ms);
    }

    // The interval by keys: from the lower end up to 50.
    void Set_Interval_50() {
        Click_In_Window(213, 94);
        Press_Key("Home");
        Press_Key("Page_Up");
        std::this_thread::sleep_for(100ms);
    }

    void Start_Playing() { Click_In_Window(20, 172); }
    void Stop_Playing() { Click_In_Window(46, 172); }

    int window_top_ = 0;
    int picture_top_ = 0;
};

TEST_F(Oscillator_On_The_Desktop, plays_a_drawn_curve_into_the_cutoff_and_stops) {
    Open();
    // A staircase by hand: every point at a row of its own.
    const auto Row_Of = [](int point) { return 4 + 7 * point; };
    In_Picture(3, Row_Of(0));
    Xdotool({"mousedown", "1"});
    In_Picture(4, Row_Of(0));
    for (int point = 1; point < Points; ++point) {
        // The band of point 2 reaches three columns into that of point 3.
        In_Picture(7 * point + 5, Row_Of(point));
    }
    Xdotool({"mouseup", "1"});
    Choose_Cutoff();
    Set_Interval_50();
    EXPECT_EQ(Messages_Dumped(*witness_), Lines{}) << "drawing sends nothing";
    const auto begin = std::chrono::steady_clock::now();
    Start_Playing();

    const Lines heard = Witnessed(2 * Points + 1);
    const auto lasted = std::chrono::steady_clock::now() - begin;
    ASSERT_GE(heard.size(), 2U * Points + 1);
    EXPECT_GT(lasted, 36 * 50ms - 100ms) << "36 steps of 50 milliseconds";
    for (std::size_t step = 0; step < 2U * Points + 1; ++step) {
        const int point = static_cast<int>(step % Points);
        EXPECT_EQ(heard[step], Cutoff(127 - Row_Of(point))) << step;
    }

    Stop_Playing();
    std::this_thread::sleep_for(200ms);
    const std::size_t at_stop = Messages_Dumped(*witness_).size();
    std::this_thread::sleep_for(500ms);
    EXPECT_EQ(Messages_Dumped(*witness_).size(), at_stop) << "silent behind the stop";

    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0) << "the tone was not touched";
    EXPECT_EQ(program_->Errors(), Lines{});
}

TEST_F(Oscillator_On_The_Desktop, draws_every_point_that_a_fast_pointer_crosses) {
    Open();
    Choose_Cutoff();
    Set_Interval_50();
    // The whole way there in one go, and the whole way back. A busy program gets one event of several, so
    // the turn must have been drawn before the way back.
    In_Picture(1, 100);
    const std::string place =
        "126x128+" + std::to_string(Picture_Left) + "+" + std::to_string(picture_top_);
    const Lines before = Picture(place);
    Xdotool({"mousedown", "1", "mousemove", std::to_string(Picture_Left + 62),
             std::to_string(picture_top_ + 20)});
    for (int round = 0; round < 100 && Picture(place) == before; ++round) std::this_thread::sleep_for(50ms);
    Xdotool({"mousemove", std::to_string(Picture_Left + 125), std::to_string(picture_top_ + 100), "mouseup",
             "1"});
    Start_Playing();
    const Lines heard = Witnessed(Points);
    ASSERT_GE(heard.size(), static_cast<std::size_t>(Points));
    // Up to the turn and down again, and nothing of the old teeth between.
    std::array<int, Points> values{};
    for (std::size_t point = 0; point < values.size(); ++point)
        values[point] = std::stoi(heard[point].substr(24, 2), nullptr, 16);
    for (std::size_t point = 1; point < values.size(); ++point) {
        if (point <= 8) {
            EXPECT_GT(values[point], values[point - 1]) << point;
        } else if (point >= 10) {
            EXPECT_LT(values[point], values[point - 1]) << point;
        }
    }
    EXPECT_NEAR(values[8], 127 - 20, 3);
    EXPECT_EQ(values[17], 127 - 100);
}

TEST_F(Oscillator_On_The_Desktop, plays_on_under_a_dialog_and_ends_with_the_program) {
    Open();
    Choose_Cutoff();
    Set_Interval_50();
    Start_Playing();
    ASSERT_GE(Witnessed(3).size(), 3U);
    // The shortcuts of the menu bar live on while the oscillator has the focus.
    Press_Key("ctrl+t");
    Press_Key("alt+t");
    std::this_thread::sleep_for(200ms);
    ASSERT_GE(Witnessed(20).size(), 20U);
    Press_Key("Escape");
    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
    const Lines heard = Messages_Dumped(*witness_);
    EXPECT_EQ(heard.back(), "b0 7b 00") << "nothing behind the last word";
    EXPECT_EQ(program_->Errors(), Lines{});
}
