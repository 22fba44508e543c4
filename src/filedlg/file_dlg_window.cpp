#include "filedlg/file_dlg_window.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>

#include "desk/form_qt.h"
#include "filedlg/entry_list_widget.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/file_ok.h"
#include "filedlg/folder_model.h"
#include "filedlg/linking.h"
#include "filedlg/name_text_qt.h"
#include "filedlg/preview.h"
#include "filedlg/preview_widget.h"
#include "filedlg/state.h"
#include "panels/control_widget.h"
#include "panels/pictures_qt.h"
#include "platform/files.h"
#include "platform/gate.h"

namespace {

constexpr int Indent = 8;
constexpr int Deepest_Indent = 9 * Indent;
constexpr double Caption_Size = 13;
constexpr double Heading_Size = 12;

// One place for the three panels.
constexpr QRect Panel_Place(14, 298, 512, 132);

void Event(const std::function<void()>& handler) {
    Guarded_Event([&handler] { FD_Event(handler); });
}

Entry_Look File_Look(int row) {
    const auto& entries = FD_List_Files.entries;
    const auto index = static_cast<std::size_t>(row);
    return {index < entries.size() ? Name_Text(entries[index]) : QString()};
}

// The root by its whole name, all others by their last.
Entry_Look Folder_Look(int row) {
    const auto& entries = FD_List_Dirs.entries;
    const auto index = static_cast<std::size_t>(row);
    if (index >= entries.size()) return {};
    const std::string& path = entries[index];
    const std::string name = path.size() == 1 ? path : path.substr(path.rfind(Path_Separator) + 1);
    const int depth = std::min(row, FD_List_Dirs.levels);
    const bool open = row < FD_List_Dirs.levels;
    return {Name_Text(name), Picture_Of(Picture_Store::FD_Icons, open ? 1 : 0),
            std::min(depth * Indent, Deepest_Indent)};
}

// Reads the volumes when it opens: one may have been plugged in.
class Drive_Box : public QComboBox {
  public:
    using QComboBox::QComboBox;
    void showPopup() override {
        Event(FD_List_Drives_Refresh);
        QComboBox::showPopup();
    }
};

}  // namespace

QLabel* File_Dlg_Window::Label(const char* name, const char* text, QRect place, QWidget* parent,
                               QWidget* buddy) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setFont(Printing_Font(Caption_Size));
    label->setGeometry(place);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setBuddy(buddy);
    return label;
}

QComboBox* File_Dlg_Window::List(const char* name, const char* spoken, QRect place, QWidget* parent,
                                 void (*changed)(int)) {
    auto* list = std::string_view(name) == "FD_List_Drives" ? new Drive_Box(parent) : new QComboBox(parent);
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    list->setGeometry(place);
    list->setMaxVisibleItems(12);
    connect(list, &QComboBox::activated, [changed](int index) { Event([&] { changed(index); }); });
    return list;
}

File_Dlg_Window::File_Dlg_Window(QMainWindow* parent) : Child_Window(File_Dlg, parent) {
    Build_Lists();
    Build_Panels();
    Build_Controls();
    // The window sees all keys first.
    for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
    installEventFilter(this);
}

void File_Dlg_Window::Build_Lists() {
    name_ = new QLineEdit(this);
    name_->setObjectName("FD_FileName");
    name_->setAccessibleName("File Name");
    name_->setGeometry(15, 30, 212, 28);
    name_->setFrame(false);
    name_->setTextMargins(2, 0, 2, 0);
    connect(name_, &QLineEdit::textEdited,
            [](const QString& text) { Event([&] { FD_FileName_Change(text.toStdString()); }); });
    connect(name_, &QLineEdit::returnPressed, [] { Event(FD_Button_Ok_Click); });

    files_ = new Entry_List(
        "FD_List_Files", "Files",
        {FD_List_Files_Move, FD_List_Files_MouseDown, FD_List_Files_DblClick, FD_List_Files_Choose}, this);
    files_->setGeometry(15, 70, 212, 160);
    filter_ = List("FD_List_Filter", "List Files of Type", {14, 258, 214, 26}, this, FD_List_Filter_Click);
    dirs_ = new Entry_List(
        "FD_List_Dirs", "Directory",
        {FD_List_Dirs_Move, FD_List_Dirs_MouseDown, FD_List_Dirs_Open, FD_List_Dirs_Choose}, this);
    dirs_->setGeometry(241, 30, 192, 200);
    drives_ = List("FD_List_Drives", "Drives", {240, 258, 194, 26}, this, FD_List_Drives_Change);

    Label("FD_Label_FileName", FD_Label_FileName, {14, 10, 214, 18}, this, name_);
    Label("FD_Label_FileType", FD_Label_FileType, {14, 238, 214, 18}, this, filter_);
    Label("FD_Label_Dir", FD_Label_Dir, {240, 10, 194, 18}, this, dirs_);
    Label("FD_Label_Drives", FD_Label_Drives, {240, 238, 194, 18}, this, drives_);
}

void File_Dlg_Window::Build_Panels() {
    for (QWidget** panel : {&syx_, &seq_, &osc_}) {
        *panel = new QWidget(this);
        (*panel)->setGeometry(Panel_Place);
    }
    syx_->setObjectName("FD_SYX");
    seq_->setObjectName("FD_SEQ");
    osc_->setObjectName("FD_OSC");

    note_ = List("FD_SYX_SoundCheck_Note_List", "Soundcheck note", {312, 39, 66, 26}, syx_,
                 FD_SYX_SoundCheck_Note_List_Click);
    Label("FD_SYX_Label_Note", "Note", {276, 43, 40, 18}, syx_, note_);
    velocity_ = List("FD_SYX_SoundCheck_Velocity_List", "Soundcheck velocity", {446, 39, 58, 26}, syx_,
                     FD_SYX_SoundCheck_Velocity_List_Click);
    Label("FD_SYX_Label_Velocity", "Velocity", {392, 43, 56, 18}, syx_, velocity_);
    preview_ = new Sequence_Preview(seq_);
    preview_->move(430, 13);
    (new Curve_Preview(osc_))->setGeometry(14, 30, 484, 90);
}

QWidget* File_Dlg_Window::Panel_Of(const Control& control) {
    const std::string_view name = control.name;
    if (name.starts_with("FD_SYX_")) return syx_;
    return name.starts_with("FD_SEQ_") ? seq_ : this;
}

Control_Widget* File_Dlg_Window::Widget_Of(const Control* control) const {
    for (Control_Widget* widget : controls_) {
        if (&widget->Record() == control) return widget;
    }
    return nullptr;
}

void File_Dlg_Window::Build_Controls() {
    for (Control* control : File_Panel.controls) {
        QWidget* below = Widget_Of(control->parent);
        if (below == nullptr) below = Panel_Of(*control);
        controls_.push_back(new Control_Widget(*control, File_Panel, below));
        if (control->focusable && control->width == control->height) {
            controls_.back()->setToolTip(control->spoken_name);
        }
    }
    // A lamp's caption belongs to it: a click on either switches it.
    const std::pair<const Lamp*, const char*> captions[] = {
        {&FD_SYX_CB_Autoplay, FD_Caption_Autoplay},        {&FD_SYX_CB_Autosend, FD_Caption_Autosend},
        {&FD_SYX_OB_Soundcheck[0], FD_Caption_Soundcheck}, {&FD_SYX_OB_Soundcheck[1], FD_Caption_Sequence},
        {&FD_SEQ_CB_Autoplay, FD_Caption_Autoplay},
    };
    for (const auto& [lamp, text] : captions) {
        Control_Widget* widget = Widget_Of(&lamp->control);
        Label("", text, {21, -2, 82, 18}, widget, widget);
    }
}

void File_Dlg_Window::Show_Lists() {
    files_->Show(FD_List_Files.revision, static_cast<int>(FD_List_Files.entries.size()),
                 FD_List_Files.index, File_Look);
    dirs_->Show(FD_List_Dirs.revision, static_cast<int>(FD_List_Dirs.entries.size()), FD_List_Dirs.index,
                Folder_Look);
    Show_List(*drives_, FD_List_Drives);
    Show_List(*filter_, FD_List_Filter);
    Show_List(*note_, FD_SYX_SoundCheck_Note_List);
    Show_List(*velocity_, FD_SYX_SoundCheck_Velocity_List);
}

void File_Dlg_Window::Show_Field() {
    const QString text = Name_Text(FD_FileName.text);
    if (name_->text() != text) name_->setText(text);
    if (times_selected_ == FD_FileName.times_selected) return;
    times_selected_ = FD_FileName.times_selected;
    name_->selectAll();
}

void File_Dlg_Window::Show_Focus() {
    if (times_focused_ == FD_Focus.times) return;
    times_focused_ = FD_Focus.times;
    const std::pair<FD_Field, QWidget*> fields[] = {
        {FD_Field::FileName, name_}, {FD_Field::Files, files_},   {FD_Field::Dirs, dirs_},
        {FD_Field::Drives, drives_}, {FD_Field::Filter, filter_},
    };
    for (const auto& [field, widget] : fields) {
        if (field == FD_Focus.field) widget->setFocus(Qt::ShortcutFocusReason);
    }
}

void File_Dlg_Window::Show_Contents() {
    Show_Lists();
    syx_->setVisible(FD_Shown_Panel == FD_Panel::SYX);
    seq_->setVisible(FD_Shown_Panel == FD_Panel::SEQ);
    osc_->setVisible(FD_Shown_Panel == FD_Panel::OSC);
    for (Control_Widget* widget : controls_) widget->Show_Changes();
    preview_->update();
    Show_Focus();
    Show_Field();
}

void File_Dlg_Window::Appeared() {
    name_->setFocus();
    name_->selectAll();
}

void File_Dlg_Window::Close_Asked() {
    FD_Event(FD_Button_Cancel_Click);
}

void File_Dlg_Window::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Ink_Colour(Ink::Ground));
    for (const QWidget* framed :
         {static_cast<QWidget*>(name_), static_cast<QWidget*>(files_), static_cast<QWidget*>(dirs_)}) {
        painter.setPen(Ink_Colour(framed->hasFocus() ? Ink::Heading : Ink::Frame));
        painter.drawRect(QRectF(framed->geometry()).adjusted(-0.5, -0.5, 0.5, 0.5));
    }
    if (FD_Shown_Panel == FD_Panel::None) return;
    painter.setPen(Ink_Colour(Ink::Frame));
    painter.drawRect(QRectF(Panel_Place).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setFont(Printing_Font(Heading_Size));
    painter.setPen(Ink_Colour(Ink::Heading));
    painter.drawText(Panel_Place.left() + 8, Panel_Place.top() + 18, "PREVIEW");
}

bool File_Dlg_Window::eventFilter(QObject* watched, QEvent* event) {
    // The frames show where the keyboard is.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) {
        return Child_Window::eventFilter(watched, event);
    }
    auto* key = static_cast<QKeyEvent*>(event);
    const Qt::KeyboardModifiers held =
        key->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    const bool alt = held == Qt::AltModifier;
    const bool letter = key->key() >= Qt::Key_A && key->key() <= Qt::Key_Z;
    const char code = key->key() == Qt::Key_Escape ? '\x1B' : letter ? static_cast<char>(key->key()) : '\0';
    if ((held != Qt::NoModifier && !alt) || !FD_Takes_Key(code, alt)) {
        return Child_Window::eventFilter(watched, event);
    }
    event->accept();
    if (event->type() == QEvent::KeyPress) Event([code, alt] { FD_Key(code, alt); });
    return true;
}
