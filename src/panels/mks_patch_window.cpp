#include "panels/mks_patch_window.h"

#include <QComboBox>
#include <QLineEdit>

#include "desk/ansi_qt.h"
#include "desk/form_qt.h"
#include "panels/mks_patch.h"
#include "panels/mks_patch_printing.h"
#include "panels/pictures_qt.h"
#include "platform/gate.h"

namespace {

void Dress(QWidget& widget, const char* name, const char* spoken_name, const MKS_Field& place) {
    widget.setObjectName(name);
    widget.setAccessibleName(spoken_name);
    widget.setFont(Printing_Font(MKS_Field_Letters));
    widget.setGeometry(MKS_Field_Left, place.top, place.width, place.height);
}

}  // namespace

MKS_Patch_Window::MKS_Patch_Window(QMainWindow* parent)
    : Panel_Child_Window(Patch_MKS70_Panel, MKS_Patch_Printing(), parent),
      patch_name_(new QLineEdit(this)),
      tone_number_(new QComboBox(this)),
      split_point_(new QComboBox(this)) {
    Dress(*patch_name_, "Patch_Name", "Patch Name", MKS_Patch_Name);
    Dress(*tone_number_, "Tone_Number", "Tone Number", MKS_Tone_Number);
    Dress(*split_point_, "Split_Point", "Split Point", MKS_Split_Point);
    connect(patch_name_, &QLineEdit::textEdited,
            [](const QString& text) { Guarded_Event([&text] { MKS_Patch_Name_Change(To_ANSI(text)); }); });
    connect(tone_number_, &QComboBox::activated,
            [](int index) { Guarded_Event([index] { MKS_Tone_Number_Change(index); }); });
    connect(split_point_, &QComboBox::activated,
            [](int index) { Guarded_Event([index] { MKS_Split_Point_Change(index); }); });

    QWidget* before = patch_name_;
    for (const char* name : {"Tone_A", "Tone_B", "Tone_Number", "Split_Point", "UDTune", "UDTune_Knopf"}) {
        auto* next = findChild<QWidget*>(name);
        setTabOrder(before, next);
        before = next;
    }
}

void MKS_Patch_Window::Show_Contents() {
    Panel_Child_Window::Show_Contents();
    const QString name = From_ANSI(Patch_MKS70_Form.patch_name);
    if (patch_name_->text() != name) patch_name_->setText(name);
    Show_List(*tone_number_, Patch_MKS70_Form.tone_number);
    Show_List(*split_point_, Patch_MKS70_Form.split_point);
}

void MKS_Patch_Window::Close_Asked() {
    MKS_Patch_Close_Asked();
}
