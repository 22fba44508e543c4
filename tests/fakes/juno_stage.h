// A program that was started for an Alpha Juno, with its panel to play on.
#pragma once

#include "desk/windows.h"
#include "fakes/stage.h"
#include "panels/juno_panel.h"
#include "shell/frame.h"
#include "synth/juno.h"

class Juno_Stage : public Stage {
  protected:
    Juno_Stage() {
        Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\nSynthesizer=Alpha Juno\n");
        EXPECT_TRUE(Main_Load());
        Loop = {};
        Play_On(Juno_Panel);
        Juno_Panel.events.activated();  // as the window is when it appears
        Sent();
    }
};

// The record as hex.
inline std::string Juno_Record() {
    constexpr const char* Digits = "0123456789ABCDEF";
    std::string line;
    for (const std::uint8_t byte : Juno_Data) {
        if (!line.empty()) line += ' ';
        line += Digits[byte / 16];
        line += Digits[byte % 16];
    }
    return line;
}
