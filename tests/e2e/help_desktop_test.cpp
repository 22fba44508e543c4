#include <thread>

#include "e2e/desktop.h"

using namespace std::chrono_literals;

namespace {

const char* const Settings_Text = "[MIDI]\nOutput=witness:input\nInput=sender:out\n";

// Where the help window stands on the screen of 1280 by 1024 pixels, and places in it.
constexpr int Window_Left = (1280 - 640) / 2;
constexpr int Window_Top = (1024 - 404) / 2;
constexpr int Slider_X = Window_Left + 188;

}  // namespace

class Help_On_The_Desktop : public Desktop {
  protected:
    static std::vector<std::string> Description() {
        return Picture("290x300+" + std::to_string(Window_Left + 315) + "+" +
                       std::to_string(Window_Top + 45));
    }
    static std::vector<std::string> Display() {
        return Picture("250x24+" + std::to_string(Window_Left + 54) + "+" +
                       std::to_string(Window_Top + 275));
    }
    void Open_Help(const std::vector<std::string>& keys) {
        for (const std::string& key : keys) {
            Press_Key(key);
            std::this_thread::sleep_for(300ms);
        }
        ASSERT_TRUE(Wait_For_Focus("Tonebench Help"));
        std::this_thread::sleep_for(300ms);
    }
};

TEST_F(Help_On_The_Desktop, finds_the_matrix_by_its_first_letters) {
    Start_Jack();
    Start_Program(Settings_Text);
    Wait_For_Main_Window();
    Open_Help({"F1"});
    const auto editor = Description();
    Xdotool({"type", "matr"});
    std::this_thread::sleep_for(300ms);
    const auto matrix = Description();
    EXPECT_NE(matrix, editor) << "another description shows";

    // The same one as of the topic that is walked to in the list: "Matrix" is the sixth.
    Press_Key("ctrl+a");
    Press_Key("BackSpace");
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(Description(), editor);
    Press_Key("Tab");
    for (int row = 1; row < 6; ++row) Press_Key("Down");
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(Description(), matrix);

    Press_Key("Escape");
    EXPECT_TRUE(Wait_For_Window("^Tonebench Help$", false));
    EXPECT_TRUE(program_->Is_Running());
}

TEST_F(Help_On_The_Desktop, is_practised_on_and_heard_by_nobody) {
    Start_Jack();
    Start_Program(Settings_Text);
    Wait_For_Main_Window();
    Open_Help({"alt+h", "h"});
    const auto waiting = Display();
    // The thumb's upper edge at value 0; the ground begins below two lines of text.
    const int thumb = Window_Top + 62 + 142;
    Move_To(Slider_X, thumb + 8);
    Xdotool({"mousedown", "1"});
    for (int row = 0; row >= -60; row -= 20) Move_To(Slider_X, thumb + row);
    Xdotool({"mouseup", "1"});
    std::this_thread::sleep_for(300ms);
    const auto value = Display();
    EXPECT_NE(value, waiting) << "the value shows";
    std::this_thread::sleep_for(2500ms);
    EXPECT_NE(Display(), value) << "and goes again";

    Press_Key("Escape");
    ASSERT_TRUE(Wait_For_Window("^Tonebench Help$", false));
    EXPECT_EQ(Messages_Dumped(*witness_), std::vector<std::string>{});
    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0) << "nothing to save, nothing asked";
    EXPECT_EQ(program_->Errors(), std::vector<std::string>{});
}
