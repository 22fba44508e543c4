#include "synth/views.h"

Hook<void()> Panel_Apply_Tone;
Hook<void()> Panel_Apply_Patch;
Hook<void()> Editor_Arrange;
Hook<void()> Editor_Conceal;
Hook<void()> Juno_Arrange;
Hook<void()> Juno_Tone_Init;

Hook<void()> Juno_To_Panel;
Hook<bool(const std::string& path)> Juno_SYX_Load;
Hook<std::string()> Juno_SYX_Text;
Hook<void()> Juno_Undo_Store;
Hook<void()> Juno_Undo_Restore;
Hook<void(const Random_Draw& draw)> Juno_Tone_Random;
Hook<void(const std::string& name)> Juno_Name_To_Data;
Hook<void()> Juno_Display_Name;
