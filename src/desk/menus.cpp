#include "desk/menus.h"

namespace {

enum class Start { Shown, Disabled, Hidden };
using enum Start;

constexpr Menu_Entry Row(Menu_Id id, const char* name, int level, const char* caption, const char* shortcut,
                         Start start) {
    return {id, name, level, caption, shortcut, start != Hidden, start != Disabled};
}

}  // namespace

// The name of an entry is written once.
#define ENTRY(id) id, #id

// clang-format off
std::array<Menu_Entry, Menu_Count> Menu_Tree = {
//        entry                          level  caption                        shortcut    start
    Row(ENTRY(Menu_File),              0,     "&File",                       "",         Shown),
    Row(ENTRY(Menu_File_SYX),          1,     "&Tone",                       "",         Shown),
    Row(ENTRY(Menu_File_SYX_New),      2,     "&New",                        "Ctrl+N",   Shown),
    Row(ENTRY(Menu_File_SYX_Open),     2,     "&Open...",                    "Ctrl+O",   Shown),
    Row(ENTRY(Menu_File_SYX_Save),     2,     "&Save",                       "Ctrl+S",   Shown),
    Row(ENTRY(Menu_File_SYX_SaveAs),   2,     "Save &as...",                 "",         Shown),
    Row(ENTRY(Menu_File_SYX_Trenn_1),  2,     "-",                           "",         Hidden),
    Row(ENTRY(Menu_File_SYX_1),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_SYX_2),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_SYX_3),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_SYX_4),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Seq),          1,     "Se&quence",                   "",         Shown),
    Row(ENTRY(Menu_File_Seq_New),      2,     "&New",                        "",         Shown),
    Row(ENTRY(Menu_File_Seq_Open),     2,     "&Open...",                    "",         Shown),
    Row(ENTRY(Menu_File_Seq_Save),     2,     "&Save",                       "",         Shown),
    Row(ENTRY(Menu_File_Seq_SaveAs),   2,     "Save &as...",                 "",         Shown),
    Row(ENTRY(Menu_File_Seq_Trenn_1),  2,     "-",                           "",         Hidden),
    Row(ENTRY(Menu_File_Seq_1),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Seq_2),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Seq_3),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Seq_4),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Osc),          1,     "Os&cillator",                 "",         Hidden),
    Row(ENTRY(Menu_File_Osc_New),      2,     "&New",                        "",         Shown),
    Row(ENTRY(Menu_File_Osc_Open),     2,     "&Open...",                    "",         Shown),
    Row(ENTRY(Menu_File_Osc_Save),     2,     "&Save",                       "",         Shown),
    Row(ENTRY(Menu_File_Osc_SaveAs),   2,     "Save &as...",                 "",         Shown),
    Row(ENTRY(Menu_File_Osc_Trenn_1),  2,     "-",                           "",         Hidden),
    Row(ENTRY(Menu_File_Osc_1),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Osc_2),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Osc_3),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Osc_4),        2,     "",                            "",         Hidden),
    Row(ENTRY(Menu_File_Trenn_2),      1,     "-",                           "",         Shown),
    Row(ENTRY(Menu_File_Exit),         1,     "E&xit",                       "Ctrl+X",   Shown),
    Row(ENTRY(Menu_Edit),              0,     "&Edit",                       "",         Shown),
    Row(ENTRY(Menu_Edit_Undo),         1,     "&Undo",                       "Ctrl+Z",   Disabled),
    Row(ENTRY(Menu_MIDI),              0,     "&MIDI",                       "",         Shown),
    Row(ENTRY(Menu_MIDI_CloseOutput),  1,     "&Close MIDI Output",          "Ctrl+C",   Shown),
    Row(ENTRY(Menu_MIDI_Setup),        1,     "&Setup...",                   "",         Shown),
    Row(ENTRY(Menu_MIDI_Trenn),        1,     "-",                           "",         Shown),
    Row(ENTRY(Menu_MIDI_Osc),          1,     "Osc&illator...",              "Ctrl+I",   Shown),
    Row(ENTRY(Menu_MIDI_Seq),          1,     "Seq&uencer...",               "Ctrl+U",   Shown),
    Row(ENTRY(Menu_MIDI_Seq_Load),     1,     "Preload Sequence",            "",         Shown),
    Row(ENTRY(Menu_Tone),              0,     "&Tone",                       "",         Shown),
    Row(ENTRY(Menu_Tone_Name),         1,     "&Name...",                    "",         Shown),
    Row(ENTRY(Menu_Tone_Patch),        1,     "&Patch...",                   "Ctrl+P",   Shown),
    Row(ENTRY(Menu_Tone_Trenn1),       1,     "-",                           "",         Shown),
    Row(ENTRY(Menu_Tone_Random),       1,     "&Random",                     "Ctrl+R",   Shown),
    Row(ENTRY(Menu_Tone_Trenn2),       1,     "-",                           "",         Shown),
    Row(ENTRY(Menu_Tone_Receive),      1,     "Recei&ve ",                   "Ctrl+V",   Hidden),
    Row(ENTRY(Menu_Tone_Send),         1,     "Sen&d",                       "Ctrl+T",   Shown),
    Row(ENTRY(Menu_Windows),           0,     "&Windows",                    "",         Shown),
    Row(ENTRY(Menu_Windows_SavePos),   1,     "&Save Positions",             "",         Shown),
    Row(ENTRY(Menu_Windows_Reset),     1,     "&Reset Settings...",          "",         Shown),
    Row(ENTRY(Menu_Help),              0,     "&Help",                       "",         Shown),
    Row(ENTRY(Menu_Help_Howto),        1,     "&How to use Tonebench...",    "",         Shown),
    Row(ENTRY(Menu_Help_Search),       1,     "&Search...",                  "F1",       Shown),
    Row(ENTRY(Menu_Help_Trenn),        1,     "-",                           "",         Shown),
    Row(ENTRY(Menu_Help_About),        1,     "&About...",                   "",         Shown),
    Row(ENTRY(Menu_Popup),             0,     "",                            "",         Hidden),
    Row(ENTRY(Menu_Popup1),            1,     "",                            "",         Shown),
    Row(ENTRY(Menu_Popup2),            1,     "",                            "",         Shown),
    Row(ENTRY(Menu_Popup3),            1,     "",                            "",         Shown),
    Row(ENTRY(Menu_Popup4),            1,     "",                            "",         Shown),
    Row(ENTRY(Menu_Popup5),            1,     "",                            "",         Hidden),
};
// clang-format on

#undef ENTRY

namespace {

// In the order in which they are switched.
constexpr Menu_Id Top_Level[] = {Menu_File, Menu_Edit, Menu_Tone, Menu_MIDI, Menu_Windows, Menu_Help};

}  // namespace

void Menus_Disable() {
    for (const Menu_Id id : Top_Level) Menu(id).enabled = false;
}

void Menus_Enable() {
    for (const Menu_Id id : Top_Level) Menu(id).enabled = true;
}
