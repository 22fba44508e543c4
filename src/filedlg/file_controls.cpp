#include "filedlg/file_controls.h"

#include "panels/push_buttons.h"
#include "sequencer/sequence.h"

namespace {

constexpr int Large_Width = 65;
constexpr int Large_Height = 34;
constexpr int Small_Size = 22;
constexpr int Symbol_Size = 14;
constexpr int Cell_Step = 8;

Drawn_Button Large(const char* name, const char* symbol, const char* spoken, int left, int top) {
    Drawn_Button made;
    made.button = {.name = name, .spoken_name = spoken, .window = &File_Dlg, .left = left, .top = top};
    made.button.width = Large_Width;
    made.button.height = Large_Height;
    made.button.focusable = true;
    made.symbol = {.name = symbol, .window = &File_Dlg};
    return made;
}

Drawn_Button Small(const char* name, const char* symbol, const char* spoken, int left, int top) {
    Drawn_Button made = Large(name, symbol, spoken, left, top);
    made.button.width = made.button.height = Small_Size;
    made.symbol.width = made.symbol.height = Symbol_Size;
    return made;
}

// The lamp stands at the left end; the caption to its right belongs to the control.
Lamp Made_Lamp(const char* name, const char* spoken, Spoken_Role role, int left, int top) {
    Lamp made;
    made.control = {
        .name = name, .spoken_name = spoken, .role = role, .window = &File_Dlg, .left = left, .top = top};
    made.control.width = 104;
    made.control.height = 16;
    made.control.focusable = true;
    return made;
}

void Load_Large(Drawn_Button& made, Picture_Store caption) {
    made.button.symbol = &made.symbol;
    made.symbol.parent = &made.button;
    made.symbol.picture = Picture_Of(caption);
    made.symbol.width = Role_Of(made.symbol.picture).width;
    made.symbol.height = Role_Of(made.symbol.picture).height;
    Dlg2_Lift(made.button);
}

void Load_Small(Drawn_Button& made, Picture symbol) {
    made.button.symbol = &made.symbol;
    made.symbol.parent = &made.button;
    made.symbol.picture = symbol;
    Button_Release(made.button);
}

void Load_Lamp(Lamp& lamp) {
    lamp.control.enabled = true;
    Check_Off(lamp);
}

void Empty_Preview() {
    for (int cell = 0; cell < Seq_Cells; ++cell) {
        FD_SEQ_Preview[static_cast<std::size_t>(cell)] = {.left = cell / Seq_Rows * Cell_Step + 1,
                                                          .top = cell % Seq_Rows * Cell_Step + 1};
    }
}

}  // namespace

Drawn_Button FD_Button_Ok = Large("FD_Button_Ok", "FD_Button_Ok_Pic", "OK", 453, 30);
Drawn_Button FD_Button_Cancel = Large("FD_Button_Cancel", "FD_Button_Cancel_Pic", "Cancel", 453, 70);
Drawn_Button FD_Button_Updir = Small("FD_Button_Updir", "FD_Button_Updir_Pic", "One folder up", 446, 208);
Drawn_Button FD_Button_Newdir = Small("FD_Button_Newdir", "FD_Button_Newdir_Pic", "New folder", 474, 208);
Drawn_Button FD_Button_Delete = Small("FD_Button_Delete", "FD_Button_Delete_Pic", "Delete", 502, 208);

FD_Panel FD_Shown_Panel = FD_Panel::None;

Lamp FD_SYX_CB_Autoplay = Made_Lamp("FD_SYX_CB_Autoplay", "Autoplay", Spoken_Role::Check_Box, 16, 44);
Lamp FD_SYX_CB_Autosend = Made_Lamp("FD_SYX_CB_Autosend", "Autosend", Spoken_Role::Check_Box, 16, 84);
Option_Group FD_SYX_OB_Soundcheck = {
    Made_Lamp("FD_SYX_OB_Soundcheck_0", "Soundcheck", Spoken_Role::Radio_Button, 156, 44),
    Made_Lamp("FD_SYX_OB_Soundcheck_1", "Sequence", Spoken_Role::Radio_Button, 156, 84),
};
Drop_Down FD_SYX_SoundCheck_Note_List;
Drop_Down FD_SYX_SoundCheck_Velocity_List;
Drawn_Button FD_SYX_Button_Start =
    Small("FD_SYX_Button_Start", "FD_SYX_Button_Start_Pic", "Play the sequence", 276, 81);
Drawn_Button FD_SYX_Button_Stop =
    Small("FD_SYX_Button_Stop", "FD_SYX_Button_Stop_Pic", "Stop the sequence", 304, 81);

Lamp FD_SEQ_CB_Autoplay = Made_Lamp("FD_SEQ_CB_Autoplay", "Autoplay", Spoken_Role::Check_Box, 16, 44);
Drawn_Button FD_SEQ_Button_Start =
    Small("FD_SEQ_Button_Start", "FD_SEQ_Button_Start_Pic", "Play the sequence", 16, 81);
Drawn_Button FD_SEQ_Button_Stop =
    Small("FD_SEQ_Button_Stop", "FD_SEQ_Button_Stop_Pic", "Stop the sequence", 44, 81);

std::array<Preview_Cell, 104> FD_SEQ_Preview = {};

void FD_Load_Pictures() {
    Load_Large(FD_Button_Ok, Picture_Store::Dlg2_Ok);
    Load_Large(FD_Button_Cancel, Picture_Store::Dlg2_Cancel);
    Load_Small(FD_Button_Updir, Picture_Of(Picture_Store::FD_Symbols, 0));
    Load_Small(FD_Button_Newdir, Picture_Of(Picture_Store::FD_Symbols, 1));
    Load_Small(FD_Button_Delete, Picture_Of(Picture_Store::FD_Symbols, 2));
    for (Drawn_Button* start : {&FD_SYX_Button_Start, &FD_SEQ_Button_Start}) {
        Load_Small(*start, Picture_Of(Picture_Store::Start_Enabled));
    }
    for (Drawn_Button* stop : {&FD_SYX_Button_Stop, &FD_SEQ_Button_Stop}) {
        Load_Small(*stop, Picture_Of(Picture_Store::Stop_Enabled));
    }
    for (Lamp* lamp : {&FD_SYX_CB_Autoplay, &FD_SYX_CB_Autosend, &FD_SYX_OB_Soundcheck[0],
                       &FD_SYX_OB_Soundcheck[1], &FD_SEQ_CB_Autoplay}) {
        Load_Lamp(*lamp);
    }
    FD_SYX_SoundCheck_Note_List.enabled = FD_SYX_SoundCheck_Velocity_List.enabled = true;
    Empty_Preview();
}
