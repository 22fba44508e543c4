#include "shell/display_check.h"

#include "desk/menus.h"
#include "desk/screen.h"
#include "desk/settings.h"
#include "desk/timers.h"
#include "fakes/stage.h"
#include "midi/devices.h"
#include "sequencer/sequence.h"
#include "shell/frame.h"
#include "synth/tone.h"

namespace {

using Lines = std::vector<std::string>;

Lines Faces;
int Calls = 0;

std::string Density_Message(const std::string& number) {
    return "Unsupported system font size: " + number +
           " ppi (pixel per inch).\r"
           "Please set the font size to 'small fonts' (96 ppi) or 'large fonts (120 ppi).\r\r"
           "For additional informations, see the README.TXT file.";
}

std::string Font_Message() {
    return "Error: Could not load font " + Test_Folder() + "/JX8P.FNT\nUsing default font.";
}

}  // namespace

class Screen_Check : public Stage {
  protected:
    Screen_Check() { Write_Settings("[MIDI]\nOutput=Synth Out\nInput=Keys In\n"); }
};

// -- the density -----------------------------------------------------------------------------------------

TEST_F(Screen_Check, accepts_96_and_120_pixels_an_inch) {
    EXPECT_TRUE(Display_Check());
    EXPECT_EQ(Screen_PPI, 96);
    EXPECT_EQ(Font_Scale, 1.0F);
    Display.density = 120;
    EXPECT_TRUE(Display_Check());
    EXPECT_EQ(Screen_PPI, 120);
    EXPECT_EQ(Font_Scale, 1.25F);
}

TEST_F(Screen_Check, refuses_every_other_density_with_its_number) {
    for (const int density : {1, 72, 95, 97, 119, 121, 144, 192, 600}) {
        Display.density = density;
        Expect_Box(Density_Message(std::to_string(density)));
        EXPECT_FALSE(Display_Check());
        EXPECT_EQ(Screen_PPI, density);
        EXPECT_EQ(Boxes.back().icon, Icon::Stop);
        EXPECT_EQ(Boxes.back().buttons, Buttons_Set::Ok);
        EXPECT_EQ(Boxes.back().title, "Tonebench");
    }
    EXPECT_EQ(Font_Scale, 6.25F);
}

TEST_F(Screen_Check, rounds_a_broken_density_to_the_even_neighbour) {
    Display.density = 96.4;
    EXPECT_TRUE(Display_Check());
    Display.density = 96.5;
    EXPECT_TRUE(Display_Check());
    Display.density = 96.6;
    Expect_Box(Density_Message("97"));
    EXPECT_FALSE(Display_Check());
}

TEST_F(Screen_Check, lets_the_program_start_at_120) {
    Display.density = 120;
    EXPECT_TRUE(Main_Load());
    EXPECT_TRUE(Main_Window.visible);
}

TEST_F(Screen_Check, ends_the_program_at_144_without_asking_about_work) {
    Display.density = 144;
    Tone_Saved = Flag_16::False;
    Seq_Saved = Flag_8::False;
    Expect_Box(Density_Message("144"));
    EXPECT_FALSE(Main_Load());
    EXPECT_EQ(Boxes.size(), 1U);
    EXPECT_EQ(Tone_Saved, Flag_16::True);
    EXPECT_EQ(Seq_Saved, Flag_8::True);
    EXPECT_FALSE(Main_Window.visible);
    EXPECT_FALSE(Timer1.enabled);
}

TEST_F(Screen_Check, ends_the_program_before_devices_and_settings) {
    Display.density = 97;
    Settings_Read = [] { ++Calls; };
    Seq_Panel_Buttons_Off = [] { ++Calls; };
    Settings_Write = [] {
        EXPECT_EQ(INI_File, "");
        Setting_Put("MIDI", "Channel", "9");
    };
    Expect_Box(Density_Message("97"));
    EXPECT_FALSE(Main_Load());
    EXPECT_EQ(Calls, 0);
    EXPECT_EQ(INI_File, "");
    EXPECT_TRUE(MIDI_Out_Caps.empty());
    EXPECT_EQ(Read_Settings(), "[MIDI]\nOutput=Synth Out\nInput=Keys In\n");
}

TEST_F(Screen_Check, that_refuses_takes_the_font_away_again) {
    Display.density = 144;
    Expect_Box(Density_Message("144"));
    EXPECT_FALSE(Main_Load());
    EXPECT_EQ(Display.fonts_added, Lines{Test_Folder() + "/JX8P.FNT"});
    EXPECT_EQ(Display.fonts_removed, Lines{Test_Folder() + "/JX8P.FNT"});
}

TEST_F(Screen_Check, that_refuses_has_no_font_to_take_away_where_none_was_loaded) {
    Display.density = 144;
    Display.font_can_be_added = false;
    Expect_Box(Font_Message());
    Expect_Box(Density_Message("144"));
    EXPECT_FALSE(Main_Load());
    EXPECT_EQ(Display.fonts_removed, Lines{});
}

// -- the font --------------------------------------------------------------------------------------------

using Panel_Font = Screen_Check;

TEST_F(Panel_Font, lies_beside_the_program) {
    EXPECT_EQ(Font_Path(), Test_Folder() + "/JX8P.FNT");
}

TEST_F(Panel_Font, goes_to_the_name_fields_of_both_editor_windows_and_creates_them) {
    Juno_Take_Font = [](const char* face) {
        EXPECT_TRUE(Editor_Juno.loaded);
        EXPECT_EQ(Font_Loaded, Flag_16::False);
        Faces.emplace_back(face);
    };
    Font_Install();
    EXPECT_TRUE(Editor.loaded);
    EXPECT_EQ(Editor_Tone_Name.font, "JX8P");
    EXPECT_EQ(Faces, Lines{"JX8P"});
    EXPECT_EQ(Font_Loaded, Flag_16::True);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Panel_Font, that_cannot_be_loaded_gives_one_message_and_the_default_font) {
    Display.font_can_be_added = false;
    Juno_Take_Font = [](const char* face) { Faces.emplace_back(face); };
    Expect_Box(Font_Message());
    Font_Install();
    EXPECT_EQ(Boxes[0].icon, Icon::Stop);
    EXPECT_EQ(Boxes[0].title, "Tonebench");
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
    EXPECT_EQ(Font_Loaded, Flag_16::False);
    EXPECT_EQ(Editor_Tone_Name.font, "");
    EXPECT_EQ(Faces, Lines{});
    EXPECT_FALSE(Editor.loaded);
}

TEST_F(Panel_Font, that_cannot_be_loaded_leaves_panels_that_work) {
    Display.font_can_be_added = false;
    Expect_Box(Font_Message());
    EXPECT_TRUE(Main_Load());
    Press("VCF_Res");
    EXPECT_EQ(Shown(), "0");
    EXPECT_EQ(Boxes.size(), 1U);
}

TEST_F(Panel_Font, is_taken_away_once_it_was_loaded) {
    Font_Remove();
    EXPECT_EQ(Display.fonts_removed, Lines{});
    Font_Install();
    Font_Remove();
    EXPECT_EQ(Display.fonts_removed, Lines{Test_Folder() + "/JX8P.FNT"});
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Panel_Font, that_cannot_be_taken_away_is_told_with_the_systems_number) {
    Font_Install();
    Display.font_remove_error = 5;
    Expect_Box("Error 5");
    Font_Remove();
    EXPECT_EQ(Boxes[0].icon, Icon::Stop);
    EXPECT_EQ(Boxes[0].title, "Tonebench");
    EXPECT_EQ(Boxes[0].buttons, Buttons_Set::Ok);
}
