#include "platform/profile_file.h"

#include <gtest/gtest.h>

namespace {

std::string Value(const std::string& text, const std::string& section = "MIDI",
                  const std::string& key = "Channel") {
    return Profile_Value(text, section, key, "(missing)");
}

std::string With(const std::string& text, const std::string& value, const std::string& section = "MIDI",
                 const std::string& key = "Channel") {
    return Profile_With_Value(text, section, key, value);
}

}  // namespace

TEST(Profile_File, gives_the_value_of_a_key_in_its_section) {
    const std::string text = "[Main Window]\nLeft=10\n[MIDI]\nChannel=5\nOutput=Synth Out\n";
    EXPECT_EQ(Value(text), "5");
    EXPECT_EQ(Value(text, "MIDI", "Output"), "Synth Out");
    EXPECT_EQ(Value(text, "Main Window", "Left"), "10");
}

TEST(Profile_File, gives_the_default_for_a_missing_section_or_key) {
    EXPECT_EQ(Value(""), "(missing)");
    EXPECT_EQ(Value("[MIDI]\n"), "(missing)");
    EXPECT_EQ(Value("Channel=5\n"), "(missing)") << "outside of any section";
    EXPECT_EQ(Value("[Other]\nChannel=5\n"), "(missing)");
    EXPECT_EQ(Value("[MIDI]\nOutput=x\n[Other]\nChannel=5\n"), "(missing)");
    EXPECT_EQ(Value("[MIDI]\nChannels=5\nChann=5\n"), "(missing)");
}

TEST(Profile_File, gives_an_empty_value_where_the_key_has_none) {
    EXPECT_EQ(Value("[MIDI]\nChannel=\n"), "");
    EXPECT_EQ(Value("[MIDI]\nChannel=   \n"), "");
    EXPECT_EQ(Value("[MIDI]\nChannel\n"), "(missing)") << "no equals sign, no key";
}

TEST(Profile_File, compares_sections_and_keys_without_regard_to_case) {
    EXPECT_EQ(Value("[midi]\nCHANNEL=5\n"), "5");
    EXPECT_EQ(Value("[MIDI]\nChannel=5\n", "mIdI", "cHaNnEl"), "5");
}

TEST(Profile_File, keeps_the_case_of_values) {
    EXPECT_EQ(Value("[MIDI]\nChannel=JX-8p\n"), "JX-8p");
}

TEST(Profile_File, has_blanks_round_sections_keys_and_values_that_do_not_count) {
    EXPECT_EQ(Value("  [ MIDI ]  \n\t Channel \t=\t 5 6 \t\n"), "5 6");
}

TEST(Profile_File, drops_one_pair_of_quotation_marks_round_a_value) {
    EXPECT_EQ(Value("[MIDI]\nChannel=\" 5 \"\n"), " 5 ");
    EXPECT_EQ(Value("[MIDI]\nChannel='5'\n"), "5");
    EXPECT_EQ(Value("[MIDI]\nChannel=\"\"5\"\"\n"), "\"5\"");
    EXPECT_EQ(Value("[MIDI]\nChannel=\"\"\n"), "");
    EXPECT_EQ(Value("[MIDI]\nChannel=\"5\n"), "\"5");
    EXPECT_EQ(Value("[MIDI]\nChannel=\"5'\n"), "\"5'");
    EXPECT_EQ(Value("[MIDI]\nChannel=\"\n"), "\"");
}

TEST(Profile_File, ends_the_key_at_the_first_equals_sign) {
    EXPECT_EQ(Value("[MIDI]\nChannel=a=b\n"), "a=b");
}

TEST(Profile_File, lets_the_first_section_and_the_first_key_of_a_name_win) {
    EXPECT_EQ(Value("[MIDI]\nChannel=1\nChannel=2\n"), "1");
    EXPECT_EQ(Value("[MIDI]\nChannel=1\n[MIDI]\nChannel=2\n"), "1");
    EXPECT_EQ(Value("[MIDI]\n[MIDI]\nChannel=2\n"), "(missing)");
}

TEST(Profile_File, skips_comments_and_keeps_a_semicolon_inside_a_value) {
    EXPECT_EQ(Value("[MIDI]\n;Channel=1\n  ; Channel=2\nChannel=3\n"), "3");
    EXPECT_EQ(Value(";[MIDI]\nChannel=1\n"), "(missing)");
    EXPECT_EQ(Value("[MIDI]\nChannel=3;4\n"), "3;4");
}

TEST(Profile_File, reads_all_three_kinds_of_line_ends_and_none_at_all) {
    EXPECT_EQ(Value("[MIDI]\r\nChannel=5\r\nOutput=x\r\n"), "5");
    EXPECT_EQ(Value("[MIDI]\rChannel=5\rOutput=x\r"), "5");
    EXPECT_EQ(Value("[MIDI]\nChannel=5"), "5");
    EXPECT_EQ(Value("[MIDI] Channel=5"), "(missing)");
    EXPECT_EQ(Value("\n\n[MIDI]\n\n\nChannel=5\n"), "5");
}

TEST(Profile_File, skips_lines_that_only_look_like_sections) {
    EXPECT_EQ(Value("[MIDI\nChannel=5\n"), "(missing)");
    EXPECT_EQ(Value("xMIDI]\nChannel=5\n"), "(missing)");
    EXPECT_EQ(Value("[MIDI]\n[Other\nChannel=5\n"), "5");
    EXPECT_EQ(Value("[MIDI] ; the port\nChannel=5\n"), "5");
    EXPECT_EQ(Value("[]\nChannel=5\n"), "(missing)");
}

TEST(Profile_File, may_be_any_bytes) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    EXPECT_EQ(Value(bytes), "(missing)");
    EXPECT_EQ(Value(bytes + "\n[MIDI]\nChannel=5\n" + bytes), "5");
}

TEST(Profile_File, may_have_a_megabyte_on_one_line) {
    const std::string line(1 << 20, 'x');
    EXPECT_EQ(Value("[MIDI]\n" + line + "\nChannel=5\n"), "5");
    EXPECT_EQ(Value("[MIDI]\nChannel=" + line + "\n"), line);
    EXPECT_EQ(With(line, "5"), line + "\n[MIDI]\nChannel=5\n");
}

TEST(Profile_File, begins_with_the_first_value_written) {
    EXPECT_EQ(With("", "5"), "[MIDI]\nChannel=5\n");
}

TEST(Profile_File, gets_a_new_value_in_the_place_of_the_old_one) {
    EXPECT_EQ(With("; mine\n[MIDI]\nOutput=x\nChannel=1\nInput=y\n\n[Other]\nChannel=7\n", "16"),
              "; mine\n[MIDI]\nOutput=x\nChannel=16\nInput=y\n\n[Other]\nChannel=7\n");
}

TEST(Profile_File, keeps_the_spelling_of_a_key_whose_value_changes) {
    EXPECT_EQ(With("[midi]\n CHANNEL = 1 ; one\n", "5"), "[midi]\n CHANNEL =5\n");
}

TEST(Profile_File, gets_a_new_key_at_the_end_of_its_section) {
    EXPECT_EQ(With("[MIDI]\nOutput=x\n\n[Other]\nA=1\n", "5"),
              "[MIDI]\nOutput=x\nChannel=5\n\n[Other]\nA=1\n");
    EXPECT_EQ(With("[MIDI]\n\n[Other]\nA=1\n", "5"), "[MIDI]\nChannel=5\n\n[Other]\nA=1\n");
    EXPECT_EQ(With("[MIDI]\n; the port\n", "5"), "[MIDI]\n; the port\nChannel=5\n");
    EXPECT_EQ(With("[MIDI]", "5"), "[MIDI]\nChannel=5\n");
    EXPECT_EQ(With("[MIDI]\nOutput=x", "5"), "[MIDI]\nOutput=x\nChannel=5\n");
}

TEST(Profile_File, gets_a_new_section_at_its_end) {
    EXPECT_EQ(With("[Other]\nA=1\n", "5"), "[Other]\nA=1\n[MIDI]\nChannel=5\n");
    EXPECT_EQ(With("[Other]\nA=1", "5"), "[Other]\nA=1\n[MIDI]\nChannel=5\n");
}

TEST(Profile_File, is_written_where_it_is_read) {
    const std::string twice = "[MIDI]\nOutput=x\n[Other]\n[MIDI]\nChannel=2\n";
    const std::string written = With(twice, "5");
    EXPECT_EQ(written, "[MIDI]\nOutput=x\nChannel=5\n[Other]\n[MIDI]\nChannel=2\n");
    EXPECT_EQ(Value(written), "5");
}

TEST(Profile_File, keeps_its_line_ends) {
    EXPECT_EQ(With("[MIDI]\r\nChannel=1\r\nOutput=x\r\n", "5"), "[MIDI]\r\nChannel=5\r\nOutput=x\r\n");
    EXPECT_EQ(With("[MIDI]\r\nOutput=x\r\n", "5"), "[MIDI]\r\nOutput=x\r\nChannel=5\r\n");
    EXPECT_EQ(With("[MIDI]\rOutput=x\r", "5"), "[MIDI]\rOutput=x\rChannel=5\r");
    EXPECT_EQ(With("[Other]\r\nA=1", "5"), "[Other]\r\nA=1\r\n[MIDI]\r\nChannel=5\r\n");
}

TEST(Profile_File, keeps_all_other_bytes_whatever_they_are) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    EXPECT_EQ(With(bytes, "5"), bytes + "\n[MIDI]\nChannel=5\n");
    EXPECT_EQ(With("[MIDI]\nChannel=1\n" + bytes, "5"), "[MIDI]\nChannel=5\n" + bytes);
}

TEST(Profile_File, takes_one_line_of_a_value_and_no_more) {
    const std::string text = "[MIDI]\nChannel=1\nOutput=x\n";
    for (const char* value : {"/a\nb.syx", "/a\rb.syx", "/a\r\n[MIDI]\r\nOutput=y", "/a\n"}) {
        EXPECT_EQ(With(text, value), "[MIDI]\nChannel=/a\nOutput=x\n");
        EXPECT_EQ(With("", value), "[MIDI]\nChannel=/a\n");
    }
    EXPECT_EQ(With(text, "\nb"), "[MIDI]\nChannel=\nOutput=x\n");
}

TEST(Profile_File, is_not_longer_for_a_value_that_is_written_again) {
    const std::string once = With("[MIDI]\n", "5");
    EXPECT_EQ(With(once, "5"), once);
}
