#include "sequencer/sequence.h"

std::array<std::int16_t, Seq_Rows* Seq_Steps> Seq_Notes = {};
std::uint8_t Seq_Base_Note = 0;
Flag_8 Seq_Loaded = Flag_8::False;
Flag_8 Seq_Saved = Flag_8::True;
Flag_8 Seq_Running = Flag_8::False;
std::int16_t Seq_Pos = 0;

Hook<void()> Seq_Clock_Dark;

bool Seq_Ready() {
    return Is_True(Seq_Loaded) || !Is_True(Seq_Saved);
}
