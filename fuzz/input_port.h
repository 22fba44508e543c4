// An input port without a service: bytes arrive by a call, and run through the pieces and the ring that the
// machine's own input has.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/sysex_pieces.h"

inline constexpr std::size_t Input_Ring_Bytes = 8192;

struct Input_Stand_In {
    std::vector<std::string> names;
    bool device_there = true;
};
extern Input_Stand_In Input;

bool Input_Is_Open();

// What the byte was the last of; nothing comes into a closed port.
Sysex_Pieces::Found Input_Arrive(std::uint8_t byte);

// The message that the last byte has ended.
std::string_view Input_Message();
