// The entries of the oscillator: its window, and the submenu of its files. That submenu is hidden and
// nothing shows it, as no content of such a file is laid down; its commands work as far as they go.
#pragma once

// Asks about an unsaved tone, then opens the file window in the mode "Open_OSC". A Yes leads to this
// submenu's Save As, which saves no tone, and so to no file window.
void File_Osc_Open_Chosen();

void File_Osc_SaveAs_Chosen();

// Gives the entries of the menu bar their procedures.
void Osc_Commands_Install();
