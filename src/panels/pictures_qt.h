// The catalogue's drawings and a panel's printing on the screen, sharp at every device pixel ratio.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <utility>

#include "panels/pictures.h"
#include "panels/printing.h"

// Makes the drawings and the face known to the toolkit. Called once, before any window.
void Pictures_Open();

// The drawing of a picture at this ratio; made once and kept. Null for Picture_Store::None.
const QPixmap& Picture_Pixmap(const Picture& picture, qreal ratio);

// The program's icon for its windows, in the sizes that desktops ask for.
QIcon Program_Icon();

QColor Ink_Colour(Ink ink);

// The face of the printing; it comes with the program.
QFont Printing_Font(double pixels);

void Paint_Printing(QPainter& painter, const Printing& printing);

// A window's ground with its printing, drawn once for each device pixel ratio.
class Printed_Ground {
  public:
    explicit Printed_Ground(Printing printing) : printing_(std::move(printing)) {}
    void Paint(QWidget& window);

  private:
    Printing printing_;
    QPixmap drawn_;
};
