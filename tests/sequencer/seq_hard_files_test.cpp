// Sequence files that are cut, foreign, unreadable or very large, and every byte in every place.
#include <sys/resource.h>
#include <sys/stat.h>

#include "sequencer/seq_files.h"

TEST_F(SEQ_Loaded, of_any_length_up_to_200_is_whole_or_refused) {
    const std::string longest = Sequence_File() + std::string(90, '\x7F');
    for (std::size_t length = 0; length <= 200; ++length) {
        Seq_Notes.fill(7);
        Seq_Loaded = Flag_8::False;
        Boxes.clear();
        if (length < 110) Expect_Box(Wrong_Format);
        Load(longest.substr(0, length));
        EXPECT_EQ(Boxes.size(), length < 110 ? 1U : 0U) << length;
        if (length < 110) {
            Expect_Old_Cells();
        } else {
            Expect_Cells_Of_File();
        }
    }
}

TEST_F(SEQ_Loaded, with_another_beginning_is_refused) {
    for (int place = 0; place < 3; ++place) {
        for (int byte = 0; byte < 256; ++byte) {
            std::string file = Sequence_File();
            char& letter = file[static_cast<std::size_t>(place)];
            const char right = letter;
            letter = static_cast<char>(byte);
            Seq_Notes.fill(7);
            Seq_Loaded = Flag_8::False;
            const bool accepted = byte == right || byte == right + 32;
            if (!accepted) Expect_Box(Wrong_Format);
            Load(file);
            EXPECT_EQ(Seq_Notes[1], accepted ? 1 : 7) << place << ' ' << byte;
        }
    }
}

TEST_F(SEQ_Loaded, takes_every_byte_in_every_cell_and_plays_it) {
    MIDI_Enabled = 1;
    for (int byte = 0; byte < 256; ++byte) {
        std::string file = Sequence_File();
        for (std::size_t cell = 0; cell < 104; ++cell) file[6 + cell] = static_cast<char>(byte);
        Load(file);
        for (const std::int16_t cell : Seq_Notes) ASSERT_EQ(cell, byte);
        Sent();
        ED_Seq_Start_Click();
        Advance(std::chrono::milliseconds(125 * 8));
        const Lines sent = Sent();
        ASSERT_EQ(sent.size(), 104U) << byte;
        EXPECT_EQ(sent.back(), "90 30 " + Hex(std::string(1, static_cast<char>(byte))));
        Timer_Stop(Seq_Tmr);
    }
}

TEST_F(SEQ_Loaded, takes_every_byte_as_tempo_and_as_base_note) {
    for (int byte = 0; byte < 256; ++byte) {
        std::string file = Sequence_File();
        file[4] = file[5] = static_cast<char>(byte);
        Load(file);
        EXPECT_GE(Seq_Tempo_Value, 1);
        EXPECT_LE(Seq_Tempo_Value, 120);
        EXPECT_GE(Seq_Tmr.interval, 62);
        EXPECT_LE(Seq_Tmr.interval, 7500);
        EXPECT_EQ(Seq_Base_Note, byte);
        EXPECT_GE(Seq_Range_Index, 0);
        EXPECT_LE(Seq_Range_Index, 19);
        Seq_Write();
        EXPECT_EQ(static_cast<unsigned char>(File_Read_Whole(Path("x.seq")).value()[5]), byte);
    }
}

TEST_F(SEQ_Loaded, of_a_gigabyte_takes_no_more_memory) {
    Write(Path("x.seq"), Sequence_File());
    std::filesystem::resize_file(Path("x.seq"), 1'000'000'000);
    rusage before = {};
    ::getrusage(RUSAGE_SELF, &before);
    Seq_Load(Path("x.seq"), "Open");
    rusage after = {};
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 8000);
    Expect_Cells_Of_File();
    Seq_Notes[0] = 127;
    Seq_Write();
    EXPECT_EQ(std::filesystem::file_size(Path("x.seq")), 1'000'000'000U);
}

TEST_F(SEQ_Loaded, that_is_no_plain_file_counts_as_not_there) {
    std::filesystem::create_directory(Path("folder"));
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    for (const std::string& path :
         {std::string(), Path("folder"), Path("folder/"), Path("pipe"), std::string("/dev/zero"),
          Path("missing/x.seq"), Path(std::string(300, 'x')), Path(std::string(5000, 'x'))}) {
        Expect_Box("File not found: " + path);
        Seq_Load(path, "Open");
    }
    Expect_Old_Cells();
    EXPECT_EQ(Recent_Seq(1), "");
}

TEST_F(SEQ_Loaded, that_may_not_be_read_counts_as_not_there) {
    Write(Path("x.seq"), Sequence_File());
    const Plain_User user;
    std::filesystem::permissions(Path("x.seq"), std::filesystem::perms::none);
    Expect_Box("File not found: " + Path("x.seq"));
    Seq_Load(Path("x.seq"), "Open");
    Expect_Old_Cells();
}

TEST_F(SEQ_Loaded, from_a_failing_disk_is_no_sequence) {
    Expect_Box(Wrong_Format);
    Seq_Load("/proc/self/mem", "Open");
    Expect_Old_Cells();
}
