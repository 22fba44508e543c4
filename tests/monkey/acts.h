// What the monkey does: one random thing at a time, through the doors that a user, an instrument and a
// desktop have.
#pragma once

void Act();

// Where a window has gone that was in front, the desktop brings the one before it there.
void Desktop_Sees_To_The_Front();

// What leads out: boxes are answered with No, dialogs are closed. False when nothing is open.
bool Act_To_Leave();

// Asks the main window to close.
void Act_Exit();
