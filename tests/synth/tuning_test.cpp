#include "synth/tuning.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace {

struct Band {
    int semitones;
    int first;
    int last;
};

// The instrument's bands.
constexpr std::array<Band, 25> Bands = {{
    {-12, 0, 7},   {-11, 8, 11},  {-10, 12, 15},  {-9, 16, 19},   {-8, 20, 23},
    {-7, 24, 31},  {-6, 32, 35},  {-5, 36, 39},   {-4, 40, 43},   {-3, 44, 47},
    {-2, 48, 51},  {-1, 52, 55},  {0, 56, 71},    {1, 72, 75},    {2, 76, 79},
    {3, 80, 83},   {4, 84, 87},   {5, 88, 91},    {6, 92, 95},    {7, 96, 103},
    {8, 104, 107}, {9, 108, 111}, {10, 112, 115}, {11, 116, 119}, {12, 120, 127},
}};

}  // namespace

TEST(Tuning, reads_every_byte_by_its_band) {
    int bytes = 0;
    for (const Band& band : Bands) {
        for (int byte = band.first; byte <= band.last; ++byte, ++bytes) {
            EXPECT_EQ(Panel_Tune_From_Byte(byte), band.semitones) << byte;
        }
    }
    EXPECT_EQ(bytes, 128);
}

TEST(Tuning, writes_the_lowest_byte_of_a_band) {
    for (const Band& band : Bands) EXPECT_EQ(Panel_Tune_To_Byte(band.semitones), band.first);
}

TEST(Tuning, reads_0_outside_0_to_127) {
    EXPECT_EQ(Panel_Tune_From_Byte(128), 0);
    EXPECT_EQ(Panel_Tune_From_Byte(255), 0);
    EXPECT_EQ(Panel_Tune_From_Byte(-1), 0);
}

TEST(Tuning, writes_0_for_what_is_no_semitone) {
    EXPECT_EQ(Panel_Tune_To_Byte(13), 0);
    EXPECT_EQ(Panel_Tune_To_Byte(-13), 0);
    EXPECT_EQ(Panel_Tune_To_Byte(0.5), 0);
}

TEST(Fine_Tuning, reads_one_more_a_byte_but_for_27_pairs) {
    const std::set<int> second_of_pair = {5,  9,  14, 19, 24, 28, 33, 38,  42,  46,  51,  56,  60, 64,
                                          68, 72, 77, 82, 86, 90, 95, 100, 104, 109, 114, 119, 123};
    int expected = -50;
    for (int byte = 0; byte <= 127; ++byte) {
        if (byte > 0 && !second_of_pair.contains(byte)) ++expected;
        EXPECT_EQ(Panel_Fine_From_Byte(byte), expected) << byte;
    }
}

TEST(Fine_Tuning, has_its_middle_at_63_and_64) {
    EXPECT_EQ(Panel_Fine_From_Byte(0), -50);
    EXPECT_EQ(Panel_Fine_From_Byte(62), -1);
    EXPECT_EQ(Panel_Fine_From_Byte(63), 0);
    EXPECT_EQ(Panel_Fine_From_Byte(64), 0);
    EXPECT_EQ(Panel_Fine_From_Byte(65), 1);
    EXPECT_EQ(Panel_Fine_From_Byte(127), 50);
}

TEST(Fine_Tuning, reads_0_outside_0_to_127) {
    EXPECT_EQ(Panel_Fine_From_Byte(128), 0);
    EXPECT_EQ(Panel_Fine_From_Byte(-1), 0);
}
