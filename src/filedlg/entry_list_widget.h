// A list of the file window on the screen: one row an entry, however many there are.
#pragma once

#include <QListView>
#include <functional>

#include "panels/pictures.h"

// What a row shows.
struct Entry_Look {
    QString text;
    Picture icon = {};
    int indent = 0;  // pixels
};

// What the user does, by rows; -1 is no row.
struct Entry_Events {
    void (*moved)(int row);
    void (*pressed)(int row);  // any mouse button
    void (*double_clicked)();
    void (*chosen)();  // the blank key
};

class Entry_List : public QListView {
  public:
    Entry_List(const char* name, const char* spoken, Entry_Events events, QWidget* parent);

    // Brings the list up to its record: anew when the record was listed anew, else the chosen row only.
    void Show(int revision, int count, int index, std::function<Entry_Look(int row)> look);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    class Rows;

    Rows* rows_;
    Entry_Events events_;
    int revision_ = -1;
    bool showing_ = false;
};
