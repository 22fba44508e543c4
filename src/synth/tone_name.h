// The tone's name on its way into the record. The way back is Tone_Name_From_Data.
#pragma once

// Tone_Name_Text into the first bytes of Tone_Data, with blanks behind it. The blanks go one place beyond
// the name, up to and including parameter 10, which no control shows. Runs for every instrument.
void Tone_Name_To_Data();
