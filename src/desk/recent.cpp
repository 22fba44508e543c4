#include "desk/recent.h"

#include <algorithm>
#include <array>
#include <utility>

#include "desk/menus.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace {

constexpr std::size_t Places = 4;

struct Recent_List {
    Menu_Id separator;
    std::array<Menu_Id, Places> entries;
    std::array<std::string, Places> names = {};
};

Recent_List Tones = {Menu_File_SYX_Trenn_1,
                     {Menu_File_SYX_1, Menu_File_SYX_2, Menu_File_SYX_3, Menu_File_SYX_4}};
Recent_List Sequences = {Menu_File_Seq_Trenn_1,
                         {Menu_File_Seq_1, Menu_File_Seq_2, Menu_File_Seq_3, Menu_File_Seq_4}};

std::string& Name_At(Recent_List& list, int place) {
    if (place < 1 || place > static_cast<int>(Places)) throw Fatal_Error("Subscript out of range");
    return list.names[static_cast<std::size_t>(place - 1)];
}

// The places before `last` move one on, and `name` takes the first.
void Put_In_Front(Recent_List& list, std::size_t last, const std::string& name) {
    for (std::size_t place = last; place > 0; --place) list.names[place] = list.names[place - 1];
    list.names[0] = name;
}

void Show(const Recent_List& list) {
    bool any = false;
    for (std::size_t place = 0; place < Places; ++place) {
        Menu_Entry& entry = Menu(list.entries[place]);
        entry.visible = !list.names[place].empty();
        any = any || entry.visible;
        if (entry.visible) entry.caption = "&" + std::to_string(place + 1) + " " + list.names[place];
    }
    Menu(list.separator).visible = any;
}

void Add(Recent_List& list, const std::string& name) {
    for (std::string& old : list.names) {
        if (!File_Exists(old)) old.clear();
    }
    if (!name.empty()) {
        // The third place is looked at before the second, and the fourth not at all: what falls out at the
        // end is as well overwritten.
        if (Same_Text(name, list.names[2])) {
            Put_In_Front(list, 2, name);
        } else if (Same_Text(name, list.names[1])) {
            Put_In_Front(list, 1, name);
        } else if (!Same_Text(name, list.names[0])) {
            Put_In_Front(list, 3, name);
        }
    }
    Show(list);
}

}  // namespace

const std::string& Recent_Tone(int place) {
    return Name_At(Tones, place);
}

const std::string& Recent_Seq(int place) {
    return Name_At(Sequences, place);
}

void Recent_Tone_Put(int place, std::string name) {
    Name_At(Tones, place) = std::move(name);
}

void Recent_Seq_Put(int place, std::string name) {
    Name_At(Sequences, place) = std::move(name);
}

// Add gets a copy, as a name may come out of the list itself.
void Recent_Tone_Add(const std::string& name) {
    Add(Tones, std::string(Trimmed(name)));
}

void Recent_Seq_Add(const std::string& name) {
    Add(Sequences, std::string(Trimmed(name)));
}
