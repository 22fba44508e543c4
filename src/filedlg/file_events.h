// Where the events of the file window go: its drawn controls, and the keys that it sees before any control.
#pragma once

#include <functional>
#include <string>

#include "panels/panel.h"

// The drawn controls in the order of the focus, and their handlers. Symbols lie on their buttons.
extern const Panel File_Panel;

// Runs the handler while the window stands open. Events that waited come in while it closes, and behind
// that.
void FD_Event(const std::function<void()>& handler);

// Alt and a letter, or Escape alone: true when the window has taken the key.
bool FD_Takes_Key(char letter, bool alt);  // Escape is '\x1B'
void FD_Key(char letter, bool alt);

// The lists. An index outside a list is none of its entries: the list index stays then.
void FD_List_Files_Move(int index);  // by keys: nothing is read and nothing is sent
void FD_List_Files_MouseDown(int index);
void FD_List_Files_Choose();  // the blank key: names the file, and sends nothing
void FD_List_Dirs_Move(int index);
void FD_List_Dirs_MouseDown(int index);
void FD_List_Dirs_Choose();  // the blank key, and the double click of the list itself
