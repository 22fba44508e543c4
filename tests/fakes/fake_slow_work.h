// Slow work is quick in a test, unless it is told never to come back.
#pragma once

extern bool Work_Hangs;
