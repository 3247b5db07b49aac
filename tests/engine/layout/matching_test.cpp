#include "engine/layout/matching.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

// 'l' and 'p' as they lie, 'x' can't be loaded.
std::optional<orientation> lying(char letter)
{
    if (letter == 'x')
        return std::nullopt;
    return letter == 'l' ? orientation::landscape : orientation::portrait;
}

struct table {
    std::string photos;
    match_cursors cursors{};
    bool evolve = false;
    bool squares = false;
    int looks = 0;

    int next(int width, int height)
    {
        const match_request request{.width = width,
                                    .height = height,
                                    .squares_take_any = squares,
                                    .evolve = evolve,
                                    .last_photo = static_cast<int>(photos.size()) - 1};
        const auto found = find_match(request, cursors, [&](int index, orientation) {
            ++looks;
            return lying(photos.at(static_cast<std::size_t>(index)));
        });
        return found.value_or(-1);
    }
    int portrait() { return next(200, 300); }
    int landscape() { return next(300, 200); }
};

}  // namespace

TEST(matching, each_orientation_has_a_cursor_of_its_own)
{
    table photos{.photos = "plplp", .cursors = {.portrait_wraps = 9, .landscape_wraps = 9}};
    const std::vector<int> taken{photos.portrait(), photos.landscape(), photos.portrait(), photos.landscape(),
                                 photos.portrait()};
    EXPECT_EQ(taken, (std::vector{0, 1, 2, 3, 4}));
}

TEST(matching, a_cursor_comes_round_without_a_question)
{
    table photos{.photos = "lpl", .cursors = {.portrait_wraps = 9, .landscape_wraps = 9}};
    const std::vector<int> taken{photos.landscape(), photos.landscape(), photos.landscape()};
    EXPECT_EQ(taken, (std::vector{0, 2, 0}));
    EXPECT_EQ(photos.cursors.landscape_wraps, 10);
}

TEST(matching, a_square_location_wants_landscape_and_a_square_photo_is_portrait)
{
    EXPECT_EQ(wished({.width = 300, .height = 300}, {}), orientation::landscape);
    EXPECT_EQ(orientation_of(300, 300), orientation::portrait);
    EXPECT_EQ(orientation_of(301, 300), orientation::landscape);
}

TEST(matching, near_square_counts_with_the_quick_matrix_alone)
{
    EXPECT_TRUE(is_near_square({.width = 100, .height = 99, .squares_take_any = true}));
    EXPECT_FALSE(is_near_square({.width = 100, .height = 98, .squares_take_any = true}));
    EXPECT_FALSE(is_near_square({.width = 100, .height = 99}));
}

TEST(matching, a_near_square_location_wants_the_orientation_with_the_lower_cursor)
{
    const match_request square{.width = 100, .height = 100, .squares_take_any = true};
    EXPECT_EQ(wished(square, {.next_portrait = 2, .next_landscape = 3}), orientation::portrait);
    EXPECT_EQ(wished(square, {.next_portrait = 3, .next_landscape = 3}), orientation::landscape);
}

TEST(matching, a_near_square_location_takes_what_stands_at_the_cursor)
{
    table photos{.photos = "lppx", .squares = true};
    EXPECT_EQ(photos.next(100, 100), 0);  // wish landscape, cursors now 0 and 1
    EXPECT_EQ(photos.next(100, 100), 0);  // wish portrait, takes the landscape photo all the same
    EXPECT_EQ(photos.cursors, (match_cursors{.next_portrait = 1, .next_landscape = 1}));
    photos.cursors.next_landscape = photos.cursors.next_portrait = 3;
    EXPECT_EQ(photos.next(100, 100), 0);  // one that can't be loaded is passed over
}

TEST(matching, a_near_square_location_finds_nothing_where_no_photo_can_be_loaded)
{
    for (const bool evolve : {false, true})
        for (const int16 start : {int16{0}, int16{2}}) {
            table photos{.photos = "xxx", .evolve = evolve, .squares = true};
            photos.cursors.next_landscape = photos.cursors.next_portrait = start;
            EXPECT_EQ(photos.next(100, 100), -1);
        }
}

TEST(matching, no_match_from_the_first_photo_on_gives_up_after_one_round)
{
    table photos{.photos = "lll", .cursors = {.portrait_wraps = 9, .landscape_wraps = 9}};
    EXPECT_EQ(photos.portrait(), -1);
    EXPECT_EQ(photos.looks, 3);
    EXPECT_EQ(photos.cursors.portrait_wraps, 9);
}

TEST(matching, a_search_that_began_further_on_gives_up_after_a_full_round)
{
    table photos{.photos = "xxx",
                 .cursors = {.next_landscape = 2, .portrait_wraps = 9, .landscape_wraps = 9}};
    EXPECT_EQ(photos.landscape(), -1);
    EXPECT_EQ(photos.looks, 4);
}

TEST(matching, an_empty_table_matches_nothing)
{
    table photos{.photos = "", .cursors = {.portrait_wraps = 9, .landscape_wraps = 9}};
    EXPECT_EQ(photos.landscape(), -1);
    photos.evolve = true;
    EXPECT_EQ(photos.landscape(), -1);
}

TEST(matching, evolve_gives_the_places_of_a_used_up_orientation_to_the_other)
{
    table photos{.photos = "llpp", .evolve = true};
    EXPECT_EQ(photos.landscape(), 0);
    EXPECT_EQ(photos.landscape(), 1);
    EXPECT_EQ(photos.landscape(), 2);  // came round: portrait photos from now on
    EXPECT_EQ(photos.cursors.landscape_wraps, 1);
    EXPECT_EQ(photos.landscape(), 3);
    EXPECT_EQ(photos.portrait(), 2);  // portrait came round as well: both are back at their own
    EXPECT_EQ(photos.cursors.portrait_wraps, 1);
    EXPECT_EQ(photos.landscape(), 0);
}

TEST(matching, evolve_wishes_change_only_while_one_orientation_alone_came_round)
{
    const match_request tall{.width = 2, .height = 3, .evolve = true};
    const match_request wide{.width = 3, .height = 2, .evolve = true};
    EXPECT_EQ(wished(tall, {}), orientation::portrait);
    EXPECT_EQ(wished(tall, {.portrait_wraps = 1}), orientation::landscape);
    EXPECT_EQ(wished(tall, {.landscape_wraps = 1}), orientation::portrait);
    EXPECT_EQ(wished(tall, {.portrait_wraps = 1, .landscape_wraps = 1}), orientation::portrait);
    EXPECT_EQ(wished(wide, {.landscape_wraps = 1}), orientation::portrait);
    EXPECT_EQ(wished(wide, {.portrait_wraps = 1}), orientation::landscape);
}

TEST(matching, evolve_gives_up_at_once_when_a_first_search_from_the_start_finds_nothing)
{
    table photos{.photos = "ppp", .evolve = true};
    EXPECT_EQ(photos.landscape(), -1);
    EXPECT_EQ(photos.cursors, match_cursors{});
}

TEST(matching, evolve_goes_back_to_the_only_orientation_there_is)
{
    table photos{.photos = "ll", .evolve = true};
    std::vector<int> taken;
    for (int i = 0; i < 5; ++i)
        taken.push_back(photos.landscape());
    EXPECT_EQ(taken, (std::vector{0, 1, 0, 1, 0}));
}

TEST(matching, evolve_gives_up_when_neither_orientation_is_left)
{
    table photos{.photos = "xxx", .cursors = {.next_portrait = 2, .landscape_wraps = 1}, .evolve = true};
    EXPECT_EQ(photos.portrait(), -1);
    EXPECT_LE(photos.looks, 12);
}

TEST(matching, photos_that_cannot_be_loaded_are_passed_over)
{
    table photos{.photos = "xlxl", .cursors = {.portrait_wraps = 9, .landscape_wraps = 9}};
    EXPECT_EQ(photos.landscape(), 1);
    EXPECT_EQ(photos.landscape(), 3);
}
