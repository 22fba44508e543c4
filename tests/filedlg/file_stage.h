// The file window on a real folder tree, worked as its own window on the screen would.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "desk/dialog_lock.h"
#include "desk/folders.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/fake_volumes.h"
#include "fakes/stage.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/file_ok.h"
#include "filedlg/folder_commands.h"
#include "filedlg/folder_model.h"
#include "filedlg/input_dlg.h"
#include "filedlg/linking.h"
#include "filedlg/options.h"
#include "filedlg/preview.h"
#include "filedlg/state.h"
#include "midi/out.h"
#include "sequencer/engine.h"
#include "sequencer/sequence.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"

using Lines = std::vector<std::string>;
using std::chrono::milliseconds;

inline std::string Sequence_Bytes(char tempo = 60, char base_note = 36) {
    std::string bytes = std::string("SEQ1") + tempo + base_note + std::string(104, '\0');
    bytes[6 + 0] = 127;
    bytes[6 + 14] = 63;
    bytes[6 + 28] = 100;
    return bytes;
}

// disk/            a.syx  Bass.SYX  lead.syx  note.txt  one.seq  two.SEQ  wave.osc
// disk/Leads/      solo.syx
// disk/empty/
class File_Window : public Started_Stage {
  protected:
    File_Window() {
        std::filesystem::create_directories(Disk("Leads"));
        std::filesystem::create_directories(Disk("empty"));
        for (const char* name : {"a.syx", "Bass.SYX", "Leads/solo.syx"}) Write(Disk(name), Bytes(Tone_1));
        Write(Disk("lead.syx"), Bytes(Tone_2 + Patch_2));
        Write(Disk("note.txt"), "hello");
        Write(Disk("one.seq"), Sequence_Bytes());
        Write(Disk("two.SEQ"), Sequence_Bytes(30));
        Write(Disk("wave.osc"), "?");
        Dir_Tones = Dir_Sequences = Dir_Oscillators = Disk("") + "/";
        MIDI_Autosend = 0;
        MIDI_Autoplay = 0;
        Sent();
    }

    static std::string Disk(const std::string& name) {
        return name.empty() ? Path("disk") : Path("disk/" + name);
    }

    static void Type(const std::string& text) { FD_FileName_Change(text); }
    static void Ok() { FD_Event(FD_Button_Ok_Click); }
    static void Type_And_Ok(const std::string& text) {
        Type(text);
        Ok();
    }
    static int Row(const std::vector<std::string>& entries, const std::string& name) {
        const auto found = std::find(entries.begin(), entries.end(), name);
        if (found == entries.end()) throw Fatal_Error("no entry " + name);
        return static_cast<int>(found - entries.begin());
    }
    static void Press_File(const std::string& name) {
        FD_Event([&] { FD_List_Files_MouseDown(Row(FD_List_Files.entries, name)); });
    }
    static void Double_Click(const std::string& name) {
        Press_File(name);
        FD_Event(FD_List_Files_DblClick);
    }
    static void Press_Folder(const std::string& path) {
        FD_Event([&] { FD_List_Dirs_MouseDown(Row(FD_List_Dirs.entries, path)); });
    }
    static Control& Drawn(const std::string& name) {
        for (Control* control : File_Panel.controls) {
            if (name == control->name) return *control;
        }
        throw Fatal_Error("no control " + name);
    }
    static void Button_Down(const std::string& name) {
        File_Panel.events.button_pressed(Drawn(name), Mouse_Button::Left);
    }
    static void Button_Up(const std::string& name) {
        File_Panel.events.button_released(Drawn(name), Mouse_Button::Left);
    }
    static void Click_Drawn(const std::string& name) {
        Button_Down(name);
        Button_Up(name);
        File_Panel.events.clicked(Drawn(name));
    }
    static Picture Lamp_Picture(int item) { return Picture_Of(Picture_Store::LED, item); }
    static bool Is_Open() { return File_Dlg.loaded && File_Dlg.visible; }
};
