// The Alpha Juno's panel on the screen, and the change between the two panels.
#include <QAccessible>
#include <QAction>
#include <QComboBox>

#include "desk/dialog_lock.h"
#include "desk/timers.h"
#include "panels/editor.h"
#include "panels/juno_envelope.h"
#include "panels/juno_panel.h"
#include "shell/frame.h"
#include "synth/juno.h"
#include "synth/tone.h"
#include "windows/screen.h"

namespace {

using Lines = std::vector<std::string>;

int Bright_Pixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.green() > 180 && colour.red() < 160) ++count;
        }
    }
    return count;
}

}  // namespace

class Juno_On_Screen : public Screen {
  protected:
    explicit Juno_On_Screen(const char* scale = "1") : Screen(scale) {}

    void Start_Juno() { Start("[MIDI]\nOutput=Synth Out\nInput=Keys In\nSynthesizer=Alpha Juno\n"); }

    // A widget of its panel; names such as VCF_Res stand on both panels.
    QWidget* On_Juno(const char* name) const {
        auto* widget = Widget("Editor_Juno")->findChild<QWidget*>(name);
        if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return widget;
    }

    QComboBox* Open_Setup() {
        window_->findChild<QAction*>("Menu_MIDI_Setup")->trigger();
        return window_->findChild<QComboBox*>("SynthesizerType");
    }
    void Close_Setup() {
        Expect_Box(
            "Please don't forget to enable the MIDI System Exclusive (SysEx)\rsetting on your Alpha "
            "Juno!\r");
        QTest::mouseClick(Widget("Cmd_OK"), Qt::LeftButton);
        window_->activateWindow();
        QTest::qWait(1);
    }
};

TEST_F(Juno_On_Screen, stands_in_the_place_of_the_editor) {
    Start_Juno();
    EXPECT_EQ(Widget("Editor_Juno")->geometry(), QRect(0, 0, 528, 456));
    EXPECT_TRUE(Widget("Editor_Juno")->isVisible());
    EXPECT_FALSE(Widget("Editor")->isVisible());
    for (const Control* control : Juno_Panel.controls) {
        const QWidget* widget = On_Juno(control->name);
        EXPECT_EQ(widget->geometry(), QRect(control->left, control->top, control->width, control->height))
            << control->name;
        EXPECT_TRUE(widget->isVisible()) << control->name;
    }
}

TEST_F(Juno_On_Screen, has_its_first_focus_and_mark_on_the_range) {
    Start_Juno();
    EXPECT_EQ(QApplication::focusWidget(), On_Juno("DCO_Range"));
    EXPECT_EQ(Panel_Current_Control, &Juno_Controls.front());
    QTest::qWait(600);
    EXPECT_LE(Juno_Controls.front().picture.item, 1);
}

TEST_F(Juno_On_Screen, keeps_the_mark_when_the_frame_wakes_the_hidden_editor_too) {
    Start_Juno();
    On_Juno("VCF_Res")->setFocus();
    for (const QEvent::Type type : {QEvent::WindowActivate, QEvent::WindowDeactivate}) {
        Juno_Controls[16].picture = Picture_Of(Picture_Store::Buttons, 7);
        QEvent event(type);
        QApplication::sendEvent(Widget("Editor"), &event);
        EXPECT_EQ(Panel_Current_Control, &Juno_Controls[16]);
        EXPECT_EQ(Juno_Controls[16].picture.item, 7);
    }
}

TEST_F(Juno_On_Screen, is_reached_whole_by_the_tab_key_and_never_the_hidden_editor) {
    Start_Juno();
    for (const Control* control : Juno_Panel.controls) {
        if (!control->focusable) continue;
        EXPECT_EQ(QApplication::focusWidget(), On_Juno(control->name)) << control->name;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), On_Juno("DCO_Range"));
}

TEST_F(Juno_On_Screen, sends_nothing_at_a_press_and_every_step_of_a_drag) {
    Start_Juno();
    QWidget* thumb = On_Juno("VCF_Res");
    QTest::mousePress(thumb, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(QApplication::focusWidget(), thumb);
    EXPECT_EQ(Sent(), Lines{});
    QTest::mouseMove(thumb, QPoint(8, -40));
    EXPECT_EQ(Sent(), Lines{"F0 41 36 00 23 20 01 11 28 F7"});
    EXPECT_EQ(thumb->y(), 246 - 40 * 80 / 127);
    EXPECT_EQ(Juno_Tone_Name.text, "40");
    QTest::mouseRelease(thumb, Qt::LeftButton);
    EXPECT_EQ(Tone_Data[35], 0);
}

TEST_F(Juno_On_Screen, draws_the_envelope_over_itself_in_bright_lines_until_the_name_comes_back) {
    Start_Juno();
    QWidget* graph = On_Juno("PictureEnv");
    EXPECT_FALSE(graph->isVisible());
    QTest::mousePress(On_Juno("ENV_L3"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(On_Juno("ENV_L3"), QPoint(8, -100));
    QTest::mouseRelease(On_Juno("ENV_L3"), Qt::LeftButton);
    EXPECT_TRUE(graph->isVisible());
    EXPECT_EQ(graph->geometry(), QRect(90, 136, 378, 135));
    const QImage image = Picture_On(graph);
    EXPECT_GT(Bright_Pixels(image), 40);
    EXPECT_LT(Bright_Pixels(image), 1500) << "thin lines";
    EXPECT_GT(image.pixelColor(30, 30).green(), 150) << "the plateau at level 100";
    EXPECT_GT(image.pixelColor(200, 130).green(), 60) << "the axis of times";
    EXPECT_GT(image.pixelColor(5, 60).green(), 60) << "the axis of levels";
    EXPECT_LT(image.pixelColor(200, 60).green(), 40) << "the glass";
    EXPECT_EQ(Widget("Editor_Juno")->childAt(200, 200), graph) << "above the controls";
    QTest::qWait(2200);
    EXPECT_FALSE(graph->isVisible());
    EXPECT_EQ(Juno_Tone_Name.text, "NEW");
}

TEST_F(Juno_On_Screen, keeps_what_lies_under_the_graph_out_of_reach) {
    Start_Juno();
    On_Juno("ENV_T4")->setFocus();
    QTest::keyClick(On_Juno("ENV_T4"), Qt::Key_Home);
    Sent();
    QTest::mousePress(On_Juno("PictureEnv"), Qt::LeftButton, {}, QPoint(100, 100));
    QTest::mouseMove(On_Juno("PictureEnv"), QPoint(100, 60));
    QTest::mouseRelease(On_Juno("PictureEnv"), Qt::LeftButton);
    EXPECT_EQ(Sent(), Lines{});
    EXPECT_EQ(QApplication::focusWidget(), On_Juno("ENV_T4"));
}

TEST_F(Juno_On_Screen, shows_nothing_of_the_four_unused_controls) {
    Start_Juno();
    for (const Control& unused : Juno_Unused_Controls) {
        QWidget* widget = On_Juno(unused.name);
        const QPoint place = widget->pos();
        const QImage with = Picture_On(Widget("Editor_Juno")).copy(QRect(place, widget->size()));
        widget->hide();
        EXPECT_EQ(with, Picture_On(Widget("Editor_Juno")).copy(QRect(place, widget->size())))
            << unused.name;
    }
}

TEST_F(Juno_On_Screen, speaks_its_controls) {
    Start_Juno();
    Juno_Data[17] = 64;
    for (const Control* control : Juno_Panel.controls) {
        if (!control->focusable) continue;
        EXPECT_NE(QAccessible::queryAccessibleInterface(On_Juno(control->name))->text(QAccessible::Name),
                  "")
            << control->name;
    }
    EXPECT_EQ(Heard(On_Juno("VCF_Res")), "VCF Resonance, 64");
    EXPECT_EQ(On_Juno("PictureEnv")->accessibleName(), "Envelope");
}

TEST_F(Juno_On_Screen, takes_focus_and_mark_over_from_the_editor_in_the_setup_dialog_and_gives_them_back) {
    Start();
    Widget("VCF_Res")->setFocus();
    EXPECT_EQ(Panel_Current_Control, &Editor_Control("VCF_Res"));
    QComboBox* types = Open_Setup();
    types->setFocus();
    QTest::keyClick(types, Qt::Key_End);
    EXPECT_TRUE(Widget("Editor_Juno")->isVisible());
    EXPECT_FALSE(Widget("Editor_Juno")->isEnabled());
    EXPECT_FALSE(Widget("Editor")->isVisible());
    Close_Setup();
    EXPECT_EQ(QApplication::focusWidget(), On_Juno("DCO_Range"));
    EXPECT_EQ(Panel_Current_Control, &Juno_Controls.front());
    QTest::keyClick(On_Juno("DCO_Range"), Qt::Key_End);
    EXPECT_EQ(Juno_Data[6], 3);
    EXPECT_EQ(Editor_Control("VCF_Res").picture.item, 6) << "at rest";

    types = Open_Setup();
    types->setFocus();
    QTest::keyClick(types, Qt::Key_Home);
    QTest::keyClick(Widget("MIDI_Setup"), Qt::Key_Escape);
    window_->activateWindow();
    QTest::qWait(1);
    EXPECT_TRUE(Widget("Editor")->isVisible());
    EXPECT_FALSE(Widget("Editor_Juno")->isVisible());
    EXPECT_EQ(Panel_Current_Control->window, &Editor);
    EXPECT_EQ(QApplication::focusWidget()->window(), window_.get());
    EXPECT_TRUE(Widget("Editor")->isAncestorOf(QApplication::focusWidget()));
}

class Juno_On_Screen_At_2 : public Juno_On_Screen {
  protected:
    Juno_On_Screen_At_2() : Juno_On_Screen("2") {}
};

TEST_F(Juno_On_Screen_At_2, keeps_its_logical_size_and_gets_more_pixels) {
    Start_Juno();
    EXPECT_EQ(Widget("Editor_Juno")->size(), QSize(528, 456));
    EXPECT_EQ(Widget("Editor_Juno")->grab().size(), QSize(1056, 912));
    On_Juno("ENV_T4")->setFocus();
    QTest::keyClick(On_Juno("ENV_T4"), Qt::Key_Home);
    EXPECT_EQ(On_Juno("PictureEnv")->grab().size(), QSize(756, 270));
}
