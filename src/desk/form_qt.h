// The stock controls of form.h on the screen.
#pragma once

#include <QComboBox>

#include "desk/form.h"

// Brings the widget up to the record, without its telling of a change.
void Show_Drop_Down(QComboBox& widget, const Drop_Down& record);
