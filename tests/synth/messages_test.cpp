#include "synth/messages.h"

#include "fakes/stage.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;

// Every byte different from its neighbours, so that a byte in the wrong place shows.
void Fill_Records() {
    for (std::size_t index = 0; index < Tone_Size; ++index)
        Tone_Data[index] = static_cast<std::uint8_t>(index + 1);
    for (std::size_t index = 0; index < Patch_Size; ++index)
        Patch_Data[index] = static_cast<std::uint8_t>(0x70 + index);
}

}  // namespace

class Messages : public Started_Stage {
  protected:
    Messages() {
        Sent();
        Fill_Records();
    }
};

TEST_F(Messages, of_the_whole_tone_are_these_90_bytes) {
    Tone_Send();
    EXPECT_EQ(Sent(), Lines{"F0 41 35 00 21 20 01 "
                            "01 02 03 04 05 06 07 08 09 0A "
                            "0B 0C 0D 0E 0F 10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F 20 21 22 23 24 "
                            "25 26 27 28 29 2A 2B 2C 2D 2E 2F 30 31 32 33 34 35 36 37 38 39 3A 3B "
                            "24 07 "
                            "F0 41 36 00 21 30 01 "
                            "00 70 01 71 02 72 03 73 04 74 05 75 06 76 F7"});
}

TEST_F(Messages, of_the_whole_tone_end_the_tone_in_24_07_and_not_in_F7) {
    Tone_Message_Build();
    EXPECT_EQ(Sysex_Text.substr(66, 3), std::string("\x24\x07\xF0"));
}

TEST_F(Messages, of_the_whole_tone_are_90_bytes_whatever_the_values) {
    for (int value = 0; value <= 255; ++value) {
        Tone_Data.fill(static_cast<std::uint8_t>(value));
        Patch_Data.fill(static_cast<std::uint8_t>(value));
        for (const int channel : {1, 16}) {
            MIDI_Channel = static_cast<std::uint8_t>(channel);
            Sysex_Headers_Update();
            Tone_Message_Build();
            ASSERT_EQ(Sysex_Text.size(), 90U) << value;
            ASSERT_EQ(static_cast<std::uint8_t>(Sysex_Text[7]), value);
            ASSERT_EQ(static_cast<std::uint8_t>(Sysex_Text[65]), value);
            ASSERT_EQ(static_cast<std::uint8_t>(Sysex_Text[88]), value);
            ASSERT_EQ(static_cast<std::uint8_t>(Sysex_Text[89]), 0xF7);
        }
    }
}

TEST_F(Messages, of_the_whole_tone_say_24_for_the_mks_70) {
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    Tone_Message_Build();
    EXPECT_EQ(static_cast<std::uint8_t>(Sysex_Text[4]), 0x24);
    EXPECT_EQ(static_cast<std::uint8_t>(Sysex_Text[72]), 0x24);
    EXPECT_EQ(Sysex_Text.size(), 90U);
}

TEST_F(Messages, of_the_whole_tone_have_no_patch_header_for_the_alpha_juno) {
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    Tone_Message_Build();
    EXPECT_EQ(Sysex_Text.size(), 83U);
    EXPECT_EQ(Sysex_Text.substr(66, 4), std::string("\x24\x07\x00\x70", 4));
}

TEST_F(Messages, of_the_whole_tone_go_out_as_one) {
    Tone_Send();
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Messages, of_the_whole_tone_do_not_ask_for_automatic_sending) {
    MIDI_Autosend = 0;
    Tone_Send();
    EXPECT_EQ(Sent().size(), 1U);
}

TEST_F(Messages, of_the_whole_tone_stay_at_home_with_midi_off) {
    MIDI_Enabled = 0;
    Sysex_Text = "before";
    Tone_Send();
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(Sysex_Text, "before");
}

TEST_F(Messages, of_a_tone_parameter_are_10_bytes) {
    Tone_Data[13] = 100;
    MIDI_Channel = 16;
    Sysex_Headers_Update();
    Editor_Send_Param(13);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 0F 21 20 01 0D 64 F7"});
}

TEST_F(Messages, of_a_tone_parameter_carry_0_and_127_and_255_in_one_byte) {
    for (const auto& [value, hex] : {std::pair{0, "00"}, {5, "05"}, {127, "7F"}, {255, "FF"}}) {
        Tone_Data[58] = static_cast<std::uint8_t>(value);
        Editor_Send_Param(58);
        EXPECT_EQ(Sent(), Lines{std::string("F0 41 36 00 21 20 01 3A ") + hex + " F7"});
    }
}

TEST_F(Messages, of_a_tone_parameter_exist_for_all_59) {
    for (std::size_t parameter = 0; parameter < Tone_Size; ++parameter) Editor_Send_Param(parameter);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 59U);
    EXPECT_EQ(sent[0], "F0 41 36 00 21 20 01 00 01 F7");
    EXPECT_EQ(sent[16], "F0 41 36 00 21 20 01 10 11 F7");
    EXPECT_EQ(sent[58], "F0 41 36 00 21 20 01 3A 3B F7");
}

TEST_F(Messages, of_a_tone_parameter_want_automatic_sending_and_midi_on) {
    MIDI_Autosend = 0;
    Editor_Send_Param(13);
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    Editor_Send_Param(13);
    MIDI_Enabled = 2;  // exactly 1 is on
    Editor_Send_Param(13);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Messages, of_a_parameter_beyond_the_record_are_a_mistake_that_stops_the_operation) {
    EXPECT_THROW(Editor_Send_Param(59), Fatal_Error);
    EXPECT_THROW(Patch_Send_Param(9), Fatal_Error);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Messages, of_a_patch_parameter_say_21_in_every_profile) {
    for (const char* name : {"JX-8P", "MKS-70", "Alpha Juno"}) {
        Synthesizer = name;
        Sysex_Headers_Update();
        Patch_Send_Param(6);
        EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 30 01 06 76 F7"});
    }
}

TEST_F(Messages, of_a_patch_parameter_go_on_the_present_channel) {
    MIDI_Channel = 11;  // the headers still say 1
    Patch_Send_Param(0);
    EXPECT_EQ(Sent(), Lines{"F0 41 36 0A 21 30 01 00 70 F7"});
}

TEST_F(Messages, of_a_patch_parameter_want_automatic_sending_and_midi_on) {
    MIDI_Autosend = 0;
    Patch_Send_Param(0);
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    Patch_Send_Param(0);
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Messages, of_the_name_are_28_bytes_and_end_in_0F) {
    const std::string name = "SOLO BRASS";
    std::copy(name.begin(), name.end(), Tone_Data.begin());
    Tone_Name_Send();
    EXPECT_EQ(Sent(),
              Lines{"F0 41 36 00 21 20 01 00 53 01 4F 02 4C 03 4F 04 20 05 42 06 52 07 41 08 53 09 53 0F"});
}

TEST_F(Messages, of_the_name_want_automatic_sending_and_midi_on) {
    MIDI_Autosend = 0;
    Tone_Name_Send();
    MIDI_Autosend = 1;
    MIDI_Enabled = 0;
    Tone_Name_Send();
    EXPECT_EQ(Sent(), Lines{});
}

TEST_F(Messages, leave_their_text_behind) {
    Tone_Data[20] = 64;
    Editor_Send_Param(20);
    EXPECT_EQ(Sysex_Param_Text, "F0 41 36 0 21 20 01 14 40 F7");
}

TEST_F(Messages, of_the_whole_tone_name_channel_16_in_both_headers) {
    MIDI_Channel = 16;
    Sysex_Headers_Update();
    Tone_Message_Build();
    EXPECT_EQ(Sysex_Text[3], '\x0F');
    EXPECT_EQ(Sysex_Text[71], '\x0F');
}

TEST_F(Messages, of_a_tone_parameter_keep_the_old_channel_until_the_headers_are_made_anew) {
    MIDI_Channel = 5;
    Editor_Send_Param(11);
    EXPECT_EQ(Sent().front().substr(9, 2), "00");
    Sysex_Headers_Update();
    Editor_Send_Param(11);
    EXPECT_EQ(Sent().front().substr(9, 2), "04");
}
