// What the monkey does: one random thing at a time, through the doors that a user, an instrument and a
// desktop have.
#pragma once

void Act();

// What leads out: boxes are answered with No, dialogs are closed. False when nothing is open.
bool Act_To_Leave();

// Asks the main window to close.
void Act_Exit();
