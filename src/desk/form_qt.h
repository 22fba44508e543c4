// The stock controls on the screen.
#pragma once

#include <QComboBox>

#include "desk/form.h"

// Brings a drop-down list up to its record.
void Show_List(QComboBox& widget, const Drop_Down& record);
