#include "e2e/desktop.h"

#include <algorithm>
#include <thread>

using namespace std::chrono_literals;

namespace {

using Lines = std::vector<std::string>;

// Middles of thumbs on the panel.
constexpr int Resonance_X = 446;
constexpr int Resonance_Top = 112;  // the thumb's upper edge at value 0
constexpr int Range_X = 27;
constexpr int Range_Y = 70;

std::string Configured(const std::string& channel) {
    return "[MIDI]\nOutput=witness:input\nInput=sender:out\nChannel=" + channel + "\n";
}

}  // namespace

class Panel_On_The_Desktop : public Desktop {
  protected:
    // The two boxes of a start at which something is wrong with both devices.
    void Press_Through_Two_Boxes() {
        Answer_Box("Return", false);
        Answer_Box("Return", false);
    }

    // Drags VCF_Res to 20 and 30 and steps DCO1_Range by key; `cc` is the channel byte that must go out.
    void Play_And_Compare(const std::string& cc) {
        const int panel = Menu_Height();
        const std::string head = "f0 41 36 " + cc + " 21 20 01 ";
        Lines expected;
        const auto Expect_Next = [&](const std::string& rest) {
            expected.push_back(head + rest);
            ASSERT_EQ(Witnessed(expected.size()), expected);
        };
        Move_To(Resonance_X, panel + Resonance_Top + 5);
        Xdotool({"mousedown", "1"});
        Expect_Next("23 00 f7");
        Move_To(Resonance_X, panel + Resonance_Top - 20);
        Expect_Next("23 14 f7");
        // The thumb stands 20 * 80 / 127 = 12 pixels higher now.
        Move_To(Resonance_X, panel + Resonance_Top - 12 - 10);
        Expect_Next("23 1e f7");
        Xdotool({"mouseup", "1"});

        Move_To(Range_X, panel + Range_Y);
        Xdotool({"click", "1"});
        Press_Key("Up");
        Expect_Next("0b 20 f7");
        Press_Key("Home");
        Expect_Next("0b 7f f7");
        Press_Key("KP_Subtract");
        Expect_Next("0b 5f f7");
    }
};

TEST_F(Panel_On_The_Desktop, sends_a_drag_and_key_steps_on_channel_1) {
    Start_Jack();
    Start_Program(Configured("1"));
    Wait_For_Main_Window();
    Play_And_Compare("00");
}

TEST_F(Panel_On_The_Desktop, sends_a_drag_and_key_steps_on_channel_16) {
    Start_Jack();
    Start_Program(Configured("16"));
    Wait_For_Main_Window();
    Play_And_Compare("0f");
}

TEST_F(Panel_On_The_Desktop, sends_the_whole_tone_by_its_shortcut_and_says_all_notes_off_at_the_end) {
    Start_Jack();
    Start_Program(Configured("1"));
    Wait_For_Main_Window();
    Press_Key("ctrl+t");
    std::string tone = "f0 41 35 00 21 20 01";
    for (int index = 0; index < 59; ++index) {
        tone += index < 10 ? " 20" : index == 13 || index == 19 ? " 38" : index == 20 ? " 40" : " 00";
    }
    tone += " 24 07 f0 41 36 00 21 30 01 00 00 01 00 02 00 03 00 04 00 05 00 06 40 f7";
    // JACK hands the message on as we sent it, in one piece; the witness prints it in one line.
    ASSERT_EQ(Witnessed(1), Lines{tone});
    Press_Key("ctrl+x");
    EXPECT_EQ(program_->Wait_For_End(10s), 0) << "nothing to save, nothing asked";
    EXPECT_EQ(Witnessed(2).back(), "b0 7b 00");
    EXPECT_EQ(program_->Errors(), Lines{});
}

TEST_F(Panel_On_The_Desktop, leads_through_the_first_start) {
    Start_Jack();
    Start_Program("");
    Press_Through_Two_Boxes();
    ASSERT_TRUE(Wait_For_Focus("MIDI Setup"));
    Wait_For_Main_Window();
    Press_Key("Return");  // Ok
    ASSERT_TRUE(Wait_For_Focus("MIDI System Exclusive enabled?"));
    Press_Key("Return");
    ASSERT_TRUE(Wait_For_Window("^MIDI Setup$", false));
    EXPECT_EQ(Settings(),
              "[MIDI]\nAutosend=1\nChannel=1\nControl Channel=[Not "
              "used]\nInput=sender:out\nOutput=witness:input\n");
    Play_And_Compare("00");
}

TEST_F(Panel_On_The_Desktop, asks_about_a_changed_tone_before_it_ends) {
    Start_Jack();
    Start_Program(Configured("1"));
    Wait_For_Main_Window();
    Move_To(Range_X, Menu_Height() + Range_Y);
    Xdotool({"click", "1"});
    Press_Key("Up");
    ASSERT_EQ(Witnessed(1).size(), 1U);
    Press_Key("ctrl+x");
    Answer_Box("Escape");  // Cancel
    EXPECT_TRUE(program_->Is_Running());
    Press_Key("ctrl+x");
    Answer_Box("alt+n");
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
}

TEST_F(Panel_On_The_Desktop, tells_when_its_port_goes_in_the_middle_of_a_drag_and_lives_on) {
    Start_Jack();
    Start_Program(Configured("1"));
    Wait_For_Main_Window();
    const int panel = Menu_Height();
    Move_To(Resonance_X, panel + Resonance_Top + 5);
    Xdotool({"mousedown", "1"});
    ASSERT_EQ(Witnessed(1).size(), 1U);
    witness_->Kill();
    ASSERT_TRUE(Wait_For_Jack_Port("witness:input", false));
    Move_To(Resonance_X, panel + Resonance_Top - 20);
    Answer_Box("Return");
    Xdotool({"mouseup", "1"});
    EXPECT_TRUE(program_->Is_Running());
    // The next touch tells it again; the panel itself goes on.
    Move_To(Range_X, Menu_Height() + Range_Y);
    Xdotool({"click", "1"});
    Press_Key("Up");
    Answer_Box("Return");
    EXPECT_TRUE(program_->Is_Running());
}

TEST_F(Panel_On_The_Desktop, works_without_any_midi) {
    jack_ = std::make_unique<Jack_Server>();  // a name that nobody serves
    Start_Program(Configured("1"));
    Press_Through_Two_Boxes();
    Wait_For_Main_Window();
    Move_To(Range_X, Menu_Height() + Range_Y);
    Xdotool({"click", "1"});
    Press_Key("Up");
    Press_Key("ctrl+x");
    Answer_Box("alt+n");
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
    EXPECT_EQ(program_->Errors(), Lines{});
}

TEST_F(Panel_On_The_Desktop, refuses_a_screen_of_144_ppi_and_writes_nothing) {
    // Left to itself the toolkit scales such a screen as a whole; here it is told not to.
    Start_Program("", {{"QT_FONT_DPI", "144"}, {"QT_ENABLE_HIGHDPI_SCALING", "0"}});
    Answer_Box("Return", false);
    EXPECT_EQ(program_->Wait_For_End(10s), 0);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "Tonebench.INI"));
}

TEST_F(Panel_On_The_Desktop, runs_on_without_its_font) {
    Start_Jack();
    std::filesystem::remove(folder_ / "JX8P.FNT");
    Start_Program(Configured("1"));
    Answer_Box("Return", false);
    Wait_For_Main_Window();
    Play_And_Compare("00");
}

TEST_F(Panel_On_The_Desktop, survives_a_settings_file_of_rubbish) {
    Start_Jack();
    std::string rubbish;
    for (unsigned index = 0; index < 1'000'000U; ++index)
        rubbish += static_cast<char>(index * 7919U % 251U);
    Start_Program(rubbish);
    Press_Through_Two_Boxes();
    ASSERT_TRUE(Wait_For_Focus("MIDI Setup"));
    Press_Key("Escape");
    ASSERT_TRUE(Wait_For_Window("^MIDI Setup$", false));
    EXPECT_TRUE(program_->Is_Running());
    EXPECT_EQ(Settings().substr(0, rubbish.size()), rubbish);
}
