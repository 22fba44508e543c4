// The stock controls of windows, as records: drop-down lists, check boxes and scroll bars. The rules fill
// and read them, the toolkit's windows show them and report what the user does.
#pragma once

#include <string>
#include <vector>

struct Drop_Down {
    std::vector<std::string> entries = {};
    int selected = -1;  // -1 when none is
    bool enabled = true;

    void Select(int index);                     // an index outside the list selects none
    void Select_Text(const std::string& text);  // the first entry of that text, else none
    std::string Selected_Text() const;          // empty when none is selected
};

struct Check_Box {
    bool checked = false;
    bool enabled = true;
};

// Upright, the greatest value on top.
struct Scroll_Bar {
    int minimum = 0;
    int maximum = 0;
    int large_step = 1;
    int value = 0;
};
