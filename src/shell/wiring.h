// Puts the program together: every hook that a lower floor declares gets its procedure here.
#pragma once

// Called once, before anything else of the program.
void Program_Wire();
