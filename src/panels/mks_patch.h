// The patch window of the MKS-70, as far as it is begun: its two lists, the buttons that choose a tone, and
// the knob UDTune work; everything else on it is drawn and inert. No menu opens it.
//
// Written here: the records of the controls, and through them Patch_MKS70_Data.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "desk/form.h"
#include "panels/controls.h"
#include "panels/mks_patch_table.h"
#include "panels/panel.h"

// The stock controls.
struct MKS_Patch_Form {
    std::string patch_name;  // ANSI
    Drop_Down tone_number;
    Drop_Down split_point;
};
extern MKS_Patch_Form Patch_MKS70_Form;

// The drawn controls, in the order of their tables.
extern std::array<Control, MKS_Knobs.size()> MKS_Knob_Controls;
extern std::array<Control, MKS_Dots.size()> MKS_Dot_Controls;
extern std::array<Control, MKS_Thumbs.size()> MKS_Thumb_Controls;
extern std::array<Control, MKS_Lamps.size()> MKS_Lamp_Controls;
extern Control MKS_Tone_A;
extern Control MKS_Tone_A_Pic;
extern Control MKS_Tone_B;
extern Control MKS_Tone_B_Pic;

extern const Panel Patch_MKS70_Panel;

// Puts the tone on show away and brings the other one up. The two are not mirror images: a split point
// comes back for B only, and each stores the lists' selections for the tone that was on show, as far as
// there was one. Both move the dot of the other patch window, which loads it, and none of this one.
void Tone_A_Select();
void Tone_B_Select();

// Stores, shows in Editor's display (cells 1 and 5 as 0 to 99, the detunes as -50 to 50, the others
// nothing), sends, and marks the tone as changed.
void Patch_MKS70_Set_Value(std::size_t index, std::uint8_t value);

void MKS70_Load_Pictures();

// What the user does.
void MKS_Tone_A_Click();
void MKS_Tone_B_Click();
void MKS_Tone_Number_Change(int index);
void MKS_Split_Point_Change(int index);  // writes the split point of the tone on show at once
void MKS_Patch_Name_Change(const std::string& text);
void MKS_Patch_Close_Asked();  // Escape or the close box

// Fills the window's load and unload procedures.
void MKS_Patch_Install();
