// Menu_Tone_Random: a tone whose every byte is drawn at random, shown, sent and called "RANDOM".
//
// No parameter reaches 127, and switches get any value instead of their steps: the instrument reads bands.
#pragma once

// Undo is offered in any case, but a tone without unsaved changes is not stored first: Undo then brings
// back an older copy, or zeros.
void Tone_Random();
