// The sequencer's window with real pointer and key events, and its look.
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QThread>

#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"
#include "sequencer/engine.h"
#include "seqwin/seqwin.h"
#include "seqwin/seqwin_printing.h"
#include "windows/printed.h"
#include "windows/screen.h"

namespace {

using Lines = std::vector<std::string>;

double Brightness(const QImage& image, QRect place) {
    double sum = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) sum += qGray(image.pixel(x, y));
    }
    return sum / (place.width() * place.height());
}

QRect Cell_Place(int step, int row) {
    return {step * 12, row * 12, 11, 11};
}

}  // namespace

class Sequencer_On_Screen : public Screen {
  protected:
    explicit Sequencer_On_Screen(const char* scale = "1") : Screen(scale) {}

    void Open() {
        Guarded_Event([] { Menu(Menu_MIDI_Seq).chosen(); });
        QTest::qWait(1);
        ASSERT_TRUE(Widget("Sequencer")->isVisible());
        Sent();
    }
    void Press_Cell(int step, int row, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(Widget("Seq_Matrix"), button, {}, Cell_Place(step, row).center());
        QTest::mouseRelease(Widget("Seq_Matrix"), button, {}, Cell_Place(step, row).center());
    }
    void Type(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
};

TEST_F(Sequencer_On_Screen, has_a_named_widget_for_each_control_in_its_place) {
    Start();
    Open();
    EXPECT_EQ(Widget("Sequencer")->size(), QSize(Seq_Window_Width, Seq_Window_Height));
    EXPECT_EQ(Widget("Seq_Matrix")->geometry(), QRect(44, 20, 95, 155));
    EXPECT_EQ(Widget("Seq_Clock")->x(), 44);
    for (const Control* control : Seq_Panel.controls) {
        EXPECT_EQ(Widget(control->name)->geometry(),
                  QRect(control->left, control->top, control->width, control->height))
            << control->name;
    }
    for (const QWidget* widget : Widget("Sequencer")->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->parentWidget()->inherits("QComboBox")) continue;
        if (widget->inherits("QAbstractItemView") || widget->inherits("QScrollBar")) continue;
        EXPECT_NE(widget->objectName(), "") << widget->metaObject()->className();
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        EXPECT_NE(spoken->text(QAccessible::Name), "") << widget->objectName().toStdString();
    }
    EXPECT_EQ(Widget("Seq_Tempo")->accessibleName(), "Tempo");
}

TEST_F(Sequencer_On_Screen, takes_cells_by_pointer_and_shows_them) {
    Start();
    Open();
    const QImage empty = Picture_On(Widget("Seq_Matrix"));
    Press_Cell(0, 0);
    Press_Cell(7, 12, Qt::RightButton);
    Press_Cell(3, 5, Qt::MiddleButton);
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_EQ(Seq_Notes[103], 63);
    EXPECT_EQ(Seq_Notes[3 * 13 + 5], 0);
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    const QImage filled = Picture_On(Widget("Seq_Matrix"));
    EXPECT_GT(Brightness(filled, Cell_Place(0, 0)), Brightness(empty, Cell_Place(0, 0)) + 20);
    EXPECT_GT(Brightness(filled, Cell_Place(7, 12)), Brightness(empty, Cell_Place(7, 12)) + 10);
    EXPECT_EQ(filled.copy(Cell_Place(3, 5)), empty.copy(Cell_Place(3, 5)));
    EXPECT_GT(Brightness(filled, Cell_Place(0, 0)), Brightness(filled, Cell_Place(7, 12)) + 10)
        << "loud and soft differ without colour";
    Press_Cell(0, 0);
    EXPECT_EQ(Picture_On(Widget("Seq_Matrix")).copy(Cell_Place(0, 0)), empty.copy(Cell_Place(0, 0)));
}

TEST_F(Sequencer_On_Screen, takes_both_presses_of_a_fast_pair) {
    Start();
    Open();
    Press_Cell(0, 0);
    QMouseEvent second(QEvent::MouseButtonDblClick, QPointF(5, 5),
                       Widget("Seq_Matrix")->mapToGlobal(QPointF(5, 5)), Qt::LeftButton, Qt::LeftButton,
                       {});
    QApplication::sendEvent(Widget("Seq_Matrix"), &second);
    EXPECT_EQ(Seq_Notes[0], 0);
    EXPECT_EQ(Seq_Saved, Flag_8::False);
    QTest::mousePress(Widget("Seq_Matrix"), Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(Widget("Seq_Matrix"), QPoint(30, 5));
    QTest::mouseRelease(Widget("Seq_Matrix"), Qt::LeftButton, {}, QPoint(30, 5));
    EXPECT_EQ(Seq_Notes[0], 127);
    EXPECT_EQ(Seq_Notes[26], 0) << "nothing is dragged";
}

TEST_F(Sequencer_On_Screen, plays_its_keys_by_pointer) {
    Start();
    Open();
    QWidget* key = Widget("Seq_Keys_12");
    const QImage resting = Picture_On(key);
    QTest::mousePress(key, Qt::LeftButton);
    EXPECT_EQ(Sent(), Lines{"90 3C 7F"});
    EXPECT_NE(Picture_On(key), resting);
    QTest::mouseRelease(key, Qt::LeftButton);
    EXPECT_EQ(Picture_On(key), resting);
    QTest::mouseClick(key, Qt::RightButton);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    EXPECT_TRUE(key->toolTip().contains("Click with the left button to play notes."));
    EXPECT_TRUE(Widget("Keys_Pic")->toolTip().contains("first column in the Sequencer matrix"));
}

TEST_F(Sequencer_On_Screen, selects_directions_by_pointer_and_space) {
    Start();
    Open();
    for (const int mode : {1, 2, 7, 8, 9, 0}) {
        const std::string name = "Seq_Directions_" + std::to_string(mode);
        const QImage dark = Picture_On(Widget(name.c_str()));
        QTest::mouseClick(Widget(name.c_str()), Qt::LeftButton);
        EXPECT_TRUE(Seq_Mode_Is(static_cast<Seq_Mode>(mode)));
        EXPECT_EQ(Seq_Dir, mode == 1 ? 1 : 0);
        EXPECT_NE(Picture_On(Widget(name.c_str())), dark);
        QTest::mouseClick(Widget(name.c_str()), Qt::LeftButton);
        EXPECT_TRUE(Seq_Mode_Is(static_cast<Seq_Mode>(mode))) << "once more leaves it on";
    }
    Widget("Seq_Directions_1")->setFocus();
    Type(Qt::Key_Space);
    EXPECT_TRUE(Seq_Mode_Is(Seq_Mode::Backward));
}

TEST_F(Sequencer_On_Screen, moves_the_tempo_by_key_and_shows_it) {
    Start();
    Open();
    auto* tempo = static_cast<QScrollBar*>(Widget("Seq_Tempo"));
    EXPECT_EQ(tempo->minimum(), 1);
    EXPECT_EQ(tempo->maximum(), 120);
    EXPECT_EQ(tempo->value(), 30);
    tempo->setFocus();
    Type(Qt::Key_PageUp);
    EXPECT_EQ(Seq_Tempo_Value, 60);
    EXPECT_EQ(static_cast<QLabel*>(Widget("Seq_Tempo_Label"))->text(), "60");
    Type(Qt::Key_Right);
    EXPECT_EQ(Seq_Tempo_Value, 61);
    Type(Qt::Key_Up);
    EXPECT_EQ(Seq_Tempo_Value, 62);
    Type(Qt::Key_Left);
    EXPECT_EQ(Seq_Tempo_Value, 61);
    Type(Qt::Key_End);
    EXPECT_EQ(Seq_Tempo_Value, 120);
    EXPECT_EQ(Seq_Tmr.interval, 62);
    Type(Qt::Key_Home);
    EXPECT_EQ(Seq_Tempo_Value, 1);
    EXPECT_EQ(static_cast<QLabel*>(Widget("Seq_Tempo_Label"))->text(), "1");
}

TEST_F(Sequencer_On_Screen, chooses_range_and_transpose_in_their_lists) {
    Start();
    Open();
    Widget("Seq_Range")->setFocus();
    Type(Qt::Key_Down);
    EXPECT_EQ(Seq_Base_Note, 60);
    EXPECT_EQ(Sent(), Lines{"B0 7B 00"});
    Widget("Seq_Trans")->setFocus();
    Type(Qt::Key_Down);
    EXPECT_EQ(Seq_Base_Note, 61);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(static_cast<QComboBox*>(Widget("Seq_Trans"))->currentText(), "C#");
}

TEST_F(Sequencer_On_Screen, letters_choose_the_transpose_wherever_the_focus_is) {
    Start();
    Open();
    for (const char* name : {"Seq_Start", "Seq_Stop", "Seq_New", "Seq_Range", "Seq_Trans", "Seq_Tempo",
                             "Seq_Directions_0", "Seq_Directions_9"}) {
        Seq_Trans_Change(0);
        Widget(name)->setFocus();
        Type(Qt::Key_D);
        EXPECT_EQ(Sequencer_Form.trans.selected, 2) << name;
        Type(Qt::Key_C, Qt::AltModifier);
        EXPECT_EQ(Sequencer_Form.trans.selected, 12) << name;
        Type(Qt::Key_G, Qt::ShiftModifier);
        EXPECT_EQ(Sequencer_Form.trans.selected, 8) << name;
        EXPECT_EQ(static_cast<QComboBox*>(Widget("Seq_Trans"))->currentText(), "G#");
        EXPECT_EQ(Sequencer_Form.range.selected, 2) << "the lists look for no entry";
    }
}

TEST_F(Sequencer_On_Screen, letters_choose_the_transpose_over_an_open_list_too) {
    Start();
    Open();
    auto* range = static_cast<QComboBox*>(Widget("Seq_Range"));
    range->showPopup();
    QTest::qWait(1);
    QTest::keyClick(range->view(), Qt::Key_A);
    EXPECT_EQ(Sequencer_Form.trans.selected, 9);
    EXPECT_EQ(range->view()->currentIndex().row(), 2);
    QTest::keyClick(range->view(), Qt::Key_Escape);
    EXPECT_TRUE(Widget("Sequencer")->isVisible());
    EXPECT_EQ(Sequencer_Form.range.selected, 2);
}

TEST_F(Sequencer_On_Screen, runs_by_pointer_and_marks_the_column_that_plays) {
    Start();
    Open();
    EXPECT_EQ(Focused(), "Seq_Start");
    Seq_Tempo_Change(120);
    const QImage dark_lights = Picture_On(Widget("Seq_Clock"));
    const QImage dark_matrix = Picture_On(Widget("Seq_Matrix"));
    QTest::mouseClick(Widget("Seq_Start"), Qt::LeftButton);
    EXPECT_TRUE(Seq_Tmr.enabled);
    EXPECT_TRUE(QTest::qWaitFor([] { return Seq_Clock[2]; }, 2000));
    const QImage lights = Picture_On(Widget("Seq_Clock"));
    const QImage matrix = Picture_On(Widget("Seq_Matrix"));
    for (int step = 0; step < 8; ++step) {
        const QRect light = Cell_Place(step, 0);
        const QRect column(step * 12, 0, 11, 155);
        if (step == 2) {
            EXPECT_GT(Brightness(lights, light), Brightness(dark_lights, light) + 20);
            EXPECT_GT(Brightness(matrix, column), Brightness(dark_matrix, column) + 10);
        } else {
            EXPECT_EQ(lights.copy(light), dark_lights.copy(light)) << step;
            EXPECT_EQ(matrix.copy(column), dark_matrix.copy(column)) << step;
        }
    }
    const QImage running = Picture_On(Widget("Seq_Start"));
    QTest::mouseClick(Widget("Seq_Stop"), Qt::LeftButton);
    EXPECT_FALSE(Seq_Tmr.enabled);
    EXPECT_EQ(Picture_On(Widget("Seq_Clock")), dark_lights);
    EXPECT_EQ(Picture_On(Widget("Seq_Matrix")), dark_matrix);
    EXPECT_NE(Picture_On(Widget("Seq_Start")), running);
    EXPECT_EQ(Sent().back(), "B0 7B 00");
}

TEST_F(Sequencer_On_Screen, runs_and_stops_by_the_space_bar) {
    Start();
    Open();
    Type(Qt::Key_Space);
    EXPECT_TRUE(Seq_Tmr.enabled);
    Widget("Seq_Stop")->setFocus();
    Type(Qt::Key_Space);
    EXPECT_FALSE(Seq_Tmr.enabled);
}

TEST_F(Sequencer_On_Screen, empties_by_its_new_key) {
    Start();
    Open();
    Press_Cell(1, 1);
    Answer_With("Save actual SEQUENCE first?", Answer::No);
    QTest::mouseClick(Widget("Seq_New"), Qt::LeftButton);
    EXPECT_EQ(Seq_Notes[14], 0);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
}

TEST_F(Sequencer_On_Screen, panel_is_played_while_it_is_open) {
    Start();
    Open();
    QTest::mousePress(Widget("VCF_Res"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 00 F7"});
}

TEST_F(Sequencer_On_Screen, escape_does_not_close_it_and_the_close_box_does) {
    Start();
    Open();
    Type(Qt::Key_Escape);
    EXPECT_TRUE(Widget("Sequencer")->isVisible());
    Widget("Seq_Range")->setFocus();
    Type(Qt::Key_Escape);
    Type(Qt::Key_Return);
    EXPECT_TRUE(Widget("Sequencer")->isVisible());
    Widget("Sequencer")->close();
    EXPECT_FALSE(Widget("Sequencer")->isVisible());
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    Open();
    EXPECT_EQ(Focused(), "Seq_Start");
}

TEST_F(Sequencer_On_Screen, is_locked_by_a_dialog_and_stays) {
    Start();
    Open();
    Guarded_Event([] { Menu(Menu_MIDI_Setup).chosen(); });
    EXPECT_FALSE(Widget("Sequencer")->isEnabled());
    Widget("Sequencer")->close();
    EXPECT_TRUE(Widget("Sequencer")->isVisible());
    EXPECT_EQ(Seq_Window_Open, Flag_8::True);
    QTest::keyClick(Widget("MIDI_Setup"), Qt::Key_Escape);
    EXPECT_TRUE(Widget("Sequencer")->isEnabled());
}

TEST_F(Sequencer_On_Screen, comes_again_where_it_was_moved_to) {
    Start();
    Menu(Menu_Windows_SavePos).checked = true;
    Open();
    const QPoint origin = Widget("Back_Pic")->mapToGlobal(QPoint());
    EXPECT_EQ(Widget("Sequencer")->pos(), origin);
    Widget("Sequencer")->move(origin + QPoint(40, 60));
    Widget("Sequencer")->close();
    EXPECT_EQ(Seq_Window_Left, 40 * 15);
    EXPECT_EQ(Seq_Window_Top, 60 * 15);
    Open();
    EXPECT_EQ(Widget("Sequencer")->pos(), origin + QPoint(40, 60));
}

TEST_F(Sequencer_On_Screen, names_its_keys_by_the_base_note) {
    Start();
    Open();
    const QImage before = Picture_On(Widget("Seq_Key_Names"));
    Guarded_Event([] { Seq_Range_Change(3); });
    EXPECT_NE(Picture_On(Widget("Seq_Key_Names")), before);
}

// -- printing --------------------------------------------------------------------------------------------

TEST_F(Sequencer_On_Screen, printing_does_not_overlap_and_lies_clear_of_every_control) {
    Start();
    Open();
    const std::vector<Placed> placed = Placed_Texts(Seq_Printing());
    for (std::size_t a = 0; a < placed.size(); ++a) {
        EXPECT_TRUE(QRectF(0, 0, Seq_Window_Width, Seq_Window_Height).contains(placed[a].ink));
        EXPECT_GE(placed[a].ink.height(), 4.5) << placed[a].text;
        for (std::size_t b = a + 1; b < placed.size(); ++b)
            EXPECT_FALSE(placed[a].ink.intersects(placed[b].ink))
                << placed[a].text << " " << placed[b].text;
        for (const QWidget* widget :
             Widget("Sequencer")->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            EXPECT_FALSE(placed[a].ink.intersects(QRectF(widget->geometry())))
                << placed[a].text << " under " << widget->objectName().toStdString();
        }
    }
}

TEST_F(Sequencer_On_Screen, controls_do_not_overlap) {
    Start();
    Open();
    const auto widgets = Widget("Sequencer")->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* a : widgets) {
        for (const QWidget* b : widgets) {
            if (a == b || a->objectName() == "Seq_Key_Names" || b->objectName() == "Seq_Key_Names")
                continue;
            EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                << a->objectName().toStdString() << " over " << b->objectName().toStdString();
        }
        EXPECT_TRUE(Widget("Sequencer")->rect().contains(a->geometry())) << a->objectName().toStdString();
    }
}

TEST_F(Sequencer_On_Screen, directions_have_symbol_and_name_side_by_side) {
    Start();
    for (const Seq_Direction& direction : Seq_Directions) {
        const Printing printing = Seq_Direction_Printing(direction.mode);
        ASSERT_EQ(printing.texts.size(), 1U);
        const Placed name = Placed_Texts(printing).front();
        EXPECT_EQ(name.text, Seq_Direction_Name(direction.mode));
        const QRectF place(0, 0, Seq_Direction_Width, Seq_Direction_Height);
        EXPECT_TRUE(place.contains(name.ink)) << name.text;
        ASSERT_FALSE(printing.lines.empty());
        for (const Print_Line& line : printing.lines) {
            for (const Print_Point& point : line.points) {
                EXPECT_TRUE(place.contains(QPointF(point.x, point.y)));
                EXPECT_LT(point.x + 2, name.ink.left()) << name.text;
                EXPECT_GT(point.x, 3 + 14) << "right of the lamp";
            }
        }
    }
}

class Sequencer_At_1_5 : public Sequencer_On_Screen {
  protected:
    Sequencer_At_1_5() : Sequencer_On_Screen("1.5") {}
};
class Sequencer_At_2 : public Sequencer_On_Screen {
  protected:
    Sequencer_At_2() : Sequencer_On_Screen("2") {}
};

TEST_F(Sequencer_At_1_5, keeps_its_logical_size_and_cells) {
    Start();
    Open();
    EXPECT_EQ(Widget("Sequencer")->grab().size(),
              QSize(Seq_Window_Width * 3 / 2, Seq_Window_Height * 3 / 2));
    for (int step = 0; step < 8; ++step) Press_Cell(step, step);
    for (std::size_t step = 0; step < 8; ++step) EXPECT_EQ(Seq_Notes[step * 14], 127) << step;
}

TEST_F(Sequencer_At_2, keeps_its_logical_size_and_gets_more_pixels) {
    Start();
    Open();
    EXPECT_EQ(Widget("Sequencer")->grab().size(), QSize(Seq_Window_Width * 2, Seq_Window_Height * 2));
    Press_Cell(4, 3);
    EXPECT_EQ(Seq_Notes[4 * 13 + 3], 127);
    // A drawing twice as fine and not the small one blown up: neighbouring pixels differ.
    const QImage picture = Widget("Sequencer")->grab().toImage();
    int finer = 0;
    for (int y = 0; y + 1 < picture.height(); y += 2) {
        for (int x = 0; x + 1 < picture.width(); x += 2)
            finer += picture.pixel(x, y) != picture.pixel(x + 1, y + 1) ? 1 : 0;
    }
    EXPECT_GT(finer, 1000);
}

// -- the clock -------------------------------------------------------------------------------------------

TEST_F(Sequencer_On_Screen, keeps_the_phase_of_its_steps_while_the_program_is_busy) {
    Start();
    Open();
    Seq_Tempo_Change(120);
    constexpr int Interval = 62;
    QTest::mouseClick(Widget("Seq_Start"), Qt::LeftButton);
    QElapsedTimer clock;
    clock.start();
    qint64 seen = 0;
    int lost = 0;
    while (clock.elapsed() < 30 * Interval + Interval / 2) {
        // Busy for half an interval, then free for a while.
        QThread::msleep(Interval / 2);
        QTest::qWait(5);
        // A machine that stands still for a whole step loses that step: none is made up for.
        lost += static_cast<int>((clock.elapsed() - seen) / Interval);
        seen = clock.elapsed();
    }
    const int due = static_cast<int>(clock.elapsed() / Interval);
    const int steps = static_cast<int>(Sent().size() / 13);
    EXPECT_LE(steps, due + 1);
    EXPECT_GE(steps, due - 1 - 2 * lost);
}
