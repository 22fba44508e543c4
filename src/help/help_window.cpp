#include "help/help_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "desk/ansi_qt.h"
#include "desk/windows.h"
#include "help/help.h"
#include "help/howto.h"
#include "help/howto_printing.h"
#include "panels/panel_window.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"

namespace {

// One of the catalogue's pictures, sharp at every device pixel ratio.
class Picture_View : public QWidget {
  public:
    Picture_View(const char* name, Picture_Store store) : picture_(Picture_Of(store)) {
        setObjectName(name);
        setFixedSize(Role_Of(picture_).width, Role_Of(picture_).height);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter(this).drawPixmap(0, 0, Picture_Pixmap(picture_, devicePixelRatioF()));
    }

  private:
    Picture picture_;
};

QLabel* Heading(const char* name, const char* text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setBuddy(buddy);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Ink_Colour(Ink::Heading));
    label->setPalette(palette);
    return label;
}

// A record's lines, of which each ends with carriage return and line feed, or with a line feed alone.
QString Lines_Of(const std::string& text) {
    QString lines;
    std::string line;
    for (const char character : text) {
        if (character == '\n') {
            lines += From_ANSI(line) + '\n';
            line.clear();
        } else if (character != '\r') {
            line += character;
        }
    }
    return lines + From_ANSI(line);
}

void Show_Text(QPlainTextEdit& widget, const std::string& text) {
    const QString lines = Lines_Of(text);
    if (widget.toPlainText() != lines) widget.setPlainText(lines);
}

void Show_Entries(QListWidget& widget, const Drop_Down& record) {
    const QSignalBlocker quiet(widget);
    QStringList entries;
    for (const std::string& entry : record.entries) entries << From_ANSI(entry);
    QStringList shown;
    for (int row = 0; row < widget.count(); ++row) shown << widget.item(row)->text();
    if (shown != entries) {
        widget.clear();
        widget.addItems(entries);
    }
    if (widget.currentRow() != record.selected) widget.setCurrentRow(record.selected);
}

void Show_Frame(QWidget& frame, const char* page) {
    const bool wanted = Help_Window_Form.page == page;
    if (frame.isHidden() == wanted) frame.setVisible(wanted);
}

// The button of the visible page is down and has its name lit.
void Show_Button(QPushButton& button, const char* page) {
    const bool down = Help_Window_Form.page == page;
    button.setChecked(down);
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, Ink_Colour(down ? Ink::Heading : Ink::Print));
    if (button.palette() != palette) button.setPalette(palette);
}

QPushButton* Page_Button(const char* name, const char* caption, void (*clicked)()) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    button->setCheckable(true);
    // The Return key belongs to no page.
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, [clicked] { Guarded_Event(clicked); });
    return button;
}

}  // namespace

QListWidget* Help_Window::List(const char* name, const char* spoken, void (*chosen)(int)) {
    auto* list = new QListWidget;
    list->setObjectName(name);
    list->setAccessibleName(spoken);
    connect(list, &QListWidget::currentRowChanged,
            [chosen](int row) { Guarded_Event([&] { chosen(row); }); });
    return list;
}

QPlainTextEdit* Help_Window::Text(const char* name, const char* spoken) {
    auto* text = new QPlainTextEdit;
    text->setObjectName(name);
    text->setAccessibleName(spoken);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->document()->setDocumentMargin(8);
    return text;
}

// A text beside a control: not a stop on the way of the TAB key.
QPlainTextEdit* Help_Window::Read_Out(const char* name, const char* spoken) {
    QPlainTextEdit* text = Text(name, spoken);
    text->setFocusPolicy(Qt::NoFocus);
    return text;
}

QWidget* Help_Window::Make_Credits() {
    auto* frame = new QWidget;
    frame->setObjectName("Frame_Credits");
    about_ = Text("About", "Informations");
    credits_ = List("Credits", "Credits", Help_Credits_Click);
    credits_why_ = Read_Out("Credits_Why", "Reason");
    credits_why_->setFixedHeight(74);

    auto* signs = new QHBoxLayout;
    signs->setSpacing(16);
    signs->addWidget(new Picture_View("Help_Pic_Tonebench", Picture_Store::Pic_Tonebench));
    signs->addWidget(new Picture_View("Help_Pic_Sign", Picture_Store::Pic_Sign));
    signs->addStretch(1);
    auto* left = new QVBoxLayout;
    left->addLayout(signs);
    left->addWidget(Heading("Label5", Help_Label_About, about_));
    left->addWidget(about_, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(Heading("Label10", Help_Label_Credits, credits_));
    right->addWidget(credits_, 1);
    right->addWidget(credits_why_);
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    layout->addLayout(left, 5);
    layout->addLayout(right, 3);
    return frame;
}

QWidget* Help_Window::Make_Howto() {
    auto* frame = new QWidget;
    frame->setObjectName("Frame_Howto");
    ground_ = new Panel_Window(Howto_Panel, Howto_Printing(), frame);
    info_ = Read_Out("Info", "Description");
    auto* intro = new QLabel(Help_Label_Howto);
    intro->setObjectName("Label4");
    intro->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    row->addWidget(ground_, 0, Qt::AlignTop);
    row->addWidget(info_, 1);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    layout->addWidget(intro);
    layout->addLayout(row);
    layout->addStretch(1);
    return frame;
}

QWidget* Help_Window::Make_Search() {
    auto* frame = new QWidget;
    frame->setObjectName("Frame_Search");
    keyword_ = new QLineEdit;
    keyword_->setObjectName("Help_Keyword");
    keyword_->setAccessibleName("Keyword");
    connect(keyword_, &QLineEdit::textEdited,
            [](const QString& text) { Guarded_Event([&] { Help_Keyword_Change(To_ANSI(text)); }); });
    key_list_ = List("Help_KeyList", "Topic", Help_KeyList_Click);
    description_ = Text("Help_Description", "Description");

    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(14);
    layout->setColumnStretch(0, 4);
    layout->setColumnStretch(1, 5);
    layout->setRowStretch(3, 1);
    layout->addWidget(Heading("Label1", Help_Label_Keyword, keyword_), 0, 0);
    layout->addWidget(keyword_, 1, 0);
    layout->addWidget(Heading("Label2", Help_Label_List, key_list_), 2, 0);
    layout->addWidget(key_list_, 3, 0);
    layout->addWidget(Heading("Label3", Help_Label_Description, description_), 0, 1);
    layout->addWidget(description_, 1, 1, 3, 1);
    return frame;
}

Help_Window::Help_Window(QMainWindow* parent)
    : Child_Window(Help, parent),
      frame_credits_(Make_Credits()),
      frame_howto_(Make_Howto()),
      frame_search_(Make_Search()),
      cmd_howto_(Page_Button("Cmd_Howto", Help_Caption_Howto, Help_Cmd_Howto)),
      cmd_search_(Page_Button("Cmd_Search", Help_Caption_Search, Help_Cmd_Search)),
      cmd_about_(Page_Button("Cmd_About", Help_Caption_About, Help_Cmd_About)) {
    QPalette palette = this->palette();
    palette.setColor(QPalette::Window, Ink_Colour(Ink::Ground));
    setPalette(palette);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    for (QPushButton* button : {cmd_howto_, cmd_search_, cmd_about_}) buttons->addWidget(button, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(14, 14, 14, 14);
    layout->setSpacing(12);
    for (QWidget* frame : {frame_credits_, frame_howto_, frame_search_}) {
        frame->hide();
        layout->addWidget(frame, 1);
    }
    layout->addLayout(buttons);
}

void Help_Window::Show_Contents() {
    const Help_Form& form = Help_Window_Form;
    Show_Text(*about_, form.about);
    Show_Entries(*credits_, form.credits);
    Show_Text(*credits_why_, form.credits_why);

    const QString keyword = From_ANSI(form.keyword);
    if (keyword_->text() != keyword) keyword_->setText(keyword);
    Show_Entries(*key_list_, form.key_list);
    Show_Text(*description_, form.description);

    Show_Text(*info_, Help_Info);

    Show_Frame(*frame_credits_, "About");
    Show_Frame(*frame_howto_, "Howto");
    Show_Frame(*frame_search_, "Search");
    Show_Button(*cmd_about_, "About");
    Show_Button(*cmd_howto_, "Howto");
    Show_Button(*cmd_search_, "Search");
    ground_->Show_Controls();

    if (keyword_focused_ != form.keyword_focused) {
        keyword_focused_ = form.keyword_focused;
        // Asked for while another page stands open, the search leaves that page, and the keyboard with it.
        if (form.page == "Search") {
            keyword_->setFocus();
            keyword_->selectAll();
        }
    }
}

void Help_Window::Close_Asked() {
    Help_Close_Asked();
}
