#include "desk/menus.h"
#include "fakes/juno_stage.h"
#include "midi/in.h"
#include "midi/out.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

using Lines = std::vector<std::string>;

void Name_Codes(const std::array<std::uint8_t, 10>& codes) {
    std::copy(codes.begin(), codes.end(), Juno_Data.begin() + 36);
}

}  // namespace

using Juno_Messages = Juno_Stage;

TEST_F(Juno_Messages, of_one_parameter_are_these_ten_bytes) {
    Juno_Data[0] = 3;
    Juno_Send_Param(0);
    Juno_Data[13] = 100;
    Juno_Send_Param(13);
    Juno_Data[35] = 12;
    Juno_Send_Param(35);
    Juno_Data[48] = 255;
    Juno_Send_Param(48);
    EXPECT_EQ(Sent(), (Lines{"F0 41 36 00 23 20 01 00 03 F7", "F0 41 36 00 23 20 01 0D 64 F7",
                             "F0 41 36 00 23 20 01 23 0C F7", "F0 41 36 00 23 20 01 30 FF F7"}));
}

TEST_F(Juno_Messages, of_one_parameter_carry_any_number_and_value) {
    constexpr const char* Digits = "0123456789ABCDEF";
    const auto hex = [](std::size_t byte) { return std::string{Digits[byte / 16], Digits[byte % 16]}; };
    for (std::size_t parameter = 0; parameter < 49; ++parameter) {
        for (std::size_t value = 0; value < 256; ++value) {
            Juno_Data[parameter] = static_cast<std::uint8_t>(value);
            Juno_Send_Param(parameter);
            ASSERT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 " + hex(parameter) + " " + hex(value) + " F7"});
        }
    }
}

TEST_F(Juno_Messages, of_one_parameter_go_out_on_the_channel_of_the_last_update) {
    MIDI_Channel = 16;
    Sysex_Headers_Update();
    Juno_Send_Param(10);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 0F 23 20 01 0A 00 F7"});
}

TEST_F(Juno_Messages, do_not_go_out_twice_in_a_row) {
    Juno_Data[16] = 5;
    Juno_Send_Param(16);
    Juno_Send_Param(16);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 10 05 F7"});
    Juno_Data[16] = 6;
    Juno_Send_Param(16);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 10 06 F7"});
    Juno_Data[16] = 5;
    Juno_Send_Param(16);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 10 05 F7"}) << "back to the first value";
}

TEST_F(Juno_Messages, do_not_go_out_behind_the_same_text_of_another_sender) {
    Tone_Data[16] = 5;
    Editor_Send_Param(16);
    Sent();
    Juno_Data[16] = 5;
    Juno_Send_Param(16);
    EXPECT_EQ(Sent(), Lines{});
    Tone_Name_Send();
    Sent();
    Juno_Send_Param(16);
    EXPECT_EQ(Sent().size(), 1U) << "the text is another one now";
    Editor_Send_Param(16);
    Editor_Send_Param(16);
    EXPECT_EQ(Sent().size(), 2U) << "the JX-8P's sender compares nothing";
}

TEST_F(Juno_Messages, go_out_with_midi_and_automatic_sending_on_only) {
    Juno_Data[16] = 5;
    for (const auto& [autosend, enabled] : {std::pair{0, 1}, {1, 0}, {2, 1}, {1, 2}}) {
        MIDI_Autosend = static_cast<std::uint8_t>(autosend);
        MIDI_Enabled = static_cast<std::uint8_t>(enabled);
        Juno_Send_Param(16);
        Tone_Name_Send();
    }
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Sysex_Param_Text, "") << "what did not go out may still go";
    MIDI_Autosend = MIDI_Enabled = 1;
    Juno_Send_Param(16);
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Juno_Messages, check_the_parameter_number) {
    EXPECT_THROW(Juno_Send_Param(49), Fatal_Error);
}

TEST_F(Juno_Messages, of_the_name_end_in_0F_behind_a_code_of_two_digits) {
    Name_Codes({0, 25, 26, 51, 52, 61, 62, 63, 15, 16});
    Tone_Name_Send();
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 23 20 01 24 00 25 19 26 1A 27 33 28 34 29 3D 2A 3E 2B 3F 2C 0F 2D 10 0F"});
}

TEST_F(Juno_Messages, of_the_name_end_in_F7_behind_a_code_of_one_digit) {
    Name_Codes({0, 25, 26, 51, 52, 61, 62, 63, 16, 15});
    Tone_Name_Send();
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 23 20 01 24 00 25 19 26 1A 27 33 28 34 29 3D 2A 3E 2B 3F 2C 10 2D 0F F7"});
}

TEST_F(Juno_Messages, of_the_whole_tone_are_the_jx_8ps_without_a_patch_header) {
    for (std::size_t index = 0; index < Tone_Size; ++index)
        Tone_Data[index] = static_cast<std::uint8_t>(index + 1);
    for (std::size_t index = 0; index < Patch_Size; ++index)
        Patch_Data[index] = static_cast<std::uint8_t>(0x70 + index);
    Juno_Data.fill(0x55);
    Tone_Send();
    EXPECT_EQ(Sent(), Lines{"F0 41 35 00 23 20 01 "
                            "01 02 03 04 05 06 07 08 09 0A "
                            "0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 "
                            "25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 38 39 3A 3B "
                            "24 07 "
                            "00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7"});
}

TEST_F(Juno_Messages, that_come_in_are_taken_for_the_jx_8ps_and_change_its_hidden_panel_alone) {
    MIDI_In_Open();
    Juno_Data.fill(2);
    Juno_To_Panel();
    const int row = At("VCF_Res").top;
    const std::string before = Juno_Record();
    MIDI_Receive_Toggle();
    MIDI_In_Message(Byte_String(67, '\x7F'));
    EXPECT_EQ(Juno_Record(), before);
    EXPECT_EQ(At("VCF_Res").top, row);
    for (const std::uint8_t byte : Tone_Data) EXPECT_EQ(byte, 0x7F);
    EXPECT_EQ(Editor_Control("VCF_Res").top, 32);
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_FALSE(Editor.visible);
}

TEST_F(Juno_Messages, of_the_whole_tone_are_sent_from_the_menu_on_the_channel_of_the_moment) {
    MIDI_Autosend = 0;
    MIDI_Channel = 16;
    Juno_Data.fill(0x55);
    Tone_Data.fill(0x11);
    Menu(Menu_Tone_Send).chosen();
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].substr(0, 26), "F0 41 35 0F 23 20 01 11 11");
    EXPECT_EQ(sent[0].size(), 83U * 3 - 1);
    EXPECT_TRUE(Editor_Juno.visible);
}
