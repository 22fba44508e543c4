#include "filedlg/state.h"

std::string FD_Mode;
std::string FD_Default_Ext;
std::string FD_Dir;
std::string FD_Drive;
std::string FD_Selected;
std::string FD_Selected_Kind;
Flag_8 FD_Done = Flag_8::False;
Flag_16 FD_Cancelled = Flag_16::False;
Flag_16 FD_Open = Flag_16::False;
std::int16_t FD_Wait_Over = 0;
int FD_Times_Loaded = 0;
Name_Field FD_FileName;
Focus_Wish FD_Focus;

void FD_FileName_Select() {
    ++FD_FileName.times_selected;
}

void FD_Focus_To(FD_Field field) {
    FD_Focus.field = field;
    ++FD_Focus.times;
}
