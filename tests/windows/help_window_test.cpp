#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "help/help.h"
#include "help/howto.h"
#include "help/howto_printing.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"
#include "synth/tone.h"
#include "windows/screen.h"

namespace {

const char* const Frames[] = {"Frame_Credits", "Frame_Howto", "Frame_Search"};

}  // namespace

class Help_On_Screen : public Screen {
  protected:
    explicit Help_On_Screen(const char* scale = "1") : Screen(scale) {}

    void Open(Menu_Id entry) {
        if (!window_->isVisible()) Start();
        Sent();
        Menu(entry).chosen();
        window_->Show_Changes();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget("Help")));
        Widget("Help")->activateWindow();
        QTest::qWait(1);
    }
    QString Description() const {
        return static_cast<QPlainTextEdit*>(Widget("Help_Description"))->toPlainText();
    }
    QStringList Visible_Frames() const {
        QStringList visible;
        for (const char* frame : Frames) {
            if (Widget(frame)->isVisible()) visible << frame;
        }
        return visible;
    }
    void Expect_Everything_Fits(const char* page) {
        const QWidget* window = Widget("Help");
        for (const QWidget* widget : Widget(page)->findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            const QRect place(widget->mapTo(window, QPoint()), widget->size());
            EXPECT_TRUE(window->rect().contains(place)) << widget->objectName().toStdString();
        }
        for (const QLabel* label : Widget(page)->findChildren<QLabel*>()) {
            const int needed =
                label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << label->objectName().toStdString();
            if (!label->wordWrap()) {
                EXPECT_GE(label->width(), label->sizeHint().width());
            }
        }
        for (const char* name : {"Cmd_Howto", "Cmd_Search", "Cmd_About"}) {
            EXPECT_GE(Widget(name)->width(), Widget(name)->sizeHint().width()) << name;
            EXPECT_TRUE(Widget(name)->isVisible()) << name;
        }
    }
    static bool Scrolls(const QWidget* text) {
        return static_cast<const QPlainTextEdit*>(text)->verticalScrollBar()->maximum() > 0;
    }
    void Expect_Readable_Pages() {
        Open(Menu_Help_About);
        EXPECT_EQ(Visible_Frames(), QStringList{"Frame_Credits"});
        Expect_Everything_Fits("Frame_Credits");
        for (int row = 0; row < 12; ++row) {
            Help_Credits_Click(row);
            window_->Show_Changes();
            EXPECT_FALSE(Scrolls(Widget("Credits_Why"))) << row;
        }
        Help_Cmd_Howto();
        window_->Show_Changes();
        EXPECT_EQ(Visible_Frames(), QStringList{"Frame_Howto"});
        Expect_Everything_Fits("Frame_Howto");
        for (const Control* control : Howto_Panel.controls) {
            if (control->focusable) Howto_Panel.events.focus_gained(*Howto_Panel.controls.front());
            if (control->focusable) Howto_Panel.events.focus_gained(const_cast<Control&>(*control));
            window_->Show_Changes();
            EXPECT_FALSE(Scrolls(Widget("Info"))) << control->name;
        }
        Help_Cmd_Search();
        window_->Show_Changes();
        EXPECT_EQ(Visible_Frames(), QStringList{"Frame_Search"});
        Expect_Everything_Fits("Frame_Search");
        for (int row = 0; row < 23; ++row) {
            Help_KeyList_Click(row);
            window_->Show_Changes();
            EXPECT_FALSE(Scrolls(Widget("Help_Description"))) << row;
        }
        const qreal ratio = Widget("Help")->devicePixelRatioF();
        EXPECT_EQ(Widget("Help")->grab().size(), QSize(qRound(640 * ratio), qRound(404 * ratio)));
    }
};

TEST_F(Help_On_Screen, is_opened_by_f1_and_finds_a_topic_by_its_first_letters) {
    Start();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(Widget("Help")));
    Widget("Help")->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([] { return Focused() == "Help_Keyword"; }, 2000))
        << Focused().toStdString();
    QTest::keyClicks(Widget("Help_Keyword"), "matr");
    EXPECT_EQ(static_cast<QListWidget*>(Widget("Help_KeyList"))->currentItem()->text(), "Matrix");
    EXPECT_EQ(Description(),
              "Simply click with the left or right mouse button onto the matrix to set notes.");
    EXPECT_EQ(static_cast<QLineEdit*>(Widget("Help_Keyword"))->text(), "matr");
}

TEST_F(Help_On_Screen, describes_the_topic_that_is_picked_in_the_list) {
    Open(Menu_Help_Search);
    auto* list = static_cast<QListWidget*>(Widget("Help_KeyList"));
    EXPECT_EQ(list->count(), 23);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(3)).center());
    EXPECT_EQ(Help_Window_Form.key_list.Selected_Text(), "JX-8P and Sysex");
    EXPECT_TRUE(Description().startsWith("The JX-8P must be set in Sysex mode"));
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(Help_Window_Form.key_list.Selected_Text(), "Keyboard");
}

TEST_F(Help_On_Screen, gives_the_reason_of_a_credit) {
    Open(Menu_Help_About);
    auto* list = static_cast<QListWidget*>(Widget("Credits"));
    EXPECT_EQ(list->count(), 12);
    const QRect last = list->visualItemRect(list->item(11));
    EXPECT_TRUE(list->viewport()->rect().contains(last)) << "all names are in sight";
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, last.center());
    const QString why = static_cast<QPlainTextEdit*>(Widget("Credits_Why"))->toPlainText();
    EXPECT_EQ(why, QString(" The system that Tonebench is made for and made on"));
    const QStringList about = static_cast<QPlainTextEdit*>(Widget("About"))->toPlainText().split('\n');
    EXPECT_EQ(about.at(2), QString(QChar(0xB0)) + " TONE and PATCH parameters");
    EXPECT_EQ(about.at(8), "Very special thanks to:");
}

TEST_F(Help_On_Screen, turns_its_pages_by_the_buttons) {
    Open(Menu_Help_About);
    for (const auto& [button, frame] : {std::pair{"Cmd_Howto", "Frame_Howto"},
                                        {"Cmd_Search", "Frame_Search"},
                                        {"Cmd_About", "Frame_Credits"}}) {
        QTest::mouseClick(Widget(button), Qt::LeftButton);
        EXPECT_EQ(Visible_Frames(), QStringList{frame});
        EXPECT_TRUE(static_cast<QPushButton*>(Widget(button))->isChecked());
        QTest::mouseClick(Widget(button), Qt::LeftButton);
        EXPECT_EQ(Visible_Frames(), QStringList{frame}) << "a page stays under its own button";
        EXPECT_TRUE(static_cast<QPushButton*>(Widget(button))->isChecked());
    }
}

TEST_F(Help_On_Screen, puts_the_focus_where_a_page_begins) {
    Open(Menu_Help_About);
    QTest::mouseClick(Widget("Cmd_Search"), Qt::LeftButton);
    EXPECT_EQ(Focused(), "Help_Keyword");
    QTest::mouseClick(Widget("Cmd_Howto"), Qt::LeftButton);
    EXPECT_EQ(Focused(), "Pos_Sw");
    EXPECT_EQ(Help_Info, Howto_First_Text);
    QTest::mouseClick(Widget("Cmd_About"), Qt::LeftButton);
    QTest::mouseClick(Widget("Cmd_Howto"), Qt::LeftButton);
    EXPECT_EQ(Focused(), "Pos_Sw");
}

TEST_F(Help_On_Screen, is_practised_on_by_the_pointer) {
    Open(Menu_Help_Howto);
    QTest::mousePress(Widget("Slider"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(Widget("Slider"), QPoint(8, -127));
    EXPECT_EQ(Help_HName.text, "99");
    EXPECT_EQ(Widget("Slider")->y(), Slider_Bottom_Row - 80);
    QTest::mouseRelease(Widget("Slider"), Qt::LeftButton);
    QTest::mousePress(Widget("Pos_Sw"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseMove(Widget("Pos_Sw"), QPoint(8, -40));
    EXPECT_EQ(Help_HName.text, "3");
    QTest::mouseRelease(Widget("Pos_Sw"), Qt::LeftButton);
    QTest::mousePress(Widget("Tune"), Qt::LeftButton, {}, QPoint(2, 20));
    QTest::mouseMove(Widget("Tune"), QPoint(24, -90));
    EXPECT_EQ(Help_HName.text, "6") << "sideways";
    QTest::mouseRelease(Widget("Tune"), Qt::LeftButton);
    QTest::mouseClick(Widget("Switch"), Qt::LeftButton);
    EXPECT_EQ(Help_HName.text, "ON");
    QTest::mouseClick(Widget("LED_SW_2"), Qt::LeftButton);
    EXPECT_EQ(Help_HName.text, "C");
    EXPECT_EQ(Focused(), "LED_SW_2");
    EXPECT_EQ(Sent(), std::vector<std::string>{});
    EXPECT_EQ(Tone_Saved, Flag_16::True);
}

TEST_F(Help_On_Screen, is_practised_on_by_the_keys_and_walked_by_tab) {
    Open(Menu_Help_Howto);
    QStringList reached;
    for (int step = 0; step < 10; ++step) {
        reached << Focused();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, (QStringList{"Pos_Sw", "Tune", "Tune_Knopf", "Slider", "Switch", "LED_SW_0",
                                    "Cmd_Howto", "Cmd_Search", "Cmd_About", "Pos_Sw"}));
    Widget("LED_SW_0")->setFocus();
    QTest::keyClick(Widget("LED_SW_0"), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
    EXPECT_EQ(Focused(), "LED_SW_2");
    EXPECT_EQ(Help_HName.text, "C");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(Focused(), "Switch");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_EQ(Help_HName.text, "ON");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Focused(), "LED_SW_2") << "TAB comes back to the selected lamp";
}

TEST_F(Help_On_Screen, leaves_the_keyboard_on_the_open_page_when_the_search_is_asked_for_again) {
    Open(Menu_Help_Howto);
    Widget("Slider")->setFocus();
    Guarded_Event([] { Menu(Menu_Help_Search).chosen(); });
    EXPECT_EQ(Visible_Frames(), QStringList{"Frame_Howto"});
    EXPECT_EQ(Focused(), "Slider");
}

TEST_F(Help_On_Screen, is_closed_by_escape_on_every_page) {
    for (const auto& [entry, control] : {std::pair{Menu_Help_About, "Credits"},
                                         {Menu_Help_Search, "Help_Keyword"},
                                         {Menu_Help_Search, "Help_KeyList"},
                                         {Menu_Help_Howto, "Slider"},
                                         {Menu_Help_Howto, "Cmd_About"}}) {
        Open(entry);
        Widget(control)->setFocus();
        QTest::keyClick(Widget(control), Qt::Key_Escape);
        EXPECT_FALSE(Widget("Help")->isVisible()) << control;
        EXPECT_EQ(App_Mode, "");
    }
}

TEST_F(Help_On_Screen, is_not_closed_or_turned_by_the_return_key) {
    Open(Menu_Help_Search);
    QTest::keyClick(Widget("Help_Keyword"), Qt::Key_Return);
    EXPECT_EQ(Visible_Frames(), QStringList{"Frame_Search"});
}

TEST_F(Help_On_Screen, speaks_to_screen_readers) {
    Open(Menu_Help_Howto);
    const auto name = [this](const char* control) { return Heard(Widget(control)); };
    EXPECT_EQ(name("Pos_Sw"), "Position Switch, 4");
    EXPECT_EQ(name("Tune"), "Tune, 0");
    EXPECT_EQ(name("Slider"), "Slider, 0");
    EXPECT_EQ(name("Switch"), "Switch, OFF");
    EXPECT_EQ(name("LED_SW_0"), "Lamp A, on");
    EXPECT_EQ(name("LED_SW_1"), "Lamp B, off");
    EXPECT_EQ(name("HName"), "Display, Waiting for action...");
    for (const char* widget : {"Info", "About", "Credits", "Credits_Why", "Help_Keyword", "Help_KeyList",
                               "Help_Description", "Cmd_Howto", "Cmd_Search", "Cmd_About"}) {
        EXPECT_FALSE(name(widget).isEmpty()) << widget;
    }
}

TEST_F(Help_On_Screen, shows_its_display_whole) {
    Open(Menu_Help_Howto);
    const QFontMetricsF metrics(Printing_Font(16));
    EXPECT_LE(metrics.horizontalAdvance("Waiting for action..."), Widget("HName")->width() - 8);
    const QImage before = Picture_On(Widget("HName"));
    QTest::keyClick(Widget("Pos_Sw"), Qt::Key_Up);
    EXPECT_NE(Picture_On(Widget("HName")), before);
}

TEST_F(Help_On_Screen, has_printing_clear_of_its_controls) {
    Open(Menu_Help_Howto);
    for (const Print_Text& text : Howto_Printing().texts) {
        if (text.text.empty()) continue;
        const double width =
            QFontMetricsF(Printing_Font(text.size)).horizontalAdvance(QString::fromStdString(text.text));
        double left = text.at.x;
        if (text.align == Align::Centre) left -= width / 2;
        if (text.align == Align::Right) left -= width;
        const QRectF ink(left, text.at.y - text.size * 0.7, width, text.size * 0.7);
        EXPECT_TRUE(QRectF(0, 0, Howto_Width, Howto_Height).contains(ink)) << text.text;
        for (const Control* control : Howto_Panel.controls) {
            const QWidget* widget = Widget(control->name);
            const QPoint at = widget->mapTo(Widget("Pic_Howto_Bk"), QPoint());
            EXPECT_FALSE(ink.intersects(QRectF(at, widget->size()))) << text.text << " " << control->name;
        }
    }
}

TEST_F(Help_On_Screen, is_readable) {
    Expect_Readable_Pages();
}

class Help_At_1_5 : public Help_On_Screen {
  protected:
    Help_At_1_5() : Help_On_Screen("1.5") {}
};
class Help_At_2 : public Help_On_Screen {
  protected:
    Help_At_2() : Help_On_Screen("2") {}
};

TEST_F(Help_At_1_5, is_readable) {
    Expect_Readable_Pages();
}

TEST_F(Help_At_2, is_readable) {
    Expect_Readable_Pages();
}
