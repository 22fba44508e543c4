#include "synth/tokens.h"

#include <gtest/gtest.h>

#include "midi/out.h"

namespace {

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

std::string Token(int value) {
    std::string text;
    Append_Token(text, static_cast<std::uint8_t>(value));
    return text;
}

}  // namespace

TEST(Tokens, are_hexadecimal_capitals_without_leading_zero) {
    EXPECT_EQ(Token(0), "0");
    EXPECT_EQ(Token(5), "5");
    EXPECT_EQ(Token(10), "A");
    EXPECT_EQ(Token(16), "10");
    EXPECT_EQ(Token(127), "7F");
    EXPECT_EQ(Token(255), "FF");
}

TEST(Tokens, of_the_channel_are_its_number_less_one) {
    MIDI_Channel = 1;
    EXPECT_EQ(Channel_Token(), "0");
    MIDI_Channel = 10;
    EXPECT_EQ(Channel_Token(), "9");
    MIDI_Channel = 16;
    EXPECT_EQ(Channel_Token(), "F");
}

TEST(Sysex_Text, becomes_one_byte_a_token) {
    EXPECT_EQ(Sysex_Text_To_Bytes("F0 41 36 0 21 20 01 23 7F F7"),
              Bytes({0xF0, 0x41, 0x36, 0, 0x21, 0x20, 1, 0x23, 0x7F, 0xF7}));
}

TEST(Sysex_Text, keeps_zero_bytes_as_ordinary_elements) {
    EXPECT_EQ(Sysex_Text_To_Bytes("0 0 0 F7"), Bytes({0, 0, 0, 0xF7}));
}

TEST(Sysex_Text, gives_one_byte_for_0_and_one_for_127) {
    EXPECT_EQ(Sysex_Text_To_Bytes("0 F7"), Bytes({0, 0xF7}));
    EXPECT_EQ(Sysex_Text_To_Bytes("7F F7"), Bytes({0x7F, 0xF7}));
}

TEST(Sysex_Text, reads_a_token_of_three_digits_as_two_bytes) {
    EXPECT_EQ(Sysex_Text_To_Bytes("247 F0 41"), Bytes({0x24, 0x07, 0xF0, 0x41}));
}

TEST(Sysex_Text, loses_the_end_byte_behind_a_double_blank_after_two_digits) {
    EXPECT_EQ(Sysex_Text_To_Bytes("20  F7"), Bytes({0x20, 0x0F}));
}

TEST(Sysex_Text, keeps_the_end_byte_behind_a_double_blank_after_one_digit) {
    EXPECT_EQ(Sysex_Text_To_Bytes("5  F7"), Bytes({0x05, 0xF7}));
}

TEST(Sysex_Text, never_reads_a_single_last_character) {
    EXPECT_EQ(Sysex_Text_To_Bytes("F0 4"), Bytes({0xF0}));
    EXPECT_EQ(Sysex_Text_To_Bytes("4"), "");
    EXPECT_EQ(Sysex_Text_To_Bytes(""), "");
}

TEST(Sysex_Text, stops_reading_a_pair_at_the_first_character_that_is_no_digit) {
    EXPECT_EQ(Sysex_Text_To_Bytes("4x F7"), Bytes({4, 0xF7}));
    EXPECT_EQ(Sysex_Text_To_Bytes("x4 F7"), Bytes({0, 0xF7}));
    EXPECT_EQ(Sysex_Text_To_Bytes("f7"), Bytes({0xF7}));
}
