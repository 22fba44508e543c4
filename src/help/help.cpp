#include "help/help.h"

#include <algorithm>

#include "desk/dialog_lock.h"
#include "desk/timers.h"
#include "desk/windows.h"
#include "help/howto.h"
#include "help/topics.h"
#include "platform/display.h"
#include "platform/text.h"

namespace {

constexpr int Width = 640;
constexpr int Height = 404;

void Fill_About() {
    Help_Form& form = Help_Window_Form;
    form.about = Help_About_Text();
    form.credits = {};
    for (const char* name : Help_Credit_Names) {
        if (*name != '\0') form.credits.entries.emplace_back(name);
    }
    form.credits_why.clear();
}

void Show_Page(const std::string& page) {
    Help_Window_Form.page = page;
    if (page == "About") Fill_About();
    if (page == "Howto") {
        Howto_Begin();
        Timer_Start(Timer1);
    }
}

void Focus_Keyword() {
    if (App_Mode == "Help") ++Help_Window_Form.keyword_focused;
}

bool Sorts_Before(const std::string& left, const std::string& right) {
    return Upper_Text(left) < Upper_Text(right);
}

void Fill_Topics() {
    Help_Topics_Fill();
    std::vector<std::string>& entries = Help_Window_Form.key_list.entries;
    entries.clear();
    for (const std::string& keyword : Help_Keywords) {
        if (!keyword.empty()) entries.push_back(keyword);
    }
    std::sort(entries.begin(), entries.end(), Sorts_Before);
}

// In the middle of the screen at first. Where the user has put it, it comes back.
void Place() {
    if (Help.width != 0) return;
    Help.width = Width;
    Help.height = Height;
    Help.left = (Display_Width() - Width) / 2;
    Help.top = (Display_Height() - Height) / 2;
}

const std::string& Preselected_Keyword() {
    const int slot = std::clamp<int>(Panel_Help_Context, 0, Help_Slots - 1);
    return Help_Keywords[static_cast<std::size_t>(slot)];
}

void Load() {
    Panel_Restore_Picture();
    Help.caption = Help_Title;
    Place();
    Fill_Topics();
    Howto_Load();
    Control* const on_panel = Panel_Current_Control;
    Show_Page(Help_Page);
    Dialog_Begin(Help, "Help");
    // The page may have marked one of its own controls already; the panel's gets the mark back at the end.
    Panel_Saved_Control = on_panel;
    Help_Keyword_Change(Preselected_Keyword());
}

}  // namespace

std::string Help_Page;
Help_Form Help_Window_Form;

void Help_Cmd_Howto() {
    Show_Page("Howto");
}

void Help_Cmd_Search() {
    Show_Page("Search");
    Focus_Keyword();
}

void Help_Cmd_About() {
    Show_Page("About");
}

void Help_Keyword_Change(const std::string& text) {
    Help_Form& form = Help_Window_Form;
    form.keyword = text;
    const std::vector<std::string>& entries = form.key_list.entries;
    std::size_t index = 0;
    while (index + 1 < entries.size() && Sorts_Before(entries[index], text)) ++index;
    Help_KeyList_Click(static_cast<int>(index));
}

void Help_KeyList_Click(int index) {
    Help_Form& form = Help_Window_Form;
    form.key_list.Select(index);
    const auto slot = std::find(Help_Keywords.begin(), Help_Keywords.end(), form.key_list.Selected_Text());
    if (slot == Help_Keywords.end()) return;
    form.description = Help_Descriptions[static_cast<std::size_t>(slot - Help_Keywords.begin())];
}

void Help_Credits_Click(int index) {
    Help_Form& form = Help_Window_Form;
    form.credits.Select(index);
    if (form.credits.selected < 0) return;
    form.credits_why =
        std::string(" ") + Help_Credit_Reasons[static_cast<std::size_t>(form.credits.selected)];
}

void Help_Close_Asked() {
    Window_Unload(Help);
}

void Menu_Help_Howto_Chosen() {
    // The first touch loads the window, and with it the lock that stops the blink: it goes on behind that.
    Window_Load(Help);
    Show_Page("Howto");
    Help_Page = "Howto";
    Window_Show(Help);
}

void Menu_Help_Search_Chosen() {
    Help_Page = "Search";
    Window_Show(Help);
    Focus_Keyword();
}

void Menu_Help_About_Chosen() {
    Help_Page = "About";
    Window_Show(Help);
}

void Help_Install() {
    Help.load = Load;
    Help.unload = Dialog_End;
    Howto_Install();
}
