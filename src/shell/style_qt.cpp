#include "shell/style_qt.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>

void Style_Install() {
    QApplication::setStyle(QStyleFactory::create("Fusion"));
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
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
}
