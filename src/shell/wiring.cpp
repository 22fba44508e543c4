#include "shell/wiring.h"

#include "desk/timers.h"
#include "filedlg/file_dlg.h"
#include "filedlg/input_dlg.h"
#include "help/help.h"
#include "help/howto.h"
#include "oscwin/oscwin.h"
#include "panels/controls.h"
#include "panels/editor.h"
#include "panels/juno_panel.h"
#include "panels/mks_patch.h"
#include "panels/patch.h"
#include "panels/receive_mode.h"
#include "sequencer/engine.h"
#include "seqwin/seqwin.h"
#include "setup/setup.h"
#include "shell/commands.h"
#include "shell/display_check.h"
#include "shell/frame.h"
#include "shell/osc_commands.h"
#include "shell/sequence_commands.h"
#include "shell/settings_file.h"
#include "shell/tone_commands.h"
#include "shell/window_commands.h"
#include "synth/juno.h"
#include "synth/juno_file.h"
#include "synth/reception.h"

void Program_Wire() {
    Controls_Install();
    Sequencer_Install();
    Editor_Install();
    Reception_Install();
    Receive_Mode_Install();
    Patch_Install();
    MKS_Patch_Install();
    Patch_Lamps_Reset = Patch_Lamps_To_First;
    Juno_Install();
    Juno_File_Install();
    Juno_Panel_Install();
    Juno_Take_Font = Juno_Set_Font;
    Juno_Show_Name = Juno_Display_Tick;
    Seqwin_Install();
    Setup_Install();
    File_Dlg_Install();
    Input_Install();
    Osc_Install();
    Help_Install();
    Help_Show_Waiting = Howto_Show_Waiting;
    Commands_Install();
    Tone_Commands_Install();
    Sequence_Commands_Install();
    Name_Command_Install();
    Osc_Commands_Install();
    Window_Commands_Install();
    Settings_Install();
    Timer_Display.tick = Main_Display_Tick;
}
