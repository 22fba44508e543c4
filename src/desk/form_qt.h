// Stock controls on the screen, brought up to their records.
#pragma once

#include <QCheckBox>
#include <QComboBox>

#include "desk/form.h"

void Show_List(QComboBox& widget, const Drop_Down& record);
void Show_Box(QCheckBox& widget, const Check_Box& record);
