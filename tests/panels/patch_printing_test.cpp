// The printing of the two patch windows: every lamp and every position by the instrument's own name, level
// with where it stands.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "panels/mks_patch_printing.h"
#include "panels/mks_patch_table.h"
#include "panels/patch_printing.h"
#include "panels/patch_table.h"

namespace {

bool Has_Text(const Printing& printing, const std::string& words, double from_x, double to_x, double y) {
    return std::any_of(printing.texts.begin(), printing.texts.end(), [&](const Print_Text& text) {
        return text.text == words && text.at.x >= from_x && text.at.x <= to_x &&
               std::abs(text.at.y - y) < 0.6;
    });
}

bool Has_Rail(const Printing& printing, int left, int top_row, int bottom_row) {
    return std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
        return line.ink == Ink::Rail && line.points[0].x == left + 8 && line.points[0].y == top_row + 8 &&
               line.points[1].y == bottom_row + 8;
    });
}

}  // namespace

TEST(The_Patch_Printing, names_every_lamp_beside_it) {
    const Printing printing = Patch_Printing();
    const char* const key_modes[] = {"POLY 1", "UNISON 1", "SOLO 1", "POLY 2", "UNISON 2", "SOLO 2"};
    for (int item = 0; item < 6; ++item) {
        EXPECT_TRUE(Has_Text(printing, key_modes[item], 166, 172, 17 + item * 15 + 10)) << item;
    }
    const char* const targets[] = {"OFF", "VIBRATO", "BRILLIANCE", "VOLUME"};
    for (int item = 0; item < 4; ++item) {
        EXPECT_TRUE(Has_Text(printing, targets[item], 236, 242, 17 + item * 15 + 10)) << item;
    }
}

TEST(The_Patch_Printing, names_every_position_of_the_switches_level_with_the_thumb) {
    const Printing printing = Patch_Printing();
    const char* const semitones[] = {"2", "3", "4", "7"};
    for (int position = 0; position < 4; ++position) {
        EXPECT_TRUE(Has_Text(printing, semitones[position], 133, 140, 58 - position * 10 + 11)) << position;
    }
    EXPECT_TRUE(Has_Text(printing, "ON", 36, 42, 133 + 11));
    EXPECT_TRUE(Has_Text(printing, "OFF", 36, 42, 143 + 11));
}

TEST(The_Patch_Printing, has_a_rail_under_every_thumb_and_a_scale_at_the_sliders) {
    const Printing printing = Patch_Printing();
    EXPECT_TRUE(Has_Rail(printing, 20, 28, 108));
    EXPECT_TRUE(Has_Rail(printing, 86, 28, 108));
    EXPECT_TRUE(Has_Rail(printing, 20, 133, 143));
    EXPECT_TRUE(Has_Rail(printing, 117, 28, 58));
    for (const int left : {20, 86}) {
        for (const auto& [figure, row] : {std::pair{"0", 108}, {"5", 68}, {"10", 28}}) {
            EXPECT_TRUE(Has_Text(printing, figure, left - 8, left, row + 11)) << left << figure;
        }
    }
}

TEST(The_Patch_Printing, names_its_groups_and_the_ends_of_the_detune) {
    const Printing printing = Patch_Printing();
    std::vector<std::string> headings;
    for (const Print_Text& text : printing.texts) {
        if (text.ink == Ink::Heading) headings.push_back(text.text);
    }
    EXPECT_EQ(headings, (std::vector<std::string>{"PORTAMENTO", "BENDER", "KEY MODE", "AFTER TOUCH",
                                                  "UNISON DETUNE"}));
    EXPECT_TRUE(Has_Text(printing, "-50", 150, 175, 164));
    EXPECT_TRUE(Has_Text(printing, "+50", 175, 200, 164));
}

TEST(The_MKS_70_Patch_Printing, names_every_lamp_beside_it) {
    const Printing printing = MKS_Patch_Printing();
    const std::vector<std::pair<const char*, std::pair<int, int>>> lamps = {
        {"DUAL", {8, 23}},      {"SPLIT", {8, 38}},       {"X-FADE", {8, 53}},      {"T-VOICE", {8, 68}},
        {"WHOLE A", {8, 83}},   {"WHOLE B", {8, 98}},     {"A-B", {86, 189}},       {"A-B-A", {86, 174}},
        {"A-B-B", {86, 159}},   {"POLY 1", {255, 322}},   {"UNISON 1", {255, 337}}, {"MONO 1", {255, 352}},
        {"POLY 2", {255, 367}}, {"UNISON 2", {255, 382}}, {"MONO 2", {255, 397}}};
    for (const auto& [name, place] : lamps) {
        EXPECT_TRUE(Has_Text(printing, name, place.first + 14, place.first + 20, place.second + 10))
            << name;
    }
}

TEST(The_MKS_70_Patch_Printing, has_a_rail_that_ends_under_every_thumb) {
    const Printing printing = MKS_Patch_Printing();
    const std::vector<std::pair<std::string, int>> travels = {
        {"AFT_Vibrato", 80}, {"AFT_Brilliance", 80}, {"AFT_Volume", 80}, {"Bend_range", 30},
        {"Portamento", 80},  {"Portamento_Sw", 10},  {"Bender", 10},     {"Hold", 10},
        {"Chase_Level", 80}, {"Chase_Time", 80},     {"Chase_Play", 10}, {"LFO_Mod_Depth", 80},
        {"Total_Volume", 80}};
    ASSERT_EQ(travels.size(), MKS_Thumbs.size());
    for (const auto& [name, travel] : travels) {
        const auto* row =
            std::find_if(MKS_Thumbs.begin(), MKS_Thumbs.end(),
                         [&, &name = name](const MKS_Row& candidate) { return candidate.control == name; });
        ASSERT_NE(row, MKS_Thumbs.end()) << name;
        EXPECT_TRUE(Has_Rail(printing, row->left, row->top - travel, row->top)) << name;
    }
}
