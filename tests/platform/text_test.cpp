#include "platform/text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

TEST(Text, loses_blanks_and_tabs_at_its_ends_and_keeps_those_inside) {
    EXPECT_EQ(Trimmed("  Synth  Out \t"), "Synth  Out");
    EXPECT_EQ(Trimmed("\t \t"), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Right_Trimmed("  Synth Out \t"), "  Synth Out");
    EXPECT_EQ(Right_Trimmed(" \t "), "");
}

TEST(Text, keeps_line_ends_and_zero_characters_at_its_ends) {
    EXPECT_EQ(Trimmed(" a\n "), "a\n");
    EXPECT_EQ(Trimmed(std::string_view(" a\0 ", 4)), std::string_view("a\0", 2));
}

TEST(Text, is_the_same_whatever_the_case_of_the_letters_a_to_z) {
    EXPECT_TRUE(Same_Text("Alpha Juno", "aLPHA jUNO"));
    EXPECT_TRUE(Same_Text("", ""));
    EXPECT_TRUE(Same_Text("AZaz", "azAZ"));
    EXPECT_FALSE(Same_Text("JX-8P", "JX-8"));
    EXPECT_FALSE(Same_Text("JX-8", "JX-8P"));
    EXPECT_FALSE(Same_Text("", " "));
}

TEST(Text, differs_in_the_neighbours_of_the_letters_and_in_letters_with_marks) {
    EXPECT_FALSE(Same_Text("@", "`"));
    EXPECT_FALSE(Same_Text("[", "{"));
    EXPECT_FALSE(Same_Text("\xC3\x84", "\xC3\xA4"));
}

TEST(Text, ends_before_its_first_zero_character) {
    EXPECT_EQ(Cut_At_Zero(std::string_view("Synth\0Out\0", 10)), "Synth");
    EXPECT_EQ(Cut_At_Zero(std::string_view("\0Synth", 6)), "");
    EXPECT_EQ(Cut_At_Zero("Synth"), "Synth");
}

TEST(Text, is_cut_to_a_number_of_bytes) {
    EXPECT_EQ(Cut_To_Bytes("Synth", 5), "Synth");
    EXPECT_EQ(Cut_To_Bytes("Synth", 6), "Synth");
    EXPECT_EQ(Cut_To_Bytes("Synth", 4), "Synt");
    EXPECT_EQ(Cut_To_Bytes("Synth", 0), "");
    EXPECT_EQ(Cut_To_Bytes("", 0), "");
}

TEST(Text, is_never_cut_inside_a_character) {
    const std::string two = "a\xC3\xA4z";
    EXPECT_EQ(Cut_To_Bytes(two, 1), "a");
    EXPECT_EQ(Cut_To_Bytes(two, 2), "a");
    EXPECT_EQ(Cut_To_Bytes(two, 3), "a\xC3\xA4");
    const std::string three = "a\xE2\x82\xACz";
    EXPECT_EQ(Cut_To_Bytes(three, 2), "a");
    EXPECT_EQ(Cut_To_Bytes(three, 3), "a");
    EXPECT_EQ(Cut_To_Bytes(three, 4), "a\xE2\x82\xAC");
    const std::string four = "a\xF0\x9F\x8E\xB9z";
    for (const std::size_t bytes : {2U, 3U, 4U}) EXPECT_EQ(Cut_To_Bytes(four, bytes), "a") << bytes;
    EXPECT_EQ(Cut_To_Bytes(four, 5), "a\xF0\x9F\x8E\xB9");
}

TEST(Text, that_is_no_utf_8_is_cut_near_the_place_all_the_same) {
    const std::string rubbish(10, '\x80');
    EXPECT_EQ(Cut_To_Bytes(rubbish, 5).size(), 2U);
    EXPECT_EQ(Cut_To_Bytes(rubbish, 2).size(), 0U);
}

TEST(Number_At_The_Start, is_read_with_sign_fraction_and_exponent) {
    EXPECT_EQ(Number_At_Start("12"), 12);
    EXPECT_EQ(Number_At_Start(" -3.5x"), -3.5);
    EXPECT_EQ(Number_At_Start("1e2"), 100);
    EXPECT_EQ(Number_At_Start("1E2"), 100);
    EXPECT_EQ(Number_At_Start("2.5e-1 rest"), 0.25);
    EXPECT_EQ(Number_At_Start("+5"), 5);
    EXPECT_EQ(Number_At_Start(".5"), 0.5);
    EXPECT_EQ(Number_At_Start("-.5"), -0.5);
    EXPECT_EQ(Number_At_Start("7."), 7);
    EXPECT_EQ(Number_At_Start("\t 7 \t"), 7);
    EXPECT_EQ(Number_At_Start("007"), 7);
    EXPECT_EQ(Number_At_Start("1e9"), 1e9);
}

TEST(Number_At_The_Start, ends_where_the_text_goes_on_otherwise) {
    EXPECT_EQ(Number_At_Start("3 4"), 3);
    EXPECT_EQ(Number_At_Start("5,7"), 5);
    EXPECT_EQ(Number_At_Start("0x10"), 0);
    EXPECT_EQ(Number_At_Start("1e"), 1);
    EXPECT_EQ(Number_At_Start("1e+"), 1);
    EXPECT_EQ(Number_At_Start("1.2.3"), 1.2);
    EXPECT_EQ(Number_At_Start("16-1"), 16);
    EXPECT_EQ(Number_At_Start(std::string_view("4\0002", 3)), 4);
}

TEST(Number_At_The_Start, is_0_where_there_is_none) {
    for (const char* text :
         {"",    "  ",  "abc", "x5",   "-",  "+",   ".",    "-.",       "--3", "+-3", "-+3",
          "++3", "- 3", "..5", "-.-5", "e5", "inf", "-inf", "infinity", "nan", "NAN", "\n"}) {
        EXPECT_EQ(Number_At_Start(text), 0) << text;
    }
}

TEST(Number_At_The_Start, is_0_where_it_is_too_large_or_too_small_to_hold) {
    EXPECT_EQ(Number_At_Start("1e999"), 0);
    EXPECT_EQ(Number_At_Start("-1e999"), 0);
    EXPECT_EQ(Number_At_Start("1e-999"), 0);
    EXPECT_EQ(Number_At_Start(std::string(400, '9')), 0);
}

TEST(Text_In_Capitals, changes_the_letters_a_to_z_only) {
    EXPECT_EQ(Upper_Text("/home/Me/az-{`09.syx"), "/HOME/ME/AZ-{`09.SYX");
    EXPECT_EQ(Upper_Text("b\xC3\xA4ss"), "B\xC3\xA4SS") << "UTF-8 stays whole";
    EXPECT_EQ(Upper_Text(""), "");
}

TEST(Text_In_Small_Letters, changes_the_letters_a_to_z_only) {
    EXPECT_EQ(Lower_Text("/Home/TONES/Az@[`{"), "/home/tones/az@[`{");
    EXPECT_EQ(Lower_Text("KL\xC3\x84NGE"), "kl\xC3\x84nge");
    EXPECT_EQ(Lower_Text(""), "");
}

TEST(Plain_Number, has_seven_digits_a_point_and_no_exponent) {
    for (const auto& [number, text] : {std::pair{541.0F, "541"},
                                       {0.0F, "0"},
                                       {-0.0F, "0"},
                                       {160.0F / 15, "10.66667"},
                                       {1.0F / 15, "0.06666667"},
                                       {1.0F / 12, "0.08333334"},
                                       {10.5F, "10.5"},
                                       {-0.5F, "-0.5"},
                                       {100.0F, "100"},
                                       {32767.0F / 15, "2184.467"},
                                       {-2184.533F, "-2184.533"},
                                       {1e7F, "10000000"},
                                       {1e-5F, "0.00001"},
                                       {9.9999999F, "10"}}) {
        EXPECT_EQ(Plain_Number(number), text);
    }
}

TEST(Plain_Number, is_a_number_at_both_ends_of_the_range) {
    EXPECT_EQ(Plain_Number(std::numeric_limits<float>::max()), "340282346638528859811704183484516925440");
    EXPECT_EQ(Number_At_Start(Plain_Number(std::numeric_limits<float>::min())) > 0, true);
    EXPECT_EQ(Plain_Number(std::numeric_limits<float>::infinity()), "0");
    EXPECT_EQ(Plain_Number(std::numeric_limits<float>::quiet_NaN()), "0");
}

TEST(Plain_Number, of_every_place_in_twips_gives_the_place_again) {
    for (const int twips_per_pixel : {12, 15}) {
        for (int twips = -32768; twips <= 32767; ++twips) {
            const std::string text =
                Plain_Number(static_cast<float>(twips) / static_cast<float>(twips_per_pixel));
            ASSERT_EQ(std::nearbyint(Number_At_Start(text) * twips_per_pixel), twips) << text;
        }
    }
}
