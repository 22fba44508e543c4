// The input side: the port, its buffers, the pending strings and the reports.
#include "midi/in.h"

#include "fakes/stage.h"
#include "midi/devices.h"
#include "platform/event_loop.h"

namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;

Lines Messages;
int Left_Mode = 0;

// What is released of one buffer, in this order.
Lines Released(int data, int header) {
    const std::string d = " " + std::to_string(data);
    const std::string h = " " + std::to_string(header);
    return {"page-unlock" + d, "page-unlock" + h, "unlock" + d, "unlock" + h, "free" + d, "free" + h};
}

Lines Released_All() {
    Lines all;
    for (const int data : {1, 3, 5, 7}) {
        for (const std::string& line : Released(data, data + 1)) all.push_back(line);
    }
    return all;
}

Lines Closing(int handle) {
    Lines calls = {"reset " + std::to_string(handle)};
    for (const std::string& line : Released_All()) calls.push_back(line);
    calls.push_back("close " + std::to_string(handle));
    return calls;
}

}  // namespace

class MIDI_In : public Stage {
  protected:
    MIDI_In() {
        MIDI_In_Message = [](const Byte_String& message) { Messages.push_back(message); };
        MIDI_Receive_Toggle = [] {
            ++Left_Mode;
            MIDI_Receiving = 0;
            MIDI_In_Close();
        };
    }
};

// -- open ------------------------------------------------------------------------------------------------

TEST_F(MIDI_In, stands_closed_at_the_start) {
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_In_Device, 0);
    EXPECT_EQ(MIDI_Receiving, 0);
    EXPECT_EQ(MIDI_In_Pending_1, "");
    EXPECT_EQ(MIDI_In_Pending_2, "");
}

TEST_F(MIDI_In, opens_the_chosen_device_with_a_handle_above_0_and_buffers_1_to_4) {
    Ports.in_names = {"A", "B", "C"};
    MIDI_In_Device = 2;
    MIDI_In_Open();
    EXPECT_EQ(Ports.in_opened, std::vector<int>{2});
    EXPECT_GT(MIDI_In_Handle, 0);
    EXPECT_EQ(MIDI_In_Handle, Ports.in_handle);
    EXPECT_EQ(MIDI_In_Buffers[0].in_use, "");
    EXPECT_EQ(MIDI_In_Buffers[0].data, 0);
    for (std::size_t index = 1; index <= 4; ++index) {
        const MIDI_In_Buffer& buffer = MIDI_In_Buffers.at(index);
        EXPECT_EQ(buffer.in_use, "1");
        EXPECT_NE(buffer.data_block, 0);
        EXPECT_NE(buffer.header_block, 0);
        EXPECT_EQ(Block_At(buffer.data).size(), 4096U);
        EXPECT_EQ(Ports.in_buffers.at(index - 1), buffer.header);
    }
    EXPECT_TRUE(Wakes());
}

TEST_F(MIDI_In, that_is_open_stays_open) {
    MIDI_In_Open();
    MIDI_In_Open();
    EXPECT_EQ(Ports.in_opened.size(), 1U);
    EXPECT_EQ(Ports.in_buffers.size(), 4U);
}

TEST_F(MIDI_In, without_any_device_opens_nothing_and_says_nothing) {
    MIDI_In_Missing = Flag_16::True;
    MIDI_In_Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_TRUE(Ports.in_opened.empty());
}

TEST_F(MIDI_In, that_cannot_be_opened_tells_so_and_stays_closed) {
    Ports.in_open_result = 68;
    MIDI_Enabled = 1;
    Expect_Box("vbMidiInOpen: Text of 68");
    MIDI_In_Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1) << "the output goes on";
    EXPECT_FALSE(Wakes());
}

TEST_F(MIDI_In, of_a_device_that_was_not_found_tells_so) {
    MIDI_In_Device = -1;
    Expect_Box("vbMidiInOpen: Text of 2");
    MIDI_In_Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
}

TEST_F(MIDI_In, whose_buffer_cannot_be_prepared_is_closed_again) {
    Ports.in_prepare_results = {0, 0, 5};
    Expect_Box("vbMidiInPrepareHeader: Text of 5");
    MIDI_In_Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Ports.in_handle, -1);
    EXPECT_EQ(Ports.in_calls.size(), 2U + 3 * 6) << "closed, and three buffers released";
}

TEST_F(MIDI_In, whose_buffer_is_not_taken_is_closed_again) {
    Ports.in_add_results = {5};
    Expect_Box("vbMidiInAddBuffer: Text of 5");
    MIDI_In_Open();
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Ports.in_calls.size(), 2U + 6);
    EXPECT_FALSE(Wakes());
}

// -- close -----------------------------------------------------------------------------------------------

TEST_F(MIDI_In, closes_by_reset_the_release_of_its_buffers_and_close) {
    MIDI_In_Open();
    const int handle = MIDI_In_Handle;
    MIDI_In_Close();
    EXPECT_EQ(Ports.in_calls, Closing(handle));
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_FALSE(Wakes());
    MIDI_In_Close();
    EXPECT_EQ(Ports.in_calls, Closing(handle)) << "a closed port is not closed again";
}

TEST_F(MIDI_In, closes_a_port_whose_handle_is_0) {
    MIDI_In_Handle = 0;
    MIDI_In_Close();
    EXPECT_EQ(Ports.in_calls, (Lines{"reset 0", "close 0"}));
    EXPECT_EQ(MIDI_In_Handle, -1);
}

TEST_F(MIDI_In, without_any_device_only_forgets_its_handle_at_the_close) {
    MIDI_In_Missing = Flag_16::True;
    MIDI_In_Handle = 4;
    MIDI_In_Close();
    EXPECT_TRUE(Ports.in_calls.empty());
    EXPECT_EQ(MIDI_In_Handle, -1);
}

TEST_F(MIDI_In, reports_each_failure_of_a_close_and_closes_all_the_same) {
    MIDI_In_Open();
    MIDI_Enabled = 1;
    Ports.in_reset_result = 68;
    Ports.in_close_result = 1;
    Expect_Box("vbMidiInClose: Text of 68");
    Expect_Box("vbMidiInClose: Text of 1");
    MIDI_In_Close();
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(MIDI_In, opens_again_with_new_buffers_behind_a_close) {
    MIDI_In_Open();
    MIDI_In_Close();
    MIDI_In_Open();
    EXPECT_EQ(Ports.in_opened.size(), 2U);
    EXPECT_EQ(Ports.in_buffers.size(), 4U);
}

// -- the release -----------------------------------------------------------------------------------------

TEST_F(MIDI_In, release_leaves_index_0_alone_and_sets_the_words_of_the_others_to_0) {
    for (MIDI_In_Buffer& buffer : MIDI_In_Buffers) buffer = {"1", 11, 12, 13, 14};
    EXPECT_EQ(MIDI_In_Free_Buffers(), 0);
    EXPECT_EQ(MIDI_In_Buffers[0].data_block, 11);
    EXPECT_EQ(MIDI_In_Buffers[0].header, 14);
    EXPECT_EQ(Ports.in_calls.size(), 4U * 6);
    for (std::size_t index = 1; index <= 4; ++index) {
        const MIDI_In_Buffer& buffer = MIDI_In_Buffers.at(index);
        EXPECT_EQ(buffer.in_use, "1");
        EXPECT_EQ(buffer.data_block, 0);
        EXPECT_EQ(buffer.data, 0);
        EXPECT_EQ(buffer.header_block, 0);
        EXPECT_EQ(buffer.header, 0);
    }
    Ports.in_calls.clear();
    EXPECT_EQ(MIDI_In_Free_Buffers(), 0);
    EXPECT_TRUE(Ports.in_calls.empty()) << "nothing is released twice";
}

TEST_F(MIDI_In, release_takes_a_buffer_with_a_number_and_an_address_only) {
    MIDI_In_Buffers[1] = {"", 21, 22, 23, 24};
    MIDI_In_Buffers[2] = {"0", 31, 32, 33, 34};
    MIDI_In_Buffers[3] = {"-2", 41, 42, 43, 44};
    MIDI_In_Buffers[4] = {"1", 51, 0, 53, 54};
    MIDI_In_Free_Buffers();
    EXPECT_EQ(Ports.in_calls, Released(41, 43));
    EXPECT_EQ(MIDI_In_Buffers[1].data_block, 21);
    EXPECT_EQ(MIDI_In_Buffers[4].data_block, 51);
}

// -- the pending strings ---------------------------------------------------------------------------------

TEST_F(MIDI_In, take_returns_the_pending_string_and_empties_it) {
    MIDI_In_Pending_1 = "one";
    MIDI_In_Pending_2 = "two";
    EXPECT_EQ(MIDI_In_Take_1(), "one");
    EXPECT_EQ(MIDI_In_Pending_1, "");
    EXPECT_EQ(MIDI_In_Pending_2, "two");
    EXPECT_EQ(MIDI_In_Take_2(), "two");
    EXPECT_EQ(MIDI_In_Pending_2, "");
    EXPECT_EQ(MIDI_In_Take_2(), "");
}

TEST_F(MIDI_In, change_event_hands_on_both_pending_strings_the_first_one_first) {
    MIDI_In_Pending_1 = "one";
    MIDI_In_Pending_2 = "two";
    MidiNotifyControl_Change();
    EXPECT_EQ(Messages, (Lines{"one", "two"}));
    MidiNotifyControl_Change();
    EXPECT_EQ(Messages.size(), 2U);
    MIDI_In_Pending_2 = "three";
    MidiNotifyControl_Change();
    EXPECT_EQ(Messages.back(), "three");
}

TEST_F(MIDI_In, change_event_takes_the_second_string_behind_the_work_on_the_first) {
    MIDI_In_Message = [](const Byte_String& message) {
        Messages.push_back(message);
        EXPECT_EQ(MIDI_In_Pending_1, "") << "taken before it is worked on";
        if (message == "one") MIDI_In_Pending_2 = "came meanwhile";
    };
    MIDI_In_Pending_1 = "one";
    MidiNotifyControl_Change();
    EXPECT_EQ(Messages, (Lines{"one", "came meanwhile"}));
}

// -- arrival ---------------------------------------------------------------------------------------------

TEST_F(MIDI_In, hands_on_what_arrives_at_the_next_turn_of_the_events) {
    MIDI_In_Open();
    Arrive("\xF0one\xF7");
    EXPECT_TRUE(Messages.empty());
    Event_Loop_Turn();
    EXPECT_EQ(Messages, Lines{"\xF0one\xF7"});
    EXPECT_EQ(Ports.in_buffers.size(), 4U) << "the buffer is the port's again";
}

TEST_F(MIDI_In, loses_nothing_of_more_messages_than_there_are_pending_strings_and_buffers) {
    MIDI_In_Open();
    Lines sent;
    for (int number = 0; number < 1000; ++number) {
        sent.push_back("\xF0" + std::to_string(number) + "\xF7");
        Arrive(sent.back());
    }
    Event_Loop_Turn();
    EXPECT_EQ(Messages, sent);
}

TEST_F(MIDI_In, takes_two_at_once_so_that_both_come_through_a_close_by_the_first) {
    MIDI_In_Open();
    MIDI_In_Message = [](const Byte_String& message) {
        Messages.push_back(message);
        MIDI_In_Close();
    };
    for (const char* message : {"1", "2", "3"}) Arrive(message);
    Event_Loop_Turn();
    EXPECT_EQ(Messages, (Lines{"1", "2"})) << "the third came behind the end";
}

TEST_F(MIDI_In, holds_back_what_comes_while_a_message_is_still_worked_on) {
    MIDI_In_Open();
    MIDI_In_Message = [](const Byte_String& message) {
        Messages.push_back(message);
        if (message != "1") return;
        for (const char* next : {"2", "3", "4"}) Arrive(next);
        Event_Loop_Turn();
        EXPECT_EQ(Messages.size(), 1U) << "not before this one is done";
    };
    Arrive("1");
    Event_Loop_Turn();
    EXPECT_EQ(Messages, (Lines{"1", "2", "3", "4"}));
}

TEST_F(MIDI_In, goes_on_behind_a_message_whose_work_failed) {
    MIDI_In_Open();
    MIDI_In_Message = [](const Byte_String& message) {
        if (message == "bad") throw Fatal_Error("bad");
        Messages.push_back(message);
    };
    Expect_Box("bad");
    Ports.in_arrived.emplace_back("bad");
    Arrive("good");
    Event_Loop_Turn();
    Advance(500ms);
    EXPECT_EQ(Messages, Lines{"good"});
}

TEST_F(MIDI_In, shows_one_box_for_all_messages_refused_until_then_and_goes_on) {
    MIDI_In_Open();
    Ports.in_refused = true;
    Expect_Box("Midi buffer overflow!");
    Arrive("whole");
    Event_Loop_Turn();
    EXPECT_EQ(Messages, Lines{"whole"});
    EXPECT_GT(MIDI_In_Handle, 0);
    Event_Loop_Turn();
}

// -- a device that vanishes ------------------------------------------------------------------------------

TEST_F(MIDI_In, looks_twice_a_second_whether_the_device_is_there_and_leaves_the_mode_when_it_is_not) {
    MIDI_In_Open();
    MIDI_Receiving = 1;
    Advance(1400ms);
    EXPECT_EQ(Left_Mode, 0);
    Ports.in_present = false;
    Ports.in_reset_result = 68;
    Expect_Box("vbMidiInClose: Text of 68");
    Advance(100ms);
    EXPECT_EQ(Left_Mode, 1);
    EXPECT_EQ(MIDI_In_Handle, -1);
    Advance(5000ms);
    EXPECT_EQ(Left_Mode, 1);
}

TEST_F(MIDI_In, that_is_open_outside_of_the_mode_is_closed_when_its_device_vanishes) {
    MIDI_In_Open();
    Ports.in_present = false;
    Advance(500ms);
    EXPECT_EQ(Left_Mode, 0);
    EXPECT_EQ(MIDI_In_Handle, -1);
}

TEST_F(MIDI_In, takes_what_came_before_the_device_vanished) {
    MIDI_In_Open();
    Ports.in_arrived.emplace_back("last");
    Ports.in_present = false;
    Advance(500ms);
    EXPECT_EQ(Messages, Lines{"last"});
    EXPECT_EQ(MIDI_In_Handle, -1);
}

// -- the report ------------------------------------------------------------------------------------------

TEST_F(MIDI_In, report_shows_context_and_text_and_does_nothing_else) {
    MIDI_In_Open();
    MIDI_Enabled = 1;
    MIDI_Show_In_Error(0, "none");
    EXPECT_TRUE(Boxes.empty());
    for (const Port_Result result : {5, -1}) {
        Expect_Box("here: Text of " + std::to_string(result));
        MIDI_Show_In_Error(result, "here");
    }
    EXPECT_GT(MIDI_In_Handle, 0);
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_TRUE(Ports.in_calls.empty());
}

TEST_F(MIDI_In, report_of_a_number_without_a_text_says_unknown_error) {
    Expect_Box("here: Unknown error");
    MIDI_Show_In_Error(999, "here");
}

TEST_F(MIDI_In, report_cuts_a_text_at_159_characters) {
    Expect_Box("here: " + std::string(159, 'x'));
    MIDI_Show_In_Error(998, "here");
}
