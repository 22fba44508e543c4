// Files as other programs write them: what the rules make of each.
#include <fstream>

#include "fakes/stage.h"
#include "midi/out.h"
#include "synth/patch.h"
#include "synth/syx_file.h"
#include "synth/tone.h"

namespace {

// A tone message of 67 bytes whose parameters all have this value.
std::string Tone_Message(const std::string& name, int value) {
    std::string message("\xF0\x41\x35\x00\x21\x20\x01", 7);
    message += name;
    message.resize(17, ' ');
    message.append(49, static_cast<char>(value));
    return message + '\xF7';
}

// What some programs write behind a tone: a message of 11 bytes with another opcode.
std::string Program_Message(int number) {
    std::string message("\xF0\x41\x34\x00\x21\x20\x01\x00\x00", 9);
    message += static_cast<char>(number);
    return message + '\xF7';
}

std::string File(const std::string& bytes) {
    const std::string path = Test_Folder() + "/foreign.syx";
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::string Name_In_Memory() {
    return {Tone_Data.begin(), Tone_Data.begin() + 10};
}

}  // namespace

class Foreign_Files : public Started_Stage {
  protected:
    Foreign_Files() {
        Patch_Data.fill(55);
        Sent();
    }
};

TEST_F(Foreign_Files, of_67_bytes_are_a_tone_without_patch_parameters) {
    SYX_Load(File(Tone_Message("SOLO", 33)), SYX_Mode_Open);
    EXPECT_EQ(Name_In_Memory(), "SOLO      ");
    EXPECT_EQ(Tone_Data[58], 33);
    EXPECT_EQ(Patch_Data[0], 55);
    EXPECT_EQ(Sent().size(), 1U);
    EXPECT_EQ(Main_Window.caption.substr(0, 12), "Tonebench - ");
}

TEST_F(Foreign_Files, of_78_bytes_are_a_tone_and_a_message_that_is_not_ours) {
    SYX_Load(File(Tone_Message("SOLO", 33) + Program_Message(7)), SYX_Mode_Open);
    EXPECT_EQ(Name_In_Memory(), "SOLO      ");
    EXPECT_EQ(Patch_Data[0], 55);
    EXPECT_EQ(Sent().size(), 2U) << "every F0 sends, also one that matches nothing";
}

TEST_F(Foreign_Files, of_2496_bytes_are_banks_of_which_the_first_tone_is_taken) {
    std::string bank;
    for (int number = 0; number < 32; ++number) {
        bank += Tone_Message("TONE " + std::to_string(number + 1), number) + Program_Message(number);
    }
    ASSERT_EQ(bank.size(), 2496U);
    SYX_Load(File(bank), SYX_Mode_Open);
    EXPECT_EQ(Name_In_Memory(), "TONE 1    ") << "the foreign message ends the recognising";
    EXPECT_EQ(Tone_Data[58], 0);
    EXPECT_TRUE(Boxes.empty()) << "no second tone is recognised, so nothing is asked";
}

TEST_F(Foreign_Files, of_other_opcodes_hold_no_tone) {
    const auto before = Tone_Data;
    std::string bank;
    for (int number = 0; number < 4; ++number) {
        std::string message = Tone_Message("MKS", number);
        message[2] = '\x37';
        bank += message;
    }
    Expect_Box("Wrong MIDI system exclusive data!");
    SYX_Load(File(bank), SYX_Mode_Open);
    EXPECT_EQ(Tone_Data, before);
}

TEST_F(Foreign_Files, with_another_opcode_in_front_hide_the_tone_behind_it) {
    const auto before = Tone_Data;
    Expect_Box("Wrong MIDI system exclusive data!");
    SYX_Load(File(Program_Message(1) + Tone_Message("SOLO", 33)), SYX_Mode_Open);
    EXPECT_EQ(Tone_Data, before);
}

TEST_F(Foreign_Files, may_hold_bytes_above_127) {
    SYX_Load(File(Tone_Message("SOLO", 0xE5)), SYX_Mode_Open);
    EXPECT_EQ(Tone_Data[11], 0xE5);
    Editor_Set_Value(11, Tone_Data[11]);
    EXPECT_EQ(Sent().back(), "F0 41 36 00 21 20 01 0B E5 F7");
}

TEST_F(Foreign_Files, of_every_length_up_to_200_end_without_a_crash) {
    unsigned state = 12345;
    for (int length = 0; length <= 200; ++length) {
        std::string bytes;
        for (int place = 0; place < length; ++place) {
            state = state * 1664525U + 1013904223U;
            // Many starts of messages among the noise.
            bytes += state >> 29U == 0 ? '\xF0' : static_cast<char>(state >> 24U);
        }
        SYX_Load(File(bytes), "Soundcheck");
    }
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Foreign_Files, round_trip_every_value_of_every_parameter) {
    for (int value = 0; value <= 255; ++value) {
        Tone_Data.fill(static_cast<std::uint8_t>(value));
        Patch_Data.fill(static_cast<std::uint8_t>(value));
        Tone_File_Name = Test_Folder() + "/round.syx";
        SYX_Save();
        Tone_Data.fill(static_cast<std::uint8_t>(value + 1));
        Patch_Data.fill(static_cast<std::uint8_t>(value + 1));
        SYX_Load(Tone_File_Name, SYX_Mode_Open);
        for (const std::uint8_t byte : Tone_Data) ASSERT_EQ(byte, value);
        for (int number = 0; number < 7; ++number)
            ASSERT_EQ(Patch_Data[static_cast<std::size_t>(number)], value);
    }
}
