#include "desk/recent.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "desk/menus.h"
#include "fakes/fake_program.h"
#include "platform/numbers.h"

namespace {

using Names = std::vector<std::string>;

// One rule, two lists: every test runs on both.
struct List_Case {
    const char* name;
    void (*add)(const std::string&);
    const std::string& (*at)(int);
    Menu_Id separator;
    Menu_Id first;
};

constexpr List_Case Cases[] = {
    {"Tone", Recent_Tone_Add, Recent_Tone, Menu_File_SYX_Trenn_1, Menu_File_SYX_1},
    {"Seq", Recent_Seq_Add, Recent_Seq, Menu_File_Seq_Trenn_1, Menu_File_Seq_1},
};

std::string Path(const std::string& name) {
    return Test_Folder() + "/" + name;
}

std::string Make(const std::string& name) {
    std::ofstream(Path(name)) << name;
    return Path(name);
}

void Delete(const std::string& name) {
    std::filesystem::remove(Path(name));
}

}  // namespace

class Recent : public ::testing::TestWithParam<List_Case> {
  protected:
    Recent() {
        for (const char* name : {"a", "b", "c", "d", "e", "f"}) Make(name);
    }

    static void Add(const std::string& name) { GetParam().add(Path(name)); }
    static void Fill() {
        for (const char* name : {"d", "c", "b", "a"}) Add(name);
    }

    // The four places, without the folder; "-" for a hole.
    static std::string Places() {
        std::string places;
        for (int place = 1; place <= 4; ++place) {
            const std::string& path = GetParam().at(place);
            places += path.empty() ? "-" : path.substr(path.rfind('/') + 1);
        }
        return places;
    }
    static const Menu_Entry& Entry(int place) {
        return Menu(static_cast<Menu_Id>(GetParam().first + place - 1));
    }
    static Names Captions() {
        Names captions;
        for (int place = 1; place <= 4; ++place) {
            if (Entry(place).visible) captions.push_back(Entry(place).caption);
        }
        return captions;
    }
};

INSTANTIATE_TEST_SUITE_P(Files, Recent, ::testing::ValuesIn(Cases),
                         [](const auto& tested) { return std::string(tested.param.name); });

TEST_P(Recent, starts_empty_and_hidden) {
    EXPECT_EQ(Places(), "----");
    EXPECT_EQ(Captions(), Names{});
    EXPECT_FALSE(Menu(GetParam().separator).visible);
}

TEST_P(Recent, puts_a_new_file_in_front) {
    Add("a");
    EXPECT_EQ(Places(), "a---");
    Add("b");
    EXPECT_EQ(Places(), "ba--");
    EXPECT_EQ(Captions(), (Names{"&1 " + Path("b"), "&2 " + Path("a")}));
    EXPECT_TRUE(Menu(GetParam().separator).visible);
}

TEST_P(Recent, keeps_the_last_four_of_five_newest_first) {
    for (const char* name : {"a", "b", "c", "d", "e"}) Add(name);
    EXPECT_EQ(Places(), "edcb");
    EXPECT_EQ(Captions(),
              (Names{"&1 " + Path("e"), "&2 " + Path("d"), "&3 " + Path("c"), "&4 " + Path("b")}));
}

TEST_P(Recent, moves_the_third_the_second_and_the_fourth_to_the_front_and_leaves_the_first) {
    Fill();
    EXPECT_EQ(Places(), "abcd");
    Add("a");
    EXPECT_EQ(Places(), "abcd");
    Add("b");
    EXPECT_EQ(Places(), "bacd");
    Add("c");
    EXPECT_EQ(Places(), "cbad");
    Add("d");
    EXPECT_EQ(Places(), "dcba");
}

TEST_P(Recent, turns_a_full_list_round_when_it_is_read_back_in_its_order) {
    for (const char* name : {"a", "b", "c", "d"}) Add(name);
    EXPECT_EQ(Places(), "dcba");
}

TEST_P(Recent, takes_names_in_another_case_for_the_same) {
    Fill();
    GetParam().add(Path("A"));
    EXPECT_EQ(Places(), "abcd") << "the first keeps its name";
    GetParam().add(Path("B"));
    EXPECT_EQ(Places(), "Bacd") << "the second takes the new one";
}

TEST_P(Recent, leaves_a_hole_for_a_file_that_has_gone) {
    Fill();
    Delete("b");
    Add("a");
    EXPECT_EQ(Places(), "a-cd");
    EXPECT_EQ(Captions(), (Names{"&1 " + Path("a"), "&3 " + Path("c"), "&4 " + Path("d")}));
}

TEST_P(Recent, shows_1_and_3_when_the_second_and_the_last_have_gone) {
    Fill();
    Delete("b");
    Delete("d");
    Add("a");
    EXPECT_EQ(Captions(), (Names{"&1 " + Path("a"), "&3 " + Path("c")}));
}

TEST_P(Recent, moves_holes_along_with_the_rest) {
    Fill();
    Delete("b");
    Add("e");
    EXPECT_EQ(Places(), "ea-c");
    Add("c");
    EXPECT_EQ(Places(), "cea-") << "the fourth comes in like a new one";
}

TEST_P(Recent, takes_a_third_file_that_has_gone_for_new) {
    Fill();
    Delete("c");
    Add("c");
    EXPECT_EQ(Places(), "cab-") << "its own old place was cleaned first";
}

TEST_P(Recent, only_cleans_up_for_an_empty_name) {
    Fill();
    Delete("a");
    GetParam().add("");
    EXPECT_EQ(Places(), "-bcd");
    GetParam().add(" \t ");
    EXPECT_EQ(Places(), "-bcd");
    EXPECT_FALSE(Entry(1).visible);
    EXPECT_TRUE(Menu(GetParam().separator).visible);
}

TEST_P(Recent, hides_its_separator_with_the_last_file) {
    Add("a");
    Delete("a");
    GetParam().add("");
    EXPECT_EQ(Places(), "----");
    EXPECT_FALSE(Menu(GetParam().separator).visible);
    EXPECT_EQ(Captions(), Names{});
}

TEST_P(Recent, takes_a_name_whose_file_is_not_there_until_the_next_time) {
    Add("missing");
    EXPECT_EQ(Captions(), Names{"&1 " + Path("missing")});
    Add("a");
    EXPECT_EQ(Places(), "a---");
}

TEST_P(Recent, trims_names_and_shows_them_as_they_stand) {
    GetParam().add("  " + Make("R&B one") + "  ");
    EXPECT_EQ(GetParam().at(1), Path("R&B one"));
    EXPECT_EQ(Entry(1).caption, "&1 " + Path("R&B one"));
}

TEST_P(Recent, may_be_given_a_name_out_of_its_own_list) {
    Fill();
    GetParam().add(GetParam().at(3));
    EXPECT_EQ(Places(), "cabd");
    GetParam().add(GetParam().at(4));
    EXPECT_EQ(Places(), "dcab");
}

TEST_P(Recent, leaves_the_other_list_alone) {
    Fill();
    for (const List_Case& other : Cases) {
        if (other.add == GetParam().add) continue;
        EXPECT_EQ(other.at(1), "");
        EXPECT_FALSE(Menu(other.separator).visible);
        EXPECT_FALSE(Menu(other.first).visible);
    }
}

TEST_P(Recent, has_four_places_only) {
    EXPECT_THROW((void)GetParam().at(0), Fatal_Error);
    EXPECT_THROW((void)GetParam().at(5), Fatal_Error);
}
