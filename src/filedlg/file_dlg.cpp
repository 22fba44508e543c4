#include "filedlg/file_dlg.h"

#include <array>

#include "desk/dialog_lock.h"
#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "filedlg/file_controls.h"
#include "filedlg/folder_model.h"
#include "filedlg/linking.h"
#include "filedlg/options.h"
#include "filedlg/preview.h"
#include "filedlg/state.h"
#include "midi/out.h"
#include "platform/text.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_file.h"
#include "synth/syx_file.h"
#include "synth/undo.h"

namespace {

// -- modes -----------------------------------------------------------------------------------------------

constexpr const char* All_Files = "All Files (*.*)";

struct Filter_Row {
    const char* entry;
    const char* extension;  // what a click on the entry sets
};

// clang-format off
constexpr std::array Filters = {
    Filter_Row{"Sysex (*.SYX)",      ".SYX"},
    Filter_Row{"Sequence (*.SEQ)",   ".SEQ"},
    Filter_Row{"Oscillator (*.OSC)", ".OSC"},
};

struct Mode_Row {
    const char* mode;
    const char* title;
    const char* filter;  // null: all files alone
    FD_Panel panel;
    const char* extension;
    bool backup;
};

constexpr std::array Modes = {
//           mode          title                    filter              panel           extension backup
    Mode_Row{"Open_SYX",   "Open Tone File",        Filters[0].entry,   FD_Panel::SYX,  ".syx",   false},
    Mode_Row{"Open_SEQ",   "Open Sequencer File",   Filters[1].entry,   FD_Panel::SEQ,  ".seq",   false},
    Mode_Row{"Open_OSC",   "Open Oscillator File",  Filters[2].entry,   FD_Panel::OSC,  ".osc",   false},
    Mode_Row{"Open_ALL",   "Open File",             nullptr,            FD_Panel::None, ".*",     false},
    Mode_Row{"Save_SYX",   "Save Tone File",        Filters[0].entry,   FD_Panel::SYX,  ".syx",   true},
    Mode_Row{"SaveAs_SYX", "Save Tone File",        Filters[0].entry,   FD_Panel::SYX,  ".syx",   true},
    Mode_Row{"SaveAs_SEQ", "Save Sequencer File",   Filters[1].entry,   FD_Panel::SEQ,  ".seq",   false},
    Mode_Row{"SaveAs_OSC", "Save Oscillator File",  Filters[2].entry,   FD_Panel::OSC,  ".osc",   false},
};
// clang-format on

// The folder that is remembered for a kind of file, by the list's pattern; null for any other pattern.
std::string* Remembered_Folder() {
    const std::string pattern = Upper_Text(FD_List_Files.pattern);
    if (pattern == "*.SYX") return &Dir_Tones;
    if (pattern == "*.SEQ") return &Dir_Sequences;
    return pattern == "*.OSC" ? &Dir_Oscillators : nullptr;
}

// -- load and unload -------------------------------------------------------------------------------------

void Place() {
    File_Dlg.left = 0;
    File_Dlg.top = 0;
    if (Menu(Menu_Windows_SavePos).checked) Window_Place(File_Dlg, FD_Left, FD_Top);
    File_Dlg.width = File_Dlg_Width;
    File_Dlg.height = File_Dlg_Height;
}

void Load() {
    ++FD_Times_Loaded;
    Panel_Restore_Picture();
    FD_Cancelled = Flag_16::False;
    Place();
    Menus_Disable();
    Dialog_Begin(File_Dlg, "File_Dlg");
    FD_Load_Pictures();
    FD_FileName.text.clear();
    FD_Lists_Start();
    FD_Setup();
    FD_Drive = FD_List_Drives.Selected_Text();
    FD_Preview_Start();
    // A folder that has gone, or that may not be looked into, leaves the lists where they are.
    if (const std::string* folder = Remembered_Folder()) (void)FD_Go_To(*folder);
    FD_FileName_Select();
    FD_Focus_To(FD_Field::FileName);
    FD_Open = Flag_16::True;
}

void Unload() {
    Timer_Stop(Timer_Display);
    FD_Wait_Over = 1;
    MIDI_All_Notes_Off();
    FD_Preview_End();
    if (std::string* folder = Remembered_Folder()) *folder = FD_List_Files.path;
    Menus_Enable();
    if (Menu(Menu_Windows_SavePos).checked) Window_Keep_Place(File_Dlg, FD_Left, FD_Top);
    Dialog_End();
    FD_Open = Flag_16::False;
}

void Show_And_Wait(const char* mode) {
    // Among the events of the window's own closing: the end of that would wait for this wait.
    if (File_Dlg.unloading) return;
    FD_Show(mode);
    Dialog_Wait();
}

void Seq_Preview_Show(int cell, int picture) {
    FD_SEQ_Preview.at(static_cast<std::size_t>(cell)).picture = picture;
}

bool Seq_Preview_Empty() {
    if (!Is_True(FD_Open)) return false;
    for (Preview_Cell& cell : FD_SEQ_Preview) cell.picture = -1;
    return true;
}

}  // namespace

Drop_Down FD_List_Filter;

void FD_Show(const std::string& mode) {
    if (File_Dlg.unloading) return;
    const bool open = File_Dlg.loaded;
    FD_Mode = mode;
    // A save that is asked for in the middle of a load.
    if (open) FD_Setup();
    Window_Show(File_Dlg);
}

void FD_Setup() {
    for (const Mode_Row& row : Modes) {
        if (FD_Mode != row.mode) continue;
        File_Dlg.caption = row.title;
        FD_List_Filter.entries.clear();
        if (row.filter != nullptr) FD_List_Filter.entries.emplace_back(row.filter);
        FD_List_Filter.entries.emplace_back(All_Files);
        FD_List_Filter.Select(row.filter != nullptr ? 0 : -1);
        FD_Shown_Panel = row.panel;
        FD_Default_Ext = row.extension;
        FD_List_Files_Set_Pattern("*" + FD_Default_Ext);
        if (row.backup) Tone_Backup_Store();
    }
}

void FD_List_Filter_Click(int index) {
    FD_List_Filter.Select(index);
    const std::string entry = FD_List_Filter.Selected_Text();
    for (const Filter_Row& row : Filters) {
        if (entry == row.entry) FD_Default_Ext = row.extension;
    }
    if (entry == All_Files) FD_Mode = "Open_ALL";
    FD_List_Files_Set_Pattern("*" + FD_Default_Ext);
}

void FD_Button_Cancel_Click() {
    FD_Cancelled = Flag_16::True;
    Window_Unload(File_Dlg);
}

void File_Dlg_Install() {
    File_Dlg.load = Load;
    File_Dlg.unload = Unload;
    SYX_Save_As = [] { Show_And_Wait("SaveAs_SYX"); };
    Seq_Save_As = [] { Show_And_Wait("SaveAs_SEQ"); };
    Seq_Open = [] { FD_Show("Open_SEQ"); };
    Tone_File_Loaded = [] { FD_Done = Flag_8::True; };
    Seq_File_Loaded = Tone_File_Loaded;
    Seq_Preview_Clear = Seq_Preview_Empty;
    Seq_Preview_Paint = Seq_Preview_Show;
}
