// The drawn push buttons: a picture with a smaller one on it, the symbol, that moves by a pixel when the
// button is pressed. A button without a symbol gets the picture and no shift.
#pragma once

#include "panels/controls.h"

// Both also do it to the button's twin: ED_Seq_Start and ED_Seq_Stop are one button on both editor windows.
void Button_Push(Control& button);
void Button_Release(Control& button);

// The same pair for the two large buttons of the file window.
void Dlg2_Press(Control& button);
void Dlg2_Lift(Control& button);
