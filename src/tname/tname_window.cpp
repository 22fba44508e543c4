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

TName_Window::TName_Window(QWidget* parent) : QDialog(parent), tone_name_(new QLineEdit(this)) {
    setObjectName(TName.name);
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

void TName_Window::Show_Changes() {
    if (!TName.visible) {
        if (isVisible()) {
            QDialog::hide();
            parentWidget()->activateWindow();
        }
        return;
    }
    const QString text = From_ANSI(TName_Dialog.tone_name);
    if (tone_name_->text() != text) tone_name_->setText(text);
    if (!isVisible()) {
        setWindowTitle(QString::fromStdString(TName.caption));
        setFixedSize(TName.width, TName.height);
        move(TName.left, TName.top);
        setCursor(Qt::ArrowCursor);
        show();
        tone_name_->setFocus();
        tone_name_->selectAll();
    }
    if (times_raised_ != TName.times_raised) {
        times_raised_ = TName.times_raised;
        raise();
        activateWindow();
    }
}

void TName_Window::reject() {
    Guarded_Event(TName_Cmd_Cancel);
}
