// The window Oscillator, open behind a start, and its controls by name.
#pragma once

#include <string>
#include <vector>

#include "desk/windows.h"
#include "fakes/stage.h"
#include "oscillator/engine.h"
#include "oscillator/stairs.h"
#include "oscwin/oscwin.h"
#include "platform/random.h"

using Lines = std::vector<std::string>;
using Rows = std::vector<int>;

class Open_Oscillator : public Started_Stage {
  protected:
    Open_Oscillator() {
        Window_Show(Oscillator);
        Sent();
    }

    static Control& Lamp(const std::string& name) {
        for (Control* control : Osc_Panel.controls) {
            if (name == control->name) return *control;
        }
        throw Fatal_Error("no control " + name);
    }
    static void Press(const std::string& name) {
        Osc_Panel.events.button_pressed(Lamp(name), Mouse_Button::Left);
    }
    static void Release(const std::string& name) {
        Osc_Panel.events.button_released(Lamp(name), Mouse_Button::Left);
    }
    static void Click(const std::string& name) {
        Press(name);
        Release(name);
        Osc_Panel.events.clicked(Lamp(name));
    }

    // A press at one place, one move to another, and the release.
    static void Draw(int x, int y, int to_x, int to_y, unsigned buttons = Osc_Left_Button) {
        Osc_Picture1_MouseDown(buttons, x, y);
        Osc_Picture1_MouseMove(buttons, to_x, to_y);
        Osc_Picture1_MouseUp();
    }
    // A press and a move on the spot.
    static void Dot(int x, int y, unsigned buttons = Osc_Left_Button) { Draw(x, y, x, y, buttons); }

    static Rows Points() { return {Osc_Points.begin(), Osc_Points.end()}; }
    static Rows Out() { return {Osc_Out.begin(), Osc_Out.end()}; }

    // The item of the lamp's store that each preset shows.
    static Rows Presets_Lit() {
        Rows items;
        for (const Control& lamp : Osc_Wave) {
            EXPECT_EQ(lamp.picture.store, Picture_Store::LED);
            items.push_back(lamp.picture.item);
        }
        return items;
    }
};
