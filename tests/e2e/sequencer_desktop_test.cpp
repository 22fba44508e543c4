// A pattern clicked into the sequencer's window and heard at the port.
#include <algorithm>
#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// Places in the sequencer's window, which stands at the corner of the panel.
constexpr int Matrix_X = 44;
constexpr int Matrix_Y = 20;
constexpr int Cell_Pitch = 12;
constexpr int Start_X = 329;
constexpr int Start_Y = 159;
constexpr int Tempo_X = 360;
constexpr int Tempo_Y = 114;

// Stop on the panel, just below that window.
constexpr int Stop_X = 274;
constexpr int Stop_Y = 232;

}  // namespace

class Sequencer_On_The_Desktop : public Desktop {
  protected:
    void Click_Cell(int step, int row, const char* button) {
        Move_To(Matrix_X + step * Cell_Pitch + 5, Menu_ + Matrix_Y + row * Cell_Pitch + 5);
        Xdotool({"click", button});
    }
    int Menu_ = 0;
};

TEST_F(Sequencer_On_The_Desktop, plays_a_clicked_pattern_in_order_and_stops_from_the_panel) {
    Start_Jack();
    Start_Program("[MIDI]\nOutput=witness:input\nInput=sender:out\nChannel=3\n");
    Wait_For_Main_Window();
    Menu_ = Menu_Height();
    Press_Key("alt+m");
    std::this_thread::sleep_for(300ms);
    Press_Key("u");
    ASSERT_TRUE(Wait_For_Focus("Sequencer"));
    ASSERT_EQ(Witnessed(1), Lines{"b2 7b 00"}) << "the window silences what sounds";

    Click_Cell(0, 0, "1");
    Click_Cell(1, 12, "3");
    Click_Cell(2, 5, "1");
    Click_Cell(7, 1, "1");
    Click_Cell(4, 4, "1");
    Click_Cell(4, 4, "1");  // and out again
    Move_To(Tempo_X, Menu_ + Tempo_Y);
    Xdotool({"click", "1"});
    Press_Key("End");  // 120: a step every 62 ms
    Move_To(Start_X, Menu_ + Start_Y);
    Xdotool({"click", "1"});

    const std::size_t two_cycles = 1 + 2 * 8 * 13;
    const Lines played = Witnessed(two_cycles);
    ASSERT_GE(played.size(), two_cycles);
    for (std::size_t message = 1; message < two_cycles; ++message) {
        const std::size_t step = (message - 1) / 13 % 8;
        const std::size_t row = (message - 1) % 13;
        constexpr const char* Notes[] = {"3c", "3b", "3a", "39", "38", "37", "36",
                                         "35", "34", "33", "32", "31", "30"};
        const bool loud = (step == 0 && row == 0) || (step == 2 && row == 5) || (step == 7 && row == 1);
        const bool soft = step == 1 && row == 12;
        EXPECT_EQ(played[message], std::string("92 ") + Notes[row] +
                                       (loud   ? " 7f"
                                        : soft ? " 3f"
                                               : " 00"))
            << message;
    }

    Move_To(Stop_X, Menu_ + Stop_Y);
    Xdotool({"click", "1"});
    std::this_thread::sleep_for(500ms);
    const Lines stopped = Witnessed(two_cycles + 1);
    EXPECT_EQ(stopped.back(), "b2 7b 00");
    EXPECT_EQ((stopped.size() - 1) % 13, 2U) << "whole steps, and all notes off twice";
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Witnessed(1).size(), stopped.size()) << "nothing follows";
    Child_Process connections({"jack_lsp", "-c", "witness:input"});
    connections.Wait_For_End(5s);
    EXPECT_EQ(connections.Output(), Lines{"witness:input"}) << "the port is free";

    Press_Key("ctrl+x");
    Answer_Box("alt+n");
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
    EXPECT_EQ(program_->Errors(), Lines{});
}
