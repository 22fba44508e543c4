// The guide tells what the program does: its tables are compared with the program's own, its examples with
// what is sent, its byte maps with what is written.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "desk/menus.h"
#include "desk/windows.h"
#include "fakes/juno_stage.h"
#include "filedlg/file_controls.h"
#include "filedlg/file_events.h"
#include "help/help.h"
#include "help/howto.h"
#include "help/topics.h"
#include "oscillator/engine.h"
#include "oscillator/targets.h"
#include "oscwin/layout.h"
#include "oscwin/oscwin.h"
#include "panels/editor_printing.h"
#include "panels/juno_printing.h"
#include "panels/mks_patch_table.h"
#include "panels/patch_table.h"
#include "sequencer/seq_file.h"
#include "seqwin/seqwin.h"
#include "seqwin/seqwin_printing.h"
#include "setup/setup.h"
#include "shell/frame.h"
#include "structure/guide_pages.h"
#include "synth/juno.h"
#include "synth/messages.h"
#include "synth/patch.h"
#include "synth/profile.h"
#include "synth/syx_file.h"
#include "synth/tone.h"
#include "tname/tname.h"

// -- controls -------------------------------------------------------------------------------------------

namespace {

std::string Values_Of(const Editor_Row& row) {
    if (row.type == Control_Type::Slider) return "0 to 99";
    if (row.type == Control_Type::Tune_Knob) return "-12 to 12";
    if (row.type == Control_Type::Fine_Knob) return "-50 to 50";
    Row names;
    for (int position = 0; position < Positions(row.type); ++position)
        names.push_back(Editor_Position_Name(row, position));
    return Joined(names);
}

std::string Values_Of(const Juno_Row& row) {
    if (row.type == Juno_Type::Slider) return "0 to 127";
    Row names;
    for (int position = 0; position < row.positions; ++position) {
        const std::string name = Juno_Position_Name(row, position);
        const std::string number = std::to_string(position);
        if (!name.empty()) names.push_back(name == number ? number : number + " " + name);
    }
    return names.empty() ? "0 to " + std::to_string(row.positions - 1) : Joined(names);
}

std::string Values_Of(const Patch_Row& row) {
    if (row.type == Control_Type::Slider) return "0 to 99";
    if (row.type == Control_Type::Fine_Knob) return "-50 to 50";
    if (row.type == Control_Type::Two_Way)
        return Joined({Portamento_Names.begin(), Portamento_Names.end()});
    return Joined({Bend_Range_Names.begin(), Bend_Range_Names.end()});
}

// The controls of a panel that take the focus, by their spoken names.
std::set<std::string> Spoken_Names(const Panel& panel) {
    std::set<std::string> names;
    for (const Control* control : panel.controls) {
        if (control->focusable) names.insert(control->spoken_name);
    }
    return names;
}

// The words before the first comma, or the words between commas, of a table's first column.
std::set<std::string> First_Column(const Rows& rows) {
    std::set<std::string> names;
    for (const Row& row : rows) {
        for (std::size_t at = 0; at <= row.front().size();) {
            const std::size_t end = std::min(row.front().find(", ", at), row.front().size());
            names.insert(row.front().substr(at, end - at));
            at = end + 2;
        }
    }
    return names;
}

void Expect_All_In(const std::set<std::string>& names, const std::string& page,
                   const std::string& heading) {
    const std::set<std::string> told = First_Column(Table(page, heading, 1));
    for (const std::string& name : names) EXPECT_TRUE(told.contains(name)) << page << " lacks " << name;
}

const std::string Panel_Heading = "| Control | Printed | No. | Values | What it does |";
const std::string Control_Heading = "| Control | What it does |";

}  // namespace

TEST(The_Guide, tells_every_control_of_the_JX_8P) {
    Rows rows;
    for (const Editor_Row& row : Editor_Table)
        rows.push_back(
            {row.spoken_name, Editor_Caption(row), std::to_string(row.parameter), Values_Of(row)});
    EXPECT_EQ(Table("panel.md", Panel_Heading, 4), rows);
}

TEST(The_Guide, tells_every_control_of_the_Alpha_Juno) {
    Rows rows;
    for (const Juno_Row& row : Juno_Table)
        rows.push_back({row.spoken_name, Juno_Caption(row), std::to_string(row.parameter), Values_Of(row)});
    EXPECT_EQ(Table("juno.md", Panel_Heading, 4), rows);
}

TEST(The_Guide, tells_the_rest_of_the_panels) {
    std::set<std::string> names = Spoken_Names(Editor_Panel);
    for (const Editor_Row& row : Editor_Table) names.erase(row.spoken_name);
    EXPECT_EQ(First_Column(Table("panel.md", Control_Heading, 1)), names);
}

TEST(The_Guide, tells_every_control_of_the_Patch_window) {
    Rows rows;
    for (const Patch_Row& row : Patch_Table)
        rows.push_back({row.spoken_name, std::to_string(row.number), Values_Of(row)});
    EXPECT_EQ(Table("patch.md", "| Control | No. | Values | What it does |", 3), rows);

    const Rows lamps = Table("patch.md", "| Lamp | Sent | What it does |", 3);
    std::vector<Lamp_Row> all(Key_Mode_Lamps.begin(), Key_Mode_Lamps.end());
    all.insert(all.end(), After_Touch_Lamps.begin(), After_Touch_Lamps.end());
    ASSERT_EQ(lamps.size(), all.size());
    for (std::size_t item = 0; item < all.size(); ++item) {
        EXPECT_EQ(lamps[item][0], all[item].printed);
        EXPECT_EQ(lamps[item][1], std::to_string(all[item].code));
        EXPECT_TRUE(lamps[item][2].starts_with(std::string(all[item].spoken_name) + ":")) << lamps[item][2];
    }
}

TEST(The_Guide, tells_every_control_of_the_MKS_70s_patch_window) {
    std::set<std::string> names = {"Tone A", "Tone B", "Patch Name", "Tone Number", "Split Point"};
    for (const MKS_Row& row : MKS_Knobs) names.insert(row.spoken_name);
    for (const MKS_Row& row : MKS_Thumbs) names.insert(row.spoken_name);
    for (const MKS_Row& row : MKS_Lamps) names.insert(row.spoken_name);
    EXPECT_EQ(First_Column(Table("mks70.md", "| Control | Kind | Answers |", 1)), names);
}

TEST(The_Guide, tells_every_control_of_the_sequencer) {
    Expect_All_In(Spoken_Names(Seq_Panel), "sequencer.md", Control_Heading);
    Rows names;
    for (const Seq_Direction& direction : Seq_Directions)
        names.push_back({Flat(Seq_Direction_Name(direction.mode))});
    EXPECT_EQ(Table("sequencer.md", "| Direction | How the steps follow |", 1), names);
}

TEST(The_Guide, tells_every_control_of_the_oscillator) {
    const std::string heading = "| Control | Printed | Values | What it does |";
    std::set<std::string> names = Spoken_Names(Osc_Panel);
    Rows shapes;
    for (const Control& lamp : Osc_Wave) {
        names.erase(lamp.spoken_name);
        shapes.push_back({lamp.spoken_name});
    }
    Expect_All_In(names, "oscillator.md", heading);
    EXPECT_EQ(Table("oscillator.md", "| Shape | Place | What it is |", 1), shapes);

    const Rows rows = Table("oscillator.md", heading, 3);
    const auto values = [](const Scroll_Bar& bar) {
        return std::to_string(bar.minimum) + " to " + std::to_string(bar.maximum);
    };
    const std::array<const Scroll_Bar*, Osc_Rail_Count> bars = {&Osc_VScrollA, &Osc_VScrollDelta,
                                                                &Osc_Time};
    for (std::size_t rail = 0; rail < bars.size(); ++rail) {
        const Row wanted = {Osc_Rails[rail].spoken_name, Osc_Rails[rail].caption, values(*bars[rail])};
        EXPECT_TRUE(std::find(rows.begin(), rows.end(), wanted) != rows.end()) << Joined(wanted);
    }
}

TEST(The_Guide, tells_every_target_of_the_oscillator) {
    Rows rows;
    for (const Osc_Target& target : Osc_Targets)
        rows.push_back({target.entry, std::to_string(target.code)});
    EXPECT_EQ(Table("oscillator.md", "| Target | Number | Moves |", 2), rows);
}

TEST(The_Guide, tells_every_control_of_the_file_window) {
    std::set<std::string> preview;
    std::set<std::string> window = {"Files"};
    for (const Drawn_Button* drawn : {&FD_SYX_Button_Start, &FD_SYX_Button_Stop})
        preview.insert(drawn->button.spoken_name);
    for (const Lamp* lamp :
         {&FD_SYX_CB_Autoplay, &FD_SYX_CB_Autosend, &FD_SYX_OB_Soundcheck[0], &FD_SYX_OB_Soundcheck[1]})
        preview.insert(lamp->control.spoken_name);
    preview.insert({"Soundcheck note", "Soundcheck velocity"});
    for (const Drawn_Button* drawn :
         {&FD_Button_Ok, &FD_Button_Cancel, &FD_Button_Updir, &FD_Button_Newdir, &FD_Button_Delete})
        window.insert(drawn->button.spoken_name);
    for (const char* label : {FD_Label_FileName, FD_Label_Dir, FD_Label_Drives, FD_Label_FileType}) {
        std::string name = Without_Marks(label);
        name.pop_back();  // the colon
        window.insert(name);
    }
    EXPECT_EQ(First_Column(Table("files.md", Control_Heading, 1)), window);
    EXPECT_EQ(First_Column(Table("files.md", "| Control of the preview | What it does |", 1)), preview);
}

TEST(The_Guide, tells_every_control_of_the_dialogs) {
    std::set<std::string> names;
    for (const char* caption :
         {Setup_Label_Synth, Setup_Label_Output, Setup_Label_Input, Setup_Label_Channel,
          Setup_Caption_Enable, Setup_Caption_AutoSend, Setup_Caption_AutoPlay, Setup_Caption_OK})
        names.insert(Without_Marks(caption));
    EXPECT_EQ(First_Column(Table("setup.md", "| Control | Values | What it does | Takes effect |", 1)),
              names);

    names.clear();
    for (const char* caption : {TName_Prompt, TName_Caption_OK, TName_Caption_Cancel})
        names.insert(Without_Marks(caption));
    EXPECT_EQ(First_Column(Table("name.md", Control_Heading, 1)), names);
}

TEST(The_Guide, tells_every_control_and_every_topic_of_the_help_window) {
    std::set<std::string> names = Spoken_Names(Howto_Panel);
    names.insert({"Display", "Description", "Keyword", "Topic", "Informations", "Credits", "Reason"});
    EXPECT_EQ(First_Column(Table("help.md", Control_Heading, 1)), names);

    Help_Topics_Fill();
    std::set<std::string> topics;
    std::set<std::string> told;
    for (const std::string& keyword : Help_Keywords) {
        if (!keyword.empty()) topics.insert(keyword);
    }
    for (const Row& row : Table("help.md", "| Topic | Told more fully in |", 1)) told.insert(row.front());
    EXPECT_EQ(told, topics);
}

// -- menus ----------------------------------------------------------------------------------------------

using A_Started_Guide = Started_Stage;

TEST_F(A_Started_Guide, tells_every_entry_of_the_menus_with_its_shortcut) {
    Rows rows;
    Row path;
    bool hidden = false;
    std::size_t hidden_level = 0;
    for (const Menu_Entry& entry : Menu_Tree) {
        const auto level = static_cast<std::size_t>(entry.level);
        if (hidden && level > hidden_level) continue;
        // Receive is hidden until the settings ask for it.
        hidden = !entry.visible && entry.id != Menu_Tone_Receive;
        hidden_level = level;
        path.resize(level);
        path.push_back(Without_Marks(entry.caption));
        if (!hidden && entry.chosen.Filled()) rows.push_back({Joined(path), entry.shortcut});
    }
    const Rows told = Table("menus.md", "| Entry | Shortcut | What it does |", 2);
    // The guide keeps the order of the bar.
    EXPECT_EQ(told, rows);
}

TEST(The_Guide, tells_every_key_of_the_file_window) {
    std::set<std::string> keys;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (FD_Takes_Key(letter, true)) keys.insert(std::string("Alt+") + letter);
    }
    keys.insert({"Space", "Enter", "Escape"});
    EXPECT_EQ(First_Column(Table("files.md", "| Key | What it does |", 1)), keys);
}

TEST_F(A_Started_Guide, tells_the_lists_of_the_windows) {
    Window_Show(Sequencer);
    const std::string sequencer = Page("sequencer.md");
    EXPECT_NE(sequencer.find(Joined(Sequencer_Form.range.entries)), std::string::npos);
    EXPECT_NE(sequencer.find(Joined(Sequencer_Form.trans.entries)), std::string::npos);
    Window_Show(MIDI_Setup);
    const Row instruments = MIDI_Setup_Form.synthesizer_type.entries;
    EXPECT_NE(Page("setup.md").find(Joined(instruments)), std::string::npos);
}

// -- files ----------------------------------------------------------------------------------------------

namespace {

// A byte map: where it begins, and how long its pieces are together if each begins where the last one ends.
std::size_t Length_Of_Map(const std::string& heading) {
    bool inside = false;
    std::size_t next = 0;
    for (const std::string& line : Lines_Of(Page("formats.md"))) {
        if (line.starts_with("#")) inside = line == "## " + heading;
        const Row cells = Cells(line);
        if (!inside || cells.size() < 3 || std::isdigit(static_cast<unsigned char>(cells[0][0])) == 0)
            continue;
        if (std::isdigit(static_cast<unsigned char>(cells[1][0])) == 0) continue;
        EXPECT_EQ(std::stoul(cells[0]), next) << heading << ": " << line;
        next = std::stoul(cells[0]) + std::stoul(cells[1]);
    }
    EXPECT_NE(Flat(Page("formats.md")).find(std::to_string(next) + " bytes in all"), std::string::npos);
    return next;
}

}  // namespace

TEST_F(A_Started_Guide, tells_how_long_the_files_are) {
    EXPECT_EQ(Length_Of_Map("A tone of the JX-8P and the MKS-70"), SYX_Image_Build());
    EXPECT_EQ(Length_Of_Map("A sequence"), SEQ_Size);
}

using A_Guide_For_The_Alpha_Juno = Juno_Stage;

TEST_F(A_Guide_For_The_Alpha_Juno, tells_how_long_its_file_is) {
    EXPECT_EQ(Length_Of_Map("A tone of the Alpha Juno"), SYX_Image_Build());
}

TEST_F(A_Started_Guide, tells_every_line_of_the_settings_file_with_what_a_first_start_has) {
    Write_Settings("");
    Settings_Read();
    Settings_Write();
    Rows rows;
    std::string section;
    for (const std::string& line : Lines_Of(Read_Settings())) {
        if (line.starts_with("[")) section = line.substr(1, line.find(']') - 1);
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        const std::string key = line.substr(0, equals);
        std::string value = line.substr(equals + 1);
        if (value.starts_with("/")) value = "the folder of the start";
        rows.push_back({section, key, value});
    }
    Rows told = Table("formats.md", "| Section | Key | First | What |", 3);
    // Behind them stand those that no exit writes.
    ASSERT_GE(told.size(), 3U);
    const Rows by_hand(told.end() - 3, told.end());
    EXPECT_EQ(by_hand, (Rows{{"MIDI", "Output", ""}, {"MIDI", "Input", ""}, {"MIDI", "Receive", "0"}}));
    told.resize(told.size() - 3);
    EXPECT_EQ(told, rows);
}

// -- messages -------------------------------------------------------------------------------------------

namespace {

// What the guide says is sent for this.
std::string Told(const std::string& what) {
    for (const Row& row : Table("messages.md", "| What | Bytes |", 2)) {
        if (row[0] == what) return row[1];
    }
    return "(not told)";
}

}  // namespace

TEST_F(A_Started_Guide, tells_the_messages_of_a_JX_8P_and_an_MKS_70) {
    Editor_Set_Value(35, 64);
    EXPECT_EQ(Joined(Sent()), Told("JX-8P, VCF Resonance to 64"));
    Editor_Set_Value(16, 64);
    EXPECT_EQ(Joined(Sent()), Told("JX-8P, DCO-2 Range to 4'"));
    Key("DCO1_Tune", Key_Up);
    EXPECT_EQ(Joined(Sent()), Told("JX-8P, DCO-1 Tune to +1"));
    Patch_Byte(Patch_Key_Mode) = 5;
    Patch_Send_Param(Patch_Key_Mode);
    EXPECT_EQ(Joined(Sent()), Told("Patch, Unison 2"));
    Window_Show(TName);
    TName_Tone_Name_Change("Glass Pad");
    TName_Cmd_OK();
    EXPECT_EQ(Joined(Sent()), Told("JX-8P, the name GLASS PAD"));
    Tone_Init();
    Tone_Send();
    EXPECT_EQ(Joined(Sent()), Told("JX-8P, whole tone"));
    Press("Keys_Pic");
    EXPECT_EQ(Joined(Sent()), Told("the keyboard button: C, E, G, C"));
    Menu(Menu_MIDI_CloseOutput).chosen();
    EXPECT_EQ(Sent().front(), Told("MIDI, Close MIDI Output"));
    Synthesizer = "MKS-70";
    Sysex_Headers_Update();
    Editor_Set_Value(35, 64);
    EXPECT_EQ(Joined(Sent()), Told("MKS-70, the same"));
}

TEST_F(A_Guide_For_The_Alpha_Juno, tells_its_messages) {
    Juno_Byte(16) = 64;
    Juno_Send_Param(16);
    EXPECT_EQ(Joined(Sent()), Told("Alpha Juno, VCF Cutoff to 64"));
    Window_Show(TName);
    TName_Tone_Name_Change("Pad");
    TName_Cmd_OK();
    EXPECT_EQ(Joined(Sent()), Told("Alpha Juno, the name PAD"));
}
