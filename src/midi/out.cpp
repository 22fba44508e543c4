#include "midi/out.h"

#include <utility>

#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "platform/text.h"

namespace {

// Sizes of the classic error text buffers, their final zero included.
constexpr std::size_t Out_Error_Buffer = 160;
constexpr std::size_t Long_Error_Buffer = 128;

constexpr std::int16_t All_Notes_Off_Controller = 123;

// How long one turn of the close sleeps at most while the port still plays: three bytes on the wire.
constexpr int Close_Wait_Milliseconds = 1;

std::uint32_t Packed(std::int32_t status, std::int32_t data_1, std::int32_t data_2) {
    return static_cast<std::uint32_t>((status & 0xFF) | (data_1 & 0xFF) << 8 | (data_2 & 0xFF) << 16);
}

// Only the low 16 bits of a platform result are kept.
std::int16_t Kept(Port_Result result) {
    return static_cast<std::int16_t>(result);
}

std::int32_t Byte_At(const Byte_String& message, std::size_t place) {
    return place < message.size() ? static_cast<std::uint8_t>(message[place]) : 0;
}

// True while a failed port is being closed. Its failure stands in a box already: the all-notes-off that
// the close sends will most likely fail too, and that is not told again.
bool Port_Failing = false;

// Sets MIDI_Out_Closing for its lifetime. An event of the wait may close too, and ends first.
struct Closing_Mark {
    const bool before = std::exchange(MIDI_Out_Closing, true);
    Closing_Mark() = default;
    Closing_Mark(const Closing_Mark&) = delete;
    Closing_Mark& operator=(const Closing_Mark&) = delete;
    ~Closing_Mark() { MIDI_Out_Closing = before; }
};

// Closes the port when it has played what it holds. Events run meanwhile, the wait sleeps between them.
std::int16_t Close_When_Quiet() {
    const Closing_Mark mark;
    bool windows_open = Event_Loop_Turn();
    while (windows_open) {
        // One of the events may have closed it.
        if (MIDI_Out_Handle == Port_Closed) return 0;
        const std::int16_t result = Kept(Port_Out_Close(MIDI_Out_Handle));
        // A close that failed may have left the port closed all the same. The try that follows its report
        // must not report that in turn: there would be no end to the boxes.
        if (result == Port_Bad_Handle && Port_Failing) return 0;
        if (result != Port_Still_Playing) return result;
        windows_open = Event_Loop_Wait(Close_Wait_Milliseconds);
    }
    return 0;
}

// Opens the port if need be. False when MIDI is off, also when it went off just now because the port could
// not be opened: that has had its box, and a send to the closed port would only give a second one.
bool Open_For_Sending() {
    MIDI_Out_Open();
    return MIDI_Enabled == 1;
}

std::string Error_Text(std::int16_t result, std::size_t buffer_size) {
    return std::string(Cut_To_Bytes(Port_Error_Text(result), buffer_size - 1));
}

}  // namespace

std::uint8_t MIDI_Enabled = 0;
std::uint8_t MIDI_Channel = 1;
Port_Handle MIDI_Out_Handle = Port_Closed;
bool MIDI_Out_Closing = false;
std::int16_t MIDI_Out_Device = 0;
Byte_String MIDI_All_Off_Msg;
std::int16_t Seq_Status = 0;
std::int16_t Seq_Last_Note = 0;
std::int16_t Seq_Last_Velocity = 0;
std::int32_t Seq_Last_Message = 0;
std::int16_t Seq_Last_Result = 0;
std::uint8_t MIDI_Autosend = 1;
std::uint8_t MIDI_Autoplay = 1;

void MIDI_Out_Open() {
    if (MIDI_Enabled != 1 || MIDI_Out_Handle != Port_Closed) return;
    const std::int16_t result = Kept(Port_Out_Open(MIDI_Out_Device, MIDI_Out_Handle));
    if (result != 0) {
        MIDI_Show_Out_Error(result, "MIDI_Out_Open");
        MIDI_Out_Handle = Port_Closed;
        MIDI_Enabled = 0;
    }
}

void MIDI_Out_Close() {
    if (MIDI_Enabled != 1 || MIDI_Out_Handle == Port_Closed) return;
    MIDI_All_Notes_Off();
    // A failure of that has closed the port on its own way.
    if (MIDI_Out_Handle == Port_Closed) return;
    MIDI_Show_Out_Error(Close_When_Quiet(), "MIDI_Out_Close");
    MIDI_Out_Handle = Port_Closed;
}

void MIDI_Out_Close_Fully() {
    while (MIDI_Out_Handle != Port_Closed) {
        if (MIDI_Enabled == 1) {
            MIDI_Out_Close();
        } else {
            // Switched off while the port was open: MIDI_Out_Close would never take it on.
            (void)Close_When_Quiet();
            MIDI_Out_Handle = Port_Closed;
        }
    }
}

std::int16_t MIDI_Put(const Byte_String& message) {
    if (MIDI_Out_Handle == Port_Closed) MIDI_Out_Open();
    // Whether the open succeeded is not asked: a closed port refuses, and that is reported below.
    const std::int16_t result = Kept(Port_Out_Short(
        MIDI_Out_Handle, Packed(Byte_At(message, 0), Byte_At(message, 1), Byte_At(message, 2))));
    if (!Port_Failing) MIDI_Show_Out_Error(result, "MIDI_Put");
    return result;
}

void MIDI_All_Notes_Off() {
    MIDI_All_Off_Msg.clear();
    MIDI_All_Off_Msg += static_cast<char>(Control_Change_Status(MIDI_Channel));
    MIDI_All_Off_Msg += static_cast<char>(All_Notes_Off_Controller);
    MIDI_All_Off_Msg += '\0';
    if (!Open_For_Sending()) return;
    MIDI_Put(MIDI_All_Off_Msg);
}

void MIDI_SendNote(std::int16_t note, std::int16_t velocity) {
    if (!Open_For_Sending()) return;
    const std::int16_t result =
        Kept(Port_Out_Short(MIDI_Out_Handle, Packed(Note_On_Status(MIDI_Channel), note, velocity)));
    MIDI_Show_Out_Error(result, "MIDI_SendNote");
}

void MIDI_Send_Long(const Byte_String& message) {
    if (!Open_For_Sending()) return;
    const std::int16_t ready = Kept(Port_Out_Ready(MIDI_Out_Handle));
    if (ready != 0) MIDI_Show_Long_Error(ready, "OutPreparerHeader");
    // What becomes of the message itself is not looked at: a tone that did not arrive is not noticed.
    (void)Port_Out_Long(MIDI_Out_Handle, message);
}

void Seq_SendNote(std::int16_t note, std::int16_t velocity) {
    Seq_Last_Note = note;
    Seq_Last_Velocity = velocity;
    const std::uint32_t word = Packed(Seq_Status, note, velocity);
    Seq_Last_Message = static_cast<std::int32_t>(word);
    Seq_Last_Result = Kept(Port_Out_Short(MIDI_Out_Handle, word));
    if (Seq_Last_Result != 0) MIDI_Show_Out_Error(Seq_Last_Result, "Seq_SendNote");
}

void Seq_SendAllNotesOff() {
    if (MIDI_Enabled != 1) return;
    Seq_Status = Control_Change_Status(MIDI_Channel);
    Seq_Last_Note = All_Notes_Off_Controller;
    Seq_Last_Velocity = 0;
    if (Open_For_Sending()) {
        const std::int16_t result =
            Kept(Port_Out_Short(MIDI_Out_Handle, Packed(Seq_Status, All_Notes_Off_Controller, 0)));
        MIDI_Show_Out_Error(result, "Seq_SendAllNotesOff");
    }
    Seq_Status = Note_On_Status(MIDI_Channel);
}

void MIDI_Show_Out_Error(std::int16_t result, const std::string& context) {
    if (result == 0) return;
    std::string text = Error_Text(result, Out_Error_Buffer);
    if (text.empty()) text = "Unknown error";
    Message_Box(context + "*: (" + std::to_string(result) + ") " + text);
    if (result > 0) {
        const bool failing_before = Port_Failing;
        Port_Failing = true;
        MIDI_Out_Close();
        Port_Failing = failing_before;
        MIDI_Enabled = 0;
    }
}

void MIDI_Show_Long_Error(std::int16_t result, const std::string& context) {
    Message_Box(context + "\r\n" + Error_Text(result, Long_Error_Buffer));
}
