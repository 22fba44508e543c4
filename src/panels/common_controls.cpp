#include "panels/common_controls.h"

#include "desk/timers.h"
#include "midi/in.h"
#include "midi/out.h"
#include "panels/keyboard.h"
#include "panels/push_buttons.h"
#include "sequencer/engine.h"
#include "sequencer/sequence.h"

namespace {

void Lay_Symbol(Control& button, Control& symbol) {
    button.symbol = &symbol;
    symbol.parent = &button;
    Control_Set_Place(symbol, 3, 3, 14, 14);
}

void Open_Name_Dialog() {
    if (App_Mode.empty()) TName_Show();
}

void Keys_Rise(const Common_Controls& common) {
    common.keys_pic.picture = Picture_Of(Picture_Store::Buttons, Keys_Up);
}

}  // namespace

Hook<void()> TName_Show;
Hook<void()> Seq_Start_Raise;

void Common_Load_Pictures(const Common_Controls& common) {
    Control_Set_Picture(common.keys_pic, Picture_Store::Buttons, Keys_Up);
    Control_Set_Picture(common.seq_start, Picture_Store::Button_Up3D);
    Control_Set_Picture(common.seq_stop, Picture_Store::Button_Up3D);
    Control_Set_Picture(common.seq_start_pic, Picture_Store::Start_Disabled);
    Control_Set_Picture(common.seq_stop_pic, Picture_Store::Stop_Disabled);
    Control_Set_Picture(common.pic_tonebench, Picture_Store::Pic_Tonebench);
    Control_Set_Picture(common.pic_sign, Picture_Store::Pic_Sign);
    Lay_Symbol(common.seq_start, common.seq_start_pic);
    Lay_Symbol(common.seq_stop, common.seq_stop_pic);
}

void Common_Append_To(std::vector<Control*>& controls, const Common_Controls& common) {
    for (Control* control :
         {&common.pic_tonebench, &common.pic_sign, &common.seq_start, &common.seq_start_pic,
          &common.seq_stop, &common.seq_stop_pic, &common.keys_pic, &common.tone_name}) {
        controls.push_back(control);
    }
}

bool Common_Key_Pressed(const Common_Controls& common, Control& control) {
    if (&control != &common.tone_name) return false;
    Open_Name_Dialog();
    return true;
}

bool Common_Button_Pressed(const Common_Controls& common, Control& control, Mouse_Button button) {
    if (&control == &common.seq_start) {
        Button_Push(control);
    } else if (&control == &common.seq_stop) {
        Keys_Rise(common);
        Button_Push(control);
    } else if (&control == &common.keys_pic) {
        Keys_Pic_MouseDown(control, button);
    } else {
        return false;
    }
    return true;
}

void Common_Button_Released(const Common_Controls& common, Control& control, Mouse_Button button) {
    if (&control == &common.seq_start) {
        // A running sequence holds the button down.
        if (!Seq_Ready()) Button_Release(control);
    } else if (&control == &common.seq_stop) {
        Common_Seq_Stop_MouseUp(common);
    } else if (&control == &common.keys_pic) {
        Keys_Pic_MouseUp(control, button);
    }
}

void Common_Clicked(const Common_Controls& common, Control& control) {
    if (&control == &common.tone_name) Open_Name_Dialog();
    if (&control == &common.seq_start) ED_Seq_Start_Click();
    if (&control == &common.seq_stop) Common_Seq_Stop_Click(common);
}

void ED_Seq_Start_Click() {
    if (!Seq_Ready()) return;
    MIDI_Out_Open();
    Seq_Pos = 0;
    Seq_Status = Note_On_Status(MIDI_Channel);
    Timer_Start(Seq_Tmr);
    Seq_Running = Flag_8::True;
}

void Common_Seq_Stop_Click(const Common_Controls& common) {
    if (MIDI_Receiving != 0) {
        MIDI_Receive_Toggle();
        return;
    }
    Timer_Stop(Seq_Tmr);
    Seq_Clock_Dark();
    Seq_Pos = 0;
    Keys_Rise(common);
    MIDI_All_Notes_Off();
    MIDI_Out_Close();
    // A start that came in while the port was still playing would tick on a closed port.
    Timer_Stop(Seq_Tmr);
    Seq_Running = Flag_8::False;
}

void Common_Seq_Stop_MouseUp(const Common_Controls& common) {
    Button_Release(common.seq_stop);
    Button_Release(common.seq_start);
    if (Is_True(Seq_Window_Open)) Seq_Start_Raise();
}
