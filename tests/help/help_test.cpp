#include "help/help.h"

#include <algorithm>

#include "desk/dialog_lock.h"
#include "desk/menus.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "fakes/stage.h"
#include "help/howto.h"
#include "help/topics.h"
#include "panels/juno_panel.h"
#include "platform/text.h"
#include "shell/frame.h"
#include "synth/profile.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;

const Lines Sorted_Topics = {
    "Editor",
    "File Dialog",
    "INI file",
    "JX-8P and Sysex",
    "Keyboard",
    "Matrix",
    "MIDI Autoplay",
    "MIDI Autosend",
    "MIDI keyboard (Editor)",
    "MIDI keyboard (Sequencer)",
    "MIDI setup",
    "MIDI System Exclusive (Sysex)",
    "Mouse",
    "Patch",
    "Preload Sequence",
    "Preview setting",
    "Random Tone",
    "Range (Sequencer)",
    "Receive",
    "Save Positions",
    "Sequencer",
    "Transpose (Sequencer)",
    "using mouse, keyboard",
};

std::string Selected() {
    return Help_Window_Form.key_list.Selected_Text();
}

}  // namespace

class Help_Is : public Started_Stage {
  protected:
    static void Choose(Menu_Id entry) { Menu(entry).chosen(); }
};

// -- opening and closing ---------------------------------------------------------------------------------

TEST_F(Help_Is, opened_by_the_menu_on_the_page_of_the_entry) {
    for (const auto& [entry, page] : {std::pair{Menu_Help_About, "About"},
                                      {Menu_Help_Howto, "Howto"},
                                      {Menu_Help_Search, "Search"},
                                      {Menu_Help_Howto, "Howto"}}) {
        Choose(entry);
        EXPECT_TRUE(Help.visible);
        EXPECT_EQ(Help_Page, page);
        EXPECT_EQ(Help_Window_Form.page, page);
        EXPECT_EQ(App_Mode, "Help");
        Help_Close_Asked();
        EXPECT_FALSE(Help.visible);
        EXPECT_FALSE(Help.loaded);
        EXPECT_EQ(App_Mode, "");
    }
}

TEST_F(Help_Is, locking_the_rest_while_it_is_open) {
    Choose(Menu_Help_About);
    EXPECT_EQ(Help.caption, "Tonebench Help");
    EXPECT_FALSE(Editor.enabled);
    EXPECT_FALSE(Menu(Menu_File).enabled);
    EXPECT_FALSE(Menu(Menu_Help).enabled);
    Choose(Menu_Tone_Name);
    EXPECT_FALSE(TName.loaded);
    Choose(Menu_MIDI_Setup);
    EXPECT_FALSE(MIDI_Setup.loaded);
    Help_Close_Asked();
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Menu(Menu_Help).enabled);
}

TEST_F(Help_Is, in_the_middle_of_the_screen_at_first_and_then_where_it_was_left) {
    Display.width = 1600;
    Display.height = 900;
    Choose(Menu_Help_About);
    EXPECT_EQ(Help.left, (1600 - Help.width) / 2);
    EXPECT_EQ(Help.top, (900 - Help.height) / 2);
    EXPECT_EQ(Help.width, 640);
    EXPECT_EQ(Help.height, 404);
    Help.left = 7;
    Help.top = 8;
    Help_Close_Asked();
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help.left, 7);
    EXPECT_EQ(Help.top, 8);
}

TEST_F(Help_Is, laying_the_pressed_look_of_the_panels_thumb_down) {
    Focus("VCF_Res");
    Panel_Blink_Phase = 1;
    Panel_Blink();
    ASSERT_EQ(At("VCF_Res").picture.item, Thumb_Slider + 1);
    Choose(Menu_Help_Howto);
    EXPECT_EQ(At("VCF_Res").picture.item, Thumb_Slider);
}

TEST_F(Help_Is, giving_the_mark_back_to_the_panels_control_on_every_page) {
    Focus("VCF_Res");
    for (const Menu_Id entry : {Menu_Help_Howto, Menu_Help_Howto, Menu_Help_About, Menu_Help_Search}) {
        Choose(entry);
        Help_Close_Asked();
        EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
        EXPECT_TRUE(Timer1.enabled);
    }
}

TEST_F(Help_Is, blinking_on_its_practice_page_alone) {
    Choose(Menu_Help_About);
    EXPECT_FALSE(Timer1.enabled);
    Help_Cmd_Search();
    EXPECT_FALSE(Timer1.enabled);
    Help_Cmd_Howto();
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(Panel_Current_Control, &Help_Pos_Sw);
    Help_Close_Asked();
    Choose(Menu_Help_Howto);
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(Panel_Current_Control, &Help_Pos_Sw);
    Help_Close_Asked();
    Choose(Menu_Help_Howto);
    EXPECT_TRUE(Timer1.enabled) << "at the second opening too";
}

TEST_F(Help_Is, turned_by_its_buttons) {
    Choose(Menu_Help_About);
    Help_Cmd_Howto();
    EXPECT_EQ(Help_Window_Form.page, "Howto");
    Help_Cmd_Search();
    EXPECT_EQ(Help_Window_Form.page, "Search");
    Help_Cmd_About();
    EXPECT_EQ(Help_Window_Form.page, "About");
}

TEST_F(Help_Is, going_with_the_program) {
    Choose(Menu_Help_Howto);
    EXPECT_TRUE(Main_Close());
    EXPECT_FALSE(Help.loaded);
}

TEST_F(Help_Is, labelled_so) {
    EXPECT_STREQ(Help_Caption_Howto, "How to use Tonebench");
    EXPECT_STREQ(Help_Caption_Search, "Search");
    EXPECT_STREQ(Help_Caption_About, "About");
    EXPECT_STREQ(Help_Label_Keyword, "&Enter a keyword:");
    EXPECT_STREQ(Help_Label_List, "&Select a topic:");
    EXPECT_STREQ(Help_Label_Description, "Description:");
    EXPECT_STREQ(Help_Label_About, "Informations:");
    EXPECT_STREQ(Help_Label_Credits, "Credits:");
    EXPECT_STREQ(
        Help_Label_Howto,
        "Tonebench has different control elements to change parameters. A selected element blinks. "
        "Select a control element below and read the corresponding description on the right side:");
}

// -- search ----------------------------------------------------------------------------------------------

TEST_F(Help_Is, listing_its_topics_sorted_without_regard_to_case) {
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.key_list.entries, Sorted_Topics);
    Help_Close_Asked();
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.key_list.entries, Sorted_Topics) << "once, however often it is opened";
}

TEST_F(Help_Is, asking_for_a_keyword_at_once) {
    const int before = Help_Window_Form.keyword_focused;
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.keyword_focused, before + 1);
    Help_Cmd_About();
    EXPECT_EQ(Help_Window_Form.keyword_focused, before + 1);
    Help_Cmd_Search();
    EXPECT_EQ(Help_Window_Form.keyword_focused, before + 2);
    App_Mode = "TName";
    Help_Cmd_Search();
    EXPECT_EQ(Help_Window_Form.keyword_focused, before + 2) << "while the help window has the lock";
}

TEST_F(Help_Is, standing_on_its_first_topic_without_a_keyword) {
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.keyword, "");
    EXPECT_EQ(Selected(), "Editor");
    Help_Keyword_Change("zzz");
    Help_Keyword_Change("");
    EXPECT_EQ(Selected(), "Editor");
}

TEST_F(Help_Is, standing_on_its_last_topic_behind_all_others) {
    Choose(Menu_Help_Search);
    for (const char* text : {"zzz", "ZZZ", "using mouse, keyboardx", "v", "\xE4", "{"}) {
        Help_Keyword_Change("");
        Help_Keyword_Change(text);
        EXPECT_EQ(Selected(), "using mouse, keyboard") << text;
    }
}

TEST_F(Help_Is, following_every_beginning_of_every_topic_in_both_cases) {
    Choose(Menu_Help_Search);
    for (const std::string& topic : Sorted_Topics) {
        for (std::size_t length = 0; length <= topic.size(); ++length) {
            const std::string typed = topic.substr(0, length);
            // The first topic that begins so: all those before it are smaller, and none between.
            const auto expected = std::find_if(
                Sorted_Topics.begin(), Sorted_Topics.end(),
                [&](const auto& candidate) { return Same_Text(candidate.substr(0, length), typed); });
            for (const std::string& text : {typed, Upper_Text(typed), Lower_Text(typed)}) {
                Help_Keyword_Change(text);
                EXPECT_EQ(Selected(), *expected) << text;
                EXPECT_EQ(Help_Window_Form.keyword, text);
            }
        }
    }
}

TEST_F(Help_Is, following_what_lies_between_two_topics_to_the_next) {
    Choose(Menu_Help_Search);
    Help_Keyword_Change("midi b");
    EXPECT_EQ(Selected(), "MIDI keyboard (Editor)");
    Help_Keyword_Change("matrixx");
    EXPECT_EQ(Selected(), "MIDI Autoplay");
    Help_Keyword_Change("a");
    EXPECT_EQ(Selected(), "Editor");
    Help_Keyword_Change(" m");
    EXPECT_EQ(Selected(), "Editor") << "a blank is smaller than every letter";
}

TEST_F(Help_Is, describing_the_topic_that_the_typing_finds) {
    Choose(Menu_Help_Search);
    Help_Keyword_Change("matr");
    EXPECT_EQ(Help_Window_Form.description,
              "Simply click with the left or right mouse button onto the matrix to set notes.");
}

TEST_F(Help_Is, describing_each_topic_that_is_picked) {
    Choose(Menu_Help_Search);
    for (std::size_t index = 0; index < Sorted_Topics.size(); ++index) {
        Help_KeyList_Click(static_cast<int>(index));
        const auto slot = std::find(Help_Keywords.begin(), Help_Keywords.end(), Sorted_Topics[index]);
        EXPECT_EQ(Help_Window_Form.description,
                  Help_Descriptions.at(static_cast<std::size_t>(slot - Help_Keywords.begin())));
        EXPECT_EQ(Help_Window_Form.keyword, "") << "the keyword stays as it was typed";
    }
}

TEST_F(Help_Is, beginning_with_the_topic_of_the_focused_control) {
    Panel_Help_Context = 85;
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.keyword, "Matrix");
    EXPECT_EQ(Selected(), "Matrix");
}

TEST_F(Help_Is, beginning_with_no_topic_where_the_focused_controls_is_yet_to_come) {
    for (const auto& [control, context] : {std::pair{"DCO1_Range", 1},
                                           {"DCO2_Range", 1},
                                           {"DCO1_Waveform", 2},
                                           {"DCO2_Waveform", 2},
                                           {"DCO1_Tune", 3},
                                           {"DCO2_Tune", 3},
                                           {"DCO1_LFO", 4},
                                           {"DCO2_LFO", 4},
                                           {"VCF_LFO", 4},
                                           {"VCF_Res", 0}}) {
        Play_On(Editor_Panel);
        EXPECT_EQ(At(control).help_context, context) << control;
        Focus(control);
        Panel_Blink_Tick();
        Choose(Menu_Help_Search);
        EXPECT_EQ(Help_Window_Form.keyword, "") << control;
        EXPECT_EQ(Selected(), "Editor");
        Help_Close_Asked();
    }
}

TEST_F(Help_Is, beginning_with_no_topic_over_the_alpha_junos_controls_either) {
    Synthesizer = "Alpha Juno";
    Sysex_Headers_Update();
    Play_On(Juno_Panel);
    Juno_Panel.events.activated();
    for (const auto& [control, context] :
         {std::pair{"DCO_Range", 1}, {"DCO_SawTooth", 2}, {"DCO_Sub", 2}, {"DCO_LFO", 4}, {"VCF_LFO", 4}}) {
        Focus(control);
        Panel_Blink_Tick();
        EXPECT_EQ(Panel_Help_Context, context) << control;
        Choose(Menu_Help_Search);
        EXPECT_EQ(Help_Window_Form.keyword, "") << control;
        EXPECT_EQ(Selected(), "Editor");
        Help_Close_Asked();
        EXPECT_EQ(Panel_Current_Control, &At(control));
    }
}

TEST_F(Help_Is, not_led_astray_by_a_context_outside_the_topics) {
    for (const int context : {-1, 101, 32767}) {
        Panel_Help_Context = static_cast<std::int16_t>(context);
        Choose(Menu_Help_Search);
        EXPECT_EQ(Help_Window_Form.key_list.entries.size(), 23U);
        Help_Close_Asked();
    }
}

// -- about -----------------------------------------------------------------------------------------------

TEST_F(Help_Is, crediting_twelve_projects) {
    Choose(Menu_Help_About);
    EXPECT_EQ(Help_Window_Form.about, Help_About_Text());
    ASSERT_EQ(Help_Window_Form.credits.entries.size(), 12U);
    EXPECT_EQ(Help_Window_Form.credits.entries.front(), "Qt");
    EXPECT_EQ(Help_Window_Form.credits.entries.back(), "Debian");
    for (int index = 0; index < 12; ++index) {
        Help_Credits_Click(index);
        EXPECT_EQ(Help_Window_Form.credits_why,
                  std::string(" ") + Help_Credit_Reasons[static_cast<std::size_t>(index)]);
    }
}

TEST_F(Help_Is, filling_the_credits_anew_each_time_they_are_shown) {
    Choose(Menu_Help_Search);
    EXPECT_EQ(Help_Window_Form.credits.entries.size(), 0U) << "not before";
    Help_Cmd_About();
    Help_Credits_Click(3);
    Help_Cmd_About();
    EXPECT_EQ(Help_Window_Form.credits.entries.size(), 12U);
    EXPECT_EQ(Help_Window_Form.credits.selected, -1);
    EXPECT_EQ(Help_Window_Form.credits_why, "");
    EXPECT_EQ(Help_Window_Form.about, Help_About_Text());
}
