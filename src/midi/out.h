// The one place through which all sound leaves the program.
//
//      panels, messages, sequencer, keyboard
//                     |
//            MIDI_Send_Long, MIDI_SendNote, Seq_SendNote ...
//                     |
//           one output port, opened at the first send
//
// No queue and no thread stand between a control and the port. A failed open or short message is shown in a
// box, closes the port and switches MIDI off, so that one broken cable gives one box and not a hundred. A
// long message that the port cannot take is shown too, but leaves MIDI on: the device may come back.
//
// Left out: the long-message header and the yield that the classic service needs while it works on it.
// Our ports copy the bytes, so a send never lets another event in.
#pragma once

#include <cstdint>
#include <string>

#include "platform/midi_port.h"

// A message as bytes, one element a byte. Zero bytes are ordinary elements.
using Byte_String = std::string;

// Written by this module and by the setup dialog.
extern std::uint8_t MIDI_Enabled;       // 1 = MIDI on; senders test for exactly 1
extern std::uint8_t MIDI_Channel;       // 1 to 16, the number that the user sees
extern Port_Handle MIDI_Out_Handle;     // -1 = closed
extern std::int16_t MIDI_Out_Device;    // index into MIDI_Out_Caps
extern Byte_String MIDI_All_Off_Msg;    // the last all-notes-off message
extern std::int16_t Seq_Status;         // the status byte that Seq_SendNote uses
extern std::int16_t Seq_Last_Note;      // arguments of the last Seq_SendNote;
extern std::int16_t Seq_Last_Velocity;  // Seq_SendAllNotesOff leaves 123 and 0 here
extern std::int32_t Seq_Last_Message;   // the packed word of the last Seq_SendNote
extern std::int16_t Seq_Last_Result;    // the platform's result of it

// Written by the setup dialog, the settings and receive mode: 1 = changes go out by themselves.
extern std::uint8_t MIDI_Autosend;
extern std::uint8_t MIDI_Autoplay;  // 1 = the file window plays a preview

// Status bytes of the configured channel.
constexpr std::int16_t Note_On_Status(std::uint8_t channel) {
    return static_cast<std::int16_t>(channel + 143);
}
constexpr std::int16_t Control_Change_Status(std::uint8_t channel) {
    return static_cast<std::int16_t>(channel + 175);
}

// Opens the port unless it is open or MIDI is off. A failure switches MIDI off.
void MIDI_Out_Open();

// All notes off, then closes the port; waits, with events running, while the port still plays.
void MIDI_Out_Close();

// True while that wait lasts. Who sends on and on, at every tick of a clock, would keep the port playing
// and never let it close; such a sender stays silent meanwhile.
extern bool MIDI_Out_Closing;

// MIDI_Out_Close again and again until the port is closed. Also closes a port that was left open when MIDI
// was switched off.
void MIDI_Out_Close_Fully();

// Sends a short message of 1, 2 or 3 bytes; absent data bytes are 0. Opens the port if it is closed.
// Returns the platform's result.
std::int16_t MIDI_Put(const Byte_String& message);

// Controller 123, value 0, on the configured channel.
void MIDI_All_Notes_Off();

// A note on the configured channel; velocity 0 ends it. The program never sends status 8n.
void MIDI_SendNote(std::int16_t note, std::int16_t velocity);

// Sends a system exclusive message, F0 to its end byte.
void MIDI_Send_Long(const Byte_String& message);

// The sequencer's fast path: neither tests nor opens, packs with integer operations, allocates nothing.
// Callers open the port first.
void Seq_SendNote(std::int16_t note, std::int16_t velocity);

// Controller 123 on the configured channel, sent directly. Leaves Seq_Status at note-on.
void Seq_SendAllNotesOff();

// The report of a failed send: box, and for a positive result the port closed and MIDI off.
// Nothing for 0.
void MIDI_Show_Out_Error(std::int16_t result, const std::string& context);

// The older report, of long messages: box only, without the number.
void MIDI_Show_Long_Error(std::int16_t result, const std::string& context);
