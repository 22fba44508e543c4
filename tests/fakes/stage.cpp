#include "fakes/stage.h"

#include <fstream>

#include "panels/juno_panel.h"
#include "platform/files.h"
#include "shell/frame.h"
#include "shell/wiring.h"

namespace {

const Panel* Played = &Editor_Panel;

}  // namespace

Stage::Stage() {
    Ports.out_names = {"Synth Out"};
    Ports.in_names = {"Keys In"};
    Program_Wire();
}

void Stage::TearDown() {
    Check_All_Boxes_Came();
}

Started_Stage::Started_Stage() {
    Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\n");
    EXPECT_TRUE(Main_Load());
    Loop = {};
}

void Write_Settings(const std::string& text) {
    std::ofstream(Test_Folder() + "/Tonebench.INI", std::ios::binary) << text;
}

std::string Read_Settings() {
    return File_Read_Whole(Test_Folder() + "/Tonebench.INI").value_or("(none)");
}

void Play_On(const Panel& panel) {
    Played = &panel;
}

Control& At(const std::string& name) {
    for (Control* control : Played->controls) {
        if (name == control->name) return *control;
    }
    throw Fatal_Error("no control " + name);
}

void Focus(const std::string& name) {
    Control& control = At(name);
    Control* const before = Played->window->active_control;
    if (before == &control && control.focusable) return;
    if (before != nullptr) Played->events.focus_lost(*before);
    Played->events.focus_gained(control);
}

void Press(const std::string& name, Mouse_Button button) {
    Focus(name);
    Played->events.button_pressed(At(name), button);
}

void Drag(const std::string& name, double row) {
    Played->events.pointer_moved(At(name), row);
}

void Release(const std::string& name, Mouse_Button button) {
    Played->events.button_released(At(name), button);
}

void Click(const std::string& name) {
    Press(name);
    Release(name);
    Played->events.clicked(At(name));
}

void Key(const std::string& name, int key) {
    Focus(name);
    Played->events.key_pressed(At(name), key);
}

std::string Shown() {
    return Played == &Juno_Panel ? Juno_Tone_Name.text : Editor_Tone_Name.text;
}
