// What the menu does about sequences.
#pragma once

// Fills in the File menu's sequence entries and the entry that shows the sequencer.
void Sequence_Commands_Install();
