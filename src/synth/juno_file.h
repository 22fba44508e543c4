// The Alpha Juno's tone on the disk, 57 bytes; the map stands in syx_file.h.
//
// Length and last byte are all that is asked of a file. The first seven bytes may be anything, and what
// other programs write for this family of instruments (54 bytes) is refused by its length.
#pragma once

// Fills the hooks of views.h through which syx_file.h reads and writes this record.
void Juno_File_Install();
