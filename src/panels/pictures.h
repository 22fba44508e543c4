// The catalogue of small pictures, addressed by role. It belongs to the main window and lives as long as
// the program; every other window borrows from it, so that another picture in a role changes the look
// everywhere. A control holds only a reference to what it shows at a moment.
//
// The drawings are vector files in art/pictures, one an item: "buttons_0.svg".
#pragma once

#include <string>

enum class Picture_Store {
    None,
    Buttons,  // an even item is resting, the next odd one its second blink picture
    LED,      // 0 off, 1 on, 3 of a check box on, 5 of one that is disabled, further lamps
    Button_Up3D,
    Button_Dn3D,
    Start_Enabled,
    Start_Disabled,
    Stop_Enabled,
    Stop_Disabled,
    Record,
    Seq_Keys,
    Seq_Pics,  // 0 empty cell and light off, 1 light on, 2 loud cell, 3 soft cell
    Seq_New,   // symbol on the sequencer's New key
    CB_Pics,
    OB_Pics,
    Dlg2_Up,
    Dlg2_Dn,
    Dlg2_Ok,
    Dlg2_Cancel,
    Tone_A_Pic,  // the symbols on the two buttons that choose a tone of the MKS-70
    Tone_B_Pic,
    Back_Pic,
    Pic_Tonebench,
    Pic_Sign,
    FD_Symbols,   // on the file window's small buttons: 0 up, 1 new folder, 2 delete
    FD_Icons,     // in its lists: 0 folder, 1 open folder, 2 drive
    FD_SEQ_Pics,  // cells of its sequence picture: 0 empty, 2 loud, 3 soft
};

// Items of Buttons.
enum Button_Item : int {
    Thumb_Left = 0,   // switch thumb, handle to the left
    Thumb_Right = 2,  // switch thumb, handle to the right
    Knob_Dot = 4,
    Thumb_Slider = 6,
    Knob_Body = 8,
    Keys_Up = 9,
    Keys_Down = 10,
};

struct Picture {
    Picture_Store store = Picture_Store::None;
    int item = 0;

    bool operator==(const Picture&) const = default;
};

// One role of the catalogue: items of one size, in pixels.
struct Picture_Role {
    Picture_Store store;
    const char* name;  // the file name's stem
    int first_item;
    int last_item;
    int width;
    int height;
};

// The picture of an item, checked: one that the store does not hold is a programming mistake (Fatal_Error).
Picture Picture_Of(Picture_Store store, int item = 0);

// The role of a picture made by Picture_Of.
const Picture_Role& Role_Of(const Picture& picture);

// "buttons_6" for {Buttons, 6}, "record" for a store of one item.
std::string Picture_File_Stem(const Picture& picture);
