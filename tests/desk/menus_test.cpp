#include "desk/menus.h"

#include "fakes/stage.h"

namespace {

struct Row {
    const char* name;
    int level;
    const char* caption;
    const char* shortcut;
    bool visible;
    bool enabled;
};

// clang-format off
const Row Expected[] = {
    {"Menu_File",              0, "&File",                    "",       true,  true},
    {"Menu_File_SYX",          1, "&Tone",                    "",       true,  true},
    {"Menu_File_SYX_New",      2, "&New",                     "Ctrl+N", true,  true},
    {"Menu_File_SYX_Open",     2, "&Open...",                 "Ctrl+O", true,  true},
    {"Menu_File_SYX_Save",     2, "&Save",                    "Ctrl+S", true,  true},
    {"Menu_File_SYX_SaveAs",   2, "Save &as...",              "",       true,  true},
    {"Menu_File_SYX_Trenn_1",  2, "-",                        "",       false, true},
    {"Menu_File_SYX_1",        2, "",                         "",       false, true},
    {"Menu_File_SYX_2",        2, "",                         "",       false, true},
    {"Menu_File_SYX_3",        2, "",                         "",       false, true},
    {"Menu_File_SYX_4",        2, "",                         "",       false, true},
    {"Menu_File_Seq",          1, "Se&quence",                "",       true,  true},
    {"Menu_File_Seq_New",      2, "&New",                     "",       true,  true},
    {"Menu_File_Seq_Open",     2, "&Open...",                 "",       true,  true},
    {"Menu_File_Seq_Save",     2, "&Save",                    "",       true,  true},
    {"Menu_File_Seq_SaveAs",   2, "Save &as...",              "",       true,  true},
    {"Menu_File_Seq_Trenn_1",  2, "-",                        "",       false, true},
    {"Menu_File_Seq_1",        2, "",                         "",       false, true},
    {"Menu_File_Seq_2",        2, "",                         "",       false, true},
    {"Menu_File_Seq_3",        2, "",                         "",       false, true},
    {"Menu_File_Seq_4",        2, "",                         "",       false, true},
    {"Menu_File_Osc",          1, "Os&cillator",              "",       false, true},
    {"Menu_File_Osc_New",      2, "&New",                     "",       true,  true},
    {"Menu_File_Osc_Open",     2, "&Open...",                 "",       true,  true},
    {"Menu_File_Osc_Save",     2, "&Save",                    "",       true,  true},
    {"Menu_File_Osc_SaveAs",   2, "Save &as...",              "",       true,  true},
    {"Menu_File_Osc_Trenn_1",  2, "-",                        "",       false, true},
    {"Menu_File_Osc_1",        2, "",                         "",       false, true},
    {"Menu_File_Osc_2",        2, "",                         "",       false, true},
    {"Menu_File_Osc_3",        2, "",                         "",       false, true},
    {"Menu_File_Osc_4",        2, "",                         "",       false, true},
    {"Menu_File_Trenn_2",      1, "-",                        "",       true,  true},
    {"Menu_File_Exit",         1, "E&xit",                    "Ctrl+X", true,  true},
    {"Menu_Edit",              0, "&Edit",                    "",       true,  true},
    {"Menu_Edit_Undo",         1, "&Undo",                    "Ctrl+Z", true,  false},
    {"Menu_MIDI",              0, "&MIDI",                    "",       true,  true},
    {"Menu_MIDI_CloseOutput",  1, "&Close MIDI Output",       "Ctrl+C", true,  true},
    {"Menu_MIDI_Setup",        1, "&Setup...",                "",       true,  true},
    {"Menu_MIDI_Trenn",        1, "-",                        "",       true,  true},
    {"Menu_MIDI_Osc",          1, "Osc&illator...",           "Ctrl+I", true,  true},
    {"Menu_MIDI_Seq",          1, "Seq&uencer...",            "Ctrl+U", true,  true},
    {"Menu_MIDI_Seq_Load",     1, "Preload Sequence",         "",       true,  true},
    {"Menu_Tone",              0, "&Tone",                    "",       true,  true},
    {"Menu_Tone_Name",         1, "&Name...",                 "",       true,  true},
    {"Menu_Tone_Patch",        1, "&Patch...",                "Ctrl+P", true,  true},
    {"Menu_Tone_Trenn1",       1, "-",                        "",       true,  true},
    {"Menu_Tone_Random",       1, "&Random",                  "Ctrl+R", true,  true},
    {"Menu_Tone_Trenn2",       1, "-",                        "",       true,  true},
    {"Menu_Tone_Receive",      1, "Recei&ve ",                "Ctrl+V", false, true},
    {"Menu_Tone_Send",         1, "Sen&d",                    "Ctrl+T", true,  true},
    {"Menu_Windows",           0, "&Windows",                 "",       true,  true},
    {"Menu_Windows_SavePos",   1, "&Save Positions",          "",       true,  true},
    {"Menu_Windows_Reset",     1, "&Reset Settings...",       "",       true,  true},
    {"Menu_Help",              0, "&Help",                    "",       true,  true},
    {"Menu_Help_Howto",        1, "&How to use Tonebench...", "",       true,  true},
    {"Menu_Help_Search",       1, "&Search...",               "F1",     true,  true},
    {"Menu_Help_Trenn",        1, "-",                        "",       true,  true},
    {"Menu_Help_About",        1, "&About...",                "",       true,  true},
    {"Menu_Popup",             0, "",                         "",       false, true},
    {"Menu_Popup1",            1, "",                         "",       true,  true},
    {"Menu_Popup2",            1, "",                         "",       true,  true},
    {"Menu_Popup3",            1, "",                         "",       true,  true},
    {"Menu_Popup4",            1, "",                         "",       true,  true},
    {"Menu_Popup5",            1, "",                         "",       false, true},
};
// clang-format on

const char* const Switched[] = {"Menu_File", "Menu_Edit",    "Menu_Tone",
                                "Menu_MIDI", "Menu_Windows", "Menu_Help"};

bool Is_Switched(const std::string& name) {
    return std::find(std::begin(Switched), std::end(Switched), name) != std::end(Switched);
}

}  // namespace

TEST(Menu_Bar, has_these_entries_in_this_order) {
    ASSERT_EQ(Menu_Tree.size(), std::size(Expected));
    for (std::size_t row = 0; row < Menu_Tree.size(); ++row) {
        const Menu_Entry& entry = Menu_Tree[row];
        EXPECT_STREQ(entry.name, Expected[row].name) << row;
        EXPECT_EQ(entry.level, Expected[row].level) << entry.name;
        EXPECT_EQ(entry.caption, Expected[row].caption) << entry.name;
        EXPECT_STREQ(entry.shortcut, Expected[row].shortcut) << entry.name;
    }
}

TEST(Menu_Bar, starts_with_these_entries_shown_and_enabled_and_none_checked) {
    for (std::size_t row = 0; row < Menu_Tree.size(); ++row) {
        const Menu_Entry& entry = Menu_Tree[row];
        EXPECT_EQ(entry.visible, Expected[row].visible) << entry.name;
        EXPECT_EQ(entry.enabled, Expected[row].enabled) << entry.name;
        EXPECT_FALSE(entry.checked) << entry.name;
    }
}

TEST(Menu_Bar, finds_each_entry_in_its_own_row) {
    for (int id = 0; id < Menu_Count; ++id) EXPECT_EQ(Menu(static_cast<Menu_Id>(id)).id, id);
    EXPECT_STREQ(Menu(Menu_Tone_Send).name, "Menu_Tone_Send");
    EXPECT_STREQ(Menu(Menu_Popup5).name, "Menu_Popup5");
}

TEST(Menu_Bar, has_each_shortcut_once) {
    for (const Menu_Entry& one : Menu_Tree) {
        for (const Menu_Entry& other : Menu_Tree) {
            if (&one == &other || *one.shortcut == '\0') continue;
            EXPECT_STRNE(one.shortcut, other.shortcut) << one.name << " and " << other.name;
        }
    }
}

TEST(Menu_Bar, is_switched_off_by_its_six_top_level_menus_only) {
    Menus_Disable();
    for (std::size_t row = 0; row < Menu_Tree.size(); ++row) {
        const Menu_Entry& entry = Menu_Tree[row];
        EXPECT_EQ(entry.enabled, Expected[row].enabled && !Is_Switched(entry.name)) << entry.name;
    }
}

TEST(Menu_Bar, is_switched_on_by_its_six_top_level_menus_only) {
    for (Menu_Entry& entry : Menu_Tree) entry.enabled = false;
    Menus_Enable();
    for (const Menu_Entry& entry : Menu_Tree) {
        EXPECT_EQ(entry.enabled, Is_Switched(entry.name)) << entry.name;
    }
}

TEST(Menu_Bar, keeps_what_is_shown_and_checked_when_it_is_switched) {
    Menu(Menu_MIDI_Seq_Load).checked = true;
    Menus_Disable();
    Menus_Enable();
    EXPECT_TRUE(Menu(Menu_MIDI_Seq_Load).checked);
    EXPECT_TRUE(Menu(Menu_File).visible);
    EXPECT_FALSE(Menu(Menu_Popup).visible);
}
