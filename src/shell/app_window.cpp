#include "shell/app_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScopedValueRollback>

#include "desk/menus.h"
#include "desk/windows.h"
#include "filedlg/file_dlg_window.h"
#include "filedlg/input_dlg_window.h"
#include "help/help_window.h"
#include "oscwin/oscillator_window.h"
#include "panels/editor.h"
#include "panels/editor_printing.h"
#include "panels/juno_panel.h"
#include "panels/juno_printing.h"
#include "panels/mks_patch_window.h"
#include "panels/panel_window.h"
#include "panels/patch_window.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"
#include "seqwin/seqwin_window.h"
#include "setup/setup_window.h"
#include "shell/frame.h"
#include "tname/tname_window.h"

namespace {

// The frame's client area: the ground behind and around the panels.
class Ground : public QWidget {
  public:
    explicit Ground(QWidget* parent) : QWidget(parent) { setObjectName("Back_Pic"); }

  protected:
    void paintEvent(QPaintEvent*) override {
        const QPixmap& tile = Picture_Pixmap(Picture_Of(Picture_Store::Back_Pic), devicePixelRatioF());
        QPainter(this).drawTiledPixmap(rect(), tile);
    }
    void mousePressEvent(QMouseEvent*) override { Guarded_Event(Main_Background_Click); }
};

// As the toolkit writes a caption: of several "&" only the first marks a letter, the others are part of a
// path.
QString Toolkit_Caption(const std::string& caption) {
    const QString text = QString::fromStdString(caption).trimmed();
    const qsizetype behind_mark = text.indexOf('&') + 1;
    return text.left(behind_mark) + text.mid(behind_mark).replace("&", "&&");
}

// An entry is of use when something happens on it or below it.
bool Has_Function(std::size_t index) {
    if (Menu_Tree[index].chosen.Filled()) return true;
    for (std::size_t below = index + 1; below < Menu_Tree.size(); ++below) {
        if (Menu_Tree[below].level <= Menu_Tree[index].level) return false;
        if (Menu_Tree[below].visible && Menu_Tree[below].chosen.Filled()) return true;
    }
    return false;
}

// A menu that has opened is a window of its own, and says what it is called.
void Show_Caption(QAction& action, const QString& caption) {
    if (action.text() == caption) return;
    action.setText(caption);
    QString name = caption;
    if (action.menu() != nullptr) action.menu()->setAccessibleName(name.remove('&'));
}

bool Is_Separator(const Menu_Entry& entry) {
    return entry.caption == "-";
}

Qt::CursorShape Shape_Of(Pointer pointer) {
    return pointer == Pointer::Hourglass ? Qt::WaitCursor : Qt::ArrowCursor;
}

// However small a stored size is, there is a window to take hold of.
constexpr QSize Smallest_Frame(120, 40);

Qt::WindowState Toolkit_State(Window_State state) {
    if (state == Window_State::Minimised) return Qt::WindowMinimized;
    return state == Window_State::Maximised ? Qt::WindowMaximized : Qt::WindowNoState;
}

template <class Kind>
Child_Window* Make(QMainWindow* parent) {
    return new Kind(parent);
}

struct Child_Row {
    Window& record;
    Child_Window* (*make)(QMainWindow* parent);
};

struct Panel_Row {
    const Panel& panel;
    Printing (*printing)();
};

// The panels in the frame's client area; the profile shows one of them.
constexpr Panel_Row Panels[] = {
    {Editor_Panel, Editor_Printing},
    {Juno_Panel, Juno_Printing},
};

// The windows over the main one.
// clang-format off
constexpr Child_Row Children[] = {
    {MIDI_Setup, Make<Setup_Window>},
    {TName, Make<TName_Window>},
    {Patch, Make<Patch_Window>},
    {Patch_MKS70, Make<MKS_Patch_Window>},
    {Sequencer, Make<Sequencer_Window>},
    {Oscillator, Make<Oscillator_Window>},
    {File_Dlg, Make<File_Dlg_Window>},
    {Input_Dlg, Make<Input_Dlg_Window>},
    {Help, Make<Help_Window>},
};
// clang-format on

}  // namespace

App_Window::App_Window()
    : ground_(new Ground(this)),
      panels_(std::size(Panels)),
      children_(std::size(Children)),
      list_(new QActionGroup(this)),
      agreed_(Wanted_Place()) {
    setObjectName(Main_Window.name);
    setCentralWidget(ground_);
    setMinimumSize(Smallest_Frame);
    resize(Main_Window.width, Main_Window.height);
    move(Main_Window.left, Main_Window.top);
    Build_Menus();
}

App_Window::~App_Window() = default;

void App_Window::Build_Menus() {
    std::vector<QMenu*> open_menus;  // the menu at each level above the row
    for (std::size_t index = 0; index < Menu_Tree.size(); ++index) {
        const Menu_Entry& entry = Menu_Tree[index];
        const auto level = static_cast<std::size_t>(entry.level);
        open_menus.resize(level);
        const bool has_below = index + 1 < Menu_Tree.size() && Menu_Tree[index + 1].level > entry.level;
        QAction* action = nullptr;
        if (has_below) {
            QMenu* menu = level == 0 ? menuBar()->addMenu("") : open_menus.back()->addMenu("");
            connect(menu, &QMenu::aboutToShow, [&entry] { Guarded_Event([&entry] { entry.opened(); }); });
            open_menus.push_back(menu);
            action = menu->menuAction();
        } else {
            action = open_menus.back()->addAction("");
            action->setSeparator(Is_Separator(entry));
            action->setShortcut(QKeySequence(entry.shortcut));
            // The windows over this one are parts of it, and have no menu of their own.
            action->setShortcutContext(Qt::ApplicationShortcut);
            connect(action, &QAction::triggered, [&entry] { Guarded_Event([&entry] { entry.chosen(); }); });
        }
        action->setObjectName(entry.name);
        entries_.push_back(action);
    }
}

void App_Window::Show_Menus() {
    for (std::size_t index = 0; index < Menu_Tree.size(); ++index) {
        const Menu_Entry& entry = Menu_Tree[index];
        QAction& action = *entries_[index];
        // The toolkit draws a line for a separator that has no text, and the text of one that has.
        if (!Is_Separator(entry)) Show_Caption(action, Toolkit_Caption(entry.caption));
        action.setVisible(entry.visible && (Has_Function(index) || Is_Separator(entry)));
        action.setEnabled(entry.enabled);
        if (entry.checked) action.setCheckable(true);
        if (action.isCheckable()) action.setChecked(entry.checked);
    }
}

// The windows inside the frame, below the entries of Menu_Windows; choosing one brings it to the front.
void App_Window::Show_Window_List() {
    std::vector<Listed_Window> open;
    for (Window* window : Windows_Inside()) open.emplace_back(window, window->caption);
    if (open == listed_) return;
    listed_ = open;
    QMenu* menu = entries_[Menu_Windows]->menu();
    qDeleteAll(list_->actions());
    list_->addAction(menu->addSeparator());
    for (std::size_t place = 0; place < open.size(); ++place) {
        QString caption = QString::fromStdString(open[place].second);
        caption.replace("&", "&&");
        QAction* entry = list_->addAction(menu->addAction(QString("&%1 %2").arg(place + 1).arg(caption)));
        connect(entry, &QAction::triggered,
                [window = open[place].first] { Guarded_Event([window] { Window_Show(*window); }); });
    }
}

void App_Window::Show_Panels() {
    for (std::size_t index = 0; index < std::size(Panels); ++index) {
        const auto& [panel, printing] = Panels[index];
        Panel_Window*& shown = panels_[index];
        if (panel.window->loaded && shown == nullptr) shown = new Panel_Window(panel, printing(), ground_);
        if (shown != nullptr) shown->Show_Changes();
    }
}

// Behind the frame, as not every desktop lets a window come to the front later.
void App_Window::Show_Children() {
    for (std::size_t index = 0; index < std::size(Children); ++index) {
        Child_Window*& child = children_[index];
        if (Children[index].record.loaded && child == nullptr && isVisible()) {
            child = Children[index].make(this);
        }
        if (child != nullptr) child->Show_Changes();
    }
}

void App_Window::Show_Changes() {
    // Moving the focus and showing windows are events themselves: what they change is shown by one more
    // round.
    if (showing_) {
        changed_meanwhile_ = true;
        return;
    }
    constexpr int Most_Rounds = 3;
    const QScopedValueRollback<bool> showing(showing_, true);
    changed_meanwhile_ = true;
    for (int round = 0; changed_meanwhile_ && round < Most_Rounds; ++round) {
        changed_meanwhile_ = false;
        setWindowTitle(QString::fromStdString(Main_Window.caption));
        if (cursor().shape() != Shape_Of(Main_Window.pointer)) setCursor(Shape_Of(Main_Window.pointer));
        Show_Menus();
        Show_Window_List();
        Show_Panels();
        Show_Place();
        Show_Frame();
        Show_Children();
    }
}

App_Window::Place App_Window::Wanted_Place() {
    return {Main_Window.left, Main_Window.top, Main_Window.width, Main_Window.height, Main_Window.state};
}

// Brings the window to where the rules want it, and nothing else: a frame that the user has moved stays.
void App_Window::Show_Place() {
    const Place before = agreed_;
    Place wanted = Wanted_Place();
    const bool moved = wanted.left != before.left || wanted.top != before.top;
    const bool sized = wanted.width != before.width || wanted.height != before.height;
    if (!moved && !sized && wanted.state == before.state) {
        // The desktop may put its border round a window later, and tells nobody that it moved by that.
        if (isVisible()) Take_Place();
        return;
    }

    // A window that fills the screen or none of it has no place and size to give: it leaves that state.
    if ((moved || sized) && before.state != Window_State::Normal) {
        wanted.state = Window_State::Normal;
        setWindowState(Qt::WindowNoState);
    }
    if (sized) resize(wanted.width, wanted.height);
    if (moved) move(wanted.left, wanted.top);
    if (windowState() != Toolkit_State(wanted.state)) setWindowState(Toolkit_State(wanted.state));
    Take_Place();
}

// What the screen says, into the record.
void App_Window::Take_Place() {
    if (isMinimized()) {
        Main_Window.state = Window_State::Minimised;
        Main_Window.left = Main_Window.top = Minimised_Place;
    } else {
        Main_Window.state = isMaximized() ? Window_State::Maximised : Window_State::Normal;
        Main_Window.left = x();
        Main_Window.top = y();
        Main_Window.width = width();
        Main_Window.height = height();
    }
    agreed_ = Wanted_Place();
}

// The frame appears when the start-up has ended, and goes with the end.
void App_Window::Show_Frame() {
    if (isVisible() == Main_Window.visible) return;
    setVisible(Main_Window.visible);
    if (!Main_Window.visible) {
        QApplication::quit();
        return;
    }
    // To activate a minimised window is to open it.
    if (isMinimized()) return;
    raise();
    activateWindow();
}

void App_Window::closeEvent(QCloseEvent* event) {
    bool ended = false;
    Show_Place();
    Guarded_Event([&ended] { ended = Main_Close(); });
    event->setAccepted(ended);
}

void App_Window::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isVisible()) Take_Place();
}

void App_Window::moveEvent(QMoveEvent*) {
    if (isVisible()) Take_Place();
}

void App_Window::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (isVisible()) Take_Place();
}
