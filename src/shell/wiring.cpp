#include "shell/wiring.h"

#include "desk/timers.h"
#include "panels/controls.h"
#include "panels/editor.h"
#include "panels/receive_mode.h"
#include "sequencer/engine.h"
#include "seqwin/seqwin.h"
#include "setup/setup.h"
#include "shell/commands.h"
#include "shell/frame.h"
#include "shell/sequence_commands.h"
#include "shell/settings_file.h"
#include "shell/tone_commands.h"
#include "shell/window_commands.h"
#include "synth/reception.h"

void Program_Wire() {
    Controls_Install();
    Sequencer_Install();
    Editor_Install();
    Reception_Install();
    Receive_Mode_Install();
    Seqwin_Install();
    Setup_Install();
    Commands_Install();
    Tone_Commands_Install();
    Sequence_Commands_Install();
    Name_Command_Install();
    Window_Commands_Install();
    Settings_Install();
    Timer_Display.tick = Main_Display_Tick;
}
