// Boxes and questions answered in advance. One that nobody scripted fails the test, and so does one that
// was scripted and did not come.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/message_box.h"

struct Shown_Box {
    std::string text;
    Buttons_Set buttons;
    Icon icon;
    std::string title;
};

// The next question has this text and gets this answer; `meanwhile` runs while it is open.
void Answer_With(const std::string& text, Answer answer, const std::function<void()>& meanwhile = {});

// The next box is a message with this text, closed with OK.
void Expect_Box(const std::string& text);

// All boxes so far.
extern std::vector<Shown_Box> Boxes;

// Fails the test for every scripted box that has not come.
void Check_All_Boxes_Came();
