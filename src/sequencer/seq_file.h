// Sequences on the disk, extension ".seq": 110 bytes, no checksum.
//
//    0   4  "SEQ1"; on reading any case of the letters and any fourth byte
//    4   1  tempo, 1 to 120
//    5   1  base note
//    6 104  the cells, step * 13 + row, one velocity each
//
// Written here: the sequence as a whole, and which file is the current one.
#pragma once

#include <string>

#include "platform/hook.h"

inline constexpr std::size_t SEQ_Size = 110;
inline constexpr const char* Seq_Mode_Open = "Open";

// Reads a file into the sequence. With the mode "Open" it becomes the current file; with any other
// ("Soundcheck") the sequence is only read, and painted into the file window's preview. The shown name
// changes even if the load fails. Behind a first load a file that is no sequence leaves the cells and takes
// over path and recent list without a word.
void Seq_Load(std::string path, const std::string& mode);

// Writes the sequence to Seq_File_Path, over the start of a longer file. 0, or the error number (errno) of
// what failed: the sequence is as unsaved as it was then, and the caller tells why.
int Seq_Write();

// A box about an error number of a sequence's file.
void Seq_Show_Error(int error);

// Filled in by the sequencer's window: its tempo and range controls take over what was loaded. The range
// sets the base note anew, with the window's present transpose.
extern Hook<void()> Seq_Window_Follow;

// Filled in by the file window.
extern Hook<void()> Seq_File_Loaded;                         // a file was opened
extern Hook<bool()> Seq_Preview_Clear;                       // true while it shows a preview, empty now
extern Hook<void(int cell, int picture)> Seq_Preview_Paint;  // 0 empty, 2 loud, 3 soft
