#include "fakes/fake_message_box.h"

#include <gtest/gtest.h>

#include <deque>

std::vector<Shown_Box> Boxes;

namespace {

struct Scripted {
    std::string text;
    Answer answer;
    std::function<void()> meanwhile;
};
std::deque<Scripted> Script;

}  // namespace

void Answer_With(const std::string& text, Answer answer, const std::function<void()>& meanwhile) {
    Script.push_back({text, answer, meanwhile});
}

void Expect_Box(const std::string& text) {
    Answer_With(text, Answer::Ok);
}

Answer Message_Box(const std::string& text, Buttons_Set buttons, Icon icon, const std::string& title) {
    Boxes.push_back({text, buttons, icon, title});
    if (Script.empty()) {
        ADD_FAILURE() << "a box that nobody scripted: " << text;
        return buttons == Buttons_Set::Ok ? Answer::Ok : Answer::Cancel;
    }
    const Scripted next = Script.front();
    Script.pop_front();
    EXPECT_EQ(text, next.text);
    if (next.meanwhile) next.meanwhile();
    return next.answer;
}

void Check_All_Boxes_Came() {
    for (const Scripted& left : Script) ADD_FAILURE() << "a box that did not come: " << left.text;
}
