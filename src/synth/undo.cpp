#include "synth/undo.h"

#include "desk/menus.h"
#include "desk/windows.h"
#include "synth/messages.h"
#include "synth/profile.h"
#include "synth/views.h"

namespace {

void Show_Patch() {
    if (Is_True(Patch_Window_Open)) Panel_Apply_Patch();
}

}  // namespace

std::array<std::uint8_t, Tone_Size> Tone_Undo = {};
std::array<std::uint8_t, Patch_Size> Patch_Undo = {};

void Undo_Store() {
    Tone_Backup_Store();
    Menu(Menu_Edit_Undo).enabled = true;
}

void Undo_Restore() {
    Tone_Backup_Put_Back();
    if (Is_Alpha_Juno()) {
        Juno_To_Panel();
    } else {
        Panel_Apply_Tone();
        Show_Patch();
    }
    Menu(Menu_Edit_Undo).enabled = false;
    Tone_Send();
}

void Tone_Backup_Store() {
    if (Is_Alpha_Juno()) {
        Juno_Undo_Store();
    } else {
        Tone_Undo = Tone_Data;
        Patch_Undo = Patch_Data;
    }
}

void Tone_Backup_Put_Back() {
    if (Is_Alpha_Juno()) {
        Juno_Undo_Restore();
    } else {
        Tone_Data = Tone_Undo;
        Patch_Data = Patch_Undo;
    }
}

void Tone_Backup_Restore() {
    Tone_Backup_Put_Back();
    if (Is_Alpha_Juno()) {
        Juno_To_Panel();
    } else {
        Show_Patch();
        Panel_Apply_Tone();
    }
    Tone_Loading = Flag_8::False;
    if (MIDI_Autosend == 1) Tone_Send();
}
