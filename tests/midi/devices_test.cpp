#include "midi/devices.h"

#include "desk/settings.h"
#include "fakes/stage.h"
#include "midi/in.h"
#include "midi/out.h"

namespace {

using Names = std::vector<std::string>;

constexpr const char* No_Output = "No MIDI output device installed. MIDI functions disabled";
constexpr const char* No_Input = "No MIDI input device installed. MIDI IN functions disabled";
constexpr const char* Output_Open = "MIDI output device not configured - starting MIDI setup.";
constexpr const char* Input_Open = "MIDI input device not configured - starting MIDI setup.";

Names Names_Of(const std::vector<MIDI_Caps>& caps) {
    Names names;
    for (const MIDI_Caps& device : caps) names.push_back(device.name);
    return names;
}

// A program whose settings file says this, with these devices in the system.
void Given(const Names& outputs, const Names& inputs, const std::string& settings = "") {
    Ports.out_names = outputs;
    Ports.in_names = inputs;
    INI_File = Test_Folder() + "/Tonebench.INI";
    if (!settings.empty()) Write_Settings(settings);
}

int Channel_From(const std::string& text) {
    Given({}, {}, "[MIDI]\nChannel=" + text + "\n");
    MIDI_Enabled = 0;
    MIDI_Check_Config();
    return MIDI_Channel;
}

}  // namespace

using Devices = Stage;

// -- enumeration -----------------------------------------------------------------------------------------

TEST_F(Devices, of_both_sides_are_listed_and_switch_midi_on) {
    Given({"Out A", "Out B"}, {"In A"});
    MIDI_In_Missing = Flag_16::True;
    EXPECT_TRUE(MIDI_Enumerate());
    EXPECT_EQ(Names_Of(MIDI_Out_Caps), (Names{"Out A", "Out B"}));
    EXPECT_EQ(Names_Of(MIDI_In_Caps), Names{"In A"});
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(MIDI_In_Missing, Flag_16::False);
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Devices, that_are_missing_on_both_sides_switch_midi_off) {
    Given({}, {});
    MIDI_Enabled = 1;
    Expect_Box(No_Output);
    Expect_Box(No_Input);
    EXPECT_FALSE(MIDI_Enumerate());
    EXPECT_EQ(MIDI_Enabled, 0);
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_EQ(MIDI_In_Missing, Flag_16::True);
    EXPECT_TRUE(MIDI_Out_Caps.empty());
    EXPECT_TRUE(MIDI_In_Caps.empty());
}

TEST_F(Devices, of_the_input_alone_switch_midi_on_but_not_automatic_sending) {
    Given({}, {"In A"});
    Expect_Box(No_Output);
    EXPECT_TRUE(MIDI_Enumerate());
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_EQ(MIDI_Autosend, 0);
    EXPECT_EQ(MIDI_In_Missing, Flag_16::False);
}

TEST_F(Devices, of_the_output_alone_are_enough) {
    Given({"Out A"}, {});
    Expect_Box(No_Input);
    EXPECT_TRUE(MIDI_Enumerate());
    EXPECT_EQ(MIDI_Enabled, 1);
    EXPECT_EQ(MIDI_Autosend, 1);
    EXPECT_EQ(MIDI_In_Missing, Flag_16::True);
}

TEST_F(Devices, leave_the_handles_closed) {
    Given({"Out A"}, {"In A"});
    MIDI_Out_Handle = 3;
    MIDI_In_Handle = 4;
    MIDI_Enumerate();
    EXPECT_EQ(MIDI_Out_Handle, -1);
    EXPECT_EQ(MIDI_In_Handle, -1);
    EXPECT_EQ(Ports.open_calls, 0);
}

TEST_F(Devices, are_told_missing_in_plain_boxes) {
    Given({}, {});
    Expect_Box(No_Output);
    Expect_Box(No_Input);
    MIDI_Enumerate();
    for (const Shown_Box& box : Boxes) {
        EXPECT_EQ(box.title, "Tonebench");
        EXPECT_EQ(box.buttons, Buttons_Set::Ok);
    }
}

TEST_F(Devices, have_names_that_end_at_a_zero_character_and_have_no_blanks_at_their_ends) {
    Given({std::string("  Synth Out \0rubbish", 20), std::string("\0rubbish", 8), "   "},
          {std::string(" \0 ", 3), "\tKeys In\t"});
    MIDI_Enumerate();
    EXPECT_EQ(Names_Of(MIDI_Out_Caps), (Names{"Synth Out", "", ""}));
    EXPECT_EQ(Names_Of(MIDI_In_Caps), (Names{"", "Keys In"}));
}

TEST_F(Devices, may_have_names_of_10000_characters) {
    const std::string name(10000, 'N');
    Given({"Out A", name}, {"In A"});
    MIDI_Enumerate();
    EXPECT_EQ(MIDI_Out_Caps[1].name, name);
    EXPECT_EQ(MIDI_Find_Out(name), 1);
}

TEST_F(Devices, are_listed_anew_each_time) {
    Given({"Out A", "Out B"}, {"In A"});
    MIDI_Enumerate();
    Given({"Out C"}, {"In B", "In C"});
    MIDI_Enumerate();
    EXPECT_EQ(Names_Of(MIDI_Out_Caps), Names{"Out C"});
    EXPECT_EQ(Names_Of(MIDI_In_Caps), (Names{"In B", "In C"}));
}

// -- finding ---------------------------------------------------------------------------------------------

TEST_F(Devices, are_found_by_their_names) {
    Given({"Out A", "Out B"}, {"In A", "In B"});
    MIDI_Enumerate();
    EXPECT_EQ(MIDI_Find_Out("Out A"), 0);
    EXPECT_EQ(MIDI_Find_Out(" Out B "), 1);
    EXPECT_EQ(MIDI_Find_In("In B"), 1);
    EXPECT_EQ(MIDI_Find_Out("In A"), -1);
    EXPECT_EQ(MIDI_Find_In("Out A"), -1);
    EXPECT_EQ(MIDI_Find_Out(""), -1);
    EXPECT_EQ(MIDI_Find_Out("Out"), -1);
}

TEST_F(Devices, are_found_with_regard_to_case) {
    Given({"Out A"}, {"In A"});
    MIDI_Enumerate();
    EXPECT_EQ(MIDI_Find_Out("OUT A"), -1);
    EXPECT_EQ(MIDI_Find_In("in a"), -1);
}

TEST_F(Devices, of_one_name_count_as_the_first) {
    Given({"Out A", "Twin", "Twin"}, {"Twin", "Twin"});
    MIDI_Enumerate();
    EXPECT_EQ(MIDI_Find_Out("Twin"), 1);
    EXPECT_EQ(MIDI_Find_In("Twin"), 0);
}

// -- the channel -----------------------------------------------------------------------------------------

TEST_F(Devices, play_on_the_channel_of_the_settings) {
    EXPECT_EQ(Channel_From("1"), 1);
    EXPECT_EQ(Channel_From("5"), 5);
    EXPECT_EQ(Channel_From("16"), 16);
    EXPECT_EQ(Channel_From(" 7 "), 7);
    EXPECT_EQ(Channel_From("9 (drums are 10)"), 9);
}

TEST_F(Devices, play_on_a_negative_channel_without_its_sign) {
    EXPECT_EQ(Channel_From("-3"), 3);
    EXPECT_EQ(Channel_From("-5"), 5);
    EXPECT_EQ(Channel_From("-16"), 16);
    EXPECT_EQ(Channel_From("-17"), 1);
}

TEST_F(Devices, play_on_channel_1_where_the_settings_name_none) {
    for (const char* text : {"0", "-0", "17", "255", "256", "257", "65537", "abc", "", "1e9", "1e999",
                             "-1e999", "0.5", "nan", "inf"}) {
        MIDI_Channel = 9;
        EXPECT_EQ(Channel_From(text), 1) << text;
    }
}

TEST_F(Devices, play_on_a_broken_channel_rounded_to_the_even_neighbour) {
    EXPECT_EQ(Channel_From("2.5"), 2);
    EXPECT_EQ(Channel_From("3.5"), 4);
    EXPECT_EQ(Channel_From("16.4"), 16);
    EXPECT_EQ(Channel_From("16.6"), 1);
}

TEST_F(Devices, play_on_channel_1_without_a_settings_file) {
    Given({}, {});
    MIDI_Channel = 9;
    MIDI_Check_Config();
    EXPECT_EQ(MIDI_Channel, 1);
}

// -- the check of the configured devices -----------------------------------------------------------------

TEST_F(Devices, of_the_settings_are_selected) {
    Given({"Out A", "Out B"}, {"In A", "In B", "In C"}, "[MIDI]\nOutput= Out B \nInput=In C\nChannel=4\n");
    EXPECT_TRUE(MIDI_Startup());
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(MIDI_In_Device, 2);
    EXPECT_EQ(MIDI_Out_Name, "Out B");
    EXPECT_EQ(MIDI_In_Name, "In C");
    EXPECT_EQ(MIDI_Channel, 4);
    EXPECT_EQ(MIDI_Setup_Needed, 0);
    EXPECT_TRUE(Boxes.empty());
}

TEST_F(Devices, are_looked_for_under_keys_of_any_case) {
    Given({"Out A", "Out B"}, {"In A", "In B"}, "[midi]\nOUTPUT=Out B\nINPUT=In B\nCHANNEL=3\n");
    MIDI_Startup();
    EXPECT_EQ(MIDI_Out_Device, 1);
    EXPECT_EQ(MIDI_In_Device, 1);
    EXPECT_EQ(MIDI_Channel, 3);
}

TEST_F(Devices, that_are_not_configured_ask_for_the_setup_and_keep_the_first_index) {
    Given({"Out A"}, {"In A"});
    Expect_Box(Output_Open);
    Expect_Box(Input_Open);
    EXPECT_TRUE(MIDI_Startup());
    EXPECT_EQ(MIDI_Out_Device, 0);
    EXPECT_EQ(MIDI_In_Device, 0);
    EXPECT_EQ(MIDI_Out_Name, "");
    EXPECT_EQ(MIDI_Setup_Needed, 1);
    EXPECT_EQ(MIDI_Enabled, 1);
}

TEST_F(Devices, that_say_not_configured_are_not_configured) {
    Given({"Out A", "Not configured"}, {"In A"}, "[MIDI]\nOutput=Not configured\nInput=In A\n");
    Expect_Box(Output_Open);
    MIDI_Startup();
    EXPECT_EQ(MIDI_Setup_Needed, 1);
}

TEST_F(Devices, that_say_not_configured_in_another_case_are_names) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=not configured\nInput=In A\n");
    Expect_Box("MIDI output device (not configured) not available - starting MIDI setup.");
    MIDI_Startup();
}

TEST_F(Devices, that_are_gone_are_named_and_leave_no_index) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=Old Out\nInput=Old In\n");
    Expect_Box("MIDI output device (Old Out) not available - starting MIDI setup.");
    Expect_Box("MIDI input device (Old In) not available - starting MIDI setup.");
    MIDI_Out_Name = "before";
    EXPECT_TRUE(MIDI_Startup());
    EXPECT_EQ(MIDI_Out_Device, -1);
    EXPECT_EQ(MIDI_In_Device, -1);
    EXPECT_EQ(MIDI_Out_Name, "before");
    EXPECT_EQ(MIDI_Setup_Needed, 1);
}

TEST_F(Devices, may_be_right_on_one_side_and_wrong_on_the_other) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=Out A\nInput=Old In\n");
    Expect_Box("MIDI input device (Old In) not available - starting MIDI setup.");
    MIDI_Startup();
    EXPECT_EQ(MIDI_Out_Device, 0);
    EXPECT_EQ(MIDI_In_Device, -1);
    EXPECT_EQ(MIDI_Setup_Needed, 1);
}

TEST_F(Devices, without_a_name_in_the_settings_are_gone) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=\nInput=In A\n");
    Expect_Box("MIDI output device () not available - starting MIDI setup.");
    MIDI_Startup();
    EXPECT_EQ(MIDI_Out_Device, -1);
}

TEST_F(Devices, with_a_name_longer_than_a_setting_are_gone_at_the_next_start) {
    const std::string name(10000, 'N');
    Given({name}, {"In A"}, "[MIDI]\nOutput=" + name + "\nInput=In A\n");
    Expect_Box("MIDI output device (" + std::string(63, 'N') + ") not available - starting MIDI setup.");
    MIDI_Startup();
    EXPECT_EQ(MIDI_Out_Device, -1);
}

TEST_F(Devices, are_not_checked_with_midi_off) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nChannel=6\n");
    MIDI_Enumerate();
    MIDI_Enabled = 0;
    MIDI_Check_Config();
    EXPECT_EQ(MIDI_Setup_Needed, 0);
    EXPECT_EQ(MIDI_Channel, 6) << "the channel is read all the same";
}

TEST_F(Devices, that_do_not_exist_on_a_side_are_not_checked_there) {
    Given({}, {"In A"}, "[MIDI]\nOutput=Old Out\nInput=In A\n");
    Expect_Box(No_Output);
    EXPECT_TRUE(MIDI_Startup());
    EXPECT_EQ(MIDI_Setup_Needed, 0);
    EXPECT_EQ(MIDI_Out_Device, 0);

    Given({"Out A"}, {}, "[MIDI]\nOutput=Out A\nInput=Old In\n");
    Expect_Box(No_Input);
    EXPECT_TRUE(MIDI_Startup());
    EXPECT_EQ(MIDI_Setup_Needed, 0);
}

TEST_F(Devices, are_listed_before_they_are_checked) {
    Given({"Out A"}, {}, "[MIDI]\nOutput=Old Out\n");
    Expect_Box(No_Input);
    Expect_Box("MIDI output device (Old Out) not available - starting MIDI setup.");
    MIDI_Startup();
}

TEST_F(Devices, none_of_them_at_all_start_without_midi_and_without_the_setup) {
    Given({}, {}, "[MIDI]\nOutput=Old Out\nInput=Old In\n");
    Expect_Box(No_Output);
    Expect_Box(No_Input);
    EXPECT_FALSE(MIDI_Startup());
    EXPECT_EQ(MIDI_Setup_Needed, 0);
    EXPECT_EQ(MIDI_Enabled, 0);
}

TEST_F(Devices, start_outside_of_receive_mode) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=Out A\nInput=In A\n");
    MIDI_Receiving = 1;
    MIDI_Startup();
    EXPECT_EQ(MIDI_Receiving, 0);
}

TEST_F(Devices, are_not_opened_by_the_start) {
    Given({"Out A"}, {"In A"}, "[MIDI]\nOutput=Out A\nInput=In A\n");
    MIDI_Startup();
    EXPECT_EQ(Ports.open_calls, 0);
}
