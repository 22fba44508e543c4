// The settings as a whole: one table of what "Tonebench.INI" keeps, read once at start and written once at
// the end. A crash loses the changes of the run.
//
// Left out: the devices and the channel, which midi/devices reads before all else, and what the setup
// dialog writes at its own close.
#pragma once

// Fills in Settings_Read and Settings_Write.
void Settings_Install();
