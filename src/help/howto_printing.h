// The printing of the practice page's ground, in the manner of the panels.
#pragma once

#include "panels/printing.h"

Printing Howto_Printing();
