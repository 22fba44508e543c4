// The real input on a real JACK server with the dummy driver. At the other end plays a program of its own,
// event by event.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <thread>

#include "fakes/child_process.h"
#include "fakes/jack_server.h"
#include "platform/midi_port.h"
#include "platform/wake_up.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;

constexpr auto Patience = 10000ms;

std::atomic<int> Wake_Ups = 0;

std::string Hex(const std::string& bytes) {
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string line;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (!line.empty()) line += ' ';
        line += {Digits[byte / 16U], Digits[byte % 16U]};
    }
    return line;
}

// A dump of so many bytes that is told by its number.
std::string Dump(unsigned number, std::size_t size = 67) {
    std::string dump("\xF0\x41\x35\x00\x21\x20\x01", 7);
    dump += static_cast<char>(number % 128);
    dump += static_cast<char>(number / 128 % 128);
    while (dump.size() + 1 < size) dump += static_cast<char>((number * 7 + dump.size() * 3) % 128);
    return dump + '\xF7';
}

class Midi_Input_On_Jack : public testing::Test {
  protected:
    Midi_Input_On_Jack()
        : file_(std::filesystem::temp_directory_path() / ("tonebench-play-" + std::to_string(getpid()))) {}
    ~Midi_Input_On_Jack() override { std::filesystem::remove(file_); }

    void SetUp() override { testing::internal::CaptureStderr(); }
    void TearDown() override {
        if (handle_ != Port_Closed) Close();
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "the ports must not print anything";
    }

    // A server and a player with these events, which starts to play when its port is connected.
    void Start(const Names& events, Jack_Server::Pace pace = Jack_Server::Pace::Waits) {
        Write(events);
        player_ = std::move(server_.Start_With({Player()}, pace).front());
        Wait_For_Listing();
    }
    void Start_Player(const Names& events) {
        Write(events);
        player_ = Started_Client(Player());
        Wait_For_Listing();
    }
    Jack_Client Player() const {
        return {{BUILD_DIR "/tests/jack_player", "player", file_.string()}, "player:out"};
    }
    void Write(const Names& events) const {
        std::ofstream file(file_);
        for (const std::string& event : events) file << event << '\n';
    }
    static void Wait_For_Listing() {
        const auto deadline = Clock::now() + Patience;
        while (Index() < 0 && Clock::now() < deadline) std::this_thread::sleep_for(10ms);
        ASSERT_GE(Index(), 0) << "the player is not listed";
    }

    static int Index() {
        const Names names = Port_In_Names();
        const auto found = std::find(names.begin(), names.end(), "player:out");
        return found == names.end() ? -1 : static_cast<int>(found - names.begin());
    }

    void Open() {
        const auto deadline = Clock::now() + Patience;
        Port_Result result = Port_In_Open(Index(), handle_);
        // A player shows its port a little before it lets itself be connected.
        while (result == Port_Failed && Clock::now() < deadline) {
            std::this_thread::sleep_for(10ms);
            result = Port_In_Open(Index(), handle_);
        }
        ASSERT_EQ(result, Port_Ok) << Port_Error_Text(result);
        ASSERT_GT(handle_, 0);
    }
    void Give_Buffers(int count = 4) {
        for (; count > 0; --count) {
            const Block_Address data = Block_Lock(Block_Make(Port_In_Longest));
            const Block_Address header = Block_Lock(Block_Make(sizeof(Port_In_Header)));
            *Block_Record<Port_In_Header>(header) = {.data = data, .size = Port_In_Longest};
            ASSERT_EQ(Port_In_Prepare(handle_, header), Port_Ok);
            ASSERT_EQ(Port_In_Add_Buffer(handle_, header), Port_Ok);
        }
    }
    void Close() {
        EXPECT_EQ(Port_In_Reset(handle_), Port_Ok);
        EXPECT_EQ(Port_In_Close(handle_), Port_Ok);
        handle_ = Port_Closed;
    }

    // What comes until the player is done, and a little longer.
    Names Heard() {
        Names messages;
        auto end = Clock::now() + 30s;
        bool played = false;
        while (Clock::now() < end) {
            const Block_Address address = Port_In_Next(handle_);
            if (address != 0) {
                const auto& header = *Block_Record<Port_In_Header>(address);
                messages.emplace_back(Block_At(header.data).data(), header.bytes);
                EXPECT_EQ(Port_In_Add_Buffer(handle_, address), Port_Ok);
                continue;
            }
            if (!played && player_->Wait_For_Line("played", 0ms)) {
                played = true;
                end = Clock::now() + 100ms;
            }
            std::this_thread::sleep_for(1ms);
        }
        EXPECT_TRUE(played);
        return messages;
    }

    Names Heard_Of(const Names& events) {
        Start(events);
        Open();
        Give_Buffers();
        return Heard();
    }

    std::filesystem::path file_;
    std::unique_ptr<Child_Process> player_;
    Jack_Server server_;
    Port_Handle handle_ = Port_Closed;
};

}  // namespace

void Wake_Up() {
    ++Wake_Ups;
}

TEST_F(Midi_Input_On_Jack, without_a_server_cannot_be_opened) {
    EXPECT_EQ(Port_In_Names(), Names());
    Port_Handle handle = 77;
    EXPECT_EQ(Port_In_Open(0, handle), Port_No_Driver);
    EXPECT_EQ(handle, 77);
}

TEST_F(Midi_Input_On_Jack, refuses_an_index_outside_the_list_a_second_open_and_a_handle_that_is_not_open) {
    Start({});
    Port_Handle handle = 77;
    EXPECT_EQ(Port_In_Open(-1, handle), Port_Bad_Device);
    EXPECT_EQ(Port_In_Open(1, handle), Port_Bad_Device);
    Open();
    EXPECT_EQ(Port_In_Open(0, handle), Port_Failed);
    EXPECT_EQ(handle, 77);
    EXPECT_EQ(Port_In_Prepare(handle, 1), Port_Bad_Handle);
    EXPECT_EQ(Port_In_Add_Buffer(handle, 1), Port_Bad_Handle);
    EXPECT_EQ(Port_In_Next(handle), 0);
    EXPECT_FALSE(Port_In_Refused(handle));
    EXPECT_FALSE(Port_In_Present(handle));
    EXPECT_EQ(Port_In_Reset(handle), Port_Bad_Handle);
    EXPECT_EQ(Port_In_Close(handle), Port_Bad_Handle);
    const Port_Handle before = handle_;
    Close();
    EXPECT_EQ(Port_In_Close(before), Port_Bad_Handle);
    Open();
    EXPECT_NE(handle_, before);
}

TEST_F(Midi_Input_On_Jack, refuses_a_buffer_that_is_too_small) {
    Start({});
    Open();
    const Block_Handle data = Block_Make(Port_In_Longest);
    const Block_Address header = Block_Lock(Block_Make(sizeof(Port_In_Header)));
    auto& record = *Block_Record<Port_In_Header>(header);
    record = {.data = Block_Lock(data), .size = Port_In_Longest - 1};
    EXPECT_EQ(Port_In_Prepare(handle_, header), Port_Failed);
    record.size = Port_In_Longest;
    EXPECT_EQ(Port_In_Prepare(handle_, header), Port_Ok);
    record.size = Port_In_Longest + 1;
    EXPECT_EQ(Port_In_Prepare(handle_, header), Port_Failed) << "the block is smaller";
    record.size = Port_In_Longest;
    Block_Unlock(data);
    EXPECT_EQ(Port_In_Prepare(handle_, header), Port_Failed) << "the block is not locked";
    EXPECT_EQ(Port_In_Add_Buffer(handle_, 12345), Port_Failed) << "no block at all";
}

TEST_F(Midi_Input_On_Jack, hears_a_dump_and_wakes_the_interface) {
    EXPECT_EQ(Heard_Of({Hex(Dump(1))}), Names{Dump(1)});
    EXPECT_EQ(Wake_Ups, 1);
}

TEST_F(Midi_Input_On_Jack, drops_notes_clock_and_sensing_without_a_wake_up) {
    EXPECT_EQ(Heard_Of({"90 3C 40", "F8", "FE", "80 3C 40", "F1 05", "FF"}), Names());
    EXPECT_EQ(Wake_Ups, 0);
}

TEST_F(Midi_Input_On_Jack, puts_pieces_together_whatever_comes_between_them) {
    const std::string dump = Dump(300);
    EXPECT_EQ(Heard_Of({Hex(dump.substr(0, 1)), "F8", Hex(dump.substr(1, 20)), "", "90 3C 40", "FE",
                        Hex(dump.substr(21, 45)), "C0 05", "", Hex(dump.substr(66)), Hex(Dump(301))}),
              (Names{dump, Dump(301)}));
}

TEST_F(Midi_Input_On_Jack, does_not_mix_a_dump_that_was_broken_off_with_the_next) {
    EXPECT_EQ(Heard_Of({Hex(Dump(1).substr(0, 30)), "90 3C 40", Hex(Dump(2)), Hex(Dump(3))}),
              (Names{Dump(2), Dump(3)}));
}

TEST_F(Midi_Input_On_Jack, takes_dumps_of_other_lengths) {
    const Names dumps = {Dump(1, 40), Dump(2, 66), Dump(3, 68), Dump(4, 4096)};
    Names events;
    for (const std::string& dump : dumps) events.push_back(Hex(dump));
    EXPECT_EQ(Heard_Of(events), dumps);
    EXPECT_FALSE(Port_In_Refused(handle_));
}

TEST_F(Midi_Input_On_Jack, refuses_a_dump_that_is_too_long_and_takes_the_next) {
    const std::string dump = Dump(1, 70000);
    Names events = {Hex(Dump(2, 4097)), Hex(Dump(3))};
    for (std::size_t place = 0; place < dump.size(); place += 1000)
        events.push_back(Hex(dump.substr(place, 1000)));
    events.push_back(Hex(Dump(4)));
    EXPECT_EQ(Heard_Of(events), (Names{Dump(3), Dump(4)}));
    EXPECT_TRUE(Port_In_Refused(handle_));
    EXPECT_FALSE(Port_In_Refused(handle_)) << "told once";
}

TEST_F(Midi_Input_On_Jack, keeps_what_comes_while_the_program_has_no_buffer_free) {
    Names dumps;
    Names events;
    for (unsigned number = 0; number < 100; ++number) {
        dumps.push_back(Dump(number));
        events.push_back(Hex(dumps.back()));
    }
    Start(events);
    Open();
    ASSERT_TRUE(player_->Wait_For_Line("played", Patience));
    EXPECT_EQ(Port_In_Next(handle_), 0);
    Give_Buffers(1);
    EXPECT_EQ(Heard(), dumps);
}

TEST_F(Midi_Input_On_Jack,
       loses_and_mixes_none_of_a_thousand_dumps_with_notes_and_clock_between_and_inside) {
    std::minstd_rand draw(7);
    Names dumps;
    Names events;
    for (unsigned number = 0; number < 1000; ++number) {
        dumps.push_back(Dump(number));
        const std::string& dump = dumps.back();
        if (number % 2 == 0) {
            events.push_back(Hex(dump));
        } else {
            const std::size_t cut = 1 + draw() % 65;
            events.push_back(Hex(dump.substr(0, cut)));
            events.emplace_back("90 3C 40");
            if (number % 3 == 0) events.emplace_back("F8");
            if (number % 5 == 0) events.emplace_back("");
            events.push_back(Hex(dump.substr(cut)));
        }
        events.emplace_back("80 3C 40");
        events.emplace_back("F8");
    }
    const Names heard = Heard_Of(events);
    EXPECT_EQ(heard.size(), 1000U);
    EXPECT_TRUE(heard == dumps);
    EXPECT_FALSE(Port_In_Refused(handle_));
}

TEST_F(Midi_Input_On_Jack, is_silent_behind_a_reset) {
    Start({"", Hex(Dump(1))});
    Open();
    Give_Buffers();
    EXPECT_EQ(Port_In_Reset(handle_), Port_Ok);
    EXPECT_EQ(Heard(), Names());
    EXPECT_EQ(Wake_Ups, 0);
}

TEST_F(Midi_Input_On_Jack, has_a_client_only_while_it_is_open) {
    const auto is_there = [] {
        Child_Process list({"jack_lsp"});
        list.Wait_For_End(Patience);
        return list.Wait_For_Line("Tonebench-01:Tonebench", 0ms) ||
               list.Wait_For_Line("Tonebench:Tonebench", 0ms);
    };
    Start({});
    EXPECT_FALSE(is_there());
    Open();
    EXPECT_TRUE(is_there());
    Close();
    EXPECT_FALSE(is_there());
}

TEST_F(Midi_Input_On_Jack, notices_a_device_that_vanishes_and_finds_it_when_it_is_back) {
    Start({}, Jack_Server::Pace::Goes_On);
    Open();
    EXPECT_TRUE(Port_In_Present(handle_));
    player_->Kill();
    const auto deadline = Clock::now() + Patience;
    while (Port_In_Present(handle_) && Clock::now() < deadline) std::this_thread::sleep_for(10ms);
    EXPECT_FALSE(Port_In_Present(handle_));
    EXPECT_EQ(Port_In_Reset(handle_), Port_Gone);
    EXPECT_EQ(Port_In_Close(handle_), Port_Ok);
    EXPECT_EQ(Port_In_Open(0, handle_), Port_Gone);

    handle_ = Port_Closed;
    Start_Player({Hex(Dump(9))});
    Open();
    Give_Buffers();
    EXPECT_EQ(Heard(), Names{Dump(9)});
}

TEST_F(Midi_Input_On_Jack, notices_a_connection_that_was_cut) {
    Start({});
    Open();
    Child_Process cut({"jack_disconnect", "player:out", "Tonebench-01:Tonebench"});
    ASSERT_EQ(cut.Wait_For_End(Patience), 0);
    const auto deadline = Clock::now() + Patience;
    while (Port_In_Present(handle_) && Clock::now() < deadline) std::this_thread::sleep_for(10ms);
    EXPECT_EQ(Port_In_Reset(handle_), Port_Gone);
    EXPECT_EQ(Port_In_Close(handle_), Port_Ok);
    handle_ = Port_Closed;
}

TEST_F(Midi_Input_On_Jack, ends_although_the_server_has_died) {
    Start({});
    Open();
    server_.Process().Kill();
    const auto begin = Clock::now();
    while (Port_In_Present(handle_) && Clock::now() < begin + Patience) std::this_thread::sleep_for(10ms);
    EXPECT_EQ(Port_In_Reset(handle_), Port_Gone);
    EXPECT_EQ(Port_In_Close(handle_), Port_Ok);
    // Its clients may find it gone, or for a moment only standing still.
    const Port_Result again = Port_In_Open(0, handle_);
    EXPECT_TRUE(again == Port_No_Driver || again == Port_Failed) << again;
    EXPECT_LT(Clock::now() - begin, Patience);
    player_->Kill();

    handle_ = Port_Closed;
    Start({Hex(Dump(9))});
    Open();
    Give_Buffers();
    EXPECT_EQ(Heard(), Names{Dump(9)});
}

TEST_F(Midi_Input_On_Jack, ends_although_the_server_stands_still) {
    Start({});
    Open();
    server_.Process().Signal(SIGSTOP);
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(Port_In_Reset(handle_), Port_Ok);
    EXPECT_EQ(Port_In_Close(handle_), Port_Failed);
    EXPECT_EQ(Port_Error_Text(Port_Failed), "The MIDI service stands still.");
    EXPECT_EQ(Port_In_Open(0, handle_), Port_Failed);
    server_.Process().Signal(SIGCONT);
    handle_ = Port_Closed;
}
