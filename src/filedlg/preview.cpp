#include "filedlg/preview.h"

#include <algorithm>

#include "desk/timers.h"
#include "desk/windows.h"
#include "filedlg/folder_model.h"
#include "filedlg/options.h"
#include "filedlg/state.h"
#include "midi/out.h"
#include "panels/push_buttons.h"
#include "platform/event_loop.h"
#include "platform/files.h"
#include "platform/text.h"
#include "sequencer/engine.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "synth/syx_file.h"

namespace {

constexpr const char* Mode_Soundcheck = "Soundcheck";

// The names do not follow the usual numbers of octaves: "C0" is note 24.
constexpr const char* Note_Names[] = {"C0", "C1", "C2", "C3", "C4"};
constexpr int Lowest_Note = 24;
constexpr int Notes_Apart = 12;
constexpr int Velocities = 128;

// The timer's own event ends the sleep; the limit only bounds what an unheard one could cost.
constexpr int Wait_Milliseconds = 100;

void Show_Symbols(Picture_Store start, Picture_Store stop) {
    FD_SYX_Button_Start.symbol.picture = FD_SEQ_Button_Start.symbol.picture = Picture_Of(start);
    FD_SYX_Button_Stop.symbol.picture = FD_SEQ_Button_Stop.symbol.picture = Picture_Of(stop);
}

bool Memory_Holds_None() {
    return !Is_True(Seq_Loaded) && Is_True(Seq_Saved);
}

// The nearest entry to a stored value that no entry stands for.
void Select_Nearest(Drop_Down& list, double value) {
    list.Select(std::clamp(Narrow<int>(value), 0, static_cast<int>(list.entries.size()) - 1));
}

void Fill_Lists() {
    Drop_Down& notes = FD_SYX_SoundCheck_Note_List;
    Drop_Down& velocities = FD_SYX_SoundCheck_Velocity_List;
    for (const char* name : Note_Names) notes.entries.emplace_back(name);
    for (int number = 0; number < Velocities; ++number) {
        velocities.entries.push_back(" " + std::to_string(number));
    }
    Select_Nearest(notes, static_cast<double>(Soundcheck_Note - Lowest_Note) / Notes_Apart);
    Select_Nearest(velocities, Soundcheck_Velocity);
}

void Enable_Lists(bool enabled) {
    FD_SYX_SoundCheck_Note_List.enabled = enabled;
    FD_SYX_SoundCheck_Velocity_List.enabled = enabled;
}

std::uint8_t Setting_Of(const Lamp& box) {
    return box.tag > 0 ? 1 : 0;
}

// Whether the window that a handler belongs to is still the same.
bool Still_Open(int times_loaded) {
    return Is_True(FD_Open) && FD_Times_Loaded == times_loaded;
}

// The instrument gets its time to take the tone in; events run, and a further press may wait inside. The
// note is not ended here: it sounds until the next press or until the window goes.
void Play_Note() {
    const int window = FD_Times_Loaded;
    FD_Wait_Over = 0;
    Timer_Start(Timer_Display);
    while (FD_Wait_Over == 0) {
        if (!Event_Loop_Wait(Wait_Milliseconds)) break;
    }
    // A note behind the window's own all-notes-off would sound for ever.
    if (!Still_Open(window)) return;
    Timer_Stop(Timer_Display);
    MIDI_SendNote(Soundcheck_Note, Soundcheck_Velocity);
}

std::string Pressed_Path(const std::string& name) {
    std::string folder = FD_List_Dirs.path;
    if (!folder.ends_with(Path_Separator)) folder += Path_Separator;
    return folder + name;
}

void Preview_Tone(const std::string& name) {
    const int window = FD_Times_Loaded;
    // Ends the note of the press before.
    if (MIDI_Autosend == 1) Seq_SendAllNotesOff();
    SYX_Load(Pressed_Path(name), Mode_Soundcheck);
    if (!Still_Open(window) || MIDI_Autoplay != 1 || !SYX_Tone_Found) return;
    if (Soundcheck_Mode == 0) {
        Play_Note();
    } else {
        FD_Start_Click(FD_SYX_Button_Start);
    }
}

void Preview_Sequence(const std::string& name) {
    const int window = FD_Times_Loaded;
    if (!name.empty()) Seq_Load(Pressed_Path(name), Mode_Soundcheck);
    if (MIDI_Enabled != 1 || MIDI_Autoplay != 1 || !Is_True(Seq_Loaded)) return;
    FD_Stop_Click();
    // Events ran while the port still played.
    if (Still_Open(window)) FD_Start_Click(FD_SEQ_Button_Start);
}

}  // namespace

void FD_Preview_Start() {
    Option_Select(FD_SYX_OB_Soundcheck, 0);
    FD_SYX_SoundCheck_Note_List.entries.clear();
    FD_SYX_SoundCheck_Velocity_List.entries.clear();
    if (MIDI_Autoplay == 1) Check_Toggle(FD_SYX_CB_Autoplay);
    if (MIDI_Autosend == 1) Check_Toggle(FD_SYX_CB_Autosend);
    Fill_Lists();
    // Any value but 0 is the sequence, as it is in the settings.
    const std::size_t option = Soundcheck_Mode == 0 ? 0 : 1;
    Option_Select(FD_SYX_OB_Soundcheck, option);
    if (MIDI_Enabled == 0) {
        MIDI_Autoplay = 0;
        MIDI_Autosend = 0;
        Check_Disable(FD_SYX_CB_Autoplay);
        Check_Disable(FD_SYX_CB_Autosend);
        Options_Disable(FD_SYX_OB_Soundcheck);
        Enable_Lists(false);
    }
    if (Memory_Holds_None()) {
        // In this order: what was stored stays in the disabled option, and Autoplay brings its lamp back.
        Option_Disable(FD_SYX_OB_Soundcheck[1]);
        Option_Select(FD_SYX_OB_Soundcheck, 0);
        Show_Symbols(Picture_Store::Start_Disabled, Picture_Store::Stop_Disabled);
    } else {
        Option_Enable(FD_SYX_OB_Soundcheck[1]);
        Option_Select(FD_SYX_OB_Soundcheck, option);
        Show_Symbols(Picture_Store::Start_Enabled, Picture_Store::Stop_Enabled);
    }
    FD_Preview_Refresh();
}

void FD_Preview_End() {
    Soundcheck_Note =
        Narrow<std::uint8_t>(FD_SYX_SoundCheck_Note_List.selected * Notes_Apart + Lowest_Note);
    Soundcheck_Velocity = Narrow<std::uint8_t>(FD_SYX_SoundCheck_Velocity_List.selected);
}

void FD_Preview_Refresh() {
    if (MIDI_Autoplay != 0) {
        Check_On(FD_SEQ_CB_Autoplay);
        Option_Enable(FD_SYX_OB_Soundcheck[0]);
        if (Soundcheck_Mode == 1) Option_Enable(FD_SYX_OB_Soundcheck[1]);
        Enable_Lists(true);
    } else {
        Check_Off(FD_SEQ_CB_Autoplay);
        Options_Disable(FD_SYX_OB_Soundcheck);
        Enable_Lists(false);
        FD_SEQ_Button_Start.symbol.picture = Picture_Of(Picture_Store::Start_Disabled);
        FD_SEQ_Button_Stop.symbol.picture = Picture_Of(Picture_Store::Stop_Disabled);
    }
}

void FD_List_Files_Press() {
    const std::string name = FD_List_Files_Entry();
    FD_FileName.text = name;
    FD_Selected = name;
    FD_Selected_Kind = "File";
    if (FD_Mode == "Open_SYX" && !name.empty()) Preview_Tone(name);
    if (FD_Mode == "Open_SEQ") Preview_Sequence(name);
}

// A disabled box hears neither clicks nor keys.
void FD_SYX_CB_Autoplay_Click() {
    Lamp& box = FD_SYX_CB_Autoplay;
    if (!box.control.enabled) return;
    Check_Toggle(box);
    if (box.tag > 0) {
        Option_Enable(FD_SYX_OB_Soundcheck[0]);
        if (Soundcheck_Mode == 1 || !Memory_Holds_None()) Option_Enable(FD_SYX_OB_Soundcheck[1]);
    } else {
        Options_Disable(FD_SYX_OB_Soundcheck);
    }
    MIDI_Autoplay = Setting_Of(box);
    FD_Preview_Refresh();
}

void FD_SYX_CB_Autosend_Click() {
    if (!FD_SYX_CB_Autosend.control.enabled) return;
    Check_Toggle(FD_SYX_CB_Autosend);
    MIDI_Autosend = Setting_Of(FD_SYX_CB_Autosend);
}

void FD_SEQ_CB_Autoplay_Click() {
    Check_Toggle(FD_SEQ_CB_Autoplay);
    MIDI_Autoplay = Setting_Of(FD_SEQ_CB_Autoplay);
}

void FD_SYX_OB_Soundcheck_Click(std::size_t index) {
    if (!FD_SYX_OB_Soundcheck.at(index).control.enabled) return;
    Option_Select(FD_SYX_OB_Soundcheck, index);
    Soundcheck_Mode = index == 0 ? 0 : 1;
}

void FD_SYX_SoundCheck_Note_List_Click(int index) {
    FD_SYX_SoundCheck_Note_List.Select(index);
    Soundcheck_Note = Narrow<std::uint8_t>(index * Notes_Apart + Lowest_Note);
}

void FD_SYX_SoundCheck_Velocity_List_Click(int index) {
    FD_SYX_SoundCheck_Velocity_List.Select(index);
    Soundcheck_Velocity = Narrow<std::uint8_t>(index);
}

void FD_Start_Click(Drawn_Button& start) {
    if (MIDI_Enabled == 1 && Is_True(Seq_Loaded)) {
        FD_Seq_Start();
        // Down as long as it plays, also when a preview has started it.
        Button_Push(start.button);
    } else {
        Button_Release(start.button);
    }
}

void FD_Stop_Click() {
    FD_Seq_Stop();
}

void FD_Stop_MouseUp(Drawn_Button& start, Drawn_Button& stop) {
    Button_Release(stop.button);
    Button_Release(start.button);
}

void FD_Seq_Start() {
    MIDI_Out_Open();
    Seq_Pos = 0;
    Timer_Start(Seq_Tmr);
    Seq_Running = Flag_8::True;
}

void FD_Seq_Stop() {
    Timer_Stop(Seq_Tmr);
    if (Is_True(Seq_Window_Open)) Seq_Clock_Dark();
    Seq_Pos = 0;
    MIDI_Out_Close();
    // A start that came in while the port was still playing would tick on a closed port.
    Timer_Stop(Seq_Tmr);
    Seq_Running = Flag_8::False;
}

bool FD_Timer_Tick() {
    if (!Is_True(FD_Open)) return false;
    FD_Wait_Over = static_cast<std::int16_t>(~FD_Wait_Over);
    return true;
}
