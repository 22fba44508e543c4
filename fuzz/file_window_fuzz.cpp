// Any events of the file window on a real folder: names typed and confirmed, files pressed and
// double-clicked, folders opened, made and deleted, in every mode and with every answer, also while the
// window waits inside itself. Each step may change what it says and nothing else, on the disk and in the
// records; nothing outside of the folder is ever made, opened for writing or removed (fence.h).
//
//   byte 0   the mode; byte 1: 1 MIDI on, 2 automatic sending, 4 preview plays, 8 Alpha Juno, 16 the tone
//   is not
//            saved, 32 a sequence is loaded
//   then     a length of 0 to 15 and so many answers, then steps
#include <array>
#include <map>
#include <set>

#include "desk/dialog_lock.h"
#include "desk/folders.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "feed.h"
#include "fence.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_dlg.h"
#include "filedlg/file_events.h"
#include "filedlg/file_ok.h"
#include "filedlg/folder_commands.h"
#include "filedlg/folder_model.h"
#include "filedlg/input_dlg.h"
#include "filedlg/linking.h"
#include "filedlg/preview.h"
#include "filedlg/state.h"
#include "midi/out.h"
#include "platform/files.h"
#include "platform/text.h"
#include "platform/volumes.h"
#include "sequencer/seq_file.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "shell/wiring.h"
#include "stand_in.h"
#include "synth/juno.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "synth/undo.h"

namespace {

using Kind = Disk_Change::Kind;

// -- the disk --------------------------------------------------------------------------------------------

struct Tree {
    std::map<std::string, std::string> files;
    std::set<std::string> folders;
};
Tree At_First;
Tree Now;

std::string Tone_Bytes(char value) {
    return std::string("\xF0\x41\x35\x00\x21\x20\x01", 7) + std::string(59, value) + '\xF7';
}

void Make_Tree() {
    const std::string& own = Fenced_Folder();
    for (const char* folder : {"/disk", "/disk/Leads", "/disk/empty", "/other"})
        At_First.folders.insert(own + folder);
    At_First.files = {
        {own + "/disk/a.syx", Tone_Bytes(1)},
        {own + "/disk/Bass.SYX", Tone_Bytes(2) + "another's bytes"},
        {own + "/disk/two.syx", Tone_Bytes(3) + Tone_Bytes(4)},
        {own + "/disk/juno.syx",
         std::string("\xF0\x41\x35\x00\x23\x20\x01", 7) + std::string(49, 5) + '\xF7'},
        {own + "/disk/ blank .syx", Tone_Bytes(6)},
        {own + "/disk/note.txt", "hello"},
        {own + "/disk/.hidden.syx", Tone_Bytes(7)},
        {own + "/disk/one.seq", "SEQ1" + std::string(106, '\x30')},
        {own + "/disk/TWO.SEQ", "SEQ1" + std::string(300, '\x31')},
        {own + "/disk/wave.osc", "?"},
        {own + "/disk/Leads/Solo.syx", Tone_Bytes(8)},
        {own + "/other/keep.syx", Tone_Bytes(9)},
    };
    for (const std::string& folder : At_First.folders) Fenced_Make_Folder(folder);
    for (const auto& [path, bytes] : At_First.files) Fenced_Write(path, bytes);
    Now = At_First;
}

// Deepest first, as the names of what lies in a folder are longer.
void Restore_Tree() {
    for (auto file = Now.files.begin(); file != Now.files.end(); ++file) {
        if (!At_First.files.contains(file->first)) Fenced_Remove(file->first);
    }
    for (auto folder = Now.folders.rbegin(); folder != Now.folders.rend(); ++folder) {
        if (!At_First.folders.contains(*folder)) Fenced_Remove(*folder);
    }
    for (const std::string& folder : At_First.folders) {
        if (!Now.folders.contains(folder)) Fenced_Make_Folder(folder);
    }
    for (const auto& [path, bytes] : At_First.files) {
        const auto file = Now.files.find(path);
        if (file == Now.files.end() || file->second != bytes) Fenced_Write(path, bytes);
    }
    Now = At_First;
}

// A path as the disk has it, without "." and "..".
std::string On_Disk(const std::string& path) {
    std::vector<std::string> names;
    const std::string found = Path_Found(path);
    for (std::size_t begin = 0; begin < found.size();) {
        const std::size_t end = std::min(found.find('/', begin), found.size());
        const std::string name = found.substr(begin, end - begin);
        if (name == ".." && !names.empty()) names.pop_back();
        if (!name.empty() && name != "." && name != "..") names.push_back(name);
        begin = end + 1;
    }
    std::string plain;
    for (const std::string& name : names) plain += "/" + name;
    return plain;
}

std::string Folder_Of(const std::string& path) {
    return path.substr(0, path.rfind('/'));
}
std::string Name_Of(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

// -- what a step may change -----------------------------------------------------------------------------

std::string Image_To_Save(bool sequence) {
    if (!sequence) {
        const std::size_t count = SYX_Image_Build();
        return {SYX_Image.begin(), SYX_Image.begin() + static_cast<std::ptrdiff_t>(count)};
    }
    std::string image = "SEQ1";
    image += static_cast<char>(Seq_Tempo_Value);
    image += static_cast<char>(Seq_Base_Note);
    for (const std::int16_t cell : Seq_Notes) image += static_cast<char>(cell);
    return image;
}

// A save writes its one file, over the start of what was there, and asks before that.
void Take_Save(const std::vector<Disk_Change>& changes, const std::string& named, const std::string& image,
               bool asked) {
    Check(changes.size() == 1 && changes.front().kind == Kind::Written);
    const std::string& path = changes.front().path;
    Check_Equal(path, On_Disk(named));
    Check(Folder_Of(path) == Fenced_Folder() || Now.folders.contains(Folder_Of(path)));
    Check(!Now.folders.contains(path));
    const auto before = Now.files.find(path);
    Check(before == Now.files.end() || asked);
    std::string expected = image;
    if (before != Now.files.end() && before->second.size() > image.size())
        expected += before->second.substr(image.size());
    Check(Fenced_Read(path) == expected);
    Now.files[path] = expected;
}

void Take_New_Folder(const std::vector<Disk_Change>& changes, const std::string& selected,
                     const std::string& answer) {
    Check(changes.size() == 1 && changes.front().kind == Kind::Made_Folder);
    const std::string& path = changes.front().path;
    Check(Folder_Of(path) == On_Disk(selected) && Name_Of(path) == Lower_Text(Trimmed(answer)));
    for (const auto& [file, bytes] : Now.files) Check(!Same_Text(file, path));
    for (const std::string& folder : Now.folders) Check(!Same_Text(folder, path));
    Now.folders.insert(path);
}

void Take_Delete(const std::vector<Disk_Change>& changes, const std::string& kind,
                 const std::string& selected, const std::string& typed_path) {
    Check(changes.size() == 1);
    const std::string& path = changes.front().path;
    if (kind == "Dir") {
        Check(changes.front().kind == Kind::Removed_Folder && path == On_Disk(selected));
        Check(Now.folders.erase(path) == 1);
        for (const auto& [file, bytes] : Now.files) Check(!file.starts_with(path + "/"));
    } else {
        Check(kind == "File" && changes.front().kind == Kind::Removed_File && path == typed_path);
        Check(Now.files.erase(path) == 1);
    }
}

bool Has_Box(std::string_view start, std::size_t from) {
    for (std::size_t box = from; box < Stand.boxes.size(); ++box) {
        if (Stand.boxes[box].starts_with(start)) return true;
    }
    return false;
}

// -- what must hold behind every step --------------------------------------------------------------------

void Check_Lists() {
    if (!File_Dlg.loaded) return;
    const auto& dirs = FD_List_Dirs;
    Check(dirs.levels >= 1 && static_cast<std::size_t>(dirs.levels) <= dirs.entries.size());
    Check(dirs.entries.front() == "/" &&
          dirs.entries[static_cast<std::size_t>(dirs.levels) - 1] == dirs.path);
    Check(dirs.index >= -1 && dirs.index < static_cast<int>(dirs.entries.size()));
    for (std::size_t level = 1; level < static_cast<std::size_t>(dirs.levels); ++level)
        Check(FD_Parent_Dir(dirs.entries[level]) == (level == 1 ? "/" : dirs.entries[level - 1] + "/"));
    Check(FD_List_Files.index >= -1 &&
          FD_List_Files.index < static_cast<int>(FD_List_Files.entries.size()));
    for (const std::string& name : FD_List_Files.entries) Check(Falls_Under(name, FD_List_Files.pattern));
    Check(FD_List_Files.path == "/" || !FD_List_Files.path.ends_with('/'));
}

// -- steps -----------------------------------------------------------------------------------------------

struct Player {
    Feed& feed;
    int depth = 0;
    std::string answer = {};  // the last one in the question for a name
};
void Step(Player& player);

const char* const Words[] = {"a",       "bass.syx", "two",   "juno",       " blank ",     "note.txt",
                             "one.SEQ", "two.seq",  "wave",  "Leads",      "solo",        "empty",
                             "/",       "..",       ".",     "other/keep", ".syx",        ".seq",
                             "*",       "?",        "*.syx", "new",        "New.Seq",     " ",
                             "~",       "\t",       "\n",    "keep.s",     ".hidden.syx", "\xC3\xA4"};

std::string Typed(Feed& feed) {
    std::string name;
    for (int count = 1 + feed.Below(4); count > 0; --count) {
        const std::size_t choice = feed.Byte();
        if (choice < 6 * std::size(Words)) {
            name += Words[choice % std::size(Words)];
        } else if (choice == 255) {
            name += std::string(60 + feed.Byte(), 'n');
        } else if (choice == 254) {
            name += Fenced_Folder() + (feed.Below(2) == 0 ? "/disk/" : "/other/");
        } else {
            name += feed.Text(12);
        }
    }
    return name;
}

void Answer_Input(Player& player) {
    if (player.feed.Empty() || player.feed.Below(4) == 0) {
        Input_Cancel_Click();
        return;
    }
    player.answer = Typed(player.feed);
    Input_Textbox_Change(player.answer);
    Input_OK_Click();
}

// The program waits for an event.
bool Wait(Player& player) {
    if (Input_Dlg.loaded) {
        Answer_Input(player);
        return true;
    }
    const bool goes_on = player.depth < 3 && !player.feed.Empty();
    if (Timer_Display.enabled && Is_True(FD_Open)) {
        if (goes_on && player.feed.Below(2) == 0) {
            Step(player);
        } else {
            Main_Display_Tick();
        }
    } else if (goes_on) {
        Step(player);
    } else {
        FD_Event(FD_Button_Cancel_Click);
        // A wait without the window would never end.
        if (!File_Dlg.loaded) App_Mode.clear();
    }
    return true;
}

void Ok() {
    const std::string mode = FD_Mode;
    const std::size_t boxes = Stand.boxes.size();
    const bool tone = mode == "SaveAs_SYX";
    const bool saves = tone || mode == "SaveAs_SEQ";
    const auto data = Tone_Data;
    const auto juno = Juno_Data;
    const auto undo = Tone_Undo;
    const auto juno_undo = Juno_Undo;
    const std::string image = saves ? Image_To_Save(!tone) : "";
    FD_Event(FD_Button_Ok_Click);
    const std::vector<Disk_Change> changes = Disk_Changes();
    if (!changes.empty()) {
        Check(saves);
        Take_Save(changes, tone ? Tone_File_Name : Seq_File_Path, image, Has_Box("File exists: ", boxes));
    }
    // Behind a save stands what was copied away when the window opened.
    if (saves) {
        Check(Tone_Data == data || (tone && Tone_Data == undo));
        Check(Juno_Data == juno || (tone && Juno_Data == juno_undo));
    }
    if (!Is_True(FD_Done)) Check(File_Dlg.loaded);
}

void Delete() {
    const std::string kind = FD_Selected_Kind;
    const std::string selected = FD_Selected;
    const std::string typed = On_Disk(FD_Path_Of(FD_List_Dirs.path, FD_FileName.text));
    FD_Event(FD_Button_Delete_MouseDown);
    const std::vector<Disk_Change> changes = Disk_Changes();
    if (!changes.empty()) Take_Delete(changes, kind, selected, typed);
}

void New_Folder(Player& player) {
    const std::string selected = FD_Selected;
    player.answer = "folder";
    FD_Event(FD_Button_Newdir_MouseDown);
    const std::vector<Disk_Change> changes = Disk_Changes();
    if (!changes.empty()) Take_New_Folder(changes, selected, player.answer);
}

// The drawn buttons, but for those whose steps may change the disk.
void Push(Control& control) {
    for (const Drawn_Button* own : {&FD_Button_Ok, &FD_Button_Newdir, &FD_Button_Delete}) {
        if (&own->button == &control) return;
    }
    File_Panel.events.button_pressed(control, Mouse_Button::Left);
    File_Panel.events.button_released(control, Mouse_Button::Left);
    File_Panel.events.clicked(control);
    Check(!File_Panel.spoken_value(control).starts_with(' '));
}

void Nothing_Changed() {
    Check(Disk_Changes().empty());
}

void Play(Player& player) {
    Feed& feed = player.feed;
    switch (feed.Below(20)) {
        case 0:
        case 1:
        case 2:
            FD_FileName_Change(Typed(feed));
            break;
        case 3:
        case 4:
        case 5:
            Ok();
            break;
        case 6:
            FD_Event(FD_List_Files_DblClick);
            break;
        case 7:
            FD_Event([&] { FD_List_Files_MouseDown(feed.Below(12) - 1); });
            break;
        case 8:
            FD_Event([&] { FD_List_Dirs_MouseDown(feed.Below(12) - 1); });
            break;
        case 9:
            FD_List_Dirs_Move(feed.Below(12));
            FD_Event(FD_List_Dirs_Choose);
            break;
        case 10:
            FD_Event(FD_Button_Updir_MouseDown);
            break;
        case 11:
            New_Folder(player);
            break;
        case 12:
            Delete();
            break;
        case 15:
        case 16:
            FD_Event([&] { FD_List_Files_MouseDown(feed.Below(8)); });
            Nothing_Changed();
            Delete();
            break;
        case 17:
        case 18:
            Push(*File_Panel.controls[static_cast<std::size_t>(feed.Below(File_Panel.controls.size()))]);
            break;
        case 19:
            FD_Event([&] { FD_SYX_SoundCheck_Note_List_Click(feed.Below(5)); });
            FD_Event([&] { FD_SYX_SoundCheck_Velocity_List_Click(feed.Below(128)); });
            break;
        case 13:
            FD_Event([&] { FD_List_Filter_Click(feed.Below(3)); });
            break;
        case 14:
            FD_Event([&] { FD_Key("\x1BNFDVTPSCQ"[feed.Below(10)], feed.Below(8) != 0); });
            break;
        default:
            FD_Event([&] { FD_List_Drives_Change(feed.Below(3)); });
            break;
    }
}

void Step(Player& player) {
    ++player.depth;
    Play(player);
    Nothing_Changed();
    Check_Lists();
    --player.depth;
}

constexpr const char* Modes[] = {"Open_SYX", "SaveAs_SYX", "Open_SEQ", "SaveAs_SEQ",
                                 "Open_OSC", "Open_ALL",   "Save_SYX", "SaveAs_OSC"};

}  // namespace

std::vector<std::string> Mounted_Volumes() {
    return {"/", Fenced_Folder() + "/other", Fenced_Folder() + "/pulled"};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool wired = [] {
        Program_Wire();
        Window_Load(Editor);
        Window_Load(Editor_Juno);
        Make_Tree();
        return true;
    }();
    (void)wired;
    const Fence fence;
    Feed feed(data, size);
    Stand_Begin();
    Stand.port_opens = true;
    FD_Mode.clear();
    FD_Selected.clear();
    FD_Selected_Kind.clear();
    const char* const mode = Modes[feed.Below(std::size(Modes))];
    const std::uint8_t options = feed.Byte();
    MIDI_Enabled = options & 1U;
    MIDI_Autosend = (options & 2U) != 0 ? 1 : 0;
    MIDI_Autoplay = (options & 4U) != 0 ? 1 : 0;
    Synthesizer = (options & 8U) != 0 ? "Alpha Juno" : "JX-8P";
    Tone_Saved = (options & 16U) != 0 ? Flag_16::False : Flag_16::True;
    Sysex_Headers_Update();
    Tone_Data.fill(0x22);
    Juno_Data.fill(0x23);
    Tone_File_Name.clear();
    Seq_New_Reset();
    Seq_Loaded = (options & 32U) != 0 ? Flag_8::True : Flag_8::False;
    Seq_File_Path.clear();
    Dir_Tones = Dir_Sequences = Dir_Oscillators = Fenced_Folder() + "/disk";
    Stand.answers = feed.Text(15);

    Player player{feed};
    Stand.waiting = [&] { return Wait(player); };
    FD_Show(mode);
    while (!feed.Empty() && File_Dlg.loaded) Step(player);
    if (File_Dlg.loaded) FD_Button_Cancel_Click();
    Check(!File_Dlg.loaded && !Input_Dlg.loaded && App_Mode.empty() && Dialog_Depth == 0);
    Nothing_Changed();
    Restore_Tree();
    return 0;
}
