#include "desk/windows.h"

#include <gtest/gtest.h>

#include "desk/form.h"
#include "desk/screen.h"
#include "desk/timers.h"

namespace {

Window Example = {.name = "Example"};
int Loads = 0;
int Unloads = 0;

void Count_Loads_And_Unloads() {
    Example.load = [] { ++Loads; };
    Example.unload = [] { ++Unloads; };
}

}  // namespace

TEST(Window_Record, runs_its_load_procedure_at_the_first_touch_only) {
    Count_Loads_And_Unloads();
    Window_Load(Example);
    Window_Load(Example);
    Window_Show(Example);
    EXPECT_EQ(Loads, 1);
    EXPECT_TRUE(Example.loaded);
}

TEST(Window_Record, is_not_shown_by_loading) {
    Window_Load(Example);
    EXPECT_FALSE(Example.visible);
    EXPECT_EQ(Example.times_raised, 0);
}

TEST(Window_Record, is_loaded_and_brought_to_the_front_by_showing) {
    Count_Loads_And_Unloads();
    Window_Show(Example);
    EXPECT_EQ(Loads, 1);
    EXPECT_TRUE(Example.visible);
    EXPECT_EQ(Example.times_raised, 1);
    Window_Show(Example);
    EXPECT_EQ(Example.times_raised, 2);
}

TEST(Window_Record, stays_loaded_when_it_is_hidden) {
    Window_Show(Example);
    Window_Hide(Example);
    EXPECT_FALSE(Example.visible);
    EXPECT_TRUE(Example.loaded);
}

TEST(Window_Record, is_still_there_while_its_unload_procedure_runs) {
    Example.unload = [] {
        EXPECT_TRUE(Example.loaded);
        EXPECT_TRUE(Example.visible);
        ++Unloads;
    };
    Window_Show(Example);
    Window_Unload(Example);
    EXPECT_EQ(Unloads, 1);
    EXPECT_FALSE(Example.visible);
    EXPECT_FALSE(Example.loaded);
}

TEST(Window_Record, that_is_not_loaded_has_nothing_to_unload) {
    Count_Loads_And_Unloads();
    Window_Unload(Example);
    EXPECT_EQ(Unloads, 0);
}

TEST(Window_Record, is_loaded_anew_when_it_is_touched_behind_its_unload) {
    Count_Loads_And_Unloads();
    Window_Load(Example);
    Window_Unload(Example);
    Window_Load(Example);
    EXPECT_EQ(Loads, 2);
}

TEST(Window_Record, of_the_main_window_has_the_size_of_a_first_start) {
    EXPECT_EQ(Main_Window.left, 0);
    EXPECT_EQ(Main_Window.top, 0);
    EXPECT_EQ(Main_Window.width, 541);
    EXPECT_EQ(Main_Window.height, 508);
}

TEST(Window_Record, starts_unloaded_hidden_and_enabled) {
    for (const Window* window : {&Editor, &Editor_Juno, &Patch, &Sequencer, &MIDI_Setup}) {
        EXPECT_FALSE(window->loaded) << window->name;
        EXPECT_FALSE(window->visible) << window->name;
        EXPECT_TRUE(window->enabled) << window->name;
        EXPECT_EQ(window->pointer, Pointer::Default) << window->name;
    }
    EXPECT_EQ(Patch_Window_Open, Flag_8::False);
    EXPECT_EQ(Seq_Window_Open, Flag_8::False);
    EXPECT_EQ(Patch_Left, 0);
    EXPECT_EQ(Patch_Top, 0);
    EXPECT_EQ(Seq_Window_Left, 0);
    EXPECT_EQ(Seq_Window_Top, 0);
}

TEST(Screen, has_15_twips_a_pixel_at_96_and_12_at_120_pixels_an_inch) {
    EXPECT_EQ(Twips_Per_Pixel(), 15) << "not measured yet";
    Screen_PPI = 96;
    EXPECT_EQ(Twips_Per_Pixel(), 15);
    Screen_PPI = 120;
    EXPECT_EQ(Twips_Per_Pixel(), 12);
}

TEST(Shared_Timers, stand_still_at_the_start_with_these_intervals) {
    EXPECT_EQ(Timer1.interval, 250);
    EXPECT_EQ(Timer_Display.interval, 2000);
    EXPECT_EQ(Seq_Tmr.interval, 250);
    EXPECT_FALSE(Timer1.enabled);
    EXPECT_FALSE(Timer_Display.enabled);
    EXPECT_FALSE(Seq_Tmr.enabled);
}

TEST(Drop_Down_List, selects_an_entry_by_its_index_or_none) {
    Drop_Down list = {.entries = {"JX-8P", "MKS-70"}};
    EXPECT_EQ(list.selected, -1);
    EXPECT_EQ(list.Selected_Text(), "");
    list.Select(1);
    EXPECT_EQ(list.Selected_Text(), "MKS-70");
    list.Select(2);
    EXPECT_EQ(list.selected, -1);
    list.Select(0);
    list.Select(-1);
    EXPECT_EQ(list.selected, -1);
    EXPECT_EQ(list.Selected_Text(), "");
}

TEST(Drop_Down_List, selects_the_first_entry_of_a_text_or_none) {
    Drop_Down list = {.entries = {"A", "B", "B"}};
    list.Select_Text("B");
    EXPECT_EQ(list.selected, 1);
    list.Select_Text("b");
    EXPECT_EQ(list.selected, -1);
}
