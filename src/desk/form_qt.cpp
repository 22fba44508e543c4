#include "desk/form_qt.h"

#include <QLabel>
#include <QSignalBlocker>

void Show_List(QComboBox& widget, const Drop_Down& record) {
    const QSignalBlocker quiet(widget);
    QStringList entries;
    for (const std::string& entry : record.entries) entries << QString::fromStdString(entry);
    QStringList shown;
    for (int index = 0; index < widget.count(); ++index) shown << widget.itemText(index);
    if (shown != entries) {
        widget.clear();
        widget.addItems(entries);
    }
    widget.setCurrentIndex(record.selected);
    if (widget.isEnabledTo(widget.parentWidget()) == record.enabled) return;
    widget.setEnabled(record.enabled);
    // What is printed beside it goes grey with it.
    for (QLabel* label : widget.parentWidget()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (label->buddy() == &widget) label->setEnabled(record.enabled);
    }
}

void Show_Box(QCheckBox& widget, const Check_Box& record) {
    widget.setChecked(record.checked);
    widget.setEnabled(record.enabled);
}
