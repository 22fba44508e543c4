#include "sequencer/sequence.h"

#include "desk/menus.h"
#include "desk/windows.h"
#include "platform/text.h"

namespace {

constexpr std::int16_t Reset_Tempo = 30;
constexpr std::int16_t Reset_Range = 2;

}  // namespace

std::array<std::int16_t, Seq_Cells> Seq_Notes = {};
std::int16_t Seq_Tempo_Value = Reset_Tempo;
std::uint8_t Seq_Base_Note = 0;
std::int16_t Seq_Range_Index = Reset_Range;
Flag_8 Seq_Loaded = Flag_8::False;
Flag_8 Seq_Saved = Flag_8::True;
std::string Seq_File_Name;
std::string Seq_File_Path;
Flag_8 Seq_Running = Flag_8::False;
std::int16_t Seq_Pos = 0;
Hook<void()> Seq_Redraw;
Hook<void()> Seq_Panel_Buttons_On;
Hook<void()> Seq_Panel_Buttons_Off;

void Seq_New_Reset() {
    Seq_Pos = 0;
    Seq_Notes.fill(0);
    if (Is_True(Seq_Window_Open)) Seq_Redraw();
    Menu(Menu_File_Seq_Save).enabled = false;
    Seq_Saved = Flag_8::True;
    Seq_File_Name.clear();
    Seq_Range_Index = Reset_Range;
    Seq_Tempo_Value = Reset_Tempo;
    Seq_Loaded = Flag_8::False;
    Seq_Running = Flag_8::False;
    Seq_Panel_Buttons_Off();
}

bool Seq_Ready() {
    return Is_True(Seq_Loaded) || !Is_True(Seq_Saved);
}

void Seq_Show_Title() {
    Sequencer.caption = Seq_File_Name.empty() ? "Sequencer" : "Sequencer - " + Upper_Text(Seq_File_Name);
}
