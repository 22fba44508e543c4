#include "desk/folders.h"

#include "desk/settings.h"
#include "platform/folder_list.h"
#include "platform/text.h"

std::string Dir_Tones;
std::string Dir_Sequences;
std::string Dir_Oscillators;

// A folder counts as gone when a list of its ordinary files is empty. So a folder that is there and holds
// none, or folders only, is left for the current directory as well.
std::string Folder_Or_Current(const std::string& stored) {
    std::string folder = Lower_Text(stored);
    Path_Add_Slash(folder);
    return Folder_Has_Files(folder) ? folder : Current_Directory();
}
