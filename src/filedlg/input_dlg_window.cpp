#include "filedlg/input_dlg_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "filedlg/input_dlg.h"
#include "filedlg/name_text_qt.h"
#include "platform/gate.h"

namespace {

// A prompt ends its lines with carriage returns or line feeds, and may name a folder.
QString Prompt_Text(const std::string& prompt) {
    QStringList lines;
    std::string line;
    for (const char letter : prompt) {
        if (letter != '\r' && letter != '\n') {
            line += letter;
            continue;
        }
        lines << Name_Text(line);
        line.clear();
    }
    return (lines << Name_Text(line)).join('\n');
}

}  // namespace

Input_Dlg_Window::Input_Dlg_Window(QMainWindow* parent)
    : Child_Window(Input_Dlg, parent), message_(new QLabel(this)), text_(new QLineEdit(this)) {
    setWindowModality(Qt::ApplicationModal);
    message_->setObjectName("Input_Msg");
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    message_->setBuddy(text_);
    text_->setObjectName("Input_Textbox");
    connect(text_, &QLineEdit::textEdited, [](const QString& text) {
        Guarded_Event([&text] { Input_Textbox_Change(text.toStdString()); });
    });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(Input_Caption_OK, QDialogButtonBox::AcceptRole);
    ok->setObjectName("Input_OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, [] { Guarded_Event(Input_OK_Click); });
    QPushButton* cancel = buttons->addButton(Input_Caption_Cancel, QDialogButtonBox::RejectRole);
    cancel->setObjectName("Input_Cancel");
    connect(cancel, &QPushButton::clicked, [] { Guarded_Event(Input_Cancel_Click); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(message_, 1);
    layout->addWidget(text_);
    layout->addWidget(buttons);
}

void Input_Dlg_Window::Show_Contents() {
    const QString prompt = Prompt_Text(Input_Dialog.prompt);
    if (message_->text() != prompt) message_->setText(prompt);
    text_->setAccessibleName(prompt);
    const QString text = Name_Text(Input_Dialog.text);
    if (text_->text() != text) text_->setText(text);
    if (times_selected_ == Input_Dialog.times_selected) return;
    times_selected_ = Input_Dialog.times_selected;
    text_->setFocus();
    text_->selectAll();
}

void Input_Dlg_Window::Appeared() {
    text_->setFocus();
    text_->selectAll();
}

void Input_Dlg_Window::Close_Asked() {
    Input_Cancel_Click();
}
