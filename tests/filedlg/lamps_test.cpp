#include "filedlg/lamps.h"

#include <gtest/gtest.h>

namespace {

void Expect_Lamp(const Lamp& lamp, int tag, int picture, bool enabled) {
    EXPECT_EQ(lamp.tag, tag);
    EXPECT_EQ(lamp.control.picture, (Picture{Picture_Store::LED, picture}));
    EXPECT_EQ(lamp.control.enabled, enabled);
}

}  // namespace

TEST(A_Drawn_Check_Box, is_on_with_tag_3_and_off_with_tag_0) {
    Lamp box;
    Check_On(box);
    Expect_Lamp(box, 3, 3, true);
    Check_Off(box);
    Expect_Lamp(box, 0, 0, true);
    Check_Toggle(box);
    Expect_Lamp(box, 3, 3, true);
    Check_Toggle(box);
    Expect_Lamp(box, 0, 0, true);
}

TEST(A_Drawn_Check_Box, keeps_its_tag_when_it_is_disabled_and_does_not_toggle) {
    Lamp box;
    Check_On(box);
    Check_Disable(box);
    Expect_Lamp(box, 3, 5, false);
    Check_Toggle(box);
    Expect_Lamp(box, 3, 5, false);
}

TEST(A_Drawn_Option, is_on_with_tag_1_and_the_others_go_off) {
    Option_Group group;
    Option_Select(group, 1);
    Expect_Lamp(group[0], 0, 0, true);
    Expect_Lamp(group[1], 1, 1, true);
    Option_Select(group, 0);
    Expect_Lamp(group[0], 1, 1, true);
    Expect_Lamp(group[1], 0, 0, true);
}

TEST(A_Drawn_Option, that_is_disabled_keeps_its_tag_and_shows_it_again_when_enabled) {
    Option_Group group;
    Option_Select(group, 1);
    Option_Disable(group[1]);
    Expect_Lamp(group[1], 1, 5, false);
    Option_Select(group, 0);
    Expect_Lamp(group[1], 1, 5, false);  // only enabled members go off
    Option_Enable(group[1]);
    Expect_Lamp(group[1], 1, 1, true);
    Options_Disable(group);
    Expect_Lamp(group[0], 1, 5, false);
    Expect_Lamp(group[1], 1, 5, false);
}
