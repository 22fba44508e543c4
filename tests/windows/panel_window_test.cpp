#include <QAccessible>
#include <cmath>

#include "panels/editor.h"
#include "synth/tone.h"
#include "windows/screen.h"

namespace {

using Lines = std::vector<std::string>;

double Mean_Brightness(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) sum += qGray(image.pixel(x, y));
    }
    return sum / (image.width() * image.height());
}

double Pixel_Difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    }
    return sum / (a.width() * a.height());
}

}  // namespace

using Panel_On_Screen = Screen;

TEST_F(Panel_On_Screen, has_a_widget_for_each_control_in_its_place) {
    Start();
    for (const Control* control : Editor_Panel.controls) {
        const QWidget* widget = Widget(control->name);
        EXPECT_EQ(widget->geometry(), QRect(control->left, control->top, control->width, control->height))
            << control->name;
        EXPECT_TRUE(widget->isVisible()) << control->name;
    }
    EXPECT_EQ(Widget("Editor")->geometry(), QRect(0, 0, 528, 456));
    EXPECT_EQ(Widget("DCO1_Tune_Knopf")->parentWidget(), Widget("DCO1_Tune"));
}

TEST_F(Panel_On_Screen, stands_whole_in_the_default_frame_with_its_menu_bar) {
    Start();
    EXPECT_EQ(window_->size(), QSize(541, 508));
    EXPECT_TRUE(window_->rect().contains(
        QRect(Widget("Editor")->mapTo(window_.get(), QPoint(0, 0)), QSize(528, 456))));
    EXPECT_EQ(window_->windowTitle(), "Tonebench");
}

TEST_F(Panel_On_Screen, drags_a_slider_and_the_thumb_follows) {
    Start();
    QWidget* thumb = Widget("VCF_Res");
    QTest::mousePress(thumb, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(Focused(), "VCF_Res");
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 00 F7"});
    QTest::mouseMove(thumb, QPoint(8, -40));
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 21 20 01 23 28 F7"});
    EXPECT_EQ(thumb->y(), 112 - 40 * 80 / 127);
    EXPECT_EQ(Editor_Tone_Name.text, "31");
    QTest::mouseRelease(thumb, Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(thumb, QPoint(8, -40));
    EXPECT_EQ(Sent(), Lines{}) << "a move without a button does nothing";
}

TEST_F(Panel_On_Screen, takes_the_row_from_the_thumb_as_it_stands_at_the_event) {
    Start();
    QWidget* thumb = Widget("VCF_Res");
    const QPoint pointer = thumb->mapToGlobal(QPoint(8, -20));
    QTest::mousePress(thumb, Qt::LeftButton, {}, QPoint(8, 0));
    Sent();
    // The pointer stands still on the screen while the thumb comes up to it.
    QTest::mouseMove(thumb, thumb->mapFromGlobal(pointer));
    QTest::mouseMove(thumb, thumb->mapFromGlobal(pointer));
    QTest::mouseMove(thumb, thumb->mapFromGlobal(pointer));
    EXPECT_EQ(Sent(), (Lines{"F0 41 36 00 21 20 01 23 14 F7", "F0 41 36 00 21 20 01 23 1C F7",
                             "F0 41 36 00 21 20 01 23 1F F7"}));
}

TEST_F(Panel_On_Screen, moves_the_dragged_thumb_also_when_tab_took_the_focus_meanwhile) {
    Start();
    const int row_of_the_knob = Widget("DCO1_Tune")->y();
    QWidget* thumb = Widget("DCO1_LFO");
    Widget("DCO1_Waveform")->setFocus();
    QTest::mousePress(thumb, Qt::LeftButton, {}, QPoint(8, 8));
    QTest::keyClick(thumb, Qt::Key_Backtab);
    QTest::keyClick(Widget("DCO1_Tune_Knopf"), Qt::Key_Backtab);
    ASSERT_EQ(Focused(), "DCO1_Tune");
    QTest::mouseMove(thumb, QPoint(8, -40));
    EXPECT_EQ(thumb->y(), 232 - 40 * 80 / 127);
    EXPECT_EQ(Widget("DCO1_Tune")->y(), row_of_the_knob);
    EXPECT_EQ(Focused(), "DCO1_LFO");
}

TEST_F(Panel_On_Screen, is_worked_by_every_mouse_button) {
    Start();
    QTest::mousePress(Widget("VCF_Res"), Qt::RightButton, {}, QPoint(8, 8));
    QTest::mouseMove(Widget("VCF_Res"), QPoint(8, -10));
    EXPECT_EQ(Sent().size(), 2U);
    QTest::mouseRelease(Widget("VCF_Res"), Qt::RightButton);
}

TEST_F(Panel_On_Screen, knows_the_keypads_plus_and_minus_and_not_the_main_ones) {
    Start();
    Widget("VCF_Res")->setFocus();
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(Tone_Data[35], 1);
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Plus);
    EXPECT_EQ(Tone_Data[35], 1);
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Minus, Qt::KeypadModifier);
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Home);
    EXPECT_EQ(Tone_Data[35], 127);
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Minus);
    EXPECT_EQ(Tone_Data[35], 127);
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_PageDown);
    EXPECT_EQ(Tone_Data[35], 111);
    Widget("DCO1_Tune")->setFocus();
    QTest::keyClick(Widget("DCO1_Tune"), Qt::Key_Right);
    EXPECT_EQ(Tone_Data[13], 72);
    QTest::keyClick(Widget("DCO1_Tune"), Qt::Key_0, Qt::KeypadModifier);
    EXPECT_EQ(Tone_Data[13], 56);
}

TEST_F(Panel_On_Screen, is_reached_whole_by_the_tab_key) {
    Start();
    QStringList expected;
    for (const Control* control : Editor_Panel.controls) {
        if (control->focusable) expected << control->name;
    }
    QStringList reached;
    for (int step = 0; step < expected.size(); ++step) {
        reached << Focused();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, expected);
    EXPECT_EQ(Focused(), expected.front());
    EXPECT_EQ(reached.front(), "DCO1_Range");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(Focused(), "Tone_Name");
}

TEST_F(Panel_On_Screen, plays_and_stops_by_keyboard_alone) {
    Start();
    Widget("Keys_Pic")->setFocus();
    QTest::keyClick(Widget("Keys_Pic"), Qt::Key_Space);
    EXPECT_EQ(Sent().size(), 4U);
    Widget("ED_Seq_Stop")->setFocus();
    QTest::keyClick(Widget("ED_Seq_Stop"), Qt::Key_Return);
    EXPECT_EQ(Sent().front(), "B0 7B 00");
    EXPECT_EQ(Editor_Keys_Pic.picture.item, Keys_Up);
}

TEST_F(Panel_On_Screen, blinks_the_focused_control_between_two_looks) {
    Start();
    for (const char* name : {"DCO1_Range", "DCO2_Crossmod", "VCF_Res", "DCO1_Tune_Knopf"}) {
        QWidget* widget = Widget(name);
        widget->setFocus();
        Panel_Blink_Phase = 0;
        Panel_Blink();
        window_->Show_Changes();
        const QImage resting = Picture_On(widget);
        Panel_Blink_Phase = 1;
        Panel_Blink();
        window_->Show_Changes();
        const QImage other = Picture_On(widget);
        EXPECT_GT(Pixel_Difference(resting, other), 40) << name << ": told apart without colours";
        EXPECT_GT(std::abs(Mean_Brightness(resting) - Mean_Brightness(other)), 15) << name;
    }
}

TEST_F(Panel_On_Screen, blinks_by_itself) {
    Start();
    const QImage before = Picture_On(Widget("DCO1_Range"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Picture_On(Widget("DCO1_Range")) != before; }, 2000));
}

TEST_F(Panel_On_Screen, brings_the_name_back_by_itself) {
    Start();
    Widget("VCF_Res")->setFocus();
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Home);
    EXPECT_EQ(Editor_Tone_Name.text, "99");
    EXPECT_TRUE(QTest::qWaitFor([] { return Editor_Tone_Name.text.empty(); }, 4000));
}

TEST_F(Panel_On_Screen, lights_the_display_for_each_character_and_leaves_unlit_segments_faint) {
    Start();
    const QImage empty = Picture_On(Widget("Tone_Name"));
    Editor_Tone_Name.text = "BRASS";
    window_->Show_Changes();
    const QImage lit = Picture_On(Widget("Tone_Name"));
    const auto cell = [](const QImage& image, int index) {
        return image.copy(1 + index * 12, 2, 12, image.height() - 4);
    };
    for (int index = 0; index < 10; ++index) {
        EXPECT_EQ(cell(lit, index) != cell(empty, index), index < 5) << index;
        EXPECT_GT(Mean_Brightness(cell(empty, index)), qGray(qRgb(0x06, 0x12, 0x12)) + 2)
            << "unlit segments show";
    }
    EXPECT_GT(Mean_Brightness(cell(lit, 0)), Mean_Brightness(cell(empty, 0)) + 20);
}

TEST_F(Panel_On_Screen, speaks_to_screen_readers) {
    Start();
    Widget("VCF_Res")->setFocus();
    QTest::keyClick(Widget("VCF_Res"), Qt::Key_Home);
    const auto name = [this](const char* control) { return Heard(Widget(control)); };
    EXPECT_EQ(name("VCF_Res"), "VCF Resonance, 99");
    EXPECT_EQ(name("DCO1_Range"), "DCO-1 Range, 16'");
    EXPECT_EQ(name("Keys_Pic"), "Keyboard");
    EXPECT_EQ(name("ED_Seq_Start"), "Sequencer Start");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Widget("VCF_Res"))->role(), QAccessible::Slider);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Widget("Keys_Pic"))->role(), QAccessible::PushButton);
    for (const Control* control : Editor_Panel.controls) {
        if (!control->focusable) continue;
        EXPECT_FALSE(name(control->name).isEmpty());
    }
}

TEST_F(Panel_On_Screen, keeps_its_focus_through_a_dialog) {
    Start();
    Widget("VCF_Res")->setFocus();
    Window_Show(MIDI_Setup);
    window_->Show_Changes();
    EXPECT_FALSE(Widget("VCF_Res")->isEnabled());
    Window_Unload(MIDI_Setup);
    window_->Show_Changes();
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([] { return Focused() == "VCF_Res"; }, 2000)) << Focused().toStdString();
    EXPECT_EQ(Panel_Current_Control, &Editor_Control("VCF_Res"));
}

TEST_F(Panel_On_Screen, gives_the_ground_around_it_to_a_larger_frame) {
    Start();
    window_->resize(800, 700);
    EXPECT_EQ(Widget("Editor")->geometry(), QRect(0, 0, 528, 456));
    EXPECT_GE(Widget("Back_Pic")->width(), 800);
    const QImage ground = Picture_On(Widget("Back_Pic"));
    EXPECT_LT(qGray(ground.pixel(700, 600)), 40);
}

TEST_F(Panel_On_Screen, moves_the_pressed_thumb_also_in_a_window_that_is_not_active) {
    Start();
    Widget("DCO1_LFO")->setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    const int untouched = Widget("DCO1_LFO")->y();
    QTest::mousePress(Widget("VCF_Res"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(Widget("VCF_Res"), QPoint(8, -40));
    EXPECT_EQ(Widget("DCO1_LFO")->y(), untouched);
    EXPECT_EQ(Widget("VCF_Res")->y(), 112 - 40 * 80 / 127);
}

TEST_F(Panel_On_Screen, plays_once_while_space_is_held) {
    Start();
    Widget("Keys_Pic")->setFocus();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QApplication::sendEvent(Widget("Keys_Pic"), &held);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Panel_On_Screen, does_not_play_by_the_back_button) {
    Start();
    QTest::mousePress(Widget("Keys_Pic"), Qt::BackButton);
    EXPECT_TRUE(Sent().empty());
}

TEST_F(Panel_On_Screen, lets_a_shortcut_begin_on_the_name_field) {
    Start();
    Widget("Tone_Name")->setFocus();
    QTest::keyClick(Widget("Tone_Name"), Qt::Key_Control);
    EXPECT_FALSE(TName.loaded);
    QTest::keyClick(Widget("Tone_Name"), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(Sent().size(), 1U);
    QTest::keyClick(Widget("Tone_Name"), Qt::Key_A);
    EXPECT_TRUE(TName.loaded);
}
