// The real ports on a real JACK server with the dummy driver, started here under a name of its own. The
// witness at the other end of the port is not ours: JACK's midi dump prints the bytes of each message.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <thread>

#include "fakes/child_process.h"
#include "fakes/jack_server.h"
#include "platform/midi_port.h"

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;
using Names = std::vector<std::string>;

// All notes off: B0 7B 00.
constexpr std::uint32_t All_Notes_Off = 0x007BB0;

constexpr auto Patience = 10000ms;

const std::string Ten_Bytes("\xF0\x41\x36\x00\x21\x20\x01\x0D\x64\xF7", 10);
const std::string Ten_Bytes_Printed = "f0 41 36 00 21 20 01 0d 64 f7";

class Midi_Port_On_Jack : public testing::Test {
  protected:
    void SetUp() override { testing::internal::CaptureStderr(); }

    void TearDown() override {
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "the ports must not print anything";
    }

    // The witness's port is "<name>:input".
    static std::unique_ptr<Child_Process> Started_Witness(const std::string& name) {
        auto witness = Started_Client(Midi_Dump(name));
        Wait_For_Listing(name);
        return witness;
    }

    void Start_Server_And_Witness(Jack_Server::Pace pace = Jack_Server::Pace::Waits) {
        witness_ = std::move(server_.Start_With({Midi_Dump("witness")}, pace).front());
        Wait_For_Listing("witness");
    }

    // Our own list follows our own client, which hears of a port a little later.
    static void Wait_For_Listing(const std::string& name) {
        const auto deadline = Clock::now() + Patience;
        while (Index_Of(name + ":input") < 0) {
            if (Clock::now() >= deadline) throw std::runtime_error("the witness is not listed");
            std::this_thread::sleep_for(10ms);
        }
    }

    static int Index_Of(const std::string& name) {
        const Names names = Port_Out_Names();
        const auto found = std::find(names.begin(), names.end(), name);
        return found == names.end() ? -1 : static_cast<int>(found - names.begin());
    }

    // A witness shows its port a little before it lets itself be connected.
    static Port_Handle Opened(int device) {
        Port_Handle handle = Port_Closed;
        const auto deadline = Clock::now() + Patience;
        Port_Result result = Port_Out_Open(device, handle);
        while (result == Port_Failed && Clock::now() < deadline) {
            std::this_thread::sleep_for(10ms);
            result = Port_Out_Open(device, handle);
        }
        EXPECT_EQ(result, Port_Ok) << Port_Error_Text(result);
        return handle;
    }

    static Port_Handle Opened(const std::string& name) { return Opened(Index_Of(name)); }

    // Closes as the program does: again and again while the port still plays.
    static Port_Result Closed(Port_Handle handle) {
        const auto deadline = Clock::now() + Patience;
        Port_Result result = Port_Out_Close(handle);
        while (result == Port_Still_Playing && Clock::now() < deadline) {
            std::this_thread::sleep_for(1ms);
            result = Port_Out_Close(handle);
        }
        return result;
    }

    // Sends again and again until a send fails; that failure, or 0 when none comes.
    static Port_Result First_Failure(Port_Handle handle) {
        const auto deadline = Clock::now() + Patience;
        Port_Result result = Port_Ok;
        while (result == Port_Ok && Clock::now() < deadline) {
            result = Port_Out_Short(handle, All_Notes_Off);
            std::this_thread::sleep_for(2ms);
        }
        return result;
    }

    // The messages that the witness has printed, as soon as there are `count`.
    Names Heard(std::size_t count) {
        witness_->Wait_For_Lines(":", count, Patience);
        return Messages_Dumped(*witness_);
    }

    // The server goes first: one that has just lost a client takes a second to end.
    std::unique_ptr<Child_Process> witness_;
    Jack_Server server_;
};

}  // namespace

TEST_F(Midi_Port_On_Jack, without_a_server_there_are_no_ports_and_nothing_is_printed) {
    EXPECT_EQ(Port_Out_Names(), Names());
    EXPECT_EQ(Port_In_Names(), Names());
    Port_Handle handle = 77;
    EXPECT_EQ(Port_Out_Open(0, handle), Port_No_Driver);
    EXPECT_EQ(handle, 77);
}

TEST_F(Midi_Port_On_Jack, the_ports_at_the_other_end_are_listed_and_our_own_are_not) {
    Start_Server_And_Witness();
    EXPECT_EQ(Port_Out_Names(), Names{"witness:input"});
    EXPECT_EQ(Port_In_Names(), Names());
    const Port_Handle handle = Opened("witness:input");
    EXPECT_EQ(Port_Out_Names(), Names{"witness:input"});
    EXPECT_EQ(Port_In_Names(), Names());
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_server_that_starts_later_is_found) {
    EXPECT_EQ(Port_Out_Names(), Names());
    Start_Server_And_Witness();
    EXPECT_EQ(Port_Out_Names(), Names{"witness:input"});
}

TEST_F(Midi_Port_On_Jack, a_short_message_has_as_many_bytes_as_its_status_says) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    for (const std::uint32_t word :
         {0x403C8FU, 0x403C9FU, 0x403CA0U, 0x007BB0U, 0x4005C1U, 0x4005D2U, 0x4005E3U, 0x4005F1U, 0x4005F2U,
          0x4005F3U, 0x4005F6U, 0x4005F8U, 0x4005FFU}) {
        EXPECT_EQ(Port_Out_Short(handle, word), Port_Ok);
    }
    EXPECT_EQ(Heard(13), (Names{"8f 3c 40", "9f 3c 40", "a0 3c 40", "b0 7b 00", "c1 05", "d2 05",
                                "e3 05 40", "f1 05", "f2 05 40", "f3 05", "f6", "f8", "ff"}));
    EXPECT_EQ(Port_Out_Short(handle, 0x403C7F), Port_Failed);
    EXPECT_EQ(Port_Out_Short(handle, 0x403CF0), Port_Failed);
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, long_messages_arrive_whole_and_in_order) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    std::string ninety_bytes = "\xF0";
    std::string ninety_printed = "f0";
    for (int byte = 0; byte < 88; ++byte) {
        ninety_bytes += '\x2A';
        ninety_printed += " 2a";
    }
    ninety_bytes += '\xF7';
    ninety_printed += " f7";
    EXPECT_EQ(Port_Out_Ready(handle), Port_Ok);
    EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
    EXPECT_EQ(Port_Out_Long(handle, ninety_bytes), Port_Ok);
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
    EXPECT_EQ(Port_Out_Long(handle, ""), Port_Ok);
    EXPECT_EQ(Heard(3), (Names{Ten_Bytes_Printed, ninety_printed, "b0 7b 00"}));
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_message_that_would_not_arrive_whole_is_refused_and_the_next_one_arrives) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    EXPECT_EQ(Port_Out_Long(handle, "\xF0" + std::string(70000, '\x2A') + "\xF7"), Port_Failed);
    EXPECT_EQ(Port_Error_Text(Port_Failed),
              "A MIDI message of 70002 bytes is too long for this port: at most 16371 bytes arrive whole.");
    EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
    EXPECT_EQ(Heard(1), Names{Ten_Bytes_Printed});
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_port_still_plays_until_its_bytes_have_had_their_time_on_the_wire) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    const auto begin = Clock::now();
    // 100 bytes of 320 microseconds.
    for (int count = 0; count < 10; ++count) EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
    EXPECT_EQ(Port_Out_Close(handle), Port_Still_Playing);
    EXPECT_EQ(Port_Out_Ready(handle), Port_Ok);
    EXPECT_EQ(Closed(handle), Port_Ok);
    EXPECT_GE(Clock::now() - begin, 32ms);
    EXPECT_EQ(Port_Out_Close(handle), Port_Bad_Handle);
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Bad_Handle);
}

TEST_F(Midi_Port_On_Jack, a_flood_holds_the_close_up_by_what_the_buffers_hold_and_no_more) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    // Six seconds on the wire, sent in less than one.
    for (int count = 0; count < 2000; ++count) {
        EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
        std::this_thread::sleep_for(200us);
    }
    const auto begin = Clock::now();
    EXPECT_EQ(Closed(handle), Port_Ok);
    EXPECT_LT(Clock::now() - begin, 2s);
}

TEST_F(Midi_Port_On_Jack, nothing_is_lost_when_the_port_closes_right_after_the_last_message) {
    Start_Server_And_Witness();
    constexpr std::size_t Rounds = 20;
    Names expected;
    Port_Handle last_handle = Port_Closed;
    for (std::size_t round = 0; round < Rounds; ++round) {
        const Port_Handle handle = Opened("witness:input");
        EXPECT_NE(handle, last_handle);
        last_handle = handle;
        EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
        EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
        EXPECT_EQ(Closed(handle), Port_Ok);
        expected.push_back(Ten_Bytes_Printed);
        expected.emplace_back("b0 7b 00");
    }
    EXPECT_EQ(Heard(2 * Rounds), expected);
}

TEST_F(Midi_Port_On_Jack, an_index_outside_the_list_and_a_second_open_are_refused) {
    Start_Server_And_Witness();
    Port_Handle handle = 77;
    EXPECT_EQ(Port_Out_Open(-1, handle), Port_Bad_Device);
    EXPECT_EQ(Port_Out_Open(1, handle), Port_Bad_Device);
    EXPECT_EQ(handle, 77);
    const Port_Handle open = Opened("witness:input");
    EXPECT_EQ(Port_Out_Open(0, handle), Port_Failed);
    EXPECT_EQ(handle, 77);
    EXPECT_EQ(Port_Out_Short(open, All_Notes_Off), Port_Ok);
    EXPECT_EQ(Closed(open), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_device_that_goes_does_not_shift_the_index_to_another_one) {
    server_.Start(Jack_Server::Pace::Goes_On);
    const auto first = Started_Witness("first");
    witness_ = Started_Witness("second");
    ASSERT_EQ(Port_Out_Names(), (Names{"first:input", "second:input"}));
    first->Kill();
    Port_Handle handle = Port_Closed;
    const auto deadline = Clock::now() + Patience;
    while (Port_Out_Open(0, handle) != Port_Gone && Clock::now() < deadline) {
        // The server has not noticed yet.
        if (handle != Port_Closed) {
            ASSERT_EQ(Closed(handle), Port_Ok);
        }
        handle = Port_Closed;
        std::this_thread::sleep_for(10ms);
    }
    EXPECT_LT(Clock::now(), deadline);
    handle = Opened(1);
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
    EXPECT_EQ(Heard(1), Names{"b0 7b 00"});
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_port_that_has_vanished_fails_at_the_next_send_and_is_found_when_it_is_back) {
    Start_Server_And_Witness(Jack_Server::Pace::Goes_On);
    const Port_Handle handle = Opened("witness:input");
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
    witness_->Kill();
    EXPECT_EQ(First_Failure(handle), Port_Gone);
    EXPECT_EQ(Port_Out_Ready(handle), Port_Gone);
    EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Gone);
    EXPECT_EQ(Port_Out_Close(handle), Port_Ok);
    Port_Handle none = Port_Closed;
    EXPECT_EQ(Port_Out_Open(0, none), Port_Gone);
    EXPECT_EQ(none, Port_Closed);

    witness_ = Started_Witness("witness");
    const Port_Handle again = Opened("witness:input");
    EXPECT_EQ(Port_Out_Long(again, Ten_Bytes), Port_Ok);
    EXPECT_EQ(Heard(1), Names{Ten_Bytes_Printed});
    EXPECT_EQ(Closed(again), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_port_to_which_nobody_listens_any_more_fails_at_the_next_send) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    Child_Process disconnect({"jack_disconnect", "Tonebench:Tonebench", "witness:input"});
    ASSERT_EQ(disconnect.Wait_For_End(Patience), 0);
    EXPECT_EQ(First_Failure(handle), Port_Gone);
    EXPECT_EQ(Port_Out_Close(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, another_client_that_comes_and_goes_does_no_harm) {
    Start_Server_And_Witness(Jack_Server::Pace::Goes_On);
    const Port_Handle handle = Opened("witness:input");
    { const auto other = Started_Witness("other"); }
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
    EXPECT_EQ(Heard(1), Names{"b0 7b 00"});
    EXPECT_EQ(Closed(handle), Port_Ok);
}

TEST_F(Midi_Port_On_Jack, a_server_that_dies_fails_the_next_send_and_one_that_is_back_works_again) {
    Start_Server_And_Witness();
    for (int round = 0; round < 2; ++round) {
        const Port_Handle handle = Opened("witness:input");
        EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
        server_.Process().Kill();
        EXPECT_EQ(First_Failure(handle), Port_Gone);
        const auto begin = Clock::now();
        EXPECT_EQ(Port_Out_Ready(handle), Port_Gone);
        EXPECT_EQ(Port_Out_Names(), Names());
        EXPECT_EQ(Port_In_Names(), Names());
        EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Gone);
        EXPECT_EQ(Port_Out_Close(handle), Port_Ok);
        Port_Handle none = Port_Closed;
        EXPECT_EQ(Port_Out_Open(0, none), Port_No_Driver);
        EXPECT_LT(Clock::now() - begin, 500ms);
        witness_->Kill();

        Start_Server_And_Witness();
        const Port_Handle again = Opened("witness:input");
        EXPECT_EQ(Port_Out_Long(again, Ten_Bytes), Port_Ok);
        EXPECT_EQ(Heard(1), Names{Ten_Bytes_Printed});
        EXPECT_EQ(Closed(again), Port_Ok);
    }
}

TEST_F(Midi_Port_On_Jack, a_server_that_stands_still_refuses_and_does_not_hold_us_up) {
    Start_Server_And_Witness();
    const Port_Handle handle = Opened("witness:input");
    server_.Process().Signal(SIGSTOP);
    std::this_thread::sleep_for(50ms);
    Port_Result result = Port_Ok;
    for (int count = 0; count < 10000 && result == Port_Ok; ++count) {
        result = Port_Out_Short(handle, All_Notes_Off);
    }
    EXPECT_EQ(result, Port_Failed);
    EXPECT_EQ(Port_Error_Text(result), "The MIDI port does not keep up: its buffer is full.");
    server_.Process().Signal(SIGCONT);
}

TEST_F(Midi_Port_On_Jack, closing_and_opening_end_although_the_server_stands_still) {
    Start_Server_And_Witness();
    Port_Handle handle = Opened("witness:input");
    server_.Process().Signal(SIGSTOP);
    std::this_thread::sleep_for(50ms);
    EXPECT_EQ(Port_Out_Short(handle, All_Notes_Off), Port_Ok);
    EXPECT_EQ(Closed(handle), Port_Failed);
    EXPECT_EQ(Port_Error_Text(Port_Failed), "The MIDI service stands still.");
    EXPECT_EQ(Port_Out_Close(handle), Port_Bad_Handle);
    EXPECT_EQ(Port_Out_Names(), Names{"witness:input"});
    EXPECT_EQ(Port_Out_Open(0, handle), Port_Failed);
    EXPECT_EQ(Port_Error_Text(Port_Failed), "The MIDI service stands still.");

    server_.Process().Signal(SIGCONT);
    // What the old port still held may be lost; the new one works.
    handle = Opened("witness:input");
    EXPECT_EQ(Port_Out_Long(handle, Ten_Bytes), Port_Ok);
    EXPECT_TRUE(witness_->Wait_For_Line(Ten_Bytes_Printed, Patience));
    EXPECT_EQ(Closed(handle), Port_Ok);
}
