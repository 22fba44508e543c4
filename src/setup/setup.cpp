#include "setup/setup.h"

#include <string_view>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/settings.h"
#include "desk/windows.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "platform/message_box.h"
#include "platform/text.h"
#include "synth/profile.h"

namespace {

constexpr const char* Reminder_Title = "MIDI System Exclusive enabled?";
constexpr const char* Reminder_Start = "Please don't forget to enable the MIDI System Exclusive (SysEx)\r";
constexpr const char* No_Inputs = "[no inputs available]";

constexpr const char* JX_8P_Steps =
    "setting on your JX-8P:\r"
    "\r"
    "* Press MIDI button\r"
    "* Press buttons 2 and 6\r"
    "* Move EDIT slider until the display shows 'EXCLUSIVE ON'\r"
    "* Unprotect the memory (back side switch 'Protect' to 'OFF')\r"
    "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
    "* Protect the memory (back side switch 'Protect' to 'ON')\r";

constexpr const char* MKS_70_Steps =
    "setting on your MKS-70:\r"
    "\r"
    "* Press MIDI button\r"
    "* Press buttons 1 and 4\r"
    "* Move Alpha Dial until the display shows 'SYSTEM EXCLUSIVE ON'\r"
    "* Unprotect the memory (Set 'Protect' to 'OFF')\r"
    "* Press WRITE button (display shows 'WRITTEN MIDI')\r"
    "* Protect the memory again (Set 'Protect' to 'ON')\r";

std::vector<std::string> Names_Of(const std::vector<MIDI_Caps>& caps) {
    std::vector<std::string> names;
    for (const MIDI_Caps& device : caps) names.push_back(device.name);
    return names;
}

void Close_Input_Fully() {
    do {
        MIDI_In_Close();
    } while (MIDI_In_Handle != Port_Closed);
}

bool Has_Inputs() {
    return !Is_True(MIDI_In_Missing);
}

void Enable_Form(bool enabled) {
    Setup_Form& form = MIDI_Setup_Form;
    form.input_devices.enabled = enabled && Has_Inputs();
    form.output_devices.enabled = enabled && !MIDI_Out_Caps.empty();
    form.auto_send.enabled = enabled;
    form.auto_play.enabled = enabled;
}

void Fill_Form() {
    Setup_Form& form = MIDI_Setup_Form;
    form = Setup_Form();

    for (int channel = 1; channel <= 16; ++channel) form.channel.entries.push_back(std::to_string(channel));
    form.channel.Select(MIDI_Channel - 1);

    form.enable.checked = MIDI_Enabled != 0;

    if (Has_Inputs()) {
        Close_Input_Fully();
        form.input_devices.entries = Names_Of(MIDI_In_Caps);
        form.input_devices.Select(MIDI_In_Device);
    } else {
        form.input_devices.entries = {No_Inputs};
        form.input_devices.Select(0);
    }

    form.output_devices.entries = Names_Of(MIDI_Out_Caps);
    form.output_devices.Select(MIDI_Out_Device);

    form.auto_play.checked = MIDI_Autoplay != 0;
    form.auto_send.checked = MIDI_Autosend != 0;
    form.synthesizer_type.entries = {"JX-8P", "MKS-70", "Alpha Juno"};
    form.synthesizer_type.Select_Text(Synthesizer);
    Enable_Form(form.enable.checked);
}

void Load() {
    MIDI_Setup.caption = Setup_Title;
    MIDI_Setup.width = 400;
    MIDI_Setup.height = 300;
    Window_Centre_Over_Main(MIDI_Setup);
    Dialog_Begin(MIDI_Setup, "MIDI_Setup");
    MIDI_Out_Close_Fully();
    Fill_Form();
}

// A leading blank, as numbers print here; the settings file drops it.
std::string Printed(int number) {
    return " " + std::to_string(number);
}

void Unload() {
    const Setup_Form& form = MIDI_Setup_Form;
    Setting_Put("MIDI", "Autosend", Printed(MIDI_Autosend));
    Setting_Put("MIDI", "Channel", Printed(MIDI_Channel));
    Setting_Put("MIDI", "Control Channel", "[Not used]");
    if (form.input_devices.selected >= 0) Setting_Put("MIDI", "Input", form.input_devices.Selected_Text());
    if (form.output_devices.selected >= 0)
        Setting_Put("MIDI", "Output", form.output_devices.Selected_Text());
    Seq_Status = Note_On_Status(MIDI_Channel);
    Sysex_Headers_Update();
    Dialog_End();
}

}  // namespace

Setup_Form MIDI_Setup_Form;

void Setup_Enable_Click(bool checked) {
    MIDI_Setup_Form.enable.checked = checked;
    MIDI_Enabled = checked ? 1 : 0;
    Enable_Form(checked);
    Menu(Menu_Tone_Receive).enabled = checked;
    Menu(Menu_Tone_Send).enabled = checked;
}

void Setup_AutoSend_Click(bool checked) {
    MIDI_Setup_Form.auto_send.checked = checked;
    MIDI_Autosend = checked ? 1 : 0;
}

void Setup_AutoPlay_Click(bool checked) {
    MIDI_Setup_Form.auto_play.checked = checked;
    MIDI_Autoplay = checked ? 1 : 0;
}

void Setup_SynthesizerType_Change(int index) {
    MIDI_Setup_Form.synthesizer_type.Select(index);
    Synthesizer = MIDI_Setup_Form.synthesizer_type.Selected_Text();
    Sysex_Headers_Update();
    // The headers' update has brought a panel to the front.
    Window_Show(MIDI_Setup);
}

void Setup_Output_Change(int index) {
    MIDI_Setup_Form.output_devices.Select(index);
}
void Setup_Input_Change(int index) {
    MIDI_Setup_Form.input_devices.Select(index);
}
void Setup_Channel_Change(int index) {
    MIDI_Setup_Form.channel.Select(index);
}

void Setup_Cmd_OK() {
    const Setup_Form& form = MIDI_Setup_Form;
    Close_Input_Fully();
    MIDI_Out_Close_Fully();
    // Events run while the port still plays: a second Ok or an Escape may have closed the dialog.
    if (!MIDI_Setup.loaded || MIDI_Setup.unloading) return;
    if (form.input_devices.selected >= 0) MIDI_In_Device = To_Int16(form.input_devices.selected);
    if (form.output_devices.selected >= 0) MIDI_Out_Device = To_Int16(form.output_devices.selected);
    MIDI_In_Chosen = Trimmed(form.input_devices.Selected_Text());
    MIDI_Out_Chosen = Trimmed(form.output_devices.Selected_Text());
    MIDI_Channel = Narrow<std::uint8_t>(form.channel.selected + 1);
    MIDI_Setup_Needed = 0;
    if (MIDI_Enabled != 0) {
        Message_Box(Setup_Reminder(Synthesizer), Buttons_Set::Ok, Icon::Information, Reminder_Title);
    }
    Window_Unload(MIDI_Setup);
}

void Setup_Escape() {
    Window_Unload(MIDI_Setup);
}

std::string Setup_Reminder(const std::string& synthesizer) {
    std::string text = Reminder_Start;
    if (synthesizer == "JX-8P") return text + JX_8P_Steps;
    if (synthesizer == "MKS-70") return text + MKS_70_Steps;
    if (synthesizer == "Alpha Juno") return text + "setting on your Alpha Juno!\r";
    return text + "setting on your synthesizer!\r";
}

void Setup_Install() {
    MIDI_Setup.load = Load;
    MIDI_Setup.unload = Unload;
}
