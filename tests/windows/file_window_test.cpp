// The file window on the screen, worked by pointer and keys.
#include <QAccessible>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTimer>
#include <filesystem>

#include "desk/windows.h"
#include "fakes/fake_volumes.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/folder_model.h"
#include "filedlg/input_dlg.h"
#include "filedlg/name_text_qt.h"
#include "filedlg/state.h"
#include "midi/out.h"
#include "platform/gate.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/tone_files.h"
#include "windows/screen.h"

using Lines = std::vector<std::string>;

class File_Window_On_Screen : public Screen {
  protected:
    File_Window_On_Screen() {
        std::filesystem::create_directories(Disk("Leads"));
        for (const char* name : {"a.syx", "Bass.syx", "b\xE4ss.syx", "Leads/solo.syx"}) {
            Write(Disk(name), Bytes(Tone_1));
        }
        Write(Disk("one.seq"), "SEQ1" + std::string(106, '\x7F'));
    }
    static std::string Disk(const std::string& name) { return Path("disk/" + name); }

    void Open(const char* mode = "Open_SYX", const char* options = "Autoplay=0\nAutosend=0\n") {
        Start(std::string("[MIDI]\nOutput=Synth Out\nInput=Keys In\n") + options +
              "[Recent Files]\nTones=" + Disk("") + "\nSequences=" + Disk("") +
              "\nOscillators=" + Disk("") + "\n");
        Guarded_Event([mode] { FD_Show(mode); });
        QTest::qWait(1);
        Sent();
    }
    QListView* List(const char* name) const { return window_->findChild<QListView*>(name); }
    QLineEdit* Field() const { return window_->findChild<QLineEdit*>("FD_FileName"); }
    static QPoint Place_Of(const QListView* list, int row) {
        return list->visualRect(list->model()->index(row, 0)).center();
    }
    void Press_Row(const char* name, int row, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mousePress(List(name)->viewport(), button, {}, Place_Of(List(name), row));
    }
    void Double_Click_Row(const char* name, int row) const {
        QTest::mouseDClick(List(name)->viewport(), Qt::LeftButton, {}, Place_Of(List(name), row));
    }
    static QStringList Rows(const QListView* list) {
        QStringList rows;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            rows << list->model()->index(row, 0).data().toString();
        }
        return rows;
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
};

TEST_F(File_Window_On_Screen, opens_by_its_shortcut_over_a_locked_panel) {
    Start();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_O, Qt::ControlModifier);
    QTest::qWait(1);
    EXPECT_TRUE(Widget("File_Dlg")->isVisible());
    EXPECT_EQ(Widget("File_Dlg")->windowTitle(), "Open Tone File");
    EXPECT_FALSE(Widget("Editor")->isEnabled());
    EXPECT_EQ(Focused(), "FD_FileName");
}

TEST_F(File_Window_On_Screen, shows_every_part_whole_and_none_over_another) {
    Open();
    QWidget* window = Widget("File_Dlg");
    const char* const names[] = {
        "FD_FileName",       "FD_List_Files",   "FD_List_Filter",   "FD_List_Dirs",      "FD_List_Drives",
        "FD_Label_FileName", "FD_Label_Dir",    "FD_Label_Drives",  "FD_Label_FileType", "FD_Button_Ok",
        "FD_Button_Cancel",  "FD_Button_Updir", "FD_Button_Newdir", "FD_Button_Delete",  "FD_SYX"};
    std::vector<QRect> places;
    for (const char* name : names) {
        const QRect place = Widget(name)->geometry();
        EXPECT_TRUE(window->rect().contains(place)) << name;
        for (const QRect& other : places) EXPECT_FALSE(place.intersects(other)) << name;
        places.push_back(place);
    }
    for (const char* name :
         {"FD_SYX_CB_Autoplay", "FD_SYX_CB_Autosend", "FD_SYX_OB_Soundcheck_0", "FD_SYX_OB_Soundcheck_1",
          "FD_SYX_SoundCheck_Note_List", "FD_SYX_SoundCheck_Velocity_List", "FD_SYX_Button_Start",
          "FD_SYX_Button_Stop"}) {
        EXPECT_TRUE(Widget("FD_SYX")->rect().contains(Widget(name)->geometry())) << name;
    }
    for (const auto& [name, text] : {std::pair{"FD_Label_FileName", "File &Name:"},
                                     {"FD_Label_Dir", "&Directory:"},
                                     {"FD_Label_Drives", "Dri&ves:"},
                                     {"FD_Label_FileType", "List Files of &Type:"}}) {
        EXPECT_EQ(window_->findChild<QLabel*>(name)->text(), text);
    }
}

TEST_F(File_Window_On_Screen, cuts_no_caption) {
    Open();
    for (const QLabel* label : Widget("File_Dlg")->findChildren<QLabel*>()) {
        EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    }
}

TEST_F(File_Window_On_Screen, gives_every_part_that_takes_the_keyboard_a_spoken_name) {
    Open();
    int count = 0;
    for (const QWidget* widget : Widget("File_Dlg")->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr) continue;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        if (widget->objectName().startsWith("qt_") || !widget->objectName().startsWith("FD_")) continue;
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << widget->objectName().toStdString();
        ++count;
    }
    EXPECT_GE(count, 19);
    EXPECT_EQ(Heard(Widget("FD_SYX_CB_Autoplay")), "Autoplay, off");
}

TEST_F(File_Window_On_Screen, shows_one_panel_by_its_mode) {
    const std::pair<const char*, const char*> modes[] = {
        {"Open_SYX", "FD_SYX"}, {"SaveAs_SEQ", "FD_SEQ"}, {"Open_OSC", "FD_OSC"}, {"Open_ALL", ""}};
    Open();
    for (const auto& [mode, shown] : modes) {
        Guarded_Event([mode = mode] { FD_Show(mode); });
        for (const char* panel : {"FD_SYX", "FD_SEQ", "FD_OSC"}) {
            EXPECT_EQ(Widget(panel)->isVisible(), std::string(panel) == shown) << mode;
        }
    }
}

// No menu leads to this panel yet.
TEST_F(File_Window_On_Screen, has_a_panel_for_oscillators) {
    Write(Disk("wave.osc"), "?");
    Open("Open_OSC");
    EXPECT_EQ(Widget("File_Dlg")->windowTitle(), "Open Oscillator File");
    const QImage curve = Picture_On(Widget("FD_OSC_Preview"));
    Press_Row("FD_List_Files", 0);
    EXPECT_EQ(Picture_On(Widget("FD_OSC_Preview")), curve) << "nothing changes it";
}

// -- lists -----------------------------------------------------------------------------------------------

TEST_F(File_Window_On_Screen, lists_files_and_folders_by_their_names) {
    Open();
    EXPECT_EQ(Rows(List("FD_List_Files")), (QStringList{"a.syx", "Bass.syx", "b\u00E4ss.syx"}));
    EXPECT_EQ(Rows(List("FD_List_Dirs")).first(), "/");
    EXPECT_EQ(Rows(List("FD_List_Dirs")).last(), "Leads");
    EXPECT_EQ(List("FD_List_Dirs")->currentIndex().data().toString(), "disk");
}

TEST_F(File_Window_On_Screen, reads_the_pressed_file_with_any_mouse_button) {
    Open();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        Tone_Data.fill(0);
        Press_Row("FD_List_Files", 1, button);
        EXPECT_EQ(Tone_Data[0], 'B');
        EXPECT_EQ(Field()->text(), "Bass.syx");
        EXPECT_EQ(FD_Selected, "Bass.syx");
        QTest::mouseRelease(List("FD_List_Files")->viewport(), button);
        Press_Row("FD_List_Files", 0, button);
        QTest::mouseRelease(List("FD_List_Files")->viewport(), button);
    }
    EXPECT_EQ(Tone_File_Name, "");
}

TEST_F(File_Window_On_Screen, opens_by_a_double_click) {
    Open();
    Press_Row("FD_List_Files", 1);
    Double_Click_Row("FD_List_Files", 1);
    EXPECT_FALSE(Widget("File_Dlg")->isVisible());
    EXPECT_EQ(Tone_File_Name, Disk("Bass.syx"));
    EXPECT_TRUE(Widget("Editor")->isEnabled());
}

TEST_F(File_Window_On_Screen, opens_a_name_that_is_no_text) {
    Open();
    Press_Row("FD_List_Files", 2);
    EXPECT_EQ(Field()->text(), "b\u00E4ss.syx");
    QTest::mouseClick(Widget("FD_Button_Ok"), Qt::LeftButton);
    EXPECT_EQ(Tone_File_Name, Disk("b\xE4ss.syx"));
}

TEST_F(File_Window_On_Screen, moves_by_keys_without_reading) {
    Open();
    Tone_Data.fill(1);
    Key(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(Focused(), "FD_List_Files");
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(FD_List_Files.index, 1);
    EXPECT_EQ(Field()->text(), "");
    Key(Qt::Key_Return);
    EXPECT_EQ(Tone_Data[0], 1);
    EXPECT_EQ(Tone_File_Name, "");
    Key(Qt::Key_Space);
    EXPECT_EQ(Field()->text(), "Bass.syx");
    EXPECT_EQ(Tone_Data[0], 1);
}

TEST_F(File_Window_On_Screen, goes_into_a_folder_by_the_blank_key_and_by_a_double_click) {
    Open();
    Key(Qt::Key_D, Qt::AltModifier);
    EXPECT_EQ(Focused(), "FD_List_Dirs");
    Key(Qt::Key_Down);
    Key(Qt::Key_Space);
    EXPECT_EQ(Rows(List("FD_List_Files")), QStringList{"solo.syx"});
    const int above = List("FD_List_Dirs")->currentIndex().row() - 1;
    Press_Row("FD_List_Dirs", above);
    EXPECT_EQ(FD_Selected + "/", Disk(""));
    Double_Click_Row("FD_List_Dirs", above);
    EXPECT_EQ(Rows(List("FD_List_Files")).size(), 3);
}

TEST_F(File_Window_On_Screen, holds_50000_files_and_fills_its_list_once) {
    for (int number = 0; number < 50000; ++number) Write(Disk(std::to_string(number) + ".syx"), "");
    Open();
    QListView* files = List("FD_List_Files");
    EXPECT_EQ(files->model()->rowCount(), 50003);
    const QSignalSpy fills(files->model(), &QAbstractItemModel::modelReset);
    Key(Qt::Key_F, Qt::AltModifier);
    Key(Qt::Key_Down);
    Key(Qt::Key_End);
    EXPECT_EQ(FD_List_Files_Entry(), "b\xE4ss.syx");
    for (int step = 0; step < 20; ++step) Key(Qt::Key_PageUp);
    Press_Row("FD_List_Files", files->currentIndex().row());
    EXPECT_EQ(fills.count(), 0);
}

TEST_F(File_Window_On_Screen, shows_a_name_in_one_line_whatever_it_is) {
    EXPECT_EQ(Name_Text("plain.syx"), "plain.syx");
    EXPECT_EQ(Name_Text("B\xC3\xA4ss"), "B\u00E4ss");
    EXPECT_EQ(Name_Text("B\xE4ss"), "B\u00E4ss");
    EXPECT_EQ(Name_Text("a\nb\tc\x7F"), "a b c ");
    EXPECT_EQ(Name_Text("\xFF\xFE\x01"), "\u00FF\u00FE ");
    EXPECT_EQ(Name_Text(""), "");
}

// -- keys ------------------------------------------------------------------------------------------------

TEST_F(File_Window_On_Screen, sees_its_keys_before_any_control) {
    Open();
    const std::pair<Qt::Key, const char*> keys[] = {{Qt::Key_F, "FD_List_Files"},
                                                    {Qt::Key_V, "FD_List_Drives"},
                                                    {Qt::Key_D, "FD_List_Dirs"},
                                                    {Qt::Key_T, "FD_List_Filter"},
                                                    {Qt::Key_N, "FD_FileName"}};
    for (const auto& [key, name] : keys) {
        Key(key, Qt::AltModifier);
        EXPECT_EQ(Focused(), name);
    }
    Key(Qt::Key_D, Qt::AltModifier);
    Key(Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(MIDI_Autoplay, 1);
    EXPECT_EQ(Focused(), "FD_FileName");
    Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(MIDI_Autosend, 1);
}

TEST_F(File_Window_On_Screen, is_left_by_escape_from_any_control) {
    for (const char* name : {"FD_FileName", "FD_List_Files", "FD_List_Dirs", "FD_List_Filter",
                             "FD_SYX_CB_Autoplay", "FD_Button_Delete"}) {
        if (std::string(name) == "FD_FileName") {
            Open();
        } else {
            Guarded_Event([] { FD_Show("Open_SYX"); });
            QTest::qWait(1);
        }
        Widget(name)->setFocus();
        Key(Qt::Key_Escape);
        EXPECT_FALSE(Widget("File_Dlg")->isVisible()) << name;
    }
    Guarded_Event([] { FD_Show("Open_SYX"); });
    Widget("File_Dlg")->close();
    EXPECT_FALSE(File_Dlg.loaded) << "the close box";
}

TEST_F(File_Window_On_Screen, carries_out_what_is_typed_at_enter) {
    Open("SaveAs_SYX");
    QTest::keyClicks(Field(), "New Tone");
    Key(Qt::Key_Return);
    EXPECT_FALSE(Widget("File_Dlg")->isVisible());
    EXPECT_TRUE(std::filesystem::exists(Disk("new tone.syx")));
}

TEST_F(File_Window_On_Screen, selects_the_name_for_a_correction) {
    Open();
    QTest::keyClicks(Field(), "gone");
    Key(Qt::Key_Return);
    EXPECT_EQ(Field()->text(), "gone.syx");
    EXPECT_EQ(Field()->selectedText(), "gone.syx");
    QTest::keyClicks(Field(), "Bass");
    EXPECT_EQ(FD_FileName.text, "Bass");
}

TEST_F(File_Window_On_Screen, works_its_buttons_by_the_blank_key) {
    Open();
    Field()->setText("");
    Press_Row("FD_List_Dirs", 1);
    Widget("FD_Button_Updir")->setFocus();
    Key(Qt::Key_Space);
    EXPECT_EQ(FD_List_Dirs.path, "/");
}

// -- options ---------------------------------------------------------------------------------------------

TEST_F(File_Window_On_Screen, switches_a_lamp_by_a_click_on_it_or_on_its_caption) {
    Open();
    QTest::mouseClick(Widget("FD_SYX_CB_Autosend"), Qt::LeftButton, {}, QPoint(7, 7));
    EXPECT_EQ(MIDI_Autosend, 1);
    QTest::mouseClick(Widget("FD_SYX_CB_Autosend"), Qt::LeftButton, {}, QPoint(60, 8));
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_FALSE(Widget("FD_SYX_OB_Soundcheck_1")->isEnabled());
    const QImage off = Picture_On(Widget("FD_SYX_CB_Autoplay"));
    const QRect lamp(3, 3, 8, 8);  // inside the frame that shows the focus
    QTest::mouseClick(Widget("FD_SYX_CB_Autoplay"), Qt::LeftButton, {}, QPoint(7, 7));
    const QImage on = Picture_On(Widget("FD_SYX_CB_Autoplay"));
    EXPECT_NE(on.copy(lamp), off.copy(lamp)) << "the lamp stands beside its caption";
    EXPECT_EQ(on.copy(24, 2, 70, 10), off.copy(24, 2, 70, 10));
    EXPECT_TRUE(Widget("FD_SYX_SoundCheck_Note_List")->isEnabled());
}

TEST_F(File_Window_On_Screen, filters_by_its_list) {
    Open();
    auto* filter = window_->findChild<QComboBox*>("FD_List_Filter");
    EXPECT_EQ(filter->count(), 2);
    QTest::keyClick(filter, Qt::Key_Down);
    EXPECT_EQ(FD_Mode, "Open_ALL");
    EXPECT_EQ(Rows(List("FD_List_Files")).size(), 3) << "as before";
}

TEST_F(File_Window_On_Screen, reads_the_drives_anew_when_their_list_opens) {
    Open();
    auto* drives = window_->findChild<QComboBox*>("FD_List_Drives");
    EXPECT_EQ(drives->count(), 1);
    Volumes = {"/", Disk("Leads")};
    drives->showPopup();
    EXPECT_EQ(drives->count(), 2);
    drives->hidePopup();
    QTest::keyClick(drives, Qt::Key_Down);
    EXPECT_EQ(Rows(List("FD_List_Files")), QStringList{"solo.syx"});
}

TEST_F(File_Window_On_Screen, draws_the_pressed_sequence) {
    Open("Open_SEQ");
    const QImage before = Picture_On(Widget("FD_SEQ_Preview"));
    Press_Row("FD_List_Files", 0);
    EXPECT_NE(Picture_On(Widget("FD_SEQ_Preview")), before);
    EXPECT_EQ(FD_SEQ_Preview[103].picture, 2);
}

// -- the wait --------------------------------------------------------------------------------------------

TEST_F(File_Window_On_Screen, waits_two_seconds_with_events_running_and_plays) {
    Open("Open_SYX", "Autoplay=1\nAutosend=1\nSoundcheck Note=48\nSoundcheck Velocity=100\n");
    QElapsedTimer clock;
    clock.start();
    bool answered = false;
    QTimer::singleShot(1000, window_.get(), [&] {
        answered = true;
        QTest::keyClicks(Field(), "x");
    });
    Press_Row("FD_List_Files", 1);
    EXPECT_GE(clock.elapsed(), 1990);
    EXPECT_LT(clock.elapsed(), 4000);
    EXPECT_TRUE(answered);
    EXPECT_EQ(Sent().back(), "90 30 64");
}

TEST_F(File_Window_On_Screen, stops_waiting_at_cancel) {
    Open("Open_SYX", "Autoplay=1\nAutosend=1\n");
    QTimer::singleShot(100, window_.get(), [&] { Key(Qt::Key_Escape); });
    QElapsedTimer clock;
    clock.start();
    Press_Row("FD_List_Files", 1);
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_FALSE(File_Dlg.loaded);
    EXPECT_EQ(Sent().back(), "B0 7B 00");
}

TEST_F(File_Window_On_Screen, opens_by_a_double_click_whose_first_press_still_waits) {
    Open("Open_SYX", "Autoplay=1\nAutosend=1\n");
    QTimer::singleShot(100, window_.get(), [&] { Double_Click_Row("FD_List_Files", 1); });
    QElapsedTimer clock;
    clock.start();
    Press_Row("FD_List_Files", 1);
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_EQ(Tone_File_Name, Disk("Bass.syx"));
    EXPECT_FALSE(Widget("File_Dlg")->isVisible());
    EXPECT_EQ(Sent().back(), "B0 7B 00") << "and no note behind it";
}

// -- the question for a text -----------------------------------------------------------------------------

TEST_F(File_Window_On_Screen, asks_for_a_folders_name_above_everything) {
    Open();
    Press_Row("FD_List_Dirs", List("FD_List_Dirs")->currentIndex().row());
    QTimer::singleShot(50, window_.get(), [&] {
        QWidget* dialog = Widget("Input_Dlg");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_TRUE(dialog->isModal());
        EXPECT_EQ(dialog->windowTitle(), "Create new folder");
        EXPECT_EQ(Focused(), "Input_Textbox");
        EXPECT_TRUE(window_->findChild<QLabel*>("Input_Msg")
                        ->text()
                        .startsWith("Please enter a name for the new folder in:\n/"));
        EXPECT_EQ(window_->findChild<QLineEdit*>("Input_Textbox")->selectedText(), "folder");
        for (const char* name : {"Input_Msg", "Input_Textbox", "Input_OK", "Input_Cancel"}) {
            EXPECT_TRUE(dialog->rect().contains(
                QRect(Widget(name)->mapTo(dialog, QPoint(0, 0)), Widget(name)->size())))
                << name;
        }
        QTest::keyClicks(Widget("Input_Textbox"), "Pads");
        QTest::mouseClick(Widget("Input_OK"), Qt::LeftButton);
    });
    QTest::mousePress(Widget("FD_Button_Newdir"), Qt::LeftButton);
    EXPECT_FALSE(Widget("Input_Dlg")->isVisible());
    EXPECT_TRUE(std::filesystem::is_directory(Disk("pads")));
    EXPECT_EQ(Rows(List("FD_List_Dirs")).last(), "pads");
    QTest::qWait(1);
    EXPECT_TRUE(Widget("File_Dlg")->isActiveWindow());
}

TEST_F(File_Window_On_Screen, takes_escape_in_the_question_for_its_cancel_alone) {
    Open();
    Press_Row("FD_List_Dirs", List("FD_List_Dirs")->currentIndex().row());
    QTimer::singleShot(50, window_.get(),
                       [&] { QTest::keyClick(Widget("Input_Textbox"), Qt::Key_Escape); });
    QTest::mousePress(Widget("FD_Button_Newdir"), Qt::LeftButton);
    EXPECT_FALSE(Input_Dlg.loaded);
    EXPECT_TRUE(File_Dlg.loaded);
}
