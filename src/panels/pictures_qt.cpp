#include "panels/pictures_qt.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QPolygonF>
#include <QSvgRenderer>
#include <QWidget>
#include <map>
#include <tuple>

namespace {

using Key = std::tuple<Picture_Store, int, qreal>;
std::map<Key, QPixmap> Drawn;

QPixmap Draw(const Picture& picture, qreal ratio) {
    const Picture_Role& role = Role_Of(picture);
    QPixmap pixmap(QSize(qRound(role.width * ratio), qRound(role.height * ratio)));
    pixmap.fill(Qt::transparent);
    QSvgRenderer drawing(
        QString(":/pictures/%1.svg").arg(QString::fromStdString(Picture_File_Stem(picture))));
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QString Printing_Family() {
    static const int number = QFontDatabase::addApplicationFont(":/fonts/panel.ttf");
    const QStringList families = QFontDatabase::applicationFontFamilies(number);
    return families.isEmpty() ? QString("sans-serif") : families.front();
}

}  // namespace

void Pictures_Open() {
    Q_INIT_RESOURCE(pictures);
    Q_INIT_RESOURCE(panel_font);
    // Pixmaps must not outlive the application.
    qAddPostRoutine([] { Drawn.clear(); });
}

const QPixmap& Picture_Pixmap(const Picture& picture, qreal ratio) {
    static const QPixmap nothing;
    if (picture.store == Picture_Store::None) return nothing;
    const auto [place, made] = Drawn.try_emplace({picture.store, picture.item, ratio});
    if (made) place->second = Draw(picture, ratio);
    return place->second;
}

QIcon Program_Icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addFile(QString(":/app/%1.png").arg(size));
    return icon;
}

QColor Ink_Colour(Ink ink) {
    switch (ink) {
        case Ink::Ground:
            return {0x1b, 0x1d, 0x21};
        case Ink::Frame:
            return {0x4d, 0x55, 0x60};
        case Ink::Heading:
            return {0x4f, 0xd0, 0xc0};
        case Ink::Print:
            return {0xf2, 0xef, 0xe6};
        case Ink::Faint:
            return {0xa6, 0xa8, 0xa8};
        case Ink::Rail:
            return {0x05, 0x06, 0x07};
    }
    return {};
}

QFont Printing_Font(double pixels) {
    static const QString family = Printing_Family();
    QFont font(family);
    font.setBold(true);
    font.setPixelSize(qRound(pixels));
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

void Paint_Printing(QPainter& painter, const Printing& printing) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    for (const Print_Line& line : printing.lines) {
        QPolygonF points;
        for (const Print_Point& point : line.points) points << QPointF(point.x, point.y);
        painter.setPen(QPen(Ink_Colour(line.ink), line.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        if (line.closed) {
            painter.drawPolygon(points);
        } else {
            painter.drawPolyline(points);
        }
    }
    for (const Print_Text& text : printing.texts) {
        const QFont font = Printing_Font(text.size);
        painter.setFont(font);
        painter.setPen(Ink_Colour(text.ink));
        const QString letters = QString::fromStdString(text.text);
        const double width = QFontMetricsF(font).horizontalAdvance(letters);
        double left = text.at.x;
        if (text.align == Align::Centre) left -= width / 2;
        if (text.align == Align::Right) left -= width;
        painter.drawText(QPointF(left, text.at.y), letters);
    }
}

void Printed_Ground::Paint(QWidget& window) {
    const qreal ratio = window.devicePixelRatioF();
    if (drawn_.isNull() || drawn_.devicePixelRatio() != ratio) {
        drawn_ = QPixmap(window.size() * ratio);
        drawn_.setDevicePixelRatio(ratio);
        drawn_.fill(Ink_Colour(Ink::Ground));
        QPainter print(&drawn_);
        Paint_Printing(print, printing_);
    }
    QPainter(&window).drawPixmap(0, 0, drawn_);
}
