// What must hold whatever the user does.
#pragma once

// Behind Program_Wire.
void Checks_Begin();

// Settings may name an instrument that there is none of: it has no panel and no headers.
bool Is_Known_Instrument();

// How many of the program's handlers are running; more than one when events come in while one waits.
int Handlers_Running();

// Behind every event: records and thumbs.
void Check_Records();

// Between events, when no handler runs: locks, dialogs, menus, focus.
void Check_At_Rest();

// When the program has ended.
void Check_At_End();
