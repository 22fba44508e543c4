// The look of the stock controls: dark like the panels.
#pragma once

void Style_Install();
