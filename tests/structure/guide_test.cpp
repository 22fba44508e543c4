// The guide can be read and copied, and has every box's words.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text.h"
#include "setup/setup.h"
#include "structure/guide_pages.h"

namespace {

std::vector<fs::path> Documents() {
    std::vector<fs::path> documents = {Root / "README.md", Root / "ARCHITECTURE.md"};
    for (const auto& entry : fs::recursive_directory_iterator(Root / "docs")) {
        if (entry.path().extension() == ".md") documents.push_back(entry.path());
    }
    return documents;
}

}  // namespace

// -- links and pictures ---------------------------------------------------------------------------------

namespace {

// The name by which a heading is linked: small letters, blanks as "-", no other signs.
std::string Anchor_Of(std::string_view heading) {
    std::string anchor;
    for (const char letter : heading) {
        const auto code = static_cast<unsigned char>(letter);
        if (letter == ' ') anchor += '-';
        if (letter == '-' || letter == '_' || std::isalnum(code) != 0)
            anchor += static_cast<char>(std::tolower(code));
    }
    return anchor;
}

std::set<std::string> Anchors(const fs::path& document) {
    std::set<std::string> anchors;
    for (const std::string& line : Lines_Of(Text_Of(document))) {
        const std::size_t marks = line.find_first_not_of('#');
        if (marks == 0 || marks == std::string::npos || line[marks] != ' ') continue;
        anchors.insert(Anchor_Of(std::string_view(line).substr(marks + 1)));
    }
    return anchors;
}

std::vector<std::string> Links(const fs::path& document) {
    static const std::regex pattern(R"(\]\(([^)\s]+)\))");
    std::vector<std::string> links;
    const std::string text = Text_Of(document);
    for (std::sregex_iterator link(text.begin(), text.end(), pattern), end; link != end; ++link)
        links.push_back((*link)[1]);
    return links;
}

}  // namespace

TEST(The_Guide, has_links_and_pictures_that_lead_somewhere) {
    for (const fs::path& document : Documents()) {
        for (const std::string& link : Links(document)) {
            if (link.starts_with("http")) continue;
            const std::string file = link.substr(0, link.find('#'));
            const fs::path target = file.empty() ? document : document.parent_path() / file;
            EXPECT_TRUE(fs::exists(target)) << document << ": " << link;
            if (link.find('#') == std::string::npos) continue;
            EXPECT_TRUE(Anchors(target).contains(link.substr(link.find('#') + 1)))
                << document << ": " << link;
        }
    }
}

TEST(The_Guide, links_nothing_outside_of_its_folder_so_that_it_can_be_copied) {
    for (const auto& entry : fs::directory_iterator(Guide)) {
        for (const std::string& link : Links(entry.path()))
            EXPECT_EQ(link.find(".."), std::string::npos) << entry.path() << ": " << link;
    }
}

TEST(The_Guide, leads_from_its_first_page_to_every_other) {
    const std::vector<std::string> links = Links(Guide / "README.md");
    for (const auto& entry : fs::directory_iterator(Guide)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() != ".md" || name == "README.md") continue;
        EXPECT_TRUE(std::find(links.begin(), links.end(), name) != links.end()) << name;
    }
}

TEST(The_Guide, shows_every_picture_that_it_keeps) {
    std::set<std::string> shown;
    for (const auto& entry : fs::directory_iterator(Guide)) {
        for (const std::string& link : Links(entry.path())) shown.insert(link);
    }
    for (const auto& entry : fs::directory_iterator(Guide / "pictures")) {
        EXPECT_TRUE(shown.contains("pictures/" + entry.path().filename().string())) << entry.path();
    }
}

// -- boxes ----------------------------------------------------------------------------------------------

namespace {

// The texts between quotation marks, adjoining ones joined.
std::vector<std::string> Literals(const std::string& code) {
    static const std::regex pattern(R"re("((?:[^"\\]|\\.)*)"(\s*(?="))?)re");
    std::vector<std::string> literals;
    bool joins = false;
    for (std::sregex_iterator found(code.begin(), code.end(), pattern), end; found != end; ++found) {
        if (joins) {
            literals.back() += (*found)[1];
        } else {
            literals.push_back((*found)[1]);
        }
        joins = (*found)[2].matched;
    }
    return literals;
}

// What stands between the parentheses of a call that begins at `open`.
std::string Arguments(const std::string& code, std::size_t open) {
    int depth = 0;
    bool quoted = false;
    for (std::size_t at = open; at < code.size(); ++at) {
        if (code[at] == '"' && code[at - 1] != '\\') quoted = !quoted;
        if (quoted) continue;
        if (code[at] == '(') ++depth;
        if (code[at] == ')' && --depth == 0) return code.substr(open + 1, at - open - 1);
    }
    return code.substr(open);
}

// The calls through which words come into a box.
constexpr const char* Ways[] = {"Message_Box(",         "Ask_To_Save(",        "Refuse(",
                                "Show_Error(",          "Port_Failed_With(",   "Fatal_Error(",
                                "MIDI_Show_Out_Error(", "MIDI_Show_In_Error(", "MIDI_Show_Long_Error(",
                                "Asked_Name("};

// Words that are told elsewhere than in a call: constants, and the port's reasons.
std::vector<std::string> Further_Words(const std::string& file, const std::string& code) {
    static const std::regex constant(R"re(constexpr const char\* \w*Not_Ready = ("[^"]*");)re");
    static const std::regex reason(R"re(return ("[^"]+");)re");
    std::vector<std::string> words;
    const std::regex& pattern = file == "midi_port_rtmidi.cpp" ? reason : constant;
    for (std::sregex_iterator found(code.begin(), code.end(), pattern), end; found != end; ++found) {
        for (const std::string& literal : Literals((*found)[1])) words.push_back(literal);
    }
    return words;
}

// Line ends in a text part it.
std::vector<std::string> Pieces(const std::string& literal) {
    static const std::regex line_end(R"((\\r|\\n)+)");
    return {std::sregex_token_iterator(literal.begin(), literal.end(), line_end, -1),
            std::sregex_token_iterator()};
}

}  // namespace

TEST(The_Guide, tells_the_words_of_every_box) {
    const std::string told = Flat(Page("boxes.md"));
    int seen = 0;
    for (const auto& entry : fs::recursive_directory_iterator(Root / "src")) {
        if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
        const std::string code = Text_Of(entry.path());
        std::vector<std::string> words = Further_Words(entry.path().filename().string(), code);
        for (const std::string way : Ways) {
            for (std::size_t at = code.find(way); at != std::string::npos; at = code.find(way, at + 1)) {
                for (const std::string& literal : Literals(Arguments(code, at + way.size() - 1)))
                    words.push_back(literal);
            }
        }
        for (const std::string& literal : words) {
            for (const std::string& piece : Pieces(literal)) {
                if (Trimmed(piece).empty()) continue;
                ++seen;
                EXPECT_NE(told.find(Flat(piece)), std::string::npos) << entry.path() << ": " << piece;
            }
        }
    }
    EXPECT_GT(seen, 70);
}

TEST(The_Guide, tells_the_reminders_of_every_instrument) {
    const std::string told = Flat(Page("boxes.md"));
    for (const char* synthesizer : {"JX-8P", "MKS-70", "Alpha Juno"}) {
        EXPECT_NE(told.find(std::string(Trimmed(Flat(Setup_Reminder(synthesizer))))), std::string::npos)
            << synthesizer;
    }
}
