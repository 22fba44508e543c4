#include "setup/setup_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desk/form_qt.h"
#include "desk/windows.h"
#include "platform/gate.h"
#include "setup/setup.h"

namespace {

void Add_Row(QGridLayout& grid, const char* name, const char* text, QComboBox* list) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setBuddy(list);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(list, row, 1);
}

}  // namespace

QComboBox* Setup_Window::List(const char* name, void (*changed)(int)) {
    auto* list = new QComboBox(this);
    list->setObjectName(name);
    // A long device name must not stretch the dialog; it shows whole in the open list.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(list, &QComboBox::activated, [changed](int index) { Guarded_Event([&] { changed(index); }); });
    return list;
}

QCheckBox* Setup_Window::Box(const char* name, const char* caption, void (*clicked)(bool)) {
    auto* box = new QCheckBox(caption, this);
    box->setObjectName(name);
    connect(box, &QCheckBox::clicked,
            [clicked](bool checked) { Guarded_Event([&] { clicked(checked); }); });
    return box;
}

Setup_Window::Setup_Window(QMainWindow* parent) : Child_Window(MIDI_Setup, parent) {
    synthesizer_type_ = List("SynthesizerType", Setup_SynthesizerType_Change);
    output_devices_ = List("Output_Devices", Setup_Output_Change);
    input_devices_ = List("Input_Devices", Setup_Input_Change);
    channel_ = List("Channel", Setup_Channel_Change);
    enable_ = Box("Enable", Setup_Caption_Enable, Setup_Enable_Click);
    auto_send_ = Box("AutoSend", Setup_Caption_AutoSend, Setup_AutoSend_Click);
    auto_play_ = Box("AutoPlay", Setup_Caption_AutoPlay, Setup_AutoPlay_Click);
    ok_ = new QPushButton(Setup_Caption_OK, this);
    ok_->setObjectName("Cmd_OK");
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, [] { Guarded_Event(Setup_Cmd_OK); });

    auto* frame = new QGroupBox(this);
    frame->setObjectName("Frame1");
    auto* grid = new QGridLayout(frame);
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(8);
    Add_Row(*grid, "LabelSynth", Setup_Label_Synth, synthesizer_type_);
    Add_Row(*grid, "Label4", Setup_Label_Output, output_devices_);
    Add_Row(*grid, "Label2", Setup_Label_Input, input_devices_);
    Add_Row(*grid, "Label_Channel", Setup_Label_Channel, channel_);
    grid->addWidget(enable_, grid->rowCount(), 0, 1, 2);
    grid->addWidget(auto_send_, grid->rowCount(), 0, 1, 2);
    grid->addWidget(auto_play_, grid->rowCount(), 0, 1, 2);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addWidget(ok_, 0, Qt::AlignRight);
}

void Setup_Window::Show_Contents() {
    const Setup_Form& form = MIDI_Setup_Form;
    Show_List(*synthesizer_type_, form.synthesizer_type);
    Show_List(*output_devices_, form.output_devices);
    Show_List(*input_devices_, form.input_devices);
    Show_List(*channel_, form.channel);
    Show_Box(*enable_, form.enable);
    Show_Box(*auto_send_, form.auto_send);
    Show_Box(*auto_play_, form.auto_play);
}

void Setup_Window::Appeared() {
    synthesizer_type_->setFocus();
}

void Setup_Window::Close_Asked() {
    Setup_Escape();
}
