// MIDI ports that come and go, fail and recover as the monkey likes, and that look at every message: it
// must be well formed, and nothing may come while MIDI is off.
#pragma once

#include <string>
#include <vector>

#include "platform/midi_port.h"

struct Monkey_Ports {
    std::vector<std::string> out_names = {"Synth Out", "Other Out"};
    std::vector<std::string> in_names = {"Keys In"};
    Port_Result out_open = Port_Ok;  // what the next calls answer
    Port_Result out_short = Port_Ok;
    Port_Result out_long = Port_Ok;
    Port_Result out_close = Port_Ok;
    Port_Result in_open = Port_Ok;
    Port_Result in_add = Port_Ok;
    Port_Result in_reset = Port_Ok;
    bool in_present = true;

    Port_Handle out_handle = Port_Closed;
    Port_Handle in_handle = Port_Closed;
};
extern Monkey_Ports Ports;

// All as at the beginning, but what is open stays open.
void Ports_Heal();

// A message comes in, if the input is open.
void Ports_Arrive(const std::string& message);
void Ports_Refuse();  // one that was too long

// The bytes of the last long messages, to play back.
const std::vector<std::string>& Ports_Heard();
