// The Alpha Juno's panel, control by control: places, rows, limits, against figures of the test's own.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "fakes/juno_stage.h"
#include "synth/views.h"

namespace {

enum class Kind { Slider, Switch, Inverted };

struct Expected {
    const char* name;
    const char* kind;
    Kind type;
    std::size_t parameter;
    int left;
    int row;      // of value 0 in a refresh
    int highest;  // value
    int help;
};

// clang-format off
const std::vector<Expected> All = {
    {"DCO_EnvMode",    "bl", Kind::Inverted,  0, 136,  29,   3, 0},
    {"VCF_EnvMode",    "bl", Kind::Inverted,  1, 277, 164,   3, 0},
    {"VCA_EnvMode",    "bl", Kind::Inverted,  2, 447, 164,   3, 0},
    {"DCO_Pulse",      "bl", Kind::Switch,    3, 229,  59,   3, 0},
    {"DCO_SawTooth",   "bl", Kind::Switch,    4, 274,  79,   5, 2},
    {"DCO_Sub",        "bl", Kind::Switch,    5, 318,  79,   5, 2},
    {"DCO_Range",      "bl", Kind::Inverted,  6,  18,  29,   3, 1},
    {"DCO_SubLevel",   "bl", Kind::Switch,    7, 362, 110,   3, 0},
    {"DCO_NoiseLevel", "bl", Kind::Switch,    8, 399, 110,   3, 0},
    {"VCF_HPF",        "bl", Kind::Switch,    9,  99, 246,   3, 0},
    {"Chorus_OnOff",   "bl", Kind::Switch,   10,  24, 382,   1, 0},
    {"DCO_LFO",        "bm", Kind::Slider,   11,  61, 110, 127, 4},
    {"DCO_Env",        "bm", Kind::Slider,   12,  91, 110, 127, 0},
    {"DCO_After",      "bm", Kind::Slider,   13, 183, 110, 127, 0},
    {"DCO_PWM",        "bm", Kind::Slider,   14, 443, 110, 127, 0},
    {"DCO_PWMRate",    "bm", Kind::Slider,   15, 473, 110, 127, 0},
    {"VCF_Freq",       "bm", Kind::Slider,   16, 139, 246, 127, 0},
    {"VCF_Res",        "bm", Kind::Slider,   17, 169, 246, 127, 0},
    {"VCF_LFO",        "bm", Kind::Slider,   18, 199, 246, 127, 4},
    {"VCF_ENV",        "bm", Kind::Slider,   19, 229, 246, 127, 0},
    {"VCF_Keyfollow",  "bm", Kind::Slider,   20, 322, 246, 127, 0},
    {"VCF_After",      "bm", Kind::Slider,   21, 352, 246, 127, 0},
    {"VCA_Level",      "bm", Kind::Slider,   22, 401, 246, 127, 0},
    {"VCA_After",      "bm", Kind::Slider,   23, 491, 246, 127, 0},
    {"LFO_Rate",       "bm", Kind::Slider,   24,  51, 246, 127, 0},
    {"LFO_DelayTime",  "bm", Kind::Slider,   25,  21, 246, 127, 0},
    {"ENV_T1",         "bm", Kind::Slider,   26, 121, 382, 127, 0},
    {"ENV_L1",         "bm", Kind::Slider,   27, 151, 382, 127, 0},
    {"ENV_T2",         "bm", Kind::Slider,   28, 181, 382, 127, 0},
    {"ENV_L2",         "bm", Kind::Slider,   29, 211, 382, 127, 0},
    {"ENV_T3",         "bm", Kind::Slider,   30, 241, 382, 127, 0},
    {"ENV_L3",         "bm", Kind::Slider,   31, 271, 382, 127, 0},
    {"ENV_T4",         "bm", Kind::Slider,   32, 301, 382, 127, 0},
    {"ENV_Keyfollow",  "bm", Kind::Slider,   33, 331, 382, 127, 0},
    {"Chorus_Rate",    "bm", Kind::Slider,   34,  67, 382, 127, 0},
    {"Bender_Range",   "bl", Kind::Switch,   35, 379, 322,  12, 0},
};
// clang-format on

int Row_In_A_Refresh(const Expected& control, int value) {
    if (control.type == Kind::Slider) return control.row - value * 80 / 127;
    if (control.type == Kind::Inverted) return control.row + value * 10;
    return control.row - value * (control.parameter == 35 ? 2 : 10);
}

void Set(const Expected& control, int value) {
    Juno_Data[control.parameter] = static_cast<std::uint8_t>(value);
}

std::string Sent_Value(const Expected& control, int value) {
    constexpr const char* Digits = "0123456789ABCDEF";
    const auto hex = [](std::size_t byte) { return std::string{Digits[byte / 16], Digits[byte % 16]}; };
    return "F0 41 36 00 23 20 01 " + hex(control.parameter) + " " + hex(static_cast<std::size_t>(value)) +
           " F7";
}

}  // namespace

using Juno_Table_Of_Controls = Juno_Stage;
using Lines = std::vector<std::string>;

TEST_F(Juno_Table_Of_Controls, has_36_controls_in_their_columns_with_their_kinds) {
    ASSERT_EQ(All.size(), 36U);
    ASSERT_EQ(Juno_Controls.size(), 36U);
    for (const Expected& control : All) {
        EXPECT_EQ(At(control.name).left, control.left) << control.name;
        EXPECT_STREQ(At(control.name).kind, control.kind) << control.name;
        EXPECT_EQ(At(control.name).width, 16) << control.name;
        EXPECT_EQ(At(control.name).height, 16) << control.name;
        EXPECT_EQ(At(control.name).help_context, control.help) << control.name;
        EXPECT_EQ(At(control.name).picture.item, control.type == Kind::Slider ? 6 : 0) << control.name;
        EXPECT_TRUE(At(control.name).focusable) << control.name;
        EXPECT_STRNE(At(control.name).spoken_name, "") << control.name;
    }
}

TEST_F(Juno_Table_Of_Controls, puts_every_thumb_on_its_row_for_every_value_in_a_refresh) {
    for (const Expected& control : All) {
        for (int value = 0; value <= control.highest; ++value) {
            Set(control, value);
            Juno_To_Panel();
            ASSERT_EQ(At(control.name).top, Row_In_A_Refresh(control, value)) << control.name << value;
            const int top = control.type == Kind::Slider ? Juno_Slider_Top(control.parameter)
                                                         : Juno_Switch_Top(control.parameter);
            ASSERT_EQ(top, At(control.name).top) << control.name;
        }
    }
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Juno_Table_Of_Controls, runs_sliders_over_80_pixels) {
    for (const Expected& control : All) {
        if (control.type != Kind::Slider) continue;
        Set(control, 127);
        Juno_To_Panel();
        EXPECT_EQ(At(control.name).top, control.row - 80) << control.name;
    }
}

TEST_F(Juno_Table_Of_Controls, edits_the_control_s_own_parameter_by_pointer) {
    for (const Expected& control : All) {
        Focus(control.name);
        // One position, or twenty units.
        const double row = control.type == Kind::Inverted ? 20 : -20;
        Panel_Last_Param = static_cast<std::int16_t>(control.parameter);
        Panel_Last_Value = 0;
        Drag(control.name, row);
        const int value = control.type == Kind::Slider ? 20 : 1;
        EXPECT_EQ(Juno_Data[control.parameter], value) << control.name;
        EXPECT_EQ(Sent(), Lines{Sent_Value(control, value)}) << control.name;
        const bool lower = control.parameter == 1 || control.parameter == 2;
        EXPECT_EQ(At(control.name).top, Row_In_A_Refresh(control, value) + (lower ? 1 : 0)) << control.name;
    }
}

TEST_F(Juno_Table_Of_Controls, edits_every_parameter_by_key_but_the_first_level) {
    for (const Expected& control : All) {
        if (control.parameter == 27) continue;
        Key(control.name, control.type == Kind::Inverted ? Key_Down : Key_Up);
        EXPECT_EQ(Juno_Data[control.parameter], 1) << control.name;
        EXPECT_EQ(Sent(), Lines{Sent_Value(control, 1)}) << control.name;
        EXPECT_EQ(Shown(), "1") << control.name;
    }
    EXPECT_EQ(Juno_Data[27], 0);
}

TEST_F(Juno_Table_Of_Controls, ends_every_switch_at_its_largest_value_by_key_and_by_pointer) {
    for (const Expected& control : All) {
        if (control.parameter == 27) continue;
        Key(control.name, control.type == Kind::Inverted ? Key_End : Key_Home);
        EXPECT_EQ(Juno_Data[control.parameter], control.highest) << control.name;
        Key(control.name, control.type == Kind::Inverted ? Key_Home : Key_End);
        EXPECT_EQ(Juno_Data[control.parameter], 0) << control.name;
        Drag(control.name, control.type == Kind::Inverted ? 4000 : -4000);
        EXPECT_EQ(Juno_Data[control.parameter], control.highest) << control.name;
        Drag(control.name, control.type == Kind::Inverted ? -4000 : 4000);
        EXPECT_EQ(Juno_Data[control.parameter], 0) << control.name;
    }
}

TEST_F(Juno_Table_Of_Controls, takes_its_focus_along_the_panel_from_the_range_to_the_name) {
    Lines order;
    for (const Control* control : Juno_Panel.controls) {
        if (control->focusable) order.emplace_back(control->name);
    }
    EXPECT_EQ(order,
              (Lines{"DCO_Range",     "DCO_LFO",      "DCO_Env",       "DCO_EnvMode",  "DCO_After",
                     "DCO_Pulse",     "DCO_SawTooth", "DCO_Sub",       "DCO_SubLevel", "DCO_NoiseLevel",
                     "DCO_PWM",       "DCO_PWMRate",  "LFO_DelayTime", "LFO_Rate",     "VCF_HPF",
                     "VCF_Freq",      "VCF_Res",      "VCF_LFO",       "VCF_ENV",      "VCF_EnvMode",
                     "VCF_Keyfollow", "VCF_After",    "VCA_Level",     "VCA_EnvMode",  "VCA_After",
                     "Chorus_OnOff",  "Chorus_Rate",  "ENV_T1",        "ENV_L1",       "ENV_T2",
                     "ENV_L2",        "ENV_T3",       "ENV_L3",        "ENV_T4",       "ENV_Keyfollow",
                     "Bender_Range",  "ED_Seq_Start", "ED_Seq_Stop",   "Keys_Pic",     "Tone_Name"}));
}

TEST_F(Juno_Table_Of_Controls, stands_in_a_window_of_the_editors_size_and_name) {
    EXPECT_EQ(Editor_Juno.caption, "Editor");
    EXPECT_EQ(Editor_Juno.width, 528);
    EXPECT_EQ(Editor_Juno.height, 456);
    EXPECT_EQ(Editor_Juno.left, 0);
    EXPECT_EQ(Editor_Juno.top, 0);
}

TEST_F(Juno_Table_Of_Controls, has_the_rest_of_the_window_in_its_places) {
    struct Place {
        const char* name;
        int left, top, width, height;
        Picture_Store store;
    };
    const Place places[] = {
        {"Tone_Name", 378, 380, 121, 27, Picture_Store::None},
        {"Keys_Pic", 252, 107, 43, 22, Picture_Store::Buttons},
        {"ED_Seq_Start", 226, 107, 22, 22, Picture_Store::Button_Up3D},
        {"ED_Seq_Stop", 299, 107, 22, 22, Picture_Store::Button_Up3D},
        {"ED_Seq_Start_Pic", 3, 3, 14, 14, Picture_Store::Start_Disabled},
        {"ED_Seq_Stop_Pic", 3, 3, 14, 14, Picture_Store::Stop_Disabled},
        {"Pic_Tonebench", 417, 274, 110, 50, Picture_Store::Pic_Tonebench},
        {"Pic_Sign", 433, 326, 79, 14, Picture_Store::Pic_Sign},
    };
    for (const Place& place : places) {
        const Control& control = At(place.name);
        EXPECT_EQ(control.left, place.left) << place.name;
        EXPECT_EQ(control.top, place.top) << place.name;
        EXPECT_EQ(control.width, place.width) << place.name;
        EXPECT_EQ(control.height, place.height) << place.name;
        EXPECT_EQ(control.picture.store, place.store) << place.name;
    }
    EXPECT_EQ(At("Keys_Pic").picture.item, 9);
    EXPECT_EQ(At("ED_Seq_Start_Pic").parent, &At("ED_Seq_Start"));
    EXPECT_EQ(At("ED_Seq_Stop_Pic").parent, &At("ED_Seq_Stop"));
}

TEST_F(Juno_Table_Of_Controls, has_four_of_the_editors_controls_without_picture_and_handler) {
    struct Place {
        const char* name;
        int left, top;
    };
    const Place places[] = {{"Mixer_DCO1", 259, 112},
                            {"Mixer_DCO2", 298, 112},
                            {"DCO_Dynamics", 19, 308},
                            {"VCA_Dynamics", 489, 308}};
    const std::string before = Juno_Record();
    for (const Place& place : places) {
        Control& control = At(place.name);
        EXPECT_EQ(control.left, place.left) << place.name;
        EXPECT_EQ(control.top, place.top) << place.name;
        EXPECT_EQ(control.picture.store, Picture_Store::None) << place.name;
        EXPECT_FALSE(control.focusable) << place.name;
        Juno_Panel.events.button_pressed(control, Mouse_Button::Left);
        Juno_Panel.events.pointer_moved(control, -20);
        Juno_Panel.events.key_pressed(control, Key_Up);
        Juno_Panel.events.button_released(control, Mouse_Button::Left);
        Juno_Panel.events.clicked(control);
    }
    EXPECT_EQ(Juno_Record(), before);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Juno_Table_Of_Controls, knows_no_other_parameter) {
    EXPECT_THROW(Juno_Switch_Top(36), Fatal_Error);
    EXPECT_THROW(Juno_Slider_Top(48), Fatal_Error);
}
