// Takes a picture of every window, box and menu of the program: looks FOLDER. One look is one desktop and
// one device pixel ratio; tools/looks.sh sets both and lays the pictures out on sheets.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/fake_midi_port.h"
#include "fakes/fake_program.h"
#include "fakes/fake_volumes.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/folder_commands.h"
#include "filedlg/input_dlg.h"
#include "filedlg/state.h"
#include "help/help.h"
#include "help/howto.h"
#include "midi/out.h"
#include "panels/juno_panel.h"
#include "panels/pictures_qt.h"
#include "panels/spoken_qt.h"
#include "platform/gate.h"
#include "platform/message_box.h"
#include "shell/app_window.h"
#include "shell/frame.h"
#include "shell/style_qt.h"
#include "shell/wiring.h"
#include "synth/profile.h"

namespace {

std::string Folder;
App_Window* The_Window = nullptr;

void Keep(QWidget& widget, const std::string& name) {
    QTest::qWait(40);
    widget.grab().save(QString::fromStdString(Folder + "/" + name + ".png"));
}

QWidget& Widget(const char* name) {
    auto* widget = The_Window->findChild<QWidget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *widget;
}

void Do(const std::function<void()>& work) {
    Guarded_Event([&work] { work(); });
}

void Key(const char* widget, Qt::Key key, int times = 1) {
    Widget(widget).setFocus();
    for (int time = 0; time < times; ++time) QTest::keyClick(&Widget(widget), key);
}

void Focus(const char* widget) {
    Widget(widget).setFocus();
    Do(Panel_Blink_Tick);
    if (Panel_Blink_Phase == 0) Do(Panel_Blink_Tick);
}

// A window that waits in a loop of its own: its picture, and then the key that ends it.
void While_Waiting(const std::string& name, Qt::Key end, const std::function<void()>& work) {
    QTimer::singleShot(150, [name, end] {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr) return;
        Keep(*window, name);
        QTest::keyClick(window, end);
    });
    Do(work);
}

void Menus() {
    for (QAction* top : The_Window->menuBar()->actions()) {
        if (!top->isVisible()) continue;
        QMenu* menu = top->menu();
        menu->popup(QPoint(40, 40));
        QString name = top->text();
        name.remove('&');
        QTest::keyClick(menu, Qt::Key_Down);
        Keep(*menu, ("menu_" + name.toLower()).toStdString());
        for (QAction* entry : menu->actions()) {
            if (entry->menu() == nullptr || !entry->isVisible()) continue;
            entry->menu()->popup(QPoint(90, 90));
            QString below = entry->text();
            below.remove('&');
            Keep(*entry->menu(), ("menu_" + name.toLower() + "_" + below.toLower()).toStdString());
            entry->menu()->close();
        }
        menu->close();
    }
}

void Panels() {
    Key("VCF_CutoffF", Qt::Key_Home);
    Key("DCO1_Tune", Qt::Key_PageUp);
    Key("DCO2_Crossmod", Qt::Key_Up, 2);
    Focus("VCF_Res");
    Key("VCF_Res", Qt::Key_PageUp, 4);
    Keep(*The_Window, "panel");
    Focus("Tone_Name");
    Keep(*The_Window, "panel_name");
    Do([] { Window_Show(Patch); });
    Focus("Portamento_Time");
    Keep(Widget("Patch"), "patch");
    Do([] { Window_Unload(Patch); });
    Do([] { Window_Show(Patch_MKS70); });
    Focus("UDTune");
    Keep(Widget("Patch_MKS70"), "patch_mks70");
    Do([] { Window_Unload(Patch_MKS70); });
    Do([] { Menu(Menu_MIDI_Seq).chosen(); });
    QTest::mouseClick(&Widget("Seq_Matrix"), Qt::LeftButton, {}, QPoint(18, 30));
    QTest::mouseClick(&Widget("Seq_Matrix"), Qt::RightButton, {}, QPoint(30, 66));
    Keep(Widget("Sequencer"), "sequencer");
    Do([] { Window_Unload(Sequencer); });
    Do([] { Menu(Menu_MIDI_Osc).chosen(); });
    Focus("VScrollA");
    Keep(Widget("Oscillator"), "oscillator");
    Do([] { Window_Unload(Oscillator); });
}

void File_Windows() {
    Do([] { FD_Show("Open_SYX"); });
    Do([] { FD_List_Files_MouseDown(1); });
    Focus("FD_List_Files");
    Keep(Widget("File_Dlg"), "files_tones");
    While_Waiting("new_folder", Qt::Key_Escape, [] {
        FD_Selected = Test_Folder() + "/disk";
        FD_New_Folder();
    });
    While_Waiting("box_delete", Qt::Key_Escape, FD_Delete);
    Do(FD_Button_Cancel_Click);
    Do([] { FD_Show("Open_SEQ"); });
    Do([] { FD_List_Files_MouseDown(0); });
    Focus("FD_Button_Ok");
    Keep(Widget("File_Dlg"), "files_sequences");
    Do(FD_Button_Cancel_Click);
    Do([] { FD_Show("Open_OSC"); });
    Focus("FD_List_Drives");
    Keep(Widget("File_Dlg"), "files_oscillators");
    Do(FD_Button_Cancel_Click);
    Do([] { FD_Show("SaveAs_SYX"); });
    Keep(Widget("File_Dlg"), "files_save");
    Do(FD_Button_Cancel_Click);
    MIDI_Enabled = 0;
    Do([] { FD_Show("Open_SYX"); });
    Focus("FD_Button_Updir");
    Keep(Widget("File_Dlg"), "files_midi_off");
    Do(FD_Button_Cancel_Click);
    MIDI_Enabled = 1;
}

void Dialogs() {
    Do([] { Menu(Menu_MIDI_Setup).chosen(); });
    Keep(Widget("MIDI_Setup"), "setup");
    Key("Enable", Qt::Key_Space);
    Widget("Enable").setFocus();
    Keep(Widget("MIDI_Setup"), "setup_midi_off");
    Key("Enable", Qt::Key_Space);
    Do([] { Window_Unload(MIDI_Setup); });
    Do([] { Menu(Menu_Tone_Name).chosen(); });
    Keep(Widget("TName"), "tone_name");
    Do([] { Window_Unload(TName); });
    const std::pair<const char*, void (*)()> pages[] = {{"help_about", Menu_Help_About_Chosen},
                                                        {"help_howto", Menu_Help_Howto_Chosen},
                                                        {"help_search", Menu_Help_Search_Chosen}};
    for (const auto& [name, open] : pages) {
        Do(open);
        if (name == std::string("help_search")) QTest::keyClicks(&Widget("Help_Keyword"), "matr");
        if (name == std::string("help_about")) Key("Credits", Qt::Key_Down, 2);
        Keep(Widget("Help"), name);
        Do(Help_Close_Asked);
    }
}

void Boxes() {
    const std::pair<const char*, std::function<void()>> boxes[] = {
        {"box_question",
         [] { Message_Box("Save actual TONE first?", Buttons_Set::Yes_No_Cancel, Icon::Question); }},
        {"box_stop",
         [] {
             Message_Box("Drive not ready or unavailable.", Buttons_Set::Retry_Cancel, Icon::Stop,
                         "Tonebench");
         }},
        {"box_exclamation",
         [] {
             Message_Box("Sorry, patch settings not available yet.", Buttons_Set::Ok, Icon::Exclamation,
                         "Tonebench");
         }},
        {"box_reminder",
         [] {
             Menu(Menu_MIDI_Setup).chosen();
             Key("Cmd_OK", Qt::Key_Space);
         }},
    };
    for (const auto& [name, work] : boxes) While_Waiting(name, Qt::Key_Escape, work);
}

void Juno() {
    Synthesizer = "Alpha Juno";
    Do(Sysex_Headers_Update);
    Focus("Chorus_Rate");
    Keep(*The_Window, "juno");
    Do([] {
        for (const char* name : {"ENV_T1", "ENV_L2", "ENV_T3"}) {
            auto* panel = The_Window->findChild<QWidget*>("Editor_Juno");
            auto* control = panel->findChild<QWidget*>(name);
            control->setFocus();
            for (int time = 0; time < 4; ++time) QTest::keyClick(control, Qt::Key_PageUp);
        }
    });
    Keep(*The_Window, "juno_envelope");
}

std::string Disk() {
    std::filesystem::create_directories(Test_Folder() + "/disk/Leads and Basses");
    for (const char* sounds : {BUILD_DIR "/Tones/JX-8P", BUILD_DIR "/Sequences"}) {
        std::filesystem::copy(sounds, Test_Folder() + "/disk", std::filesystem::copy_options::recursive);
    }
    return Test_Folder() + "/disk";
}

}  // namespace

int main(int argument_count, char** arguments) {
    if (argument_count != 2) return std::fprintf(stderr, "looks FOLDER\n"), 2;
    Folder = arguments[1];
    std::filesystem::create_directories(Folder);
    QApplication application(argument_count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    Style_Install();
    Pictures_Open();
    Widgets_Speak();
    std::filesystem::copy_file(BUILD_DIR "/JX8P.FNT", Test_Folder() + "/JX8P.FNT");
    const std::string disk = Disk();
    std::ofstream(Test_Folder() + "/Tonebench.INI", std::ios::binary)
        << "[MIDI]\nOutput=UM-ONE MIDI 1\nInput=UM-ONE MIDI 1\nAutoplay=0\n[Recent Files]\nTones=" << disk
        << "\nSequences=" << disk << "\nOscillators=" << disk << "\n";
    Ports.out_names = {"UM-ONE MIDI 1", "Keystation Pro 88 MIDI Output with a long name"};
    Ports.in_names = {"UM-ONE MIDI 1"};
    Program_Wire();
    App_Window window;
    The_Window = &window;
    Windows_Show_Changes = [] { The_Window->Show_Changes(); };
    Do([] { static_cast<void>(Main_Load()); });
    window.activateWindow();
    QTest::qWait(100);
    Panels();
    File_Windows();
    Dialogs();
    Boxes();
    Menus();
    Juno();
    Windows_Show_Changes = {};
    return 0;
}
