// Random numbers for music: uniform, 0 <= r < 1. One generator for the whole process, not seeded at start.
#pragma once

#include "platform/hook.h"

double Random_Next();

// Starts the generator anew from the clock.
void Random_Seed_By_Clock();

// Filled in by tests, which want known numbers; empty in the program.
extern Hook<double()> Random_Number;
