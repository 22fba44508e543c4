// The drawn controls of the file window. Three panels share one place below the lists; the mode says which
// one shows.
#pragma once

#include <array>
#include <cstddef>

#include "desk/form.h"
#include "filedlg/lamps.h"
#include "panels/controls.h"

inline constexpr int File_Dlg_Width = 540;
inline constexpr int File_Dlg_Height = 444;

// A push button with its symbol, or a large one with its caption.
struct Drawn_Button {
    Control button;
    Control symbol;
};
extern Drawn_Button FD_Button_Ok;
extern Drawn_Button FD_Button_Cancel;
extern Drawn_Button FD_Button_Updir;
extern Drawn_Button FD_Button_Newdir;
extern Drawn_Button FD_Button_Delete;

// Which panel is visible; at most one is.
enum class FD_Panel { None, SYX, SEQ, OSC };
extern FD_Panel FD_Shown_Panel;

// FD_SYX: how a tone is heard.
extern Lamp FD_SYX_CB_Autoplay;
extern Lamp FD_SYX_CB_Autosend;
extern Option_Group FD_SYX_OB_Soundcheck;  // 0 the note, 1 the sequence in memory
extern Drop_Down FD_SYX_SoundCheck_Note_List;
extern Drop_Down FD_SYX_SoundCheck_Velocity_List;
extern Drawn_Button FD_SYX_Button_Start;
extern Drawn_Button FD_SYX_Button_Stop;

// FD_SEQ: how a sequence is heard, and what it looks like.
extern Lamp FD_SEQ_CB_Autoplay;
extern Drawn_Button FD_SEQ_Button_Start;
extern Drawn_Button FD_SEQ_Button_Stop;

// One cell of the picture of a sequence, which is drawn by the item of FD_SEQ_Pics; -1 is an empty glass.
struct Preview_Cell {
    int picture = -1;
    int left = 0;
    int top = 0;
};
inline constexpr int FD_SEQ_Preview_Width = 66;
inline constexpr int FD_SEQ_Preview_Height = 106;
extern std::array<Preview_Cell, 104> FD_SEQ_Preview;

// The texts on the window.
inline constexpr const char* FD_Label_FileName = "File &Name:";
inline constexpr const char* FD_Label_Dir = "&Directory:";
inline constexpr const char* FD_Label_Drives = "Dri&ves:";
inline constexpr const char* FD_Label_FileType = "List Files of &Type:";
inline constexpr const char* FD_Caption_Autoplay = "Auto&play";
inline constexpr const char* FD_Caption_Autosend = "Auto&send";
inline constexpr const char* FD_Caption_Soundcheck = "Sound&check";
inline constexpr const char* FD_Caption_Sequence = "Se&quence";

// Every control as a fresh window has it: buttons raised, lamps off, the preview empty.
void FD_Load_Pictures();
