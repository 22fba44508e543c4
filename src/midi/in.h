// The input side as far as the setup needs it: which device, and whether its port is open.
#pragma once

#include <cstdint>

#include "platform/hook.h"
#include "platform/midi_port.h"
#include "platform/numbers.h"

extern Port_Handle MIDI_In_Handle;   // -1 = closed
extern std::int16_t MIDI_In_Device;  // index into MIDI_In_Caps
extern Flag_16 MIDI_In_Missing;      // the system has no input device
extern std::int16_t MIDI_Receiving;  // 1 in receive mode, else 0

// Closes the port if there is one; always leaves MIDI_In_Handle at -1.
void MIDI_In_Close();

// Filled in by the reception: enters or leaves receive mode.
extern Hook<void()> MIDI_Receive_Toggle;
