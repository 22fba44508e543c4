#include "filedlg/file_ok.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

#include "desk/windows.h"
#include "filedlg/folder_model.h"
#include "filedlg/linking.h"
#include "filedlg/state.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/text.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/undo.h"

namespace {

std::string System_Text(int error) {
    return std::generic_category().message(error);
}

void Show_Error(const std::string& text) {
    Message_Box(std::string(Trimmed(FD_FileName.text)) + " : " + text, Buttons_Set::Ok, Icon::Exclamation);
}

// A step of Ok that the disk may refuse: the user hears why, and it is tried again. What fails twice in a
// row ends the Ok, or nobody could leave the window any more.
using Step = std::function<int()>;
bool Done_At_Last(const Step& step) {
    const int error = step();
    if (error == 0) return true;
    Show_Error(error == ENOENT ? "File not found" : System_Text(error));
    return step() == 0;
}

// The same for a double click, which goes on with its next step.
bool Done_Or_Told(const Step& step) {
    const int error = step();
    if (error != 0) Show_Error(System_Text(error));
    return true;
}

using Runner = bool (*)(const Step&);

int Dirs_Follow_Files() {
    return FD_List_Files.path == FD_List_Dirs.path ? 0 : FD_Go_To(FD_List_Files.path);
}

// The last characters, not bytes: a name may have letters beyond the first 128.
std::string_view Last_Characters(std::string_view text, int count) {
    std::size_t start = text.size();
    while (start > 0 && count > 0) {
        --start;
        if ((static_cast<unsigned char>(text[start]) & 0xC0U) != 0x80U) --count;
    }
    return text.substr(start);
}

void Complete_Bare_Name() {
    std::string& name = FD_FileName.text;
    if (name.ends_with(Path_Separator)) return;
    if (Last_Characters(name, 4).find('.') == std::string_view::npos) name += FD_Default_Ext;
}

bool Names_Every_Tone() {
    return Lower_Text(FD_FileName.text) == "*.syx";
}

std::string Chosen_Path() {
    return FD_Path_Of(FD_Dir, FD_FileName.text);
}

// A path in small letters, as it is kept of a saved file, so far as that still names the same place: where
// two names differ in case only, the small letters may belong to the other one.
std::string Small_Path(const std::string& path) {
    const std::size_t name = path.rfind(Path_Separator) + 1;
    const std::string folder = path.substr(0, name);
    const bool same_folder = Path_Found(Lower_Text(folder)) == Path_Found(folder);
    std::string small = (same_folder ? Lower_Text(folder) : folder) + Lower_Text(path.substr(name));
    const bool same_file = !File_Exists(path) || Path_Found(small) == Path_Found(path);
    return same_file ? small : path;
}

bool May_Write(const std::string& path) {
    if (!File_Exists(path)) return true;
    // The title is the same for both kinds of file.
    return Message_Box("File exists: " + path + " Overwrite?", Buttons_Set::Yes_No, Icon::Stop,
                       "Write TONE file") == Answer::Yes;
}

// The list takes what was typed, a folder or a pattern too; then the file is opened, if there is one.
void Open_Typed(Runner run, void (*load)(const std::string& path)) {
    if (!run([] { return FD_List_Files_Set_FileName(FD_FileName.text); })) return;
    if (!run(Dirs_Follow_Files)) return;
    const std::string path = Chosen_Path();
    if (File_Exists(path)) load(path);
}

void Open_Tone(const std::string& path) {
    SYX_Load(path, SYX_Mode_Open);
}
void Open_Sequence(const std::string& path) {
    Seq_Load(path, Seq_Mode_Open);
}

void Save_Tone_As() {
    if (!Done_At_Last(Dirs_Follow_Files) || Names_Every_Tone()) return;
    Tone_File_Name = Small_Path(Chosen_Path());
    if (May_Write(Tone_File_Name)) {
        SYX_Save();
        if (Is_True(Tone_Saved)) FD_Done = Flag_8::True;
    }
    Tone_Backup_Restore();
}

// Asks for Tone_Saved in the end, not for Seq_Saved: with an unsaved tone the window stays.
void Save_Sequence_As() {
    if (!Done_At_Last(Dirs_Follow_Files) || Names_Every_Tone()) return;
    Seq_File_Path = Small_Path(Chosen_Path());
    if (May_Write(Seq_File_Path)) {
        // A tone's save tells its failures itself; a sequence's leaves that to whoever asked for it.
        if (!Done_At_Last(Seq_Write)) return;
        if (Is_True(Tone_Saved)) FD_Done = Flag_8::True;
    }
}

// Only a name is chosen; the tone stays unsaved under it.
void Take_Tone_Name() {
    (void)Done_Or_Told(Dirs_Follow_Files);
    if (Names_Every_Tone()) return;
    Tone_File_Name = Small_Path(Chosen_Path());
    FD_Done = Flag_8::True;
    Tone_Backup_Put_Back();
}

struct Action {
    const char* mode;
    void (*ok)();
    void (*double_click)();
};

void Nothing() {}
void No_Load(const std::string&) {}

constexpr Action Actions[] = {
    {"Open_SYX", [] { Open_Typed(Done_At_Last, Open_Tone); }, [] { Open_Typed(Done_Or_Told, Open_Tone); }},
    {"Open_SEQ", [] { Open_Typed(Done_At_Last, Open_Sequence); },
     [] { Open_Typed(Done_Or_Told, Open_Sequence); }},
    {"Open_OSC", [] { Open_Typed(Done_At_Last, No_Load); }, Nothing},
    {"SaveAs_SYX", Save_Tone_As, Take_Tone_Name},
    {"SaveAs_SEQ", Save_Sequence_As, Nothing},
};

void Act(void (*Action::*kind)()) {
    // The mode as it is now: a save inside a load may change it.
    const std::string mode = FD_Mode;
    for (const Action& action : Actions) {
        if (mode == action.mode) (action.*kind)();
    }
}

}  // namespace

// What is pasted may hold a zero, and for the disk a name ends there.
void FD_FileName_Change(const std::string& text) {
    FD_FileName.text = Cut_At_Zero(text);
}

void FD_Button_Ok_Click() {
    FD_Done = Flag_8::False;
    FD_Dir = FD_List_Dirs.path;
    Complete_Bare_Name();
    Act(&Action::ok);
    if (Is_True(FD_Done)) {
        Window_Unload(File_Dlg);
    } else {
        FD_FileName_Select();
    }
}

void FD_List_Files_DblClick() {
    FD_Done = Flag_8::False;
    FD_Dir = FD_List_Dirs.path;
    Act(&Action::double_click);
    if (Is_True(FD_Done)) {
        Window_Unload(File_Dlg);
    } else {
        Complete_Bare_Name();
        FD_FileName_Select();
    }
}

std::string FD_Path_Of(const std::string& folder, const std::string& name) {
    std::string start = folder;
    if (!start.ends_with(Path_Separator)) start += Path_Separator;
    // Also one that may not be read: never another file for it.
    std::error_code error;
    const bool there =
        std::filesystem::exists(std::filesystem::symlink_status(Path_Found(start + name), error));
    return start + (there ? name : std::string(Trimmed(name)));
}
