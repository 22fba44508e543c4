#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(Rounding, goes_to_the_nearest_and_from_exact_halves_to_the_even_neighbour) {
    EXPECT_EQ(Round_Half_Even(0.5), 0);
    EXPECT_EQ(Round_Half_Even(1.5), 2);
    EXPECT_EQ(Round_Half_Even(2.5), 2);
    EXPECT_EQ(Round_Half_Even(62.5), 62);
    EXPECT_EQ(Round_Half_Even(63.5), 64);
    EXPECT_EQ(Round_Half_Even(2.4999), 2);
    EXPECT_EQ(Round_Half_Even(2.5001), 3);
    EXPECT_EQ(Round_Half_Even(-0.5), 0);
    EXPECT_EQ(Round_Half_Even(-1.5), -2);
    EXPECT_EQ(Round_Half_Even(-2.5), -2);
    EXPECT_EQ(Round_Half_Even(-2.6), -3);
    EXPECT_EQ(Round_Half_Even(7), 7);
}

TEST(Narrowing, to_16_bits_takes_what_rounds_into_them) {
    EXPECT_EQ(To_Int16(0), 0);
    EXPECT_EQ(To_Int16(32767), 32767);
    EXPECT_EQ(To_Int16(32767.4), 32767);
    EXPECT_EQ(To_Int16(-32768), -32768);
    EXPECT_EQ(To_Int16(-32768.5), -32768);
    EXPECT_EQ(To_Int16(0.5), 0);
    EXPECT_EQ(To_Int16(-1.5), -2);
}

TEST(Narrowing, to_16_bits_that_overflows_is_a_mistake) {
    for (const double value : {32767.5, 32768.0, -32768.6, -32769.0, 1e9, -1e9, 1e300}) {
        EXPECT_THROW(To_Int16(value), Fatal_Error) << value;
    }
}

TEST(Narrowing, of_no_number_is_a_mistake) {
    EXPECT_THROW(To_Int16(std::nan("")), Fatal_Error);
    EXPECT_THROW(To_Int16(std::numeric_limits<double>::infinity()), Fatal_Error);
    EXPECT_THROW(To_Int16(-std::numeric_limits<double>::infinity()), Fatal_Error);
}

TEST(Narrowing, to_a_byte_takes_0_to_255) {
    EXPECT_EQ(Narrow<std::uint8_t>(0), 0);
    EXPECT_EQ(Narrow<std::uint8_t>(-0.5), 0);
    EXPECT_EQ(Narrow<std::uint8_t>(255), 255);
    EXPECT_EQ(Narrow<std::uint8_t>(254.5), 254);
    EXPECT_THROW(Narrow<std::uint8_t>(255.5), Fatal_Error);
    EXPECT_THROW(Narrow<std::uint8_t>(256), Fatal_Error);
    EXPECT_THROW(Narrow<std::uint8_t>(-1), Fatal_Error);
}

TEST(Narrowing, says_overflow) {
    try {
        To_Int16(40000);
        FAIL() << "no mistake was seen";
    } catch (const Fatal_Error& mistake) {
        EXPECT_STREQ(mistake.what(), "Overflow");
    }
}

TEST(Flags, of_16_bits_are_minus_1_or_0_and_of_8_bits_255_or_0) {
    EXPECT_EQ(static_cast<int>(Flag_16::True), -1);
    EXPECT_EQ(static_cast<int>(Flag_16::False), 0);
    EXPECT_EQ(static_cast<int>(Flag_8::True), 255);
    EXPECT_EQ(static_cast<int>(Flag_8::False), 0);
    EXPECT_EQ(sizeof(Flag_16), 2U);
    EXPECT_EQ(sizeof(Flag_8), 1U);
}

TEST(Flags, are_true_unless_they_are_0) {
    EXPECT_TRUE(Is_True(Flag_16::True));
    EXPECT_TRUE(Is_True(static_cast<Flag_16>(1)));
    EXPECT_FALSE(Is_True(Flag_16::False));
    EXPECT_TRUE(Is_True(Flag_8::True));
    EXPECT_TRUE(Is_True(static_cast<Flag_8>(1)));
    EXPECT_FALSE(Is_True(Flag_8::False));
}
