// The panels' printing with its real face: nothing overlaps, nothing lies under a thumb.
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QSvgRenderer>

#include "desk/windows.h"
#include "panels/editor.h"
#include "panels/editor_printing.h"
#include "panels/juno_panel.h"
#include "panels/juno_printing.h"
#include "panels/pictures_qt.h"
#include "windows/printed.h"
#include "windows/screen.h"

namespace {

// A panel's printing, and where its controls' pictures may ever stand.
struct Printed_Panel {
    Printing printing;
    std::vector<std::pair<std::string, QRectF>> reaches;
};

QRectF Thumb_Reach_Of(int left, int top_row, int bottom_row) {
    return {left + 0.0, top_row + 2.0, 16, bottom_row - top_row + 12.0};
}

Printed_Panel The_Editor() {
    Printed_Panel panel = {Editor_Printing(), {}};
    for (const Editor_Row& row : Editor_Table) {
        const QRectF knob(row.left + 2.0, row.top_row + 0.0, 24, 24);
        panel.reaches.emplace_back(
            row.control, Is_Knob(row.type) ? knob : Thumb_Reach_Of(row.left, row.top_row, row.bottom_row));
    }
    return panel;
}

Printed_Panel The_Juno() {
    Printed_Panel panel = {Juno_Printing(), {}};
    for (const Juno_Row& row : Juno_Table) {
        const int highest = row.type == Juno_Type::Slider ? 127 : row.positions - 1;
        const int far_row = row.placed_row - Juno_Rise(row, highest);
        panel.reaches.emplace_back(
            row.control, Thumb_Reach_Of(row.left, std::min(row.row, far_row), std::max(row.row, far_row)));
    }
    return panel;
}

std::vector<Printed_Panel> Both_Panels() {
    return {The_Editor(), The_Juno()};
}

// Fields, buttons and decorations.
std::vector<QRectF> Other_Places(const Panel& panel) {
    std::vector<QRectF> places;
    for (const Control* control : panel.controls) {
        const bool drawn = control->picture.store != Picture_Store::None || control->focusable;
        if (*control->kind == '\0' && control->parent == nullptr && drawn)
            places.emplace_back(control->left, control->top, control->width, control->height);
    }
    return places;
}

// The drawings at the positions of switches.
std::vector<QRectF> Symbols(const Printing& printing) {
    std::vector<QRectF> symbols;
    for (const Print_Line& line : printing.lines) {
        if (line.closed || line.points.size() < 4 || line.ink != Ink::Print) continue;
        QPolygonF points;
        for (const Print_Point& point : line.points) points << QPointF(point.x, point.y);
        symbols.push_back(points.boundingRect().adjusted(-0.5, -0.5, 0.5, 0.5));
    }
    return symbols;
}

}  // namespace

using Printed = Screen;

TEST_F(Printed, texts_do_not_overlap) {
    for (const Printed_Panel& panel : Both_Panels()) {
        const std::vector<Placed> placed = Placed_Texts(panel.printing);
        for (std::size_t a = 0; a < placed.size(); ++a) {
            for (std::size_t b = a + 1; b < placed.size(); ++b) {
                EXPECT_FALSE(placed[a].ink.intersects(placed[b].ink))
                    << placed[a].text << " over " << placed[b].text << " at " << placed[a].ink.x() << ", "
                    << placed[a].ink.y();
            }
        }
    }
}

TEST_F(Printed, texts_lie_inside_the_panel_and_clear_of_every_control) {
    Start();
    for (const Printed_Panel& panel : Both_Panels()) {
        for (const Placed& text : Placed_Texts(panel.printing)) {
            EXPECT_TRUE(QRectF(0, 0, 528, 456).contains(text.ink)) << text.text;
            for (const auto& [control, reach] : panel.reaches)
                EXPECT_FALSE(text.ink.intersects(reach)) << text.text << " under " << control;
        }
    }
    for (const auto& [panel, printing] :
         {std::pair{&Editor_Panel, Editor_Printing()}, {&Juno_Panel, Juno_Printing()}}) {
        EXPECT_EQ(Other_Places(*panel).size(), 6U);
        for (const Placed& text : Placed_Texts(printing)) {
            for (const QRectF& place : Other_Places(*panel))
                EXPECT_FALSE(text.ink.intersects(place)) << text.text;
        }
    }
}

TEST_F(Printed, symbols_lie_clear_of_texts_and_controls) {
    for (const Printed_Panel& panel : Both_Panels()) {
        const std::vector<Placed> texts = Placed_Texts(panel.printing);
        const std::vector<QRectF> symbols = Symbols(panel.printing);
        EXPECT_GT(symbols.size(), 10U);
        for (const QRectF& symbol : symbols) {
            for (const Placed& text : texts)
                EXPECT_FALSE(symbol.intersects(text.ink)) << text.text << " at " << symbol.x();
            for (const auto& [control, reach] : panel.reaches)
                EXPECT_FALSE(symbol.intersects(reach)) << control;
        }
    }
}

TEST_F(Printed, texts_are_large_enough_to_read) {
    for (const Printed_Panel& panel : Both_Panels()) {
        for (const Placed& text : Placed_Texts(panel.printing))
            EXPECT_GE(text.ink.height(), 5) << text.text;
    }
}

TEST_F(Printed, texts_are_in_the_face_that_comes_with_the_program) {
    EXPECT_EQ(QFontInfo(Printing_Font(9)).family(), "Roboto Condensed");
}

TEST_F(Printed, rules_lie_clear_of_every_control) {
    for (const Printed_Panel& panel : Both_Panels()) {
        for (const Print_Line& line : panel.printing.lines) {
            if (!line.closed) continue;
            for (std::size_t index = 0; index < line.points.size(); ++index) {
                const Print_Point from = line.points[index];
                const Print_Point to = line.points[(index + 1) % line.points.size()];
                const QRectF edge = QRectF(QPointF(from.x, from.y), QPointF(to.x, to.y))
                                        .normalized()
                                        .adjusted(0, 0, 0.1, 0.1);
                for (const auto& [control, reach] : panel.reaches)
                    EXPECT_FALSE(edge.intersects(reach)) << control;
            }
        }
    }
}

TEST_F(Printed, pictures_are_valid_and_sharp_at_every_ratio) {
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0}) {
        for (const auto& [store, items] : {std::pair{Picture_Store::Buttons, 11},
                                           {Picture_Store::LED, 6},
                                           {Picture_Store::FD_Symbols, 3},
                                           {Picture_Store::FD_Icons, 3},
                                           {Picture_Store::FD_SEQ_Pics, 4}}) {
            for (int item = 0; item < items; ++item) {
                const Picture picture = Picture_Of(store, item);
                const QPixmap& pixmap = Picture_Pixmap(picture, ratio);
                EXPECT_EQ(pixmap.width(), qRound(Role_Of(picture).width * ratio));
                EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
                EXPECT_TRUE(
                    QSvgRenderer(QString(":/pictures/%1.svg").arg(Picture_File_Stem(picture).c_str()))
                        .isValid());
                bool drawn = false;
                const QImage image = pixmap.toImage();
                for (int y = 0; y < image.height(); ++y) {
                    for (int x = 0; x < image.width(); ++x)
                        drawn = drawn || qAlpha(image.pixel(x, y)) > 128;
                }
                EXPECT_TRUE(drawn) << Picture_File_Stem(picture);
            }
        }
    }
}

TEST_F(Printed, thumb_is_centred_on_its_rail) {
    for (const int item : {0, 2, 6}) {
        const QImage image = Picture_Pixmap(Picture_Of(Picture_Store::Buttons, item), 4).toImage();
        int top = image.height();
        int bottom = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) < 128) continue;
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
        EXPECT_NEAR((top + bottom + 1) / 2.0, 32, 3) << item << ": its middle is row 8 of 16";
    }
}

TEST_F(Printed, display_has_its_own_face_with_every_code_that_a_name_can_hold) {
    const int number =
        QFontDatabase::addApplicationFont(QString::fromStdString(Test_Folder() + "/JX8P.FNT"));
    ASSERT_GE(number, 0);
    EXPECT_EQ(QFontDatabase::applicationFontFamilies(number), QStringList{"JX8P"});
    QFont font("JX8P");
    font.setPixelSize(20);
    const QRawFont raw = QRawFont::fromFont(font);
    const QFontMetricsF metrics(font);
    QString letters(QChar(0xE000));
    for (char16_t code = 32; code < 256; ++code) {
        if (code < 127 || code >= 160) letters += QChar(code);
    }
    for (const int code : {0x20AC, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030,
                           0x0160, 0x2039, 0x0152, 0x017D, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
                           0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x017E, 0x0178}) {
        letters += QChar(code);
    }
    for (const QChar letter : letters) {
        EXPECT_TRUE(raw.supportsCharacter(letter)) << static_cast<int>(letter.unicode());
        EXPECT_NEAR(metrics.horizontalAdvance(letter), 12, 0.01) << static_cast<int>(letter.unicode());
    }
}

class Printed_At_1_25 : public Screen {
  protected:
    Printed_At_1_25() : Screen("1.25") {}
};
class Printed_At_2 : public Screen {
  protected:
    Printed_At_2() : Screen("2") {}
};

TEST_F(Printed_At_1_25, panel_keeps_its_logical_size_and_gets_more_pixels) {
    Start();
    EXPECT_EQ(Widget("Editor")->size(), QSize(528, 456));
    EXPECT_EQ(Widget("Editor")->grab().size(), QSize(660, 570));
}

TEST_F(Printed_At_2, panel_keeps_its_logical_size_and_gets_more_pixels) {
    Start();
    EXPECT_EQ(Widget("Editor")->size(), QSize(528, 456));
    EXPECT_EQ(Widget("Editor")->grab().size(), QSize(1056, 912));
}
