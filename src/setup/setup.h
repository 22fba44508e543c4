// The dialog MIDI_Setup: instrument, devices, channel and the automatic features. Most choices take effect
// at once; devices and channel with Ok. The settings file gets them however the dialog is closed.
#pragma once

#include <string>

#include "desk/form.h"

struct Setup_Form {
    Drop_Down synthesizer_type;  // "SynthesizerType"
    Drop_Down output_devices;
    Drop_Down input_devices;
    Drop_Down channel;
    Check_Box enable;
    Check_Box auto_send;
    Check_Box auto_play;
};
extern Setup_Form MIDI_Setup_Form;

// The texts on the dialog.
inline constexpr const char* Setup_Title = "MIDI Setup";
inline constexpr const char* Setup_Label_Synth = "&Synthesizer";
inline constexpr const char* Setup_Label_Output = "&Output Device";
inline constexpr const char* Setup_Label_Input = "&Input Device";
inline constexpr const char* Setup_Label_Channel = "MIDI &Channel";
inline constexpr const char* Setup_Caption_Enable = "MIDI &Enabled:";
inline constexpr const char* Setup_Caption_AutoSend = "&Automatic Send SysEx Data";
inline constexpr const char* Setup_Caption_AutoPlay = "Automatic Preview &Play";
inline constexpr const char* Setup_Caption_OK = "&OK";

// What the user does. A list reports the index that was chosen.
void Setup_Enable_Click(bool checked);
void Setup_AutoSend_Click(bool checked);
void Setup_AutoPlay_Click(bool checked);
void Setup_SynthesizerType_Change(int index);
void Setup_Output_Change(int index);
void Setup_Input_Change(int index);
void Setup_Channel_Change(int index);
void Setup_Cmd_OK();
void Setup_Escape();  // Escape or the window's close box: devices and channel stay as they are in this run

// The reminder to switch system exclusive on, with the keys to press on that instrument.
std::string Setup_Reminder(const std::string& synthesizer);

// Fills MIDI_Setup's load and unload procedures.
void Setup_Install();
