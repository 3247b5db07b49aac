#include "support/random.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::vector<double> drawn(const random_source & random, int count)
{
    std::vector<double> numbers;
    for (int i = 0; i < count; ++i)
        numbers.push_back(random.next());
    return numbers;
}

}  // namespace

TEST(random, the_same_seed_gives_the_same_numbers_reseeding_included)
{
    const random_source first = seeded_random(7), second = seeded_random(7);
    EXPECT_EQ(drawn(first, 5), drawn(second, 5));
    first.reseed();
    second.reseed();
    EXPECT_EQ(drawn(first, 5), drawn(second, 5));
}

TEST(random, another_seed_or_reseeding_gives_other_numbers)
{
    const random_source random = seeded_random(7);
    const std::vector<double> before = drawn(random, 5);
    random.reseed();
    EXPECT_NE(drawn(random, 5), before);
    EXPECT_NE(drawn(seeded_random(8), 5), before);
}

TEST(random, goes_on_from_a_position_as_the_source_that_stood_there)
{
    for (const random_source & random : {seeded_random(7), clock_random()}) {
        drawn(random, 3);
        random.reseed();
        random.reseed();
        drawn(random, 5);
        const std::optional<random_source> again = random_from(random.position());
        ASSERT_TRUE(again);
        EXPECT_EQ(again->position(), random.position());
        EXPECT_EQ(drawn(*again, 5), drawn(random, 5));
        again->reseed();
        random.reseed();
        EXPECT_EQ(drawn(*again, 5), drawn(random, 5));
        EXPECT_EQ(again->position(), random.position());
    }
}

TEST(random, refuses_a_position_that_would_take_for_ever)
{
    EXPECT_FALSE(random_from({.seed = 1, .reseeds = farthest_position + 1, .draws = 0}));
    EXPECT_FALSE(random_from({.seed = 1, .reseeds = 0, .draws = farthest_position + 1}));
}

TEST(random, numbers_are_spread_over_0_to_1_without_1)
{
    std::vector<int> tenths(10);
    for (const double number : drawn(seeded_random(1), 10000)) {
        ASSERT_TRUE(number >= 0 && number < 1);
        ++tenths[static_cast<std::size_t>(number * 10)];
    }
    for (const int count : tenths)
        EXPECT_NEAR(count, 1000, 150);
}

TEST(random, a_list_is_given_in_turn_whatever_is_reseeded)
{
    const random_source random = listed({0.1, 0.2});
    EXPECT_EQ(random.next(), 0.1);
    random.reseed();
    EXPECT_EQ(random.next(), 0.2);
}
