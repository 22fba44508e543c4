// The file window on the screen.
#pragma once

#include <vector>

#include "desk/child_window.h"

class Control_Widget;
class Entry_List;
class QComboBox;
class QLabel;
class QLineEdit;
struct Control;
struct Lamp;

class File_Dlg_Window : public Child_Window {
  public:
    explicit File_Dlg_Window(QMainWindow* parent);

  protected:
    void Show_Contents() override;
    void Appeared() override;
    void Close_Asked() override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Build_Lists();
    void Build_Panels();
    void Build_Controls();
    QLabel* Label(const char* name, const char* text, QRect place, QWidget* parent, QWidget* buddy);
    QComboBox* List(const char* name, const char* spoken, QRect place, QWidget* parent,
                    void (*changed)(int));
    QWidget* Panel_Of(const Control& control);
    Control_Widget* Widget_Of(const Control* control) const;
    void Show_Lists();
    void Show_Field();
    void Show_Focus();

    QLineEdit* name_;
    Entry_List* files_;
    Entry_List* dirs_;
    QComboBox* drives_;
    QComboBox* filter_;
    QWidget* syx_;
    QWidget* seq_;
    QWidget* osc_;
    QWidget* preview_;
    QComboBox* note_;
    QComboBox* velocity_;
    std::vector<Control_Widget*> controls_;
    int times_selected_ = 0;
    int times_focused_ = 0;
};
