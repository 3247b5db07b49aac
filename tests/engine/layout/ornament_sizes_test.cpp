#include "engine/layout/ornament_sizes.h"

#include <gtest/gtest.h>

TEST(frame_size, the_location_decides_when_frames_are_not_offered)
{
    const frame_choice off{.by_location = true, .list_enabled = true, .list_value = 10};
    EXPECT_EQ(frame_size_of(5, off), 5);
    EXPECT_EQ(frame_size_of(0, off), 0);
    EXPECT_EQ(frame_size_of(-1, off), 0);
}

TEST(frame_size, a_disabled_list_holds_the_designs_own_size_even_a_negative_one)
{
    EXPECT_EQ(frame_size_of(5, {.list_value = 12}), 12);
    EXPECT_EQ(frame_size_of(5, {.list_value = -3}), -3);
}

TEST(frame_size, a_negative_location_takes_the_list)
{
    const frame_choice free{.list_enabled = true, .list_value = 10};
    EXPECT_EQ(frame_size_of(-1, free), 10);
    EXPECT_EQ(frame_size_of(0, free), 0);
    EXPECT_EQ(frame_size_of(7, free), 7);
}

TEST(frame_size, a_preview_draws_a_sixth_and_one)
{
    EXPECT_EQ(frame_in_preview(-2), 0);
    EXPECT_EQ(frame_in_preview(0), 0);
    EXPECT_EQ(frame_in_preview(1), 1);
    EXPECT_EQ(frame_in_preview(11), 2);
    EXPECT_EQ(frame_in_preview(12), 3);
    EXPECT_EQ(frame_in_preview(60), 11);
}

TEST(frame_size, the_list_counts_a_sixth_in_a_preview_and_one_at_least)
{
    EXPECT_EQ(frame_list_in_preview(0), 0);
    EXPECT_EQ(frame_list_in_preview(1), 1);
    EXPECT_EQ(frame_list_in_preview(11), 1);
    EXPECT_EQ(frame_list_in_preview(12), 2);
}

TEST(shadow_size, there_is_none_while_shadows_are_off)
{
    EXPECT_EQ(shadow_size_of(9, {.usable = false, .list_counts = true, .list_value = 10}), 0);
}

TEST(shadow_size, without_the_list_the_location_decides)
{
    EXPECT_EQ(shadow_size_of(9, {.usable = true, .list_value = 10}), 9);
    EXPECT_EQ(shadow_size_of(-1, {.usable = true, .list_value = 10}), -1);
}

TEST(shadow_size, a_negative_location_takes_the_list)
{
    const shadow_choice free{.usable = true, .list_counts = true, .list_value = 10};
    EXPECT_EQ(shadow_size_of(-1, free), 10);
    EXPECT_EQ(shadow_size_of(0, free), 0);
    EXPECT_EQ(shadow_size_of(4, free), 4);
}

TEST(shadow_size, a_preview_draws_a_quarter_to_even_and_three_at_least)
{
    EXPECT_EQ(shadow_in_preview(0), 0);
    EXPECT_EQ(shadow_in_preview(1), 3);
    EXPECT_EQ(shadow_in_preview(2), 3);  // 0.5 goes to 0, which is too small to see
    EXPECT_EQ(shadow_in_preview(3), 1);
    EXPECT_EQ(shadow_in_preview(10), 2);
    EXPECT_EQ(shadow_in_preview(14), 4);
}

TEST(shadow_size, the_list_counts_a_quarter_in_a_preview_cut_off)
{
    EXPECT_EQ(shadow_list_in_preview(3), 0);
    EXPECT_EQ(shadow_list_in_preview(7), 1);
    EXPECT_EQ(shadow_list_in_preview(-8), 0);
}

TEST(grid_ornaments, sizes_of_a_preview_are_bounded_again)
{
    EXPECT_EQ(bounded_in_preview(-1), 0);
    EXPECT_EQ(bounded_in_preview(0), 0);
    EXPECT_EQ(bounded_in_preview(8), 8);
    EXPECT_EQ(bounded_in_preview(9), 8);
    EXPECT_EQ(bounded_in_preview(15), 8);
    EXPECT_EQ(bounded_in_preview(16), 5);
    EXPECT_EQ(bounded_in_preview(25), 8);
}
