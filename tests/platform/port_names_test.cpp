#include "platform/port_names.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Names = std::vector<std::string>;

std::string Single(const std::string& raw) {
    const Names names = Port_Names_Stable({raw});
    return names.size() == 1 ? names[0] : "not one name";
}

}  // namespace

TEST(Port_Names, the_changing_alsa_tail_is_cut) {
    EXPECT_EQ(Single("UM-ONE:UM-ONE MIDI 1 20:0"), "UM-ONE:UM-ONE MIDI 1");
    EXPECT_EQ(Single("Midi Through:Midi Through Port-0 14:0"), "Midi Through:Midi Through Port-0");
    EXPECT_EQ(Single("JX:out 128:15"), "JX:out");
}

TEST(Port_Names, what_only_looks_like_the_alsa_tail_stays) {
    EXPECT_EQ(Single("midi-monitor:input"), "midi-monitor:input");
    EXPECT_EQ(Single("system:midi_playback_1"), "system:midi_playback_1");
    EXPECT_EQ(Single("UM-ONE:MIDI 1"), "UM-ONE:MIDI 1");
    EXPECT_EQ(Single("box 20:"), "box 20:");
    EXPECT_EQ(Single("box :0"), "box :0");
    EXPECT_EQ(Single("box20:0"), "box20:0");
    EXPECT_EQ(Single("20:0"), "20:0");
    EXPECT_EQ(Single("box 20:0 in"), "box 20:0 in");
}

TEST(Port_Names, only_one_tail_is_cut) {
    EXPECT_EQ(Single("box 1:2 20:0"), "box 1:2");
}

TEST(Port_Names, a_name_ends_at_a_zero_character) {
    EXPECT_EQ(Single(std::string("UM-ONE\0rest 20:0", 16)), "UM-ONE");
    EXPECT_EQ(Single(std::string("UM-ONE 20:0\0", 12)), "UM-ONE");
}

TEST(Port_Names, blanks_at_the_ends_are_trimmed) {
    EXPECT_EQ(Single("  UM-ONE \t"), "UM-ONE");
    EXPECT_EQ(Single(" UM-ONE   20:0 "), "UM-ONE");
}

TEST(Port_Names, equal_names_are_numbered_in_their_order) {
    EXPECT_EQ(Port_Names_Stable({"UM-ONE:1 20:0", "Synth:1 24:0", "UM-ONE:1 28:0", "UM-ONE:1 32:0"}),
              (Names{"UM-ONE:1", "Synth:1", "UM-ONE:1 (2)", "UM-ONE:1 (3)"}));
}

TEST(Port_Names, a_port_that_is_really_called_so_keeps_its_name) {
    EXPECT_EQ(Port_Names_Stable({"A", "A", "A (2)"}), (Names{"A", "A (3)", "A (2)"}));
    EXPECT_EQ(Port_Names_Stable({"A (2)", "A", "A"}), (Names{"A (2)", "A", "A (3)"}));
    EXPECT_EQ(Port_Names_Stable({"A", "A", "A (2)", "A (2)"}), (Names{"A", "A (3)", "A (2)", "A (2) (2)"}));
}

TEST(Port_Names, upper_and_lower_case_make_different_names) {
    EXPECT_EQ(Port_Names_Stable({"a", "A"}), (Names{"a", "A"}));
}

TEST(Port_Names, a_name_has_at_most_63_bytes) {
    EXPECT_EQ(Single(std::string(63, 'x')), std::string(63, 'x'));
    EXPECT_EQ(Single(std::string(64, 'x')), std::string(63, 'x'));
    EXPECT_EQ(Single(std::string(10000, 'x')), std::string(63, 'x'));
    EXPECT_EQ(Single(std::string(10000, 'x') + " 20:0"), std::string(63, 'x'));
}

TEST(Port_Names, a_cut_name_does_not_end_in_a_blank) {
    EXPECT_EQ(Single(std::string(62, 'x') + " yyy"), std::string(62, 'x'));
}

TEST(Port_Names, a_cut_name_does_not_end_inside_a_character) {
    EXPECT_EQ(Single(std::string(62, 'x') + "\xC3\xA4"), std::string(62, 'x'));
    EXPECT_EQ(Single(std::string(61, 'x') + "\xC3\xA4"), std::string(61, 'x') + "\xC3\xA4");
    EXPECT_EQ(Single(std::string(60, 'x') + "\xF0\x9F\x8E\xB9"), std::string(60, 'x'));
    EXPECT_EQ(Single(std::string(59, 'x') + "\xF0\x9F\x8E\xB9"), std::string(59, 'x') + "\xF0\x9F\x8E\xB9");
}

TEST(Port_Names, the_mark_counts_in_the_63_bytes) {
    const Names names = Port_Names_Stable({std::string(100, 'x') + "1", std::string(100, 'x') + "2"});
    EXPECT_EQ(names, (Names{std::string(63, 'x'), std::string(59, 'x') + " (2)"}));
    const std::string wide = std::string(58, 'x') + "\xC3\xA4" + "yyy";
    EXPECT_EQ(Port_Names_Stable({wide, wide}), (Names{wide, std::string(58, 'x') + " (2)"}));
}

TEST(Port_Names, a_marked_name_that_meets_another_port_gets_the_next_number) {
    const std::string taken = std::string(59, 'x') + " (2)";
    const std::string longer(63, 'x');
    EXPECT_EQ(Port_Names_Stable({taken, longer, longer}),
              (Names{taken, longer, std::string(59, 'x') + " (3)"}));
}

TEST(Port_Names, bytes_that_are_no_utf8_become_question_marks) {
    EXPECT_EQ(Single("M\xFCller"), "M?ller");
    EXPECT_EQ(Single("M\xC3"), "M?");                        // cut inside a character
    EXPECT_EQ(Single("\xC0\x80"), "??");                     // overlong
    EXPECT_EQ(Single("\xED\xA0\x80"), "???");                // a surrogate
    EXPECT_EQ(Single("\xF4\x90\x80\x80"), "????");           // past the last character
    EXPECT_EQ(Single("\xE2\x82\xAC\x82"), "\xE2\x82\xAC?");  // one byte too many
    EXPECT_EQ(Single(std::string(10000, '\x80')), std::string(63, '?'));
}

TEST(Port_Names, a_name_is_one_line) {
    EXPECT_EQ(Single("UM\nONE\x7F!\r\n"), "UM ONE !");
}

TEST(Port_Names, an_empty_name_stays_empty_and_a_second_one_is_a_bare_mark) {
    EXPECT_EQ(Single(""), "");
    EXPECT_EQ(Single("  \t "), "");
    EXPECT_EQ(Single(" 20:0"), "20:0");  // a tail without a name before it is the name
    EXPECT_EQ(Port_Names_Stable({"", "", " ", "(2)"}), (Names{"", "(3)", "(4)", "(2)"}));
}

TEST(Port_Names, no_ports_give_no_names) {
    EXPECT_TRUE(Port_Names_Stable({}).empty());
}

TEST(Port_Names, ten_thousand_equal_ports_get_ten_thousand_names_that_fit) {
    const Names names = Port_Names_Stable(Names(10000, std::string(70, 'x')));
    for (const std::string& name : names) EXPECT_LE(name.size(), 63U);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 10000U);
    EXPECT_EQ(names.back(), std::string(55, 'x') + " (10000)");
}
