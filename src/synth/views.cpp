#include "synth/views.h"

Hook<void()> Panel_Apply_Tone;
Hook<void()> Panel_Apply_Patch;
Hook<void()> Editor_Arrange;
Hook<void()> Editor_Conceal;
Hook<void()> Juno_Arrange;
Hook<void()> Juno_Tone_Init;
