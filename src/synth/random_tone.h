// Menu_Tone_Random: a tone whose every byte is drawn at random, shown, sent and called "RANDOM".
//
// No parameter reaches 127, and switches get any value instead of their steps: the instrument reads bands.
#pragma once

#include "platform/hook.h"

// Undo is offered in any case, but a tone without unsaved changes is not stored first: Undo then brings
// back an older copy, or zeros.
void Tone_Random();

// Where the numbers come from, 0 <= r < 1. Empty in the program, which draws its own from a generator
// seeded by the clock at each call of Tone_Random.
extern Hook<double()> Random_Number;
