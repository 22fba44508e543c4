// The 44 controls of the JX-8P panel, each with its parameter, its place, its keys, its drag and its bytes.
#include <array>

#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

struct Expected {
    const char* name;
    const char* kind;
    char type;  // 4, 3, 2 positions; s slider; t tune; f fine
    int parameter;
    int left;
    int top;
    int bottom;
    const char* number;  // the parameter as it goes out
};

// clang-format off
constexpr std::array<Expected, 44> Panel_Rows = {{
    {"DCO1_Range",     "bl",   '4', 11,  19,  32,  62, "0B"},
    {"DCO1_Waveform",  "bl",   '4', 12,  59,  32,  62, "0C"},
    {"DCO1_Tune",      "kn1",  't', 13,  33, 102, 102, "0D"},
    {"DCO1_LFO",       "bm",   's', 14,  19, 152, 232, "0E"},
    {"DCO1_ENV",       "bm",   's', 15,  58, 152, 232, "0F"},
    {"DCO2_Range",     "bl",   '4', 16, 119,  32,  62, "10"},
    {"DCO2_Waveform",  "bl",   '4', 17, 159,  32,  62, "11"},
    {"DCO2_Crossmod",  "br",   '4', 18, 189,  32,  62, "12"},
    {"DCO2_Tune",      "kn2",  't', 19, 122, 102, 102, "13"},
    {"DCO2_FTune",     "kn2f", 'f', 20, 182, 102, 102, "14"},
    {"DCO2_LFO",       "bm",   's', 21, 119, 152, 232, "15"},
    {"DCO2_ENV",       "bm",   's', 22, 158, 152, 232, "16"},
    {"DCO_Dynamics",   "bl",   '4', 26,  19, 278, 308, "1A"},
    {"DCO_Mode",       "bl",   '4', 27,  59, 278, 308, "1B"},
    {"Mixer_DCO1",     "bm",   's', 28, 259,  32, 112, "1C"},
    {"Mixer_DCO2",     "bm",   's', 29, 298,  32, 112, "1D"},
    {"Mixer_ENV",      "bm",   's', 30, 299, 152, 232, "1E"},
    {"Mixer_Dynamics", "bl",   '4', 31, 259, 278, 308, "1F"},
    {"Mixer_Mode",     "bl",   '4', 32, 299, 278, 308, "20"},
    {"VCF_HPF",        "bl",   '4', 33, 359,  32,  62, "21"},
    {"VCF_CutoffF",    "bm",   's', 34, 399,  32, 112, "22"},
    {"VCF_Res",        "bm",   's', 35, 438,  32, 112, "23"},
    {"VCF_LFO",        "bm",   's', 36, 360, 152, 232, "24"},
    {"VCF_ENV",        "bm",   's', 37, 399, 152, 232, "25"},
    {"VCF_Keyfollow",  "bm",   's', 38, 438, 152, 232, "26"},
    {"VCF_Dynamics",   "bl",   '4', 39, 359, 278, 308, "27"},
    {"VCF_Mode",       "bl",   '4', 40, 399, 278, 308, "28"},
    {"VCA_Level",      "bm",   's', 41, 489,  32, 112, "29"},
    {"VCA_Mode",       "br",   '2', 58, 489, 152, 162, "3A"},
    {"VCA_Dynamics",   "bl",   '4', 42, 489, 278, 308, "2A"},
    {"LFO_Waveform",   "bl",   '3', 44,  18, 377, 397, "2C"},
    {"LFO_DelayT",     "bm",   's', 45,  45, 357, 437, "2D"},
    {"LFO_Rate",       "bm",   's', 46,  84, 357, 437, "2E"},
    {"ENV1_Attack",    "bm",   's', 47, 135, 357, 437, "2F"},
    {"ENV1_Decay",     "bm",   's', 48, 165, 357, 437, "30"},
    {"ENV1_Sustain",   "bm",   's', 49, 195, 357, 437, "31"},
    {"ENV1_Release",   "bm",   's', 50, 225, 357, 437, "32"},
    {"ENV1_Keyfollow", "br",   '4', 51, 265, 388, 418, "33"},
    {"ENV2_Attack",    "bm",   's', 52, 315, 357, 437, "34"},
    {"ENV2_Decay",     "bm",   's', 53, 345, 357, 437, "35"},
    {"ENV2_Sustain",   "bm",   's', 54, 375, 357, 437, "36"},
    {"ENV2_Release",   "bm",   's', 55, 405, 357, 437, "37"},
    {"ENV2_Keyfollow", "br",   '4', 56, 445, 388, 418, "38"},
    {"Chorus_Mode",    "br",   '3', 43, 488, 398, 418, "2B"},
}};
// clang-format on

std::vector<Expected> Of_Type(char type) {
    std::vector<Expected> rows;
    for (const Expected& row : Panel_Rows) {
        if (row.type == type) rows.push_back(row);
    }
    return rows;
}

std::string Message(const Expected& row, const std::string& value) {
    return std::string("F0 41 36 00 21 20 01 ") + row.number + " " + value + " F7";
}

std::uint8_t& Byte(const Expected& row) {
    return Tone_Data[static_cast<std::size_t>(row.parameter)];
}

using Lines = std::vector<std::string>;

}  // namespace

using The_Panel = Started_Stage;

TEST_F(The_Panel, has_44_controls_in_the_order_of_the_focus) {
    ASSERT_EQ(Editor_Controls.size(), 44U);
    for (std::size_t index = 0; index < Panel_Rows.size(); ++index) {
        const Control& control = Editor_Controls[index];
        const Expected& row = Panel_Rows[index];
        EXPECT_STREQ(control.name, row.name);
        EXPECT_STREQ(control.kind, row.kind);
        EXPECT_EQ(control.left, row.left) << row.name;
        EXPECT_TRUE(control.focusable);
        EXPECT_NE(*control.spoken_name, '\0');
    }
}

TEST_F(The_Panel, moves_the_focus_through_controls_then_buttons_then_the_name) {
    std::vector<std::string> order;
    for (const Control* control : Editor_Panel.controls) {
        if (control->focusable) order.emplace_back(control->name);
    }
    ASSERT_EQ(order.size(), 44U + 3U + 4U);
    EXPECT_EQ(order[0], "DCO1_Range");
    EXPECT_EQ(order[2], "DCO1_Tune");
    EXPECT_EQ(order[3], "DCO1_Tune_Knopf");
    EXPECT_EQ(
        (std::vector<std::string>(order.end() - 5, order.end())),
        (std::vector<std::string>{"Chorus_Mode", "ED_Seq_Start", "ED_Seq_Stop", "Keys_Pic", "Tone_Name"}));
}

TEST_F(The_Panel, shows_each_kind_at_rest_in_its_own_picture_and_size) {
    for (const Expected& row : Panel_Rows) {
        const Control& control = At(row.name);
        const std::string kind = row.kind;
        const int item = kind == "bl" ? 0 : kind == "br" ? 2 : kind == "bm" ? 6 : 8;
        EXPECT_EQ(control.picture, (Picture{Picture_Store::Buttons, item})) << row.name;
        EXPECT_EQ(control.width, item == 8 ? 28 : 16) << row.name;
        EXPECT_EQ(control.height, item == 8 ? 26 : 16) << row.name;
    }
    for (const char* dot : {"DCO1_Tune_Knopf", "DCO2_Tune_Knopf", "DCO2_FTune_Knopf"}) {
        EXPECT_EQ(At(dot).picture, (Picture{Picture_Store::Buttons, 4}));
        EXPECT_EQ(At(dot).width, 4);
        EXPECT_EQ(At(dot).height, 4);
    }
    EXPECT_STREQ(At("DCO1_Tune_Knopf").kind, "kn1");
    EXPECT_STREQ(At("DCO2_Tune_Knopf").kind, "kn2");
    EXPECT_STREQ(At("DCO2_FTune_Knopf").kind, "kn2f");
    EXPECT_EQ(At("DCO1_Tune_Knopf").parent, &At("DCO1_Tune"));
}

TEST_F(The_Panel, is_528_by_456_with_its_other_pictures_in_place) {
    EXPECT_EQ(Editor.width, 528);
    EXPECT_EQ(Editor.height, 456);
    EXPECT_EQ(Editor.caption, "Editor");
    EXPECT_EQ(At("Tone_Name").left, 105);
    EXPECT_EQ(At("Tone_Name").top, 291);
    EXPECT_EQ(At("Tone_Name").width, 121);
    EXPECT_EQ(At("ED_Seq_Start").left, 190);
    EXPECT_EQ(At("ED_Seq_Start").top, 221);
    EXPECT_EQ(At("Keys_Pic").left, 216);
    EXPECT_EQ(At("Keys_Pic").top, 221);
    EXPECT_EQ(At("Keys_Pic").width, 43);
    EXPECT_EQ(At("Keys_Pic").height, 22);
    EXPECT_EQ(At("ED_Seq_Stop").left, 263);
    EXPECT_EQ(At("ED_Seq_Stop").top, 221);
    EXPECT_EQ(At("ED_Seq_Start_Pic").left, 3);
    EXPECT_EQ(At("ED_Seq_Stop_Pic").top, 3);
    EXPECT_EQ(At("Pic_Tonebench").left, 181);
    EXPECT_EQ(At("Pic_Tonebench").top, 150);
    EXPECT_EQ(At("Pic_Sign").left, 197);
    EXPECT_EQ(At("Pic_Sign").top, 202);
}

TEST_F(The_Panel, gives_its_controls_their_help_contexts) {
    for (const Expected& row : Panel_Rows) {
        int expected = 0;
        if (row.parameter == 11 || row.parameter == 16) expected = 1;
        if (row.parameter == 12 || row.parameter == 17) expected = 2;
        if (row.parameter == 13 || row.parameter == 19) expected = 3;
        if (row.parameter == 14 || row.parameter == 21 || row.parameter == 36) expected = 4;
        EXPECT_EQ(At(row.name).help_context, expected) << row.name;
    }
}

// -- sliders ---------------------------------------------------------------------------------------------

TEST_F(The_Panel, steps_every_slider_by_key_and_sends_it) {
    for (const Expected& row : Of_Type('s')) {
        Sent();
        Tone_Saved = Flag_16::True;
        Key(row.name, Key_Home);
        EXPECT_EQ(Sent(), Lines{Message(row, "7F")});
        EXPECT_EQ(At(row.name).top, row.top) << row.name;
        EXPECT_EQ(Shown(), "99");
        EXPECT_EQ(Tone_Saved, Flag_16::False);
        Key(row.name, Key_Page_Down);
        EXPECT_EQ(Sent(), Lines{Message(row, "6F")});
        EXPECT_EQ(At(row.name).top, row.bottom - 111 * 80 / 127) << row.name;
        EXPECT_EQ(Shown(), "86");
        Key(row.name, Key_End);
        EXPECT_EQ(Sent(), Lines{Message(row, "00")});
        EXPECT_EQ(At(row.name).top, row.bottom) << row.name;
        EXPECT_EQ(Shown(), "0");
        Key(row.name, Key_Up);
        EXPECT_EQ(Sent(), Lines{Message(row, "01")});
    }
}

TEST_F(The_Panel, drags_every_slider_and_sends_each_event) {
    for (const Expected& row : Of_Type('s')) {
        Press(row.name);
        EXPECT_EQ(Sent(), Lines{Message(row, "00")}) << "a press sends the present value";
        EXPECT_EQ(Shown(), "0");
        Drag(row.name, -64);
        EXPECT_EQ(Sent(), Lines{Message(row, "40")});
        EXPECT_EQ(At(row.name).top, row.bottom - 64 * 80 / 127) << row.name;
        EXPECT_EQ(Shown(), "49");
        Drag(row.name, -64);
        Drag(row.name, -64);
        EXPECT_EQ(Sent(), (Lines{Message(row, "7F"), Message(row, "7F")}))
            << "the end of the rail sends again";
        EXPECT_EQ(At(row.name).top, row.top) << row.name;
        Drag(row.name, 500);
        EXPECT_EQ(At(row.name).top, row.bottom) << row.name;
        Sent();
    }
}

TEST_F(The_Panel, puts_every_slider_on_its_row_in_a_refresh) {
    for (const Expected& row : Of_Type('s')) {
        for (const int value : {0, 1, 63, 64, 126, 127}) {
            Byte(row) = static_cast<std::uint8_t>(value);
            Panel_Apply_Tone();
            EXPECT_EQ(At(row.name).top, row.bottom - value * 80 / 127) << row.name << " " << value;
        }
    }
}

// -- switches --------------------------------------------------------------------------------------------

TEST_F(The_Panel, steps_every_four_position_switch_by_key) {
    for (const Expected& row : Of_Type('4')) {
        Sent();
        const std::string name_before = Shown();
        const std::array<const char*, 4> bytes = {"20", "40", "60", "7F"};
        const std::array<int, 4> tops = {row.top + 20, row.top + 10, row.top, row.top};
        for (std::size_t step = 0; step < bytes.size(); ++step) {
            Key(row.name, Key_Up);
            EXPECT_EQ(Sent(), Lines{Message(row, bytes[step])});
            EXPECT_EQ(At(row.name).top, tops[step]) << row.name;
        }
        Key(row.name, Key_End);
        EXPECT_EQ(Sent(), Lines{Message(row, "00")});
        EXPECT_EQ(At(row.name).top, row.bottom) << row.name;
        EXPECT_EQ(Shown(), name_before) << "a switch shows nothing in words";
    }
}

TEST_F(The_Panel, drags_every_four_position_switch_and_sends_on_jumps_only) {
    for (const Expected& row : Of_Type('4')) {
        Press(row.name);
        EXPECT_EQ(Sent(), Lines{}) << "a press on a switch does nothing";
        Drag(row.name, -40);
        EXPECT_EQ(Sent(), Lines{}) << "the first event of another parameter only counts";
        EXPECT_EQ(Byte(row), 40);
        EXPECT_EQ(At(row.name).top, row.top + 20) << row.name;
        Drag(row.name, -4);
        EXPECT_EQ(Sent(), Lines{});
        Drag(row.name, -5);
        EXPECT_EQ(Sent(), Lines{Message(row, "31")});
        Drag(row.name, 12);
        EXPECT_EQ(Sent(), Lines{Message(row, "25")});
    }
}

TEST_F(The_Panel, puts_every_four_position_switch_on_its_row_in_a_refresh) {
    for (const Expected& row : Of_Type('4')) {
        for (int value = 0; value <= 127; ++value) {
            Byte(row) = static_cast<std::uint8_t>(value);
            Panel_Apply_Tone();
            EXPECT_EQ(At(row.name).top, row.bottom - value / 32 * 10) << row.name << " " << value;
        }
    }
}

TEST_F(The_Panel, walks_the_three_position_switches_by_key_through_0_32_64) {
    for (const Expected& row : Of_Type('3')) {
        Sent();
        Key(row.name, Key_Up);
        EXPECT_EQ(At(row.name).top, row.top + 10) << row.name;
        Key(row.name, Key_Page_Up);
        EXPECT_EQ(At(row.name).top, row.top) << row.name;
        Key(row.name, Key_Keypad_Plus);
        Key(row.name, Key_Down);
        Key(row.name, Key_Down);
        EXPECT_EQ(At(row.name).top, row.bottom) << row.name;
        Key(row.name, Key_Home);
        EXPECT_EQ(Sent(), (Lines{Message(row, "20"), Message(row, "40"), Message(row, "40"),
                                 Message(row, "20"), Message(row, "00"), Message(row, "40")}));
        Byte(row) = 100;
        Key(row.name, Key_Up);
        EXPECT_EQ(Byte(row), 64) << "the keys limit the value first";
        Byte(row) = 100;
        Key(row.name, Key_Down);
        EXPECT_EQ(Byte(row), 32);
    }
}

TEST_F(The_Panel, leaves_a_three_position_thumb_on_its_row_in_the_gaps_of_a_drag) {
    for (const Expected& row : Of_Type('3')) {
        Focus(row.name);
        for (int value = 0; value <= 127; ++value) {
            At(row.name).top = 7;
            Byte(row) = static_cast<std::uint8_t>(value);
            Editor_Switch_Place(row.top, row.bottom, static_cast<std::size_t>(row.parameter));
            int expected = 7;
            if (value <= 15) expected = row.top + 20;
            if (value >= 32 && value <= 47) expected = row.top + 10;
            if (value >= 64 && value <= 96) expected = row.top;
            EXPECT_EQ(At(row.name).top, expected) << row.name << " " << value;
        }
    }
}

TEST_F(The_Panel, knows_no_gaps_of_the_three_position_switches_in_a_refresh) {
    for (const Expected& row : Of_Type('3')) {
        for (int value = 0; value <= 127; ++value) {
            Byte(row) = static_cast<std::uint8_t>(value);
            Panel_Apply_Tone();
            const int expected = value <= 31 ? row.bottom : value <= 63 ? row.bottom - 10 : row.top;
            EXPECT_EQ(At(row.name).top, expected) << row.name << " " << value;
        }
    }
}

TEST_F(The_Panel, toggles_the_vca_mode_by_press_and_by_key) {
    const Expected row = Of_Type('2').front();
    Tone_Saved = Flag_16::True;
    Press(row.name);
    EXPECT_EQ(Sent(), Lines{Message(row, "40")});
    EXPECT_EQ(At(row.name).top, 152);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Shown(), "");
    Key(row.name, Key_End);
    EXPECT_EQ(Sent(), Lines{Message(row, "00")});
    EXPECT_EQ(At(row.name).top, 162);
    Key(row.name, Key_End);
    EXPECT_EQ(Sent(), Lines{Message(row, "40")}) << "End does not mean the bottom here";
    EXPECT_EQ(At(row.name).top, 152);
    Key(row.name, Key_Left);
    EXPECT_EQ(Sent(), Lines{Message(row, "40")}) << "any other key sends without a change";
    Drag(row.name, 30);
    EXPECT_EQ(Sent(), Lines{}) << "the pointer's movement does nothing";
    Byte(row) = 10;
    Press(row.name, Mouse_Button::Right);
    EXPECT_EQ(Byte(row), 74);
}

TEST_F(The_Panel, puts_the_vca_mode_on_its_row_in_a_refresh) {
    for (int value = 0; value <= 127; ++value) {
        Tone_Data[58] = static_cast<std::uint8_t>(value);
        Panel_Apply_Tone();
        EXPECT_EQ(At("VCA_Mode").top, value <= 63 ? 162 : 152);
    }
}
