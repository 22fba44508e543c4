// The main window on the screen: menu bar, ground, panels, and the dialogs that belong to it.
#pragma once

#include <QMainWindow>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desk/windows.h"

class Child_Window;
class QActionGroup;
class Panel_Window;

class App_Window : public QMainWindow {
  public:
    App_Window();
    ~App_Window() override;

    // Brings every window up to the records. A window's widgets are made when its record is loaded.
    void Show_Changes();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Build_Menus();
    void Show_Menus();
    void Show_Window_List();
    void Show_Panels();
    void Show_Children();
    void Show_Place();
    void Take_Place();
    void Show_Frame();

    // Place, size and state as record and screen last agreed on them. Where the record differs now, a rule
    // has spoken; what the user does with the window goes into both.
    struct Place {
        int left, top, width, height;
        Window_State state;
    };
    static Place Wanted_Place();

    QWidget* ground_;
    std::vector<Panel_Window*> panels_;    // one for each row of Panels, once it is loaded
    std::vector<Child_Window*> children_;  // one for each row of Children, null until it is needed
    std::vector<QAction*> entries_;        // one for each row of Menu_Tree
    // The windows that the list shows. The two panels bear the same caption, so that alone tells too
    // little.
    using Listed_Window = std::pair<Window*, std::string>;
    std::vector<Listed_Window> listed_;
    QActionGroup* list_;
    Place agreed_;
    bool showing_ = false;
    bool changed_meanwhile_ = false;
};
