// The printing of the MKS-70's patch window, in the manner of the panel.
#pragma once

#include "panels/printing.h"

Printing MKS_Patch_Printing();
