// The window Sequencer on the screen.
#pragma once

#include <vector>

#include "desk/child_window.h"
#include "panels/pictures_qt.h"

class Control_Widget;
class QComboBox;
class QLabel;
class QScrollBar;
class Seq_Clock_Widget;
class Seq_Direction_Widget;
class Seq_Key_Names;
class Seq_Matrix_Widget;

class Sequencer_Window : public Child_Window {
  public:
    explicit Sequencer_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QComboBox* List(const char* name, const char* spoken, QRect place, void (*changed)(int));

    std::vector<Control_Widget*> controls_;
    std::vector<Seq_Direction_Widget*> directions_;
    Seq_Matrix_Widget* matrix_;
    Seq_Clock_Widget* clock_;
    Seq_Key_Names* key_names_;
    QComboBox* range_;
    QComboBox* trans_;
    QScrollBar* tempo_;
    QLabel* tempo_label_;
    Printed_Ground ground_;
};
