#include "monkey/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <fstream>
#include <set>
#include <vector>

#include "desk/recent.h"
#include "filedlg/folder_model.h"
#include "filedlg/input_dlg.h"
#include "filedlg/state.h"
#include "monkey/diary.h"
#include "monkey/dice.h"
#include "platform/program.h"
#include "platform/text.h"
#include "platform/volumes.h"

namespace fs = std::filesystem;

namespace {

std::string Folder;
std::set<std::string> Named;     // in small letters, without their folders
std::set<std::string> Expected;  // paths that are there
int Fails_One_In = 0;
std::set<int> Open_For_Writing;

std::string Small_Name(const std::string& path) {
    return Lower_Text(Trimmed(path.substr(path.rfind('/') + 1)));
}

// -- what there is to read -------------------------------------------------------------------------------

std::string Bytes(std::initializer_list<int> bytes) {
    std::string text;
    for (const int byte : bytes) text += static_cast<char>(byte);
    return text;
}

std::string Data(int count, int limit) {
    std::string text;
    for (int place = 0; place < count; ++place) text += static_cast<char>(Chance.Below(limit));
    return text;
}

std::string Tone_File() {
    std::string text = Bytes({0xF0, 0x41, 0x35, Chance.Below(16), 0x21, 0x20, 0x01});
    text += "MONKEY" + Data(4, 128) + Data(49, 128) + Bytes({0xF7, 0xF0, 0x41, 0x36, 0, 0x21, 0x30, 0x01});
    for (int number = 0; number < 7; ++number) text += Bytes({number, Chance.Below(128)});
    return text + '\xF7';
}

// Of a record that its panel can show.
std::string Juno_File() {
    std::string text = Bytes({0xF0, 0x41, 0x35, 0, 0x23, 0x20, 0x01});
    text += Bytes({Chance.Below(4), Chance.Below(4), Chance.Below(4), Chance.Below(4), Chance.Below(6),
                   Chance.Below(6), Chance.Below(4), Chance.Below(4), Chance.Below(4), Chance.Below(4),
                   Chance.Below(2)});
    text += Data(24, 128) + Bytes({Chance.Below(13)}) + Data(10, 64) + Data(3, 128);
    return text + '\xF7';
}

std::string Sequence_File() {
    std::string text = "SEQ1" + Bytes({Chance.Between(1, 120), Chance.Between(24, 83)});
    for (int cell = 0; cell < 104; ++cell)
        text += Bytes({Chance.One_In(3) ? 127 : Chance.One_In(3) ? 63 : 0});
    return text;
}

std::string Spoiled(std::string text) {
    for (int times = Chance.Between(1, 12); times > 0; --times)
        text[static_cast<std::size_t>(Chance.Below(static_cast<int>(text.size())))] =
            static_cast<char>(Chance.Below(256));
    return text;
}

std::string Contents() {
    switch (Chance.Below(Wild_Life ? 14 : 8)) {
        case 0:
            return Juno_File();
        case 1:
            return Sequence_File();
        case 2:
            return Tone_File().substr(0, static_cast<std::size_t>(Chance.Below(68)));
        case 3:
            return Sequence_File().substr(0, static_cast<std::size_t>(Chance.Below(110)));
        case 4:
            return "";
        case 5:
            return "A letter to my brother, about music and the like.\n";
        case 8:
            return Spoiled(Tone_File());
        case 9:
            return Spoiled(Juno_File());
        case 10:
            return Spoiled(Sequence_File());
        case 11:
            return Data(Chance.Below(400), 256);
        case 12:
            return Tone_File() + Tone_File() + Spoiled(Tone_File());
        case 13:
            return std::string(100000, '\xF0');
        default:
            return Tone_File();
    }
}

void Put(const std::string& path, const std::string& contents) {
    std::ofstream(path, std::ios::binary) << contents;
}

const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = {
        "bass.syx",      "BASS2.SYX",      "Bass2.syx",
        "strings.syx",   "brass & co.syx", "\xC3\xA4rger.syx",
        "old\xE4.syx",   " blank .syx",    "juno.syx",
        "juno lead.syx", "cut.syx",        "a.seq",
        "B.SEQ",         "march.seq",      "cut.seq",
        "tone.SEQ",      "seq.syx",        "readme.txt",
        "noext",         "two.dots.syx",   std::string(200, 'l') + ".syx",
        "new",           "new2.syx"};
    return names;
}

const std::vector<std::string>& Folders() {
    static const std::vector<std::string> folders = {"/Tones",         "/Sequences", "/Tones/Deep",
                                                     "/Tones/Deep/Er", "/Empty",     "/mixed Case",
                                                     "/volume/disc",   "/locked"};
    return folders;
}

std::string Some_Path() {
    return Folder + Chance.Of(Folders()) + "/" + Chance.Of(Names());
}

std::set<std::string> On_Disk() {
    std::set<std::string> paths;
    std::error_code error;
    for (fs::recursive_directory_iterator
             entry(Folder, fs::directory_options::skip_permission_denied, error),
         end;
         !error && entry != end; entry.increment(error))
        paths.insert(entry->path().string());
    return paths;
}

void Open_Rights() {
    std::error_code error;
    for (const std::string& folder : Folders()) fs::permissions(Folder + folder, fs::perms(0700), error);
}

// -- the guard -------------------------------------------------------------------------------------------

std::string Absolute(const char* path) {
    std::error_code error;
    return fs::absolute(path, error).lexically_normal().string();
}

bool Inside(const std::string& path) {
    return path.starts_with(Folder + "/");
}

bool Fails(int error) {
    if (Fails_One_In == 0 || !Chance.One_In(Fails_One_In)) return false;
    errno = error;
    Diary_Remark("the disk fails");
    return true;
}

bool Is_Settings(const std::string& path) {
    return path.starts_with(Disk_Program() + "/Tonebench.INI");
}

// What is not to be done outside is refused; what nobody named inside is a finding.
bool May_Change(const std::string& path, bool named, const char* what) {
    if (!Inside(path)) {
        errno = EACCES;
        return false;
    }
    if (!named) Finding(std::string(what) + " of what no window named: " + path);
    return !Fails(ENOSPC);
}

bool Is_Named(const std::string& path) {
    Disk_Notice_Names();
    return Is_Settings(path) || Named.contains(Small_Name(path));
}

// A link may lie on the way.
void Came(const std::string& path) {
    std::error_code error;
    Expected.insert(fs::weakly_canonical(path, error).string());
}
void Went(const std::string& path) {
    std::error_code error;
    const fs::path given(path);
    Expected.erase((fs::weakly_canonical(given.parent_path(), error) / given.filename()).string());
}

}  // namespace

std::string Program_Directory() {
    return Disk_Program();
}

std::vector<std::string> Mounted_Volumes() {
    return {"/", Folder, Folder + "/volume"};
}

std::string Disk_Folder() {
    return Folder;
}
std::string Disk_Program() {
    return Folder + "/program";
}

void Disk_Begin(const std::string& folder) {
    Folder = folder;
    std::error_code error;
    Open_Rights();
    for (const std::string& place : Folders()) fs::remove_all(Folder + place, error);
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder)) {
        if (entry.path() != Disk_Program()) fs::remove_all(entry.path(), error);
    }
    for (const std::string& place : Folders()) fs::create_directories(Folder + place);
    for (int count = 0; count < 60; ++count) Put(Some_Path(), Contents());
    // Some that are surely there and good.
    Put(Folder + "/Tones/bass.syx", Tone_File());
    Put(Folder + "/Tones/juno.syx", Juno_File());
    Put(Folder + "/Sequences/a.seq", Sequence_File());
    Put(Folder + "/Tones/closed.syx", Tone_File());
    fs::permissions(Folder + "/Tones/closed.syx", fs::perms::none);
    Put(Folder + "/Tones/fixed.syx", Tone_File());
    fs::permissions(Folder + "/Tones/fixed.syx", fs::perms(0444));
    fs::create_directory(Folder + "/Tones/folder.syx");
    fs::create_symlink("nowhere.syx", Folder + "/Tones/lost.syx", error);
    fs::create_symlink("round.syx", Folder + "/Tones/round.syx", error);
    fs::create_symlink("bass.syx", Folder + "/Tones/link.syx", error);
    fs::create_directory_symlink("../Sequences", Folder + "/Tones/over there", error);
    (void)mkfifo((Folder + "/Tones/pipe.syx").c_str(), 0600);
    fs::permissions(Folder + "/locked", fs::perms::none, error);
    (void)!chdir((Folder + "/Tones").c_str());
    for (const std::string& name : Names()) Named.insert(Small_Name(name));
    Named.insert(
        {"closed.syx", "fixed.syx", "lost.syx", "round.syx", "link.syx", "folder.syx", "pipe.syx"});
    Expected = On_Disk();
}

void Disk_Notice_Names() {
    Named.insert(Small_Name(FD_FileName.text));
    for (int place = 1; place <= 4; ++place) {
        Named.insert(Small_Name(Recent_Tone(place)));
        Named.insert(Small_Name(Recent_Seq(place)));
    }
}

std::string Disk_Change() {
    const std::string path = Some_Path();
    std::error_code error;
    Open_Rights();
    std::string what;
    switch (Chance.Below(6)) {
        case 0:
            what = "removed";
            fs::remove(path, error);
            break;
        case 1:
            what = "locked";
            if (fs::exists(path, error))
                fs::permissions(path, fs::perms(Chance.One_In(2) ? 0 : 0444), error);
            break;
        case 2:
            what = "unlocked";
            if (fs::exists(path, error)) fs::permissions(path, fs::perms(0644), error);
            break;
        case 3:
            what = "folder gone";
            fs::remove_all(Folder + "/Tones/Deep", error);
            break;
        case 4:
            what = "folder back";
            fs::create_directories(Folder + "/Tones/Deep/Er", error);
            break;
        default:
            what = "written";
            Put(path, Contents());
            break;
    }
    if (Chance.One_In(2)) fs::permissions(Folder + "/locked", fs::perms::none, error);
    Expected = On_Disk();
    return what + " " + path.substr(Folder.size());
}

void Disk_Fail_One_In(int count) {
    Fails_One_In = count;
}

void Disk_Check() {
    const std::set<std::string> there = On_Disk();
    for (const std::string& path : there) {
        if (!Expected.contains(path)) Finding("nobody wrote this: " + path);
    }
    for (const std::string& path : Expected) {
        // A locked folder shows nothing.
        const bool shown = path.find("/locked/") == std::string::npos;
        if (shown && !there.contains(path)) Finding("nobody removed this: " + path);
    }
}

void Disk_Write_Settings() {
    const std::string path = Disk_Program() + "/Tonebench.INI";
    std::string text;
    {
        std::ifstream file(path, std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(file), {});
    }
    static const std::vector<std::string> synthesizers = {"JX-8P", "MKS-70", "Alpha Juno"};
    if (text.empty() || Chance.One_In(4)) text = "[MIDI]\nOutput=Synth Out\nInput=Keys In\nReceive=1\n";
    const std::size_t place = text.find("[MIDI]");
    if (place != std::string::npos && Chance.One_In(2)) {
        text.insert(place + 7, "Synthesizer=" + Chance.Of(synthesizers) +
                                   "\nChannel=" + std::to_string(Chance.Between(1, 16)) + "\n");
    }
    if (Wild_Life && Chance.One_In(2)) text = Spoiled(text);
    Put(path, text);
    Expected = On_Disk();
}

std::string Disk_Any_Name() {
    static const std::vector<std::string> odd = {
        "*.*",   "*.syx",      "?a*",         "..",   ".",    "/",    "",      "new",    " ",
        "x/y/z", "../new.syx", "*.seq;*.syx", "con.", "a\tb", "%s%n", "Tones", "folder", "NEW2"};
    if (Chance.One_In(2)) return Chance.Of(Names());
    if (Chance.One_In(6)) return Some_Path();
    return Chance.Of(odd);
}

// -- the calls, as the linker turns them here ------------------------------------------------------------

extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_mkstemp(char* pattern);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_mkdir(const char* path, mode_t mode);
int __real_rmdir(const char* path);
int __real_close(int descriptor);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);
ssize_t __real_pread(int descriptor, void* bytes, size_t size, off_t place);

int __wrap_open(const char* path, int flags, ...) {
    const std::string whole = Absolute(path);
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    if (writes && !May_Change(whole, Is_Named(whole), "the writing")) return -1;
    if (!writes && Inside(whole) && Fails(EIO)) return -1;
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const int descriptor = __real_open(path, flags, mode);
    if (descriptor >= 0 && writes) {
        Came(whole);
        Open_For_Writing.insert(descriptor);
    }
    return descriptor;
}

int __wrap_close(int descriptor) {
    Open_For_Writing.erase(descriptor);
    return __real_close(descriptor);
}

int __wrap_mkstemp(char* pattern) {
    const std::string whole = Absolute(pattern);
    if (!May_Change(whole, Is_Settings(whole), "a file beside")) return -1;
    const int descriptor = __real_mkstemp(pattern);
    if (descriptor >= 0) Came(Absolute(pattern));
    return descriptor;
}

int __wrap_rename(const char* from, const char* to) {
    const std::string target = Absolute(to);
    if (!May_Change(target, Is_Settings(target), "the replacing")) return -1;
    const int result = __real_rename(from, to);
    if (result == 0) Went(Absolute(from));
    if (result == 0) Came(target);
    return result;
}

int __wrap_unlink(const char* path) {
    const std::string whole = Absolute(path);
    // A file beside the settings is cleared away on a disk that is full, too.
    const bool own = Is_Settings(whole);
    // Also "." and "..", which are folders and stay.
    const std::string typed = FD_List_Dirs.path + "/" + std::string(Trimmed(FD_FileName.text));
    const bool named = own || Lower_Text(whole) == Lower_Text(Absolute(typed.c_str())) ||
                       Small_Name(whole) == Small_Name(FD_FileName.text);
    if (!own && !May_Change(whole, named, "the deleting")) return -1;
    const int result = __real_unlink(path);
    if (result == 0) Went(whole);
    return result;
}

int __wrap_mkdir(const char* path, mode_t mode) {
    const std::string whole = Absolute(path);
    if (!May_Change(whole, Small_Name(whole) == Small_Name(Input_Result), "a folder made")) return -1;
    const int result = __real_mkdir(path, mode);
    if (result == 0) Came(whole);
    return result;
}

int __wrap_rmdir(const char* path) {
    const std::string whole = Absolute(path);
    if (!May_Change(whole, Same_Text(path, FD_Selected), "a folder removed")) return -1;
    const int result = __real_rmdir(path);
    if (result == 0) Went(whole);
    return result;
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size) {
    // A full disk takes a part first. What is left then is a spoiled file.
    if (Wild_Life && Open_For_Writing.contains(descriptor) && Fails(ENOSPC)) {
        (void)!__real_write(descriptor, bytes, size / 2);
        errno = ENOSPC;
        return -1;
    }
    return __real_write(descriptor, bytes, size);
}

ssize_t __wrap_pread(int descriptor, void* bytes, size_t size, off_t place) {
    if (Fails(EIO)) return -1;
    return __real_pread(descriptor, bytes, size, place);
}
}
