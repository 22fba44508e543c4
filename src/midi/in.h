// The input side: one port, open only while a tone is waited for.
//
//      port --> MIDI_In_Buffers 1 to 4 --> MIDI_In_Pending_1, _2 --> MidiNotifyControl_Change -->
//      MIDI_In_Message
//
// Everything here runs on the interface thread. What comes while both pending strings are in use, or while
// an earlier message is still being worked on, waits in the port.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "midi/out.h"
#include "platform/hook.h"
#include "platform/midi_port.h"
#include "platform/numbers.h"
#include "platform/port_blocks.h"

// Written by this module, by the devices' enumeration and by the setup dialog.
extern Port_Handle MIDI_In_Handle;   // -1 = closed; reception needs a value above 0
extern std::int16_t MIDI_In_Device;  // index into MIDI_In_Caps
extern Flag_16 MIDI_In_Missing;      // the system has no input device

extern std::int16_t MIDI_Receiving;  // 1 in receive mode, else 0; written by MIDI_Receive_Toggle

// Received messages that wait for the change event; empty = nothing waits.
extern Byte_String MIDI_In_Pending_1;
extern Byte_String MIDI_In_Pending_2;

// A buffer of the input: a block for the bytes and one for the header that the port fills in
// (Port_In_Header).
struct MIDI_In_Buffer {
    std::string in_use;  // a number in words; another value than 0 = in use
    Block_Handle data_block = 0;
    Block_Address data = 0;
    Block_Handle header_block = 0;
    Block_Address header = 0;
};
// Index 0 is never used and never released.
extern std::array<MIDI_In_Buffer, 5> MIDI_In_Buffers;

// Opens the device MIDI_In_Device and gives it the buffers. Does nothing while the port is open or when
// there is no device. A failure is shown and leaves the port closed.
void MIDI_In_Open();

// Closes the port if there is one; always leaves MIDI_In_Handle at -1.
void MIDI_In_Close();

// Releases the buffers in use. Returns 0.
std::int16_t MIDI_In_Free_Buffers();

// The pending string, which is empty then.
Byte_String MIDI_In_Take_1();
Byte_String MIDI_In_Take_2();

// The change event of MidiNotifyControl, by which whatever fills the pending strings wakes the interface:
// hands both on, the first one first.
void MidiNotifyControl_Change();

// What has come into the port goes into the pending strings, again and again until nothing waits. A device
// that has vanished ends the reception. Runs when something arrives, and twice a second to look after the
// device.
void MIDI_In_Arrived();

// The report of a failed input: a box, and nothing else. Nothing for 0.
void MIDI_Show_In_Error(Port_Result result, const std::string& context);

// Filled in by the reception: enters or leaves receive mode.
extern Hook<void()> MIDI_Receive_Toggle;

// Filled in by the tone: takes over one received message.
extern Hook<void(const Byte_String& message)> MIDI_In_Message;
