#include "quick/scatter/scatter_match.h"

#include "quick/scatter/scatter_tables.h"
#include "support/platform_error.h"

#include <gtest/gtest.h>
#include <ostream>
#include <sstream>

namespace {

using enum poster_shape;

const std::vector<std::string> some_scatters{
    "-:02:05:exact:and more", "-:04:04:other", "03:02:01:three",        "12:06:06:twelve",
    "20:10:10:twenty",        "SQUARES:these", "03:01:02:square three", "15:08:07:square fifteen"};

scatter_match search(poster_shape poster, slot_counts wanted,
                     const std::vector<std::string> & lines = some_scatters)
{
    line_source table = line_source::of_text(text_of(lines));
    return find_scatter(table, poster, wanted);
}

// The limits in the words of whoever made them: one text of numbers.
std::vector<int> numbers_in(const std::string & text)
{
    std::istringstream stream(text);
    std::vector<int> numbers;
    for (int number = 0; stream >> number;)
        numbers.push_back(number);
    return numbers;
}

}  // namespace

static void PrintTo(const slot_counts & slots, std::ostream * out)
{
    *out << slots.along << " along, " << slots.cross << " across";
}

TEST(scatter_limits, fall_as_they_were_measured)
{
    const std::vector<int> along = numbers_in(
        "65 63 64 62 63 61 62 60 61 59 60 58 59 57 58 56 57 55 56 54 55 53 54 52 53 51 52 50 51 49 50 48 49 "
        "47 48 46 47 45 46 44 45 43 44 42 43 41 42 40 41 39 40 38 39 37 38 36 37 35 36 34 35 33 34 32 33 31 "
        "0");
    EXPECT_TRUE(
        std::equal(along.begin(), along.end(), scatter_limit_along.begin(), scatter_limit_along.end()));
    ASSERT_EQ(scatter_limit_cross.size(), 65U);
    for (std::size_t i = 0; i < 30; ++i)
        EXPECT_EQ(scatter_limit_cross[i], 65);
    for (std::size_t i = 30; i < 36; ++i)
        EXPECT_EQ(scatter_limit_cross[i], 63 - 2 * static_cast<int>(i - 30));
    EXPECT_EQ(scatter_limit_cross[36], 52);
    EXPECT_EQ(scatter_limit_cross[37], 51);
    for (std::size_t i = 38; i <= 62; ++i)
        EXPECT_EQ(scatter_limit_cross[i], 49 - 2 * static_cast<int>(i - 38));
    EXPECT_EQ(scatter_limit_cross[63], 0);
    EXPECT_EQ(scatter_limit_cross[64], 0);
}

TEST(clamped_for_scatter, lowers_what_is_too_much_and_counts_how_often)
{
    struct row {
        slot_counts wanted, held;
        int reduced;
    };
    for (const row & each :
         {row{{5, 7}, {5, 7}, 0}, row{{90, 0}, {64, 0}, 1}, row{{0, 90}, {0, 64}, 1},
          row{{64, 36}, {52, 36}, 1}, row{{70, 40}, {45, 40}, 2}, row{{10, 64}, {10, 60}, 1},
          row{{80, 80}, {64, 33}, 3}, row{{64, 63}, {0, 63}, 1}}) {
        const clamped_slots clamped = clamped_for_scatter(each.wanted, 64);
        EXPECT_EQ(clamped.slots, each.held);
        EXPECT_EQ(clamped.reduced, each.reduced);
    }
}

TEST(clamped_for_scatter, equal_counts_lower_those_across)
{
    EXPECT_EQ(clamped_for_scatter({50, 50}, 64).slots, (slot_counts{50, 40}));
}

TEST(find_scatter, exact_counts_win_along_first_for_upright_posters_alone)
{
    EXPECT_EQ(search(portrait, {2, 5}).line, "-:02:05:exact:and more");
    EXPECT_EQ(search(landscape, {5, 2}).line, "-:02:05:exact:and more");
    EXPECT_EQ(search(square, {5, 2}).line, "-:02:05:exact:and more");
    EXPECT_EQ(search(portrait, {5, 2}).result, scatter_search::none);
}

TEST(find_scatter, the_total_decides_where_no_counts_are_exact)
{
    EXPECT_EQ(search(portrait, {9, 3}).line, "12:06:06:twelve");
    EXPECT_EQ(search(landscape, {3, 9}).line, "12:06:06:twelve");
    EXPECT_EQ(search(square, {2, 1}).line, "03:01:02:square three");
    EXPECT_EQ(search(square, {2, 1}).result, scatter_search::found);
}

TEST(find_scatter, the_last_of_the_list_stands_in_from_eleven_photos_on)
{
    const scatter_match upright = search(portrait, {10, 1});
    EXPECT_EQ(upright.result, scatter_search::substituted);
    EXPECT_EQ(upright.line, "20:10:10:twenty");
    EXPECT_EQ(search(square, {10, 2}).line, "15:08:07:square fifteen");
    EXPECT_EQ(search(portrait, {8, 2}).result, scatter_search::none);
    EXPECT_EQ(search(square, {8, 2}).result, scatter_search::none);
}

TEST(find_scatter, a_table_without_squares_is_noticed)
{
    const scatter_match match = search(square, {6, 6}, {"12:06:06:twelve", "14:07:07:fourteen"});
    EXPECT_TRUE(match.squares_missing);
    EXPECT_EQ(match.result, scatter_search::substituted);
    EXPECT_EQ(match.line, "14:07:07:fourteen");
    EXPECT_EQ(search(square, {1, 2}, {}).result, scatter_search::none);
    EXPECT_TRUE(search(square, {1, 2}, {}).squares_missing);
}

TEST(find_scatter, the_squares_may_follow_the_exact_list_at_once)
{
    const scatter_match match = search(square, {1, 2}, {"-:09:09:x", "SQUARES", "03:01:02:three"});
    EXPECT_FALSE(match.squares_missing);
    EXPECT_EQ(match.line, "03:01:02:three");
}

TEST(find_scatter, nothing_behind_the_squares_is_a_fault)
{
    EXPECT_THROW(search(square, {1, 2}, {"03:01:02:three", "SQUARES"}), platform_error);
}

TEST(find_scatter, an_empty_table_has_nothing_to_stand_in)
{
    EXPECT_EQ(search(portrait, {2, 2}, {}).result, scatter_search::none);
    EXPECT_EQ(search(portrait, {9, 9}, {}).line, "");
}
