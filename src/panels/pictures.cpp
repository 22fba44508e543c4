#include "panels/pictures.h"

#include <algorithm>
#include <array>

#include "platform/numbers.h"

namespace {

// clang-format off
constexpr std::array Roles = {
//               store                           name              first  last  width  height
    Picture_Role{Picture_Store::Buttons,          "buttons",           0,    3,    16,    16},
    Picture_Role{Picture_Store::Buttons,          "buttons",           4,    5,     4,     4},
    Picture_Role{Picture_Store::Buttons,          "buttons",           6,    7,    16,    16},
    Picture_Role{Picture_Store::Buttons,          "buttons",           8,    8,    28,    26},
    Picture_Role{Picture_Store::Buttons,          "buttons",           9,   10,    43,    22},
    Picture_Role{Picture_Store::LED,              "led",               0,    5,    14,    14},
    Picture_Role{Picture_Store::Button_Up3D,      "button_up3d",       0,    0,    22,    22},
    Picture_Role{Picture_Store::Button_Dn3D,      "button_dn3d",       0,    0,    22,    22},
    Picture_Role{Picture_Store::Start_Enabled,    "start_enabled",     0,    0,    14,    14},
    Picture_Role{Picture_Store::Start_Disabled,   "start_disabled",    0,    0,    14,    14},
    Picture_Role{Picture_Store::Stop_Enabled,     "stop_enabled",      0,    0,    14,    14},
    Picture_Role{Picture_Store::Stop_Disabled,    "stop_disabled",     0,    0,    14,    14},
    Picture_Role{Picture_Store::Record,           "record",            0,    0,    14,    14},
    Picture_Role{Picture_Store::Seq_Keys,         "seq_keys",          0,    3,    38,    12},
    Picture_Role{Picture_Store::Seq_Pics,         "seq_pics",          0,    3,    11,    11},
    Picture_Role{Picture_Store::Seq_New,          "seq_new",           0,    0,    22,     7},
    Picture_Role{Picture_Store::CB_Pics,          "cb_pics",           0,    3,    13,    13},
    Picture_Role{Picture_Store::OB_Pics,          "ob_pics",           0,    3,    12,    12},
    Picture_Role{Picture_Store::Dlg2_Up,          "dlg2_up",           0,    0,    65,    34},
    Picture_Role{Picture_Store::Dlg2_Dn,          "dlg2_dn",           0,    0,    65,    34},
    Picture_Role{Picture_Store::Dlg2_Ok,          "dlg2_ok",           0,    0,    51,    20},
    Picture_Role{Picture_Store::Dlg2_Cancel,      "dlg2_cancel",       0,    0,    51,    20},
    Picture_Role{Picture_Store::Tone_A_Pic,       "tone_a_pic",        0,    0,    14,    14},
    Picture_Role{Picture_Store::Tone_B_Pic,       "tone_b_pic",        0,    0,    14,    14},
    Picture_Role{Picture_Store::Back_Pic,         "back_pic",          0,    0,    64,    64},
    Picture_Role{Picture_Store::Pic_Tonebench,    "pic_tonebench",     0,    0,   110,    50},
    Picture_Role{Picture_Store::Pic_Sign,         "pic_sign",          0,    0,    79,    14},
    Picture_Role{Picture_Store::FD_Symbols,       "fd_symbols",        0,    2,    14,    14},
    Picture_Role{Picture_Store::FD_Icons,         "fd_icons",          0,    2,    16,    14},
    Picture_Role{Picture_Store::FD_SEQ_Pics,      "fd_seq_pics",       0,    3,     7,     7},
};
// clang-format on

}  // namespace

const Picture_Role& Role_Of(const Picture& picture) {
    const auto* role = std::find_if(Roles.begin(), Roles.end(), [&picture](const Picture_Role& candidate) {
        return candidate.store == picture.store && picture.item >= candidate.first_item &&
               picture.item <= candidate.last_item;
    });
    if (role == Roles.end()) throw Fatal_Error("Subscript out of range");
    return *role;
}

Picture Picture_Of(Picture_Store store, int item) {
    const Picture picture = {store, item};
    (void)Role_Of(picture);
    return picture;
}

std::string Picture_File_Stem(const Picture& picture) {
    const auto of_store = [&picture](const Picture_Role& role) { return role.store == picture.store; };
    const std::string stem = Role_Of(picture).name;
    const auto* first = std::find_if(Roles.begin(), Roles.end(), of_store);
    const bool single = first->last_item == 0 && std::count_if(Roles.begin(), Roles.end(), of_store) == 1;
    return single ? stem : stem + "_" + std::to_string(picture.item);
}
