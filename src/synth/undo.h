// One level of undo, narrow by design: it is there for Random and knows nothing of edits on the panels. The
// same copies are the file window's backup while it stands open for a save, so a save in between changes
// what Undo brings back.
#pragma once

#include <array>
#include <cstdint>

#include "synth/patch.h"
#include "synth/tone.h"

// The copies; zeros until something is stored. Written here only. The Alpha Juno keeps its own.
extern std::array<std::uint8_t, Tone_Size> Tone_Undo;
extern std::array<std::uint8_t, Patch_Size> Patch_Undo;

// Copies the tone and puts Undo on offer.
void Undo_Store();

// Menu_Edit_Undo: the copies come back, on the panels and to the instrument. Tone_Saved stays as it is.
void Undo_Restore();

// The same without the menu. The tone goes to the instrument only when automatic sending is on.
void Tone_Backup_Store();
void Tone_Backup_Restore();
void Tone_Backup_Put_Back();  // the records only: nothing is shown or sent
