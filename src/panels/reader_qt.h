// The screen reader that listens, if there is one.
#pragma once

class QAccessibleEvent;

bool Reader_Listens();
void Reader_Tell(QAccessibleEvent& event);
