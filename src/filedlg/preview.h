// Hearing a file before it is opened. A press on a name reads the file at once; with Autosend on the tone
// goes to the instrument, and with Autoplay on it is then played.
//
//   press   all notes off   the tone's messages   2000 ms, events run   note on ... sounds until the next
//   press
//
// The tone in memory is the pressed one then, also behind a Cancel.
#pragma once

#include <string>

#include "filedlg/file_controls.h"

// The window's load: the options as they are stored. While MIDI is off Autoplay and Autosend are cleared
// for good.
void FD_Preview_Start();
// The window's unload: what the two lists say is stored.
void FD_Preview_End();

// The enabled states, by MIDI_Autoplay.
void FD_Preview_Refresh();

// A press on the file list, with any button: the entry at its index.
void FD_List_Files_Press();

// The options.
void FD_SYX_CB_Autoplay_Click();
void FD_SYX_CB_Autosend_Click();
void FD_SEQ_CB_Autoplay_Click();
void FD_SYX_OB_Soundcheck_Click(std::size_t index);
void FD_SYX_SoundCheck_Note_List_Click(int index);
void FD_SYX_SoundCheck_Velocity_List_Click(int index);

// The buttons of either panel.
void FD_Start_Click(Drawn_Button& start);
void FD_Stop_Click();
void FD_Stop_MouseUp(Drawn_Button& start, Drawn_Button& stop);

void FD_Seq_Start();
void FD_Seq_Stop();

// Timer_Display ticked: true when the window is open, and the tick was its wait's.
bool FD_Timer_Tick();
