#include "windows/printed.h"

#include <QFontMetricsF>
#include <QString>

#include "panels/pictures_qt.h"

std::vector<Placed> Placed_Texts(const Printing& printing) {
    std::vector<Placed> placed;
    for (const Print_Text& text : printing.texts) {
        if (text.text.empty()) continue;
        const QFontMetricsF metrics(Printing_Font(text.size));
        const QString letters = QString::fromStdString(text.text);
        const double width = metrics.horizontalAdvance(letters);
        double left = text.at.x;
        if (text.align == Align::Centre) left -= width / 2;
        if (text.align == Align::Right) left -= width;
        placed.push_back({text.text, metrics.tightBoundingRect(letters).translated(left, text.at.y)});
    }
    return placed;
}
