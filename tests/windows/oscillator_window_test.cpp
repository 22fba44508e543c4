// The window Oscillator with real pointer and key events, the toolkit's own clock, and every letter and
// line in its place.
#include <QAccessible>
#include <QComboBox>
#include <QEventLoop>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLabel>
#include <QSlider>
#include <QTimer>

#include "desk/menus.h"
#include "desk/windows.h"
#include "midi/out.h"
#include "oscillator/engine.h"
#include "oscillator/stairs.h"
#include "oscwin/layout.h"
#include "oscwin/oscwin.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"
#include "platform/random.h"
#include "windows/printed.h"
#include "windows/screen.h"

namespace {

using Lines = std::vector<std::string>;

const QColor Curve_Colour(0xff, 0xb4, 0x3c);

bool Is_Like(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) < 40 && std::abs(a.green() - b.green()) < 40 &&
           std::abs(a.blue() - b.blue()) < 40;
}

}  // namespace

class Oscillator_On_Screen : public Screen {
  protected:
    explicit Oscillator_On_Screen(const char* scale = "1") : Screen(scale) {}

    void Open() {
        Start();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_I, Qt::ControlModifier);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget("Oscillator")));
        QTest::qWait(20);
    }
    void Press(const char* name) { QTest::mouseClick(Widget(name), Qt::LeftButton); }
    QLabel* Label(const char* name) const { return window_->findChild<QLabel*>(name); }

    void Press_In_Picture(int x, int y) {
        QTest::mousePress(Widget("Picture1"), Qt::LeftButton, {}, {x, y});
    }
    void Move_In_Picture(int x, int y, Qt::MouseButtons buttons = Qt::LeftButton) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, y), Widget("Picture1")->mapToGlobal(QPointF(x, y)),
                         Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(Widget("Picture1"), &move);
    }
    void Release_In_Picture() { QTest::mouseRelease(Widget("Picture1"), Qt::LeftButton, {}, {3, 3}); }

    // The row at which the curve shows in a column of the picture, -1 where it does not.
    int Curve_Row(int x) {
        const QImage image = Picture_On(Widget("Picture1"));
        const int ratio = static_cast<int>(image.devicePixelRatio());
        for (int y = 0; y < image.height(); ++y) {
            if (Is_Like(image.pixelColor(x * ratio + ratio / 2, y), Curve_Colour))
                return (y + ratio - 1) / ratio;
        }
        return -1;
    }
};

TEST_F(Oscillator_On_Screen, opens_by_its_shortcut_beside_the_panel) {
    Open();
    const QWidget* window = Widget("Oscillator");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(window->windowTitle(), "Oscillator");
    EXPECT_EQ(window->size(), QSize(394, 192));
    EXPECT_TRUE(Widget("Editor")->isEnabled());
    EXPECT_TRUE(Menu(Menu_File).enabled);
    EXPECT_EQ(Label("Label1")->text(), "500");
    EXPECT_EQ(Label("Label4")->text(), "64");
    EXPECT_EQ(Label("Label3")->text(), "0");
    EXPECT_EQ(Label("Label2")->text(), "");
    const auto* list = window_->findChild<QComboBox*>("Combo1");
    EXPECT_EQ(list->count(), 27);
    EXPECT_EQ(list->currentText(), "DCO1 LFO Mod Depth");
}

TEST_F(Oscillator_On_Screen, has_every_control_inside_by_its_name_and_apart_from_the_others) {
    Open();
    const QWidget* window = Widget("Oscillator");
    std::vector<std::pair<QString, QRect>> places;
    for (const char* name :
         {"Picture1",   "Combo1",     "VScrollA",   "VScrollDelta", "Osc_Time",   "Label1",
          "Label2",     "Label3",     "Label4",     "Osc_Wave_0",   "Osc_Wave_1", "Osc_Wave_2",
          "Osc_Wave_3", "Osc_Wave_4", "Osc_Wave_5", "Osc_Wave_6",   "Osc_Wave_7", "Osc_Wave_8",
          "Osc_Wave_9", "Osc_Invert", "Osc_Start",  "Osc_Stop"}) {
        const QRect place(Widget(name)->mapTo(window, QPoint(0, 0)), Widget(name)->size());
        EXPECT_TRUE(window->rect().contains(place)) << name;
        for (const auto& [other, other_place] : places)
            EXPECT_FALSE(place.intersects(other_place)) << name << " over " << other.toStdString();
        places.emplace_back(name, place);
    }
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->parentWidget() != window) continue;
        const bool spoken = !widget->accessibleName().isEmpty() ||
                            QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget))
                                    ->text(QAccessible::Name)
                                    .size() > 0;
        EXPECT_TRUE(spoken) << widget->objectName().toStdString();
    }
}

TEST_F(Oscillator_On_Screen, prints_every_word_clear_of_others_of_controls_and_of_edges) {
    Open();
    std::vector<Placed> placed;
    for (const auto& [text, ink] : Placed_Texts(Osc_Printing())) {
        EXPECT_TRUE(QRectF(2, 2, 390, 188).contains(ink)) << text;
        for (const Placed& other : placed) EXPECT_FALSE(ink.intersects(other.ink)) << text << other.text;
        placed.push_back({text, ink});
        for (const char* name :
             {"Picture1", "Combo1", "VScrollA", "VScrollDelta", "Osc_Time", "Label1", "Label2", "Label3",
              "Label4", "Osc_Start", "Osc_Stop", "Osc_Wave_0", "Osc_Wave_1"}) {
            EXPECT_FALSE(ink.intersects(QRectF(Widget(name)->geometry()))) << text << " under " << name;
        }
        for (const Print_Line& line : Osc_Printing().lines) {
            if (!line.closed) continue;
            const QRectF frame(QPointF(line.points[0].x, line.points[0].y),
                               QPointF(line.points[2].x, line.points[2].y));
            EXPECT_TRUE(frame.contains(ink) || !frame.intersects(ink)) << text << " on a frame";
        }
    }
    EXPECT_EQ(placed.size(), 10U);
}

TEST_F(Oscillator_On_Screen, shows_every_number_and_target_whole) {
    Open();
    for (const auto& [name, longest] :
         {std::pair{"Label1", "999"}, {"Label2", "127"}, {"Label3", "-64"}, {"Label4", "127"}}) {
        EXPECT_LE(QFontMetricsF(Label(name)->font()).horizontalAdvance(longest), Label(name)->width())
            << name;
    }
    const auto* list = window_->findChild<QComboBox*>("Combo1");
    for (int index = 0; index < list->count(); ++index) {
        EXPECT_LE(QFontMetricsF(list->font()).horizontalAdvance(list->itemText(index)), list->width() - 24)
            << list->itemText(index).toStdString();
    }
    EXPECT_NEAR(QFontInfo(list->font()).pixelSize(), 11, 1) << "8 points at 96 ppi";
}

// -- the curve -------------------------------------------------------------------------------------------

TEST_F(Oscillator_On_Screen, shows_the_curve_at_its_rows) {
    Open();
    for (const int preset : {1, 3, 4}) {
        Osc_Wave_Click(preset);
        Windows_Show_Changes();
        for (int point = 1; point < 18; ++point) {
            EXPECT_NEAR(Curve_Row(7 * point + 3), Osc_Out[static_cast<std::size_t>(point)], 1)
                << preset << ' ' << point;
        }
    }
}

TEST_F(Oscillator_On_Screen, draws_with_the_pointer) {
    Open();
    Press_In_Picture(60, 90);
    Move_In_Picture(60, 20);
    EXPECT_EQ(Osc_Out[8], 20);
    EXPECT_EQ(Curve_Row(60), 20);
    Release_In_Picture();
    EXPECT_EQ(Osc_Wave[8].picture.item, 2);
    QTest::qWait(40);
    EXPECT_EQ(Label("Label2")->text(), "107");
}

TEST_F(Oscillator_On_Screen, draws_every_point_under_a_pointer_that_leaps) {
    Open();
    Press_In_Picture(0, 10);
    Move_In_Picture(126, 10);
    for (int point = 0; point < 18; ++point)
        EXPECT_EQ(Osc_Out[static_cast<std::size_t>(point)], 10) << point;
    Move_In_Picture(-40, 100);
    EXPECT_GT(Osc_Out[0], 60);
    Release_In_Picture();
}

TEST_F(Oscillator_On_Screen, draws_nothing_with_the_right_button_or_none) {
    Open();
    const auto before = Osc_Out;
    Move_In_Picture(60, 5, Qt::NoButton);
    Move_In_Picture(60, 5, Qt::RightButton);
    Move_In_Picture(60, 5, Qt::LeftButton | Qt::RightButton);
    EXPECT_EQ(Osc_Out, before);
}

TEST_F(Oscillator_On_Screen, hears_every_move_while_it_draws) {
    Open();
    QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, true);
    Press_In_Picture(3, 3);
    EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
    Release_In_Picture();
    EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
}

// -- presets ---------------------------------------------------------------------------------------------

TEST_F(Oscillator_On_Screen, takes_a_preset_by_its_lamp_and_by_its_drawing) {
    Open();
    QTest::mouseClick(Widget("Osc_Wave_2"), Qt::LeftButton, {}, {7, 7});
    EXPECT_EQ(Osc_Points[0], 96);
    EXPECT_EQ(Osc_Points[9], 32);
    EXPECT_EQ(Osc_Wave[2].picture.item, 3);
    QTest::mouseClick(Widget("Osc_Wave_7"), Qt::LeftButton, {}, {40, 7});
    EXPECT_EQ(Osc_Points[0], 32);
    EXPECT_EQ(Osc_Wave[2].picture.item, 0);
    EXPECT_EQ(Osc_Wave[7].picture.item, 3);
}

TEST_F(Oscillator_On_Screen, flattens_the_curve_by_a_double_click_on_free_drawing) {
    Open();
    Press("Osc_Invert");
    Press("Osc_Wave_8");
    QTest::mouseDClick(Widget("Osc_Wave_8"), Qt::LeftButton);
    QTest::mouseRelease(Widget("Osc_Wave_8"), Qt::LeftButton);
    for (const int point : Osc_Points) EXPECT_EQ(point, 64) << "and the release turns nothing round";
    Press("Osc_Wave_8");
    EXPECT_EQ(Osc_Points[0], 63) << "the next click is one again";
}

TEST_F(Oscillator_On_Screen, takes_a_double_click_on_another_preset_for_one_click) {
    Open();
    static int drawn = 0;
    Random_Number = [] {
        ++drawn;
        return 0.5;
    };
    QTest::mouseClick(Widget("Osc_Wave_9"), Qt::LeftButton);
    QTest::mouseDClick(Widget("Osc_Wave_9"), Qt::LeftButton);
    QTest::mouseRelease(Widget("Osc_Wave_9"), Qt::LeftButton);
    EXPECT_EQ(drawn, 18);
}

// -- the plain controls ----------------------------------------------------------------------------------

TEST_F(Oscillator_On_Screen, moves_its_scroll_bars_by_keys_and_wheel) {
    Open();
    auto* time = window_->findChild<QSlider*>("Osc_Time");
    QTest::keyClick(time, Qt::Key_PageDown);
    EXPECT_EQ(Timer_Osc.interval, 450);
    EXPECT_EQ(Label("Label1")->text(), "450");
    QTest::keyClick(time, Qt::Key_Up);
    EXPECT_EQ(Timer_Osc.interval, 451);
    QTest::keyClick(time, Qt::Key_End);
    EXPECT_EQ(Label("Label1")->text(), "999");
    QTest::keyClick(time, Qt::Key_Home);
    EXPECT_EQ(Label("Label1")->text(), "0");

    auto* amplitude = window_->findChild<QSlider*>("VScrollA");
    QTest::keyClick(amplitude, Qt::Key_Home);
    EXPECT_EQ(Label("Label4")->text(), "0");
    EXPECT_EQ(Curve_Row(30), 63);
    auto* offset = window_->findChild<QSlider*>("VScrollDelta");
    QTest::keyClick(offset, Qt::Key_Up);
    EXPECT_EQ(Label("Label3")->text(), "1");
    EXPECT_EQ(Curve_Row(30), 62) << "up lifts the curve";
}

TEST_F(Oscillator_On_Screen, drags_a_scroll_bar_and_lights_its_cap) {
    Open();
    auto* amplitude = window_->findChild<QSlider*>("VScrollA");
    const QPoint middle = amplitude->rect().center();
    const QImage before = Picture_On(amplitude);
    QTest::mousePress(amplitude, Qt::LeftButton, {}, middle);
    QTest::mouseMove(amplitude, middle - QPoint(0, 25));
    QTest::mouseRelease(amplitude, Qt::LeftButton, {}, middle - QPoint(0, 25));
    EXPECT_NEAR(Osc_VScrollA.value, 96, 3);
    amplitude->setFocus();
    EXPECT_NE(Picture_On(amplitude), before);
    QTest::mouseMove(amplitude, middle);
}

TEST_F(Oscillator_On_Screen, chooses_its_target_from_the_list) {
    Open();
    auto* list = window_->findChild<QComboBox*>("Combo1");
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_EQ(Osc_Param, 96);
    for (int step = 0; step < 9; ++step) QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(list->currentText(), "VCF Cutoff");
    EXPECT_EQ(Osc_Param, 34);
}

// -- playing ---------------------------------------------------------------------------------------------

TEST_F(Oscillator_On_Screen, plays_on_its_clock_and_shows_where_it_is) {
    Open();
    Osc_Time_Change(20);
    const QImage still = Picture_On(Widget("Picture1"));
    Press("Osc_Start");
    EXPECT_EQ(Osc_Start.picture.store, Picture_Store::Button_Dn3D);
    ASSERT_TRUE(QTest::qWaitFor([] { return Osc_TimeLine >= 35; }));
    EXPECT_GE(Sent().size(), 5U);
    QTest::qWait(20);
    EXPECT_NE(Label("Label2")->text(), "");
    EXPECT_NE(Picture_On(Widget("Picture1")), still);
    Press("Osc_Stop");
    EXPECT_EQ(Osc_Start.picture.store, Picture_Store::Button_Up3D);
    Sent();
    QTest::qWait(60);
    EXPECT_TRUE(Sent().empty());
    EXPECT_EQ(Picture_On(Widget("Picture1")), still);
}

TEST_F(Oscillator_On_Screen, takes_pointer_and_keys_while_it_steps_every_millisecond) {
    Open();
    Osc_Time_Change(1);
    Press("Osc_Start");
    // Without the sleeps of QTest::qWait.
    QEventLoop loop;
    QTimer::singleShot(200, &loop, &QEventLoop::quit);
    // Beside a bare timer of the same speed, as a busy machine slows both.
    std::size_t bare_ticks = 0;
    QTimer bare;
    bare.setTimerType(Qt::PreciseTimer);
    QObject::connect(&bare, &QTimer::timeout, [&bare_ticks] { ++bare_ticks; });
    bare.start(1);
    loop.exec();
    bare.stop();
    EXPECT_GT(bare_ticks, 0U);
    EXPECT_GE(Sent().size(), bare_ticks / 2);
    Press("Osc_Wave_2");
    EXPECT_EQ(Osc_Wave[2].picture.item, 3);
    QTest::keyClick(window_->findChild<QSlider*>("VScrollA"), Qt::Key_Up);
    EXPECT_EQ(Label("Label4")->text(), "65");
    Press("Osc_Stop");
    EXPECT_FALSE(Timer_Osc.enabled);
}

TEST_F(Oscillator_On_Screen, plays_on_under_an_open_dialog_and_can_be_used_there) {
    Open();
    Osc_Time_Change(10);
    Press("Osc_Start");
    Menu(Menu_Tone_Name).chosen();
    Windows_Show_Changes();
    ASSERT_TRUE(Widget("TName")->isVisible());
    EXPECT_FALSE(Widget("Editor")->isEnabled());
    EXPECT_TRUE(Widget("Oscillator")->isEnabled());
    Sent();
    QTest::qWait(100);
    EXPECT_GE(Sent().size(), 3U);
    Press("Osc_Stop");
    EXPECT_FALSE(Timer_Osc.enabled);
}

TEST_F(Oscillator_On_Screen, starts_and_stops_by_keyboard) {
    Open();
    QTest::keyClick(Widget("Osc_Start"), Qt::Key_Space);
    EXPECT_TRUE(Timer_Osc.enabled);
    EXPECT_EQ(Osc_Start.picture.store, Picture_Store::Button_Dn3D);
    QTest::keyClick(Widget("Osc_Stop"), Qt::Key_Space);
    EXPECT_FALSE(Timer_Osc.enabled);
    EXPECT_EQ(Osc_Start.picture.store, Picture_Store::Button_Up3D);
}

TEST_F(Oscillator_On_Screen, keeps_the_menus_shortcuts_alive) {
    Open();
    Widget("Oscillator")->activateWindow();
    Widget("Osc_Start")->setFocus();
    Sent();
    QTest::keyClick(Widget("Osc_Start"), Qt::Key_T, Qt::ControlModifier);
    const Lines sent = Sent();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(sent[0].size(), 90U * 3 - 1) << "the whole tone";
}

TEST_F(Oscillator_On_Screen, closes_by_its_close_box_and_not_by_escape) {
    Open();
    Press("Osc_Start");
    QTest::keyClick(Widget("Oscillator"), Qt::Key_Escape);
    EXPECT_TRUE(Oscillator.loaded);
    Widget("Oscillator")->close();
    EXPECT_FALSE(Oscillator.loaded);
    EXPECT_FALSE(Widget("Oscillator")->isVisible());
    EXPECT_FALSE(Timer_Osc.enabled);
    Menu(Menu_MIDI_Osc).chosen();
    Windows_Show_Changes();
    EXPECT_TRUE(Widget("Oscillator")->isVisible());
    EXPECT_EQ(window_->findChild<QComboBox*>("Combo1")->currentIndex(), 0);
}

class Oscillator_At_2 : public Oscillator_On_Screen {
  protected:
    Oscillator_At_2() : Oscillator_On_Screen("2") {}
};

TEST_F(Oscillator_At_2, keeps_its_size_and_its_rows_and_gets_more_pixels) {
    Open();
    EXPECT_EQ(Widget("Oscillator")->size(), QSize(394, 192));
    EXPECT_EQ(Widget("Oscillator")->grab().size(), QSize(788, 384));
    Press_In_Picture(60, 90);
    Move_In_Picture(60, 20);
    EXPECT_EQ(Osc_Out[8], 20);
    EXPECT_NEAR(Curve_Row(60), 20, 1);
    Release_In_Picture();
}
