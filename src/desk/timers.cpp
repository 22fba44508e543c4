#include "desk/timers.h"

Timer Timer1 = {.interval = 250};
Timer Timer_Display = {.interval = 2000};
Timer Seq_Tmr = {.interval = 250};
