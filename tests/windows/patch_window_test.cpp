// The two patch windows on the screen, with real events.
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>

#include "desk/menus.h"
#include "panels/editor.h"
#include "panels/mks_patch.h"
#include "panels/patch.h"
#include "shell/frame.h"
#include "synth/patch.h"
#include "synth/patch_mks70.h"
#include "synth/tone.h"
#include "synth/views.h"
#include "windows/screen.h"

namespace {

using Lines = std::vector<std::string>;

std::string Message(const std::string& number_and_value) {
    return "F0 41 36 00 21 30 01 " + number_and_value + " F7";
}

}  // namespace

// The program with the Patch window open, as by its shortcut.
class Patch_On_Screen : public Screen {
  protected:
    explicit Patch_On_Screen(const char* scale = "1") : Screen(scale) {}

    void Open(const std::string& settings = "[MIDI]\nOutput=Synth Out\nInput=Keys In\n") {
        Start(settings);
        QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
        ASSERT_TRUE(Patch.loaded);
        Wait_For_Active("Patch");
    }
    void Wait_For_Active(const char* name) {
        const QWidget* window = name == std::string("Tonebench") ? window_.get() : Widget(name);
        ASSERT_TRUE(QTest::qWaitFor([window] { return QApplication::activeWindow() == window; }, 2000));
    }
    // A widget of the Patch window.
    QWidget* In(const char* name) const { return Inside("Patch", name); }
    QWidget* Inside(const char* window, const char* name) const {
        auto* widget = Widget(window)->findChild<QWidget*>(name);
        if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return widget;
    }
    static void Press_Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), held);
    }
    QString Focus_In_Window() const {
        const QWidget* widget = Widget("Patch")->focusWidget();
        return widget == nullptr ? QString("(none)") : widget->objectName();
    }
};

TEST_F(Patch_On_Screen, stands_over_the_panel_with_a_widget_for_each_control_in_its_place) {
    Open();
    const QWidget* window = Widget("Patch");
    EXPECT_TRUE(window->isWindow());
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowTitle(), "Patch Parameter");
    EXPECT_EQ(window->size(), QSize(296, 196));
    EXPECT_EQ(window->pos(), Widget("Back_Pic")->mapToGlobal(QPoint(0, 0)));
    for (const Control* control : Patch_Panel.controls) {
        const QWidget* widget = In(control->name);
        EXPECT_EQ(widget->geometry(), QRect(control->left, control->top, control->width, control->height))
            << control->name;
        EXPECT_TRUE(widget->isVisible()) << control->name;
    }
    EXPECT_EQ(In("UDTune_Knopf")->parentWidget(), In("UDTune"));
    EXPECT_TRUE(Sent().empty());
    Widget("Patch")->grab().save(BUILD_DIR "/patch.png");
}

TEST_F(Patch_On_Screen, is_worked_side_by_side_with_the_panel) {
    Open();
    QTest::mousePress(In("Portamento_Time"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(In("Portamento_Time"), QPoint(8, -20));
    QTest::mouseRelease(In("Portamento_Time"), Qt::LeftButton);
    QTest::mousePress(Widget("VCF_Res"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(Widget("VCF_Res"), QPoint(8, -30));
    QTest::mouseRelease(Widget("VCF_Res"), Qt::LeftButton);
    EXPECT_EQ(Sent(), (Lines{Message("01 00"), Message("01 14"), "F0 41 36 00 21 20 01 23 00 F7",
                             "F0 41 36 00 21 20 01 23 1E F7"}));
    EXPECT_EQ(In("Portamento_Time")->y(), 108 - 20 * 80 / 127);
    EXPECT_TRUE(Widget("Patch")->isVisible());
    EXPECT_TRUE(Widget("Editor")->isEnabled());
}

TEST_F(Patch_On_Screen, picks_every_lamp_by_a_click) {
    Open();
    const char* const key_codes[] = {"00", "01", "02", "04", "05", "06"};
    const char* const touch_codes[] = {"00", "01", "02", "04"};
    const QImage off = Picture_On(In("Key_Mode_5"));
    for (int item = 0; item < 6; ++item) {
        QTest::mouseClick(In(("Key_Mode_" + std::to_string(item)).c_str()), Qt::LeftButton);
        EXPECT_EQ(Sent(), Lines{Message(std::string("03 ") + key_codes[item])});
    }
    EXPECT_NE(Picture_On(In("Key_Mode_5")), off) << "it is lit";
    EXPECT_EQ(Picture_On(In("Key_Mode_0")), off);
    for (int item = 0; item < 4; ++item) {
        QTest::mouseClick(In(("After_Touch_" + std::to_string(item)).c_str()), Qt::LeftButton);
        EXPECT_EQ(Sent(), Lines{Message(std::string("04 ") + touch_codes[item])});
    }
}

TEST_F(Patch_On_Screen, picks_no_lamp_when_the_pointer_leaves_it_before_the_release) {
    Open();
    QTest::mousePress(In("Key_Mode_3"), Qt::LeftButton, {}, QPoint(7, 7));
    QTest::mouseRelease(In("Key_Mode_3"), Qt::LeftButton, {}, QPoint(30, 7));
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Patch_Key_Mode_Sel, 0);
}

TEST_F(Patch_On_Screen, is_reached_by_TAB_which_leaves_a_group_of_lamps_at_once) {
    Open();
    Patch_Data[3] = 5;
    Patch_Data[4] = 2;
    Panel_Apply_Patch();
    QStringList reached;
    for (int step = 0; step < 9; ++step) {
        reached << Focus_In_Window();
        Press_Key(Qt::Key_Tab);
    }
    EXPECT_EQ(reached,
              (QStringList{"Portamento_Time", "Portamento_Switch", "Pitch_Bend_LFO", "Pitch_Bend_Range",
                           "Key_Mode_0", "After_Touch_2", "UDTune", "UDTune_Knopf", "Portamento_Time"}));
}

TEST_F(Patch_On_Screen, goes_on_from_a_group_also_by_shift_and_TAB) {
    Open();
    Patch_Data[4] = 4;
    Panel_Apply_Patch();
    In("Key_Mode_2")->setFocus();
    EXPECT_EQ(Panel_Current_Control, &Patch_Key_Mode_Items[0]) << "the mark is the selected lamp's";
    Press_Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus_In_Window(), "After_Touch_3");
    Press_Key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Focus_In_Window(), "UDTune");
    Press_Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Focus_In_Window(), "After_Touch_3");
}

TEST_F(Patch_On_Screen, goes_back_from_a_group_by_the_key_that_the_held_keys_and_a_9_name) {
    Open();
    Patch_Data[3] = 4;
    Panel_Apply_Patch();
    In("After_Touch_0")->setFocus();
    Press_Key(Qt::Key_Pause, Qt::ShiftModifier);  // 19
    EXPECT_EQ(Focus_In_Window(), "Key_Mode_3");
    Press_Key(Qt::Key_1, Qt::AltModifier);  // 49
    EXPECT_EQ(Focus_In_Window(), "Pitch_Bend_Range");
    In("Key_Mode_0")->setFocus();
    Press_Key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);  // 39
    EXPECT_EQ(Focus_In_Window(), "Pitch_Bend_Range");
    In("Key_Mode_0")->setFocus();
    Press_Key(Qt::Key_Pause);
    EXPECT_EQ(Focus_In_Window(), "Key_Mode_0");
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_On_Screen, picks_lamps_by_key) {
    Open();
    In("Key_Mode_0")->setFocus();
    Press_Key(Qt::Key_Down);
    Press_Key(Qt::Key_PageDown);
    Press_Key(Qt::Key_Down);
    Press_Key(Qt::Key_Up);
    In("After_Touch_0")->setFocus();
    Press_Key(Qt::Key_PageUp);
    Press_Key(Qt::Key_Down);
    Press_Key(Qt::Key_PageDown);
    EXPECT_EQ(Sent(), (Lines{Message("03 01"), Message("03 02"), Message("03 04"), Message("03 02"),
                             Message("04 01"), Message("04 00"), Message("04 00")}));
}

TEST_F(Patch_On_Screen, turns_its_knob_and_its_switches) {
    Open();
    In("UDTune")->setFocus();
    Press_Key(Qt::Key_PageUp);
    Press_Key(Qt::Key_Minus);  // not the keypad's, and yet every key of a knob sends
    In("Portamento_Switch")->setFocus();
    Press_Key(Qt::Key_Down);
    EXPECT_EQ(In("Portamento_Switch")->y(), 133);
    QTest::mouseClick(In("Portamento_Switch"), Qt::LeftButton);
    EXPECT_EQ(In("Portamento_Switch")->y(), 143);
    In("Pitch_Bend_Range")->setFocus();
    Press_Key(Qt::Key_Up);
    EXPECT_EQ(In("Pitch_Bend_Range")->y(), 48);
    EXPECT_EQ(Sent(), (Lines{Message("06 4A"), Message("06 4A"), Message("02 40"), Message("02 00"),
                             Message("00 20")}));
}

TEST_F(Patch_On_Screen, closes_by_escape_and_sends_nothing_by_it) {
    Open();
    for (const char* name : {"Portamento_Time", "Pitch_Bend_Range", "Key_Mode_0", "UDTune"}) {
        In(name)->setFocus();
        Press_Key(Qt::Key_Escape);
        EXPECT_FALSE(Patch.loaded) << name;
        EXPECT_FALSE(Widget("Patch")->isVisible()) << name;
        EXPECT_FALSE(Is_True(Patch_Window_Open)) << name;
        Wait_For_Active("Tonebench");
        QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
        EXPECT_TRUE(Widget("Patch")->isVisible()) << name;
        Wait_For_Active("Patch");
        EXPECT_EQ(Focus_In_Window(), "Portamento_Time") << "as behind every load";
    }
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Patch_On_Screen, closes_by_its_close_box_and_opens_again_where_it_was_moved) {
    Open();
    Menu(Menu_Windows_SavePos).checked = true;
    Widget("Patch")->move(Widget("Back_Pic")->mapToGlobal(QPoint(120, 60)));
    EXPECT_EQ(Patch.left, 120);
    EXPECT_EQ(Patch.top, 60);
    Widget("Patch")->close();
    EXPECT_FALSE(Patch.loaded);
    EXPECT_EQ(Patch_Left, 120 * 15);
    EXPECT_EQ(Patch_Top, 60 * 15);
    QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Widget("Patch")->pos(), Widget("Back_Pic")->mapToGlobal(QPoint(120, 60)));
}

TEST_F(Patch_On_Screen, opens_in_the_place_of_the_settings_file) {
    Open(
        "[MIDI]\nOutput=Synth Out\nInput=Keys In\n[Windows]\nSave Positions=1\nPatch Left=200\nPatch "
        "Top=90\n");
    EXPECT_EQ(Widget("Patch")->pos(), Widget("Back_Pic")->mapToGlobal(QPoint(200, 90)));
}

TEST_F(Patch_On_Screen, leaves_the_menus_shortcuts_at_work) {
    Open();
    Press_Key(Qt::Key_T, Qt::ControlModifier);
    ASSERT_EQ(Sent().size(), 1U) << "the whole tone";
    Press_Key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(Sent().size(), 1U) << "a random one";
}

TEST_F(Patch_On_Screen, is_locked_with_the_rest_while_a_dialog_is_open_and_has_its_focus_back_then) {
    Open();
    In("Pitch_Bend_LFO")->setFocus();
    Window_Show(MIDI_Setup);
    window_->Show_Changes();
    EXPECT_FALSE(Widget("Patch")->isEnabled());
    EXPECT_EQ(Patch_Controls[2].picture, Picture_Of(Picture_Store::Buttons, 6)) << "nothing blinks";
    Widget("Patch")->close();
    EXPECT_TRUE(Patch.loaded) << "what is locked does not close";
    Window_Unload(MIDI_Setup);
    window_->Show_Changes();
    EXPECT_TRUE(Widget("Patch")->isEnabled());
    EXPECT_TRUE(Widget("Patch")->isVisible());
    Widget("Patch")->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([] { return Focused() == "Pitch_Bend_LFO"; }, 2000));
    EXPECT_EQ(Panel_Current_Control, &Patch_Controls[2]);
}

TEST_F(Patch_On_Screen, leaves_no_mark_behind_on_the_panel_and_takes_none_along) {
    Open();
    EXPECT_EQ(Panel_Current_Control, &Patch_Controls[0]);
    EXPECT_EQ(Editor_Control("DCO1_Range").picture, Picture_Of(Picture_Store::Buttons, 0));
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(Patch_Controls[0].picture, Picture_Of(Picture_Store::Buttons, 7));
    Press_Key(Qt::Key_Escape);
    Wait_For_Active("Tonebench");
    EXPECT_EQ(Patch_Controls[0].picture, Picture_Of(Picture_Store::Buttons, 6));
    EXPECT_EQ(Panel_Current_Control->window, &Editor);
}

TEST_F(Patch_On_Screen, closes_with_the_program) {
    Open();
    EXPECT_TRUE(Main_Close());
    EXPECT_FALSE(Patch.loaded);
    EXPECT_FALSE(Widget("Patch")->isVisible());
}

TEST_F(Patch_On_Screen, speaks_to_screen_readers) {
    Open();
    In("Portamento_Time")->setFocus();
    Press_Key(Qt::Key_Home);
    const auto name = [this](const char* control) { return Heard(In(control)); };
    EXPECT_EQ(name("Portamento_Time"), "Portamento Time, 99");
    EXPECT_EQ(name("Portamento_Switch"), "Portamento, OFF");
    EXPECT_EQ(name("Pitch_Bend_Range"), "Bend Range, 2");
    EXPECT_EQ(name("UDTune"), "Unison Detune, 0");
    EXPECT_EQ(name("Key_Mode_0"), "Key Mode Poly 1, on");
    EXPECT_EQ(name("Key_Mode_1"), "Key Mode Unison 1, off");
    EXPECT_EQ(name("After_Touch_3"), "After Touch Volume, off");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(In("Key_Mode_1"))->role(), QAccessible::RadioButton);
    for (const Control* control : Patch_Panel.controls) EXPECT_FALSE(name(control->name).isEmpty());
}

TEST_F(Patch_On_Screen, answers_under_the_MKS_70_with_a_message_and_opens_nothing) {
    Start("[MIDI]\nOutput=Synth Out\nInput=Keys In\nSynthesizer=MKS-70\n");
    Expect_Box("Sorry, patch settings not available yet.");
    QTest::keyClick(window_.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(Patch.loaded);
    EXPECT_FALSE(Patch_MKS70.loaded);
}

class Patch_At_1_25 : public Patch_On_Screen {
  protected:
    Patch_At_1_25() : Patch_On_Screen("1.25") {}
};
class Patch_At_2 : public Patch_On_Screen {
  protected:
    Patch_At_2() : Patch_On_Screen("2") {}
};

TEST_F(Patch_At_1_25, keeps_its_logical_size_and_gets_more_pixels) {
    Open();
    EXPECT_EQ(Widget("Patch")->size(), QSize(296, 196));
    EXPECT_EQ(Widget("Patch")->grab().size(), QSize(370, 245));
}

TEST_F(Patch_At_2, keeps_its_logical_size_and_gets_more_pixels) {
    Open();
    EXPECT_EQ(Widget("Patch")->grab().size(), QSize(592, 392));
}

// No menu opens the MKS-70's window; it comes into being when something touches it.
class MKS_Patch_On_Screen : public Patch_On_Screen {
  protected:
    void Open_MKS() {
        Start();
        Window_Show(Patch_MKS70);
        window_->Show_Changes();
        Wait_For_Active("Patch_MKS70");
    }
    template <class Kind = QWidget>
    Kind* In(const char* name) const {
        return dynamic_cast<Kind*>(Inside("Patch_MKS70", name));
    }
    void Choose(const char* list, int index) {
        auto* box = In<QComboBox>(list);
        box->setFocus();
        while (box->currentIndex() < index) QTest::keyClick(box, Qt::Key_Down);
        while (box->currentIndex() > index) QTest::keyClick(box, Qt::Key_Up);
    }
};

TEST_F(MKS_Patch_On_Screen, shows_its_drawn_controls_its_field_and_its_lists) {
    Open_MKS();
    const QWidget* window = Widget("Patch_MKS70");
    EXPECT_EQ(window->windowTitle(), "Patch Parameter");
    EXPECT_EQ(window->size(), QSize(332, 421));
    for (const Control* control : Patch_MKS70_Panel.controls) {
        EXPECT_EQ(In(control->name)->geometry(),
                  QRect(control->left, control->top, control->width, control->height))
            << control->name;
    }
    EXPECT_EQ(In<QLineEdit>("Patch_Name")->text(), "TEST PATCH MKS-70");
    EXPECT_EQ(In<QComboBox>("Tone_Number")->count(), 100);
    EXPECT_EQ(In<QComboBox>("Split_Point")->count(), 88);
    for (const char* name : {"Patch_Name", "Tone_Number", "Split_Point"}) {
        EXPECT_EQ(In(name)->x(), 8) << name;
        EXPECT_EQ(In(name)->font().pixelSize(), 11) << name;
        EXPECT_FALSE(In(name)->accessibleName().isEmpty()) << name;
    }
    EXPECT_TRUE(Patch.loaded) << "the button's click at load moves that window's dot";
    EXPECT_FALSE(Patch.visible);
    // The picture of the documents.
    window_->findChild<QWidget*>("Patch_MKS70")->grab().save(BUILD_DIR "/patch_mks70.png");
}

TEST_F(MKS_Patch_On_Screen, chooses_a_tone_by_button_and_symbol) {
    Open_MKS();
    Choose("Split_Point", 3);
    Choose("Tone_Number", 7);
    EXPECT_EQ(Patch_MKS70_Data[20], 24);
    QTest::mouseClick(In("Tone_B"), Qt::LeftButton, {}, QPoint(10, 10));  // on the symbol
    EXPECT_EQ(Patch_MKS70_Tone, "B");
    EXPECT_EQ(Patch_MKS70_Data[29], 7);
    EXPECT_EQ(In<QComboBox>("Split_Point")->currentIndex(), 0);
    EXPECT_EQ(In("Tone_B_Pic")->pos(), QPoint(4, 4));
    EXPECT_EQ(In("Tone_A_Pic")->pos(), QPoint(3, 3));
    In("Tone_A")->setFocus();
    Press_Key(Qt::Key_Space);
    EXPECT_EQ(Patch_MKS70_Tone, "A");
    EXPECT_EQ(In<QComboBox>("Tone_Number")->currentIndex(), 7);
}

TEST_F(MKS_Patch_On_Screen, has_inert_controls_that_take_neither_focus_nor_clicks) {
    Open_MKS();
    In("UDTune")->setFocus();
    const auto before = Patch_MKS70_Data;
    for (const Control* control : Patch_MKS70_Panel.controls) {
        if (control->focusable || control->symbol != nullptr || control->parent == &MKS_Tone_A ||
            control->parent == &MKS_Tone_B) {
            continue;
        }
        QTest::mouseClick(In(control->name), Qt::LeftButton);
        EXPECT_EQ(In(control->name)->focusPolicy(), Qt::NoFocus) << control->name;
        EXPECT_EQ(In(control->name)->pos(), QPoint(control->left, control->top)) << control->name;
    }
    EXPECT_EQ(Patch_MKS70_Data, before);
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Focused(), "UDTune");
}

TEST_F(MKS_Patch_On_Screen, turns_its_knob_and_blinks_on_the_other_windows) {
    Open_MKS();
    In("UDTune")->setFocus();
    QTest::keyClick(In("UDTune"), Qt::Key_Home);
    EXPECT_EQ(Sent(), Lines{Message("20 7F")});
    EXPECT_EQ(In("UDTune_Knopf")->pos(), QPoint(MKS_Dot_Controls[3].left, MKS_Dot_Controls[3].top));
    Panel_Blink_Phase = 1;
    Panel_Blink();
    EXPECT_EQ(MKS_Dot_Controls[3].picture, Picture_Of(Picture_Store::Buttons, 4));
    EXPECT_EQ(Patch_UDTune_Knopf.picture, Picture_Of(Picture_Store::Buttons, 5));
}

TEST_F(MKS_Patch_On_Screen, closes_by_escape_from_every_control) {
    for (const char* name : {"UDTune", "Tone_A", "Patch_Name", "Tone_Number"}) {
        if (window_->isVisible()) {
            Window_Show(Patch_MKS70);
            window_->Show_Changes();
            Wait_For_Active("Patch_MKS70");
        } else {
            Open_MKS();
        }
        In(name)->setFocus();
        QTest::keyClick(In(name), Qt::Key_Escape);
        EXPECT_FALSE(Patch_MKS70.loaded) << name;
        EXPECT_FALSE(Widget("Patch_MKS70")->isVisible()) << name;
    }
    EXPECT_TRUE(Sent().empty());
}

TEST_F(MKS_Patch_On_Screen, keeps_what_is_typed_into_the_name_while_it_is_open) {
    Open_MKS();
    auto* field = In<QLineEdit>("Patch_Name");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "Brass");
    window_->Show_Changes();
    EXPECT_EQ(field->text(), "Brass");
    EXPECT_EQ(Patch_Name_Text, "TEST PATCH MKS-70");
}
