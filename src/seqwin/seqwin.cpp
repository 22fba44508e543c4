#include "seqwin/seqwin.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "panels/push_buttons.h"
#include "platform/message_box.h"
#include "sequencer/engine.h"
#include "sequencer/seq_commands.h"
#include "sequencer/seq_file.h"

namespace {

constexpr std::int16_t Key_Velocity = 127;
constexpr int Notes_In_Octave = 12;
constexpr int Lowest_Octave = 2;  // note 24 is the C of "C0..C1"

// Items of the key pictures; the pressed one of each stands two further.
constexpr int White_Key = 0;
constexpr int Black_Key = 1;
constexpr int Pressed = 2;

constexpr std::string_view Key_Tags = "wbwbwwbwbwbww";

constexpr const char* Note_Names[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

// Entries of Seq_Trans.
constexpr int Trans_C = 0;
constexpr int Trans_High_C = 12;

int Index_Of_Key(const Control& control) {
    const auto* found = std::find_if(Seq_Keys.begin(), Seq_Keys.end(),
                                     [&control](const Control& key) { return &key == &control; });
    return found == Seq_Keys.end() ? -1 : static_cast<int>(found - Seq_Keys.begin());
}

void Give_Key_Picture(int index, int state) {
    const auto place = static_cast<std::size_t>(index);
    const int item = Seq_Key_Is_Black(index) ? Black_Key : White_Key;
    Seq_Keys[place].picture = Picture_Of(Picture_Store::Seq_Keys, item + state);
}

void Set_Place(Control& control, int left, int top) {
    control.left = left;
    control.top = top;
    const Picture_Role& role = Role_Of(control.picture);
    control.width = role.width;
    control.height = role.height;
}

// -- base note -------------------------------------------------------------------------------------------

void Take_Base_Note() {
    const int range = std::max(Sequencer_Form.range.selected, 0);
    const int transpose = std::max(Sequencer_Form.trans.selected, 0);
    Seq_Base_Note = static_cast<std::uint8_t>(range * Notes_In_Octave + Seq_Lowest_Base_Note + transpose);
}

// A file may bring a base note above the highest range; the list shows the nearest that it has.
void Select_Range(int index) {
    const int last = static_cast<int>(Sequencer_Form.range.entries.size()) - 1;
    Seq_Range_Change(std::clamp(index, 0, last));
}

void Set_Tempo_Control(int tempo) {
    Sequencer_Form.tempo = tempo;
    Sequencer_Form.tempo_label = std::to_string(tempo);
}

// -- buttons ---------------------------------------------------------------------------------------------

void Lift_New() {
    Seq_New.picture = Picture_Of(Picture_Store::Seq_Keys, White_Key);
    Seq_New_Pic.left = 8;
    Seq_New_Pic.top = 3;
}

void Push_New() {
    Seq_New.picture = Picture_Of(Picture_Store::Seq_Keys, White_Key + Pressed);
    Seq_New_Pic.left = 9;
    Seq_New_Pic.top = 4;
}

void Start_Click() {
    if (MIDI_Enabled != 1) {
        Button_Release(Seq_Start);
        return;
    }
    MIDI_Out_Open();
    Seq_Clock_Dark();
    Seq_Pos = Seq_Dir == 1 ? Seq_Steps - 1 : 0;
    Timer_Start(Seq_Tmr);
    Seq_Running = Flag_8::True;
}

void Stop_Click() {
    Timer_Stop(Seq_Tmr);
    Seq_Clock_Dark();
    Seq_Pos = 0;
    Seq_SendAllNotesOff();
    Seq_Running = Flag_8::False;
    Button_Release(Seq_Start);
    // Both windows end alike, and the port is freed.
    ED_Seq_Stop_Click();
    ED_Seq_Stop_MouseUp();
}

void New_Pressed() {
    Stop_Click();
    Push_New();
    File_Seq_New_Chosen(Lift_New);
}

void Key_Pressed_Down(int index, Mouse_Button button) {
    Give_Key_Picture(index, Pressed);
    if (MIDI_Enabled != 1) return;
    MIDI_Out_Open();
    // An open that failed has switched MIDI off and had its box; a note would only give a second one.
    if (MIDI_Enabled != 1) return;
    if (button == Mouse_Button::Left) {
        Seq_SendNote(static_cast<std::int16_t>(Seq_Base_Note + index), Key_Velocity);
    } else if (button == Mouse_Button::Right) {
        Seq_SendAllNotesOff();
    }
}

void Button_Pressed(Control& control, Mouse_Button button) {
    const int key = Index_Of_Key(control);
    if (key >= 0) Key_Pressed_Down(key, button);
    if (&control == &Seq_Start) {
        Button_Push(Seq_Start);
        Button_Push(Editor_Seq_Start);
    }
    if (&control == &Seq_Stop) Button_Push(Seq_Stop);
    if (&control == &Seq_New) New_Pressed();
}

void Button_Released(Control& control, Mouse_Button) {
    const int key = Index_Of_Key(control);
    if (key >= 0) Give_Key_Picture(key, 0);
    if (&control == &Seq_Stop) Button_Release(Seq_Stop);
    if (&control == &Seq_New) Lift_New();
}

void Clicked(Control& control) {
    if (&control == &Seq_Start) Start_Click();
    if (&control == &Seq_Stop) Stop_Click();
}

std::string Spoken_Value(const Control& control) {
    const int key = Index_Of_Key(control);
    return key < 0 ? std::string() : Seq_Note_Name(Seq_Base_Note + key);
}

Control Made(const char* name, const char* spoken_name, bool focusable) {
    return {.name = name, .spoken_name = spoken_name, .window = &Sequencer, .focusable = focusable};
}

std::array<Control, Seq_Rows> Made_Keys() {
    static constexpr const char* Names[] = {
        "Seq_Keys_0", "Seq_Keys_1", "Seq_Keys_2", "Seq_Keys_3",  "Seq_Keys_4",  "Seq_Keys_5",  "Seq_Keys_6",
        "Seq_Keys_7", "Seq_Keys_8", "Seq_Keys_9", "Seq_Keys_10", "Seq_Keys_11", "Seq_Keys_12",
    };
    std::array<Control, Seq_Rows> keys;
    for (std::size_t index = 0; index < keys.size(); ++index) {
        keys[index] = Made(Names[index], "Key", true);
        keys[index].help = Seq_Keys_Help;
    }
    return keys;
}

std::vector<Control*> All_Controls() {
    std::vector<Control*> controls;
    for (Control& key : Seq_Keys) controls.push_back(&key);
    for (Control* control : {&Seq_Start, &Seq_Start_Pic, &Seq_Stop, &Seq_Stop_Pic, &Seq_New, &Seq_New_Pic})
        controls.push_back(control);
    return controls;
}

// -- the window ------------------------------------------------------------------------------------------

void Redraw() {
    for (std::size_t cell = 0; cell < Seq_Notes.size(); ++cell)
        Seq_Matrix[cell] = Seq_Cell_Picture(Seq_Notes[cell]);
}

void Place_Controls() {
    Seq_New_Pic.picture = Picture_Of(Picture_Store::Seq_New);
    Seq_New_Pic.parent = &Seq_New;
    Lift_New();
    Set_Place(Seq_New, Seq_Keys_Left, Seq_Clock_Top);
    Set_Place(Seq_New_Pic, Seq_New_Pic.left, Seq_New_Pic.top);
    for (int index = 0; index < Seq_Rows; ++index) {
        Give_Key_Picture(index, 0);
        Set_Place(Seq_Keys[static_cast<std::size_t>(index)], Seq_Keys_Left,
                  (Seq_Rows - 1 - index) * Seq_Pitch + Seq_Keys_Top);
    }
}

void Lay_Button(Control& button, Control& symbol, Picture_Store picture, int left, int top) {
    symbol.picture = Picture_Of(picture);
    symbol.parent = &button;
    button.symbol = &symbol;
    Button_Release(button);
    Set_Place(button, left, top);
    Set_Place(symbol, symbol.left, symbol.top);
}

// The resting look of the switches and the two buttons.
void Seq_Pics_() {
    Seq_Directions_Click(Seq_Mode::Forward);
    Lay_Button(Seq_Start, Seq_Start_Pic, Picture_Store::Start_Enabled, Seq_Start_Left, Seq_Buttons_Top);
    Lay_Button(Seq_Stop, Seq_Stop_Pic, Picture_Store::Stop_Enabled, Seq_Stop_Left, Seq_Buttons_Top);
}

void Load() {
    Window_Place(Sequencer, Seq_Window_Left, Seq_Window_Top);
    Sequencer.width = Seq_Window_Width;
    Sequencer.height = Seq_Window_Height;
    Seq_Window_Open = Flag_8::True;
    Seq_Show_Title();
    Place_Controls();
    Seq_Clock_Dark();
    Redraw();
    Sequencer_Form = {};
    Sequencer_Form.range.entries = {"C0..C1", "C1..C2", "C2..C3", "C3..C4", "C4..C5"};
    Select_Range(Seq_Range_Index);
    Set_Tempo_Control(Seq_Tempo_Value);
    Seq_Set_Interval();
    Seq_Pics_();
    Seq_Directions_Click(Seq_Mode::Forward);
    Sequencer_Form.trans.entries = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B", "C+"};
    Seq_Trans_Change(Trans_C);
}

void Unload() {
    if (Is_True(Seq_Running)) {
        Timer_Stop(Seq_Tmr);
        ED_Seq_Stop_Click();
        ED_Seq_Stop_MouseUp();
    }
    Seq_SendAllNotesOff();
    Seq_Range_Index = static_cast<std::int16_t>(Sequencer_Form.range.selected);
    if (Menu(Menu_Windows_SavePos).checked) Window_Keep_Place(Sequencer, Seq_Window_Left, Seq_Window_Top);
    Seq_Window_Open = Flag_8::False;
    // The load locked nothing: the end of a lock that never began is what brings the panels' blink back.
    Dialog_End();
}

void Show_Window() {
    try {
        Window_Show(Sequencer);
    } catch (const std::bad_alloc&) {
        Seq_Window_Open = Flag_8::False;
        Message_Box("Not enough memory to display the Sequencer Window.");
    } catch (...) {
        // Any other failure is passed over: there is no window, and the next try may have one.
        Seq_Window_Open = Flag_8::False;
    }
}

}  // namespace

Seq_Form Sequencer_Form;
std::array<Seq_Picture, Seq_Cells> Seq_Matrix = {};
std::array<Control, Seq_Rows> Seq_Keys = Made_Keys();
Control Seq_Start = Made("Seq_Start", "Start", true);
Control Seq_Start_Pic = Made("Seq_Start_Pic", "", false);
Control Seq_Stop = Made("Seq_Stop", "Stop", true);
Control Seq_Stop_Pic = Made("Seq_Stop_Pic", "", false);
Control Seq_New = Made("Seq_New", "New Sequence", true);
Control Seq_New_Pic = Made("Seq_New_Pic", "", false);

const Panel Seq_Panel = {
    .window = &Sequencer,
    .controls = All_Controls(),
    .events = {
        .focus_gained = [](Control& control) { Sequencer.active_control = &control; },
        .focus_lost = [](Control&) { Sequencer.active_control = nullptr; },
        .key_pressed = [](Control&, int) {},
        .button_pressed = Button_Pressed,
        .pointer_moved = [](Control&, double) {},
        .button_released = Button_Released,
        .clicked = Clicked,
        .activated = [] {},
        .deactivated = [] {},
    },
    .spoken_value = Spoken_Value,
};

bool Seq_Key_Is_Black(int key) {
    return Key_Tags[static_cast<std::size_t>(key)] == 'b';
}

std::string Seq_Note_Name(int note) {
    return Note_Names[note % Notes_In_Octave] + std::to_string(note / Notes_In_Octave - Lowest_Octave);
}

std::string Seq_Cell_Text(int step, int row) {
    static constexpr const char* Words[] = {"empty", "lit", "loud", "soft"};
    return "step " + std::to_string(step + 1) + ", " + Seq_Note_Name(Seq_Row_Note(row)) + ", " +
           Words[Seq_Matrix[Seq_Cell(step, row)]];
}

void Seq_Matrix_MouseDown(Mouse_Button button, double x, double y) {
    const int column = static_cast<int>(Round_Half_Even(x)) / Seq_Pitch;
    const int row = static_cast<int>(Round_Half_Even(y)) / Seq_Pitch;
    if (column < 0 || column >= Seq_Steps || row < 0 || row >= Seq_Rows) return;
    const auto cell = Seq_Cell(column, row);
    std::int16_t& velocity = Seq_Notes[cell];
    if (button == Mouse_Button::Left) {
        velocity = velocity >= Seq_Loud ? 0 : Seq_Loud;
        if (velocity != 0) Seq_Matrix[cell] = Seq_Loud_Picture;
    } else if (button == Mouse_Button::Right) {
        velocity = velocity == Seq_Soft ? 0 : Seq_Soft;
        if (velocity != 0) Seq_Matrix[cell] = Seq_Soft_Picture;
    }
    if (velocity == 0) Seq_Matrix[cell] = Seq_Empty_Picture;
    // Whatever the button, and whether or not the cell has changed.
    Seq_Saved = Flag_8::False;
    if (MIDI_Enabled == 1) Seq_Panel_Buttons_On();
}

void Seq_Tempo_Change(int tempo) {
    Seq_Tempo_Value =
        static_cast<std::int16_t>(std::clamp<int>(tempo, Seq_Lowest_Tempo, Seq_Highest_Tempo));
    Set_Tempo_Control(Seq_Tempo_Value);
    Seq_Set_Interval();
}

void Seq_Range_Change(int index) {
    Sequencer_Form.range.Select(index);
    Seq_SendAllNotesOff();
    Take_Base_Note();
}

void Seq_Trans_Change(int index) {
    Sequencer_Form.trans.Select(index);
    Take_Base_Note();
}

bool Seq_KeyDown(int key, Seq_Shift held) {
    struct Row {
        char key;
        int natural;
        int sharp;
    };
    // H is B in German.
    static constexpr Row Rows[] = {{'D', 2, 3},  {'E', 4, 4},   {'F', 5, 6},  {'G', 7, 8},
                                   {'A', 9, 10}, {'B', 11, 11}, {'H', 11, 11}};
    const bool only_shift = held.shift && !held.control && !held.alt;
    const bool only_alt = held.alt && !held.control && !held.shift;
    const bool nothing = !held.shift && !held.control && !held.alt;
    bool chosen = key == 'C';
    if (key == 'C') {
        if (nothing) Sequencer_Form.trans.Select(Trans_C);
        if (only_shift) Sequencer_Form.trans.Select(Trans_C + 1);
        if (only_alt) Sequencer_Form.trans.Select(Trans_High_C);
    }
    for (const Row& row : Rows) {
        if (row.key != key) continue;
        chosen = true;
        Sequencer_Form.trans.Select(only_shift ? row.sharp : row.natural);
    }
    // Behind any key whatever.
    Take_Base_Note();
    return chosen;
}

void Seqwin_Install() {
    Sequencer.load = Load;
    Sequencer.unload = Unload;
    Seq_Redraw = Redraw;
    Seq_Start_Raise = [] { Button_Release(Seq_Start); };
    Seq_Window_Follow = [] {
        Seq_Tempo_Change(Seq_Tempo_Value);
        Select_Range(Seq_Range_Index);
    };
    Menu(Menu_MIDI_Seq).chosen = Show_Window;
}
