// Any bytes as a tone file, held against the rules told once more in a slow and literal way: the header is
// a text that grows with every F0 and that only a match empties.
#include <map>
#include <optional>
#include <random>

#include "synth/syx_loaded.h"

namespace {

// What a load makes of a file.
struct Outcome {
    std::string tone = std::string(59, static_cast<char>(Old_Tone));
    std::string patch = std::string(7, static_cast<char>(Old_Patch));
    std::size_t sends = 0;
    std::size_t questions = 0;
    bool found = false;
};

// "?" stands for any character.
bool Like(const std::string& text, const std::string& pattern) {
    if (text.size() != pattern.size()) return false;
    for (std::size_t place = 0; place < text.size(); ++place) {
        if (pattern[place] != '?' && pattern[place] != text[place]) return false;
    }
    return true;
}

Outcome Told(const std::string& file, bool opening, const std::vector<Answer>& answers) {
    Outcome told;
    std::string header;
    bool at_first_byte = false;
    bool read_before = false;
    std::size_t position = 1;
    const auto Read = [&file](std::size_t from, char& byte) {
        if (from <= file.size()) byte = file[from - 1];
    };
    while (position <= file.size()) {
        if (file[position - 1] == '\xF0') {
            header += Hex(file.substr(position - 1, 7)) + " ";
            position += 7;
            if (Like(header, "F0 41 35 ?? 21 20 01 ")) {
                at_first_byte = position == 8;
                if (read_before) {
                    const Answer answer = answers[told.questions++ % answers.size()];
                    if (!opening && answer == Answer::No) return told;
                }
                for (std::size_t place = 0; place < 59; ++place) Read(position + place, told.tone[place]);
                position += 59;
                told.found = read_before = true;
                header.clear();
            } else if (Like(header, "F0 41 36 ?? 21 30 01 ") && at_first_byte) {
                for (std::size_t number = 0; number < 7; ++number)
                    Read(position + 1 + 2 * number, told.patch[number]);
                position += 12;
                header.clear();
            }
            ++told.sends;
        }
        ++position;
    }
    return told;
}

using Random_Bits = std::mt19937;

std::size_t Below(Random_Bits& bits, std::size_t limit) {
    return bits() % limit;
}

std::string Noise(Random_Bits& bits, std::size_t length) {
    std::string bytes;
    for (std::size_t place = 0; place < length; ++place) bytes += static_cast<char>(Below(bits, 256));
    return bytes;
}

// Whole messages, their headers, single F0s and noise in any order.
std::string Pieces(Random_Bits& bits, std::size_t length) {
    const std::string pieces[] = {Bytes(Tone_1),
                                  Bytes(Tone_2),
                                  Bytes(Patch_1),
                                  Bytes(Patch_2),
                                  Bytes(Tone_1 + Patch_1),
                                  Bytes(Tone_2).substr(0, 7),
                                  Bytes(Patch_2).substr(0, 7),
                                  Bytes("F0 41 34 00 21 20 01 00 00 05 F7"),
                                  "\xF0",
                                  "\xF7"};
    std::string bytes;
    while (bytes.size() < length) {
        const std::size_t piece = Below(bits, std::size(pieces) + 2);
        bytes += piece < std::size(pieces) ? pieces[piece] : Noise(bits, Below(bits, 20));
    }
    bytes.resize(length);
    return bytes;
}

using Folder_Contents = std::map<std::string, std::string>;

Folder_Contents On_Disk() {
    Folder_Contents contents;
    for (const auto& entry : std::filesystem::directory_iterator(Test_Folder()))
        contents[entry.path().filename().string()] =
            File_Read_Whole(entry.path().string()).value_or("(none)");
    return contents;
}

}  // namespace

class Any_Bytes : public SYX_Loaded {
  protected:
    // One load, compared with what is told of it.
    void Expect_As_Told(const std::string& bytes, bool opening) {
        Tone_Data.fill(Old_Tone);
        Patch_Data.fill(Old_Patch);
        Saves = 0;
        std::vector<Answer> answers;
        for (int count = 0; count < 8; ++count)
            answers.push_back(Below(bits_, 3) == 0 ? Answer::No : Answer::Yes);
        const Outcome told = Told(bytes, opening, answers);
        std::size_t saves = 0;
        for (std::size_t question = 0; question < told.questions; ++question) {
            const Answer answer = answers[question % answers.size()];
            Answer_With(opening ? Save_Old : Load_It, answer);
            if (opening && answer == Answer::Yes) ++saves;
        }
        if (opening && !told.found) Expect_Box(Wrong_Data);

        Write(Path("x.syx"), bytes);
        const Folder_Contents before = On_Disk();
        SYX_Load(Path("x.syx"), opening ? "Open" : "Soundcheck");
        ASSERT_EQ(Hex(Tone()), Hex(told.tone));
        ASSERT_EQ(Patches(), Hex(told.patch));
        ASSERT_EQ(Sent().size(), told.sends);
        ASSERT_EQ(SYX_Tone_Found, told.found);
        ASSERT_EQ(static_cast<std::size_t>(Saves), saves);
        ASSERT_TRUE(On_Disk() == before) << "nothing on the disk changes";
        Check_All_Boxes_Came();
        Boxes.clear();
    }

    Random_Bits bits_{20'260'101};
};

TEST_F(Any_Bytes, up_to_200_are_read_as_told) {
    for (int time = 0; time < 3000 && !HasFailure(); ++time) {
        const std::size_t length = Below(bits_, 201);
        Expect_As_Told(time % 4 == 0 ? Noise(bits_, length) : Pieces(bits_, length), time % 2 == 0);
    }
}

TEST_F(Any_Bytes, of_one_to_three_values_up_to_200_are_read_as_told) {
    const std::string values = Bytes("F0 41 35 00 21 20 01 36 30");
    for (int time = 0; time < 1000 && !HasFailure(); ++time) {
        const std::size_t kinds = 1 + Below(bits_, 3);
        std::string bytes(Below(bits_, 201), '\0');
        for (char& byte : bytes) byte = values[Below(bits_, kinds)];
        Expect_As_Told(bytes, time % 2 == 0);
    }
}

TEST_F(Any_Bytes, of_dumps_with_several_messages_are_read_as_told) {
    for (int time = 0; time < 300 && !HasFailure(); ++time)
        Expect_As_Told(Pieces(bits_, 200 + Below(bits_, 3000)), time % 2 == 0);
}

TEST_F(Any_Bytes, up_to_a_megabyte_are_read_as_told) {
    for (int time = 0; time < 4 && !HasFailure(); ++time)
        Expect_As_Told(Noise(bits_, 1'000'000 - Below(bits_, 200'000)), time % 2 == 0);
}

TEST_F(Any_Bytes, of_a_megabyte_behind_a_tone_are_read_as_told) {
    for (int time = 0; time < 2 && !HasFailure(); ++time)
        Expect_As_Told(Bytes(Tone_1 + Patch_1) + Noise(bits_, 1'000'000), time % 2 == 0);
}
