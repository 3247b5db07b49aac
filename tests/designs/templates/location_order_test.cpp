#include "designs/templates/location_order.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

namespace {

location_table numbered(int count)
{
    location_table table;
    table.clear();
    for (int i = 0; i < count; ++i)
        table.add({.top = narrow(i + 1)});
    return table;
}

std::vector<int> order(const location_table & table)
{
    std::vector<int> tops;
    for (int i = 0; i < table.count; ++i)
        tops.push_back(table[i].top);
    return tops;
}

std::vector<int> sorted_order(const location_table & table)
{
    std::vector<int> tops = order(table);
    std::ranges::sort(tops);
    return tops;
}

std::vector<int> counted(int count)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

// The walk written out as a list of positions first, swapped along afterwards.
std::vector<int> mixed_by_list(int count, int step)
{
    std::vector<int> walk;
    for (int from = count - step; from >= 0; from -= step)
        walk.push_back(from);
    for (int round = 1; round < step; ++round)
        for (int from = count - step + 1; from >= 0; from -= step)
            walk.push_back(from);
    std::vector<int> numbers = counted(count);
    for (std::size_t i = 0; i < walk.size(); ++i)
        std::swap(numbers[i], numbers[static_cast<std::size_t>(walk[i])]);
    return numbers;
}

}  // namespace

TEST(location_order, eight_locations_mixed_by_three)
{
    location_table table = numbered(8);
    mix(table, 3);
    // 0-5, 1-2, 2-6, 3-3, 4-0, 5-6, 6-3, 7-0
    EXPECT_EQ(order(table), (std::vector<int>{8, 3, 7, 1, 6, 2, 4, 5}));
}

TEST(location_order, seven_locations_are_not_mixed)
{
    location_table table = numbered(7);
    mix(table, 3);
    EXPECT_EQ(order(table), counted(7));
}

TEST(location_order, mixing_loses_no_location_and_leaves_the_blank_record_behind_the_last)
{
    for (const int count : {8, 9, 15, 16, 24, 25, 36, 51, 200, 1001})
        for (int step = 3; step <= 8; ++step) {
            location_table table = numbered(count);
            mix(table, step);
            EXPECT_EQ(sorted_order(table), counted(count)) << count << " by " << step;
            EXPECT_EQ(order(table), mixed_by_list(count, step)) << count << " by " << step;
            EXPECT_EQ(table[count].top, 0) << count << " by " << step;
        }
}

TEST(location_order, a_larger_table_has_more_steps_to_choose_from)
{
    struct row {
        int count;
        double drawn;
        int step;
    };
    const row rows[] = {{8, 0.0, 4},  {8, 0.49, 4},  {8, 0.5, 3},   {15, 0.99, 3}, {16, 0.0, 4}, {16, 0.4, 5},
                        {16, 0.7, 3}, {24, 0.5, 5},  {25, 0.5, 6},  {25, 0.75, 3}, {35, 0.6, 6}, {36, 0.6, 7},
                        {36, 0.9, 3}, {50, 0.79, 7}, {51, 0.79, 8}, {51, 0.84, 3}};
    for (const row & given : rows)
        EXPECT_EQ(mixing_step(given.count, given.drawn), given.step) << given.count << " at " << given.drawn;
}

TEST(location_order, six_locations_dealt_into_two_runs)
{
    location_table table = numbered(6), scratch;
    shuffle(table, scratch, {.step = 1, .first = 0});  // dealt 6 4 2, 5 3 1
    EXPECT_EQ(order(table), (std::vector<int>{6, 4, 2, 5, 3, 1}));
}

TEST(location_order, the_dealt_runs_come_back_from_the_first_on)
{
    location_table table = numbered(6), scratch;
    shuffle(table, scratch, {.step = 1, .first = 4});
    EXPECT_EQ(order(table), (std::vector<int>{3, 1, 6, 4, 2, 5}));
}

TEST(location_order, a_step_beyond_the_table_becomes_one_less_than_its_last_index)
{
    location_table table = numbered(5), scratch;
    shuffle(table, scratch, {.step = 6, .first = 0});  // last index 4, step 3: 5 2, 4 1, 3
    EXPECT_EQ(order(table), (std::vector<int>{5, 2, 4, 1, 3}));
    location_table three = numbered(3);
    shuffle(three, scratch, {.step = 6, .first = 0});  // last index 2: step 1
    EXPECT_EQ(order(three), (std::vector<int>{3, 2, 1}));
}

TEST(location_order, shuffling_loses_no_location_and_leaves_the_blank_record_behind_the_last)
{
    location_table scratch;
    for (const int count : {3, 4, 5, 9, 100, 1001})
        for (int step = 0; step <= 7; ++step) {
            location_table table = numbered(count);
            shuffle(table, scratch, {.step = step, .first = step % (count - 1)});
            EXPECT_EQ(sorted_order(table), counted(count)) << count << " by " << step;
            EXPECT_EQ(table[count].top, 0) << count << " by " << step;
        }
}

TEST(location_order, fewer_than_three_locations_are_not_shuffled)
{
    location_table table = numbered(2), scratch;
    shuffle(table, scratch, {.step = 1, .first = 0});
    EXPECT_EQ(order(table), counted(2));
}

TEST(location_order, the_first_dealt_is_rounded_and_comes_round)
{
    EXPECT_EQ(first_dealt(6, 0.0), 1);
    EXPECT_EQ(first_dealt(6, 0.5), 4);  // 3.5
    EXPECT_EQ(first_dealt(6, 0.29), 2);
    EXPECT_EQ(first_dealt(6, 0.8), 0);
    EXPECT_EQ(first_dealt(6, 0.99), 1);
}
