#include "photos/photo_shuffle.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace {

photo_table numbered(int count)
{
    photo_table table;
    for (int i = 0; i < count; ++i)
        table[i] = std::to_string(i);
    table.last_photo = narrow(count - 1);
    return table;
}

std::string order(const photo_table & table)
{
    std::string text;
    for (int i = 0; i <= table.last_photo; ++i)
        text += table[i] + " ";
    return text;
}

// The same by hand: a gap is closed by moving the whole tail of the table, behind the last photo too.
std::string shuffled_by_gaps(photo_table table, const random_source & random)
{
    std::vector<std::string> photos(table.photos.begin(), table.photos.end());
    photos.emplace_back();
    std::string text;
    for (int remaining = table.last_photo; remaining >= 0; --remaining) {
        const auto drawn = static_cast<std::size_t>(random.next() * (remaining + 1));
        text += photos[drawn] + " ";
        for (std::size_t j = drawn; j <= static_cast<std::size_t>(table.last_photo); ++j)
            photos[j] = photos[j + 1];
    }
    return text;
}

}  // namespace

TEST(photo_shuffle, takes_the_drawn_one_of_those_still_left)
{
    photo_table table = numbered(4);
    shuffle(table, listed({0.5, 0.0, 0.99, 0.0}));  // 2 of 0 1 2 3, 0 of 0 1 3, 3 of 1 3, 1
    EXPECT_EQ(order(table), "2 0 3 1 ");
}

TEST(photo_shuffle, agrees_with_the_closing_of_gaps)
{
    for (const int count : {1, 2, 7, 100}) {
        photo_table table = numbered(count);
        const std::string expected = shuffled_by_gaps(table, seeded_random(5));
        shuffle(table, seeded_random(5));
        EXPECT_EQ(order(table), expected) << count;
    }
}

TEST(photo_shuffle, a_full_table_keeps_every_photo)
{
    photo_table table = numbered(1001);
    shuffle(table, seeded_random(1));
    EXPECT_EQ(table.last_photo, 1000);
    EXPECT_EQ(std::set<std::string>(table.photos.begin(), table.photos.end()).size(), 1001u);
    EXPECT_NE(table[0] + table[1] + table[2], "012");
}

TEST(photo_shuffle, leaves_what_lies_behind_the_last_photo)
{
    photo_table table = numbered(3);
    table[3] = "stale";
    shuffle(table, listed({0.9, 0.9, 0.9}));
    EXPECT_EQ(order(table), "2 1 0 ");
    EXPECT_EQ(table[3], "stale");
}

TEST(photo_shuffle, an_empty_table_draws_no_number)
{
    photo_table table;
    shuffle(table, listed({}));
    EXPECT_EQ(table.last_photo, -1);
}
