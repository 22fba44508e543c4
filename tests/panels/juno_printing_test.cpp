// The printing of the Alpha Juno's panel: complete, level with the thumbs, and inside the window. Whether
// texts overlap on the screen is looked at with the real face by the windows' tests.
#include "panels/juno_printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace {

using List = std::vector<std::string>;

const Juno_Row& Row(const std::string& name) {
    return *std::find_if(Juno_Table.begin(), Juno_Table.end(),
                         [&name](const Juno_Row& row) { return name == row.control; });
}

List Positions(const std::string& control) {
    List list;
    for (int position = 0; !Juno_Position_Name(Row(control), position).empty(); ++position)
        list.push_back(Juno_Position_Name(Row(control), position));
    return list;
}

bool Has_Text(const Printing& printing, const std::string& text, double left, double right, double top,
              double bottom) {
    return std::any_of(printing.texts.begin(), printing.texts.end(), [&](const Print_Text& each) {
        return each.text == text && each.at.x >= left && each.at.x <= right && each.at.y >= top &&
               each.at.y <= bottom;
    });
}

int Top_Row(const Juno_Row& row) {
    const int highest = row.type == Juno_Type::Slider ? 127 : row.positions - 1;
    return std::min(row.row, static_cast<int>(Juno_Middle(row, highest)) - 8);
}

}  // namespace

TEST(The_Juno_Printing, has_these_headings) {
    std::set<std::string> headings;
    for (const Print_Text& text : Juno_Printing().texts) {
        if (text.ink == Ink::Heading) headings.insert(text.text);
    }
    EXPECT_EQ(headings,
              (std::set<std::string>{"DCO", "LFO", "VCF", "VCA", "CHORUS", "ENV", "BENDER", "ALPHA JUNO"}));
}

TEST(The_Juno_Printing, names_every_control_above_its_thumb) {
    const Printing printing = Juno_Printing();
    for (const Juno_Row& row : Juno_Table) {
        EXPECT_NE(Juno_Caption(row), "") << row.control;
        EXPECT_TRUE(
            Has_Text(printing, Juno_Caption(row), row.left, row.left + 16, Top_Row(row) - 14, Top_Row(row)))
            << row.control;
    }
}

TEST(The_Juno_Printing, names_the_envelopes_stages_at_their_sliders_and_in_the_drawing) {
    const Printing printing = Juno_Printing();
    for (const char* stage : {"T1", "L1", "T2", "L2", "T3", "L3", "T4"}) {
        EXPECT_EQ(std::count_if(printing.texts.begin(), printing.texts.end(),
                                [&](const Print_Text& text) { return text.text == stage; }),
                  2)
            << stage;
        EXPECT_TRUE(Has_Text(printing, stage, 0, 356, 404, 454)) << stage;
    }
    EXPECT_EQ(Juno_Caption(Row("ENV_T1")), "T1");
    EXPECT_EQ(Juno_Caption(Row("ENV_L3")), "L3");
    EXPECT_EQ(Juno_Caption(Row("ENV_T4")), "T4");
}

TEST(The_Juno_Printing, prints_the_positions_of_the_instrument) {
    EXPECT_EQ(Positions("DCO_Range"), (List{"4'", "8'", "16'", "32'"}));
    EXPECT_EQ(Positions("DCO_EnvMode"),
              (List{"ENV", "ENV inverted", "ENV with dynamics", "ENV inverted with dynamics"}));
    EXPECT_EQ(Positions("VCF_EnvMode"), (List{"ENV", "ENV inverted", "ENV with dynamics", "DYN"}));
    EXPECT_EQ(Positions("VCA_EnvMode"), (List{"ENV", "GATE", "ENV with dynamics", "GATE with dynamics"}));
    EXPECT_EQ(Positions("DCO_Pulse"), (List{"OFF", "Square", "Pulse", "Pulse Width Modulation"}));
    EXPECT_EQ(Positions("DCO_SawTooth"),
              (List{"OFF", "Sawtooth 1", "Sawtooth 2", "Sawtooth 3", "Sawtooth 4", "Sawtooth 5"}));
    EXPECT_EQ(Positions("DCO_Sub"), (List{"Sub 0", "Sub 1", "Sub 2", "Sub 3", "Sub 4", "Sub 5"}));
    EXPECT_EQ(Positions("DCO_SubLevel"), (List{"OFF", "1", "2", "3"}));
    EXPECT_EQ(Positions("DCO_NoiseLevel"), (List{"OFF", "1", "2", "3"}));
    EXPECT_EQ(Positions("VCF_HPF"), (List{"0", "1", "2", "3"}));
    EXPECT_EQ(Positions("Chorus_OnOff"), (List{"OFF", "ON"}));
    EXPECT_EQ(Positions("Bender_Range"), List{});
    EXPECT_EQ(Positions("VCF_Res"), List{});
    EXPECT_EQ(Juno_Position_Name(Row("DCO_Range"), -1), "");
}

TEST(The_Juno_Printing, has_a_name_or_a_drawing_level_with_the_thumb_at_every_position) {
    const Printing printing = Juno_Printing();
    for (const Juno_Row& row : Juno_Table) {
        if (row.type == Juno_Type::Slider || row.parameter == 35) continue;
        ASSERT_EQ(Positions(row.control).size(), static_cast<std::size_t>(row.positions)) << row.control;
        for (int position = 0; position < row.positions; ++position) {
            const double middle = Juno_Middle(row, position);
            const int sign = row.type == Juno_Type::Inverted ? 1 : -1;
            EXPECT_EQ(middle, row.row + sign * position * 10 + 8);
            const bool drawn =
                std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
                    const auto [low, high] = std::minmax_element(line.points.begin(), line.points.end(),
                                                                 [](auto a, auto b) { return a.y < b.y; });
                    return line.points.size() > 3 && !line.closed && low->y >= middle - 3.01 &&
                           high->y <= middle + 3.01 && line.points.front().x > row.left - 20 &&
                           line.points.back().x < row.left;
                });
            const std::string name = Juno_Position_Name(row, position);
            EXPECT_TRUE(drawn || Has_Text(printing, name, row.left - 20, row.left, middle + 3, middle + 3))
                << row.control << position;
        }
    }
}

TEST(The_Juno_Printing, draws_every_waveform_differently) {
    std::set<std::string> shapes;
    int drawn = 0;
    for (const Print_Line& line : Juno_Printing().lines) {
        const bool wave = line.points.size() > 3 && !line.closed && line.points.front().y < 100 &&
                          line.points.front().x > 200 && line.points.front().x < 320;
        if (!wave) continue;
        ++drawn;
        std::string shape;
        const double x = line.points.front().x;
        const double y = line.points.front().y;
        for (const Print_Point& point : line.points)
            shape += std::to_string(point.x - x) + " " + std::to_string(point.y - y) + ", ";
        shapes.insert(shape);
    }
    EXPECT_EQ(drawn, 3 + 5 + 6);
    // The sub's two lowest are the pulse's first two, two octaves below.
    EXPECT_EQ(shapes.size(), 12U);
}

TEST(The_Juno_Printing, numbers_the_bender_from_0_to_12_a_mark_a_semitone) {
    const Printing printing = Juno_Printing();
    const Juno_Row& row = Row("Bender_Range");
    for (int semitones = 0; semitones <= 12; ++semitones) {
        const double y = 330 - semitones * 2;
        EXPECT_EQ(Juno_Middle(row, semitones), y);
        EXPECT_TRUE(std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
            return line.points.size() == 2 && line.points[0].y == y && line.points[1].y == y &&
                   line.points[1].x == row.left - 1;
        })) << semitones;
    }
    for (const auto& [text, y] : {std::pair{"0", 333}, {"6", 321}, {"12", 309}})
        EXPECT_TRUE(Has_Text(printing, text, row.left - 10, row.left, y, y)) << text;
}

TEST(The_Juno_Printing, has_a_rail_through_the_middle_of_every_thumb) {
    const Printing printing = Juno_Printing();
    for (const Juno_Row& row : Juno_Table) {
        const int highest = row.type == Juno_Type::Slider ? 127 : row.positions - 1;
        const double one = Juno_Middle(row, 0);
        const double other = Juno_Middle(row, highest);
        EXPECT_TRUE(std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
            return line.ink == Ink::Rail && line.points[0].x == row.left + 8 &&
                   line.points[1].x == row.left + 8 && line.points[0].y == std::min(one, other) &&
                   line.points[1].y == std::max(one, other);
        })) << row.control;
    }
}

TEST(The_Juno_Printing, has_a_scale_of_0_to_10_beside_every_slider) {
    const Printing printing = Juno_Printing();
    for (const Juno_Row& row : Juno_Table) {
        if (row.type != Juno_Type::Slider) continue;
        for (int unit = 0; unit <= 10; ++unit) {
            const double y = row.row + 8 - unit * 8;
            EXPECT_TRUE(std::any_of(printing.lines.begin(), printing.lines.end(),
                                    [&](const Print_Line& line) {
                                        return line.points.size() == 2 && line.points[0].y == y &&
                                               line.points[1].y == y && line.points[1].x == row.left - 1;
                                    }))
                << row.control << unit;
        }
    }
}

TEST(The_Juno_Printing, stays_inside_the_window) {
    const Printing printing = Juno_Printing();
    for (const Print_Text& text : printing.texts) {
        EXPECT_GE(text.at.x, 0) << text.text;
        EXPECT_LE(text.at.x, 528) << text.text;
        EXPECT_GE(text.at.y, 6) << text.text;
        EXPECT_LE(text.at.y, 456) << text.text;
    }
    for (const Print_Line& line : printing.lines) {
        for (const Print_Point& point : line.points) {
            EXPECT_GE(point.x, 0);
            EXPECT_LE(point.x, 528);
            EXPECT_GE(point.y, 0);
            EXPECT_LE(point.y, 456);
        }
    }
}
