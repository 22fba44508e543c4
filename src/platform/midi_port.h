// The machine's MIDI ports as the program needs them: a list of names in a stable order, one output and
// one input that open by their index in that list, short and long messages, and an error text for a number.
//
// Bodies: midi_port_rtmidi.cpp and midi_port_in.cpp (RtMidi on ALSA, else JACK) and
// tests/fakes/fake_midi_port.cpp.
// Results are numbers: 0 is success, everything else a failure with a text. Nothing is thrown.
// All calls come from the interface thread. Sending copies the bytes and does not wait.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/port_blocks.h"

using Port_Result = std::int32_t;
using Port_Handle = std::int32_t;

// The numbers are those of the classic multimedia service, so that a box shows a number that a
// musician finds in other programs' manuals too.
inline constexpr Port_Result Port_Ok = 0;
inline constexpr Port_Result Port_Failed = 1;          // the MIDI service reported an error
inline constexpr Port_Result Port_Bad_Device = 2;      // no device has this index
inline constexpr Port_Result Port_Bad_Handle = 5;      // the port is not open
inline constexpr Port_Result Port_No_Driver = 6;       // neither ALSA nor JACK can be reached
inline constexpr Port_Result Port_Still_Playing = 65;  // bytes handed over are still on the wire
inline constexpr Port_Result Port_Gone = 68;           // the device has been unplugged

inline constexpr Port_Handle Port_Closed = -1;

// The names of all output (input) devices, in the system's order. Names stay the same from run to
// run: the changing "20:0" tail of ALSA is cut, equal names get " (2)", " (3)". A name is at most
// 63 bytes of UTF-8, as much as a value of the settings file can bring back.
// Refreshes the list that the index of Port_Out_Open (Port_In_Open) means.
std::vector<std::string> Port_Out_Names();
std::vector<std::string> Port_In_Names();

// Opens output `device`, an index into the last Port_Out_Names. On success `handle` is 0 or above;
// on failure it is left alone.
[[nodiscard]] Port_Result Port_Out_Open(int device, Port_Handle& handle);

// Port_Still_Playing until everything that was sent has had its time on the wire (31250 baud, ten
// bits a byte: 320 microseconds a byte); then closes. Any other failure leaves the port closed.
[[nodiscard]] Port_Result Port_Out_Close(Port_Handle handle);

// Sends a short message: status in bits 0-7, first data byte in bits 8-15, second in bits 16-23.
// The status decides how many of the data bytes go out. Allocates nothing.
[[nodiscard]] Port_Result Port_Out_Short(Port_Handle handle, std::uint32_t word);

// Looks whether the port can take a long message: Port_Gone when its device has vanished.
[[nodiscard]] Port_Result Port_Out_Ready(Port_Handle handle);

// Sends a system exclusive message, F0 to F7 included, of any length.
Port_Result Port_Out_Long(Port_Handle handle, std::string_view bytes);

// -- the input ------------------------------------------------------------------------------------------
//
// It hands over whole system exclusive messages, F0 to F7, in the order in which they came. Notes, clock
// and active sensing are dropped, also where they come in the middle of a message. What arrives waits in
// the port, some thousand dumps of it, until it is fetched; each arrival asks for a Wake_Up (wake_up.h).

// The longest message that is taken. A longer one is refused as a whole and takes no room.
inline constexpr std::size_t Port_In_Longest = 4096;

// What the header block of a buffer holds.
struct Port_In_Header {
    Block_Address data = 0;   // the block that the message is written into
    std::uint32_t size = 0;   // of that block, in bytes
    std::uint32_t bytes = 0;  // of the message in it
};

// Opens input `device`, an index into the last Port_In_Names. On success `handle` is above 0; on failure it
// is left alone.
[[nodiscard]] Port_Result Port_In_Open(int device, Port_Handle& handle);

// Looks whether a buffer can be given to the port: it must have room for the longest message.
[[nodiscard]] Port_Result Port_In_Prepare(Port_Handle handle, Block_Address header);

// Gives a prepared buffer to the port, which keeps it until it comes back filled.
[[nodiscard]] Port_Result Port_In_Add_Buffer(Port_Handle handle, Block_Address header);

// Puts the message that came first into a buffer and gives that back. 0 when nothing has come or the port
// has no buffer.
Block_Address Port_In_Next(Port_Handle handle);

// Whether messages have been refused since the last question: they were too long, or nobody fetched what
// had come before.
bool Port_In_Refused(Port_Handle handle);

// False when the device has vanished.
bool Port_In_Present(Port_Handle handle);

// Forgets the buffers and what has come; nothing more comes. Port_Gone when the device has vanished: the
// port is stopped all the same.
[[nodiscard]] Port_Result Port_In_Reset(Port_Handle handle);

// Closes the port, whatever it answers.
[[nodiscard]] Port_Result Port_In_Close(Port_Handle handle);

// The sentence for a result; for Port_Failed the service's own words of the last failure.
// Empty for a number that is none of the above.
std::string Port_Error_Text(Port_Result result);
