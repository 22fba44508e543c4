// From the toolkit's keys to the classic codes that the rules know (steps.h).
#pragma once

#include <QKeyEvent>

int Classic_Key_Code(const QKeyEvent& event);

// Which of Shift (1), Ctrl (2) and Alt (4) are held, added up.
int Classic_Shift_State(const QKeyEvent& event);
