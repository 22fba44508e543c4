#include "panels/reader_qt.h"

#include <QAccessible>

bool Reader_Listens() {
    return QAccessible::isActive();
}

void Reader_Tell(QAccessibleEvent& event) {
    QAccessible::updateAccessibility(&event);
}
