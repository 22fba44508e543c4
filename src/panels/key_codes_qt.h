// From the toolkit's keys to the classic codes that the rules know (steps.h).
#pragma once

#include <QKeyEvent>

int Classic_Key_Code(const QKeyEvent& event);
