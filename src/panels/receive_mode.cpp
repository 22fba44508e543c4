#include "panels/receive_mode.h"

#include "desk/menus.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "panels/push_buttons.h"
#include "sequencer/sequence.h"
#include "synth/tone.h"

namespace {

// The two buttons stand on both editor windows.

void Show_Symbol(Control& button, Picture_Store store) {
    for (const Control* shown : {&button, button.twin}) {
        if (shown != nullptr && shown->symbol != nullptr) shown->symbol->picture = Picture_Of(store);
    }
}

void Enable_Start(bool enabled) {
    Editor_Seq_Start.enabled = enabled;
    if (Editor_Seq_Start.twin != nullptr) Editor_Seq_Start.twin->enabled = enabled;
}

void Enter() {
    if (MIDI_In_Handle <= 0) return;
    MIDI_Receiving = 1;
    MIDI_Display_Saved = Tone_Name_Text;
    Enable_Start(false);
    Button_Push(Editor_Seq_Start);
    Show_Symbol(Editor_Seq_Start, Picture_Store::Record);
    Show_Symbol(Editor_Seq_Stop, Picture_Store::Stop_Enabled);
    Menus_Disable();
    // A received tone must not go straight back to the instrument.
    MIDI_Autosend_Saved = MIDI_Autosend;
    MIDI_Autosend = 0;
}

void Leave() {
    MIDI_Receiving = 0;
    MIDI_In_Close();
    Button_Release(Editor_Seq_Start);
    const bool ready = Seq_Ready();
    Show_Symbol(Editor_Seq_Start, ready ? Picture_Store::Start_Enabled : Picture_Store::Start_Disabled);
    Show_Symbol(Editor_Seq_Stop, ready ? Picture_Store::Stop_Enabled : Picture_Store::Stop_Disabled);
    Enable_Start(true);
    Menus_Enable();
    MIDI_Autosend = MIDI_Autosend_Saved;
}

}  // namespace

std::uint8_t MIDI_Autosend_Saved = 0;
std::string MIDI_Display_Saved;

void Receive_Mode_Install() {
    MIDI_Receive_Toggle = [] {
        if (MIDI_Receiving == 0) {
            Enter();
        } else {
            Leave();
        }
    };
}
