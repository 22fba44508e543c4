// The user and the output port of the fuzz targets: questions are answered by the input's bytes, waits are
// given a procedure to run, and what is sent is kept.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/message_box.h"

struct Stand_In {
    // One byte answers one question; behind the last the answer is the one that ends the matter.
    std::string_view answers;
    std::vector<std::string> boxes;  // the texts of all boxes so far

    // What happens while the program waits for an event. False: no window is open any more.
    std::function<bool()> waiting;

    std::vector<std::string> port_names;
    bool port_opens = false;
    std::vector<std::string> sent;  // the long messages
    std::size_t shorts = 0;         // the number of short ones
};
extern Stand_In Stand;

// Nothing asked, nothing sent.
void Stand_Begin();

// How often a box with this text has come.
std::size_t Boxes_With(std::string_view text);
