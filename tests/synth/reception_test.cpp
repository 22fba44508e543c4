// A message of the instrument goes into the tone: stored for any length, complete at 67 bytes.
#include "synth/reception.h"

#include "fakes/stage.h"
#include "midi/in.h"
#include "synth/patch.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

int Refreshed = 0;
int Left_Mode = 0;

std::string Message(std::size_t length) {
    std::string bytes("\xF0\x41\x35\x00\x21\x20\x01", 7);
    for (std::size_t place = 8; place <= 66; ++place) bytes += static_cast<char>(place);
    bytes += '\xF7';
    bytes.resize(length, '\x11');
    return bytes;
}

}  // namespace

class Received : public Stage {
  protected:
    Received() {
        Tone_Data.fill(200);
        Panel_Apply_Tone = [] {
            ++Refreshed;
            EXPECT_EQ(Left_Mode, 0) << "the panels show the tone before the mode ends";
        };
        MIDI_Receive_Toggle = [] { ++Left_Mode; };
    }

    // The first `stored` bytes are the message's, the rest is as before.
    static void Expect_Stored(std::size_t stored) {
        for (std::size_t index = 0; index < 59; ++index)
            EXPECT_EQ(Tone_Data[index], index < stored ? index + 8 : 200U) << index;
    }
};

TEST_F(Received, message_of_67_bytes_is_the_tone_and_ends_the_reception) {
    MIDI_In_Message(Message(67));
    Expect_Stored(59);
    EXPECT_EQ(Refreshed, 1);
    EXPECT_EQ(Left_Mode, 1);
}

TEST_F(Received, message_of_40_bytes_overwrites_bytes_0_to_32_and_shows_nothing) {
    MIDI_In_Message(Message(40));
    Expect_Stored(33);
    EXPECT_EQ(Refreshed, 0);
    EXPECT_EQ(Left_Mode, 0);
}

TEST_F(Received, message_of_less_than_8_bytes_changes_nothing) {
    for (std::size_t length = 0; length < 8; ++length) MIDI_In_Message(Message(length));
    Expect_Stored(0);
    EXPECT_EQ(Left_Mode, 0);
    MIDI_In_Message(Message(8));
    Expect_Stored(1);
}

TEST_F(Received, message_of_one_byte_less_or_more_is_stored_and_does_not_end_the_reception) {
    MIDI_In_Message(Message(66));
    Expect_Stored(59);
    Tone_Data.fill(200);
    MIDI_In_Message(Message(68));
    Expect_Stored(59);
    Tone_Data.fill(200);
    MIDI_In_Message(Message(70000));
    Expect_Stored(59);
    EXPECT_EQ(Refreshed, 0);
    EXPECT_EQ(Left_Mode, 0);
}

TEST_F(Received, message_is_not_looked_at_but_for_its_length) {
    MIDI_In_Message(std::string(67, '\xFF'));
    for (const std::uint8_t byte : Tone_Data) EXPECT_EQ(byte, 255);
    EXPECT_EQ(Refreshed, 1);
    EXPECT_EQ(Left_Mode, 1);
}

TEST_F(Received, message_leaves_patch_and_unsaved_changes_as_they_were) {
    Patch_Data.fill(7);
    for (const Flag_16 saved : {Flag_16::True, Flag_16::False}) {
        Left_Mode = 0;
        Tone_Saved = saved;
        MIDI_In_Message(Message(67));
        EXPECT_EQ(Tone_Saved, saved);
    }
    for (const std::uint8_t byte : Patch_Data) EXPECT_EQ(byte, 7);
}
