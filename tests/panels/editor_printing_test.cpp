// The printing of the panel: complete, level with the thumbs, and inside the window. Whether texts overlap
// on the screen is looked at with the real face by the windows' tests.
#include "panels/editor_printing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace {

const Editor_Row& Row(const std::string& name) {
    return *std::find_if(Editor_Table.begin(), Editor_Table.end(),
                         [&name](const Editor_Row& row) { return name == row.control; });
}

bool Has_Line_At(const Printing& printing, double x, double y) {
    return std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
        return line.points.size() == 2 && line.points[0].y == y && line.points[1].y == y &&
               std::min(line.points[0].x, line.points[1].x) <= x &&
               std::max(line.points[0].x, line.points[1].x) >= x;
    });
}

}  // namespace

TEST(The_Printing, has_the_ten_headings) {
    std::set<std::string> headings;
    for (const Print_Text& text : Editor_Printing().texts) {
        if (text.ink == Ink::Heading) headings.insert(text.text);
    }
    EXPECT_EQ(headings, (std::set<std::string>{"DCO-1", "DCO-2", "DCO", "MIXER", "VCF", "VCA", "LFO",
                                               "ENV-1", "ENV-2", "CHORUS"}));
}

TEST(The_Printing, names_every_control) {
    const Printing printing = Editor_Printing();
    for (const Editor_Row& row : Editor_Table) {
        const std::string caption = Editor_Caption(row);
        EXPECT_NE(caption, "") << row.control;
        const bool above =
            std::any_of(printing.texts.begin(), printing.texts.end(), [&](const Print_Text& text) {
                return text.text == caption && std::abs(text.at.x - (row.left + 8)) <= 8 &&
                       text.at.y < row.top_row && text.at.y > row.top_row - 14;
            });
        EXPECT_TRUE(above) << row.control;
    }
}

TEST(The_Printing, names_every_position_of_every_switch_level_with_the_thumb) {
    const Printing printing = Editor_Printing();
    for (const Editor_Row& row : Editor_Table) {
        if (!Is_Switch(row.type)) continue;
        for (int position = 0; position < Positions(row.type); ++position) {
            EXPECT_NE(Editor_Position_Name(row, position), "") << row.control;
            const double middle = row.bottom_row - position * 10 + 8;
            EXPECT_EQ(Switch_Middle(row, position), middle);
            const bool text_level =
                std::any_of(printing.texts.begin(), printing.texts.end(), [&](const auto& text) {
                    return text.at.y == middle + 3 && std::abs(text.at.x - row.left - 8) <= 20;
                });
            const bool symbol_level =
                std::any_of(printing.lines.begin(), printing.lines.end(), [&](const auto& line) {
                    const auto [low, high] = std::minmax_element(line.points.begin(), line.points.end(),
                                                                 [](auto a, auto b) { return a.y < b.y; });
                    return line.points.size() > 3 && !line.closed && low->y >= middle - 3.01 &&
                           high->y <= middle + 3.01 && std::abs(line.points.front().x - row.left) <= 20;
                });
            EXPECT_TRUE(text_level || symbol_level) << row.control << " " << position;
        }
    }
}

TEST(The_Printing, prints_the_positions_of_the_instrument) {
    const auto names = [](const std::string& control) {
        std::vector<std::string> list;
        for (int position = 0; position < Positions(Row(control).type); ++position) {
            list.push_back(Editor_Position_Name(Row(control), position));
        }
        return list;
    };
    using List = std::vector<std::string>;
    EXPECT_EQ(names("DCO1_Range"), (List{"16'", "8'", "4'", "2'"}));
    EXPECT_EQ(names("DCO2_Waveform"), (List{"Noise", "Square", "Pulse", "Sawtooth"}));
    EXPECT_EQ(names("DCO2_Crossmod"), (List{"OFF", "SYN1", "SYN2", "XMOD"}));
    EXPECT_EQ(names("VCF_Dynamics"), (List{"OFF", "1", "2", "3"}));
    EXPECT_EQ(names("Mixer_Mode"), (List{"ENV-2 inverted", "ENV-2", "ENV-1 inverted", "ENV-1"}));
    EXPECT_EQ(names("VCF_HPF"), (List{"0", "1", "2", "3"}));
    EXPECT_EQ(names("VCA_Mode"), (List{"GATE", "ENV2"}));
    EXPECT_EQ(names("LFO_Waveform"), (List{"Random", "Square", "Triangle"}));
    EXPECT_EQ(names("Chorus_Mode"), (List{"OFF", "1", "2"}));
    EXPECT_EQ(Editor_Position_Name(Row("DCO1_Range"), 4), "");
    EXPECT_EQ(Editor_Position_Name(Row("VCF_Res"), 0), "");
}

TEST(The_Printing, has_a_rail_through_the_middle_of_every_thumb) {
    const Printing printing = Editor_Printing();
    for (const Editor_Row& row : Editor_Table) {
        if (Is_Knob(row.type)) continue;
        const bool rail =
            std::any_of(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
                return line.ink == Ink::Rail && line.points[0].x == row.left + 8 &&
                       line.points[1].x == row.left + 8 && line.points[0].y == row.top_row + 8 &&
                       line.points[1].y == row.bottom_row + 8;
            });
        EXPECT_TRUE(rail) << row.control;
    }
}

TEST(The_Printing, has_a_scale_of_0_to_10_beside_every_slider) {
    const Printing printing = Editor_Printing();
    for (const Editor_Row& row : Editor_Table) {
        if (row.type != Control_Type::Slider) continue;
        for (int unit = 0; unit <= 10; ++unit) {
            EXPECT_TRUE(Has_Line_At(printing, row.left - 2, row.bottom_row + 8 - unit * 8))
                << row.control << unit;
        }
        EXPECT_EQ(Slider_Middle(row, 0), row.bottom_row + 8);
        EXPECT_EQ(Slider_Middle(row, 127), row.top_row + 8);
    }
}

TEST(The_Printing, has_a_mark_a_semitone_round_the_tune_knobs) {
    const Printing printing = Editor_Printing();
    for (const char* name : {"DCO1_Tune", "DCO2_Tune"}) {
        const Editor_Row& row = Row(name);
        const auto marks =
            std::count_if(printing.lines.begin(), printing.lines.end(), [&](const Print_Line& line) {
                const double x = line.points[0].x - (row.left + 14);
                const double y = line.points[0].y - (row.top_row + 12);
                return line.points.size() == 2 && std::abs(std::sqrt(x * x + y * y) - 13.5) < 0.01;
            });
        EXPECT_EQ(marks, 25) << name;
    }
}

TEST(The_Printing, stays_inside_the_window) {
    const Printing printing = Editor_Printing();
    for (const Print_Text& text : printing.texts) {
        EXPECT_GE(text.at.x, 0) << text.text;
        EXPECT_LE(text.at.x, Editor_Width) << text.text;
        EXPECT_GE(text.at.y, 6) << text.text;
        EXPECT_LE(text.at.y, Editor_Height) << text.text;
    }
    for (const Print_Line& line : printing.lines) {
        for (const Print_Point& point : line.points) {
            EXPECT_GE(point.x, 0);
            EXPECT_LE(point.x, Editor_Width);
            EXPECT_GE(point.y, 0);
            EXPECT_LE(point.y, Editor_Height);
        }
    }
}
