#include "desk/form.h"

#include <algorithm>

void Drop_Down::Select(int index) {
    selected = index >= 0 && index < static_cast<int>(entries.size()) ? index : -1;
}

void Drop_Down::Select_Text(const std::string& text) {
    const auto found = std::find(entries.begin(), entries.end(), text);
    Select(found == entries.end() ? -1 : static_cast<int>(found - entries.begin()));
}

std::string Drop_Down::Selected_Text() const {
    return selected < 0 ? std::string() : entries[static_cast<std::size_t>(selected)];
}
