// The file window's own state. A caller sets FD_Mode and shows the window; the window carries the load or
// the save out itself and closes. Who wants to know how it went looks at Tone_Saved or Seq_Saved behind it.
//
//   mode                      Ok                     double click           what a press does
//   "Open_SYX"                opens the tone         opens the tone         reads and plays it
//   "Open_SEQ"                opens the sequence     opens the sequence     reads and plays it
//   "Open_OSC"                nothing yet            nothing yet            names it
//   "Open_ALL"                nothing                nothing                names it
//   "Save_SYX", "SaveAs_OSC"  nothing; nobody asks for them                 names it
//   "SaveAs_SYX"              saves the tone         takes the name only    names it
//   "SaveAs_SEQ"              saves the sequence     nothing                names it
#pragma once

#include <cstdint>
#include <string>

#include "platform/numbers.h"

extern std::string FD_Mode;
extern std::string FD_Default_Ext;    // joined to a bare name, with its point
extern std::string FD_Dir;            // the folder at the last Ok or double click
extern std::string FD_Drive;          // the last drive that worked, to go back to
extern std::string FD_Selected;       // what was pressed last in a list: a file's name or a folder's path
extern std::string FD_Selected_Kind;  // "File" or "Dir"; both survive the closing of the window
extern Flag_8 FD_Done;                // set by a load or a save that succeeded: the window may close
extern Flag_16 FD_Cancelled;
extern Flag_16 FD_Open;            // from the end of the load to the end of the unload
extern std::int16_t FD_Wait_Over;  // not 0 ends the wait between a tone and its soundcheck

// How often the window was loaded. A handler that waited finds out by it that its window has gone.
extern int FD_Times_Loaded;

// The text field FD_FileName. Bytes, as names on a disk are; the window makes text of them.
struct Name_Field {
    std::string text;
    int times_selected = 0;  // each count selects the whole text once
};
extern Name_Field FD_FileName;
void FD_FileName_Select();

// Where the keyboard goes.
enum class FD_Field { FileName, Files, Dirs, Drives, Filter };
struct Focus_Wish {
    FD_Field field = FD_Field::FileName;
    int times = 0;  // each count moves the focus once
};
extern Focus_Wish FD_Focus;
void FD_Focus_To(FD_Field field);
