#include "quick/block/block_match.h"

#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <gtest/gtest.h>
#include <ostream>

namespace {

using enum poster_shape;

struct searched {
    block_search result = block_search::found;
    block_match match;
};

searched search(const std::vector<std::string> & lines, poster_shape poster, block_counts wanted,
                const block_match & before = {})
{
    line_source table = line_source::of_text(text_of(lines));
    searched found{.match = before};
    found.result = find_block(table, poster, wanted, found.match);
    return found;
}

// The rules read off the table of limits one step at a time.
block_counts clamped_by_rule(block_counts counts, poster_shape poster)
{
    const bool square = poster == poster_shape::square;
    const int budget = square ? 25 : 46, floor = square ? 15 : 30;
    counts.portrait = std::min(counts.portrait, square ? 40 : 88);
    counts.landscape = std::min(counts.landscape, square ? 25 : 46);
    if (poster != landscape && counts.portrait == 0)
        return counts;
    for (;;) {
        const int room = (budget - counts.landscape) * 2;
        if (poster == landscape ? room >= counts.portrait : room > counts.portrait)
            return counts;
        const block_counts before = counts;
        if (before.portrait > floor)
            counts.portrait = before.portrait - 2;
        if (before.landscape > floor)
            counts.landscape = before.landscape - 1;
    }
}

}  // namespace

static void PrintTo(const block_counts & counts, std::ostream * out)
{
    *out << counts.portrait << " portrait, " << counts.landscape << " landscape";
}

static void PrintTo(const block_match & match, std::ostream * out)
{
    *out << match.name << " doubled " << match.doubled << " split " << match.split;
}

TEST(clamped_for_blocks, cuts_each_count_at_its_limit)
{
    EXPECT_EQ(clamped_for_blocks({95, 2}, portrait), (block_counts{86, 2}));
    EXPECT_EQ(clamped_for_blocks({95, 1}, portrait), (block_counts{88, 1}));
    EXPECT_EQ(clamped_for_blocks({0, 99}, portrait), (block_counts{0, 46}));
    EXPECT_EQ(clamped_for_blocks({0, 99}, square), (block_counts{0, 25}));
    EXPECT_EQ(clamped_for_blocks({60, 0}, square), (block_counts{40, 0}));
}

TEST(clamped_for_blocks, keeps_counts_that_fit)
{
    EXPECT_EQ(clamped_for_blocks({40, 25}, portrait), (block_counts{40, 25}));
    EXPECT_EQ(clamped_for_blocks({10, 10}, square), (block_counts{10, 10}));
}

TEST(clamped_for_blocks, the_test_is_strict_but_for_landscape_posters)
{
    EXPECT_EQ(clamped_for_blocks({40, 26}, landscape), (block_counts{40, 26}));
    EXPECT_EQ(clamped_for_blocks({40, 26}, portrait), (block_counts{38, 26}));
}

TEST(clamped_for_blocks, a_landscape_poster_has_its_budget_without_portraits_too)
{
    EXPECT_EQ(clamped_for_blocks({0, 46}, landscape), (block_counts{0, 46}));
    EXPECT_EQ(clamped_for_blocks({0, 46}, portrait), (block_counts{0, 46}));
    EXPECT_EQ(clamped_for_blocks({1, 46}, landscape), (block_counts{1, 45}));
}

TEST(clamped_for_blocks, both_are_lowered_together_down_to_their_floor)
{
    EXPECT_EQ(clamped_for_blocks({88, 46}, portrait), (block_counts{30, 30}));
    EXPECT_EQ(clamped_for_blocks({31, 40}, portrait), (block_counts{29, 31}));
    EXPECT_EQ(clamped_for_blocks({40, 25}, square), (block_counts{18, 15}));
}

TEST(clamped_for_blocks, follows_the_rule_for_every_pair)
{
    for (const poster_shape poster : {portrait, landscape, square})
        for (int upright = 0; upright < 110; ++upright)
            for (int lying = 0; lying < 60; ++lying)
                ASSERT_EQ(clamped_for_blocks({upright, lying}, poster),
                          clamped_by_rule({upright, lying}, poster))
                    << upright << " " << lying;
}

TEST(find_block, takes_the_entry_of_its_own_count_with_its_own_cuts)
{
    const searched found =
        search({"#PORT", "03X01:low:1:0", "07X03:wall:2:1", "#"}, portrait, {.portrait = 7, .landscape = 3});
    EXPECT_EQ(found.result, block_search::found);
    EXPECT_EQ(found.match, (block_match{.name = "[wall]", .doubled = 2, .split = 1}));
}

TEST(find_block, an_entry_serves_two_portraits_more_for_each_landscape_less)
{
    const std::vector<std::string> table{"#PORT", "03X04:wall:2:1", "#"};
    EXPECT_EQ(search(table, portrait, {5, 3}).match.split, 1);
    EXPECT_EQ(search(table, portrait, {11, 0}).match.split, 4);
    EXPECT_EQ(search(table, portrait, {13, 0}).result, block_search::substituted);
    EXPECT_EQ(search(table, portrait, {1, 5}).result, block_search::substituted);
}

TEST(find_block, the_first_line_that_serves_wins_over_a_later_exact_one)
{
    const searched found =
        search({"#SQUA", "05X03:through_cuts:0:0", "07X02:exact:1:1", "#"}, square, {7, 2});
    EXPECT_EQ(found.match, (block_match{.name = "[through_cuts]", .doubled = 0, .split = 1}));
}

TEST(find_block, without_an_entry_the_last_of_the_section_stands_in_with_two_cuts)
{
    const searched found =
        search({"#PORT", "03X01:first:1:0", "04X01:last:3:9", "#LAND", "09X09:other:0:0"}, portrait, {9, 9});
    EXPECT_EQ(found.result, block_search::substituted);
    EXPECT_EQ(found.match, (block_match{.name = "[last]", .doubled = 3, .split = 2}));
}

TEST(find_block, reads_the_section_of_its_poster_alone)
{
    const std::vector<std::string> table{"ignored",     "#PORTRAIT", "01X01:p:0:0", "#LANDSCAPE",
                                         "01X01:l:0:0", "#SQUARE",   "01X01:s:0:0", "#END"};
    EXPECT_EQ(search(table, portrait, {1, 1}).match.name, "[p]");
    EXPECT_EQ(search(table, landscape, {1, 1}).match.name, "[l]");
    EXPECT_EQ(search(table, square, {1, 1}).match.name, "[s]");
}

TEST(find_block, only_the_outer_two_signs_of_a_count_are_read)
{
    EXPECT_EQ(search({"#PORT", "03 and 12:wall:0:0", "#"}, portrait, {3, 12}).result, block_search::found);
    EXPECT_EQ(search({"#PORT", "3X2:wall:0:0", "#"}, portrait, {3, 2}).result, block_search::substituted);
}

TEST(find_block, a_table_without_the_section_leaves_the_match_alone)
{
    const block_match before{.name = "[old]", .doubled = 4, .split = 5};
    const searched found = search({"#LAND", "01X01:l:0:0", "#"}, portrait, {1, 1}, before);
    EXPECT_EQ(found.result, block_search::no_section);
    EXPECT_EQ(found.match, before);
    EXPECT_EQ(search({}, portrait, {1, 1}).result, block_search::no_section);
}

TEST(find_block, a_section_that_runs_into_the_end_of_the_table_keeps_the_last_entry)
{
    const searched found = search({"#PORT", "01X01:a:0:0", "02X02:b:7:3"}, portrait, {9, 9}, {.split = 5});
    EXPECT_EQ(found.result, block_search::ran_out);
    EXPECT_EQ(found.match, (block_match{.name = "[b]", .doubled = 7, .split = 5}));
}

TEST(find_block, a_short_line_is_a_fault)
{
    for (const char * line : {"", "01X01", "01X01:a", "09X09:a:0"}) {
        try {
            search({"#PORT", line, "#"}, portrait, {9, 9});
            FAIL() << line;
        } catch (const platform_error & error) {
            EXPECT_EQ(error.number, error_number::subscript) << line;
        }
    }
}
