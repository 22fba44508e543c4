// Ports that record what is sent and fail when told to.
#pragma once

#include <string>
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
};
extern Fake_Ports Ports;

// What has been sent since the last call, as lines of hex.
std::vector<std::string> Sent();
