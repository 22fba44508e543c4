#include "desk/menus.h"
#include "desk/windows.h"
#include "fakes/juno_stage.h"
#include "midi/out.h"
#include "platform/random.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/undo.h"
#include "synth/views.h"
#include "tname/tname.h"

namespace {

using Lines = std::vector<std::string>;

// The name's code: the place of a character is its number.
constexpr std::string_view Codes = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -";

std::string Name_Codes() {
    std::string codes;
    for (std::size_t place = 36; place <= 45; ++place) {
        codes += (codes.empty() ? "" : " ") + std::to_string(Juno_Data[place]);
    }
    return codes;
}

void Count_Up() {
    for (std::size_t index = 0; index < Juno_Size; ++index)
        Juno_Data[index] = static_cast<std::uint8_t>(index + 1);
}

constexpr const char* Whole_Zero_Tone =
    "F0 41 35 00 23 20 01 "
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
    "24 07 00 00 01 00 02 00 03 00 04 00 05 00 06 00 F7";

}  // namespace

using Juno_Record_Of_49_Bytes = Juno_Stage;

// -- the name's code -------------------------------------------------------------------------------------

TEST(Juno_Name_Code, has_64_characters_and_shows_every_other_code_as_a_blank) {
    ASSERT_EQ(Codes.size(), 64U);
    for (int code = 0; code <= 255; ++code) {
        const int expected = code < 64 ? Codes[static_cast<std::size_t>(code)] : ' ';
        EXPECT_EQ(Juno_Code_To_Char(static_cast<std::uint8_t>(code)), expected) << code;
    }
}

TEST(Juno_Name_Code, takes_each_of_its_characters_and_makes_every_other_one_a_blank) {
    for (int character = 0; character <= 255; ++character) {
        const std::size_t place = Codes.find(static_cast<char>(character));
        const std::size_t expected = place == std::string_view::npos ? 62 : place;
        EXPECT_EQ(Juno_Char_To_Code(static_cast<std::uint8_t>(character)), expected) << character;
    }
    EXPECT_EQ(Juno_Char_To_Code('~'), 62);
    EXPECT_EQ(Juno_Code_To_Char(62), ' ');
    EXPECT_EQ(Juno_Char_To_Code('a'), 26);
    EXPECT_EQ(Juno_Char_To_Code('A'), 0);
    EXPECT_EQ(Juno_Char_To_Code('-'), 63);
}

// -- the record ------------------------------------------------------------------------------------------

TEST_F(Juno_Record_Of_49_Bytes, checks_every_parameter_number) {
    EXPECT_NO_THROW(Juno_Byte(48));
    EXPECT_THROW(Juno_Byte(49), Fatal_Error);
    EXPECT_EQ(&Juno_Byte(7), &Juno_Data[7]);
}

TEST_F(Juno_Record_Of_49_Bytes, keeps_small_letters_that_its_panel_shows_as_capitals) {
    const std::array<std::uint8_t, 10> name = {62, 26, 0, 51, 25, 52, 61, 63, 62, 62};
    std::copy(name.begin(), name.end(), Juno_Data.begin() + 36);
    Juno_To_Panel();
    EXPECT_EQ(Tone_Name_Text, "AAZZ09-");
    EXPECT_EQ(Shown(), "AAZZ09-");
    EXPECT_EQ(Name_Codes(), "62 26 0 51 25 52 61 63 62 62");
}

TEST_F(Juno_Record_Of_49_Bytes, shows_unknown_codes_as_blanks_and_trims_them) {
    std::fill(Juno_Data.begin() + 36, Juno_Data.begin() + 46, 200);
    Juno_Data[40] = 1;
    Juno_To_Panel();
    EXPECT_EQ(Shown(), "B");
}

TEST_F(Juno_Record_Of_49_Bytes, stands_beside_the_jx_8ps_through_a_change_of_the_instrument) {
    Count_Up();
    Tone_Data.fill(77);
    for (const char* instrument : {"JX-8P", "MKS-70", "Alpha Juno", "JX-8P"}) {
        Synthesizer = instrument;
        Sysex_Headers_Update();
    }
    EXPECT_EQ(Juno_Data[0], 1);
    EXPECT_EQ(Juno_Data[48], 49);
    EXPECT_EQ(Tone_Data[0], 77);
    EXPECT_EQ(Tone_Data[58], 77);
    EXPECT_EQ(Sent(), Lines{});
}

// -- New -------------------------------------------------------------------------------------------------

TEST_F(Juno_Record_Of_49_Bytes, starts_as_a_new_tone_that_is_not_sent) {
    EXPECT_EQ(
        Juno_Record(),
        "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
        "00 00 00 00 27 1E 30 3E 3E 3E 3E 3E 3E 3E 00 00 00");
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_EQ(Tone_Name_Text, "NEW");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Tone_Data[13], 0) << "the other record is not made new";
}

TEST_F(Juno_Record_Of_49_Bytes, becomes_new_on_command_with_its_unused_bytes_and_sends_the_other_record) {
    Count_Up();
    Juno_To_Panel();
    const int moved = At("VCF_Res").top;
    Tone_Data.fill(0);
    Patch_Data.fill(0);
    Menu(Menu_File_SYX_New).chosen();
    EXPECT_EQ(Juno_Record().substr(0, 29), "00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(Name_Codes(), "39 30 48 62 62 62 62 62 62 62") << "small letters";
    EXPECT_EQ(Juno_Data[46], 0);
    EXPECT_EQ(Juno_Data[47], 0);
    EXPECT_EQ(Juno_Data[48], 0);
    EXPECT_NE(At("VCF_Res").top, moved);
    EXPECT_EQ(At("VCF_Res").top, 246);
    EXPECT_EQ(Shown(), "NEW");
    EXPECT_EQ(Sent(), Lines{Whole_Zero_Tone});
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_EQ(Main_Window.caption, "Tonebench");
}

TEST_F(Juno_Record_Of_49_Bytes, leaves_the_jx_8ps_records_alone_when_it_becomes_new) {
    Tone_Data.fill(99);
    Patch_Data.fill(98);
    Menu(Menu_File_SYX_New).chosen();
    for (const std::uint8_t byte : Tone_Data) EXPECT_EQ(byte, 99);
    for (const std::uint8_t byte : Patch_Data) EXPECT_EQ(byte, 98);
}

// -- Random ----------------------------------------------------------------------------------------------

namespace {

int Draws = 0;

std::string Drawn(double (*number)()) {
    Random_Number = number;
    Menu(Menu_Tone_Random).chosen();
    return Juno_Record();
}

}  // namespace

TEST_F(Juno_Record_Of_49_Bytes, is_drawn_between_these_limits) {
    Juno_Data[46] = 7;
    Juno_Data[47] = 8;
    Juno_Data[48] = 9;
    // The name is "random" in small letters and blanks; the last three stay.
    const std::string tail = " 2B 1A 27 1D 28 26 3E 3E 3E 3E 07 08 09";
    EXPECT_EQ(
        Drawn([] { return 0.0; }),
        "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
        "00 00 00 00" +
            tail);
    EXPECT_EQ(
        Drawn([] { return 0.999999; }),
        "03 03 03 03 05 05 03 03 03 03 01 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E 7E "
        "7E 7E 7E 0B" +
            tail);
    EXPECT_EQ(
        Drawn([] { return 0.5; }),
        "02 02 02 02 03 03 02 02 02 02 00 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F 3F "
        "3F 3F 3F 06" +
            tail);
}

TEST_F(Juno_Record_Of_49_Bytes, has_the_chorus_on_in_one_of_three_draws) {
    Drawn([] { return 0.666; });
    EXPECT_EQ(Juno_Data[10], 0);
    Drawn([] { return 0.667; });
    EXPECT_EQ(Juno_Data[10], 1);
}

TEST_F(Juno_Record_Of_49_Bytes, is_drawn_byte_by_byte_in_its_order) {
    Drawn([] { return (++Draws % 4) / 4.0; });
    EXPECT_EQ(Draws, 36);
    EXPECT_EQ(Juno_Record().substr(0, 38), "01 02 03 00 01 03 03 00 01 02 01 00 1F");
}

TEST_F(Juno_Record_Of_49_Bytes, is_shown_named_and_marked_unsaved_by_random) {
    Drawn([] { return 0.5; });
    EXPECT_EQ(Tone_Name_Text, "RANDOM");
    EXPECT_EQ(Shown(), "RANDOM") << "at once, unlike the JX-8P's";
    EXPECT_EQ(At("VCF_Res").top, 246 - 63 * 80 / 127);
    EXPECT_EQ(At("DCO_Range").top, 49);
    EXPECT_EQ(std::string(Tone_Data.begin(), Tone_Data.begin() + 11), "RANDOM     ") << "unseen";
    EXPECT_EQ(Tone_Data[58], 0);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_TRUE(Menu(Menu_Edit_Undo).enabled);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].substr(0, 38), "F0 41 35 00 23 20 01 52 41 4E 44 4F 4D");
}

// -- Undo ------------------------------------------------------------------------------------------------

TEST_F(Juno_Record_Of_49_Bytes, comes_back_whole_by_undo_behind_random) {
    Count_Up();
    Tone_Saved = Flag_16::False;
    Tone_Undo.fill(5);
    const std::string before = Juno_Record();
    Menu(Menu_Tone_Random).chosen();
    EXPECT_NE(Juno_Record(), before);
    Sent();
    Menu(Menu_Edit_Undo).chosen();
    EXPECT_EQ(Juno_Record(), before);
    EXPECT_EQ(At("VCF_Res").top, 246 - 18 * 80 / 127);
    EXPECT_EQ(Shown(), "LMNOPQRSTU");
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Sent().size(), 1U);
    for (const std::uint8_t byte : Tone_Undo) EXPECT_EQ(byte, 5);
}

TEST_F(Juno_Record_Of_49_Bytes, comes_back_as_zeros_when_a_saved_tone_was_never_stored) {
    Count_Up();
    Menu(Menu_Tone_Random).chosen();
    Menu(Menu_Edit_Undo).chosen();
    for (const std::uint8_t byte : Juno_Data) EXPECT_EQ(byte, 0);
    EXPECT_EQ(Shown(), "AAAAAAAAAA") << "the code 0";
}

TEST_F(Juno_Record_Of_49_Bytes, serves_as_the_file_windows_backup) {
    Count_Up();
    const std::string before = Juno_Record();
    Tone_Backup_Store();
    EXPECT_FALSE(Menu(Menu_Edit_Undo).enabled);
    Juno_Data.fill(3);
    Tone_Loading = Flag_8::True;
    Tone_Backup_Restore();
    EXPECT_EQ(Juno_Record(), before);
    EXPECT_EQ(At("ENV_T4").top, 382 - 33 * 80 / 127);
    EXPECT_EQ(Tone_Loading, Flag_8::False);
    EXPECT_EQ(Sent().size(), 1U);
    MIDI_Autosend = 0;
    Tone_Backup_Restore();
    EXPECT_EQ(Sent(), Lines{});
}

// -- the name's dialog -----------------------------------------------------------------------------------

namespace {

void Name(const std::string& text) {
    Menu(Menu_Tone_Name).chosen();
    TName_Tone_Name_Change(text);
    TName_Cmd_OK();
}

}  // namespace

TEST_F(Juno_Record_Of_49_Bytes, takes_a_name_and_sends_it_in_the_instruments_code) {
    Name("bass-1 x~");
    EXPECT_EQ(Name_Codes(), "1 0 18 18 63 53 62 23 62 62");
    EXPECT_EQ(Shown(), "BASS-1 X~");
    EXPECT_EQ(Editor_Tone_Name.text, "BASS-1 X~");
    EXPECT_EQ(std::string(Tone_Data.begin(), Tone_Data.begin() + 11), "BASS-1 X~  ");
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 23 20 01 24 01 25 00 26 12 27 12 28 3F 29 35 2A 3E 2B 17 2C 3E 2D 3E 0F"});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Juno_Record_Of_49_Bytes, takes_a_name_under_every_instrument) {
    Synthesizer = "JX-8P";
    Sysex_Headers_Update();
    Name("lead");
    EXPECT_EQ(Name_Codes(), "11 4 0 3 62 62 62 62 62 62");
    EXPECT_EQ(Juno_Tone_Name.text, "LEAD");
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 21 20 01 00 4C 01 45 02 41 03 44 04 20 05 20 06 20 07 20 08 20 09 20 0F"});
}

TEST_F(Juno_Record_Of_49_Bytes, takes_an_empty_name_as_ten_blanks) {
    Name("");
    EXPECT_EQ(Name_Codes(), "62 62 62 62 62 62 62 62 62 62");
    EXPECT_EQ(Shown(), "");
}

TEST_F(Juno_Record_Of_49_Bytes, name_may_have_ten_characters) {
    Name("abcdefghijk");
    EXPECT_EQ(Name_Codes(), "0 1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(Juno_Data[46], 0);
}
