#include "midi/in.h"

Port_Handle MIDI_In_Handle = Port_Closed;
std::int16_t MIDI_In_Device = 0;
Flag_16 MIDI_In_Missing = Flag_16::False;
std::int16_t MIDI_Receiving = 0;

Hook<void()> MIDI_Receive_Toggle;

void MIDI_In_Close() {
    MIDI_In_Handle = Port_Closed;
}
