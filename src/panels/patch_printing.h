// The printing of the Patch window, in the manner of the panel.
#pragma once

#include "panels/printing.h"

Printing Patch_Printing();
