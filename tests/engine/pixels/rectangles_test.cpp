#include "engine/pixels/rectangles.h"

#include "tests/pictures.h"

#include <gtest/gtest.h>

namespace {

rgb_triple grey_of(int value)
{
    const auto level = static_cast<std::uint8_t>(value);
    return {level, level, level};
}

/// A bitmap that holds every value in every row, in the order of its columns.
bitmap all_values_across()
{
    return colored(256, 256, [](int x, int) { return grey_of(x); });
}

bitmap all_values_down()
{
    return colored(256, 256, [](int, int y) { return grey_of(y); });
}

std::string dots(const bitmap & image)
{
    return drawn(image, [](rgb_triple color) { return color == rgb_triple{} ? '.' : '#'; });
}

}  // namespace

TEST(fill_bounds, takes_inclusive_bounds_and_counts_rows_from_the_bottom)
{
    bitmap image(5, 4);
    fill_bounds(image, {.left = 1, .right = 3, .low = 0, .high = 1}, {9, 9, 9});
    EXPECT_EQ(dots(image), ".....\n.....\n.###.\n.###.\n");
}

TEST(fill_bounds, ignores_what_lies_outside)
{
    bitmap image(4, 3);
    fill_bounds(image, {.left = -7, .right = 1, .low = -2, .high = 99}, {9, 9, 9});
    EXPECT_EQ(dots(image), "##..\n##..\n##..\n");
    fill_bounds(image, {.left = 4, .right = 9, .low = 0, .high = 2}, {9, 9, 9});
    fill_bounds(image, {.left = 3, .right = 2, .low = 0, .high = 2}, {9, 9, 9});
    fill_bounds(image, {.left = 0, .right = 3, .low = 3, .high = 5}, {9, 9, 9});
    EXPECT_EQ(dots(image), "##..\n##..\n##..\n");
}

TEST(fill_bounds, without_a_bitmap_nothing_happens)
{
    bitmap none;
    fill_bounds(none, {.left = 0, .right = 5, .low = 0, .high = 5}, {9, 9, 9});
    EXPECT_FALSE(none);
}

TEST(fill_bounds, keeps_the_order_of_the_channels)
{
    bitmap image(1, 1);
    fill_bounds(image, {.left = 0, .right = 0, .low = 0, .high = 0}, {1, 2, 3});
    EXPECT_EQ(seen(image, 0, 0), (rgb_triple{1, 2, 3}));
}

TEST(paste_rectangle, weighs_every_value_on_every_other_as_the_library_does)
{
    const bitmap above = all_values_across(), below = all_values_down();
    for (const int alpha : {0, 1, 5, 10, 127, 128, 200, 252, 255, plain_copy}) {
        bitmap by_library = copied(below, 0, 0, 256, 256), by_us = copied(below, 0, 0, 256, 256);
        ASSERT_TRUE(paste(by_library, above, 0, 0, alpha));
        paste_rectangle(by_us, above, {0, 0, 256, 256}, {0, 0}, alpha);
        EXPECT_TRUE(same(by_us, by_library)) << alpha;
    }
}

TEST(paste_rectangle, agrees_with_copy_and_paste_for_every_part_of_a_small_photo)
{
    const bitmap source = graded(4, 3);
    for (int left = -1; left <= 5; ++left)
        for (int right = -1; right <= 5; ++right)
            for (int top = -1; top <= 4; ++top)
                for (int bottom = -1; bottom <= 4; ++bottom) {
                    bitmap expected = plain(6, 5, {200, 100, 50}), found = plain(6, 5, {200, 100, 50});
                    paste(expected, copied(source, left, top, right, bottom), 3, 2, 99);
                    paste_rectangle(found, source, rectangle_between(left, top, right, bottom), {3, 2}, 99);
                    ASSERT_TRUE(same(found, expected)) << left << top << right << bottom;
                }
}

TEST(paste_rectangle, is_refused_whole_where_it_would_leave_the_target)
{
    const bitmap source = plain(3, 2, {9, 9, 9});
    for (int left = -4; left <= 6; ++left)
        for (int top = -3; top <= 5; ++top) {
            bitmap expected(5, 4), found(5, 4);
            paste(expected, source, left, top, plain_copy);
            paste_rectangle(found, source, {0, 0, 3, 2}, {left, top}, plain_copy);
            ASSERT_EQ(dots(found), dots(expected)) << left << ", " << top;
        }
}

TEST(blend_rectangle, agrees_with_the_paste_of_a_plain_bitmap)
{
    for (int left = -2; left <= 6; ++left)
        for (int top = -2; top <= 5; ++top)
            for (int width = 0; width <= 3; ++width) {
                bitmap expected = graded(5, 4), found = graded(5, 4);
                paste(expected, plain(width, 2, {250, 20, 130}), left, top, 77);
                blend_rectangle(found, {left, top, width, 2}, {250, 20, 130}, 77);
                ASSERT_TRUE(same(found, expected)) << left << ", " << top << ", " << width;
            }
}

TEST(blend_rectangle, without_a_bitmap_nothing_happens)
{
    bitmap none;
    blend_rectangle(none, {0, 0, 1, 1}, {9, 9, 9}, 77);
    EXPECT_FALSE(none);
}
