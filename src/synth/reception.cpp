#include "synth/reception.h"

#include <algorithm>

#include "midi/in.h"
#include "synth/tone.h"
#include "synth/views.h"

namespace {

constexpr std::size_t Header_Size = 7;
constexpr std::size_t Message_Size = Header_Size + Tone_Size + 1;

// Stores before the length is looked at, and for any length: a message that is cut overwrites the tone's
// beginning, which shows at the next refresh of the panels.
void Take_Over(const Byte_String& message) {
    for (std::size_t place = Header_Size; place < std::min(message.size(), Message_Size - 1); ++place) {
        Tone_Byte(place - Header_Size) = static_cast<std::uint8_t>(message[place]);
    }
    if (message.size() != Message_Size) return;
    Panel_Apply_Tone();
    // One complete tone ends the reception. Outside of it the same call begins one, if the port is open.
    MIDI_Receive_Toggle();
}

}  // namespace

void Reception_Install() {
    MIDI_In_Message = Take_Over;
}
