#include "filedlg/linking.h"

#include <cerrno>

#include "filedlg/folder_model.h"
#include "filedlg/state.h"
#include "platform/message_box.h"

namespace {

// The two places have two wordings.
constexpr const char* Drive_Not_Ready = "Drive not ready or unavailable.";
constexpr const char* Folder_Not_Ready = "Drive not ready or not available.";

bool Try_Again(const char* text) {
    return Message_Box(text, Buttons_Set::Retry_Cancel, Icon::Stop) == Answer::Retry;
}

void FD_List_Dirs_Change() {
    int error = 0;
    do {
        error = FD_List_Files_Set_Path(FD_List_Dirs.path);
    } while (Device_Is_Gone(error) && Try_Again(Folder_Not_Ready));
}

}  // namespace

int FD_Go_To(const std::string& path) {
    const int error = FD_List_Dirs_Set_Path(path);
    if (error != 0) return error;
    FD_List_Drives_Refresh();
    FD_List_Drives_Select(Drive_Of(FD_List_Dirs.path));
    FD_Drive = FD_List_Drives.Selected_Text();
    FD_List_Dirs_Change();
    return 0;
}

void FD_List_Drives_Change(int index) {
    FD_List_Drives.Select(index);
    const std::string drive = FD_List_Drives.Selected_Text();
    if (drive.empty()) return;
    for (;;) {
        const int error = FD_Go_To(drive);
        // The top of a drive is there as long as its medium is.
        if (error != ENOENT && !Device_Is_Gone(error)) break;
        if (Try_Again(Drive_Not_Ready)) continue;
        FD_List_Drives_Select(FD_Drive);
        return;
    }
    FD_Drive = drive;
}

void FD_List_Dirs_Open() {
    const std::string folder = FD_List_Dirs_Entry();
    if (folder.empty()) return;
    int error = 0;
    do {
        error = FD_Go_To(folder);
    } while (Device_Is_Gone(error) && Try_Again(Folder_Not_Ready));
}
