// The small language of the tests of behaviour: press, drag and press keys on controls by their names, as
// the windows would, and look at what was sent.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "fakes/fake_clock.h"
#include "fakes/fake_display.h"
#include "fakes/fake_message_box.h"
#include "fakes/fake_midi_port.h"
#include "fakes/fake_program.h"
#include "panels/editor.h"
#include "panels/steps.h"

// A program put together but not started, with one output and one input device, "Synth Out" and "Keys In".
class Stage : public ::testing::Test {
  protected:
    Stage();
    void TearDown() override;
};

// The same behind a start with both devices configured: the panel with the tone "NEW".
class Started_Stage : public Stage {
  protected:
    Started_Stage();
};

// Writes the settings file that the start reads.
void Write_Settings(const std::string& text);
std::string Read_Settings();

// The panel that the words below play on; Editor's from the start.
void Play_On(const Panel& panel);

// A control of that panel by its name, dots and buttons included.
Control& At(const std::string& name);

// Gives the control the focus, as the window does before any press or key.
void Focus(const std::string& name);

// Presses a mouse button on the control; a press gives the focus.
void Press(const std::string& name, Mouse_Button button = Mouse_Button::Left);
// Moves the pointer, a button held, to this row of the control.
void Drag(const std::string& name, double row);
void Release(const std::string& name, Mouse_Button button = Mouse_Button::Left);
void Click(const std::string& name);  // press, release and click
void Key(const std::string& name, int key);

// The text of the tone's name display: the Alpha Juno's while its panel is played on, else Editor's.
std::string Shown();
