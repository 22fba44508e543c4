#include "monkey/checks.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <functional>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "filedlg/folder_model.h"
#include "help/howto.h"
#include "midi/devices.h"
#include "midi/in.h"
#include "midi/out.h"
#include "monkey/diary.h"
#include "monkey/dice.h"
#include "monkey/port.h"
#include "oscillator/curve.h"
#include "oscillator/engine.h"
#include "oscwin/oscwin.h"
#include "panels/editor.h"
#include "panels/juno_panel.h"
#include "panels/mks_patch.h"
#include "panels/patch.h"
#include "platform/gate.h"
#include "platform/text.h"
#include "sequencer/engine.h"
#include "seqwin/seqwin.h"
#include "setup/setup.h"
#include "synth/juno.h"
#include "synth/patch_mks70.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

int Running = 0;

// The sequencer's window ends a lock that it never began; so the depth counts its closings, too.
Hook<void()> Sequencer_Unload;
int Sequencer_Closings = 0;

// A tone that comes in ends the wait for it, and that gives the menus back, be it under a dialog.
Hook<void()> Receive_Toggle;
bool Menus_Given_Back = false;

void Expect(bool holds, const std::string& what) {
    if (!holds) Finding("does not hold: " + what);
}

void In_Range(int value, int lowest, int highest, const std::string& what) {
    if (value < lowest || value > highest) {
        Finding(what + " is " + std::to_string(value) + ", not " + std::to_string(lowest) + " to " +
                std::to_string(highest));
    }
}

void On_Rail(const Control& thumb, int top, int bottom) {
    In_Range(thumb.top, top, bottom, std::string("the row of ") + thumb.window->name + "." + thumb.name);
}

// Wherever a knob is turned to, its dot lies on it.
void On_Knob(const Control& dot, const Control& body) {
    const std::string what = std::string("the dot ") + dot.name;
    In_Range(dot.left, 0, body.width - 1, what + "'s column");
    In_Range(dot.top, 0, body.height - 1, what + "'s row");
}

template <class Bytes>
void Are_Data(const Bytes& bytes, const char* what) {
    for (const auto byte : bytes) In_Range(byte, 0, 127, what);
}

void Check_Editor() {
    for (std::size_t place = 0; place < Editor_Table.size(); ++place) {
        const Editor_Row& row = Editor_Table[place];
        On_Rail(Editor_Controls[place], row.top_row, row.bottom_row);
    }
    On_Knob(DCO1_Tune_Knopf, Editor_Control("DCO1_Tune"));
    On_Knob(DCO2_Tune_Knopf, Editor_Control("DCO2_Tune"));
    On_Knob(DCO2_FTune_Knopf, Editor_Control("DCO2_FTune"));
}

void Check_Juno() {
    for (std::size_t place = 0; place < Juno_Table.size(); ++place) {
        const Juno_Row& row = Juno_Table[place];
        const int highest = row.type == Juno_Type::Slider ? 127 : row.positions - 1;
        const int rise = Juno_Rise(row, highest);
        const auto [top, bottom] =
            std::minmax({row.row, row.placed_row, row.row - rise, row.placed_row - rise});
        On_Rail(Juno_Controls[place], top, bottom);
    }
}

void Check_Patch() {
    if (!Patch.loaded) return;
    for (std::size_t place = 0; place < Patch_Table.size(); ++place)
        On_Rail(Patch_Controls[place], Patch_Table[place].top_row, Patch_Table[place].bottom_row);
}

void Check_Practice() {
    if (!Help.loaded) return;
    On_Rail(Help_Pos_Sw, Pos_Sw_Bottom_Row - 3 * Switch_Pitch, Pos_Sw_Bottom_Row);
    On_Rail(Help_Slider, Slider_Bottom_Row - Slider_Travel, Slider_Bottom_Row);
    On_Rail(Help_Switch, Switch_Row_Off, Switch_Row_Off + Switch_Pitch);
    On_Knob(Help_Tune_Knopf, Help_Tune);
}

void Check_List(const Drop_Down& list, const char* what) {
    In_Range(list.selected, -1, static_cast<int>(list.entries.size()) - 1, what);
}

void Check_Bar(const Scroll_Bar& bar, const char* what) {
    In_Range(bar.value, bar.minimum, bar.maximum, what);
}

void Check_Tame_Records() {
    Are_Data(Tone_Data, "a byte of the tone");
    Are_Data(Patch_Data, "a byte of the patch");
    Are_Data(Juno_Data, "a byte of the Alpha Juno's tone");
    Are_Data(Patch_MKS70_Data, "a byte of the MKS-70's patch");
    In_Range(Seq_Base_Note, 0, 115, "the base note");
    for (const std::int16_t cell : Seq_Notes)
        Expect(cell == 0 || cell == Seq_Soft || cell == Seq_Loud, "a cell is empty, soft or loud");
    Check_Editor();
    Check_Juno();
    Check_Patch();
}

bool Is_Dialog_Open() {
    return Help.loaded || MIDI_Setup.loaded || File_Dlg.loaded || TName.loaded;
}

QMainWindow* Main() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* main = qobject_cast<QMainWindow*>(widget)) return main;
    }
    return nullptr;
}

constexpr Menu_Id Bar[] = {Menu_File, Menu_Edit, Menu_Tone, Menu_MIDI, Menu_Windows, Menu_Help};

void Check_Depth() {
    const int dialogs = (Help.loaded ? 1 : 0) + (MIDI_Setup.loaded ? 1 : 0) + (File_Dlg.loaded ? 1 : 0) +
                        (TName.loaded ? 1 : 0);
    Expect(Dialog_Depth == dialogs - Sequencer_Closings,
           "Dialog_Depth " + std::to_string(Dialog_Depth) + " counts " + std::to_string(dialogs) +
               " open dialogs less " + std::to_string(Sequencer_Closings) + " closings");
}

// The menus as the lock says, and the toolkit's as the records say.
void Check_Menus() {
    if (App_Mode.empty()) Menus_Given_Back = false;
    for (const Menu_Id id : Bar) {
        const bool locked = !App_Mode.empty();
        if (locked && !Menus_Given_Back) Expect(!Menu(id).enabled, std::string("locked: ") + Menu(id).name);
        // Two rules take a menu away without a dialog: no MIDI at the start, and a tone that is waited for.
        const bool other_rule = id == Menu_MIDI || MIDI_Receiving != 0;
        if (!locked && !other_rule) Expect(Menu(id).enabled, std::string("not locked: ") + Menu(id).name);
    }
    const QMainWindow* const main = Main();
    if (main == nullptr || !main->isVisible()) return;
    for (const Menu_Entry& entry : Menu_Tree) {
        const auto* const action = main->menuBar()->findChild<QAction*>(entry.name);
        const auto* const own = action != nullptr ? action : main->findChild<QAction*>(entry.name);
        if (own == nullptr || !own->isVisible() || entry.caption == "-") continue;
        Expect(own->isEnabled() == entry.enabled || entry.level > 0,
               std::string("shown as it is: ") + entry.name);
    }
}

bool Takes_Keys(const QWidget* widget) {
    return widget->isEnabled() && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0;
}

// In a window that is in front and has something to give the keyboard to, something has it.
void Check_Focus() {
    const QWindow* const front = QGuiApplication::focusWindow();
    if (front == nullptr || !front->isVisible()) return;
    const QWidget* const window = QApplication::activeWindow();
    if (window == nullptr || !window->isVisible() || QApplication::activePopupWidget() != nullptr) return;
    const QWidget* const focus = QApplication::focusWidget();
    // The toolkit's own lists come and go, and may take the keyboard with them until the next press.
    if (focus != nullptr && focus->window()->windowType() == Qt::Popup) return;
    if (focus != nullptr) {
        Expect(focus->isVisible() && focus->isEnabled(),
               "what has the keyboard can be worked: " + focus->objectName().toStdString() + " " +
                   focus->metaObject()->className() + " in " + focus->window()->objectName().toStdString() +
                   ", before it " + window->objectName().toStdString() +
                   (focus->isVisible() ? "" : ", hidden") + (focus->isEnabled() ? "" : ", off"));
        return;
    }
    const QList<QWidget*> below = window->findChildren<QWidget*>();
    const auto taker = std::find_if(below.begin(), below.end(), [window](const QWidget* widget) {
        return widget->window() == window && Takes_Keys(widget);
    });
    if (taker != below.end()) {
        Finding("nothing has the keyboard in " + window->objectName().toStdString() + ", where " +
                (*taker)->objectName().toStdString() + " could");
    }
}

}  // namespace

void Checks_Begin() {
    Sequencer_Unload = Sequencer.unload;
    Sequencer.unload = [] {
        Sequencer_Unload();
        ++Sequencer_Closings;
    };
    Receive_Toggle = MIDI_Receive_Toggle;
    MIDI_Receive_Toggle = [] {
        Receive_Toggle();
        if (MIDI_Receiving == 0 && !App_Mode.empty()) Menus_Given_Back = true;
    };
}

bool Is_Known_Instrument() {
    return Same_Text(Synthesizer, "JX-8P") || Same_Text(Synthesizer, "MKS-70") || Is_Alpha_Juno();
}

int Handlers_Running() {
    return Running;
}

void Check_Records() {
    if (!Wild_Life) Check_Tame_Records();
    Check_Practice();
    for (const std::uint8_t value : Help_Demo_Values) In_Range(value, 0, 127, "a practice value");
    In_Range(MIDI_Channel, 1, 16, "the channel");
    In_Range(Seq_Pos, -1, Seq_Steps, "the sequence's cursor");
    In_Range(Seq_Tempo_Value, Seq_Lowest_Tempo, Seq_Highest_Tempo, "the tempo");
    In_Range(Seq_Dir, 0, 1, "the direction");
    In_Range(Osc_Step, 0, Osc_Count - 1, "the oscillator's step");
    for (const std::int16_t row : Osc_Out) In_Range(row, 0, Osc_Bottom_Row, "a point of the curve");
    Check_Bar(Osc_VScrollA, "the amplitude");
    Check_Bar(Osc_VScrollDelta, "the offset");
    Check_Bar(Osc_Time, "the interval");
    Check_List(Osc_Combo1, "the target");
    Check_List(MIDI_Setup_Form.output_devices, "the output device");
    Check_List(MIDI_Setup_Form.input_devices, "the input device");
    Check_List(MIDI_Setup_Form.channel, "the chosen channel");
    Check_List(MIDI_Setup_Form.synthesizer_type, "the instrument");
    Check_List(FD_List_Drives, "the drive");
    In_Range(FD_List_Files.index, -1, static_cast<int>(FD_List_Files.entries.size()) - 1,
             "the file's index");
    In_Range(FD_List_Dirs.index, -1, static_cast<int>(FD_List_Dirs.entries.size()) - 1,
             "the folder's index");
    Expect(Tone_Name_Text.size() <= Tone_Name_Size || MIDI_Receiving != 0, "a name has ten letters");
    Expect(MIDI_Enabled <= 1 && MIDI_Autosend <= 1 && MIDI_Autoplay <= 1, "a switch is on or off");
}

void Check_At_Rest() {
    Check_Depth();
    Expect(App_Mode.empty() || Is_Dialog_Open(), "no lock without a dialog: " + App_Mode);
    // A dialog that was opened while another one closed stands without a name of its own.
    if (!Is_Dialog_Open()) Expect(Editor.enabled && Editor_Juno.enabled, "without a lock the panels work");
    Expect(!Input_Dlg.loaded, "nobody waits for the input box that is open");
    Expect(!MIDI_Out_Closing, "nobody closes the port");
    Expect(MIDI_Out_Handle == Ports.out_handle, "the output is what it is");
    // Settings that name no instrument open no panel.
    if (Is_Known_Instrument()) Expect(Editor.visible != Editor_Juno.visible, "one panel is on show");
    Expect((MIDI_In_Handle == Port_Closed) == (Ports.in_handle == Port_Closed), "the input is what it is");
    Expect(Is_True(Patch_Window_Open) == Patch.loaded, "the patch window's flag");
    Expect(Is_True(Seq_Window_Open) == Sequencer.loaded, "the sequencer's flag");
    Expect(Is_True(Osc_Window_Open) == Oscillator.loaded, "the oscillator's flag");
    if (Sequencer.loaded) {
        In_Range(Sequencer_Form.tempo, Seq_Lowest_Tempo, Seq_Highest_Tempo, "the tempo's bar");
        Check_List(Sequencer_Form.range, "the range");
        Check_List(Sequencer_Form.trans, "the transpose");
    }
    Check_Menus();
    Check_Focus();
}

void Check_At_End() {
    Expect(Ports.out_handle == Port_Closed, "the port is closed");
    Expect(Ports.in_handle == Port_Closed, "the input is closed");
    Expect(!Main_Window.visible, "the main window has gone");
    Check_Depth();
}

// -- the gate, as the linker turns it here ---------------------------------------------------------------

void Gate(const std::function<void()>& handler) asm("__wrap__Z13Guarded_EventRKSt8functionIFvvEE");
void Real_Gate(const std::function<void()>& handler) asm("__real__Z13Guarded_EventRKSt8functionIFvvEE");

void Gate(const std::function<void()>& handler) {
    ++Running;
    Real_Gate(handler);
    --Running;
}
