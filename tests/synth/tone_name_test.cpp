#include "synth/tone_name.h"

#include <gtest/gtest.h>

#include "synth/tone.h"

namespace {

std::string First_Eleven() {
    return {Tone_Data.begin(), Tone_Data.begin() + 11};
}

}  // namespace

TEST(Name_In_The_Record, of_ten_characters_fills_0_to_9_and_blanks_10) {
    Tone_Data.fill(7);
    Tone_Name_Text = "SOLO BRASS";
    Tone_Name_To_Data();
    EXPECT_EQ(First_Eleven(), "SOLO BRASS ");
    EXPECT_EQ(Tone_Data[11], 7);
}

TEST(Name_In_The_Record, that_is_short_or_empty_has_blanks_behind_it) {
    Tone_Data.fill(7);
    Tone_Name_Text = "PAD";
    Tone_Name_To_Data();
    EXPECT_EQ(First_Eleven(), "PAD        ");
    Tone_Name_Text = "";
    Tone_Name_To_Data();
    EXPECT_EQ(First_Eleven(), "           ");
    EXPECT_EQ(Tone_Data[11], 7);
}

TEST(Name_In_The_Record, keeps_every_ansi_character_as_its_byte) {
    Tone_Name_Text = "\xC4\x80\x9F\xFF a";
    Tone_Name_To_Data();
    EXPECT_EQ(First_Eleven(), "\xC4\x80\x9F\xFF a     ");
}

TEST(Name_In_The_Record, of_too_many_characters_goes_no_further_than_10) {
    Tone_Data.fill(7);
    Tone_Name_Text = "ABCDEFGHIJKLMNO";
    Tone_Name_To_Data();
    EXPECT_EQ(First_Eleven().substr(0, 10), "ABCDEFGHIJ");
    EXPECT_EQ(Tone_Data[11], 7);
}

TEST(A_Name, is_shown_without_blanks_at_its_ends_and_in_capitals) {
    EXPECT_EQ(Tone_Name_Of("  bass 1 "), "BASS 1");
    EXPECT_EQ(Tone_Name_Of("\tb\xE4ss"), "\tB\xC4SS");
    EXPECT_EQ(Tone_Name_Of("    "), "");
    EXPECT_EQ(Tone_Name_Of(""), "");
}
