// The menu bar as records: one row an entry, in the order of the bar. The rules write the records, the
// main window shows them. Nothing recomputes the menus as a whole: each rule is a write at its own place.
//
// An entry does what `chosen` does; shell/wiring fills it in. An entry without it is not shown, neither is
// a menu without entries that are. The shortcut of a hidden or disabled entry has no effect.
#pragma once

#include <array>
#include <string>

#include "platform/hook.h"

// clang-format off
enum Menu_Id : int {
    Menu_File,
    Menu_File_SYX,
    Menu_File_SYX_New,
    Menu_File_SYX_Open,
    Menu_File_SYX_Save,
    Menu_File_SYX_SaveAs,
    Menu_File_SYX_Trenn_1,
    Menu_File_SYX_1,
    Menu_File_SYX_2,
    Menu_File_SYX_3,
    Menu_File_SYX_4,
    Menu_File_Seq,
    Menu_File_Seq_New,
    Menu_File_Seq_Open,
    Menu_File_Seq_Save,
    Menu_File_Seq_SaveAs,
    Menu_File_Seq_Trenn_1,
    Menu_File_Seq_1,
    Menu_File_Seq_2,
    Menu_File_Seq_3,
    Menu_File_Seq_4,
    Menu_File_Osc,
    Menu_File_Osc_New,
    Menu_File_Osc_Open,
    Menu_File_Osc_Save,
    Menu_File_Osc_SaveAs,
    Menu_File_Osc_Trenn_1,
    Menu_File_Osc_1,
    Menu_File_Osc_2,
    Menu_File_Osc_3,
    Menu_File_Osc_4,
    Menu_File_Trenn_2,
    Menu_File_Exit,
    Menu_Edit,
    Menu_Edit_Undo,
    Menu_MIDI,
    Menu_MIDI_CloseOutput,
    Menu_MIDI_Setup,
    Menu_MIDI_Trenn,
    Menu_MIDI_Osc,
    Menu_MIDI_Seq,
    Menu_MIDI_Seq_Load,
    Menu_Tone,
    Menu_Tone_Name,
    Menu_Tone_Patch,
    Menu_Tone_Trenn1,
    Menu_Tone_Random,
    Menu_Tone_Trenn2,
    Menu_Tone_Receive,
    Menu_Tone_Send,
    Menu_Windows,
    Menu_Windows_SavePos,
    Menu_Windows_Reset,
    Menu_Help,
    Menu_Help_Howto,
    Menu_Help_Search,
    Menu_Help_Trenn,
    Menu_Help_About,
    Menu_Popup,
    Menu_Popup1,
    Menu_Popup2,
    Menu_Popup3,
    Menu_Popup4,
    Menu_Popup5,
    Menu_Count
};
// clang-format on

struct Menu_Entry {
    Menu_Id id;
    const char* name;
    int level;            // 0 in the bar, 1 in its menu, 2 in a submenu
    std::string caption;  // "&" before the letter that the keyboard chooses it by; "-" draws a line
    const char* shortcut;
    bool visible;
    bool enabled;
    bool checked = false;
    Hook<void()> chosen = {};  // the entry's action
    Hook<void()> opened = {};  // of a submenu: runs when it opens
};

extern std::array<Menu_Entry, Menu_Count> Menu_Tree;

inline Menu_Entry& Menu(Menu_Id id) {
    return Menu_Tree[static_cast<std::size_t>(id)];
}

// The six top-level menus File, Edit, Tone, MIDI, Windows, Help.
void Menus_Disable();
void Menus_Enable();
