// Every window as a screen reader hears it and as the keyboard reaches it.
#include <QAbstractItemView>
#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <functional>
#include <map>
#include <set>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/folder_commands.h"
#include "filedlg/state.h"
#include "help/help.h"
#include "help/howto.h"
#include "oscwin/oscwin.h"
#include "panels/control_widget.h"
#include "panels/editor.h"
#include "panels/juno_panel.h"
#include "panels/mks_patch.h"
#include "panels/patch.h"
#include "panels/reader_qt.h"
#include "platform/gate.h"
#include "platform/timer.h"
#include "sequencer/sequence.h"
#include "seqwin/seqwin.h"
#include "synth/juno.h"
#include "synth/profile.h"
#include "synth/tone.h"
#include "tname/tname.h"
#include "windows/screen.h"

namespace {

using Names = std::set<std::string>;

// What one hears of a control.
struct Heard_Control {
    QWidget* widget;
    std::string object;
    std::string name;
    QAccessible::Role role;
    bool focusable;
    QAccessibleInterface* interface;
};

std::string Text(const QString& text) {
    return text.toStdString();
}

// What can be worked, in the order in which a screen reader walks. A list's rows and a scroll area's bars
// are the toolkit's.
void Walk(QAccessibleInterface* at, std::vector<Heard_Control>& heard) {
    if (at == nullptr || at->state().invisible) return;
    auto* widget = qobject_cast<QWidget*>(at->object());
    bool parts_are_the_toolkits = false;
    if (widget != nullptr) {
        auto* actions = at->actionInterface();
        const bool works =
            at->state().focusable ||
            (actions != nullptr &&
             (actions->actionNames().contains(QAccessibleActionInterface::pressAction()) ||
              actions->actionNames().contains(QAccessibleActionInterface::increaseAction())));
        if (works) {
            heard.push_back({widget, Text(widget->objectName()), Text(at->text(QAccessible::Name)),
                             at->role(), at->state().focusable != 0, at});
        }
        parts_are_the_toolkits = widget->inherits("QComboBox") || widget->inherits("QAbstractScrollArea");
    }
    for (int child = 0; !parts_are_the_toolkits && child < at->childCount(); ++child) {
        Walk(at->child(child), heard);
    }
}

QAccessibleInterface* Speech(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}

void Press_Control(QWidget* widget) {
    Speech(widget)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

// The events that a screen reader gets.
std::vector<std::pair<QAccessible::Event, std::string>> Told;
bool Was_Told(QAccessible::Event event, const char* object) {
    return std::find(Told.begin(), Told.end(), std::pair(event, std::string(object))) != Told.end();
}

}  // namespace

// A reader that always listens.
bool Reader_Listens() {
    return true;
}
void Reader_Tell(QAccessibleEvent& event) {
    Told.emplace_back(event.type(), Text(event.object()->objectName()));
}

class Spoken_On_Screen : public Screen {
  protected:
    using Check = std::function<void(const std::string& window, QWidget* root, const Panel* panel)>;

    void Do(const std::function<void()>& work) {
        Guarded_Event(work);
        QTest::qWait(1);
    }
    QWidget* In(const Window& window, const char* name) const {
        return Widget(window.name)->findChild<QWidget*>(name);
    }
    void To_Juno() {
        Do([] {
            Synthesizer = "Alpha Juno";
            Sysex_Headers_Update();
        });
    }

    // Opens each window in turn, checks it and closes it.
    void Each_Window(const Check& check) {
        const auto over = [&](Window& window, const std::function<void()>& open, const Panel* panel) {
            Do(open);
            check(window.name, Widget(window.name), panel);
            Do([&] { Window_Unload(window); });
        };
        Do([] {});
        check("Editor", Widget("Editor"), &Editor_Panel);
        over(
            Patch, [] { Menu(Menu_Tone_Patch).chosen(); }, &Patch_Panel);
        over(
            Patch_MKS70, [] { Window_Show(Patch_MKS70); }, &Patch_MKS70_Panel);
        Do([] { Window_Unload(Patch); });
        over(
            Sequencer, [] { Menu(Menu_MIDI_Seq).chosen(); }, &Seq_Panel);
        over(
            Oscillator, [] { Menu(Menu_MIDI_Osc).chosen(); }, &Osc_Panel);
        for (const char* mode : {"Open_SYX", "Open_SEQ", "Open_OSC", "SaveAs_SYX"}) {
            over(
                File_Dlg, [mode] { FD_Show(mode); }, &File_Panel);
        }
        over(
            MIDI_Setup, [] { Menu(Menu_MIDI_Setup).chosen(); }, nullptr);
        over(
            TName, [] { Menu(Menu_Tone_Name).chosen(); }, nullptr);
        over(Help, Menu_Help_Howto_Chosen, &Howto_Panel);
        over(Help, Menu_Help_Search_Chosen, nullptr);
        over(Help, Menu_Help_About_Chosen, nullptr);
        bool asked = false;
        QTimer::singleShot(50, window_.get(), [&] {
            asked = true;
            check("Input_Dlg", Widget("Input_Dlg"), nullptr);
            QTest::keyClick(Widget("Input_Dlg"), Qt::Key_Escape);
        });
        Do([] { FD_Show("Open_SYX"); });
        Do([] {
            FD_Selected = "/";
            FD_New_Folder();
        });
        EXPECT_TRUE(asked);
        Do(FD_Button_Cancel_Click);
        To_Juno();
        check("Editor_Juno", Widget("Editor_Juno"), &Juno_Panel);
    }
};

TEST_F(Spoken_On_Screen, names_every_control_of_every_window_once_and_by_what_it_is) {
    Start();
    Each_Window([](const std::string& window, QWidget* root, const Panel*) {
        SCOPED_TRACE(window);
        std::vector<Heard_Control> heard;
        Walk(Speech(root), heard);
        EXPECT_GE(heard.size(), 3U);
        std::map<std::string, const Heard_Control*> by_name;
        for (const Heard_Control& control : heard) {
            if (control.widget == root) continue;
            SCOPED_TRACE(control.object + " \"" + control.name + "\"");
            EXPECT_NE(control.object, "");
            EXPECT_NE(control.name, "");
            const std::set<QAccessible::Role> roles = {
                QAccessible::Slider,      QAccessible::PushButton,   QAccessible::CheckBox,
                QAccessible::RadioButton, QAccessible::ComboBox,     QAccessible::List,
                QAccessible::ScrollBar,   QAccessible::EditableText, QAccessible::Table};
            EXPECT_TRUE(roles.contains(control.role)) << control.role;
            // A knob and the dot that lies on it are one thing.
            const auto [twin, first] = by_name.emplace(control.name, &control);
            EXPECT_TRUE(first || control.widget->parentWidget() == twin->second->widget)
                << "as " << twin->second->object;
            if (control.role == QAccessible::Slider || control.role == QAccessible::ScrollBar) {
                const QAccessibleValueInterface* value = control.interface->valueInterface();
                ASSERT_NE(value, nullptr);
                EXPECT_LT(value->minimumValue().toDouble(), value->maximumValue().toDouble());
                EXPECT_LE(value->minimumValue().toDouble(), value->currentValue().toDouble());
                EXPECT_GE(value->maximumValue().toDouble(), value->currentValue().toDouble());
            }
            const bool lamp =
                control.role == QAccessible::RadioButton || control.role == QAccessible::CheckBox;
            EXPECT_EQ(lamp, static_cast<bool>(control.interface->state().checkable) &&
                                control.role != QAccessible::PushButton);
        }
    });
}

TEST_F(Spoken_On_Screen, lets_a_screen_reader_walk_to_every_control_of_the_tables) {
    Start();
    Each_Window([](const std::string& window, QWidget* root, const Panel* panel) {
        SCOPED_TRACE(window);
        std::vector<Heard_Control> heard;
        Walk(Speech(root), heard);
        Names walked;
        for (const Heard_Control& control : heard) walked.insert(control.object);
        if (panel != nullptr) {
            for (const Control* control : panel->controls) {
                auto* widget = root->findChild<QWidget*>(control->name);
                ASSERT_NE(widget, nullptr) << control->name;
                if (!control->focusable || !widget->isVisible() || !control->enabled) continue;
                EXPECT_TRUE(walked.contains(control->name)) << control->name;
            }
        }
        // And to whatever else takes the keyboard.
        for (QWidget* widget : root->findChildren<QWidget*>()) {
            const bool inner = widget->objectName().startsWith("qt_") ||
                               qobject_cast<QAbstractItemView*>(widget->parentWidget()) != nullptr ||
                               widget->parentWidget()->inherits("QComboBox") ||
                               widget->window() != root->window();
            if (inner || widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
            if (!widget->isEnabled()) continue;
            EXPECT_TRUE(walked.contains(Text(widget->objectName())))
                << Text(widget->objectName()) << " " << widget->metaObject()->className();
        }
    });
}

TEST_F(Spoken_On_Screen, titles_its_windows_and_names_its_menus) {
    Start();
    Each_Window([](const std::string& window, QWidget* root, const Panel*) {
        if (!root->isWindow()) return;
        EXPECT_NE(root->windowTitle(), "") << window;
        EXPECT_EQ(Speech(root)->role(), QAccessible::Dialog) << window;
    });
    for (QAction* top : window_->menuBar()->actions()) {
        if (!top->isVisible()) continue;
        QAccessibleInterface* menu = Speech(top->menu());
        EXPECT_EQ(menu->role(), QAccessible::PopupMenu);
        EXPECT_NE(menu->text(QAccessible::Name), "") << Text(top->text());
        for (int entry = 0; entry < menu->childCount(); ++entry) {
            if (menu->child(entry)->role() == QAccessible::Separator) continue;
            EXPECT_NE(menu->child(entry)->text(QAccessible::Name), "") << Text(top->text()) << " " << entry;
        }
    }
}

// -- setting ---------------------------------------------------------------------------------------------

TEST_F(Spoken_On_Screen, takes_every_value_of_every_slider_switch_and_knob) {
    Start();
    int worked = 0;
    Each_Window([&worked](const std::string& window, QWidget* root, const Panel* panel) {
        if (panel == nullptr) return;
        for (const Control* control : panel->controls) {
            QAccessibleInterface* speech = Speech(root->findChild<QWidget*>(control->name));
            QAccessibleValueInterface* value = speech->valueInterface();
            if (value == nullptr) continue;
            SCOPED_TRACE(window + " " + control->name);
            const double lowest = value->minimumValue().toDouble();
            const double highest = value->maximumValue().toDouble();
            const double third = std::floor(lowest + (highest - lowest) / 3);
            for (const double wanted : {highest, lowest, third, lowest + 1, highest - 1, third}) {
                value->setCurrentValue(wanted);
                EXPECT_EQ(value->currentValue().toDouble(), wanted);
            }
            value->setCurrentValue(highest + 1000);
            EXPECT_EQ(value->currentValue().toDouble(), highest);
            value->setCurrentValue("loud");
            EXPECT_EQ(value->currentValue().toDouble(), highest);
            ++worked;
        }
    });
    // 44 and 3 dots, 36, 5 and a dot, a knob and its dot, 5 of the practice page.
    EXPECT_EQ(worked, 47 + 36 + 6 + 2 + 5);
}

TEST_F(Spoken_On_Screen, enters_a_sliders_value_by_the_rules_of_a_drag) {
    Start();
    Tone_Data[35] = 0;
    Sent();
    Speech(In(Editor, "VCF_Res"))->valueInterface()->setCurrentValue(50);
    EXPECT_EQ(Sent(),
              (std::vector<std::string>{"F0 41 36 00 21 20 01 23 40 F7", "F0 41 36 00 21 20 01 23 41 F7"}))
        << "65 shows as 50";
    EXPECT_EQ(Tone_Saved, Flag_16::False);
    EXPECT_EQ(Editor_Tone_Name.text, "50");
    EXPECT_EQ(Editor.active_control, &Editor_Control("VCF_Res"));
    EXPECT_EQ(Editor_Control("VCF_Res").top, 112 - 65 * 80 / 127);
}

TEST_F(Spoken_On_Screen, enters_a_switchs_position_by_the_rules_of_its_keys) {
    Start();
    Tone_Data[11] = 10;
    Sent();
    QAccessibleInterface* range = Speech(In(Editor, "DCO1_Range"));
    range->valueInterface()->setCurrentValue(2);
    EXPECT_EQ(Sent(),
              (std::vector<std::string>{"F0 41 36 00 21 20 01 0B 2A F7", "F0 41 36 00 21 20 01 0B 4A F7"}));
    EXPECT_EQ(Tone_Data[11], 74);
    EXPECT_EQ(range->text(QAccessible::Name), "DCO-1 Range, 4'");
}

TEST_F(Spoken_On_Screen, reaches_the_notes_below_0_of_a_tune_knob_by_a_page) {
    Start();
    Tone_Data[13] = 63;
    Speech(In(Editor, "DCO1_Tune"))->valueInterface()->setCurrentValue(-3);
    EXPECT_EQ(Speech(In(Editor, "DCO1_Tune"))->text(QAccessible::Value), "-3");
}

TEST_F(Spoken_On_Screen, enters_the_first_level_of_the_junos_envelope_where_a_drag_would) {
    Start();
    To_Juno();
    Juno_Data[26] = 5;
    Juno_Data[27] = 5;
    Speech(In(Editor_Juno, "ENV_L1"))->valueInterface()->setCurrentValue(90);
    EXPECT_EQ(Juno_Data[27], 90);
    EXPECT_EQ(Juno_Data[26], 5) << "which its keys would move";
}

TEST_F(Spoken_On_Screen, leaves_a_locked_panel_alone) {
    Start();
    Tone_Data[35] = 0;
    Do(Menu_Help_About_Chosen);
    Sent();
    QAccessibleInterface* resonance = Speech(In(Editor, "VCF_Res"));
    resonance->valueInterface()->setCurrentValue(50);
    resonance->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(Tone_Data[35], 0);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Spoken_On_Screen, presses_buttons_and_lamps_and_steps_sliders) {
    Start();
    Tone_Data[35] = 10;
    auto* actions = Speech(In(Editor, "VCF_Res"))->actionInterface();
    actions->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_EQ(Tone_Data[35], 11);
    actions->doAction(QAccessibleActionInterface::decreaseAction());
    EXPECT_EQ(Tone_Data[35], 10);

    Do([] { Menu(Menu_Tone_Patch).chosen(); });
    EXPECT_FALSE(Speech(In(Patch, "Key_Mode_2"))->state().checked);
    Press_Control(In(Patch, "Key_Mode_2"));
    EXPECT_TRUE(Speech(In(Patch, "Key_Mode_2"))->state().checked);
    EXPECT_FALSE(Speech(In(Patch, "Key_Mode_0"))->state().checked);

    Do([] { Menu(Menu_MIDI_Osc).chosen(); });
    Press_Control(In(Oscillator, "Osc_Wave_4"));
    EXPECT_TRUE(Speech(In(Oscillator, "Osc_Wave_4"))->state().checked);
    Press_Control(In(Oscillator, "Osc_Invert"));
    EXPECT_TRUE(Speech(In(Oscillator, "Osc_Invert"))->state().checked);

    Do([] { Menu(Menu_MIDI_Seq).chosen(); });
    Sent();
    Press_Control(In(Sequencer, "Seq_Keys_3"));
    EXPECT_EQ(Sent().size(), 1U) << "a key without the pointer";
}

TEST_F(Spoken_On_Screen, says_in_a_name_what_no_number_tells) {
    Start();
    Tone_Data[35] = 127;
    Tone_Data[11] = 0;
    Editor_Tone_Name.text = "BASS 1";
    EXPECT_EQ(Speech(In(Editor, "VCF_Res"))->text(QAccessible::Name), "VCF Resonance");
    EXPECT_EQ(Speech(In(Editor, "VCF_Res"))->text(QAccessible::Value), "99");
    EXPECT_EQ(Speech(In(Editor, "VCF_Res"))->valueInterface()->currentValue().toInt(), 99);
    EXPECT_EQ(Speech(In(Editor, "DCO1_Range"))->text(QAccessible::Name), "DCO-1 Range, 16'");
    EXPECT_EQ(Speech(In(Editor, "Tone_Name"))->text(QAccessible::Name), "Tone Name, BASS 1");
}

// -- telling ---------------------------------------------------------------------------------------------

TEST_F(Spoken_On_Screen, tells_of_every_change_and_of_nothing_else) {
    Start();
    Do([] { Menu(Menu_Tone_Patch).chosen(); });
    Do([] { Menu(Menu_MIDI_Osc).chosen(); });
    Do([] { Menu(Menu_MIDI_Seq).chosen(); });
    Do([] {});
    Told.clear();
    QTest::keyClick(In(Editor, "VCF_Res"), Qt::Key_Home);
    EXPECT_TRUE(Was_Told(QAccessible::ValueChanged, "VCF_Res"));
    EXPECT_FALSE(Was_Told(QAccessible::NameChanged, "VCF_Res")) << "a number is said once";
    EXPECT_TRUE(Was_Told(QAccessible::NameChanged, "Tone_Name"));
    EXPECT_FALSE(Was_Told(QAccessible::ValueChanged, "VCF_CutoffF"));
    QTest::keyClick(In(Editor, "DCO1_Range"), Qt::Key_Home);
    EXPECT_TRUE(Was_Told(QAccessible::NameChanged, "DCO1_Range"));
    QTest::mouseClick(In(Patch, "Key_Mode_3"), Qt::LeftButton);
    EXPECT_TRUE(Was_Told(QAccessible::StateChanged, "Key_Mode_3"));
    EXPECT_TRUE(Was_Told(QAccessible::StateChanged, "Key_Mode_0"));
    QTest::mouseClick(In(Oscillator, "Osc_Wave_2"), Qt::LeftButton);
    EXPECT_TRUE(Was_Told(QAccessible::StateChanged, "Osc_Wave_2"));
    QTest::mouseClick(In(Sequencer, "Seq_Matrix"), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_TRUE(Was_Told(QAccessible::NameChanged, "Seq_Matrix"));
    Told.clear();
    Do([] {});
    EXPECT_TRUE(Told.empty());
}

// -- the keyboard ----------------------------------------------------------------------------------------

TEST_F(Spoken_On_Screen, takes_TAB_to_every_control_and_round_again) {
    Start();
    Each_Window([](const std::string& window, QWidget* root, const Panel*) {
        SCOPED_TRACE(window);
        ASSERT_TRUE(QTest::qWaitFor([&] { return root->window()->focusWidget() != nullptr; }, 2000));
        QWidget* const first = root->window()->focusWidget();
        std::set<const QWidget*> reached;
        QWidget* at = first;
        for (int step = 0; step < 200 && reached.insert(at).second; ++step) {
            QTest::keyClick(at, Qt::Key_Tab);
            at = root->window()->focusWidget();
        }
        EXPECT_EQ(at, first) << "TAB is caught in " << Text(at->objectName());
        for (QWidget* widget : root->findChildren<QWidget*>()) {
            // A group of lamps is one stop, and stepped through by its keys.
            const bool in_group = widget->objectName().startsWith("Key_Mode_") ||
                                  widget->objectName().startsWith("After_Touch_") ||
                                  widget->objectName().startsWith("LED_SW_");
            if (in_group || widget->window() != root->window() || !widget->isVisible()) continue;
            if (!widget->isEnabled() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
            if (widget->focusProxy() != nullptr) continue;
            EXPECT_TRUE(reached.contains(widget)) << Text(widget->objectName());
        }
    });
}

TEST_F(Spoken_On_Screen, shows_where_the_keyboard_is) {
    Start();
    Each_Window([](const std::string& window, QWidget* root, const Panel*) {
        SCOPED_TRACE(window);
        // Late news of another window may take the keyboard away again.
        const auto focus = [root](QWidget* widget, Qt::FocusReason reason) {
            root->window()->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(root->window()));
            widget->setFocus(reason);
        };
        std::vector<Heard_Control> heard;
        Walk(Speech(root), heard);
        for (const Heard_Control& control : heard) {
            if (!control.focusable || control.widget == root || !control.widget->isEnabled()) continue;
            // Behind a change of the focus the mark is bright at once or at the next blink.
            const auto look = [&] {
                // A dot's mark is on its knob.
                QWidget* marked =
                    control.widget->width() <= 4 ? control.widget->parentWidget() : control.widget;
                const QRect place(marked->mapTo(root, QPoint(-2, -2)), marked->size() + QSize(4, 4));
                return root->grab(place).toImage();
            };
            QWidget* other = nullptr;
            for (const Heard_Control& elsewhere : heard) {
                const bool kin = elsewhere.widget->isAncestorOf(control.widget) ||
                                 control.widget->isAncestorOf(elsewhere.widget);
                if (elsewhere.focusable && elsewhere.widget != control.widget && elsewhere.widget != root &&
                    !kin)
                    other = elsewhere.widget;
            }
            ASSERT_NE(other, nullptr);
            Timer_Stop(Timer1);  // blinks below, and not by the clock
            focus(other, Qt::OtherFocusReason);
            const QImage without = look();
            focus(control.widget, Qt::MouseFocusReason);
            // Of a group of lamps the lit one blinks, whichever got the keyboard.
            const auto* drawn = dynamic_cast<const Control_Widget*>(control.widget);
            const bool led = drawn != nullptr && std::string_view(drawn->Record().kind) == "led";
            if (led && !control.interface->state().checked) continue;
            const QImage with = look();
            Guarded_Event(Panel_Blink_Tick);
            const QImage blinked = look();
            Guarded_Event(Panel_Blink_Tick);
            const QImage blinked_again = look();
            const auto seen = [&](const QImage& picture) {
                int pixels = 0;
                for (int y = 0; y < picture.height(); ++y) {
                    for (int x = 0; x < picture.width(); ++x) {
                        const QColor a = picture.pixelColor(x, y);
                        const QColor b = without.pixelColor(x, y);
                        pixels += std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                            std::abs(a.blue() - b.blue())}) > 50;
                    }
                }
                return pixels;
            };
            EXPECT_GE(std::max({seen(with), seen(blinked), seen(blinked_again)}), 20) << control.object;
        }
    });
}

TEST_F(Spoken_On_Screen, sets_the_cells_of_the_matrix_by_keys) {
    Start();
    Do([] { Menu(Menu_MIDI_Seq).chosen(); });
    QWidget* matrix = In(Sequencer, "Seq_Matrix");
    matrix->setFocus();
    EXPECT_EQ(Speech(matrix)->text(QAccessible::Name), "Matrix, step 1, C3, empty");
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down}) QTest::keyClick(matrix, key);
    QTest::keyClick(matrix, Qt::Key_Space);
    EXPECT_EQ(Seq_Notes[2 * 13 + 1], 127);
    EXPECT_EQ(Speech(matrix)->text(QAccessible::Name), "Matrix, step 3, B2, loud");
    QTest::keyClick(matrix, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(Seq_Notes[2 * 13 + 1], 63);
    EXPECT_EQ(Speech(matrix)->text(QAccessible::Name), "Matrix, step 3, B2, soft");
    QTest::keyClick(matrix, Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_EQ(Seq_Notes[2 * 13 + 1], 0);
    for (int times = 0; times < 20; ++times) QTest::keyClick(matrix, Qt::Key_Left);
    for (int times = 0; times < 20; ++times) QTest::keyClick(matrix, Qt::Key_Down);
    Press_Control(matrix);
    EXPECT_EQ(Seq_Notes[12], 127) << "the mark stays on the matrix";
    QTest::keyClick(matrix, Qt::Key_D);
    EXPECT_EQ(Sequencer_Form.trans.selected, 2) << "letters choose the transpose here too";
}

TEST_F(Spoken_On_Screen, draws_the_curve_by_keys) {
    Start();
    Do([] { Menu(Menu_MIDI_Osc).chosen(); });
    QWidget* curve = In(Oscillator, "Picture1");
    curve->setFocus();
    QAccessibleInterface* speech = Speech(curve);
    for (std::size_t point = 0; point < Osc_Count; ++point) {
        EXPECT_EQ(Text(speech->text(QAccessible::Name)),
                  "Curve, point " + std::to_string(point + 1) + " of 18");
        QTest::keyClick(curve, Qt::Key_End);
        EXPECT_EQ(Osc_Out[point], 127) << point;
        QTest::keyClick(curve, Qt::Key_PageUp);
        QTest::keyClick(curve, Qt::Key_Up);
        EXPECT_EQ(Osc_Out[point], 127 - 17) << point;
        EXPECT_EQ(speech->text(QAccessible::Value), "17");
        QTest::keyClick(curve, Qt::Key_Right);
    }
    EXPECT_EQ(Osc_Wave[8].picture.item, 2) << "drawn by hand";
    speech->valueInterface()->setCurrentValue(100);
    EXPECT_EQ(Osc_Out[17], 27);
    Osc_VScrollA_Change(0);
    speech->valueInterface()->setCurrentValue(5);
    EXPECT_NE(speech->text(QAccessible::Value), "5") << "nothing is drawn at no amplitude";
}

TEST_F(Spoken_On_Screen, greys_what_is_printed_beside_a_list_with_the_list) {
    Start("[MIDI]\nOutput=Synth Out\nInput=Keys In\nAutoplay=0\n");
    Do([] { FD_Show("Open_SYX"); });
    for (const char* label : {"FD_SYX_Label_Note", "FD_SYX_Label_Velocity"}) {
        EXPECT_FALSE(Widget(label)->isEnabled()) << label;
    }
    Press_Control(Widget("FD_SYX_CB_Autoplay"));
    for (const char* label : {"FD_SYX_Label_Note", "FD_SYX_Label_Velocity"}) {
        EXPECT_TRUE(Widget(label)->isEnabled()) << label;
    }
    Do(FD_Button_Cancel_Click);
    Do([] { Menu(Menu_MIDI_Setup).chosen(); });
    EXPECT_TRUE(Widget("Label4")->isEnabled());
    QTest::keyClick(Widget("Enable"), Qt::Key_Space);
    EXPECT_FALSE(Widget("Label4")->isEnabled());
    EXPECT_FALSE(Widget("Label2")->isEnabled());
    EXPECT_TRUE(Widget("Label_Channel")->isEnabled());
}
