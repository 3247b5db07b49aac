#include "designs/catalogue/mended_catalogue.h"

#include <gtest/gtest.h>

namespace {

using text = text_lines;

const text supplied{"[Design001]",
                    "Name=Match",
                    "File=__quick",
                    "",
                    "[Design002]",
                    "Name=Quick matrix",
                    "File=__quick",
                    "Style=Place",
                    "",
                    "[Design101]",
                    "Name=Wall",
                    "File=wall",
                    ""};
const text mine{"[Design600]", "Name=Mine", "File=saved600", "System=No"};

text both(text first, const text & second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

text without(text lines, std::string_view line)
{
    std::erase(lines, line);
    return lines;
}

text mended(const text & own)
{
    return mended_catalogue(own, supplied, {});
}

}  // namespace

TEST(damaged_catalogue, is_one_that_is_no_list_of_sections)
{
    EXPECT_FALSE(is_damaged(supplied, supplied));
    EXPECT_FALSE(is_damaged(both(supplied, mine), supplied));
    EXPECT_TRUE(is_damaged({}, supplied));
    EXPECT_TRUE(is_damaged({"no catalogue at all"}, supplied));
    EXPECT_TRUE(is_damaged(both({"no catalogue"}, mine), supplied)) << "without what is needed";
    EXPECT_FALSE(is_damaged(both({"a note"}, supplied), supplied));
    EXPECT_TRUE(is_damaged(both(supplied, {std::string(3, '\0')}), supplied));
}

TEST(damaged_catalogue, is_not_one_from_which_the_user_took_a_design)
{
    EXPECT_FALSE(is_damaged(text(supplied.begin(), supplied.begin() + 9), supplied));
    EXPECT_FALSE(is_damaged(mine, supplied)) << "nor one made by hand";
    EXPECT_FALSE(is_damaged(without(supplied, "Name=Quick matrix"), supplied));
}

TEST(damaged_catalogue, is_one_that_ends_in_the_middle_of_a_section)
{
    EXPECT_TRUE(is_damaged(text(supplied.begin(), supplied.begin() + 7), supplied));
    text in_a_line(supplied.begin(), supplied.begin() + 8);
    EXPECT_FALSE(is_damaged(in_a_line, supplied)) << "ends with its section";
    in_a_line.back() = "Style=Pl";
    EXPECT_TRUE(is_damaged(in_a_line, supplied));
    in_a_line.back() = "Style=Matrix";
    EXPECT_FALSE(is_damaged(in_a_line, supplied)) << "changed by the user";
}

TEST(damaged_catalogue, is_none_where_nothing_could_be_brought_back)
{
    EXPECT_FALSE(is_damaged({}, {}));
    EXPECT_FALSE(is_damaged({}, {"no catalogue"}));
    EXPECT_FALSE(is_damaged({}, both(supplied, {std::string(1, '\0')})));
}

TEST(mended_catalogue, has_all_that_is_supplied_and_what_is_the_users)
{
    EXPECT_EQ(mended({}), supplied);
    EXPECT_EQ(mended({"junk", "more of it"}), supplied);
    EXPECT_EQ(mended(mine), both(supplied, mine));
    const text cut(supplied.begin(), supplied.begin() + 7);
    EXPECT_EQ(mended(cut), supplied);
    EXPECT_FALSE(is_damaged(mended(cut), supplied));
}

TEST(mended_catalogue, keeps_what_the_user_changed)
{
    text changed = supplied;
    changed[10] = "Name=My wall";
    changed.erase(changed.begin(), changed.begin() + 4);
    const text whole = mended(changed);
    EXPECT_EQ(text(whole.begin() + 9, whole.end()), (text{"[Design101]", "Name=My wall", "File=wall", ""}));
    EXPECT_EQ(text(whole.begin(), whole.begin() + 4), text(supplied.begin(), supplied.begin() + 4));
}

TEST(mended_catalogue, keeps_a_section_up_to_the_first_line_that_is_no_text)
{
    const text torn{"[Design600]", "Name=Mine", "File=saved600", std::string("Sty\0le", 6),
                    "Name=Of another"};
    EXPECT_EQ(mended(torn), both(supplied, {"[Design600]", "Name=Mine", "File=saved600"}));
    EXPECT_EQ(mended({"[Design600]", "Na\x01me=Mine", "File=saved600"}), supplied);
    EXPECT_EQ(mended({"[Design 99999999999]", "Name=Odd", "File=odd"}), supplied);
}

TEST(mended_catalogue, finds_another_number_for_what_the_program_needs)
{
    const text taken{"[Design001]", "Name=Mine", "File=saved1", ""};
    const text whole = mended(taken);
    EXPECT_FALSE(is_damaged(whole, supplied));
    EXPECT_EQ(section_of(whole, 1), taken);
    EXPECT_EQ(section_of(whole, 3), (text{"[Design003]", "Name=Match", "File=__quick", ""}));
}

TEST(mended_catalogue, takes_designs_of_the_backup_whose_template_is_there)
{
    const text backup = both(supplied, {"[Design600]", "Name=Mine", "File=heart", "",  //
                                        "[Design601]", "Name=Deleted since", "File=star"});
    EXPECT_EQ(mended_catalogue({}, supplied, {.backup = backup, .templates = {"heart"}, .saved = {}}),
              both(supplied, {"[Design600]", "Name=Mine", "File=heart", ""}));
    const text renamed{"[Design602]", "Name=Other", "File=heart"};
    EXPECT_EQ(mended_catalogue(renamed, supplied, {.backup = backup, .templates = {"heart"}, .saved = {}}),
              both(supplied, renamed));
}

TEST(mended_catalogue, lists_saved_designs_that_no_section_names)
{
    const traces_of_designs traces{.backup = {},
                                   .templates = {"saved600", "saved601"},
                                   .saved = {{.number = 600, .name = {}},
                                             {.number = 601,
                                              .name = {},
                                              .kind = saved_layout::matrix,
                                              .background = orientation::landscape,
                                              .sample = design_to_save::part::present}}};
    EXPECT_EQ(
        mended_catalogue(mine, supplied, traces),
        both(both(supplied, mine), {"", "[Design601]", "Name=Saved design 601", "Ratio=2x3", "File=saved601",
                                    "System=No", "Design=Saved", "Style=Matrix", "Match=Yes", "Turn BG=No",
                                    "Background=Landscape", "Sample=saved601.jpg"}));
}
