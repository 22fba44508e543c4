#include "tname/tname_window.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desk/ansi_qt.h"
#include "desk/windows.h"
#include "platform/gate.h"
#include "synth/tone.h"
#include "tname/tname.h"

TName_Window::TName_Window(QMainWindow* parent)
    : Child_Window(TName, parent), tone_name_(new QLineEdit(this)) {
    auto* prompt = new QLabel(TName_Prompt, this);
    prompt->setObjectName("Prompt");
    prompt->setBuddy(tone_name_);
    tone_name_->setObjectName("TName_Tone_Name");
    tone_name_->setAccessibleName(TName_Prompt);
    tone_name_->setMaxLength(static_cast<int>(Tone_Name_Size));
    connect(tone_name_, &QLineEdit::textEdited,
            [](const QString& text) { Guarded_Event([&text] { TName_Tone_Name_Change(To_ANSI(text)); }); });

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(TName_Caption_OK, QDialogButtonBox::AcceptRole);
    ok->setObjectName("TName_Cmd_OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, [] { Guarded_Event(TName_Cmd_OK); });
    QPushButton* cancel = buttons->addButton(TName_Caption_Cancel, QDialogButtonBox::RejectRole);
    cancel->setObjectName("TName_Cmd_Cancel");
    connect(cancel, &QPushButton::clicked, [] { Guarded_Event(TName_Cmd_Cancel); });

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(tone_name_);
    layout->addWidget(buttons);
}

void TName_Window::Show_Contents() {
    const QString text = From_ANSI(TName_Dialog.tone_name);
    if (tone_name_->text() != text) tone_name_->setText(text);
}

void TName_Window::Appeared() {
    tone_name_->setFocus();
    tone_name_->selectAll();
}

void TName_Window::Close_Asked() {
    TName_Cmd_Cancel();
}
