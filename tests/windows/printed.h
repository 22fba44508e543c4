// What is printed on a panel, as rectangles of ink.
#pragma once

#include <QRectF>
#include <string>
#include <vector>

#include "panels/printing.h"

struct Placed {
    std::string text;
    QRectF ink;
};

// The ink of each text, in the panel's logical pixels. A text without letters has none.
std::vector<Placed> Placed_Texts(const Printing& printing);
