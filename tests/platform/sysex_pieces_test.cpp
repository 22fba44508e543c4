// System exclusive messages put together from whatever comes, piece by piece.
#include "platform/sysex_pieces.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using Found = Sysex_Pieces::Found;
using Bytes = std::basic_string<unsigned char>;

struct Heard {
    std::vector<Bytes> messages;
    int refused = 0;
};

Bytes Of(std::string_view text) {
    return {text.begin(), text.end()};
}

Heard Hear(Sysex_Pieces& pieces, const Bytes& bytes) {
    Heard heard;
    for (const unsigned char byte : bytes) {
        const Found found = pieces.Take(byte);
        if (found == Found::Message) heard.messages.push_back(Of(pieces.Message()));
        if (found == Found::Refused) ++heard.refused;
    }
    return heard;
}

std::vector<Bytes> Messages(const Bytes& bytes) {
    Sysex_Pieces pieces(100);
    return Hear(pieces, bytes).messages;
}

const std::vector<Bytes> One = {{0xF0, 0x41, 0x01, 0xF7}};

// A dump of 67 bytes that is told by its number.
Bytes Dump(unsigned number) {
    Bytes dump = {0xF0, 0x41, 0x35, 0x00, 0x21, 0x20, 0x01};
    for (unsigned index = 0; index < 59; ++index)
        dump += static_cast<unsigned char>((number * 7 + number / 128 + index * 3) % 128);
    dump[7] = static_cast<unsigned char>(number % 128);
    dump[8] = static_cast<unsigned char>(number / 128);
    return dump + static_cast<unsigned char>(0xF7);
}

}  // namespace

TEST(Sysex_Pieces_Of, one_piece_are_the_message_itself) {
    EXPECT_EQ(Messages({0xF0, 0x41, 0x01, 0xF7}), One);
    EXPECT_EQ(Messages({0xF0, 0xF7}), (std::vector<Bytes>{{0xF0, 0xF7}}));
}

TEST(Sysex_Pieces_Of, two_messages_in_a_row_are_both_found) {
    EXPECT_EQ(Messages({0xF0, 1, 0xF7, 0xF0, 2, 0xF7}),
              (std::vector<Bytes>{{0xF0, 1, 0xF7}, {0xF0, 2, 0xF7}}));
}

TEST(Sysex_Pieces_Of, a_message_without_its_end_are_nothing_yet) {
    Sysex_Pieces pieces(100);
    EXPECT_TRUE(Hear(pieces, {0xF0, 0x41}).messages.empty());
    EXPECT_EQ(Hear(pieces, {0x01, 0xF7}).messages, One);
}

TEST(Sysex_Pieces_Of, what_stands_outside_of_a_message_are_dropped) {
    EXPECT_EQ(Messages({0x90, 0x3C, 0x40, 0xF8, 0x01, 0xF7, 0xF0, 0x41, 0x01, 0xF7, 0xF7, 0x05, 0xFE}),
              One);
}

TEST(Sysex_Pieces_Of, real_time_in_the_middle_are_dropped) {
    for (unsigned byte = 0xF8; byte <= 0xFF; ++byte)
        EXPECT_EQ(Messages({0xF0, 0x41, static_cast<unsigned char>(byte), 0x01, 0xF7}), One) << byte;
}

struct Foreign {
    Bytes message;
    const char* what;
};

TEST(Sysex_Pieces_Of, another_message_in_the_middle_are_dropped_with_their_data) {
    const std::vector<Foreign> all = {
        {{0x83, 0x3C, 0x40}, "note off"},
        {{0x9F, 0x3C, 0x40}, "note on"},
        {{0xA0, 0x3C, 0x40}, "key pressure"},
        {{0xB0, 0x7B, 0x00}, "controller"},
        {{0xC0, 0x05}, "program"},
        {{0xDF, 0x40}, "pressure"},
        {{0xE0, 0x00, 0x40}, "bend"},
        {{0xF1, 0x11}, "quarter frame"},
        {{0xF2, 0x11, 0x12}, "song position"},
        {{0xF3, 0x11}, "song"},
        {{0xF4}, "undefined"},
        {{0xF5}, "undefined"},
        {{0xF6}, "tune request"},
        {{0x90, 0xF8, 0x3C, 0xFE, 0x40}, "a note with a clock in it"},
    };
    for (const Foreign& foreign : all) {
        const Bytes bytes = Bytes{0xF0, 0x41} + foreign.message + Bytes{0x01, 0xF7};
        EXPECT_EQ(Messages(bytes), One) << foreign.what;
    }
}

TEST(Sysex_Pieces_Of, a_message_that_was_broken_off_are_not_mixed_with_the_next) {
    EXPECT_EQ(Messages({0xF0, 0x22, 0x23, 0xF0, 0x41, 0x01, 0xF7}), One);
    EXPECT_EQ(Messages({0xF0, 0x22, 0x90, 0xF0, 0x41, 0x01, 0xF7}), One) << "in the middle of a note too";
}

TEST(Sysex_Pieces_Of, a_message_as_long_as_the_room_are_taken_and_one_byte_more_is_refused_once) {
    Sysex_Pieces pieces(8);
    EXPECT_EQ(Hear(pieces, {0xF0, 1, 2, 3, 4, 5, 6, 0xF7}).messages.size(), 1U);
    for (const int too_many : {1, 2, 100, 70000}) {
        const Bytes bytes = Bytes{0xF0} + Bytes(static_cast<std::size_t>(6 + too_many), 5) + Bytes{0xF7};
        const Heard heard = Hear(pieces, bytes);
        EXPECT_TRUE(heard.messages.empty()) << too_many;
        EXPECT_EQ(heard.refused, 1) << too_many;
        EXPECT_EQ(Hear(pieces, {0xF0, 0x41, 0x01, 0xF7}).messages, One) << "the next one is taken";
    }
}

TEST(Sysex_Pieces_Of, a_message_without_an_end_take_no_more_room_and_are_refused_once) {
    Sysex_Pieces pieces(8);
    EXPECT_EQ(Hear(pieces, Bytes{0xF0} + Bytes(1000, 5)).refused, 1);
    EXPECT_EQ(Hear(pieces, {0xF0, 0x41, 0x01, 0xF7}).messages, One);
}

TEST(Sysex_Pieces_Of, a_thousand_dumps_with_notes_and_clock_between_and_inside_are_all_found_unmixed) {
    std::minstd_rand draw(1);
    std::vector<Bytes> sent;
    Bytes stream;
    for (unsigned number = 0; number < 1000; ++number) {
        sent.push_back(Dump(number));
        for (const unsigned char byte : sent.back()) {
            stream += byte;
            if (draw() % 7 == 0) stream += static_cast<unsigned char>(0xF8);
            if (byte != 0xF7 && draw() % 20 == 0) stream += Bytes{0x91, 0x3C, 0x00};
        }
        stream += Bytes{0x91, 0x3C, 0x40, 0x81, 0x3C, 0x40, 0xFE};
    }
    Sysex_Pieces pieces(4096);
    const Heard heard = Hear(pieces, stream);
    EXPECT_EQ(heard.messages, sent);
    EXPECT_EQ(heard.refused, 0);
}
