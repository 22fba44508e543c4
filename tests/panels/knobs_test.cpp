#include <cmath>

#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/tone.h"
#include "synth/tuning.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

struct Knob_Names {
    const char* body;
    const char* dot;
    std::size_t parameter;
    const char* number;
};
constexpr Knob_Names Tunes[] = {{"DCO1_Tune", "DCO1_Tune_Knopf", 13, "0D"},
                                {"DCO2_Tune", "DCO2_Tune_Knopf", 19, "13"}};
constexpr Knob_Names Fine = {"DCO2_FTune", "DCO2_FTune_Knopf", 20, "14"};

std::string Message(const Knob_Names& knob, const std::string& value) {
    return std::string("F0 41 36 00 21 20 01 ") + knob.number + " " + value + " F7";
}

}  // namespace

using Knobs = Started_Stage;

TEST_F(Knobs, give_the_focus_mark_to_their_dot) {
    for (const Knob_Names& knob : {Tunes[0], Tunes[1], Fine}) {
        Focus(knob.body);
        EXPECT_EQ(Panel_Current_Control, &At(knob.dot));
        Focus("VCF_Res");
        Focus(knob.dot);
        EXPECT_EQ(Panel_Current_Control, &At(knob.dot));
    }
}

TEST_F(Knobs, for_tune_step_by_key_on_body_and_dot_alike) {
    for (const Knob_Names& knob : Tunes) {
        for (const char* name : {knob.body, knob.dot}) {
            Key(name, Key_0);
            Sent();
            Key(name, Key_Up);
            EXPECT_EQ(Sent(), Lines{Message(knob, "48")});
            EXPECT_EQ(Shown(), "1");
            Key(name, Key_Page_Up);
            EXPECT_EQ(Sent(), Lines{Message(knob, "60")});
            EXPECT_EQ(Shown(), "7");
            Key(name, Key_Home);
            EXPECT_EQ(Sent(), Lines{Message(knob, "78")});
            Key(name, Key_End);
            EXPECT_EQ(Sent(), Lines{Message(knob, "00")});
            EXPECT_EQ(Shown(), "-12");
            Key(name, Key_Keypad_0);
            EXPECT_EQ(Sent(), Lines{Message(knob, "38")});
            EXPECT_EQ(Shown(), "0");
        }
    }
}

TEST_F(Knobs, for_tune_stay_at_0_on_Down_and_send_56) {
    Tone_Data[13] = 60;
    Key("DCO1_Tune", Key_Down);
    EXPECT_EQ(Tone_Data[13], 56);
    EXPECT_EQ(Sent(), Lines{Message(Tunes[0], "38")});
    EXPECT_EQ(Shown(), "0");
}

TEST_F(Knobs, for_tune_go_from_5_by_page_down_to_minus_1_and_up_through_0_to_1) {
    Tone_Data[13] = 88;
    Key("DCO1_Tune", Key_Page_Down);
    EXPECT_EQ(Shown(), "-1");
    Key("DCO1_Tune", Key_Up);
    EXPECT_EQ(Shown(), "0");
    Key("DCO1_Tune", Key_Up);
    EXPECT_EQ(Shown(), "1");
}

TEST_F(Knobs, send_on_any_key_normalised_to_the_lowest_byte_of_the_band) {
    Tone_Data[13] = 103;  // 7 semitones
    Key("DCO1_Tune", 65);
    EXPECT_EQ(Sent(), Lines{Message(Tunes[0], "60")});
    Tone_Data[20] = 63;
    Key("DCO2_FTune", 65);
    EXPECT_EQ(Sent(), Lines{Message(Fine, "3F")}) << "a fine tune keeps its byte";
}

TEST_F(Knobs, for_fine_tune_step_by_byte) {
    for (const char* name : {Fine.body, Fine.dot}) {
        Tone_Data[20] = 64;
        Key(name, Key_Down);
        EXPECT_EQ(Tone_Data[20], 63);
        EXPECT_EQ(Shown(), "0");
        Key(name, Key_Keypad_0);
        EXPECT_EQ(Tone_Data[20], 63);
        EXPECT_EQ(Shown(), "0");
        Key(name, Key_Page_Up);
        EXPECT_EQ(Tone_Data[20], 73);
        EXPECT_EQ(Shown(), std::to_string(Panel_Fine_From_Byte(73)));
        Key(name, Key_Home);
        EXPECT_EQ(Tone_Data[20], 127);
        EXPECT_EQ(Shown(), "50");
        Key(name, Key_End);
        EXPECT_EQ(Tone_Data[20], 0);
        EXPECT_EQ(Shown(), "-50");
    }
}

TEST_F(Knobs, show_and_send_their_value_on_a_press) {
    Press("DCO1_Tune");
    EXPECT_EQ(Sent(), Lines{Message(Tunes[0], "38")});
    EXPECT_EQ(Shown(), "0");
    Press("DCO2_FTune_Knopf");
    EXPECT_EQ(Sent(), Lines{Message(Fine, "40")});
    EXPECT_EQ(Shown(), "0");
}

TEST_F(Knobs, for_tune_jump_by_the_pointers_row_first_then_four_pixels_a_semitone) {
    Press("DCO1_Tune");
    Sent();
    Drag("DCO1_Tune", 12);  // row 3: three semitones up at once
    EXPECT_EQ(Shown(), "3");
    EXPECT_EQ(Panel_Knob_Last_Y, 3);
    Drag("DCO1_Tune", 16);
    EXPECT_EQ(Shown(), "4");
    Drag("DCO1_Tune", 17);  // still row 4
    EXPECT_EQ(Shown(), "4");
    Drag("DCO1_Tune", 0);
    EXPECT_EQ(Shown(), "0");
    Drag("DCO1_Tune", -100);
    EXPECT_EQ(Shown(), "-12");
    EXPECT_EQ(Sent(), (Lines{Message(Tunes[0], "50"), Message(Tunes[0], "54"), Message(Tunes[0], "54"),
                             Message(Tunes[0], "38"), Message(Tunes[0], "00")}));
}

TEST_F(Knobs, for_tune_round_half_rows_to_even) {
    Press("DCO1_Tune");
    Drag("DCO1_Tune", 2);  // 0.5
    EXPECT_EQ(Panel_Knob_Last_Y, 0);
    Drag("DCO1_Tune", 6);  // 1.5
    EXPECT_EQ(Panel_Knob_Last_Y, 2);
}

TEST_F(Knobs, for_fine_tune_move_a_byte_a_pixel) {
    Press("DCO2_FTune");
    Sent();
    Drag("DCO2_FTune", 10);
    EXPECT_EQ(Tone_Data[20], 74);
    Drag("DCO2_FTune", 13);
    EXPECT_EQ(Tone_Data[20], 77);
    Drag("DCO2_FTune", 500);
    EXPECT_EQ(Tone_Data[20], 127);
    Drag("DCO2_FTune", -500);
    EXPECT_EQ(Tone_Data[20], 0);
    EXPECT_EQ(Sent(),
              (Lines{Message(Fine, "4A"), Message(Fine, "4D"), Message(Fine, "7F"), Message(Fine, "00")}));
}

TEST_F(Knobs, count_a_drag_from_row_0_again_behind_a_change_of_focus) {
    Press("DCO1_Tune");
    Drag("DCO1_Tune", 12);
    EXPECT_EQ(Panel_Knob_Last_Y, 3);
    Focus("VCF_Res");
    EXPECT_EQ(Panel_Knob_Last_Y, 0);
}

TEST_F(Knobs, place_the_dot_for_every_semitone) {
    for (int semitones = -12; semitones <= 12; ++semitones) {
        Tone_Data[13] = Panel_Tune_To_Byte(semitones);
        Tone_Data[19] = Panel_Tune_To_Byte(-semitones);
        Panel_Apply_Tone();
        const double angle = (12.0 * semitones + 90) * 3.14159265358979323846 / 180;
        EXPECT_EQ(At("DCO1_Tune_Knopf").left, 12 - std::nearbyint(5 * std::cos(angle)));
        EXPECT_EQ(At("DCO1_Tune_Knopf").top, 10 - std::nearbyint(5 * std::sin(angle)));
        EXPECT_EQ(At("DCO2_Tune_Knopf").left, 24 - At("DCO1_Tune_Knopf").left) << "mirrored";
    }
}

TEST_F(Knobs, put_the_dot_up_at_0_right_at_plus_and_left_at_minus) {
    Key("DCO1_Tune", Key_0);
    EXPECT_EQ(At("DCO1_Tune_Knopf").left, 12);
    EXPECT_EQ(At("DCO1_Tune_Knopf").top, 5);
    Key("DCO1_Tune", Key_Home);  // 144 degrees
    EXPECT_EQ(At("DCO1_Tune_Knopf").left, 15);
    EXPECT_EQ(At("DCO1_Tune_Knopf").top, 14);
    Key("DCO1_Tune", Key_End);
    EXPECT_EQ(At("DCO1_Tune_Knopf").left, 9);
    EXPECT_EQ(At("DCO1_Tune_Knopf").top, 14);
    Key("DCO2_FTune", Key_Home);  // 150 degrees
    // Half a pixel beyond, by the last bit of the cosine: 2.5 and a little.
    EXPECT_EQ(At("DCO2_FTune_Knopf").left, 15);
    EXPECT_EQ(At("DCO2_FTune_Knopf").top, 14);
    Press("DCO2_FTune");
    Drag("DCO2_FTune", -200);
    EXPECT_EQ(At("DCO2_FTune_Knopf").left, 9);
}

TEST_F(Knobs, alone_answer_the_placing_of_a_dot) {
    Focus("VCF_Res");
    const int top = At("VCF_Res").top;
    Panel_Scratch_Real = 5;
    Panel_Knob_Dot(12, 10, 12);
    EXPECT_EQ(At("VCF_Res").top, top);
    Panel_Current_Control = nullptr;
    Panel_Knob_Dot(12, 10, 12);
}

TEST_F(Knobs, are_known_by_their_kind_in_any_case) {
    Control dot = {.name = "Tune_Knopf", .kind = "KNH"};
    Panel_Current_Control = &dot;
    Panel_Scratch_Real = 0;
    Panel_Knob_Dot(12, 10, 12);
    EXPECT_EQ(dot.left, 12);
    EXPECT_EQ(dot.top, 5);
}
