#include "shell/style_qt.h"

#include <QApplication>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "panels/pictures_qt.h"

namespace {

// The stock controls in the panels' manner: what can be switched, opened or filled in has an edge that is
// seen on the dark ground, and what has the keyboard has a bright one, also when the pointer brought it
// there.
class House_Style : public QProxyStyle {
  public:
    explicit House_Style(QObject* owner) : QProxyStyle(QStyleFactory::create("Fusion")) {
        setParent(owner);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        switch (element) {
            case PE_FrameFocusRect:
                return Draw_Edge(*painter, option->rect, Ink::Heading);
            case PE_FrameMenu:
                return Draw_Edge(*painter, option->rect, Ink::Frame);
            case PE_Frame:
                return Draw_Edge(*painter, option->rect,
                                 option->state.testFlag(State_HasFocus) ? Ink::Heading : Ink::Frame);
            case PE_PanelButtonCommand:
                QProxyStyle::drawPrimitive(element, option, painter, widget);
                if (option->state.testFlag(State_HasFocus))
                    Draw_Edge(*painter, option->rect.adjusted(3, 3, -3, -3), Ink::Heading);
                return;
            case PE_IndicatorCheckBox:
                QProxyStyle::drawPrimitive(element, option, painter, widget);
                return Draw_Edge(*painter, option->rect,
                                 option->state.testFlag(State_Enabled) ? Ink::Faint : Ink::Frame);
            default:
                QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_ScrollBar && option->state.testFlag(State_HasFocus)) {
            Draw_Edge(*painter, option->rect, Ink::Heading);
        }
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_MenuPanelWidth ? 1 : QProxyStyle::pixelMetric(metric, option, widget);
    }

  private:
    static void Draw_Edge(QPainter& painter, const QRect& place, Ink ink) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Ink_Colour(ink), 1));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        painter.restore();
    }
};

}  // namespace

void Style_Install() {
    QApplication::setStyle(new House_Style(qApp));
    const QColor text(0xec, 0xea, 0xe2);
    const QColor faint(0x80, 0x84, 0x88);
    const QColor accent(0x2b, 0x8f, 0x84);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x25, 0x28, 0x2d));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x17, 0x19, 0x1c));
    palette.setColor(QPalette::AlternateBase, QColor(0x1e, 0x20, 0x24));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x33, 0x37, 0x3d));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x33, 0x37, 0x3d));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, QColor(0x4f, 0xd0, 0xc0));
    palette.setColor(QPalette::LinkVisited, QColor(0x4f, 0xd0, 0xc0));
    // The shades of edges too, and the shadow of a disabled text: what is not said here is the desktop's,
    // and a light desktop would put white behind grey letters.
    palette.setColor(QPalette::Light, QColor(0x1a, 0x1c, 0x20));
    palette.setColor(QPalette::Midlight, QColor(0x3d, 0x42, 0x49));
    palette.setColor(QPalette::Mid, QColor(0x1f, 0x22, 0x26));
    palette.setColor(QPalette::Dark, QColor(0x14, 0x16, 0x19));
    palette.setColor(QPalette::Shadow, Qt::black);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
}
