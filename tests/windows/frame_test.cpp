#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <filesystem>
#include <fstream>

#include "desk/ansi_qt.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/windows.h"
#include "midi/out.h"
#include "panels/editor.h"
#include "platform/gate.h"
#include "sequencer/sequence.h"
#include "setup/setup.h"
#include "shell/frame.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "windows/screen.h"

class Frame : public Screen {
  protected:
    QStringList Bar() const {
        QStringList shown;
        for (const QAction* action : window_->menuBar()->actions()) {
            if (action->isVisible()) shown << action->text();
        }
        return shown;
    }
    QAction* Entry(const char* name) const {
        for (QAction* action : window_->findChildren<QAction*>()) {
            if (action->objectName() == name) return action;
        }
        return nullptr;
    }
    void Shortcut(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier); }
};

TEST_F(Frame, shows_the_menus_that_have_a_function) {
    Start();
    EXPECT_EQ(Bar(), (QStringList{"&File", "&Edit", "&MIDI", "&Tone", "&Windows", "&Help"}));
    EXPECT_TRUE(Entry("Menu_File_Exit")->isVisible());
    EXPECT_TRUE(Entry("Menu_MIDI_Setup")->isVisible());
    EXPECT_TRUE(Entry("Menu_MIDI_CloseOutput")->isVisible());
    EXPECT_TRUE(Entry("Menu_Tone_Send")->isVisible());
    EXPECT_FALSE(Entry("Menu_Tone_Receive")->isVisible());
    EXPECT_EQ(Entry("Menu_Tone_Send")->text(), "Sen&d");
    EXPECT_EQ(Entry("Menu_Tone_Send")->shortcut(), QKeySequence("Ctrl+T"));
    EXPECT_EQ(Entry("Menu_File_Exit")->shortcut(), QKeySequence("Ctrl+X"));
}

TEST_F(Frame, shows_an_entry_as_soon_as_it_has_a_function) {
    Start();
    Menu(Menu_Help_About).chosen = {};
    window_->Show_Changes();
    EXPECT_FALSE(Entry("Menu_Help_About")->isVisible());
    Menu(Menu_Help_About).chosen = [] {};
    window_->Show_Changes();
    EXPECT_TRUE(Entry("Menu_Help_About")->isVisible());
}

TEST_F(Frame, stops_a_running_sequencer_when_the_submenu_of_tone_files_opens) {
    Start();
    Seq_Running = Flag_8::True;
    Seq_Pos = 5;
    auto* file = window_->findChild<QAction*>("Menu_File")->menu();
    file->popup(window_->mapToGlobal(QPoint(0, 0)));
    EXPECT_EQ(Seq_Running, Flag_8::True) << "not by the menu around it";
    file->setActiveAction(Entry("Menu_File_SYX"));
    QTest::keyClick(file, Qt::Key_Right);
    EXPECT_TRUE(Entry("Menu_File_SYX")->menu()->isVisible());
    EXPECT_EQ(Seq_Running, Flag_8::False);
    EXPECT_EQ(Seq_Pos, 0);
    file->hide();
}

TEST_F(Frame, draws_a_line_for_a_separator_and_no_text) {
    Start();
    EXPECT_TRUE(Entry("Menu_File_Trenn_2")->isSeparator());
    EXPECT_EQ(Entry("Menu_File_Trenn_2")->text(), "");
}

TEST_F(Frame, sends_the_tone_by_its_shortcut) {
    Start();
    Shortcut(Qt::Key_T);
    const auto sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].size(), 90U * 3 - 1);
}

TEST_F(Frame, gives_a_hidden_or_disabled_entry_no_shortcut) {
    static int received = 0;
    Menu(Menu_Tone_Receive).chosen = [] { ++received; };
    Start();
    Shortcut(Qt::Key_V);
    EXPECT_EQ(received, 0);
    Menu(Menu_Tone_Send).enabled = false;
    window_->Show_Changes();
    Shortcut(Qt::Key_T);
    Menu(Menu_Tone_Send).enabled = true;
    Menu(Menu_Tone).enabled = false;
    window_->Show_Changes();
    Shortcut(Qt::Key_T);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Frame, shows_a_recent_file_s_path_as_it_stands) {
    std::filesystem::create_directory(Test_Folder() + "/R&B");
    const std::string path = Test_Folder() + "/R&B/a&&b T\u00f6ne.syx";
    std::ofstream{path};
    Start();
    Guarded_Event([&path] { Recent_Tone_Add(path); });
    const QString shown = QString::fromStdString(Test_Folder()) + "/R&&B/a&&&&b T\u00f6ne.syx";
    EXPECT_EQ(Entry("Menu_File_SYX_1")->text(), "&1 " + shown);
    EXPECT_TRUE(Entry("Menu_File_SYX_1")->isVisible());
}

TEST_F(Frame, gives_no_entry_its_shortcut_while_a_dialog_is_open) {
    static int chosen = 0;
    for (const Menu_Id id : {Menu_File_SYX_New, Menu_File_Exit, Menu_Tone_Random, Menu_Tone_Patch}) {
        Menu(id).chosen = [] { ++chosen; };
    }
    Start();
    Entry("Menu_Tone_Name")->trigger();
    QWidget* field = Widget("TName_Tone_Name");
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_X, Qt::Key_R, Qt::Key_P}) {
        QTest::keyClick(field, key, Qt::ControlModifier);
        Shortcut(key);
    }
    EXPECT_EQ(chosen, 0);
    QTest::keyClick(Widget("TName"), Qt::Key_Escape);
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_X, Qt::Key_R, Qt::Key_P}) Shortcut(key);
    EXPECT_EQ(chosen, 4) << "and each has it back behind the dialog";
}

TEST_F(Frame, lists_the_windows_inside_it_and_brings_one_to_the_front) {
    Start();
    const auto listed = [this] {
        QStringList texts;
        for (const QAction* entry : window_->findChild<QAction*>("Menu_Windows")->menu()->actions()) {
            if (entry->text().startsWith("&1") || !texts.isEmpty()) texts << entry->text();
        }
        return texts;
    };
    EXPECT_EQ(listed(), QStringList{"&1 Editor"});
    Seq_File_Name = "r&b.seq";
    Guarded_Event([] { Window_Show(Sequencer); });
    EXPECT_EQ(listed(), (QStringList{"&1 Editor", "&2 Sequencer - R&&B.SEQ"}));
    const int raised = Sequencer.times_raised;
    window_->findChild<QAction*>("Menu_Windows")->menu()->actions().back()->trigger();
    EXPECT_EQ(Sequencer.times_raised, raised + 1);
    Guarded_Event([] { Window_Unload(Sequencer); });
    EXPECT_EQ(listed(), QStringList{"&1 Editor"});
}

TEST_F(Frame, lists_the_panel_of_the_instrument_also_behind_a_change_of_it) {
    Start();
    Guarded_Event([] {
        Synthesizer = "Alpha Juno";
        Sysex_Headers_Update();
    });
    window_->findChild<QAction*>("Menu_Windows")->menu()->actions().back()->trigger();
    EXPECT_TRUE(Editor_Juno.visible);
    EXPECT_FALSE(Editor.visible) << "the other panel bears the same caption";
}

TEST_F(Frame, runs_the_menu_s_shortcuts_from_a_window_over_it_too) {
    Start();
    Guarded_Event([] { Window_Show(Sequencer); });
    QTest::keyClick(Widget("Seq_Start"), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(Sent().back().size(), 90U * 3 - 1);
}

TEST_F(Frame, opens_the_setup_dialog_at_a_first_start_and_locks_the_rest) {
    Expect_Box("MIDI output device not configured - starting MIDI setup.");
    Expect_Box("MIDI input device not configured - starting MIDI setup.");
    Start("");
    QWidget* dialog = Widget("MIDI_Setup");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), "MIDI Setup");
    EXPECT_FALSE(Widget("Editor")->isEnabled());
    EXPECT_FALSE(Entry("Menu_File")->isEnabled());
    EXPECT_EQ(window_->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(dialog->cursor().shape(), Qt::ArrowCursor);
    auto* outputs = window_->findChild<QComboBox*>("Output_Devices");
    EXPECT_EQ(outputs->count(), 2);
    EXPECT_EQ(outputs->currentText(), "Synth Out");

    Answer_With(Setup_Reminder("JX-8P"), Answer::Ok);
    QTest::keyClick(outputs, Qt::Key_Down);
    QTest::mouseClick(Widget("Cmd_OK"), Qt::LeftButton);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(Widget("Editor")->isEnabled());
    EXPECT_TRUE(Entry("Menu_File")->isEnabled());
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(window_->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Frame, closes_the_setup_dialog_on_escape_and_on_its_close_box) {
    Start();
    Entry("Menu_MIDI_Setup")->trigger();
    ASSERT_TRUE(Widget("MIDI_Setup")->isVisible());
    QTest::keyClick(Widget("MIDI_Setup"), Qt::Key_Escape);
    EXPECT_FALSE(Widget("MIDI_Setup")->isVisible());
    EXPECT_FALSE(MIDI_Setup.loaded);
    Entry("Menu_MIDI_Setup")->trigger();
    Widget("MIDI_Setup")->close();
    EXPECT_FALSE(MIDI_Setup.loaded);
}

TEST_F(Frame, centres_the_setup_dialog_and_shows_every_label) {
    Start();
    Entry("Menu_MIDI_Setup")->trigger();
    const QWidget* dialog = Widget("MIDI_Setup");
    EXPECT_NEAR(dialog->geometry().center().x(), window_->geometry().center().x(), 1);
    EXPECT_NEAR(dialog->geometry().center().y(), window_->geometry().center().y(), 1);
    for (const auto& [name, text] : {std::pair{"LabelSynth", "&Synthesizer"},
                                     {"Label4", "&Output Device"},
                                     {"Label2", "&Input Device"},
                                     {"Label_Channel", "MIDI &Channel"}}) {
        EXPECT_EQ(window_->findChild<QLabel*>(name)->text(), text);
    }
    for (const char* name : {"SynthesizerType", "Output_Devices", "Input_Devices", "Channel", "Enable",
                             "AutoSend", "AutoPlay", "Cmd_OK", "Frame1"}) {
        EXPECT_TRUE(
            dialog->rect().contains(QRect(Widget(name)->mapTo(dialog, QPoint(0, 0)), Widget(name)->size())))
            << name;
    }
}

TEST_F(Frame, does_not_let_a_name_of_10000_characters_stretch_the_dialog) {
    Ports.out_names = {std::string(10000, 'x')};
    Expect_Box("MIDI output device (Synth Out) not available - starting MIDI setup.");
    Start();
    EXPECT_LE(Widget("MIDI_Setup")->width(), 541);
}

TEST_F(Frame, changes_the_instrument_at_once_from_the_dialog) {
    Start();
    Entry("Menu_MIDI_Setup")->trigger();
    auto* types = window_->findChild<QComboBox*>("SynthesizerType");
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(Synthesizer, "MKS-70");
    EXPECT_EQ(Sysex_Header_IPR, "F0 41 36 0 24 20 01 ");
    QTest::keyClick(types, Qt::Key_Down);
    EXPECT_EQ(Synthesizer, "Alpha Juno");
    EXPECT_FALSE(Widget("Editor")->isVisible());
    QTest::keyClick(types, Qt::Key_Up);
    EXPECT_TRUE(Widget("Editor")->isVisible());
    EXPECT_TRUE(Widget("MIDI_Setup")->isVisible());
}

TEST_F(Frame, asks_at_the_close_box_and_stays_on_cancel) {
    Start();
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::Cancel);
    EXPECT_FALSE(window_->close());
    EXPECT_TRUE(window_->isVisible());
    Answer_With("Save actual TONE first?", Answer::No);
    EXPECT_TRUE(window_->close());
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(Frame, ends_by_its_shortcut_and_closes_the_port) {
    Start();
    Widget("VCF_Res")->setFocus();
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Home);
    ASSERT_NE(MIDI_Out_Handle, Port_Closed);
    Answer_With("Save actual TONE first?", Answer::No);
    Shortcut(Qt::Key_X);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(MIDI_Out_Handle, Port_Closed);
    EXPECT_EQ(Sent().back(), "B0 7B 00");
}

TEST_F(Frame, survives_a_mistake_in_a_handler_and_tells_it) {
    Menu(Menu_Tone_Random).chosen = [] { throw Fatal_Error("Overflow"); };
    Start();
    Expect_Box("Overflow");
    Shortcut(Qt::Key_R);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(Frame, remembers_where_it_was_moved) {
    Start();
    window_->move(77, 55);
    window_->resize(600, 550);
    QTest::qWait(1);
    EXPECT_EQ(Main_Window.left, 77);
    EXPECT_EQ(Main_Window.top, 55);
    EXPECT_EQ(Main_Window.width, 600);
    EXPECT_EQ(Main_Window.height, 550);
}

TEST_F(Frame, names_the_tone_in_a_dialog) {
    Start();
    QTest::mouseClick(Widget("Tone_Name"), Qt::LeftButton);
    QWidget* dialog = Widget("TName");
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->windowTitle(), "Tone Name");
    EXPECT_FALSE(Widget("Editor")->isEnabled());
    EXPECT_EQ(window_->findChild<QLabel*>("Prompt")->text(), "Please enter a name for the Tone:");
    for (const char* name : {"Prompt", "TName_Tone_Name", "TName_Cmd_OK", "TName_Cmd_Cancel"}) {
        EXPECT_TRUE(
            dialog->rect().contains(QRect(Widget(name)->mapTo(dialog, QPoint(0, 0)), Widget(name)->size())))
            << name;
    }
    QTest::keyClicks(Widget("TName_Tone_Name"), "bass solo12345");
    QTest::keyClick(Widget("TName_Tone_Name"), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(Tone_Name_Text, "BASS SOLO1");
    EXPECT_EQ(Sent().back(),
              "F0 41 36 00 21 20 01 00 42 01 41 02 53 03 53 04 20 05 53 06 4F 07 4C 08 4F 09 31 0F");
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Frame, leaves_the_name_when_its_dialog_is_cancelled) {
    Start();
    for (const char* way : {"button", "escape"}) {
        Entry("Menu_Tone_Name")->trigger();
        ASSERT_TRUE(Widget("TName")->isVisible());
        QTest::keyClicks(Widget("TName_Tone_Name"), "x");
        if (std::string(way) == "button") {
            QTest::mouseClick(Widget("TName_Cmd_Cancel"), Qt::LeftButton);
        } else {
            QTest::keyClick(Widget("TName"), Qt::Key_Escape);
        }
        EXPECT_FALSE(TName.loaded) << way;
        EXPECT_EQ(Tone_Name_Text, "");
    }
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Frame, does_not_end_twice) {
    Start();
    Tone_Saved = Flag_16::False;
    Answer_With("Save actual TONE first?", Answer::No, [] { EXPECT_FALSE(Main_Close()); });
    EXPECT_TRUE(window_->close());
}

TEST_F(Frame, translates_a_name_both_ways) {
    EXPECT_EQ(To_ANSI("B\u00c4SS \u20ac\u0178"), "B\xC4SS \x80\x9F");
    EXPECT_EQ(To_ANSI("\u4e2d"), "?");
    EXPECT_EQ(From_ANSI("B\xC4SS \x80\x9F"), "B\u00c4SS \u20ac\u0178");
    EXPECT_EQ(From_ANSI(std::string("\x01\x81", 2)), "  ");
    for (int code = 32; code < 256; ++code) {
        const std::string byte(1, static_cast<char>(code));
        const bool free = code == 0x81 || code == 0x8D || code == 0x8F || code == 0x90 || code == 0x9D;
        EXPECT_EQ(To_ANSI(From_ANSI(byte)), free ? " " : code == 127 ? "\x7F" : byte) << code;
    }
}
