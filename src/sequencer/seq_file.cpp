#include "sequencer/seq_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>
#include <vector>

#include "desk/folders.h"
#include "desk/menus.h"
#include "desk/recent.h"
#include "desk/settings.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/text.h"
#include "sequencer/engine.h"
#include "sequencer/sequence.h"

namespace {

constexpr std::string_view Magic = "SEQ1";
constexpr std::size_t Tempo_Place = 4;
constexpr std::size_t Base_Note_Place = 5;
constexpr std::size_t Cells_Place = 6;

// The path behind the folder's part. It is cut by length: a file from elsewhere loses as many letters.
std::string Cut_From_Start(const std::string& path, std::size_t length) {
    return path.substr(std::min(length, path.size()));
}

// By which the texts are told. The system's own numbers stand for themselves.
constexpr int Bad_File_Name = 52;  // no file can have that name
constexpr int Question_Given_Up = 32755;

int Told_Number(int error) {
    if (error == ENAMETOOLONG || error == EINVAL || error == EISDIR) return Bad_File_Name;
    return error == ECANCELED ? Question_Given_Up : error;
}

std::vector<std::uint8_t> Read_Start(const std::string& path) {
    std::vector<std::uint8_t> bytes;
    File_Reader file(path);
    if (!file.Is_Open()) Seq_Show_Error(errno);
    while (bytes.size() < SEQ_Size) {
        const auto byte = file.At(bytes.size() + 1);
        if (!byte) break;
        bytes.push_back(*byte);
    }
    return bytes;
}

bool Is_Sequence(const std::vector<std::uint8_t>& bytes) {
    if (bytes.size() != SEQ_Size) return false;
    const std::string letters(bytes.begin(), bytes.begin() + 3);
    return Same_Text(letters, Magic.substr(0, 3));
}

void Take_Cells(const std::vector<std::uint8_t>& bytes) {
    const bool preview = Seq_Preview_Clear();
    for (std::size_t cell = 0; cell < Seq_Notes.size(); ++cell) {
        Seq_Notes[cell] = bytes[Cells_Place + cell];
        if (preview) Seq_Preview_Paint(static_cast<int>(cell), Seq_Cell_Picture(Seq_Notes[cell]));
    }
}

void Take(const std::vector<std::uint8_t>& bytes, bool opening) {
    // 0 would stop the clock: it reads as the lowest that the tempo control can hold.
    Seq_Tempo_Value = std::clamp<std::int16_t>(bytes[Tempo_Place], Seq_Lowest_Tempo, Seq_Highest_Tempo);
    Seq_Base_Note = bytes[Base_Note_Place];
    Seq_Range_Index = To_Int16(std::abs((Seq_Base_Note - Seq_Lowest_Base_Note) / 12.0));
    Seq_Set_Interval();
    const bool shown = opening && Is_True(Seq_Window_Open);
    if (shown) {
        Seq_Window_Follow();
        Seq_Show_Title();
    }
    Take_Cells(bytes);
    if (shown) Seq_Redraw();
    Seq_Loaded = Flag_8::True;
}

}  // namespace

Hook<void()> Seq_Window_Follow;
Hook<void()> Seq_File_Loaded;
Hook<bool()> Seq_Preview_Clear;
Hook<void(int cell, int picture)> Seq_Preview_Paint;

// The path by value, as it may stand in one of the places that a load writes.
void Seq_Load(std::string path, const std::string& mode) {
    const bool opening = mode == Seq_Mode_Open;
    std::string folder = Dir_Sequences;
    Seq_File_Name = Cut_From_Start(path, Path_Add_Slash(folder).size());
    if (!File_Exists(path)) {
        Message_Box("File not found: " + path);
        return;
    }
    const std::vector<std::uint8_t> bytes = Read_Start(path);
    if (Is_Sequence(bytes)) Take(bytes, opening);
    if (!opening) return;
    if (!Is_True(Seq_Loaded)) {
        Message_Box("Wrong SEQUENCE format!", Buttons_Set::Ok, Icon::Stop);
        return;
    }
    Menu(Menu_File_Seq_Save).enabled = true;
    Recent_Seq_Add(path);
    Seq_File_Path = std::move(path);
    Seq_Saved = Flag_8::True;
    Seq_File_Loaded();
    Seq_Panel_Buttons_On();
}

void Seq_Show_Error(int error) {
    const int number = Told_Number(error);
    if (number == Question_Given_Up) return;
    Message_Box(number == Bad_File_Name
                    ? "Wrong filename!"
                    : "Error " + std::to_string(number) + ": " + std::generic_category().message(number),
                Buttons_Set::Ok, Icon::Stop);
}

int Seq_Write() {
    std::string contents(Magic);
    contents += static_cast<char>(Seq_Tempo_Value);
    contents += static_cast<char>(Seq_Base_Note);
    for (const std::int16_t cell : Seq_Notes) contents += static_cast<char>(cell);
    const int error = File_Overwrite(Seq_File_Path, contents);
    if (error != 0) return error;
    Recent_Seq_Add(Seq_File_Path);
    Seq_File_Name = Cut_From_Start(Seq_File_Path, Dir_Sequences.size());
    Seq_Show_Title();
    Menu(Menu_File_Seq_Save).enabled = true;
    Seq_Saved = Flag_8::True;
    return 0;
}
