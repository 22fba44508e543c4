#include "filedlg/file_events.h"

#include <array>

#include "desk/windows.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_ok.h"
#include "filedlg/folder_commands.h"
#include "filedlg/folder_model.h"
#include "filedlg/linking.h"
#include "filedlg/preview.h"
#include "filedlg/state.h"
#include "panels/push_buttons.h"
#include "platform/event_loop.h"
#include "sequencer/sequence.h"

namespace {

// -- drawn controls --------------------------------------------------------------------------------------

void Nothing() {}
void Start_SYX() {
    FD_Start_Click(FD_SYX_Button_Start);
}
void Start_SEQ() {
    FD_Start_Click(FD_SEQ_Button_Start);
}
void Soundcheck_0() {
    FD_SYX_OB_Soundcheck_Click(0);
}
void Soundcheck_1() {
    FD_SYX_OB_Soundcheck_Click(1);
}

// The caption goes one pixel further to the right than the common procedure shifts it.
template <Drawn_Button& drawn>
void Press_Dlg2() {
    Dlg2_Press(drawn.button);
    drawn.symbol.left = 7;
}
template <Drawn_Button& drawn>
void Lift_Dlg2() {
    Dlg2_Lift(drawn.button);
}
template <Drawn_Button& drawn>
void Push() {
    Button_Push(drawn.button);
}
template <Drawn_Button& drawn>
void Raise() {
    Button_Release(drawn.button);
}
// A running sequence holds the button down.
template <Drawn_Button& start>
void Raise_Unless_Playing() {
    if (!Is_True(Seq_Running)) Button_Release(start.button);
}
template <Drawn_Button& start, Drawn_Button& stop>
void Raise_Both() {
    FD_Stop_MouseUp(start, stop);
}

struct Control_Row {
    Control& control;
    void (*pressed)();
    void (*released)();
    void (*clicked)();
};

// In the order of the focus.
// clang-format off
const std::array Rows = {
//              control                             pressed                       released                       clicked
    Control_Row{FD_Button_Ok.button,                Press_Dlg2<FD_Button_Ok>,     Lift_Dlg2<FD_Button_Ok>,       FD_Button_Ok_Click},
    Control_Row{FD_Button_Cancel.button,            Press_Dlg2<FD_Button_Cancel>, Lift_Dlg2<FD_Button_Cancel>,   FD_Button_Cancel_Click},
    Control_Row{FD_Button_Updir.button,             FD_Button_Updir_MouseDown,    Raise<FD_Button_Updir>,        Nothing},
    Control_Row{FD_Button_Newdir.button,            FD_Button_Newdir_MouseDown,   Raise<FD_Button_Newdir>,       Nothing},
    Control_Row{FD_Button_Delete.button,            FD_Button_Delete_MouseDown,   Raise<FD_Button_Delete>,       Nothing},
    Control_Row{FD_SYX_CB_Autoplay.control,         Nothing,                      Nothing,                       FD_SYX_CB_Autoplay_Click},
    Control_Row{FD_SYX_CB_Autosend.control,         Nothing,                      Nothing,                       FD_SYX_CB_Autosend_Click},
    Control_Row{FD_SYX_OB_Soundcheck[0].control,    Nothing,                      Nothing,                       Soundcheck_0},
    Control_Row{FD_SYX_OB_Soundcheck[1].control,    Nothing,                      Nothing,                       Soundcheck_1},
    Control_Row{FD_SYX_Button_Start.button,         Push<FD_SYX_Button_Start>,    Raise_Unless_Playing<FD_SYX_Button_Start>, Start_SYX},
    Control_Row{FD_SYX_Button_Stop.button,          Push<FD_SYX_Button_Stop>,     Raise_Both<FD_SYX_Button_Start, FD_SYX_Button_Stop>, FD_Stop_Click},
    Control_Row{FD_SEQ_CB_Autoplay.control,         Nothing,                      Nothing,                       FD_SEQ_CB_Autoplay_Click},
    Control_Row{FD_SEQ_Button_Start.button,         Push<FD_SEQ_Button_Start>,    Raise_Unless_Playing<FD_SEQ_Button_Start>, Start_SEQ},
    Control_Row{FD_SEQ_Button_Stop.button,          Push<FD_SEQ_Button_Stop>,     Raise_Both<FD_SEQ_Button_Start, FD_SEQ_Button_Stop>, FD_Stop_Click},
};
// clang-format on

void Run(const Control& control, void (*Control_Row::*procedure)()) {
    for (const Control_Row& row : Rows) {
        if (&row.control == &control) FD_Event(row.*procedure);
    }
}

// Symbols come behind the buttons that they lie on.
std::vector<Control*> All_Controls() {
    std::vector<Control*> controls;
    for (const Control_Row& row : Rows) controls.push_back(&row.control);
    for (Drawn_Button* drawn :
         {&FD_Button_Ok, &FD_Button_Cancel, &FD_Button_Updir, &FD_Button_Newdir, &FD_Button_Delete,
          &FD_SYX_Button_Start, &FD_SYX_Button_Stop, &FD_SEQ_Button_Start, &FD_SEQ_Button_Stop}) {
        drawn->symbol.parent = &drawn->button;
        controls.push_back(&drawn->symbol);
    }
    return controls;
}

std::string Spoken_State(const Control& control) {
    for (const Lamp* lamp : {&FD_SYX_CB_Autoplay, &FD_SYX_CB_Autosend, &FD_SYX_OB_Soundcheck[0],
                             &FD_SYX_OB_Soundcheck[1], &FD_SEQ_CB_Autoplay}) {
        if (&lamp->control == &control) return lamp->tag == 0 ? "off" : "on";
    }
    return "";
}

// -- keys ------------------------------------------------------------------------------------------------

void To_FileName() {
    FD_Focus_To(FD_Field::FileName);
    FD_FileName_Select();
}

void Choose_Note() {
    FD_SYX_OB_Soundcheck_Click(0);
}

void Choose_Sequence() {
    if (Is_True(Seq_Loaded)) FD_SYX_OB_Soundcheck_Click(1);
}

struct Key_Row {
    char letter;
    bool alt;
    void (*work)();
    bool back_to_name;  // pending events run, and the keyboard goes to the name
};

constexpr char Escape = '\x1B';

constexpr Key_Row Keys[] = {
    {Escape, false, FD_Button_Cancel_Click, false},
    {'N', true, To_FileName, false},
    {'F', true, [] { FD_Focus_To(FD_Field::Files); }, false},
    {'D', true, [] { FD_Focus_To(FD_Field::Dirs); }, false},
    {'V', true, [] { FD_Focus_To(FD_Field::Drives); }, false},
    {'T', true, [] { FD_Focus_To(FD_Field::Filter); }, false},
    {'P', true, FD_SYX_CB_Autoplay_Click, true},
    {'S', true, FD_SYX_CB_Autosend_Click, true},
    {'C', true, Choose_Note, true},
    {'Q', true, Choose_Sequence, true},
};

const Key_Row* Row_Of(char letter, bool alt) {
    for (const Key_Row& row : Keys) {
        if (row.letter == letter && row.alt == alt) return &row;
    }
    return nullptr;
}

template <class List>
void Take_Index(List& list, int index) {
    if (index >= 0 && index < static_cast<int>(list.entries.size())) list.index = index;
}

}  // namespace

const Panel File_Panel = {
    .window = &File_Dlg,
    .controls = All_Controls(),
    .events = {
        .focus_gained = [](Control&) {},
        .focus_lost = [](Control&) {},
        .key_pressed = [](Control&, int) {},
        .button_pressed = [](Control& control, Mouse_Button) { Run(control, &Control_Row::pressed); },
        .pointer_moved = [](Control&, double) {},
        .button_released = [](Control& control, Mouse_Button) { Run(control, &Control_Row::released); },
        .clicked = [](Control& control) { Run(control, &Control_Row::clicked); },
        .activated = Nothing,
        .deactivated = Nothing,
    },
    .spoken_value = Spoken_State,
};

void FD_Event(const std::function<void()>& handler) {
    if (File_Dlg.loaded && !File_Dlg.unloading) handler();
}

bool FD_Takes_Key(char letter, bool alt) {
    return Row_Of(letter, alt) != nullptr;
}

void FD_Key(char letter, bool alt) {
    const Key_Row* row = Row_Of(letter, alt);
    if (row == nullptr) return;
    row->work();
    if (!row->back_to_name) return;
    Event_Loop_Turn();
    FD_Focus_To(FD_Field::FileName);
}

void FD_List_Files_Move(int index) {
    Take_Index(FD_List_Files, index);
}

void FD_List_Files_MouseDown(int index) {
    Take_Index(FD_List_Files, index);
    FD_List_Files_Press();
}

void FD_List_Files_Choose() {
    FD_FileName.text = FD_Selected = FD_List_Files_Entry();
    FD_Selected_Kind = "File";
}

void FD_List_Dirs_Move(int index) {
    Take_Index(FD_List_Dirs, index);
}

void FD_List_Dirs_MouseDown(int index) {
    Take_Index(FD_List_Dirs, index);
    FD_List_Dirs_Press();
}

// Without a mouse this is the way to say which folder New Folder and Delete mean.
void FD_List_Dirs_Choose() {
    FD_List_Dirs_Press();
    FD_List_Dirs_Open();
}
