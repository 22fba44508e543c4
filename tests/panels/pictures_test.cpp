#include "panels/pictures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>

#include "fakes/stage.h"
#include "panels/push_buttons.h"

namespace {

struct Expected {
    Picture_Store store;
    int item;
    const char* file;
    int width;
    int height;
};

// clang-format off
const std::vector<Expected> Catalogue = {
    {Picture_Store::Buttons,  0, "buttons_0",  16, 16},
    {Picture_Store::Buttons,  1, "buttons_1",  16, 16},
    {Picture_Store::Buttons,  2, "buttons_2",  16, 16},
    {Picture_Store::Buttons,  3, "buttons_3",  16, 16},
    {Picture_Store::Buttons,  4, "buttons_4",   4,  4},
    {Picture_Store::Buttons,  5, "buttons_5",   4,  4},
    {Picture_Store::Buttons,  6, "buttons_6",  16, 16},
    {Picture_Store::Buttons,  7, "buttons_7",  16, 16},
    {Picture_Store::Buttons,  8, "buttons_8",  28, 26},
    {Picture_Store::Buttons,  9, "buttons_9",  43, 22},
    {Picture_Store::Buttons, 10, "buttons_10", 43, 22},
    {Picture_Store::LED,      0, "led_0",      14, 14},
    {Picture_Store::LED,      1, "led_1",      14, 14},
    {Picture_Store::LED,      2, "led_2",      14, 14},
    {Picture_Store::LED,      3, "led_3",      14, 14},
    {Picture_Store::LED,      4, "led_4",      14, 14},
    {Picture_Store::LED,      5, "led_5",      14, 14},
    {Picture_Store::Button_Up3D,    0, "button_up3d",    22, 22},
    {Picture_Store::Button_Dn3D,    0, "button_dn3d",    22, 22},
    {Picture_Store::Start_Enabled,  0, "start_enabled",  14, 14},
    {Picture_Store::Start_Disabled, 0, "start_disabled", 14, 14},
    {Picture_Store::Stop_Enabled,   0, "stop_enabled",   14, 14},
    {Picture_Store::Stop_Disabled,  0, "stop_disabled",  14, 14},
    {Picture_Store::Record,         0, "record",         14, 14},
    {Picture_Store::Seq_Keys, 0, "seq_keys_0", 38, 12},
    {Picture_Store::Seq_Keys, 3, "seq_keys_3", 38, 12},
    {Picture_Store::Seq_Pics, 0, "seq_pics_0", 11, 11},
    {Picture_Store::Seq_Pics, 1, "seq_pics_1", 11, 11},
    {Picture_Store::Seq_Pics, 2, "seq_pics_2", 11, 11},
    {Picture_Store::Seq_Pics, 3, "seq_pics_3", 11, 11},
    {Picture_Store::Seq_New,  0, "seq_new",    22,  7},
    {Picture_Store::CB_Pics,  0, "cb_pics_0",  13, 13},
    {Picture_Store::CB_Pics,  3, "cb_pics_3",  13, 13},
    {Picture_Store::OB_Pics,  0, "ob_pics_0",  12, 12},
    {Picture_Store::OB_Pics,  3, "ob_pics_3",  12, 12},
    {Picture_Store::Dlg2_Up,     0, "dlg2_up",     65, 34},
    {Picture_Store::Dlg2_Dn,     0, "dlg2_dn",     65, 34},
    {Picture_Store::Dlg2_Ok,     0, "dlg2_ok",     51, 20},
    {Picture_Store::Dlg2_Cancel, 0, "dlg2_cancel", 51, 20},
    {Picture_Store::Tone_A_Pic,  0, "tone_a_pic",  14, 14},
    {Picture_Store::Tone_B_Pic,  0, "tone_b_pic",  14, 14},
    {Picture_Store::Back_Pic,      0, "back_pic",       64, 64},
    {Picture_Store::Pic_Tonebench, 0, "pic_tonebench", 110, 50},
    {Picture_Store::Pic_Sign,      0, "pic_sign",       79, 14},
    {Picture_Store::FD_Symbols,    0, "fd_symbols_0",   14, 14},
    {Picture_Store::FD_Symbols,    2, "fd_symbols_2",   14, 14},
    {Picture_Store::FD_Icons,      0, "fd_icons_0",     16, 14},
    {Picture_Store::FD_Icons,      2, "fd_icons_2",     16, 14},
    {Picture_Store::FD_SEQ_Pics,   0, "fd_seq_pics_0",   7,  7},
    {Picture_Store::FD_SEQ_Pics,   3, "fd_seq_pics_3",   7,  7},
};
// clang-format on

}  // namespace

TEST(The_Catalogue, holds_each_picture_in_its_size_as_a_drawing_of_that_size) {
    for (const Expected& row : Catalogue) {
        const Picture picture = Picture_Of(row.store, row.item);
        EXPECT_EQ(Role_Of(picture).width, row.width) << row.file;
        EXPECT_EQ(Role_Of(picture).height, row.height) << row.file;
        EXPECT_EQ(Picture_File_Stem(picture), row.file);

        std::ifstream file(std::string(SOURCE_DIR) + "/art/pictures/" + row.file + ".svg");
        const std::string drawing((std::istreambuf_iterator<char>(file)), {});
        const std::string box =
            "viewBox=\"0 0 " + std::to_string(row.width) + " " + std::to_string(row.height) + "\"";
        EXPECT_NE(drawing.find(box), std::string::npos) << row.file;
    }
}

TEST(The_Catalogue, refuses_an_item_that_it_does_not_hold) {
    EXPECT_NO_THROW(Picture_Of(Picture_Store::Buttons, 10));
    EXPECT_THROW(Picture_Of(Picture_Store::Buttons, 11), Fatal_Error);
    EXPECT_THROW(Picture_Of(Picture_Store::Buttons, -1), Fatal_Error);
    EXPECT_THROW(Picture_Of(Picture_Store::Record, 1), Fatal_Error);
    EXPECT_THROW(Picture_Of(Picture_Store::LED, 6), Fatal_Error);
}

TEST(The_Catalogue, is_packed_into_the_program_whole) {
    std::ifstream file(std::string(SOURCE_DIR) + "/art/pictures.qrc");
    const std::string list((std::istreambuf_iterator<char>(file)), {});
    for (const auto& drawing :
         std::filesystem::directory_iterator(std::string(SOURCE_DIR) + "/art/pictures")) {
        const std::string name = drawing.path().filename().string();
        EXPECT_NE(list.find("<file>pictures/" + name + "</file>"), std::string::npos) << name;
    }
}

TEST(Push_Buttons, move_their_symbol_by_a_pixel) {
    Control symbol = {.name = "Seq_Start_Pic", .left = 3, .top = 3};
    Control button = {.name = "Seq_Start", .symbol = &symbol};
    Button_Push(button);
    EXPECT_EQ(button.picture, (Picture{Picture_Store::Button_Dn3D, 0}));
    EXPECT_EQ(symbol.left, 4);
    EXPECT_EQ(symbol.top, 4);
    Button_Release(button);
    EXPECT_EQ(button.picture, (Picture{Picture_Store::Button_Up3D, 0}));
    EXPECT_EQ(symbol.left, 3);
    EXPECT_EQ(symbol.top, 3);
}

TEST(Push_Buttons, without_a_symbol_get_the_picture_and_no_shift) {
    Control button = {.name = "Seq_New"};
    Button_Push(button);
    EXPECT_EQ(button.picture, (Picture{Picture_Store::Button_Dn3D, 0}));
}

TEST(Push_Buttons, are_one_button_on_both_editor_windows) {
    Control other_symbol = {.name = "ED_Seq_Stop_Pic"};
    Control other = {.name = "ED_Seq_Stop", .symbol = &other_symbol};
    Control symbol = {.name = "ED_Seq_Stop_Pic"};
    Control button = {.name = "ED_Seq_Stop", .symbol = &symbol, .twin = &other};
    Button_Push(button);
    EXPECT_EQ(other.picture, (Picture{Picture_Store::Button_Dn3D, 0}));
    EXPECT_EQ(other_symbol.left, 4);
    Button_Release(button);
    EXPECT_EQ(other.picture, (Picture{Picture_Store::Button_Up3D, 0}));
    EXPECT_EQ(other_symbol.top, 3);
}

TEST(Push_Buttons, that_are_large_move_their_caption_from_5_to_6) {
    Control caption = {.name = "FD_Button_Ok_Pic"};
    Control button = {.name = "FD_Button_Ok", .symbol = &caption};
    Dlg2_Press(button);
    EXPECT_EQ(button.picture, (Picture{Picture_Store::Dlg2_Dn, 0}));
    EXPECT_EQ(caption.left, 6);
    EXPECT_EQ(caption.top, 6);
    Dlg2_Lift(button);
    EXPECT_EQ(button.picture, (Picture{Picture_Store::Dlg2_Up, 0}));
    EXPECT_EQ(caption.left, 5);
    EXPECT_EQ(caption.top, 5);
}
