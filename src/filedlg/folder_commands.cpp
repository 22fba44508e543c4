#include "filedlg/folder_commands.h"

#include <algorithm>
#include <cerrno>

#include "desk/windows.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_ok.h"
#include "filedlg/folder_model.h"
#include "filedlg/input_dlg.h"
#include "filedlg/linking.h"
#include "filedlg/state.h"
#include "panels/push_buttons.h"
#include "platform/display.h"
#include "platform/files.h"
#include "platform/folder_list.h"
#include "platform/message_box.h"
#include "platform/text.h"

namespace {

void On_Press(Drawn_Button& drawn, void (*work)()) {
    if (FD_Selected.empty()) {
        Beep();
        return;
    }
    Button_Push(drawn.button);
    work();
    Button_Release(drawn.button);
}

void Up() {
    (void)FD_Go_To(FD_Parent_Dir(FD_List_Dirs_Entry()));
    FD_Selected = FD_List_Dirs.path;
    // What is selected is a folder now; Delete must not take a file for it.
    FD_Selected_Kind = "Dir";
    FD_List_Dirs_Refresh();
}

// No folder gets a name that the other side of a network, or a stored path, could not hold.
bool Fit_For_A_Folder(const std::string& name) {
    const bool odd = std::any_of(name.begin(), name.end(), [](char letter) {
        const auto byte = static_cast<unsigned char>(letter);
        return byte < ' ' || letter == Path_Separator || letter == '*' || letter == '?';
    });
    return !odd && name != "." && name != "..";
}

int Make_Folder(const std::string& name) {
    std::string path = FD_Selected;
    // A file's bare name is no place for a folder.
    if (!path.starts_with(Path_Separator)) return ENOTDIR;
    if (!Fit_For_A_Folder(name)) return EINVAL;
    if (!path.ends_with(Path_Separator)) path += Path_Separator;
    path += name;
    // One that differs in case only is the same.
    const std::string found = Path_Found(path);
    return Folder_Make(found);
}

// Small letters, as every folder made here has; blanks at the ends do not come back from the settings.
std::string Asked_Name(const std::string& prompt, const std::string& title, const std::string& before) {
    return Lower_Text(Trimmed(Input_Box(prompt, title, before)));
}

void Delete_Folder() {
    // The folder on show stays, empty or not, as the lists stand in it.
    const bool on_show = FD_Selected == FD_List_Dirs.path;
    if (on_show || Folder_Remove(FD_Selected) != 0) {
        Message_Box(Upper_Text(FD_Selected) + " could not be removed. The directory is not empty.");
        return;
    }
    FD_List_Dirs_Refresh();
    FD_Selected = FD_List_Dirs.path;
}

// The name field decides which file goes, whatever was pressed.
void Delete_File() {
    if (File_Delete(Path_Found(FD_Path_Of(FD_List_Dirs.path, FD_FileName.text))) != 0) {
        Message_Box(Upper_Text(FD_Selected) + " could not be deleted.");
        return;
    }
    FD_List_Files_Refresh();
}

}  // namespace

void FD_List_Dirs_Press() {
    FD_Selected = FD_List_Dirs_Entry();
    FD_Selected_Kind = "Dir";
}

void FD_Button_Updir_MouseDown() {
    On_Press(FD_Button_Updir, Up);
}
void FD_Button_Newdir_MouseDown() {
    On_Press(FD_Button_Newdir, FD_New_Folder);
}
void FD_Button_Delete_MouseDown() {
    On_Press(FD_Button_Delete, FD_Delete);
}

void FD_New_Folder() {
    std::string name = Asked_Name("Please enter a name for the new folder in:\r" + FD_Selected,
                                  "Create new folder", "folder");
    // Every failure counts as a name that is taken, also a bad name or missing rights.
    while (!name.empty() && Make_Folder(name) != 0) {
        name =
            Asked_Name("A folder or file of the given name already exists!!\n\nPlease enter another name:",
                       "Create new directory", name);
    }
    FD_List_Dirs_Refresh();
    // The question's window had the keyboard; it goes back to this one.
    if (File_Dlg.visible) Window_Show(File_Dlg);
}

void FD_Delete() {
    const Answer answer = Message_Box("Delete " + Upper_Text(FD_Selected) + " ?", Buttons_Set::Yes_No);
    if (answer != Answer::Yes) return;
    if (FD_Selected_Kind == "Dir") Delete_Folder();
    if (FD_Selected_Kind == "File") Delete_File();
}

// The separator that is looked for is the one in front of the last name; a path of one letter has none
// left.
std::string FD_Parent_Dir(std::string path) {
    if (path.ends_with(Path_Separator)) path.pop_back();
    const std::size_t separator = path.rfind(Path_Separator);
    path.resize(separator == std::string::npos ? 0 : separator);
    return path + Path_Separator;
}
