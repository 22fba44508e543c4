// Ports that record what is sent and fail when told to.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/midi_port.h"

struct Fake_Ports {
    std::vector<std::string> out_names;
    std::vector<std::string> in_names;
    Port_Result open_result = Port_Ok;
    std::vector<Port_Result> close_results;  // answers of the next closes; Port_Ok behind them
    Port_Result send_result = Port_Ok;       // of short messages
    Port_Result ready_result = Port_Ok;
    Port_Result long_result = Port_Ok;

    std::vector<std::string> sent;  // lines of hex, one a message: "F0 41 36 ..."
    std::vector<int> opened;        // device of each successful open
    int open_calls = 0;
    int close_calls = 0;
    int long_calls = 0;  // also those that failed
    Port_Handle open_handle = Port_Closed;

    Port_Result in_open_result = Port_Ok;
    std::vector<Port_Result> in_prepare_results;  // answers of the next ones; Port_Ok behind them
    std::vector<Port_Result> in_add_results;
    Port_Result in_reset_result = Port_Ok;
    Port_Result in_close_result = Port_Ok;
    bool in_present = true;
    bool in_refused = false;

    std::vector<int> in_opened;            // device of each successful open
    std::vector<std::string> in_calls;     // "reset 1", "page-unlock 3": closing, and every block released
    std::deque<std::string> in_arrived;    // messages that nobody has fetched yet
    std::deque<Block_Address> in_buffers;  // given to the port
    Port_Handle in_handle = Port_Closed;
};
extern Fake_Ports Ports;

// A message comes in: it waits in the port, and the interface thread is asked to wake up.
void Arrive(std::string_view message);

// What has been sent since the last call, as lines of hex.
std::vector<std::string> Sent();
