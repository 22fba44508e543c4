#include "desk/dialog_lock.h"

#include <algorithm>

#include "desk/menus.h"
#include "desk/timers.h"
#include "fakes/stage.h"

namespace {

const Menu_Id Six_Menus[] = {Menu_File, Menu_Edit, Menu_Tone, Menu_MIDI, Menu_Windows, Menu_Help};

bool All_Menus_Enabled() {
    return std::all_of(std::begin(Six_Menus), std::end(Six_Menus),
                       [](Menu_Id id) { return Menu(id).enabled; });
}
bool No_Menu_Enabled() {
    return std::none_of(std::begin(Six_Menus), std::end(Six_Menus),
                        [](Menu_Id id) { return Menu(id).enabled; });
}

Window Dialog = {.name = "TName"};
int Seen = 0;

void Open_Patch_And_Sequencer() {
    Window_Show(Patch);
    Window_Show(Sequencer);
    Patch_Window_Open = Flag_8::True;
    Seq_Window_Open = Flag_8::True;
}

}  // namespace

class Dialog_Lock : public Started_Stage {};

TEST_F(Dialog_Lock, is_open_behind_the_start) {
    EXPECT_EQ(App_Mode, "");
    EXPECT_EQ(Dialog_Depth, 0);
    EXPECT_TRUE(All_Menus_Enabled());
    EXPECT_TRUE(Editor.enabled);
}

TEST_F(Dialog_Lock, stops_the_blink_and_puts_the_mark_out_before_anything_else) {
    Open_Patch_And_Sequencer();
    Panel_Restore_Picture = [] {
        ++Seen;
        EXPECT_FALSE(Timer1.enabled);
        EXPECT_TRUE(Patch.enabled);
        EXPECT_TRUE(Sequencer.enabled);
        EXPECT_TRUE(All_Menus_Enabled());
        EXPECT_EQ(App_Mode, "");
        EXPECT_EQ(Main_Window.pointer, Pointer::Default);
        EXPECT_TRUE(Editor.enabled);
        EXPECT_EQ(Dialog_Depth, 0);
    };
    Dialog_Begin(Dialog, "TName");
    EXPECT_EQ(Seen, 1);
}

TEST_F(Dialog_Lock, locks_menus_panels_patch_and_sequencer) {
    Open_Patch_And_Sequencer();
    Panel_Current_Control = &At("VCF_Res");
    Dialog_Begin(Dialog, "TName");
    EXPECT_FALSE(Timer1.enabled);
    EXPECT_FALSE(Patch.enabled);
    EXPECT_FALSE(Sequencer.enabled);
    EXPECT_TRUE(Patch.visible);
    EXPECT_TRUE(Sequencer.visible);
    EXPECT_TRUE(No_Menu_Enabled());
    EXPECT_EQ(App_Mode, "TName");
    EXPECT_EQ(Main_Window.pointer, Pointer::Hourglass);
    EXPECT_FALSE(Editor.enabled);
    EXPECT_FALSE(Editor_Juno.enabled);
    EXPECT_EQ(Dialog.pointer, Pointer::Arrow);
    EXPECT_TRUE(Dialog.enabled);
    EXPECT_EQ(Panel_Saved_Control, &At("VCF_Res"));
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
    EXPECT_EQ(Dialog_Depth, 1);
}

TEST_F(Dialog_Lock, leaves_patch_and_sequencer_alone_when_they_are_not_open) {
    Dialog_Begin(Dialog, "TName");
    EXPECT_TRUE(Patch.enabled);
    EXPECT_TRUE(Sequencer.enabled);
    Patch.enabled = false;
    Sequencer.enabled = false;
    Dialog_End();
    EXPECT_FALSE(Patch.enabled);
    EXPECT_FALSE(Patch.visible);
    EXPECT_FALSE(Sequencer.enabled);
    EXPECT_FALSE(Sequencer.visible);
}

TEST_F(Dialog_Lock, lets_the_timers_of_the_display_and_the_sequencer_run) {
    Timer_Start(Timer_Display);
    Timer_Start(Seq_Tmr);
    Dialog_Begin(Dialog, "TName");
    EXPECT_TRUE(Timer_Display.enabled);
    EXPECT_TRUE(Seq_Tmr.enabled);
    Timer_Stop(Seq_Tmr);
}

TEST_F(Dialog_Lock, puts_the_mark_out_while_the_rest_is_still_locked) {
    Dialog_Begin(Dialog, "TName");
    Panel_Restore_Picture = [] {
        ++Seen;
        EXPECT_EQ(Main_Window.pointer, Pointer::Hourglass);
        EXPECT_FALSE(Editor.enabled);
        EXPECT_EQ(App_Mode, "TName");
        EXPECT_FALSE(Timer1.enabled);
    };
    Dialog_End();
    EXPECT_EQ(Seen, 1);
}

TEST_F(Dialog_Lock, still_names_the_dialog_while_the_events_that_waited_run) {
    Open_Patch_And_Sequencer();
    Dialog_Begin(Dialog, "TName");
    Patch.visible = false;
    Sequencer.visible = false;
    At_Next_Turn([] {
        ++Seen;
        EXPECT_EQ(App_Mode, "TName");
        EXPECT_TRUE(No_Menu_Enabled());
        EXPECT_FALSE(Timer1.enabled);
        EXPECT_EQ(Dialog_Depth, 1);
        EXPECT_EQ(Main_Window.pointer, Pointer::Default);
        EXPECT_TRUE(Editor.enabled);
        EXPECT_TRUE(Editor_Juno.enabled);
        EXPECT_TRUE(Patch.enabled);
        EXPECT_TRUE(Patch.visible);
        EXPECT_TRUE(Sequencer.enabled);
        EXPECT_TRUE(Sequencer.visible);
        // The focus that the closing moves is put right behind the events.
        Panel_Current_Control = &At("VCF_CutoffF");
    });
    Panel_Saved_Control = &At("VCF_Res");
    Dialog_End();
    EXPECT_EQ(Seen, 1);
    EXPECT_EQ(Loop.turns, 1);
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
}

TEST_F(Dialog_Lock, gives_everything_back_at_its_end) {
    Open_Patch_And_Sequencer();
    Panel_Current_Control = &At("VCF_Res");
    Dialog_Begin(Dialog, "TName");
    Panel_Current_Control = &At("VCF_CutoffF");
    const int raised = Sequencer.times_raised;
    Dialog_End();
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(All_Menus_Enabled());
    EXPECT_EQ(Main_Window.pointer, Pointer::Default);
    EXPECT_TRUE(Editor.enabled);
    EXPECT_TRUE(Editor_Juno.enabled);
    EXPECT_TRUE(Patch.enabled);
    EXPECT_TRUE(Sequencer.enabled);
    EXPECT_GT(Sequencer.times_raised, raised);
    EXPECT_EQ(Panel_Current_Control, &At("VCF_Res"));
    EXPECT_TRUE(Timer1.enabled);
    EXPECT_EQ(Dialog_Depth, 0);
}

TEST_F(Dialog_Lock, lets_the_blink_begin_anew_at_its_end) {
    Dialog_Begin(Dialog, "TName");
    Panel_Blink_Phase = 0;
    Advance(std::chrono::milliseconds(1000));
    EXPECT_EQ(Panel_Blink_Phase, 0) << "stopped";
    Dialog_End();
    Advance(std::chrono::milliseconds(250));
    EXPECT_EQ(Panel_Blink_Phase, 1);
}

TEST_F(Dialog_Lock, takes_the_place_of_another_one) {
    Panel_Current_Control = &At("VCF_Res");
    Dialog_Begin(Dialog, "Help");
    Panel_Current_Control = &At("VCF_CutoffF");
    Dialog_Begin(MIDI_Setup, "MIDI_Setup");
    EXPECT_EQ(App_Mode, "MIDI_Setup");
    EXPECT_EQ(Panel_Saved_Control, &At("VCF_CutoffF"));
    EXPECT_EQ(Dialog_Depth, 2);
    Dialog_End();
    EXPECT_EQ(App_Mode, "");
    EXPECT_TRUE(All_Menus_Enabled());
    EXPECT_EQ(Dialog_Depth, 1);
    Dialog_End();
    EXPECT_EQ(Panel_Current_Control, &At("VCF_CutoffF"));
    EXPECT_EQ(Dialog_Depth, 0);
}

TEST_F(Dialog_Lock, enables_the_midi_menu_that_a_start_without_devices_had_disabled) {
    Menu(Menu_MIDI).enabled = false;
    Menu(Menu_Tone_Send).enabled = false;
    Dialog_Begin(Dialog, "TName");
    Dialog_End();
    EXPECT_TRUE(Menu(Menu_MIDI).enabled);
    EXPECT_FALSE(Menu(Menu_Tone_Send).enabled);
}

using Dialog_Waiting = Dialog_Lock;

TEST_F(Dialog_Waiting, is_over_at_once_without_a_dialog) {
    Dialog_Wait();
    EXPECT_EQ(Loop.waits, 0);
}

TEST_F(Dialog_Waiting, is_over_when_the_dialog_has_closed) {
    Dialog_Begin(Dialog, "TName");
    At_Next_Turn([] { At_Next_Turn([] { Dialog_End(); }); });
    Dialog_Wait();
    EXPECT_EQ(App_Mode, "");
    EXPECT_EQ(Loop.waits, 2);
}

TEST_F(Dialog_Waiting, sleeps_between_events_and_lets_timers_tick) {
    Dialog_Begin(Dialog, "TName");
    Timer_Display.tick = [] {
        Timer_Stop(Timer_Display);
        Dialog_End();
    };
    Timer_Start(Timer_Display);
    Dialog_Wait();
    EXPECT_EQ(App_Mode, "");
    EXPECT_GT(Loop.waits, 0);
    EXPECT_LE(Loop.waits, 200) << "two seconds, slept in pieces";
    EXPECT_EQ(Loop.turns, 1) << "the one of Dialog_End";
}

TEST_F(Dialog_Waiting, goes_on_while_one_dialog_follows_the_other) {
    Dialog_Begin(Dialog, "TName");
    At_Next_Turn([] {
        Dialog_End();
        Dialog_Begin(MIDI_Setup, "MIDI_Setup");
        At_Next_Turn([] { Dialog_End(); });
    });
    Dialog_Wait();
    EXPECT_EQ(App_Mode, "");
    EXPECT_EQ(Loop.waits, 2);
}

TEST_F(Dialog_Waiting, ends_when_no_window_is_open_any_more) {
    Dialog_Begin(Dialog, "TName");
    Loop.windows_open = false;
    Dialog_Wait();
    EXPECT_EQ(App_Mode, "TName");
    EXPECT_EQ(Loop.waits, 1);
}
